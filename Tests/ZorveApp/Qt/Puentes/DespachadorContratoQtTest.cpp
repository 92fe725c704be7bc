#include <QCoreApplication>
#include <QElapsedTimer>

#include "Contratos/DespachadorContrato.h"
#include "ZorveApp/Qt/Puentes/DespachadorQt.h"

namespace zorve::contratos {
namespace {

class ConQt {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) {
    QElapsedTimer reloj;
    reloj.start();
    while (!listo()) {
      if (reloj.hasExpired(10'000)) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return true;
  }

 private:
  DespachadorQt despachador_;
};

using Reales = ::testing::Types<ConQt>;
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, DespachadorContrato, Reales);

}  // namespace
}  // namespace zorve::contratos
