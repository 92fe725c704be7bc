#include <signal.h>  // NOLINT(modernize-deprecated-headers): kill() is POSIX
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Pseudoterminal.h"
#include "ZorveCore/Terminales/Launcher.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace zorve {
namespace {

using namespace std::chrono_literals;

/// A terminal known by the name of its process, as Linux terminals are.
class TerminalPorNombre final : public Terminal {
 public:
  explicit TerminalPorNombre(std::string nombre) : nombre_{std::move(nombre)} {}
  [[nodiscard]] std::string identificador() const override { return nombre_; }
  [[nodiscard]] std::string nombre() const override { return nombre_; }
  [[nodiscard]] std::string nombreDelBundle() const override { return nombre_ + ".desktop"; }
  [[nodiscard]] bool puedeEnfocar() const override { return true; }
  [[nodiscard]] bool estaInstalada() const override { return true; }
  [[nodiscard]] bool hospeda(std::string_view command) const override { return command == nombre_; }
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override {
    return std::vector{ComandoDeApertura{nombre_, {cwd, comando}}};
  }
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override {
    return std::vector{ComandoDeApertura{nombre_, {tty}}};
  }

 private:
  std::string nombre_;
};

/// On a terminal device of its own, a process named "miterminal" whose grandchild plays the session.
class SesionDeVerdad {
 public:
  SesionDeVerdad() {
    std::filesystem::permissions(guion_, std::filesystem::perms{0755});
    terminal_.emplace(std::vector{guion_}, std::vector<std::string>{"PATH=/usr/bin:/bin"}, carpeta_.ruta());
    for (int i = 0; i < 500 && pid_ == 0; ++i) {
      std::ifstream{carpeta_.dentro("pid")} >> pid_;
      if (pid_ == 0) std::this_thread::sleep_for(10ms);
    }
    std::ifstream{carpeta_.dentro("tty")} >> tty_;
  }

  [[nodiscard]] std::int32_t pid() const { return pid_; }
  [[nodiscard]] std::string ttyCorto() const { return tty_.substr(5); }

 private:
  dobles::CarpetaTemporal carpeta_;
  std::string guion_ = carpeta_.escribir("miterminal",
                                         "#!/bin/sh\n"
                                         "tty >tty\n"
                                         "/bin/sh -c 'sleep 60 & echo $! >pid; wait'\n"
                                         ":\n");
  std::optional<dobles::Pseudoterminal> terminal_;
  std::string tty_;
  std::int32_t pid_ = 0;
};

class LauncherEnVivo : public testing::Test {
 protected:
  std::expected<PlanDeApertura, FalloDeApertura> plan(std::int32_t pid, std::string const& conocida) {
    Launcher const launcher{
        elegida, ejecutor, "/bin/ps", {std::make_shared<TerminalPorNombre const>(conocida)}};
    return launcher.plan({.cwd = "/", .liveState = LiveState::busy, .sessionId = "a", .pid = pid});
  }
  static PlanDeApertura enfoque(std::string const& terminal, std::string const& tty) {
    return std::vector{ComandoDeApertura{terminal, {tty}}};
  }

  EjecutorDeProcesos ejecutor;
  TerminalRef elegida = std::make_shared<TerminalPorNombre const>("elegida");
};

TEST_F(LauncherEnVivo, subePorProcesosDeVerdadHastaLaTerminal) {
  SesionDeVerdad const sesion;
  ASSERT_GT(sesion.pid(), 0);
  EXPECT_EQ(plan(sesion.pid(), "miterminal").value(), enfoque("miterminal", sesion.ttyCorto()));
}

TEST_F(LauncherEnVivo, sinTerminalConocidaEncimaQuedaLaElegida) {
  SesionDeVerdad const sesion;
  ASSERT_GT(sesion.pid(), 0);
  EXPECT_EQ(plan(sesion.pid(), "otra").value(), enfoque("elegida", sesion.ttyCorto()));
}

TEST_F(LauncherEnVivo, unProcesoSinTtyNoSePuedeEnfocar) {
  std::string setsid = "/usr/bin/setsid";
  std::string sleep = "/bin/sleep";
  std::string cuanto = "60";
  std::array<char*, 4> args{setsid.data(), sleep.data(), cuanto.data(), nullptr};
  pid_t pid = 0;
  ASSERT_EQ(::posix_spawn(&pid, setsid.c_str(), nullptr, nullptr, args.data(), environ), 0);
  for (int i = 0; i < 500 && ::getsid(pid) != pid; ++i) std::this_thread::sleep_for(5ms);
  EXPECT_EQ(plan(pid, "otra").value(), PlanDeApertura{NoSePuedeEnfocar{}});
  ::kill(pid, SIGKILL);
  ::waitpid(pid, nullptr, 0);
}

TEST_F(LauncherEnVivo, unProcesoQueYaNoExisteEsUnFalloDePs) {
  pid_t pid = 0;
  std::string verdad = "/bin/true";
  std::array<char*, 2> args{verdad.data(), nullptr};
  ASSERT_EQ(::posix_spawn(&pid, verdad.c_str(), nullptr, nullptr, args.data(), environ), 0);
  ::waitpid(pid, nullptr, 0);
  EXPECT_EQ(std::get<IndexError>(plan(pid, "otra").error()).mensaje,
            "ps could not resolve the tty of pid " + std::to_string(pid) + ": exit code 1, output: (empty)");
}

}  // namespace
}  // namespace zorve
