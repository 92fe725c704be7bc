#include "ZorveApp/Observable.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace zorve {
namespace {

TEST(Observable, avisaDeUnCambioReal) {
  Observable<int> propiedad{1};
  int avisos = 0;
  auto const suscripcion = propiedad.observar([&] { ++avisos; });
  EXPECT_TRUE(propiedad.escribir(2));
  EXPECT_EQ(*propiedad, 2);
  EXPECT_EQ(avisos, 1);
}

TEST(Observable, unValorIgualNoAvisa) {
  Observable<std::string> propiedad{"a"};
  int avisos = 0;
  auto const suscripcion = propiedad.observar([&] { ++avisos; });
  EXPECT_FALSE(propiedad.escribir("a"));
  EXPECT_EQ(avisos, 0);
}

TEST(Observable, alAvisarElValorNuevoYaEsta) {
  Observable<int> propiedad{1};
  int visto = 0;
  auto const suscripcion = propiedad.observar([&] { visto = *propiedad; });
  propiedad.escribir(5);
  EXPECT_EQ(visto, 5);
}

TEST(Observable, losObservadoresOyenEnElOrdenEnQueLlegaron) {
  Observable<int> propiedad{0};
  std::string orden;
  auto const una = propiedad.observar([&] { orden += 'a'; });
  auto const otra = propiedad.observar([&] { orden += 'b'; });
  propiedad.escribir(1);
  EXPECT_EQ(orden, "ab");
}

TEST(Observable, laSuscripcionAcabaConSuObjeto) {
  Observable<int> propiedad{0};
  int avisos = 0;
  {
    auto const suscripcion = propiedad.observar([&] { ++avisos; });
    propiedad.escribir(1);
  }
  propiedad.escribir(2);
  EXPECT_EQ(avisos, 1);
}

TEST(Observable, unaSuscripcionMovidaSigueYLaSustituidaAcaba) {
  Observable<int> propiedad{0};
  int primeros = 0;
  int segundos = 0;
  auto suscripcion = propiedad.observar([&] { ++primeros; });
  auto movida = std::move(suscripcion);
  propiedad.escribir(1);
  movida = propiedad.observar([&] { ++segundos; });
  propiedad.escribir(2);
  EXPECT_EQ(primeros, 1);
  EXPECT_EQ(segundos, 1);
}

TEST(Observable, laSuscripcionPuedeVivirMasQueLaPropiedad) {
  auto propiedad = std::make_unique<Observable<int>>(0);
  auto suscripcion = propiedad->observar([] {});
  propiedad.reset();
  suscripcion.terminar();
}

TEST(Observable, unObservadorPuedeTerminarseASiMismoAlOir) {
  Observable<int> propiedad{0};
  int avisos = 0;
  Suscripcion suscripcion;
  suscripcion = propiedad.observar([&] {
    ++avisos;
    suscripcion.terminar();
  });
  propiedad.escribir(1);
  propiedad.escribir(2);
  EXPECT_EQ(avisos, 1);
}

TEST(Observable, unObservadorTerminadoPorOtroYaNoOye) {
  Observable<int> propiedad{0};
  int avisos = 0;
  Suscripcion segunda;
  auto const primera = propiedad.observar([&] { segunda.terminar(); });
  segunda = propiedad.observar([&] { ++avisos; });
  propiedad.escribir(1);
  EXPECT_EQ(avisos, 0);
}

TEST(Observable, quienLlegaDuranteUnAvisoOyeDesdeElSiguiente) {
  Observable<int> propiedad{0};
  int avisos = 0;
  Suscripcion tardia;
  auto const primera = propiedad.observar([&] {
    if (*propiedad == 1) tardia = propiedad.observar([&] { ++avisos; });
  });
  propiedad.escribir(1);
  EXPECT_EQ(avisos, 0);
  propiedad.escribir(2);
  EXPECT_EQ(avisos, 1);
}

TEST(Observable, unObservadorPuedeVolverAEscribir) {
  Observable<int> propiedad{0};
  auto const suscripcion = propiedad.observar([&] { propiedad.escribir(10); });
  propiedad.escribir(1);
  EXPECT_EQ(*propiedad, 10);
}

TEST(Observable, unObservadorPuedeDestruirLaPropiedad) {
  auto propiedad = std::make_unique<Observable<int>>(0);
  auto& misma = *propiedad;
  int avisos = 0;
  auto const primera = propiedad->observar([&] {
    ++avisos;
    propiedad.reset();
  });
  misma.escribir(1);
  EXPECT_EQ(avisos, 1);
}

}  // namespace
}  // namespace zorve
