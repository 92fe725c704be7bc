#include <arpa/inet.h>
#include <netinet/in.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <fstream>

#include "Consola/EnConsola.h"
#include "Dobles/Correr.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;

constexpr auto sshd = "/usr/sbin/sshd";

/// Whether the process runs: one that ended and that nobody has asked for yet does not.
bool corre(pid_t pid) {
  std::ifstream de{"/proc/" + std::to_string(pid) + "/stat"};
  std::string const estado{std::istreambuf_iterator<char>{de}, {}};
  auto const nombre = estado.rfind(") ");
  return nombre != std::string::npos && estado[nombre + 2] != 'Z';
}

/// A free port of the loopback address.
int puertoLibre() {
  int const enchufe = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in lugar{};
  lugar.sin_family = AF_INET;
  lugar.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t largo = sizeof lugar;
  ::bind(enchufe, reinterpret_cast<sockaddr*>(&lugar), largo);
  ::getsockname(enchufe, reinterpret_cast<sockaddr*>(&lugar), &largo);
  ::close(enchufe);
  return ntohs(lugar.sin_port);
}

bool atiende(int puerto) {
  int const enchufe = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in lugar{};
  lugar.sin_family = AF_INET;
  lugar.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  lugar.sin_port = htons(static_cast<std::uint16_t>(puerto));
  bool const hay = ::connect(enchufe, reinterpret_cast<sockaddr*>(&lugar), sizeof lugar) == 0;
  ::close(enchufe);
  return hay;
}

/// An SSH server on the loopback address with keys of the test's own, and an ordinary user to come as: who
/// runs the test, or, for root, the account "nobody" with a shell, in a namespace that only this server sees.
class Ssh : public EnConsola {
 protected:
  void SetUp() override {
    if (::access(sshd, X_OK) != 0) GTEST_SKIP() << "sshd is not here (openssh-server)";
    home.carpeta().carpeta("ssh");
    for (auto const* cual : {"servidor", "persona"}) {
      auto const corrida = dobles::correr(
          {"/usr/bin/ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", enElHome("ssh/") + cual});
      ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    }
    std::filesystem::copy_file(enElHome("ssh/persona.pub"), enElHome("ssh/permitidas"));
    if (esRoot()) cuentaConShell();
    if (IsSkipped()) return;
    empezar();
    ASSERT_TRUE(esperarAlServidor()) << "sshd does not answer";
  }
  void TearDown() override {
    pantalla.reset();
    if (servidor_ <= 0) return;
    ::kill(servidor_, SIGTERM);
    ::waitpid(servidor_, nullptr, 0);
  }

  static bool esRoot() { return ::geteuid() == 0; }
  [[nodiscard]] static std::string usuario() {
    return esRoot() ? "nobody" : ::getpwuid(::geteuid())->pw_name;
  }

  void cuentaConShell() {
    std::ifstream de{"/etc/passwd"};
    std::string cuentas;
    for (std::string linea; std::getline(de, linea);) {
      if (linea.starts_with("nobody:")) linea = linea.substr(0, linea.rfind(':')) + ":/bin/bash";
      cuentas += linea + "\n";
    }
    home.carpeta().escribir("ssh/cuentas", cuentas);
    auto const aparte = dobles::correr(
        {"/usr/bin/unshare", "-m", "/bin/mount", "--bind", enElHome("ssh/cuentas"), "/etc/passwd"});
    if (aparte.codigo != 0) GTEST_SKIP() << "no mount namespace can be made here: " << aparte.error;
    std::filesystem::create_directories("/run/sshd");
    // Whoever comes works in the home as its owner would.
    (void)dobles::correr({"/bin/chown", "-R", "nobody", home.ruta()});
    (void)dobles::correr({"/bin/chown", "root", enElHome("ssh/servidor"), enElHome("ssh/persona")});
  }

