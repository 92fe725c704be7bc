#include <poll.h>
#include <list>

#include <memory>

#include "Contratos/DespachadorContrato.h"
#include "ZorveTui/DespachadorDeConsola.h"

namespace zorve::contratos {
namespace {

/// Kept to the end of the process, as a program keeps it: threads may still be leaving it.
class DeConsola {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) {
    auto const limite = std::chrono::steady_clock::now() + std::chrono::seconds{10};
    while (!listo()) {
      if (std::chrono::steady_clock::now() >= limite) return false;
      pollfd esperado{despachador_.descriptor(), POLLIN, 0};
      auto const plazo = despachador_.hastaLaProxima().value_or(std::chrono::milliseconds{100});
      ::poll(&esperado, 1, static_cast<int>(plazo.count()));
      despachador_.correrPendientes();
    }
    return true;
  }

 private:
  /// Each is kept to the program's end, as a program keeps its one.
  static tui::DespachadorDeConsola& nuevo() {
    static auto& todos = *new std::list<tui::DespachadorDeConsola>;
    return todos.emplace_back();
  }

  tui::DespachadorDeConsola& despachador_ = nuevo();
};

INSTANTIATE_TYPED_TEST_SUITE_P(DeConsola, DespachadorContrato, ::testing::Types<DeConsola>);

}  // namespace
}  // namespace zorve::contratos
