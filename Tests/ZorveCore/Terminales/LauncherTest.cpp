#include "ZorveCore/Terminales/Launcher.h"

#include <cerrno>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Dobles/AplicacionesFijas.h"
#include "Dobles/EjecutorGuionado.h"
#include "ZorveCore/Terminales/Anfitrionas.h"
#include "ZorveCore/Terminales/CatalogoDeTerminales.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"

namespace zorve {
namespace {

using dobles::EjecutorGuionado;
using testing::ElementsAre;
using testing::SizeIs;

constexpr char const* enITerm = "/Applications/iTerm.app/Contents/MacOS/iTerm2";
constexpr char const* enGhostty = "/Applications/Ghostty.app/Contents/MacOS/ghostty";

/// A terminal that cannot even plan a focus.
class TerminalQueFalla final : public Terminal {
 public:
  [[nodiscard]] std::string identificador() const override { return "rota"; }
  [[nodiscard]] std::string nombre() const override { return "Rota"; }
  [[nodiscard]] std::string nombreDelBundle() const override { return "Rota.app"; }
  [[nodiscard]] bool puedeEnfocar() const override { return true; }
  [[nodiscard]] bool estaInstalada() const override { return true; }
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override {
    return std::vector{ComandoDeApertura{"/abrir", {cwd, comando}}};
  }
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override {
    return std::unexpected{IndexError{IndexSource::launcher, "no focus of " + tty}};
  }
};

class LauncherTest : public testing::Test {
 protected:
  LauncherTest() : conocidas{todas(aplicaciones)} {}

  Launcher launcher() {
    return {conocidas.at(2), ps, EjecutorGuionado::rutaPs, soloLasConocidas(conocidas, nullptr)};
  }
  TerminalRef iterm() { return conocidas.at(0); }
  TerminalRef apple() { return conocidas.at(2); }
  static Session viva(std::int32_t pid = 100) {
    return {.cwd = "/w", .liveState = LiveState::busy, .sessionId = "abc", .pid = pid};
  }
  std::string mensajeDe(Session const& sesion) {
    auto const plan = launcher().plan(sesion);
    if (plan) return "a plan";
    auto const* error = std::get_if<IndexError>(&plan.error());
    if (error == nullptr) return "a failure of the system";
    EXPECT_EQ(error->fuente, IndexSource::launcher);
    return error->mensaje;
  }
  void ps1(std::string const& columnas, EjecutorGuionado::Respuesta respuesta) {
    ps.contestar({EjecutorGuionado::rutaPs, "-o", columnas, "-p", "100"}, std::move(respuesta));
  }

