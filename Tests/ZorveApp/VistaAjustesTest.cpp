#include "ZorveApp/VistaAjustes.h"

#include "MesaDeAjustes.h"

namespace zorve {
namespace {

class VistaAjustesTest : public MesaDeAjustes {
 protected:
  using Notas = std::vector<std::optional<std::string>>;

  VistaAjustesTest() { vista = std::make_unique<VistaAjustes>(*modelo, idioma, Modificador::mando); }

  void conVersion(std::optional<std::string> version) {
    hacerDeNuevo(std::move(version));
    vista = std::make_unique<VistaAjustes>(*modelo, idioma, Modificador::mando);
  }
  std::vector<Opcion> terminales() const {
    auto contenido = vista->terminal();
    return contenido.grupos.empty() ? std::vector<Opcion>{} : contenido.grupos.front().opciones;
  }
  std::vector<bool> marcas() const {
    std::vector<bool> todas;
    for (auto const& opcion : terminales()) todas.push_back(opcion.marcada);
    return todas;
  }
  Notas notas() const {
    Notas todas;
    for (auto const& opcion : terminales()) todas.push_back(opcion.nota);
    return todas;
  }
  void tocar(std::size_t fila) {
    terminales().at(fila).accion();
    despachador.correrTodo();
  }

  std::unique_ptr<VistaAjustes> vista;
};

using Marcas = std::vector<bool>;

TEST_F(VistaAjustesTest, alAparecerCarga) {
  vista->aparecer();
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(VistaAjustesTest, lasSeccionesTienenTituloYSimbolo) {
  EXPECT_EQ(vista->secciones(),
            (std::vector<FilaDeSeccion>{{SeccionDeAjustes::general, "General", "gearshape", true},
                                        {SeccionDeAjustes::terminal, "Terminal", "terminal", false},
                                        {SeccionDeAjustes::acercaDe, "About", "info.circle", false}}));
  enEspanol();
  EXPECT_EQ(vista->secciones()[0].titulo, "General");
  EXPECT_EQ(vista->secciones()[1].titulo, "Terminal");
  EXPECT_EQ(vista->secciones()[2].titulo, "Acerca de");
}

TEST_F(VistaAjustesTest, unClicEligeLaSeccion) {
  vista->clicEnSeccion(SeccionDeAjustes::acercaDe);
  EXPECT_EQ(*modelo->seccion(), SeccionDeAjustes::acercaDe);
  EXPECT_FALSE(vista->secciones()[0].elegida);
  EXPECT_TRUE(vista->secciones()[2].elegida);
}

TEST_F(VistaAjustesTest, quienLaObservaOyeElModeloYElIdiomaHastaQueTermina) {
  int cambios = 0;
  auto suscripciones = vista->observar([&] { ++cambios; });
  vista->clicEnSeccion(SeccionDeAjustes::acercaDe);
  EXPECT_EQ(vista->seccion(), SeccionDeAjustes::acercaDe);
  EXPECT_EQ(cambios, 1);
  enEspanol();
  EXPECT_EQ(cambios, 2);
  suscripciones.clear();
  vista->clicEnSeccion(SeccionDeAjustes::general);
  EXPECT_EQ(cambios, 2);
}

TEST_F(VistaAjustesTest, generalTieneInicioEIdioma) {
  auto const contenido = vista->general();
  ASSERT_EQ(contenido.grupos.size(), 2U);
  EXPECT_EQ(contenido.grupos[0].titulo, "STARTUP");
  EXPECT_EQ(contenido.grupos[1].titulo, "LANGUAGE");
  enEspanol();
  EXPECT_EQ(vista->general().grupos[0].titulo, "INICIO");
  EXPECT_EQ(vista->general().grupos[1].titulo, "IDIOMA");
}

TEST_F(VistaAjustesTest, elArranqueEsUnCuadroSinNotaQueSigueAlEstado) {
  auto const opcion = vista->general().grupos[0].opciones.at(0);
  EXPECT_EQ(opcion.titulo, "Open Zorve at login");
  EXPECT_EQ(opcion.nota, std::nullopt);
  EXPECT_TRUE(opcion.cuadro);
  EXPECT_FALSE(opcion.marcada);
  opcion.accion();
  EXPECT_TRUE(inicio.encendido);
  EXPECT_TRUE(vista->general().grupos[0].opciones.at(0).marcada);
}

TEST_F(VistaAjustesTest, losIdiomasVanConSuNombrePropioYElVigenteMarcado) {
  auto const opciones = vista->general().grupos[1].opciones;
  ASSERT_EQ(opciones.size(), 2U);
  EXPECT_EQ(opciones[0].titulo, "English");
  EXPECT_EQ(opciones[1].titulo, "Español");
  EXPECT_TRUE(opciones[0].marcada);
  EXPECT_FALSE(opciones[1].marcada);
  EXPECT_FALSE(opciones[0].cuadro);
  EXPECT_FALSE(opciones[1].cuadro);
}

TEST_F(VistaAjustesTest, elegirUnIdiomaCambiaLosTextosDeLaVentana) {
  vista->general().grupos[1].opciones[1].accion();
  auto const grupos = vista->general().grupos;
  EXPECT_EQ(grupos[0].opciones[0].titulo, "Abrir Zorve al iniciar sesión");
  EXPECT_EQ(grupos[1].opciones[0].titulo, "English");
  EXPECT_EQ(grupos[1].opciones[1].titulo, "Español");
  EXPECT_TRUE(grupos[1].opciones[1].marcada);
}

TEST_F(VistaAjustesTest, antesDeLaPrimeraCargaNoSeDiceNadaDeTerminales) {
  EXPECT_TRUE(vista->terminal().grupos.empty());
  EXPECT_EQ(vista->terminal().texto, "");
}

TEST_F(VistaAjustesTest, sinTerminalesHayUnSoloTexto) {
  conocidas.clear();
  conVersion("1");
  cargar();
  EXPECT_TRUE(vista->terminal().grupos.empty());
  EXPECT_EQ(vista->terminal().texto, "No supported terminal was found on this Mac.");
  enEspanol();
  EXPECT_EQ(vista->terminal().texto, "No se encontró ninguna terminal compatible en esta Mac.");
}

TEST_F(VistaAjustesTest, lasTerminalesVanTrasLaAutomaticaEnSuOrdenYConMarcaRedonda) {
  cargar();
  auto const opciones = terminales();
  ASSERT_EQ(opciones.size(), 3U);
  EXPECT_EQ(vista->terminal().grupos.front().titulo, "");
  EXPECT_EQ(opciones[0].titulo, "Whichever Zorve picks");
  EXPECT_EQ(opciones[1].titulo, "Uno");
  EXPECT_EQ(opciones[2].titulo, "Dos");
  for (auto const& opcion : opciones) EXPECT_FALSE(opcion.cuadro);
}

TEST_F(VistaAjustesTest, sinEleccionNiManejadorLaAutomaticaSeMarcaSinNotaYLaBandaLoCuenta) {
  cargar();
  EXPECT_EQ(marcas(), (Marcas{true, false, false}));
  EXPECT_EQ(notas()[0], std::nullopt);
  EXPECT_EQ(vista->banda(), variasInstaladas);
}

TEST_F(VistaAjustesTest, laNotaDeLaAutomaticaDiceLaDelSistema) {
  *manejador = "com.uno";
  cargar();
  EXPECT_EQ(notas(), (Notas{"today: Uno, the system's", std::nullopt, "cannot focus"}));
  enEspanol();
  EXPECT_EQ(notas(), (Notas{"hoy: Uno, la del sistema", std::nullopt, "no puede enfocar"}));
}

TEST_F(VistaAjustesTest, laNotaDeLaAutomaticaDiceLaUnica) {
  conocidas.pop_back();
  conVersion("1");
  cargar();
  EXPECT_EQ(notas()[0], "today: Uno, the only one");
  enEspanol();
  EXPECT_EQ(notas()[0], "hoy: Uno, la única");
}

TEST_F(VistaAjustesTest, conUnaEleccionLaAutomaticaNoLlevaNota) {
  guardada("com.uno");
  cargar();
  EXPECT_EQ(notas()[0], std::nullopt);
}

TEST_F(VistaAjustesTest, tocarUnaTerminalLaGuardaLaMarcaYQuitaLaBanda) {
  cargar();
  tocar(2);
  EXPECT_EQ(eleccionGuardada(preferencias), "com.dos");
  EXPECT_EQ(marcas(), (Marcas{false, false, true}));
  EXPECT_EQ(vista->banda(), std::nullopt);
}

TEST_F(VistaAjustesTest, tocarLaAutomaticaQuitaLaEleccion) {
  guardada("com.dos");
  cargar();
  tocar(0);
  EXPECT_EQ(eleccionGuardada(preferencias), std::nullopt);
  EXPECT_EQ(marcas(), (Marcas{true, false, false}));
}

TEST_F(VistaAjustesTest, unaEleccionQueYaNoEstaNoMarcaNadaYLaBandaLoDice) {
  guardada("com.tres");
  cargar();
  EXPECT_EQ(marcas(), (Marcas{false, false, false}));
  EXPECT_EQ(vista->banda(),
            "The chosen terminal (com.tres) is no longer installed. Installed now: Uno, Dos.");
}

TEST_F(VistaAjustesTest, unaEleccionEnOtrasLetrasResuelvePeroNoMarca) {
  guardada("COM.Uno");
  cargar();
  EXPECT_EQ(marcas(), (Marcas{false, false, false}));
  EXPECT_EQ(vista->banda(), std::nullopt);
  ASSERT_TRUE(*modelo->resuelta());
  EXPECT_EQ((*modelo->resuelta())->terminal->nombre(), "Uno");
}

TEST_F(VistaAjustesTest, sinFalloNoHayBanda) { EXPECT_EQ(vista->banda(), std::nullopt); }

TEST_F(VistaAjustesTest, laBandaDelArranqueSigueAlIdioma) {
  inicio.fallo = "boom";
  modelo->alternarArranque();
  EXPECT_EQ(vista->banda(),
            "Could not change the launch-at-login setting: boom. Usually because Zorve.app is not in "
            "/Applications.");
  enEspanol();
  EXPECT_EQ(vista->banda(),
            "No se pudo cambiar el arranque automático: boom. Suele ser porque Zorve.app no está en "
            "/Applications.");
}

TEST_F(VistaAjustesTest, acercaDeDiceLaVersionYComoSalir) {
  EXPECT_EQ(vista->acercaDe().nombreYVersion, "Zorve 1.2");
  EXPECT_EQ(vista->acercaDe().paraCerrar, "To quit Zorve: ⌘Q");
  enEspanol();
  EXPECT_EQ(vista->acercaDe().paraCerrar, "Para cerrar Zorve: ⌘Q");
}

TEST_F(VistaAjustesTest, sinVersionAcercaDeLoDiceEnElIdiomaDelMomento) {
  conVersion(std::nullopt);
  EXPECT_EQ(vista->acercaDe().nombreYVersion, "Zorve unpackaged");
  enEspanol();
  EXPECT_EQ(vista->acercaDe().nombreYVersion, "Zorve sin empaquetar");
}

TEST_F(VistaAjustesTest, lasTeclasCierranYSalen) {
  int cierres = 0;
  int salidas = 0;
  vista->acciones = {.cerrar = [&] { ++cierres; }, .salir = [&] { ++salidas; }};
  EXPECT_TRUE(vista->tecla({Tecla::escape}));
  EXPECT_TRUE(vista->tecla({Tecla::caracter, U'w', Modificador::mando}));
  EXPECT_TRUE(vista->tecla({Tecla::caracter, U'q', Modificador::mando}));
  EXPECT_EQ(cierres, 2);
  EXPECT_EQ(salidas, 1);
  EXPECT_FALSE(vista->tecla({Tecla::caracter, U'w', Modificador::mando | Modificador::mayusculas}));
  EXPECT_EQ(cierres, 2);
}

}  // namespace
}  // namespace zorve
