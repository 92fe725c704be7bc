#include "ZorveApp/Apertura.h"

#include <expected>
#include <functional>
#include <span>
#include <stdexcept>

#include "Mesa.h"
#include "ZorveCore/Terminales/AnfitrionaTmux.h"

namespace zorve {
namespace {

class AperturaTest : public Mesa {
 protected:
  void unaViva(std::string const& tty, bool puedeEnfocar) {
    terminalesConocidas(
        {dobles::terminalFija({.identificador = "uno", .nombre = "Uno", .puedeEnfocar = puedeEnfocar})});
    hacerDeNuevo();
    cargar({sesionViva("a", 40)});
    ejecutor.proceso(40, 1, "/sbin/otra", tty);
  }
  std::optional<std::string> error() const { return *modelo->errorDeApertura(); }
  std::optional<std::string> aviso() const { return *modelo->avisoDeApertura(); }
};

TEST_F(AperturaTest, reabreUnaSesionTerminadaYUnExitoNoDiceNada) {
  cargar({sesionDe("a")});
  corre(reapertura("a"), 0, "ruido");
  abrir();
  EXPECT_EQ(ejecutor.llamadas(), (Llamadas{reapertura("a")}));
  EXPECT_EQ(error(), std::nullopt);
  EXPECT_EQ(aviso(), std::nullopt);
}

TEST_F(AperturaTest, enfocaUnaSesionViva) {
  unaViva("ttys003", true);
  corre({"/enfocar", "ttys003"}, 0, "");
  abrir();
  EXPECT_EQ(ejecutor.llamadas().back(), (Palabras{"/enfocar", "ttys003"}));
  EXPECT_EQ(error(), std::nullopt);
}

TEST_F(AperturaTest, sinSeleccionNoHaceNadaNiBorraMensajes) {
  cargar({sesionDe("a")});
  modelo->copiarIdentificador();
  modelo->escribirConsulta("nada de esto");
  abrir();
  EXPECT_EQ(aviso(), "Copied: a");
  EXPECT_TRUE(ejecutor.llamadas().empty());
}

TEST_F(AperturaTest, alAbrirSeBorranLosDosMensajesAntesDeNada) {
  cargar({sesionDe("a")});
  abrir();
  ASSERT_TRUE(error());
  modelo->copiarIdentificador();
  modelo->abrirSeleccionada();
  EXPECT_EQ(error(), std::nullopt);
  EXPECT_EQ(aviso(), std::nullopt);
}

TEST_F(AperturaTest, unaVivaSinTtyDaElAvisoYNoCorreNada) {
  unaViva("??", true);
  abrir();
  EXPECT_EQ(aviso(),
            "The session is alive but has no controlling terminal; there is nowhere to focus. ⌘C copies its "
            "id.");
  EXPECT_EQ(error(), std::nullopt);
  for (auto const& llamada : ejecutor.llamadas()) EXPECT_EQ(llamada.front(), "/bin/ps");
}

TEST_F(AperturaTest, unaVivaQueNoSePuedeEnfocarNombraSuTty) {
  unaViva("ttys003", false);
  abrir();
  EXPECT_EQ(
      aviso(),
      "The session is alive on ttys003 and Uno cannot bring its window to the front. ⌘C copies its id.");
  EXPECT_EQ(error(), std::nullopt);
}

TEST_F(AperturaTest, elAvisoSinEnfoqueNombraLaTerminalResueltaYNoLaQueLaAloja) {
  terminalesConocidas(
      {dobles::terminalFija({.identificador = "uno", .nombre = "Uno"}),
       dobles::terminalFija({.identificador = "dos", .nombre = "Dos", .puedeEnfocar = false})});
  *eleccion = "uno";
  hacerDeNuevo();
  cargar({sesionViva("a", 40)});
  ejecutor.proceso(40, 1, "/Applications/Dos.app/Contents/MacOS/dos", "ttys003");
  abrir();
  EXPECT_EQ(
      aviso(),
      "The session is alive on ttys003 and Uno cannot bring its window to the front. ⌘C copies its id.");
}

TEST_F(AperturaTest, unComandoQueFallaConSoloBlancosDiceSinSalida) {
  cargar({sesionDe("a")});
  corre(reapertura("a"), 1, " \n\t\r\n");
  abrir();
  EXPECT_EQ(error(), "/abrir exited with code 1: (no output)");
}

TEST_F(AperturaTest, unComandoQueFallaDaSuSalidaSinBlancosEnLosExtremos) {
  cargar({sesionDe("a")});
  corre(reapertura("a"), 3, "\n  no hay\n ventana \n");
  abrir();
  EXPECT_EQ(error(), "/abrir exited with code 3: no hay\n ventana");
}

TEST_F(AperturaTest, unComandoQueNoArrancaDiceCual) {
  cargar({sesionDe("a")});
  ejecutor.contestar(reapertura("a"), std::unexpected{FalloDelSistema{2, "no such file"}});
  abrir();
  EXPECT_EQ(error(), "Could not launch /abrir: no such file");
}

TEST_F(AperturaTest, trasUnComandoQueFallaNoCorrenLosSiguientes) {
  terminalesConocidas({dobles::terminalFija(
      {.identificador = "uno", .nombre = "Uno", .mas = {{"/segundo", {}}, {"/tercero", {"x"}}}})});
  hacerDeNuevo();
  cargar({sesionDe("a")});
  corre(reapertura("a"), 0, "");
  corre({"/segundo"}, 9, "mal");
  corre({"/tercero", "x"}, 0, "");
  abrir();
  EXPECT_EQ(ejecutor.llamadas(), (Llamadas{reapertura("a"), Palabras{"/segundo"}}));
  EXPECT_EQ(error(), "/segundo exited with code 9: mal");
}

TEST_F(AperturaTest, losComandosCorrenEnSuOrden) {
  terminalesConocidas({dobles::terminalFija(
      {.identificador = "uno", .nombre = "Uno", .mas = {{"/segundo", {}}, {"/tercero", {"x"}}}})});
  hacerDeNuevo();
  cargar({sesionDe("a")});
  corre(reapertura("a"), 0, "");
  corre({"/segundo"}, 0, "");
  corre({"/tercero", "x"}, 0, "");
  abrir();
  EXPECT_EQ(ejecutor.llamadas(),
            (Llamadas{reapertura("a"), Palabras{"/segundo"}, Palabras{"/tercero", "x"}}));
  EXPECT_EQ(error(), std::nullopt);
}

TEST_F(AperturaTest, unFalloPropioAlPlanearSeMuestraComoEsta) {
  auto sin = sesionDe("", "sin", "/solo/cwd");
  sin.sessionId = std::nullopt;
  cargar({sin});
  abrir();
  EXPECT_EQ(error(), "the Claude session in /solo/cwd has no sessionId; `claude -r` needs it");
}

TEST_F(AperturaTest, unFalloDelSistemaAlPlanearDiceQueNoSePudoAbrir) {
  unaViva("ttys003", true);
  ejecutor.contestar({"/bin/ps", "-o", "tty=", "-p", "40"},
                     std::unexpected{FalloDelSistema{2, "no such file"}});
  abrir();
  EXPECT_EQ(error(), "Could not open the session: no such file");
}

TEST_F(AperturaTest, sinTerminalElFalloVaComoEstaYNadaCorre) {
  terminalesConocidas({});
  hacerDeNuevo();
  cargar({sesionDe("a")});
  abrir();
  EXPECT_EQ(error(),
            "Zorve found no known terminal installed (it looks for ). Without a terminal there is nowhere to "
            "open the session.");
  EXPECT_TRUE(ejecutor.llamadas().empty());
}

TEST_F(AperturaTest, unaAperturaFallidaDejaLaTerminalYSuErrorComoEstaban) {
  cargar({sesionDe("a")});
  auto const antes = *modelo->terminal();
  ASSERT_TRUE(antes);
  *eleccion = "ausente";
  abrir();
  ASSERT_TRUE(error());
  EXPECT_EQ(*modelo->terminal(), antes);
  EXPECT_EQ(*modelo->errorDeTerminal(), std::nullopt);
}

TEST_F(AperturaTest, unaAperturaFallidaConservaElErrorDeTerminalDeLaCarga) {
  *eleccion = "ausente";
  cargar({sesionDe("a")});
  auto const antes = *modelo->errorDeTerminal();
  ASSERT_TRUE(antes);
  *eleccion = "otra ausente";
  abrir();
  EXPECT_EQ(*modelo->errorDeTerminal(), antes);
  EXPECT_EQ(*modelo->terminal(), std::nullopt);
}

TEST_F(AperturaTest, unaAperturaQueResuelvePoneLaTerminalYQuitaSuError) {
  *eleccion = "ausente";
  cargar({sesionDe("a")});
  *eleccion = "UNO";
  corre(reapertura("a"), 1, "x");
  abrir();
  ASSERT_TRUE(*modelo->terminal());
  EXPECT_EQ((*modelo->terminal())->origen, OrigenDeLaTerminal::eleccionDeLaPersona);
  EXPECT_EQ(*modelo->errorDeTerminal(), std::nullopt);
  EXPECT_TRUE(error());
}

/// Has something looked at while a command runs.
class EjecutorQueMira final : public Ejecutor {
 public:
  explicit EjecutorQueMira(std::function<void()> mirar) : mirar_{std::move(mirar)} {}
  [[nodiscard]] std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& /*ruta*/, std::span<std::string const> /*args*/) const override {
    mirar_();
    return ResultadoDeEjecucion{0, ""};
  }

