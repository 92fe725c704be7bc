#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveCore/Terminales/CatalogoDeTerminales.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"

namespace zorve {
namespace {

using namespace std::chrono_literals;
using Fuente = FuenteDelManejador;

class ManejadorEnOrden : public testing::Test {
 protected:
  ManejadorEnOrden() {
    for (auto const* const terminal :
         {"xterm", "foot", "gnome-terminal", "konsole", "alacritty", "tilix", "kitty", "xfce4-terminal"}) {
      programa(terminal, "");
    }
  }
  void programa(std::string const& nombre, std::string const& guion) const {
    auto const ruta = carpeta.escribir("bin/" + nombre, "#!/bin/sh\n" + guion + "\n");
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
  }
  [[nodiscard]] std::optional<TerminalDelSistema> buscar() const { return ManejadorLinux{lugares}.buscar(); }

  dobles::CarpetaTemporal carpeta;
  LugaresDelManejador lugares{.entorno = {.home = carpeta.ruta(),
                                          .path = {carpeta.dentro("bin")},
                                          .configHome = carpeta.ruta(),
                                          .configDirs = {carpeta.dentro("xdg/a"), carpeta.dentro("xdg/b")}},
                              .escritorio = "",
                              .terminal = "",
                              .enlace = carpeta.dentro("enlace"),
                              .plazo = 1000ms};
};

TEST_F(ManejadorEnOrden, sinNadaNoHayRespuesta) { EXPECT_EQ(buscar(), std::nullopt); }

TEST_F(ManejadorEnOrden, cadaFuenteVaDelanteDeLasQueSiguen) {
  std::filesystem::create_symlink("/usr/bin/xterm", carpeta.dentro("enlace"));
  EXPECT_EQ(buscar(), (TerminalDelSistema{"xterm", Fuente::enlace}));
  lugares.terminal = "/usr/bin/foot --fullscreen";
  EXPECT_EQ(buscar(), (TerminalDelSistema{"foot", Fuente::terminal}));
  programa("gsettings", "echo \"'gnome-terminal'\"");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"org.gnome.Terminal", Fuente::gsettings}));
  carpeta.escribir("kdeglobals", "[General]\nTerminalApplication=konsole --new-tab\n");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"org.kde.konsole", Fuente::kdeglobals}));
  programa("xdg-terminal-exec", "[ \"$1\" = --print-id ] && echo Alacritty.desktop:new");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"Alacritty", Fuente::xdgTerminalExec}));
}

TEST_F(ManejadorEnOrden, unaRespuestaDesconocidaPasaALaSiguiente) {
  programa("xdg-terminal-exec", "echo otra.desktop");
  carpeta.escribir("kdeglobals", "[General]\nTerminalApplication=otra\n");
  programa("gsettings", "echo \"'x-terminal-emulator'\"");
  lugares.terminal = "otra";
  std::filesystem::create_symlink("/usr/bin/xfce4-terminal.wrapper", carpeta.dentro("enlace"));
  EXPECT_EQ(buscar(), (TerminalDelSistema{"xfce4-terminal", Fuente::enlace}));
}

TEST_F(ManejadorEnOrden, unEnlaceAOtroTerminalEsElNombreDelEnlace) {
  programa("otra", "");
  std::filesystem::create_symlink(carpeta.dentro("bin/otra"), carpeta.dentro("enlace"));
  EXPECT_EQ(buscar(), (TerminalDelSistema{"x-terminal-emulator", Fuente::enlace}));
}

TEST_F(ManejadorEnOrden, soloCuentaElGrupoGeneralDeKde) {
  carpeta.escribir("kdeglobals", "[Otro]\nTerminalApplication=konsole\n[General]\nOtra=1\n");
  EXPECT_EQ(buscar(), std::nullopt);
  carpeta.escribir("kdeglobals", "[General]\r\n TerminalApplication[$e] = /usr/bin/konsole \r\n");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"org.kde.konsole", Fuente::kdeglobals}));
}

