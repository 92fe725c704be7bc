#include "ZorveApp/Textos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <type_traits>
#include <variant>

namespace zorve {
namespace {

struct TextoEsperado {
  std::variant<std::string_view Textos::*, std::string Textos::*> campo;
  std::string_view en;
  std::string_view es;
};

constexpr TextoEsperado tabla[] = {
    {&Textos::ayudaAjustes, "Settings (⌘,)", "Ajustes (⌘,)"},
    {&Textos::buscandoSesiones, "looking for sessions…", "buscando sesiones…"},
    {&Textos::sinSesiones, "no sessions", "sin sesiones"},
    {&Textos::sinCoincidencias, "no matches", "sin coincidencias"},
    {&Textos::atajoMover, "move", "mover"},
    {&Textos::atajoAbrir, "open", "abrir"},
    {&Textos::atajoRefrescar, "refresh", "refrescar"},
    {&Textos::ajustes, "Settings", "Ajustes"},
    {&Textos::salir, "Quit", "Salir"},
    {&Textos::prompts, "prompts", "prompts"},
    {&Textos::tituloDerivado, "Title derived from the first prompt: this session has no ai-title.",
     "Título derivado del primer prompt: esta sesión no tiene ai-title."},
    {&Textos::procesando, "working", "procesando"},
    {&Textos::activa, "active", "activa"},
    {&Textos::ahora, "now", "ahora"},
    {&Textos::sinTerminal, "no terminal", "sin terminal"},
    {&Textos::menuAjustes, "Settings…", "Ajustes…"},
    {&Textos::menuSalirDeZorve, "Quit Zorve", "Salir de Zorve"},
    {&Textos::seccionInicio, "STARTUP", "INICIO"},
    {&Textos::seccionIdioma, "LANGUAGE", "IDIOMA"},
    {&Textos::sinTerminalCompatible, "No supported terminal was found on this Mac.",
     "No se encontró ninguna terminal compatible en esta Mac."},
    {&Textos::noPuedeEnfocar, "cannot focus", "no puede enfocar"},
    {&Textos::laQueDecidaZorve, "Whichever Zorve picks", "La que decida Zorve"},
    {&Textos::abrirAlIniciarSesion, "Open Zorve at login", "Abrir Zorve al iniciar sesión"},
    {&Textos::sinEmpaquetar, "unpackaged", "sin empaquetar"},
    {&Textos::paraCerrarZorve, "To quit Zorve: ⌘Q", "Para cerrar Zorve: ⌘Q"},
    {&Textos::vivaSinTty,
     "The session is alive but has no controlling terminal; there is nowhere to focus. ⌘C copies its id.",
     "La sesión está viva pero sin terminal de control; no hay a dónde enfocar. ⌘C copia su id."},
    {&Textos::sinSalida, "(no output)", "(sin salida)"},
};

std::string_view valor(Textos const& textos, decltype(TextoEsperado::campo) const& campo) {
  return std::visit([&](auto cual) { return std::string_view{textos.*cual}; }, campo);
}

TEST(Textos, cadaTextoFijoEsElDeLaTablaEnLosDosIdiomas) {
  Textos const en{Idioma::en};
  Textos const es{Idioma::es};
  for (auto const& [campo, ingles, espanol] : tabla) {
    EXPECT_EQ(valor(en, campo), ingles);
    EXPECT_EQ(valor(es, campo), espanol);
  }
}

TEST(Textos, laTablaNombraTodosLosCampos) {
  auto const conVoces =
      std::ranges::count_if(tabla, [](auto const& fila) { return fila.campo.index() == 1; });
  auto const fijos = std::size(tabla) - static_cast<std::size_t>(conVoces);
  // The language stands before them, padded to their alignment; the system's words behind.
  EXPECT_EQ(sizeof(Textos), alignof(std::string_view) + fijos * sizeof(std::string_view) +
                                static_cast<std::size_t>(conVoces) * sizeof(std::string) +
                                sizeof(VocesDelSistema));
}

TEST(Textos, elIdiomaEsAquelParaElQueSeHizo) {
  EXPECT_EQ(Textos{Idioma::en}.idioma, Idioma::en);
  EXPECT_EQ(Textos{Idioma::es}.idioma, Idioma::es);
}

class TextosCompuestos : public ::testing::Test {
 protected:
  Textos const en{Idioma::en};
  Textos const es{Idioma::es};
};

TEST_F(TextosCompuestos, noSePudoResolverLaTerminal) {
  EXPECT_EQ(en.noSePudoResolverLaTerminal("x"), "Could not resolve the terminal: x");
  EXPECT_EQ(es.noSePudoResolverLaTerminal("x"), "No se pudo resolver la terminal: x");
}

TEST_F(TextosCompuestos, vivaSinEnfoque) {
  EXPECT_EQ(en.vivaSinEnfoque("ttys003", "Ghostty"),
            "The session is alive on ttys003 and Ghostty cannot bring its window to the front. ⌘C copies its "
            "id.");
  EXPECT_EQ(es.vivaSinEnfoque("ttys003", "Ghostty"),
            "La sesión está viva en ttys003 y Ghostty no puede traer su ventana al frente. ⌘C copia su id.");
}

TEST_F(TextosCompuestos, noSePudoAbrir) {
  EXPECT_EQ(en.noSePudoAbrir("boom"), "Could not open the session: boom");
  EXPECT_EQ(es.noSePudoAbrir("boom"), "No se pudo abrir la sesión: boom");
}

TEST_F(TextosCompuestos, comandoFallo) {
  EXPECT_EQ(en.comandoFallo("/usr/bin/osascript", 1, "x"), "/usr/bin/osascript exited with code 1: x");
  EXPECT_EQ(es.comandoFallo("/usr/bin/osascript", -1, "x"), "/usr/bin/osascript salió con código -1: x");
}

TEST_F(TextosCompuestos, comandoFalloEscribeLosDosExtremosDe32Bits) {
  EXPECT_EQ(en.comandoFallo("/a", std::numeric_limits<std::int32_t>::min(), ""),
            "/a exited with code -2147483648: ");
  EXPECT_EQ(en.comandoFallo("/a", std::numeric_limits<std::int32_t>::max(), ""),
            "/a exited with code 2147483647: ");
}

TEST_F(TextosCompuestos, noSePudoLanzar) {
  EXPECT_EQ(en.noSePudoLanzar("/bin/x", "no such file"), "Could not launch /bin/x: no such file");
  EXPECT_EQ(es.noSePudoLanzar("/bin/x", "no such file"), "No se pudo lanzar /bin/x: no such file");
}

TEST_F(TextosCompuestos, hoyLaDelSistemaYLaUnica) {
  EXPECT_EQ(en.hoyLaDelSistema("iTerm2"), "today: iTerm2, the system's");
  EXPECT_EQ(es.hoyLaDelSistema("iTerm2"), "hoy: iTerm2, la del sistema");
  EXPECT_EQ(en.hoyLaUnica("iTerm2"), "today: iTerm2, the only one");
  EXPECT_EQ(es.hoyLaUnica("iTerm2"), "hoy: iTerm2, la única");
}

TEST_F(TextosCompuestos, noSePudoCambiarArranque) {
  EXPECT_EQ(en.noSePudoCambiarArranque("boom"),
            "Could not change the launch-at-login setting: boom. Usually because Zorve.app is not in "
            "/Applications.");
  EXPECT_EQ(es.noSePudoCambiarArranque("boom"),
            "No se pudo cambiar el arranque automático: boom. Suele ser porque Zorve.app no está en "
            "/Applications.");
}

TEST_F(TextosCompuestos, copiado) {
  EXPECT_EQ(en.copiado("abc"), "Copied: abc");
  EXPECT_EQ(es.copiado("abc"), "Copiado: abc");
}

TEST_F(TextosCompuestos, elPieDiceDeDondeVieneLaTerminal) {
  EXPECT_EQ(en.pieDelSistema("iTerm2"), "iTerm2 (the system's)");
  EXPECT_EQ(es.pieDelSistema("iTerm2"), "iTerm2 (del sistema)");
  EXPECT_EQ(en.pieLaUnica("iTerm2"), "iTerm2 (the only one)");
  EXPECT_EQ(es.pieLaUnica("iTerm2"), "iTerm2 (la única)");
}

TEST_F(TextosCompuestos, losArgumentosQuedanComoEstan) {
  EXPECT_EQ(en.noSePudoAbrir("%s {0} \\n ⌘C"), "Could not open the session: %s {0} \\n ⌘C");
}

}  // namespace
}  // namespace zorve
