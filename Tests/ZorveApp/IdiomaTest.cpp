#include "ZorveApp/Idioma.h"

#include <gtest/gtest.h>

#include <string>

#include "Dobles/PreferenciasEnMemoria.h"

namespace zorve {
namespace {

using dobles::PreferenciasEnMemoria;

std::string const clave = "zorve.idioma";

TEST(Idioma, susTextosCrudosYSuOrden) {
  EXPECT_EQ(todosLosCasos<Idioma>(), (std::array{Idioma::en, Idioma::es}));
  EXPECT_EQ(textoCrudo(Idioma::en), "en");
  EXPECT_EQ(textoCrudo(Idioma::es), "es");
}

TEST(Idioma, cadaUnoTieneSuPropioNombre) {
  EXPECT_EQ(nombrePropio(Idioma::en), "English");
  EXPECT_EQ(nombrePropio(Idioma::es), "Español");
}

TEST(PreferenciaDeIdioma, sinNadaGuardadoEsIngles) {
  PreferenciasEnMemoria preferencias;
  EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::en);
}

TEST(PreferenciaDeIdioma, soloElTextoExactoEsEligeEspanol) {
  for (auto const* texto : {"ES", "es-MX", " es", "en", "fr", ""}) {
    PreferenciasEnMemoria preferencias{{{clave, std::string{texto}}}};
    EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::en) << texto;
  }
  PreferenciasEnMemoria preferencias{{{clave, std::string{"es"}}}};
  EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::es);
}

TEST(PreferenciaDeIdioma, unValorQueNoEsTextoEsIngles) {
  PreferenciasEnMemoria preferencias{{{clave, true}}};
  EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::en);
}

TEST(PreferenciaDeIdioma, sinPoderLeerEsIngles) {
  PreferenciasEnMemoria preferencias{{{clave, std::string{"es"}}}};
  preferencias.fallarCon(IndexError{IndexSource::launcher, "damaged"});
  EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::en);
}

TEST(PreferenciaDeIdioma, elegirOtroLoGuardaYAvisa) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  int avisos = 0;
  auto const suscripcion = idioma.idioma().observar([&] { ++avisos; });
  EXPECT_TRUE(idioma.elegir(Idioma::es)());
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
  EXPECT_EQ(textoGuardado(preferencias, clave), "es");
  EXPECT_EQ(avisos, 1);
  EXPECT_TRUE(idioma.elegir(Idioma::en)());
  EXPECT_EQ(textoGuardado(preferencias, clave), "en");
}

TEST(PreferenciaDeIdioma, elegirElQueRigeNoEscribeNiAvisa) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  int avisos = 0;
  auto const suscripcion = idioma.idioma().observar([&] { ++avisos; });
  EXPECT_TRUE(idioma.elegir(Idioma::en)());
  EXPECT_EQ(preferencias.cambios(), 0);
  EXPECT_EQ(avisos, 0);
}

TEST(PreferenciaDeIdioma, elegirElQueRigeLoGuardaSiElGuardadoEsOtro) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  ASSERT_TRUE(preferencias.escribir(clave, std::string{"es"}));
  EXPECT_TRUE(idioma.elegir(Idioma::en)());
  EXPECT_EQ(textoGuardado(preferencias, clave), "en");
}

TEST(PreferenciaDeIdioma, loQueNoSePudoGuardarSeGuardaAlElegirloOtraVez) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  ASSERT_FALSE(idioma.elegir(Idioma::es)());
  preferencias.fallarCon(std::nullopt);
  EXPECT_TRUE(idioma.elegir(Idioma::es)());
  EXPECT_EQ(textoGuardado(preferencias, clave), "es");
}

TEST(PreferenciaDeIdioma, rigeAntesDeGuardarse) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  auto const guardar = idioma.elegir(Idioma::es);
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
  EXPECT_EQ(preferencias.cambios(), 0);
  EXPECT_TRUE(guardar());
}

TEST(PreferenciaDeIdioma, siNoSePuedeGuardarRigeYDevuelveElFallo) {
  PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  auto const guardado = idioma.elegir(Idioma::es)();
  ASSERT_FALSE(guardado);
  EXPECT_EQ(guardado.error().mensaje, "read-only");
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
}

TEST(PreferenciaDeIdioma, elSiguienteArranqueLeeLoElegido) {
  PreferenciasEnMemoria preferencias;
  ASSERT_TRUE(PreferenciaDeIdioma{preferencias}.elegir(Idioma::es)());
  EXPECT_EQ(*PreferenciaDeIdioma{preferencias}.idioma(), Idioma::es);
}

}  // namespace
}  // namespace zorve
