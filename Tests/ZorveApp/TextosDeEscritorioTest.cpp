#include "ZorveApp/TextosDeEscritorio.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ZorveApp/Textos.h"

namespace zorve {
namespace {

std::vector<std::string> const frases{
    "on this Mac",
    "en esta Mac",
    "No supported terminal was found on this Mac.",
    "⌘C copies its id.",
    "(⌘,)",
    "⌘Q",
    " Usually because Zorve.app is not in /Applications.",
    ". Usually because Zorve.app is not in /Applications.",
    " Suele ser porque Zorve.app no está en /Applications.",
    "defaults write com.sarnol.zorve zorve.terminalElegida -string com.apple.Terminal",
    "No Claude Code sessions on this Mac yet: /x does not exist. ",
    " cannot bring its window to the front. ⌘C copies its id."};

std::string bienvenida(std::string const& carpeta) {
  return "No Claude Code sessions on this Mac yet: " + carpeta +
         " does not exist. Run `claude` once in a terminal and Zorve will list it here.";
}

TEST(TextosDeEscritorio, laBienvenidaHablaDelEquipo) {
  std::string const esperado =
      "No Claude Code sessions on this computer yet: /h/.claude does not exist. Run `claude` once in a "
      "terminal and Zorve will list it here.";
  EXPECT_EQ(textoDeEscritorio(bienvenida("/h/.claude")), esperado);
  EXPECT_EQ(textoDeEscritorio("transcripts: " + bienvenida("/h/.claude")), "transcripts: " + esperado);
}

TEST(TextosDeEscritorio, unaCarpetaConNuestrasFrasesQuedaIgual) {
  for (auto const& frase : frases) {
    auto const carpeta = "/h/" + frase + "/.claude";
    EXPECT_EQ(textoDeEscritorio(bienvenida(carpeta)),
              "No Claude Code sessions on this computer yet: " + carpeta +
                  " does not exist. Run `claude` once in a terminal and Zorve will list it here.");
    for (std::string const antes :
         {"history: Could not open /h/", "/h/", "Copied: ", "osascript exited with code 1: "}) {
      EXPECT_EQ(textoDeEscritorio(antes + frase), antes + frase);
      EXPECT_EQ(textoDeEscritorio(antes + frase + ": Permission denied"),
                antes + frase + ": Permission denied");
    }
  }
}

TEST(TextosDeEscritorio, laSalidaDeUnProgramaQuedaIgual) {
  for (auto const idioma : {Idioma::en, Idioma::es}) {
    Textos const textos{idioma};
    for (auto const& frase : frases) {
      for (auto const& texto :
           {textos.comandoFallo("/usr/bin/x", 1, frase), textos.noSePudoAbrir(frase),
            textos.noSePudoLanzar("/usr/bin/x", frase), textos.copiado(frase), textos.hoyLaUnica(frase)}) {
        EXPECT_EQ(textoDeEscritorio(texto), texto);
      }
    }
  }
}

TEST(TextosDeEscritorio, elArranquePierdeSoloLaPistaDeLaCarpeta) {
  for (auto const& frase : frases) {
    EXPECT_EQ(textoDeEscritorio(Textos{Idioma::en}.noSePudoCambiarArranque(frase)),
              "Could not change the launch-at-login setting: " + frase + ".");
    EXPECT_EQ(textoDeEscritorio(Textos{Idioma::es}.noSePudoCambiarArranque(frase)),
              "No se pudo cambiar el arranque automático: " + frase + ".");
  }
}

TEST(TextosDeEscritorio, losAtajosSonLosDeAqui) {
  Textos const en{Idioma::en};
  Textos const es{Idioma::es};
  EXPECT_EQ(textoDeEscritorio(en.ayudaAjustes), "Settings (Ctrl+,)");
  EXPECT_EQ(textoDeEscritorio(es.ayudaAjustes), "Ajustes (Ctrl+,)");
  EXPECT_EQ(textoDeEscritorio(en.paraCerrarZorve), "To quit Zorve: Ctrl+Q");
  EXPECT_EQ(textoDeEscritorio(es.paraCerrarZorve), "Para cerrar Zorve: Ctrl+Q");
  EXPECT_TRUE(textoDeEscritorio(en.vivaSinTty).ends_with("nowhere to focus. Ctrl+C copies its id."));
  EXPECT_TRUE(textoDeEscritorio(es.vivaSinTty).ends_with("a dónde enfocar. Ctrl+C copia su id."));
  EXPECT_EQ(textoDeEscritorio("⌘R"), "Ctrl+R");
}

TEST(TextosDeEscritorio, elTtyYLaTerminalDelAvisoQuedanIguales) {
  for (auto const& frase : frases) {
    EXPECT_EQ(textoDeEscritorio(Textos{Idioma::en}.vivaSinEnfoque("pts/1", frase)),
              "The session is alive on pts/1 and " + frase +
                  " cannot bring its window to the front. Ctrl+C copies its id.");
    EXPECT_EQ(textoDeEscritorio(Textos{Idioma::es}.vivaSinEnfoque(frase, "kitty")),
              "La sesión está viva en " + frase +
                  " y kitty no puede traer su ventana al frente. Ctrl+C copia su id.");
  }
}

TEST(TextosDeEscritorio, sinTerminalCompatibleHablaDelEquipo) {
  EXPECT_EQ(textoDeEscritorio(Textos{Idioma::en}.sinTerminalCompatible),
            "No supported terminal was found on this computer.");
  EXPECT_EQ(textoDeEscritorio(Textos{Idioma::es}.sinTerminalCompatible),
            "No se encontró ninguna terminal compatible en este equipo.");
}

TEST(TextosDeEscritorio, laEleccionSeHaceConZorvectl) {
  std::string const fallo =
      "Several terminals are installed (kitty, xterm) and the system has none registered as the handler for "
      "shell scripts. Pick one: defaults write com.sarnol.zorve zorve.terminalElegida -string kitty";
  std::string const aqui =
      "Several terminals are installed (kitty, xterm) and the system has none registered as the handler for "
      "shell scripts. Pick one: zorvectl choose kitty";
  EXPECT_EQ(textoDeEscritorio(fallo), aqui);
  EXPECT_EQ(textoDeEscritorio("launcher: " + fallo), "launcher: " + aqui);
  for (auto const idioma : {Idioma::en, Idioma::es}) {
    Textos const textos{idioma};
    EXPECT_EQ(textoDeEscritorio(textos.noSePudoResolverLaTerminal(fallo)),
              textos.noSePudoResolverLaTerminal(aqui));
  }
}

TEST(TextosDeEscritorio, todoLoDemasQuedaIgual) {
  for (auto const* texto : {"", "history: ", "on this Mac.", "launcher", "⌘", "⌘RR", "Settings (⌘,) ",
                            "No Claude Code sessions on this Mac yet: "}) {
    EXPECT_EQ(textoDeEscritorio(texto), texto);
  }
}

}  // namespace
}  // namespace zorve