  void empezar() {
    puerto_ = puertoLibre();
    std::string orden =
        std::string{sshd} + " -D -e -f /dev/null -p " + std::to_string(puerto_) + " -h " +
        palabraDeShell(enElHome("ssh/servidor")) + " -o ListenAddress=127.0.0.1" +
        " -o StrictModes=no -o PidFile=none -o AuthorizedKeysFile=" +
        palabraDeShell(enElHome("ssh/permitidas")) +
        " -o PasswordAuthentication=no -o KbdInteractiveAuthentication=no -o PrintMotd=no 2>" +
        palabraDeShell(enElHome("ssh/registro"));
    if (esRoot())
      orden = "mount --bind " + palabraDeShell(enElHome("ssh/cuentas")) + " /etc/passwd && exec " + orden;
    std::vector<std::string> palabras{"/bin/sh", "-c", orden};
    if (esRoot()) palabras.insert(palabras.begin(), {"/usr/bin/unshare", "-m"});
    ASSERT_EQ(::posix_spawn(&servidor_, palabras.front().c_str(), nullptr, nullptr, punteros(palabras).data(),
                            environ),
              0);
  }
  [[nodiscard]] bool esperarAlServidor() const {
    for (int i = 0; i < 500 && !atiende(puerto_); ++i) ::usleep(10'000);
    return atiende(puerto_);
  }

  /// A person's terminal in which ssh runs `orden` at the server.
  PantallaVirtual::Con porSsh(std::string const& orden, bool conTerminal = true) {
    auto como = con();
    como.palabras = {"/usr/bin/ssh",
                     "-F",
                     "/dev/null",
                     "-p",
                     std::to_string(puerto_),
                     "-i",
                     enElHome("ssh/persona"),
                     "-o",
                     "StrictHostKeyChecking=no",
                     "-o",
                     "UserKnownHostsFile=/dev/null",
                     "-o",
                     "LogLevel=ERROR",
                     "-o",
                     "IdentitiesOnly=yes",
                     conTerminal ? "-tt" : "-T",
                     usuario() + "@127.0.0.1",
                     "HOME=" + palabraDeShell(home.ruta()) + " SHELL=/bin/bash; export HOME SHELL; " + orden};
    return como;
  }
  [[nodiscard]] std::string registro() const {
    std::ifstream de{enElHome("ssh/registro")};
    return {std::istreambuf_iterator<char>{de}, {}};
  }

  int puerto_ = 0;
  pid_t servidor_ = 0;
};

TEST_F(Ssh, laListaDeOtraMaquinaSeVeYSeFiltra) {
  pantalla = std::make_unique<PantallaVirtual>(porSsh(std::string{ZORVECTL} + " panel"));
  ASSERT_TRUE(pantalla->esperar("1/3")) << registro() << testing::PrintToString(pantalla->lineas());
  EXPECT_TRUE(pantalla->donde("opens here"));
  (void)pantalla->sacarBytes();
  pantalla->escribir("i");
  ASSERT_TRUE(pantalla->esperar("❯ i"));
  ASSERT_TRUE(pantalla->esperarCuadro());
  EXPECT_LT(pantalla->sacarBytes().size(), 4096U);
  pantalla->escribir("\x1B");
  EXPECT_EQ(pantalla->terminar(), 0);
  EXPECT_TRUE(pantalla->comoUnaShellLaQuiere());
}

TEST_F(Ssh, laAcabadaCorreAlliYSuEstadoVuelve) {
  conClaude("echo \"corre $*\"; id -un; exit 7");
  pantalla = std::make_unique<PantallaVirtual>(porSsh(std::string{ZORVECTL} + " panel --filter icon"));
  ASSERT_TRUE(pantalla->esperar("1/1")) << registro();
  pantalla->escribir("\r");
  EXPECT_EQ(pantalla->terminar(), 7);
  EXPECT_TRUE(pantalla->donde("corre -r " + id(3)));
  EXPECT_TRUE(pantalla->donde(usuario()));
}

TEST_F(Ssh, siLaConexionSeVaElPanelAcabaEnMenosDeUnSegundo) {
  auto const donde = enElHome("trabajo/pid");
  pantalla = std::make_unique<PantallaVirtual>(
      porSsh("echo $$ >" + palabraDeShell(donde) + "; exec " + std::string{ZORVECTL} + " panel"));
  ASSERT_TRUE(pantalla->esperar("1/3")) << registro();
  pid_t pid = 0;
  std::ifstream{donde} >> pid;
  ASSERT_GT(pid, 0);
  ASSERT_TRUE(corre(pid));
  ::kill(pantalla->pid(), SIGKILL);
  auto const desde = std::chrono::steady_clock::now();
  while (corre(pid) && std::chrono::steady_clock::now() - desde < std::chrono::seconds{5}) ::usleep(2000);
  EXPECT_LT(std::chrono::steady_clock::now() - desde, std::chrono::seconds{1});
}

TEST_F(Ssh, sinPedirTerminalEsUnaFraseYEstadoDos) {
  pantalla = std::make_unique<PantallaVirtual>(porSsh(std::string{ZORVECTL} + " panel", false));
  EXPECT_EQ(pantalla->terminar(), 2);
  EXPECT_TRUE(pantalla->donde("there is no terminal here")) << testing::PrintToString(pantalla->lineas());
}

}  // namespace
}  // namespace zorve::pruebas
