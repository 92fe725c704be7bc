#include "ZorvePlatform/Linux/AplicacionesLinux.h"

#include <cstdlib>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorvePlatform/Linux/EntradaDeEscritorio.h"

namespace zorve {
namespace {

class AplicacionesLinuxTest : public testing::Test {
 protected:
  AplicacionesLinuxTest() {
    programa("bin/kitty", 0755);
    programa("bin/con blanco", 0755);
    programa("bin/sinpermiso", 0644);
  }
  void programa(std::string const& ruta, int modo) const {
    std::filesystem::permissions(carpeta.escribir(ruta, "#!/bin/sh\n"),
                                 static_cast<std::filesystem::perms>(modo));
  }
  void entrada(std::string const& texto, std::string const& datos = "datos") const {
    carpeta.escribir(datos + "/applications/una.desktop", texto);
  }
  [[nodiscard]] bool hay(std::string const& identificador) const {
    return AplicacionesLinux{EntornoLinux{.path = {carpeta.dentro("no"), carpeta.dentro("bin")},
                                          .datos = {carpeta.dentro("propios"), carpeta.dentro("datos")}}}
        .hay(identificador);
  }
  [[nodiscard]] bool hayCon(std::string const& texto) const {
    entrada("[Desktop Entry]\nType=Application\n" + texto);
    return hay("una");
  }

