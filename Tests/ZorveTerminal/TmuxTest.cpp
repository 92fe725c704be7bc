#include "ZorveTerminal/Tmux.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"
#include "Dobles/Pseudoterminal.h"
#include "Dobles/SinPrivilegios.h"

namespace zorve::ayudante {
namespace {

using dobles::CarpetaTemporal;

/// A socket at `ruta` that nobody listens on.
void enchufeEn(std::string const& ruta) {
  int const descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un direccion{};
  direccion.sun_family = AF_UNIX;
  ASSERT_LT(ruta.size(), sizeof direccion.sun_path);
  std::ranges::copy(ruta, std::begin(direccion.sun_path));
  ASSERT_EQ(::bind(descriptor, reinterpret_cast<sockaddr*>(&direccion), sizeof direccion), 0);
  ::close(descriptor);
}

TEST(LeerPanes, unaLineaEsUnaVista) {
  EXPECT_EQ(leerPanes("/dev/pts/3 $1 @2 %3\n/dev/pts/10 $12 @0 %40\n"),
            (std::vector<PaneDeTmux>{{"/dev/pts/3", "$1", "@2", "%3"}, {"/dev/pts/10", "$12", "@0", "%40"}}));
}

TEST(LeerPanes, loQueNoSeEntiendeNoCuenta) {
  for (auto const* const texto : {"", "\n", "no server", " $1 @2 %3", "pts/3 $1 @2 %3", "/dev/pts/3 $1 @2",
                                  "/dev/pts/3 1 @2 %3", "/dev/pts/3 $ @2 %3", "/dev/pts/3 $1 @2 %3;",
                                  "/dev/pts/3 $1 @2x %3", "/dev/pts/3 $1 @2 %3 mas", "/dev/pts/3 -c @2 %3"}) {
    EXPECT_TRUE(leerPanes(texto).empty()) << texto;
  }
}

TEST(LeerClientes, sonLosQueTienenPantalla) {
  EXPECT_EQ(leerClientes("/dev/pts/4 $0 1795281244 0 0 flags:attached,focused,UTF-8 ends:0\n"
                         "/dev/pts/5 $1 7 1 0 flags:attached,read-only ends:off\n"
                         "/dev/pts/6 $1 7 0 0 flags:attached,suspended ends:0\n"
                         "/dev/pts/7 $1 7 0 1 flags:attached,control-mode ends:0\n"
                         " $1 7 0 1 flags:attached,control-mode ends:0\n"
                         "/dev/pts/8 $1 7 0 0 flags: ends:\n"
                         "/dev/pts/9 $1 7 0 0 flags: ends:keep-group\n"
                         "/dev/pts/2 $1 -9223372036854775808 0 0 flags: ends:\n"),
            (std::vector<ClienteDeTmux>{{"/dev/pts/4", "$0", 1795281244},
                                        {"/dev/pts/5", "$1", 7, true},
                                        {"/dev/pts/8", "$1", 7},
                                        {"/dev/pts/9", "$1", 7, false, true}}));
}

TEST(PorConveniencia, quienYaLaMuestraGanaYLuegoElMasUsado) {
  std::vector<PaneDeTmux> const vistas{{"/dev/pts/3", "$1", "@2", "%3"}, {"/dev/pts/3", "$5", "@2", "%3"}};
  ClienteDeTmux const ajeno{"/dev/pts/10", "$0", 900};
  ClienteDeTmux const ajenoViejo{"/dev/pts/11", "$0", 100};
  ClienteDeTmux const suyo{"/dev/pts/12", "$1", 5};
  ClienteDeTmux const suyoDelGrupo{"/dev/pts/13", "$5", 6};
  ClienteDeTmux const mudo{"/dev/pts/14", "$1", 999, true};
  EXPECT_EQ(porConveniencia({mudo, ajenoViejo, ajeno, suyo, suyoDelGrupo}, vistas),
            (std::vector{suyoDelGrupo, suyo, ajeno, ajenoViejo, mudo}));
}

TEST(PorConveniencia, quienSostieneOtraSesionNoSeMueve) {
  std::vector<PaneDeTmux> const vistas{{"/dev/pts/3", "$1", "@2", "%3"}};
  ClienteDeTmux const otra{"/dev/pts/10", "$0", 900, false, true};
  ClienteDeTmux const esta{"/dev/pts/11", "$1", 100, false, true};
  EXPECT_EQ(porConveniencia({otra, esta}, vistas), std::vector{esta});
  EXPECT_TRUE(porConveniencia({otra}, vistas).empty());
}

TEST(VistaPara, laDeLaSesionDelClienteOLaPrimera) {
  std::vector<PaneDeTmux> const vistas{{"/dev/pts/3", "$1", "@2", "%3"}, {"/dev/pts/3", "$5", "@2", "%3"}};
  EXPECT_EQ(vistaPara({"/dev/pts/9", "$5"}, vistas), vistas[1]);
  EXPECT_EQ(vistaPara({"/dev/pts/9", "$7"}, vistas), vistas[0]);
}

TEST(EnchufePropio, esElPrimerCampoSiEsUnEnchufeDeEstaPersona) {
  CarpetaTemporal const carpeta;
  auto const ruta = carpeta.dentro("con blanco y 'comilla'");
  enchufeEn(ruta);
  EXPECT_EQ(enchufePropio(ruta + ",123,0"), ruta);
  EXPECT_EQ(enchufePropio(ruta), ruta);
}

TEST(EnchufePropio, ningunaOtraCosaLoEs) {
  CarpetaTemporal const carpeta;
  enchufeEn(carpeta.dentro("e"));
  std::filesystem::create_symlink(carpeta.dentro("e"), carpeta.dentro("enlace"));
  carpeta.escribir("archivo", "x");
  for (auto const& variable : std::vector<std::string>{
           "", ",", ",1,0", "e,1,0", "../e", carpeta.dentro("no"), carpeta.dentro("enlace") + ",1,0",
           carpeta.dentro("archivo") + ",1,0", carpeta.ruta() + ",1,0", "/dev/null,1,0", "$(touch x),1,0"}) {
    EXPECT_EQ(enchufePropio(variable), std::nullopt) << variable;
  }
}

TEST(EnchufePropio, elDeUnaCarpetaDondeOtrosEscribenNo) {
  CarpetaTemporal const carpeta;
  auto const ruta = carpeta.carpeta("c") + "/e";
  enchufeEn(ruta);
  ASSERT_EQ(enchufePropio(ruta), ruta);
  std::filesystem::permissions(carpeta.dentro("c"), std::filesystem::perms{0777});
  EXPECT_EQ(enchufePropio(ruta), std::nullopt);
  std::filesystem::permissions(carpeta.dentro("c"), std::filesystem::perms{01777});
  EXPECT_EQ(enchufePropio(ruta), ruta) << "sticky";
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give the folder to another group";
  std::filesystem::permissions(carpeta.dentro("c"), std::filesystem::perms{02775});
  ASSERT_EQ(::chown(carpeta.dentro("c").c_str(), 0, 61001), 0);
  EXPECT_EQ(enchufePropio(ruta), std::nullopt);
}

TEST(EnchufePropio, elDeOtraPersonaNo) {
  CarpetaTemporal const carpeta;
  auto const ruta = carpeta.dentro("e");
  enchufeEn(ruta);
  ASSERT_EQ(enchufePropio(ruta), ruta);
  if (::geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  dobles::SinPrivilegios const otra;
  EXPECT_EQ(enchufePropio(ruta), std::nullopt);
}

TEST(ServidorDeTmux, laOrdenParaUnirseLlevaCadaByteEntreComillas) {
  ServidorDeTmux const servidor{"/usr/bin/tmux", "/tmp/it's $(id)"};
  EXPECT_EQ(servidor.ordenParaUnirse({"/dev/pts/3", "$1", "@2", "%3"}),
            R"('/usr/bin/tmux' -S '/tmp/it'\''s $(id)' attach -t '$1:@2.%3')");
}

/// A session on a terminal device of its own that was started with `tmux` as $TMUX, and the helper's answer;
/// a script stands in for tmux.
class EnUnTty : public testing::Test {
 protected:
  [[nodiscard]] dobles::Corrida enfocar(std::string const& tmux) const {
    dobles::Pseudoterminal terminal{{"/bin/sh", "-c", "echo [$(tty)]; read -r linea"},
                                    {"PATH=/usr/bin:/bin", "TMUX=" + tmux},
                                    carpeta.ruta()};
    EXPECT_TRUE(terminal.esperar("]"));
    auto const tty = terminal.pantalla().substr(1, terminal.pantalla().find(']') - 1);
    return dobles::correr({ZORVE_TERMINAL, "focus", "tmux", tty}, {{"HOME", carpeta.ruta()},
                                                                   {"PATH", carpeta.carpeta("bin")},
                                                                   {"TMUX_TMPDIR", carpeta.ruta()},
                                                                   {"DISPLAY", ":65000"}});
  }
  void tmux(std::string const& guion) const {
    auto const ruta = carpeta.escribir("bin/tmux", "#!/bin/sh\n" + guion);
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
  }
  [[nodiscard]] dobles::Corrida enfocarConEnchufe() const {
    enchufeEn(carpeta.dentro("e"));
    return enfocar(carpeta.dentro("e") + ",1,0");
  }
  static void diceUnaFrase(dobles::Corrida const& corrida, std::string const& principio) {
    EXPECT_EQ(corrida.codigo, 1);
    EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: " + principio)) << corrida.error;
    EXPECT_EQ(std::ranges::count(corrida.error, '\n'), 1) << corrida.error;
  }

  CarpetaTemporal carpeta;
};

TEST_F(EnUnTty, unValorHostilDeTmuxNoCorreNada) {
  tmux(": >\"$HOME/X\"");
  auto const toca = ": >" + carpeta.dentro("X");
  for (auto const& valor : {"$(" + toca + "),1,0", "`" + toca + "`", "; " + toca, std::string{"-c,1,0"},
                            std::string{"/etc/passwd,1,0"}, std::string{"\x1b]0;x\x07,1,0"}}) {
    auto const corrida = enfocar(valor);
    diceUnaFrase(corrida, "The tmux server of pts/");
    EXPECT_TRUE(corrida.error.contains("its socket is not one of yours")) << corrida.error;
    EXPECT_FALSE(corrida.error.contains('\x1b'));
  }
  EXPECT_FALSE(std::filesystem::exists(carpeta.dentro("X")));
}

TEST_F(EnUnTty, sinTmuxEnSuEntornoNoHaySesionDeTmux) {
  diceUnaFrase(enfocar(""), "Zorve found no tmux session on pts/");
}

TEST_F(EnUnTty, siNoHayTmuxQuePreguntarSeDice) { diceUnaFrase(enfocarConEnchufe(), "The session on pts/"); }

TEST_F(EnUnTty, unServidorQueYaNoEstaSeDiceEnUnaFrase) {
  tmux("exit 1");
  diceUnaFrase(enfocarConEnchufe(), "The tmux server on " + carpeta.dentro("e") + " refused \"list-panes\".");
}

TEST_F(EnUnTty, unServidorQueNoContestaSeDejaALosDosSegundos) {
  tmux("exec /bin/sleep 60");
  auto const empieza = std::chrono::steady_clock::now();
  diceUnaFrase(enfocarConEnchufe(), "The tmux server on " + carpeta.dentro("e") + " did not answer");
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{4});
}

TEST_F(EnUnTty, unPaneQueElServidorNoConoceNoEsta) {
  tmux("echo '/dev/pts/99999 $0 @0 %0'");
  diceUnaFrase(enfocarConEnchufe(), "Zorve found no tmux session on pts/");
}

}  // namespace
}  // namespace zorve::ayudante