 private:
  std::function<void()> mirar_;
};

TEST_F(AperturaTest, laTerminalSeSabeAlPlanearYNoAlAcabarLaOrden) {
  cargar({sesionDe("a")});
  terminalesConocidas({dobles::terminalFija({.identificador = "dos", .nombre = "Dos"})});
  std::string duranteLaOrden;
  EjecutorQueMira const mirador{[&] {
    despachador.correrTodo();
    duranteLaOrden = modelo->terminalParaElPie();
  }};
  auto con = colaboradores();
  modelo = std::make_unique<ModeloDeVista>(ColaboradoresDelModelo{.cargar = con.cargar,
                                                                  .servicios = con.servicios,
                                                                  .ejecutor = mirador,
                                                                  .portapapeles = portapapeles,
                                                                  .despachador = despachador,
                                                                  .idioma = idioma});
  modelo->escribirResultado({.sesiones = {sesionDe("a")}, .errores = {}});
  abrir();
  EXPECT_EQ(duranteLaOrden, "Dos (the only one)");
}

TEST_F(AperturaTest, unaResolucionAnteriorNoTapaALaPosterior) {
  terminalesConocidas({dobles::terminalFija({.identificador = "uno", .nombre = "Uno"}),
                       dobles::terminalFija({.identificador = "dos", .nombre = "Dos"})});
  for (auto const* const primera : {"uno", "ausente"}) {
    *eleccion = primera;
    auto con = colaboradores();
    bool enLaPrimera = true;
    con.servicios.fuentes.sistema = [&] {
      if (std::exchange(enLaPrimera, false)) {
        *eleccion = "dos";
        EXPECT_TRUE(despachador.pasoDeFondo());
      }
      return RespuestaDelSistema{};
    };
    ModeloDeVista otro{std::move(con)};
    otro.escribirResultado({.sesiones = {sesionDe("a")}, .errores = {}});
    enDisco({sesionDe("a")});
    otro.refrescar();
    otro.abrirSeleccionada();
    despachador.correrTodo();
    EXPECT_EQ(otro.terminalParaElPie(), "Dos") << primera;
    EXPECT_EQ(*otro.errorDeTerminal(), std::nullopt) << primera;
  }
}

TEST_F(AperturaTest, cadaCargaYCadaAperturaMiranElManejadorEnSegundoPlano) {
  enDisco({sesionDe("a")});
  modelo->refrescar();
  EXPECT_EQ(*miradas, 0) << "not on the main thread";
  despachador.correrTodo();
  EXPECT_EQ(*miradas, 1);
  modelo->abrirSeleccionada();
  EXPECT_EQ(*miradas, 1);
  despachador.correrTodo();
  EXPECT_EQ(*miradas, 2);
}

TEST_F(AperturaTest, loQueLanceElCatalogoEsUnFalloYNoElFinDelPrograma) {
  auto con = colaboradores();
  con.servicios.fuentes.eleccion = []() -> std::optional<std::string> { throw std::runtime_error{"boom"}; };
  ModeloDeVista otro{std::move(con)};
  enDisco({sesionDe("a")});
  otro.refrescar();
  despachador.correrTodo();
  EXPECT_EQ(*otro.errorDeTerminal(), "Could not resolve the terminal: boom");
  otro.abrirSeleccionada();
  despachador.correrTodo();
  EXPECT_EQ(*otro.errorDeApertura(), "Could not open the session: boom");
}

TEST_F(AperturaTest, unaAnfitrionaDeFueraDelCatalogoHospedaYRecibeLaElegida) {
  auto con = colaboradores();
  con.servicios.anfitrionas = anfitrionasDeLinux("/ayudante");
  ModeloDeVista otro{std::move(con)};
  enDisco({sesionViva("a", 40)});
  ejecutor.proceso(40, 30, "claude", "pts/3").proceso(30, 1, "tmux: server");
  otro.refrescar();
  despachador.correrTodo();
  otro.abrirSeleccionada();
  despachador.correrTodo();
  EXPECT_EQ(ejecutor.llamadas().back(), (Palabras{"/ayudante", "focus", "tmux", "pts/3", "uno", "40"}));
}

TEST_F(AperturaTest, loQueTeclearaCaracteresDeControlNoSeCorre) {
  std::vector const comandos{
      ComandoDeApertura{"/ayudante", {}},
      ComandoDeApertura{"/usr/bin/osascript", {"-e", "do script \"cd '/a\x15\u00f1' && b\""}}};
  EXPECT_EQ(ejecutarComandos(comandos, ejecutor, Textos{Idioma::en}),
            "The session in /a\u2415\u00f1 cannot be opened in this terminal: control characters would be "
            "typed into "
            "its shell. Rename the directory, or run `claude -r` there yourself.");
  EXPECT_EQ(ejecutarComandos(comandos, ejecutor, Textos{Idioma::es}),
            "La sesi\u00f3n de /a\u2415\u00f1 no puede abrirse en esta terminal: se teclear\u00edan "
            "caracteres de control en su "
            "shell. Cambia el nombre del directorio, o ejecuta all\u00ed `claude -r`.");
  EXPECT_TRUE(ejecutor.llamadas().empty());
}

TEST_F(AperturaTest, enEspanolTodoSaleEnEspanol) {
  enEspanol();
  cargar({sesionDe("a")});
  corre(reapertura("a"), -1, "");
  abrir();
  EXPECT_EQ(error(), "/abrir salió con código -1: (sin salida)");
  unaViva("ttys003", false);
  abrir();
  EXPECT_EQ(aviso(),
            "La sesión está viva en ttys003 y Uno no puede traer su ventana al frente. ⌘C copia su id.");
}

TEST_F(AperturaTest, abreLaSesionSeleccionadaAlPedirloAunqueLaSeleccionCambieDespues) {
  cargar({sesionDe("a"), sesionDe("b")});
  corre(reapertura("a"), 0, "");
  modelo->abrirSeleccionada();
  modelo->mover(1);
  despachador.correrTodo();
  EXPECT_EQ(ejecutor.llamadas(), (Llamadas{reapertura("a")}));
}

}  // namespace
}  // namespace zorve
