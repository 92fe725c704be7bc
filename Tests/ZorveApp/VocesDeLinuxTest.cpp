#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ZorveApp/Apertura.h"
#include "ZorveApp/PanelView.h"
#include "ZorveApp/VistaAjustes.h"

namespace zorve {
namespace {

/// Words of ours where they are none: in a name, a path, a program's output.
std::vector<std::string> const frases{
    "on this Mac",
    "en esta Mac",
    "No supported terminal was found on this Mac.",
    "⌘C copies its id.",
    "(⌘,)",
    "⌘Q",
    " Usually because Zorve.app is not in /Applications.",
    " Suele ser porque Zorve.app no está en /Applications.",
    "defaults write com.sarnol.zorve zorve.terminalElegida -string com.apple.Terminal"};

class VocesDeLinux : public testing::Test {
 protected:
  Textos const en{Idioma::en, vocesDeLinux};
  Textos const es{Idioma::es, vocesDeLinux};
};

TEST_F(VocesDeLinux, losAtajosSonLosDeAqui) {
  EXPECT_EQ(en.ayudaAjustes, "Settings (Ctrl+,)");
  EXPECT_EQ(es.ayudaAjustes, "Ajustes (Ctrl+,)");
  EXPECT_EQ(en.paraCerrarZorve, "To quit Zorve: Ctrl+Q");
  EXPECT_EQ(es.paraCerrarZorve, "Para cerrar Zorve: Ctrl+Q");
  EXPECT_EQ(en.atajo("R"), "Ctrl+R");
}

TEST_F(VocesDeLinux, elAvisoDeUnaSesionSinTerminalDiceElAtajoDeAqui) {
  EXPECT_EQ(
      en.vivaSinTty,
      "The session is alive but has no controlling terminal; there is nowhere to focus. Ctrl+C copies its "
      "id.");
  EXPECT_EQ(es.vivaSinTty,
            "La sesión está viva pero sin terminal de control; no hay a dónde enfocar. Ctrl+C copia su id.");
}

TEST_F(VocesDeLinux, elTtyYLaTerminalDelAvisoQuedanIguales) {
  for (auto const& frase : frases) {
    EXPECT_EQ(en.vivaSinEnfoque("pts/1", frase),
              "The session is alive on pts/1 and " + frase +
                  " cannot bring its window to the front. Ctrl+C copies its id.");
    EXPECT_EQ(es.vivaSinEnfoque(frase, "kitty"),
              "La sesión está viva en " + frase +
                  " y kitty no puede traer su ventana al frente. Ctrl+C copia su id.");
  }
}

TEST_F(VocesDeLinux, sinPanelDelQueCopiarElAvisoNoNombraNingunAtajo) {
  for (auto const& frase : frases) {
    EXPECT_EQ(en.sinEnfoque("pts/1", frase),
              "The session is alive on pts/1 and " + frase + " cannot bring its window to the front.");
  }
  EXPECT_EQ(en.sinTty(), "The session is alive but has no controlling terminal; there is nowhere to focus.");
}

TEST_F(VocesDeLinux, elArranquePierdeSoloLaPistaDeLaCarpeta) {
  for (auto const& frase : frases) {
    EXPECT_EQ(en.noSePudoCambiarArranque(frase),
              "Could not change the launch-at-login setting: " + frase + ".");
    EXPECT_EQ(es.noSePudoCambiarArranque(frase), "No se pudo cambiar el arranque automático: " + frase + ".");
  }
}

TEST_F(VocesDeLinux, sinTerminalCompatibleHablaDelEquipo) {
  EXPECT_EQ(en.sinTerminalCompatible, "No supported terminal was found on this computer.");
  EXPECT_EQ(es.sinTerminalCompatible, "No se encontró ninguna terminal compatible en este equipo.");
}

TEST_F(VocesDeLinux, todoLoDemasQuedaIgual) {
  for (auto const idioma : {Idioma::en, Idioma::es}) {
    Textos const aqui{idioma, vocesDeLinux};
    Textos const mac{idioma};
    for (auto const& frase : frases) {
      EXPECT_EQ(aqui.comandoFallo("/usr/bin/x", 1, frase), mac.comandoFallo("/usr/bin/x", 1, frase));
      EXPECT_EQ(aqui.noSePudoAbrir(frase), mac.noSePudoAbrir(frase));
      EXPECT_EQ(aqui.noSePudoLanzar("/usr/bin/x", frase), mac.noSePudoLanzar("/usr/bin/x", frase));
      EXPECT_EQ(aqui.noSePudoResolverLaTerminal(frase), mac.noSePudoResolverLaTerminal(frase));
      EXPECT_EQ(aqui.copiado(frase), mac.copiado(frase));
      EXPECT_EQ(aqui.hoyLaUnica(frase), mac.hoyLaUnica(frase));
    }
    EXPECT_EQ(aqui.tituloDerivado, mac.tituloDerivado);
    EXPECT_EQ(aqui.menuSalirDeZorve, mac.menuSalirDeZorve);
  }
}

}  // namespace
}  // namespace zorve
