#include "ZorveApp/PanelView.h"

#include "Mesa.h"

namespace zorve {
namespace {

using std::chrono::duration;

constexpr Fecha ahora{duration<double>{1'700'000'000}};

class PanelViewTest : public Mesa {
 protected:
  PanelViewTest() {
    panel.acciones = {.esconder = [this] { ++escondidas; }, .salir = [this] { ++salidas; }};
  }

  Fila filaDe(Session const& sesion) {
    cargar({sesion});
    return panel.fila(0);
  }
  static Session haceSegundos(double segundos) {
    auto sesion = sesionDe("a");
    sesion.ultimaActividad = ahora - duration<double>{segundos};
    return sesion;
  }
  bool atajo(char32_t caracter) { return panel.tecla({Tecla::caracter, caracter, Modificador::mando}); }

  int escondidas = 0;
  int salidas = 0;
  EstadoDelPanel estado;
  PanelView panel{*modelo, estado, idioma, "/Users/ana", [] { return ahora; }, Modificador::mando};
};

TEST_F(PanelViewTest, alAparecerCarga) {
  panel.aparecer();
  EXPECT_TRUE(*modelo->refrescando());
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(PanelViewTest, alAparecerDuranteUnaCargaNoEmpiezaOtra) {
  panel.aparecer();
  panel.aparecer();
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(PanelViewTest, alVolverConservaLaBusquedaYLaSeleccion) {
  cargar({sesionDe("a", "alfa"), sesionDe("b", "beta"), sesionDe("c", "beta 2")});
  modelo->escribirConsulta("beta");
  modelo->mover(1);
  panel.aparecer();
  despachador.correrTodo();
  EXPECT_EQ(*modelo->consulta(), "beta");
  EXPECT_EQ(*modelo->seleccion(), "claude:c");
}

TEST_F(PanelViewTest, laBusquedaSeEscribeYSeLeePorElPanel) {
  cargar({sesionDe("a", "alfa"), sesionDe("b", "beta")});
  panel.escribirConsulta("beta");
  EXPECT_EQ(panel.consulta(), "beta");
  EXPECT_EQ(panel.cantidadDeFilas(), 1U);
}

TEST_F(PanelViewTest, quienLoObservaOyeElModeloYElIdiomaHastaQueTermina) {
  int cambios = 0;
  auto suscripciones = panel.observar([&] { ++cambios; });
  panel.escribirConsulta("x");
  EXPECT_EQ(cambios, 1);
  enEspanol();
  EXPECT_EQ(cambios, 2);
  suscripciones.clear();
  panel.escribirConsulta("xy");
  EXPECT_EQ(cambios, 2);
}

TEST_F(PanelViewTest, mientrasCargaSinSesionesBusca) {
  modelo->refrescar();
  EXPECT_EQ(panel.marcador(), "looking for sessions…");
  enEspanol();
  EXPECT_EQ(panel.marcador(), "buscando sesiones…");
}

TEST_F(PanelViewTest, sinSesionesLoDice) {
  EXPECT_EQ(panel.marcador(), "no sessions");
  cargar({});
  EXPECT_EQ(panel.marcador(), "no sessions");
  modelo->escribirConsulta("x");
  EXPECT_EQ(panel.marcador(), "no sessions");
}

TEST_F(PanelViewTest, sinCoincidenciasLoDice) {
  cargar({sesionDe("a", "alfa")});
  modelo->escribirConsulta("beta");
  EXPECT_EQ(panel.marcador(), "no matches");
  EXPECT_EQ(panel.cantidadDeFilas(), 0U);
  modelo->refrescar();
  EXPECT_EQ(panel.marcador(), "no matches");
}

TEST_F(PanelViewTest, conFilasNoHayMarcadorNiSiquieraMientrasCarga) {
  cargar({sesionDe("a")});
  EXPECT_EQ(panel.marcador(), std::nullopt);
  modelo->refrescar();
  EXPECT_EQ(panel.marcador(), std::nullopt);
  EXPECT_EQ(panel.cantidadDeFilas(), 1U);
}

TEST_F(PanelViewTest, lasFilasSonLasDelFiltroYEnSuOrden) {
  cargar({sesionDe("a", "uno"), sesionDe("b", "dos"), sesionDe("c", "uno más")});
  modelo->escribirConsulta("uno");
  ASSERT_EQ(panel.cantidadDeFilas(), 2U);
  EXPECT_EQ(panel.fila(0).titulo, "uno");
  EXPECT_EQ(panel.fila(1).titulo, "uno más");
  EXPECT_EQ(panel.idDeFila(1), "claude:c");
}

TEST_F(PanelViewTest, laFilaSeleccionadaEsUnaSola) {
  cargar({sesionDe("a"), sesionDe("b"), sesionDe("c")});
  modelo->mover(1);
  EXPECT_FALSE(panel.fila(0).seleccionada);
  EXPECT_TRUE(panel.fila(1).seleccionada);
  EXPECT_FALSE(panel.fila(2).seleccionada);
  EXPECT_EQ(panel.filaSeleccionada(), 1U);
}

TEST_F(PanelViewTest, unTituloDerivadoLlevaAyudaYUnoPropioNo) {
  auto derivado = sesionDe("a");
  derivado.tituloOrigen = TitleSource::derivedFromFirstPrompt;
  EXPECT_EQ(filaDe(derivado).ayuda, "Title derived from the first prompt: this session has no ai-title.");
  EXPECT_EQ(filaDe(sesionDe("a")).ayuda, std::nullopt);
}

TEST_F(PanelViewTest, laRutaDeUnaSesionTerminadaVaSola) {
  auto const fila = filaDe(sesionDe("a", "t", "/Users/ana/src"));
  EXPECT_EQ(fila.lineaDeRuta(), "~/src");
  EXPECT_EQ(fila.palabraDeEstado, std::nullopt);
  EXPECT_EQ(fila.estado, LiveState::dead);
}

TEST_F(PanelViewTest, laRutaDeUnaSesionVivaLlevaSuPalabra) {
  auto sesion = sesionDe("a", "t", "/Users/ana");
  sesion.liveState = LiveState::idle;
  EXPECT_EQ(filaDe(sesion).lineaDeRuta(), "~ · active");
  sesion.liveState = LiveState::busy;
  EXPECT_EQ(filaDe(sesion).lineaDeRuta(), "~ · working");
  enEspanol();
  EXPECT_EQ(panel.fila(0).lineaDeRuta(), "~ · procesando");
  EXPECT_EQ(panel.fila(0).palabraDeEstado, "procesando");
  EXPECT_EQ(panel.fila(0).estado, LiveState::busy);
}

TEST_F(PanelViewTest, unaRutaQueSoloEmpiezaComoElHogarNoSeAbrevia) {
  EXPECT_EQ(filaDe(sesionDe("a", "t", "/Users/anabel/x")).ruta, "/Users/anabel/x");
}

TEST_F(PanelViewTest, elTiempoVaPorMinutosHorasYDias) {
  EXPECT_EQ(filaDe(haceSegundos(59)).tiempo, "now");
  EXPECT_EQ(filaDe(haceSegundos(60)).tiempo, "1m");
  EXPECT_EQ(filaDe(haceSegundos(3599)).tiempo, "59m");
  EXPECT_EQ(filaDe(haceSegundos(3600)).tiempo, "1h");
  EXPECT_EQ(filaDe(haceSegundos(86'399)).tiempo, "23h");
  EXPECT_EQ(filaDe(haceSegundos(86'400)).tiempo, "1d");
}

TEST_F(PanelViewTest, unaFechaFuturaEsAhora) {
  EXPECT_EQ(filaDe(haceSegundos(-5)).tiempo, "now");
  enEspanol();
  EXPECT_EQ(panel.fila(0).tiempo, "ahora");
}

TEST_F(PanelViewTest, elConteoNoTieneSingular) {
  auto sesion = sesionDe("a");
  EXPECT_EQ(filaDe(sesion).conteo, std::nullopt);
  sesion.conteoPrompts = 1;
  EXPECT_EQ(filaDe(sesion).conteo, "1 prompts");
  sesion.conteoPrompts = 12;
  EXPECT_EQ(filaDe(sesion).conteo, "12 prompts");
}

TEST_F(PanelViewTest, elTituloVaLetraPorLetra) {
  EXPECT_EQ(filaDe(sesionDe("a", "⌘C <b>en esta Mac</b> &amp;")).titulo, "⌘C <b>en esta Mac</b> &amp;");
}

TEST_F(PanelViewTest, laBandaNoOcupaSinMensajes) {
  cargar({sesionDe("a")});
  EXPECT_TRUE(panel.banda().empty());
}

TEST_F(PanelViewTest, laBandaDaLosErroresYAlFinalElAviso) {
  enDisco({sesionDe("a")}, {{IndexSource::history, "h"}});
  modelo->refrescar();
  despachador.correrTodo();
  modelo->copiarIdentificador();
  EXPECT_EQ(panel.banda(), (std::vector<LineaDeBanda>{{LineaDeBanda::Clase::error, "history: h"},
                                                      {LineaDeBanda::Clase::aviso, "Copied: a"}}));
}

TEST_F(PanelViewTest, laLeyendaVaEnSuOrden) {
  using enum EntradaDeLeyenda::Simbolo;
  EXPECT_EQ(panel.leyenda(),
            (std::array<EntradaDeLeyenda, 3>{
                {{flechas, "↑↓", "move"}, {retorno, "↩", "open"}, {refrescar, "⌘R", "refresh"}}}));
  enEspanol();
  EXPECT_EQ(panel.leyenda()[0].palabra, "mover");
  EXPECT_EQ(panel.leyenda()[1].palabra, "abrir");
  EXPECT_EQ(panel.leyenda()[2].palabra, "refrescar");
}

TEST_F(PanelViewTest, elPieNombraLaTerminalYElBotonSuAyuda) {
  cargar({});
  EXPECT_EQ(panel.terminal(), "Uno (the only one)");
  EXPECT_EQ(panel.ayudaAjustes(), "Settings (⌘,)");
  EXPECT_EQ(panel.nombreAjustes(), "Settings");
}

TEST_F(PanelViewTest, unCambioDeIdiomaSeVeEnElSiguienteDibujoYLosMensajesYaDichosSeQuedan) {
  cargar({sesionDe("a")});
  modelo->copiarIdentificador();
  enEspanol();
  EXPECT_EQ(panel.ayudaAjustes(), "Ajustes (⌘,)");
  EXPECT_EQ(panel.nombreAjustes(), "Ajustes");
  EXPECT_EQ(panel.terminal(), "Uno (la única)");
  EXPECT_EQ(panel.banda(), (std::vector<LineaDeBanda>{{LineaDeBanda::Clase::aviso, "Copied: a"}}));
}

TEST_F(PanelViewTest, lasFlechasMuevenLaSeleccion) {
  cargar({sesionDe("a"), sesionDe("b")});
  EXPECT_TRUE(panel.tecla({Tecla::abajo}));
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
  EXPECT_TRUE(panel.tecla({Tecla::arriba}));
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
}

TEST_F(PanelViewTest, unRetornoAbreUnaVez) {
  cargar({sesionDe("a")});
  corre(reapertura("a"), 0, "");
  EXPECT_TRUE(panel.tecla({Tecla::retorno}));
  EXPECT_TRUE(panel.tecla({Tecla::retorno, 0, Modificador::ninguno, true}));
  despachador.correrTodo();
  EXPECT_EQ(ejecutor.llamadas(), (Llamadas{reapertura("a")}));
}

TEST_F(PanelViewTest, unClicEnUnaFilaLaSeleccionaYLaAbre) {
  cargar({sesionDe("a"), sesionDe("b")});
  corre(reapertura("b"), 0, "");
  panel.clicEnFila(1);
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
  despachador.correrTodo();
  EXPECT_EQ(ejecutor.llamadas(), (Llamadas{reapertura("b")}));
}

TEST_F(PanelViewTest, unClicEnUnaFilaQueYaNoEstaNoAbreNada) {
  cargar({sesionDe("a"), sesionDe("b")});
  cargar({sesionDe("a")});
  panel.clicEnFila(1);
  despachador.correrTodo();
  EXPECT_TRUE(ejecutor.llamadas().empty());
}

TEST_F(PanelViewTest, escapeEscondeSinBorrarLaBusqueda) {
  cargar({sesionDe("a", "alfa")});
  modelo->escribirConsulta("alf");
  EXPECT_TRUE(panel.tecla({Tecla::escape}));
  EXPECT_EQ(escondidas, 1);
  EXPECT_EQ(*modelo->consulta(), "alf");
}

TEST_F(PanelViewTest, elAtajoDeRefrescarDuranteUnaCargaNoCambiaNada) {
  modelo->refrescar();
  int avisos = 0;
  auto const suscripciones = modelo->observar([&] { ++avisos; });
  EXPECT_TRUE(atajo(U'r'));
  EXPECT_EQ(avisos, 0);
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(PanelViewTest, elAtajoDeRefrescarCarga) {
  EXPECT_TRUE(atajo(U'r'));
  EXPECT_TRUE(*modelo->refrescando());
}

TEST_F(PanelViewTest, elAtajoDeCopiarCopiaYSinSeleccionNoHaceNada) {
  EXPECT_TRUE(atajo(U'c'));
  EXPECT_EQ(portapapeles.copias, 0);
  cargar({sesionDe("a")});
  EXPECT_TRUE(atajo(U'c'));
  EXPECT_EQ(portapapeles.contenido, "a");
}

TEST_F(PanelViewTest, elAtajoDeSalirSale) {
  EXPECT_TRUE(atajo(U'q'));
  EXPECT_EQ(salidas, 1);
}

TEST_F(PanelViewTest, elAtajoYElBotonDeAjustesAbrenLaVentana) {
  EXPECT_TRUE(atajo(U','));
  int abiertas = 0;
  estado.abrirLaVentanaDeAjustes = [&] { ++abiertas; };
  EXPECT_TRUE(atajo(U','));
  panel.clicEnAjustes();
  EXPECT_EQ(abiertas, 2);
}

TEST_F(PanelViewTest, loQueNoEsSuyoPasaDeLargo) {
  EXPECT_FALSE(atajo(U'v'));
  EXPECT_FALSE(panel.tecla({Tecla::caracter, U'r'}));
}

TEST_F(PanelViewTest, cienMilSesionesNoCuestanHastaQueSeDibujan) {
  std::vector<Session> muchas(100'000, sesionDe("a"));
  modelo->escribirResultado({std::move(muchas), {}});
  EXPECT_EQ(panel.cantidadDeFilas(), 100'000U);
  EXPECT_EQ(panel.fila(99'999).id, "claude:a");
}

TEST_F(PanelViewTest, loQueCoincideSeMarcaEnElTituloYEnElDirectorio) {
  cargar({sesionDe("a", "Señales del parser", "/Users/ana/src/senales")});
  panel.escribirConsulta("SEÑAL ana");
  auto const fila = panel.fila(0);
  EXPECT_EQ(fila.marcasDeTitulo, (std::vector<Tramo>{{0, 6}}));
  EXPECT_EQ(fila.marcasDeRuta, (std::vector<Tramo>{{0, 1}, {6, 11}}));
  panel.escribirConsulta("");
  EXPECT_TRUE(panel.fila(0).marcasDeTitulo.empty());
  EXPECT_TRUE(panel.fila(0).marcasDeRuta.empty());
}

TEST_F(PanelViewTest, laFilaQueEstaPorSuUltimoPromptMuestraDondeCoincide) {
  auto sesion = sesionDe("a", "una");
  sesion.ultimoPrompt = "compila y prueba todo";
  cargar({sesion});
  EXPECT_EQ(panel.trozoDelPrompt(0), "");
  panel.escribirConsulta("PRUEBA");
  EXPECT_EQ(panel.trozoDelPrompt(0), "compila y prueba todo");
  panel.escribirConsulta("una");
  EXPECT_EQ(panel.trozoDelPrompt(0), "");
}

std::vector<EntradaDelMenuDeFila::Clase> clasesDe(std::vector<EntradaDelMenuDeFila> const& menu) {
  std::vector<EntradaDelMenuDeFila::Clase> clases;
  for (auto const& [clase, titulo] : menu) clases.push_back(clase);
  return clases;
}

using ClaseDelMenu = EntradaDelMenuDeFila::Clase;

TEST_F(PanelViewTest, elMenuDeUnaFilaLaEligeSinAbrirla) {
  panel.acciones.mostrarDirectorio = [](std::string const&) {};
  cargar({sesionDe("a"), sesionDe("b")});
  EXPECT_EQ(clasesDe(panel.abrirMenuDeFila(1)),
            (std::vector{ClaseDelMenu::abrir, ClaseDelMenu::copiarIdentificador, ClaseDelMenu::copiarComando,
                         ClaseDelMenu::copiarDirectorio, ClaseDelMenu::mostrarDirectorio}));
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
  EXPECT_EQ(despachador.deFondo(), 0U);
  EXPECT_TRUE(panel.abrirMenuDeFila(2).empty());
}

TEST_F(PanelViewTest, enElMenuNoEstaLoQueNoSePuede) {
  auto sinId = sesionDe("a");
  sinId.sessionId.reset();
  cargar({sinId, sesionDe("b", "una",
                          "/con\x1b"
                          "control")});
  EXPECT_EQ(clasesDe(panel.abrirMenuDeFila(0)),
            (std::vector{ClaseDelMenu::abrir, ClaseDelMenu::copiarDirectorio}));
  EXPECT_EQ(
      clasesDe(panel.abrirMenuDeFila(1)),
      (std::vector{ClaseDelMenu::abrir, ClaseDelMenu::copiarIdentificador, ClaseDelMenu::copiarDirectorio}));
}

TEST_F(PanelViewTest, elMenuHablaLosDosIdiomas) {
  cargar({sesionDe("a")});
  EXPECT_EQ(panel.abrirMenuDeFila(0).front().titulo, "Open");
  enEspanol();
  EXPECT_EQ(panel.abrirMenuDeFila(0).front().titulo, "Abrir");
}

TEST_F(PanelViewTest, loElegidoEnElMenuSeHaceConSuSesionDondeEsteYa) {
  std::string mostrado;
  panel.acciones.mostrarDirectorio = [&](std::string const& cual) { mostrado = cual; };
  cargar({sesionDe("a", "una", "/a"), sesionDe("b", "otra", "/b c")});
  auto const id = panel.idDeFila(1);
  cargar({sesionDe("b", "otra", "/b c"), sesionDe("a", "una", "/a")});
  panel.elegirEnElMenu(id, ClaseDelMenu::copiarIdentificador);
  EXPECT_EQ(portapapeles.contenido, "b");
  panel.elegirEnElMenu(id, ClaseDelMenu::copiarComando);
  EXPECT_EQ(portapapeles.contenido, "cd '/b c' && claude -r 'b'");
  EXPECT_EQ(*modelo->avisoDeApertura(), "Copied: cd '/b c' && claude -r 'b'");
  panel.elegirEnElMenu(id, ClaseDelMenu::copiarDirectorio);
  EXPECT_EQ(portapapeles.contenido, "/b c");
  panel.elegirEnElMenu(id, ClaseDelMenu::mostrarDirectorio);
  EXPECT_EQ(mostrado, "/b c");
  panel.elegirEnElMenu(id, ClaseDelMenu::abrir);
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(PanelViewTest, loElegidoParaUnaSesionQueYaNoEstaNoSeHace) {
  cargar({sesionDe("a")});
  auto const id = panel.idDeFila(0);
  cargar({sesionDe("b")});
  panel.elegirEnElMenu(id, ClaseDelMenu::copiarIdentificador);
  panel.elegirEnElMenu(id, ClaseDelMenu::abrir);
  EXPECT_EQ(portapapeles.copias, 0);
  EXPECT_EQ(despachador.deFondo(), 0U);
}

}  // namespace
}  // namespace zorve
