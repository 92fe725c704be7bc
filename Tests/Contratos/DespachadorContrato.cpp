#include "Contratos/DespachadorContrato.h"

#include "Dobles/DespachadorDeHilos.h"
#include "Dobles/DespachadorInmediato.h"
#include "Dobles/DespachadorPaso.h"

namespace zorve::contratos {
namespace {

class PorPasos {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) {
    for (int vueltas = 0; vueltas < 10'000; ++vueltas) {
      if (listo()) return true;
      if (despachador_.pasoPrincipal() || despachador_.pasoDeFondo()) continue;
      despachador_.avanzar(std::chrono::milliseconds{1});
    }
    return false;
  }

 private:
  dobles::DespachadorPaso despachador_;
};

class ConHilos {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) { return despachador_.girarHasta(listo); }

 private:
  dobles::DespachadorDeHilos despachador_;
};

class Inmediato {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) {
    despachador_.girar();
    return listo();
  }

 private:
  dobles::DespachadorInmediato despachador_;
};

using Dobles = ::testing::Types<PorPasos, Inmediato, ConHilos>;
INSTANTIATE_TYPED_TEST_SUITE_P(Dobles, DespachadorContrato, Dobles);

}  // namespace
}  // namespace zorve::contratos