TEST_F(ManejadorEnOrden, unaRespuestaSinInstalarPasaALaSiguiente) {
  carpeta.escribir("kdeglobals", "[General]\nTerminalApplication=konsole\n");
  lugares.terminal = "foot";
  std::filesystem::remove(carpeta.dentro("bin/konsole"));
  EXPECT_EQ(buscar(), (TerminalDelSistema{"foot", Fuente::terminal}));
}

TEST_F(ManejadorEnOrden, losAjustesDelSistemaDeKdeValenDondeLaPersonaCalla) {
  carpeta.escribir("xdg/b/kdeglobals", "[General]\nTerminalApplication=xterm\n");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"xterm", Fuente::kdeglobals}));
  carpeta.escribir("xdg/a/kdeglobals", "[General]\nTerminalApplication=kitty\n");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"kitty", Fuente::kdeglobals}));
  carpeta.escribir("kdeglobals", "[General]\nTerminalApplication=konsole\n");
  EXPECT_EQ(buscar(), (TerminalDelSistema{"org.kde.konsole", Fuente::kdeglobals}));
}

TEST_F(ManejadorEnOrden, unaPreguntaCorreCadaProgramaUnaVezYDaLaTerminalYQuienLaDice) {
  programa("xdg-terminal-exec", "echo una >>" + carpeta.dentro("veces") + "; echo foot.desktop");
  ManejadorLinux const manejador{lugares};
  EXPECT_EQ(manejador.preguntar(CatalogoDeTerminales::tipoDeGuionDeShell),
            (RespuestaDelSistema{"foot", "xdg-terminal-exec"}));
  EXPECT_EQ(std::filesystem::file_size(carpeta.dentro("veces")), 4U) << "it ran once";
}

TEST_F(ManejadorEnOrden, cadaPreguntaMiraDeNuevo) {
  programa("xdg-terminal-exec", "echo foot.desktop");
  ManejadorLinux const manejador{lugares};
  EXPECT_EQ(manejadorRegistrado(manejador), "foot");
  programa("xdg-terminal-exec", "echo kitty.desktop");
  EXPECT_EQ(manejadorRegistrado(manejador), "kitty");
}

TEST_F(ManejadorEnOrden, cadaEscritorioTieneSuEsquema) {
  programa("gsettings", "case $2 in org.cinnamon.*) echo \"'tilix'\";; org.mate.*) echo \"'kitty'\";; esac");
  lugares.escritorio = "X-Cinnamon";
  EXPECT_EQ(buscar(), (TerminalDelSistema{"com.gexperts.Tilix", Fuente::gsettings}));
  lugares.escritorio = "MATE";
  EXPECT_EQ(buscar(), (TerminalDelSistema{"kitty", Fuente::gsettings}));
  lugares.escritorio = "GNOME";
  EXPECT_EQ(buscar(), std::nullopt);
}

TEST_F(ManejadorEnOrden, unProgramaQueFallaNoEsUnaRespuesta) {
  programa("xdg-terminal-exec", "echo foot.desktop; exit 1");
  EXPECT_EQ(buscar(), std::nullopt);
}

TEST_F(ManejadorEnOrden, unProgramaQueNoTerminaSeDeja) {
  programa("xdg-terminal-exec", "echo foot.desktop; /bin/sleep 60");
  lugares.terminal = "kitty";
  lugares.plazo = 200ms;
  auto const empieza = std::chrono::steady_clock::now();
  EXPECT_EQ(buscar(), (TerminalDelSistema{"kitty", Fuente::terminal}));
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, 10s);
}

TEST_F(ManejadorEnOrden, unaRespuestaSinFinNoSeLeeEntera) {
  programa("gsettings", "while :; do echo relleno; done");
  EXPECT_EQ(buscar(), std::nullopt);
}

}  // namespace
}  // namespace zorve
