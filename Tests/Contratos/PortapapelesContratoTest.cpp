#include "Contratos/PortapapelesContrato.h"

#include "Dobles/PortapapelesDePrueba.h"

namespace zorve::contratos {
namespace {

class DePrueba {
 public:
  Portapapeles& portapapeles() { return portapapeles_; }
  [[nodiscard]] std::optional<std::string> texto() const { return portapapeles_.contenido; }

 private:
  dobles::PortapapelesDePrueba portapapeles_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Doble, PortapapelesContrato, ::testing::Types<DePrueba>);

}  // namespace
}  // namespace zorve::contratos