  dobles::AplicacionesFijas aplicaciones;
  std::vector<TerminalRef> conocidas;
  EjecutorGuionado ps;
};

TEST_F(LauncherTest, unaSesionSinIdentificadorNoSePuedeReabrir) {
  EXPECT_EQ(mensajeDe({.cwd = "/a b"}), "the Claude session in /a b has no sessionId; `claude -r` needs it");
  EXPECT_EQ(mensajeDe({.cwd = "/a", .liveState = LiveState::idle, .pid = 4}),
            "the Claude session in /a has no sessionId; `claude -r` needs it");
}

TEST_F(LauncherTest, unaTerminadaSeAbreEnSuCarpetaConLaTerminalElegida) {
  auto const plan = launcher().plan({.cwd = "/w", .sessionId = "abc", .pid = 100});
  EXPECT_EQ(plan.value(), apple()->planParaAbrir("/w", "claude -r 'abc'"));
  EXPECT_THAT(ps.llamadas(), SizeIs(0));
}

TEST_F(LauncherTest, laCarpetaLlegaALaTerminalSinComillas) {
  Launcher const otro{std::make_shared<TerminalQueFalla const>(), ps, EjecutorGuionado::rutaPs,
                      soloLasConocidas(conocidas, nullptr)};
  auto const plan = otro.plan({.cwd = "/it's", .sessionId = "abc"});
  EXPECT_EQ(plan.value(),
            (PlanDeApertura{std::vector{ComandoDeApertura{"/abrir", {"/it's", "claude -r 'abc'"}}}}));
}

TEST_F(LauncherTest, unApostrofoEnElIdentificadorSaleYVuelveAEntrarEnLasComillas) {
  auto const plan = launcher().plan({.cwd = "/w", .sessionId = "a'b"});
  EXPECT_EQ(plan.value(), apple()->planParaAbrir("/w", "claude -r 'a'\\''b'"));
}

TEST_F(LauncherTest, unIdentificadorVacioEsUnaPalabraVacia) {
  auto const plan = launcher().plan({.cwd = "/w", .sessionId = ""});
  EXPECT_EQ(plan.value(), apple()->planParaAbrir("/w", "claude -r ''"));
}

TEST_F(LauncherTest, unaVivaSinPidNoSePuedeEnfocar) {
  EXPECT_EQ(mensajeDe({.cwd = "/w", .liveState = LiveState::idle, .sessionId = "abc"}),
            "the live session abc has no pid; without a pid its tty cannot be resolved");
}

TEST_F(LauncherTest, sePreguntaElTtyConEstosArgumentos) {
  ps.proceso(100, 1, "claude");
  ASSERT_TRUE(launcher().plan(viva()).has_value());
  EXPECT_THAT(ps.llamadas(), ElementsAre(ElementsAre("/bin/ps", "-o", "tty=", "-p", "100")));
}

TEST_F(LauncherTest, siPsFallaElMensajeLlevaSuSalidaRecortada) {
  ps1("tty=", ResultadoDeEjecucion{1, " \n no such process \n"});
  EXPECT_EQ(mensajeDe(viva()),
            "ps could not resolve the tty of pid 100: exit code 1, output: no such process");
}

TEST_F(LauncherTest, siPsFallaSinDecirNadaElMensajeDiceVacio) {
  ps1("tty=", ResultadoDeEjecucion{-3, " \n"});
  EXPECT_EQ(mensajeDe(viva()), "ps could not resolve the tty of pid 100: exit code -3, output: (empty)");
}

TEST_F(LauncherTest, siPsNoSePuedeLanzarElFalloDelSistemaPasa) {
  ps1("tty=", std::unexpected{FalloDelSistema::deErrno(EACCES)});
  auto const plan = launcher().plan(viva());
  ASSERT_FALSE(plan.has_value());
  EXPECT_EQ(std::get<FalloDelSistema>(plan.error()), FalloDelSistema::deErrno(EACCES));
}

class SinTty : public LauncherTest, public testing::WithParamInterface<char const*> {};

TEST_P(SinTty, noSePuedeEnfocarYNoSeBuscaAnfitriona) {
  ps1("tty=", ResultadoDeEjecucion{0, GetParam()});
  EXPECT_EQ(launcher().plan(viva()).value(), PlanDeApertura{NoSePuedeEnfocar{}});
  EXPECT_THAT(ps.llamadas(), SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Launcher, SinTty,
                         testing::Values("??\n", "  ??  ", "?\n", "", " \r\n", "\xC2\xA0\n"));

TEST_F(LauncherTest, elTtySeRecortaYPierdeSuPrefijo) {
  for (auto const* salida : {"ttys004", "  ttys004 \n", "/dev/ttys004\n"}) {
    ps1("tty=", ResultadoDeEjecucion{0, salida});
    EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value()) << salida;
  }
}

TEST_F(LauncherTest, elTtyDeLinuxConservaSuCarpeta) {
  ps.proceso(100, 1, "claude", "pts/3");
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("pts/3").value());
}

TEST_F(LauncherTest, elTtyDeLinuxConSuPrefijoPierdeSoloElPrefijo) {
  ps.proceso(100, 1, "claude", "/dev/pts/3");
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("pts/3").value());
}