  dobles::CarpetaTemporal carpeta;
};

TEST_F(AplicacionesLinuxTest, unEjecutableDelPathEsUnaAplicacion) { EXPECT_TRUE(hay("kitty")); }

TEST_F(AplicacionesLinuxTest, elNombreGenericoSoloCuentaSiLlevaAUnTerminalDesconocido) {
  EXPECT_FALSE(hay("x-terminal-emulator"));
  programa("bin/otra", 0755);
  auto const enlace = carpeta.dentro("bin/x-terminal-emulator");
  std::filesystem::create_symlink("otra", enlace);
  EXPECT_TRUE(hay("x-terminal-emulator"));
  std::filesystem::remove(enlace);
  std::filesystem::create_symlink("kitty", enlace);
  EXPECT_FALSE(hay("x-terminal-emulator"));
}

TEST_F(AplicacionesLinuxTest, unArchivoSinPermisoDeEjecucionNoLoEs) {
  EXPECT_FALSE(hay("sinpermiso"));
  EXPECT_FALSE(hay("KITTY"));
}

TEST_F(AplicacionesLinuxTest, unaCarpetaDelPathNoEsUnaAplicacion) {
  carpeta.carpeta("bin/carpeta");
  EXPECT_FALSE(hay("carpeta"));
}

TEST_F(AplicacionesLinuxTest, unaEntradaCuentaSiSuProgramaExiste) {
  EXPECT_TRUE(hayCon("Exec=kitty --single-instance %U\n"));
  EXPECT_TRUE(hayCon("Exec=" + carpeta.dentro("bin/kitty") + "\n"));
  EXPECT_FALSE(hayCon("Exec=otra\n"));
  EXPECT_FALSE(hayCon("Exec=/no/hay/tal\n"));
  EXPECT_FALSE(hayCon("Name=x\n"));
}

TEST_F(AplicacionesLinuxTest, tryExecDecidePorEncimaDeExec) {
  EXPECT_FALSE(hayCon("TryExec=otra\nExec=kitty\n"));
  EXPECT_TRUE(hayCon("TryExec=kitty\nExec=otra\n"));
}

TEST_F(AplicacionesLinuxTest, elProgramaPuedeIrEntreComillas) {
  EXPECT_TRUE(hayCon("Exec=\"" + carpeta.dentro("bin/con blanco") + "\" -x\n"));
  EXPECT_TRUE(hayCon("TryExec=" + carpeta.dentro("bin/con\\sblanco") + "\n"));
}

TEST_F(AplicacionesLinuxTest, otrosGruposYComentariosNoCuentan) {
  EXPECT_FALSE(hayCon("#Exec=kitty\n[Desktop Action x]\nExec=kitty\n"));
}

TEST_F(AplicacionesLinuxTest, unaEntradaOcultaNoCuentaNiDejaVerLaDelSistema) {
  entrada("[Desktop Entry]\nExec=kitty\n");
  entrada("[Desktop Entry]\nHidden=true\n", "propios");
  EXPECT_FALSE(hay("una"));
}

TEST_F(AplicacionesLinuxTest, laEntradaDelUsuarioVaPorDelante) {
  entrada("[Desktop Entry]\nExec=otra\n");
  entrada("[Desktop Entry]\nExec=kitty\n", "propios");
  EXPECT_TRUE(hay("una"));
}

TEST_F(AplicacionesLinuxTest, unaEntradaIlegibleSeSalta) {
  carpeta.carpeta("propios/applications/una.desktop");
  entrada("[Desktop Entry]\nExec=kitty\n");
  EXPECT_TRUE(hay("una"));
}

TEST_F(AplicacionesLinuxTest, laEntradaDeUnTerminalCuentaSiSuProgramaEsElDelTerminal) {
  auto const ghostty = carpeta.escribir("opt/ghostty", "#!/bin/sh\n");
  std::filesystem::permissions(ghostty, std::filesystem::perms{0755});
  auto const conPrograma = [&](std::string const& programa) {
    carpeta.escribir("datos/applications/com.mitchellh.ghostty.desktop",
                     "[Desktop Entry]\nExec=" + programa + " run com.mitchellh.ghostty\n");
    return hay("com.mitchellh.ghostty");
  };
  EXPECT_TRUE(conPrograma(ghostty));
  EXPECT_FALSE(conPrograma("kitty")) << "a program that starts it in a way of its own";
}

TEST(EntradaDeEscritorio, blancosYFinalesDeLineaAjenosNoEstorban) {
  EXPECT_EQ(leerEntradaDeEscritorio("\r\n[Desktop Entry]\r\n Exec = \"a \\\\\"b\\\\\"\" x \r\nTryExec=t\r\n"),
            (EntradaDeEscritorio{.tryExec = "t", .programa = "a \"b\""}));
}

TEST(EntradaDeEscritorio, cualquierTextoSeAguanta) {
  EXPECT_EQ(leerEntradaDeEscritorio(""), EntradaDeEscritorio{});
  EXPECT_EQ(leerEntradaDeEscritorio("[Desktop Entry]\nExec"), EntradaDeEscritorio{});
  EXPECT_EQ(leerEntradaDeEscritorio("[Desktop Entry]\nExec=\"a\\"), (EntradaDeEscritorio{.programa = "a\\"}));
  EXPECT_EQ(leerEntradaDeEscritorio("[Desktop Entry]\n=\n[\nExec=a"), EntradaDeEscritorio{});
  EXPECT_EQ(leerEntradaDeEscritorio("[Desktop Entry]\nExec=uno\nExec=dos"),
            (EntradaDeEscritorio{.programa = "uno"}));
}

class Variables {
 public:
  explicit Variables(std::map<std::string, std::string> const& unas) {
    for (auto const* nombre :
         {"PATH", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"}) {
      char const* valor = std::getenv(nombre);
      if (valor != nullptr) antes_[nombre] = valor;
      ::unsetenv(nombre);
    }
    for (auto const& [nombre, valor] : unas) ::setenv(nombre.c_str(), valor.c_str(), 1);
  }
  Variables(Variables const&) = delete;
  Variables& operator=(Variables const&) = delete;
  ~Variables() {
    for (auto const* nombre :
         {"PATH", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"})
      ::unsetenv(nombre);
    for (auto const& [nombre, valor] : antes_) ::setenv(nombre.c_str(), valor.c_str(), 1);
  }

 private:
  std::map<std::string, std::string> antes_;
};

TEST(EntornoLinux, sinVariablesRigenLosLugaresAcostumbrados) {
  Variables const ninguna{{}};
  EXPECT_EQ(EntornoLinux::delProceso("/h"),
            (EntornoLinux{.home = "/h",
                          .path = {"/usr/local/bin", "/usr/bin", "/bin", "/h/.local/bin"},
                          .configHome = "/h/.config",
                          .configDirs = {"/etc/xdg"},
                          .datos = {"/h/.local/share", "/usr/local/share", "/usr/share"}}));
}

TEST(EntornoLinux, lasRutasRelativasYVaciasNoCuentan) {
  Variables const unas{{{"PATH", ":/a::.:b:/c:"},
                        {"XDG_CONFIG_HOME", "config"},
                        {"XDG_CONFIG_DIRS", "x:/y:/z"},
                        {"XDG_DATA_HOME", "datos"},
                        {"XDG_DATA_DIRS", "x:/d"}}};
  EXPECT_EQ(EntornoLinux::delProceso("/h"), (EntornoLinux{.home = "/h",
                                                          .path = {"/a", "/c", "/h/.local/bin"},
                                                          .configHome = "/h/.config",
                                                          .configDirs = {"/y", "/z"},
                                                          .datos = {"/h/.local/share", "/d"}}));
}

TEST(EntornoLinux, lasVariablesAbsolutasMandan) {
  Variables const unas{{{"PATH", "/a"},
                        {"XDG_CONFIG_HOME", "/c"},
                        {"XDG_CONFIG_DIRS", "/f"},
                        {"XDG_DATA_HOME", "/d"},
                        {"XDG_DATA_DIRS", "/e"}}};
  EXPECT_EQ(EntornoLinux::delProceso("/h"), (EntornoLinux{.home = "/h",
                                                          .path = {"/a", "/h/.local/bin"},
                                                          .configHome = "/c",
                                                          .configDirs = {"/f"},
                                                          .datos = {"/d", "/e"}}));
}

}  // namespace
}  // namespace zorve
