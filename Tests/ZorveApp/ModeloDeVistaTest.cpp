#include "ZorveApp/ModeloDeVista.h"

#include <limits>

#include "Mesa.h"

namespace zorve {
namespace {

class ModeloDeVistaTest : public Mesa {
 protected:
  std::vector<std::string> titulos() const {
    std::vector<std::string> vistos;
    for (auto const i : modelo->visibles()) vistos.push_back(modelo->resultado()->sesiones[i].titulo);
    return vistos;
  }
  void tresSesiones() { cargar({sesionDe("a", "alfa"), sesionDe("b", "beta"), sesionDe("c", "gamma")}); }
};

using Titulos = std::vector<std::string>;

TEST_F(ModeloDeVistaTest, naceVacioYSinCargar) {
  EXPECT_EQ(*modelo->resultado(), IndexResult{});
  EXPECT_EQ(*modelo->consulta(), "");
  EXPECT_EQ(*modelo->seleccion(), std::nullopt);
  EXPECT_EQ(*modelo->errorDeApertura(), std::nullopt);
  EXPECT_EQ(*modelo->avisoDeApertura(), std::nullopt);
  EXPECT_FALSE(*modelo->refrescando());
  EXPECT_EQ(*modelo->terminal(), std::nullopt);
  EXPECT_EQ(*modelo->errorDeTerminal(), std::nullopt);
  EXPECT_EQ(despachador.deFondo(), 0U);
}

TEST_F(ModeloDeVistaTest, alCargarSeleccionaLaPrimera) {
  tresSesiones();
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
  EXPECT_EQ(modelo->seleccionada()->titulo, "alfa");
}

TEST_F(ModeloDeVistaTest, unaConsultaDeEspaciosYTabuladoresMuestraTodoEnSuOrden) {
  tresSesiones();
  modelo->escribirConsulta("  \t \n\u2003");
  EXPECT_EQ(titulos(), (Titulos{"alfa", "beta", "gamma"}));
}

TEST_F(ModeloDeVistaTest, lasPalabrasSePlieganYTodasHanDeEstar) {
  cargar({sesionDe("1", "cafe", "/home/ana/Project"), sesionDe("2", "cafe", "/x"),
          sesionDe("3", "té", "/Project")});
  modelo->escribirConsulta("Café proj");
  EXPECT_EQ(titulos(), (Titulos{"cafe"}));
}

TEST_F(ModeloDeVistaTest, buscaTambienEnElUltimoPrompt) {
  auto conPrompt = sesionDe("1", "una");
  conPrompt.ultimoPrompt = "arregla el ANALIZADOR";
  cargar({conPrompt, sesionDe("2", "otra")});
  modelo->escribirConsulta("analizador");
  EXPECT_EQ(titulos(), (Titulos{"una"}));
}

TEST_F(ModeloDeVistaTest, unaPalabraQueSoloEstaEnElIdentificadorNoEncuentraNada) {
  cargar({sesionDe("abcdef", "alfa")});
  modelo->escribirConsulta("abcdef");
  EXPECT_TRUE(titulos().empty());
}

TEST_F(ModeloDeVistaTest, laReglaDePlegadoEsLaQueSeLeDa) {
  auto con = colaboradores();
  con.regla = ReglaDePlegado::turca;
  ModeloDeVista turco{std::move(con)};
  turco.escribirResultado({{sesionDe("1", "ISPARTA"), sesionDe("2", "İZMİR")}, {}});
  turco.escribirConsulta("ıs");
  ASSERT_EQ(turco.visibles().size(), 1U);
  EXPECT_EQ(turco.seleccionada()->titulo, "ISPARTA");
  turco.escribirConsulta("iz");
  ASSERT_EQ(turco.visibles().size(), 1U);
  EXPECT_EQ(turco.seleccionada()->titulo, "İZMİR");
}

TEST_F(ModeloDeVistaTest, siLaBusquedaOcultaLaSeleccionPasaALaPrimeraVisible) {
  tresSesiones();
  modelo->escribirConsulta("gam");
  EXPECT_EQ(*modelo->seleccion(), "claude:c");
}

TEST_F(ModeloDeVistaTest, siLaBusquedaConservaLaSeleccionSeQueda) {
  tresSesiones();
  modelo->mover(1);
  modelo->escribirConsulta("a");
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
}

TEST_F(ModeloDeVistaTest, sinFilasNoHaySeleccion) {
  tresSesiones();
  modelo->escribirConsulta("nada de esto");
  EXPECT_EQ(*modelo->seleccion(), std::nullopt);
  EXPECT_EQ(modelo->seleccionada(), nullptr);
  modelo->escribirConsulta("");
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
}

TEST_F(ModeloDeVistaTest, moverSeDetieneEnLosDosExtremos) {
  tresSesiones();
  modelo->mover(-1);
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
  modelo->mover(1);
  modelo->mover(1);
  EXPECT_EQ(*modelo->seleccion(), "claude:c");
  modelo->mover(1);
  EXPECT_EQ(*modelo->seleccion(), "claude:c");
}

TEST_F(ModeloDeVistaTest, unPasoEnormeTambienSeDetiene) {
  tresSesiones();
  modelo->mover(std::numeric_limits<int>::max());
  EXPECT_EQ(*modelo->seleccion(), "claude:c");
  modelo->mover(std::numeric_limits<int>::min());
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
}

TEST_F(ModeloDeVistaTest, moverConLaListaVaciaNoHaceNada) {
  modelo->mover(1);
  EXPECT_EQ(*modelo->seleccion(), std::nullopt);
}

TEST_F(ModeloDeVistaTest, moverRecorreSoloLoVisible) {
  cargar({sesionDe("a", "uno"), sesionDe("b", "dos"), sesionDe("c", "uno más"), sesionDe("d", "dos más")});
  modelo->escribirConsulta("dos");
  EXPECT_EQ(titulos(), (Titulos{"dos", "dos más"}));
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
  modelo->mover(1);
  EXPECT_EQ(*modelo->seleccion(), "claude:d");
}

TEST_F(ModeloDeVistaTest, seleccionarTomaUnaFilaVisible) {
  tresSesiones();
  modelo->seleccionar("claude:b");
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
}

TEST_F(ModeloDeVistaTest, seleccionarLoQueNoSeVeNoHaceNada) {
  tresSesiones();
  modelo->escribirConsulta("alfa");
  for (auto const* id : {"claude:b", "a", "claude:", ""}) modelo->seleccionar(id);
  EXPECT_EQ(*modelo->seleccion(), "claude:a");
}

TEST_F(ModeloDeVistaTest, laSeleccionEsDeLaSesionYNoDeSuLugar) {
  tresSesiones();
  modelo->mover(1);
  cargar({sesionDe("n", "nueva"), sesionDe("b", "beta"), sesionDe("a", "alfa")});
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
  EXPECT_EQ(modelo->posicionSeleccionada(), 1U);
}

TEST_F(ModeloDeVistaTest, siLaSesionSeleccionadaDesapareceSeTomaLaPrimera) {
  tresSesiones();
  modelo->mover(2);
  cargar({sesionDe("n", "nueva"), sesionDe("a", "alfa")});
  EXPECT_EQ(*modelo->seleccion(), "claude:n");
}

TEST_F(ModeloDeVistaTest, laBusquedaSigueTrasUnaCarga) {
  tresSesiones();
  modelo->escribirConsulta("beta");
  cargar({sesionDe("n", "otra beta"), sesionDe("b", "beta"), sesionDe("a", "alfa")});
  EXPECT_EQ(titulos(), (Titulos{"otra beta", "beta"}));
  EXPECT_EQ(*modelo->seleccion(), "claude:b");
}

TEST_F(ModeloDeVistaTest, unaSesionSinIdentificadorSeSeleccionaPorSuDirectorio) {
  auto sin = sesionDe("", "sin", "/solo/cwd");
  sin.sessionId = std::nullopt;
  cargar({sesionDe("a"), sin});
  modelo->mover(1);
  EXPECT_EQ(*modelo->seleccion(), "claude:/solo/cwd");
  EXPECT_EQ(modelo->seleccionada()->titulo, "sin");
}

TEST_F(ModeloDeVistaTest, copiarPoneElIdentificadorEnElPortapapelesYLoDice) {
  tresSesiones();
  modelo->mover(1);
  modelo->copiarIdentificador();
  EXPECT_EQ(portapapeles.contenido, "b");
  EXPECT_EQ(*modelo->avisoDeApertura(), "Copied: b");
}

TEST_F(ModeloDeVistaTest, copiarUnaSesionSinIdentificadorCopiaSuDirectorio) {
  auto sin = sesionDe("", "sin", "/solo/cwd");
  sin.sessionId = std::nullopt;
  cargar({sin});
  modelo->copiarIdentificador();
  EXPECT_EQ(portapapeles.contenido, "/solo/cwd");
  EXPECT_EQ(*modelo->avisoDeApertura(), "Copied: /solo/cwd");
}

TEST_F(ModeloDeVistaTest, copiarEnEspanol) {
  enEspanol();
  tresSesiones();
  modelo->copiarIdentificador();
  EXPECT_EQ(*modelo->avisoDeApertura(), "Copiado: a");
}

TEST_F(ModeloDeVistaTest, copiarSinSeleccionNoHaceNada) {
  modelo->copiarIdentificador();
  EXPECT_EQ(portapapeles.copias, 0);
  EXPECT_EQ(*modelo->avisoDeApertura(), std::nullopt);
}

TEST_F(ModeloDeVistaTest, losMensajesVanEnSuOrdenConElNombreDeSuFuente) {
  terminalesConocidas({});
  hacerDeNuevo();
  auto sinId = sesionDe("");
  sinId.sessionId = std::nullopt;
  enDisco({sinId}, {{IndexSource::history, "h"},
                    {IndexSource::transcripts, "t"},
                    {IndexSource::sessions, "s"},
                    {IndexSource::launcher, "l"}});
  modelo->refrescar();
  despachador.correrTodo();
  abrir();
  auto const mensajes = modelo->mensajesDeError();
  ASSERT_EQ(mensajes.size(), 6U);
  EXPECT_EQ(mensajes[0], "history: h");
  EXPECT_EQ(mensajes[1], "transcripts: t");
  EXPECT_EQ(mensajes[2], "sessions: s");
  EXPECT_EQ(mensajes[3], "launcher: l");
  EXPECT_TRUE(mensajes[4].starts_with("Could not resolve the terminal: "));
  EXPECT_EQ(mensajes[5], **modelo->errorDeApertura());
}

TEST_F(ModeloDeVistaTest, cadaPropiedadAvisaSoloDeCambiosReales) {
  int avisos = 0;
  auto const suscripciones = modelo->observar([&] { ++avisos; });
  modelo->escribirConsulta("");
  modelo->mover(1);
  EXPECT_EQ(avisos, 0);
  modelo->escribirConsulta("x");
  EXPECT_EQ(avisos, 1);
}

TEST_F(ModeloDeVistaTest, unaCargaQueNoCambiaNadaSoloAvisaDeQueCarga) {
  tresSesiones();
  int avisos = 0;
  auto const suscripciones = modelo->observar([&] { ++avisos; });
  modelo->refrescar();
  despachador.correrTodo();
  EXPECT_EQ(avisos, 2);
}

TEST_F(ModeloDeVistaTest, alOirUnCambioDeConsultaLaListaYaEsLaNueva) {
  tresSesiones();
  std::size_t vistas = 99;
  auto const suscripcion = modelo->consulta().observar([&] { vistas = modelo->visibles().size(); });
  modelo->escribirConsulta("beta");
  EXPECT_EQ(vistas, 1U);
}

TEST_F(ModeloDeVistaTest, alOirUnResultadoNuevoLaListaYaEsLaNueva) {
  std::size_t vistas = 99;
  auto const suscripcion = modelo->resultado().observar([&] { vistas = modelo->visibles().size(); });
  tresSesiones();
  EXPECT_EQ(vistas, 3U);
}

class PieTest : public Mesa {};

TEST_F(PieTest, sinTerminalLoDice) {
  EXPECT_EQ(modelo->terminalParaElPie(), "no terminal");
  enEspanol();
  EXPECT_EQ(modelo->terminalParaElPie(), "sin terminal");
}

TEST_F(PieTest, laElegidaVaSola) {
  *eleccion = "uno";
  cargar({});
  EXPECT_EQ(modelo->terminalParaElPie(), "Uno");
}

TEST_F(PieTest, laDelSistemaLoDice) {
  *manejador = "uno";
  cargar({});
  EXPECT_EQ(modelo->terminalParaElPie(), "Uno (the system's)");
  enEspanol();
  EXPECT_EQ(modelo->terminalParaElPie(), "Uno (del sistema)");
}

TEST_F(PieTest, laUnicaLoDice) {
  cargar({});
  EXPECT_EQ(modelo->terminalParaElPie(), "Uno (the only one)");
  enEspanol();
  EXPECT_EQ(modelo->terminalParaElPie(), "Uno (la única)");
}

}  // namespace
}  // namespace zorve