TEST_F(LauncherTest, deDosQueLaHospedarianGanaLaPrimera) {
  ps.proceso(100, 1, "/Applications/Ghostty.app/Contents/iTerm.app/sh", "ttys004");
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, unPadreConSignoMasSeSigueYUnoMalEscritoNo) {
  ps.proceso(90, 1, enITerm);
  ps1("tty=", ResultadoDeEjecucion{0, "ttys004\n"});
  ps1("ppid=,comm=", ResultadoDeEjecucion{0, "+90 claude\n"});
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
  for (auto const* padre : {"+-90", "++90", "9 0", "90x", "+"}) {
    ps1("ppid=,comm=", ResultadoDeEjecucion{0, std::string{padre} + " claude\n"});
    EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value()) << padre;
  }
}

TEST_F(LauncherTest, laTerminalQueDeVerdadLaHospedaGanaALaElegida) {
  ps.proceso(100, 90, "claude", "ttys004").proceso(90, 80, "-zsh").proceso(80, 1, enITerm);
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, elPropioProcesoTambienSeMira) {
  ps.proceso(100, 1, enITerm, "ttys004");
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, unaAnfitrionaQueNoEnfocaDaElTty) {
  ps.proceso(100, 90, "claude", "ttys004").proceso(90, 1, enGhostty);
  EXPECT_EQ(launcher().plan(viva()).value(), PlanDeApertura{NoSePuedeEnfocar{"ttys004"}});
}

TEST_F(LauncherTest, siLaTerminalNoPuedePlanearElEnfoqueSuErrorPasa) {
  conocidas.at(2) = std::make_shared<TerminalQueFalla const>();
  ps.proceso(100, 1, "claude", "ttys004");
  EXPECT_EQ(mensajeDe(viva()), "no focus of ttys004");
}

TEST_F(LauncherTest, unPadreUnoAcabaLaSubida) {
  ps.proceso(100, 1, "claude", "ttys004").proceso(1, 0, enITerm);
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
  EXPECT_THAT(ps.llamadas(), SizeIs(2));
}

TEST_F(LauncherTest, unaRutaConBlancosSeReconoce) {
  ps.proceso(100, 1, "/Volumes/Mi Disco/iTerm.app/Contents/MacOS/iTerm2", "ttys004");
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

/// A chain of processes from 100 upwards, none of them a terminal but the last.
void cadena(EjecutorGuionado& ps, int niveles, std::string const& ultimo) {
  for (int nivel = 0; nivel < niveles; ++nivel) {
    ps.proceso(100 + nivel, 101 + nivel, nivel + 1 == niveles ? ultimo : "sh", "ttys004");
  }
}

TEST_F(LauncherTest, elDuodecimoProcesoTodaviaSeMira) {
  cadena(ps, 12, enITerm);
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, elDecimoterceroYaNoYQuedaLaElegida) {
  cadena(ps, 13, enITerm);
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
  EXPECT_THAT(ps.llamadas(), SizeIs(13));
}

TEST_F(LauncherTest, unCirculoDeProcesosSeAcaba) {
  ps.proceso(100, 101, "a", "ttys004").proceso(101, 100, "b");
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
  EXPECT_THAT(ps.llamadas(), SizeIs(13));
}

TEST_F(LauncherTest, siPsNoArrancaAlSubirQuedaLaElegida) {
  ps1("tty=", ResultadoDeEjecucion{0, "ttys004"});
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, siUnAntecesorSeHaIdoQuedaLaElegida) {
  ps.proceso(100, 90, "claude", "ttys004");
  ps.contestar({EjecutorGuionado::rutaPs, "-o", "ppid=,comm=", "-p", "90"},
               ResultadoDeEjecucion{1, std::string{"1 "} + enITerm});
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
}

class SalidaRara : public LauncherTest, public testing::WithParamInterface<char const*> {};

TEST_P(SalidaRara, noDaAnfitrionaNiSigueSubiendo) {
  ps1("tty=", ResultadoDeEjecucion{0, "ttys004"});
  ps1("ppid=,comm=", ResultadoDeEjecucion{0, GetParam()});
  EXPECT_EQ(launcher().plan(viva()).value(), apple()->planParaEnfocar("ttys004").value());
  EXPECT_THAT(ps.llamadas(), SizeIs(2));
}

INSTANTIATE_TEST_SUITE_P(Launcher, SalidaRara,
                         testing::Values("", "\n\n", "42", "abc def", "99999999999 sh", "-5 sh", "0 sh",
                                         "1 sh", "12x sh", "\xEF\xBF\xBD\xEF\xBF\xBD sh", "/iTerm.app/"));

TEST_F(LauncherTest, unPadreQueNoEsNumeroNoImpideReconocerElComando) {
  ps1("tty=", ResultadoDeEjecucion{0, "ttys004"});
  ps1("ppid=,comm=", ResultadoDeEjecucion{0, std::string{"x\t"} + enITerm});
  EXPECT_EQ(launcher().plan(viva()).value(), iterm()->planParaEnfocar("ttys004").value());
}

TEST_F(LauncherTest, enLinuxSeReconocePorElNombreDelProceso) {
  conocidas = terminalesDeLinux(aplicaciones, "/libexec/zorve-terminal");
  ps.proceso(100, 90, "claude", "pts/3").proceso(90, 80, "bash").proceso(80, 1, "xterm");
  Launcher const linux{std::make_shared<TerminalQueFalla const>(), ps, EjecutorGuionado::rutaPs,
                       soloLasConocidas(conocidas, nullptr)};
  auto const xterm = buscarTerminal("xterm", conocidas);
  ASSERT_NE(xterm, nullptr);
  auto const esperado = xterm->puedeEnfocar() ? xterm->planParaEnfocar("pts/3").value()
                                              : PlanDeApertura{NoSePuedeEnfocar{"pts/3"}};
  EXPECT_EQ(linux.plan(viva()).value(), esperado);
}

/// Passes calls on, but for one of them, counted from 1.
class EjecutorQueFalla final : public Ejecutor {
 public:
  EjecutorQueFalla(Ejecutor const& verdadero, int cual, EjecutorGuionado::Respuesta enSuLugar)
      : verdadero_{verdadero}, cual_{cual}, enSuLugar_{std::move(enSuLugar)} {}
  [[nodiscard]] std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const override {
    if (++llamadas == cual_) return enSuLugar_;
    return verdadero_.correr(ruta, args);
  }
  mutable int llamadas = 0;

 private:
  Ejecutor const& verdadero_;
  int cual_;
  EjecutorGuionado::Respuesta enSuLugar_;
};

TEST_F(LauncherTest, enCualquierLlamadaUnFalloDePsDaSuPlanOSuFallo) {
  ps.proceso(100, 90, "claude", "ttys001").proceso(90, 80, "-zsh").proceso(80, 1, enITerm);
  auto const deITerm = *iterm()->planParaEnfocar("ttys001");
  auto const deLaElegida = *apple()->planParaEnfocar("ttys001");
  std::vector<EjecutorGuionado::Respuesta> const respuestas{
      std::unexpected{FalloDelSistema{ENOMEM, "no memory"}}, ResultadoDeEjecucion{1, ""},
      ResultadoDeEjecucion{137, "Killed"}, ResultadoDeEjecucion{0, "\xFF\xFE garbage\n"}};
  for (auto const& enSuLugar : respuestas) {
    bool const basura = enSuLugar && enSuLugar->codigo == 0;
    for (int cual = 1; cual <= 5; ++cual) {
      EjecutorQueFalla const roto{ps, cual, enSuLugar};
      auto lanzador = Launcher{apple(), roto, EjecutorGuionado::rutaPs, soloLasConocidas(conocidas, nullptr)};
      auto const plan = lanzador.plan(viva());
      EXPECT_LE(roto.llamadas, 4);
      if (cual == 1 && !basura) {
        EXPECT_FALSE(plan);
        continue;
      }
      ASSERT_TRUE(plan) << cual;
      if (cual == 1) continue;
      EXPECT_EQ(*plan, cual > 4 ? deITerm : deLaElegida) << cual;
    }
  }
}

}  // namespace
}  // namespace zorve
