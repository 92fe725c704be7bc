#include "ZorveApp/ModeloDeAjustes.h"

#include <functional>
#include <stdexcept>
#include <vector>

#include "MesaDeAjustes.h"

namespace zorve {
namespace {

using Caso = FalloDeAjustes::Caso;

class ModeloDeAjustesTest : public MesaDeAjustes {};

TEST_F(ModeloDeAjustesTest, naceSinSaberNada) {
  EXPECT_EQ(*modelo->seccion(), SeccionDeAjustes::general);
  EXPECT_TRUE(modelo->instaladas()->empty());
  EXPECT_EQ(*modelo->eleccion(), std::nullopt);
  EXPECT_EQ(*modelo->resuelta(), std::nullopt);
  EXPECT_FALSE(*modelo->arranqueActivo());
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
  EXPECT_FALSE(*modelo->cargado());
}

TEST_F(ModeloDeAjustesTest, cadaCargaPreguntaUnaVezALaMaquinaYUnaALasPreferenciasEnSegundoPlano) {
  modelo->cargar();
  EXPECT_EQ(miradas + lecturas, 0) << "not on the main thread";
  despachador.correrTodo();
  EXPECT_EQ(miradas, 1);
  EXPECT_EQ(lecturas, 1);
}

TEST_F(ModeloDeAjustesTest, lasSeccionesVanEnSuOrden) {
  EXPECT_EQ(todosLosCasos<SeccionDeAjustes>(),
            (std::array{SeccionDeAjustes::general, SeccionDeAjustes::terminal, SeccionDeAjustes::acercaDe}));
}

TEST_F(ModeloDeAjustesTest, cargarPreguntaTodoMenosLaSeccion) {
  guardada("com.dos");
  inicio.encendido = true;
  modelo->escribirSeccion(SeccionDeAjustes::terminal);
  cargar();
  EXPECT_EQ(*modelo->seccion(), SeccionDeAjustes::terminal);
  EXPECT_EQ(*modelo->instaladas(), conocidas);
  EXPECT_EQ(*modelo->eleccion(), "com.dos");
  EXPECT_TRUE(*modelo->arranqueActivo());
  ASSERT_TRUE(*modelo->resuelta());
  EXPECT_EQ((*modelo->resuelta())->terminal->nombre(), "Dos");
  EXPECT_EQ((*modelo->resuelta())->origen, OrigenDeLaTerminal::eleccionDeLaPersona);
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
  EXPECT_TRUE(*modelo->cargado());
}

TEST_F(ModeloDeAjustesTest, soloCuentanLasInstaladas) {
  conocidas[0] = dobles::terminalFija({.identificador = "com.uno", .nombre = "Uno", .instalada = false});
  hacerDeNuevo();
  cargar();
  EXPECT_EQ(*modelo->instaladas(), (std::vector{conocidas[1]}));
}

TEST_F(ModeloDeAjustesTest, sinPoderDecidirElFalloEsElDelCatalogo) {
  cargar();
  EXPECT_EQ(*modelo->resuelta(), std::nullopt);
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::deNucleo, variasInstaladas}));
}

TEST_F(ModeloDeAjustesTest, otroFalloAlResolverEsTerminalDesconocida) {
  ModeloDeAjustes otro{
      {.terminales = {.conocidas = conocidas,
                      .sistema = []() -> RespuestaDelSistema { throw std::runtime_error{"boom"}; }},
       .preferencias = preferencias,
       .inicio = inicio,
       .idioma = idioma,
       .despachador = despachador}};
  otro.cargar();
  despachador.correrTodo();
  EXPECT_EQ(*otro.fallo(), (FalloDeAjustes{Caso::terminalDesconocida, "boom"}));
}

TEST_F(ModeloDeAjustesTest, laBandaDeCadaFallo) {
  Textos const en{Idioma::en};
  EXPECT_EQ((FalloDeAjustes{Caso::deNucleo, "x"}).banda(en), "x");
  EXPECT_EQ((FalloDeAjustes{Caso::terminalDesconocida, "x"}).banda(en), "Could not resolve the terminal: x");
  EXPECT_EQ((FalloDeAjustes{Caso::arranque, "x"}).banda(en),
            "Could not change the launch-at-login setting: x. Usually because Zorve.app is not in "
            "/Applications.");
}

TEST_F(ModeloDeAjustesTest, elegirUnaTerminalLaGuardaYQuitaElFallo) {
  cargar();
  ASSERT_TRUE(*modelo->fallo());
  elegirYCargar("com.dos");
  EXPECT_EQ(eleccionGuardada(preferencias), "com.dos");
  EXPECT_EQ(*modelo->eleccion(), "com.dos");
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, elegirLaAutomaticaQuitaLaClave) {
  guardada("com.dos");
  elegirYCargar(std::nullopt);
  EXPECT_EQ(eleccionGuardada(preferencias), std::nullopt);
  EXPECT_EQ(*modelo->eleccion(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, siNoSePuedeGuardarLaEleccionLaBandaLoDice) {
  *manejador = "com.uno";
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  elegirYCargar("com.dos");
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::deNucleo, "read-only"}));
  EXPECT_EQ(*modelo->eleccion(), std::nullopt);
  preferencias.fallarCon(std::nullopt);
  cargar();
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, elegirElIdiomaLoPoneEnVigor) {
  modelo->elegirIdioma(Idioma::es);
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, siNoSePuedeGuardarElIdiomaLaBandaLoDice) {
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  elegirYGuardar(Idioma::es);
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::deNucleo, "read-only"}));
}

TEST_F(ModeloDeAjustesTest, guardarElIdiomaQuitaLaBandaDeUnGuardadoFallido) {
  *manejador = "com.uno";
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  elegirYGuardar(Idioma::es);
  preferencias.fallarCon(std::nullopt);
  elegirYGuardar(Idioma::es);
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
  EXPECT_EQ(textoGuardado(preferencias, std::string{PreferenciaDeIdioma::clave}), "es");
}

TEST_F(ModeloDeAjustesTest, guardarElIdiomaQuitaTambienLaBandaDeUnaTerminalQueNoSeGuardo) {
  *manejador = "com.uno";
  preferencias.fallarCon(IndexError{IndexSource::launcher, "read-only"});
  elegirYCargar("com.dos");
  preferencias.fallarCon(std::nullopt);
  elegirYGuardar(Idioma::es);
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, guardarElIdiomaDejaLaBandaDeLoQueNoEraGuardar) {
  cargar();
  elegirYGuardar(Idioma::es);
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::deNucleo, variasInstaladas}));
}

TEST_F(ModeloDeAjustesTest, nadaSeGuardaEnElHiloPrincipal) {
  modelo->elegirIdioma(Idioma::es);
  modelo->elegirTerminal("com.dos");
  while (despachador.pasoPrincipal()) {
  }
  EXPECT_EQ(preferencias.cambios(), 0);
  despachador.correrTodo();
  EXPECT_EQ(preferencias.cambios(), 2);
}

TEST_F(ModeloDeAjustesTest, deDosEleccionesSeguidasQuedaLaUltimaCorraQuienCorraPrimero) {
  modelo->elegirTerminal("com.uno");
  modelo->elegirTerminal("com.dos");
  while (despachador.deFondo() + despachador.principales() > 0) {
    if (despachador.deFondo() > 0) despachador.pasoDeFondo(despachador.deFondo() - 1);
    while (despachador.pasoPrincipal()) {
    }
  }
  EXPECT_EQ(eleccionGuardada(preferencias), "com.dos");
  EXPECT_EQ(*modelo->eleccion(), "com.dos");
}

/// Settings of which one call, counted from 1, fails.
class PreferenciasQueFallan final : public Preferencias {
 public:
  explicit PreferenciasQueFallan(int cual) : cual_{cual} {}
  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(
      std::string const& clave) const override {
    if (toca()) return std::unexpected{fallo};
    return verdaderas_.leer(clave);
  }
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override {
    if (toca()) return std::unexpected{fallo};
    return verdaderas_.escribir(clave, valor);
  }
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override {
    if (toca()) return std::unexpected{fallo};
    return verdaderas_.quitar(clave);
  }
  [[nodiscard]] int llamadas() const { return llamadas_; }

  IndexError const fallo{IndexSource::launcher, "the disk went away"};

 private:
  bool toca() const { return ++llamadas_ == cual_; }

  dobles::PreferenciasEnMemoria verdaderas_;
  int cual_;
  mutable int llamadas_ = 0;
};

TEST_F(ModeloDeAjustesTest, enCualquierLlamadaUnFalloDeLasPreferenciasSeDiceYTrasElTodoSigue) {
  for (int cual = 1;; ++cual) {
    PreferenciasQueFallan rotas{cual};
    PreferenciaDeIdioma lengua{rotas};
    ModeloDeAjustes otro{{.terminales = {.conocidas = conocidas,
                                         .sistema = [] { return RespuestaDelSistema{"com.uno"}; },
                                         .eleccion = [&] { return leerLaEleccion(rotas); }},
                          .preferencias = rotas,
                          .inicio = inicio,
                          .idioma = lengua,
                          .despachador = despachador}};
    bool dicho = rotas.llamadas() == cual;
    for (auto const& paso : std::vector<std::function<void()>>{
             [&] { otro.cargar(); }, [&] { otro.elegirTerminal("com.dos"); },
             [&] { otro.elegirIdioma(Idioma::es); }, [&] { otro.elegirTerminal(std::nullopt); }}) {
      paso();
      despachador.correrTodo();
      dicho |= *otro.fallo() == FalloDeAjustes{Caso::deNucleo, "the disk went away"};
    }
    if (rotas.llamadas() < cual) break;
    EXPECT_TRUE(dicho) << "call " << cual;
    otro.elegirIdioma(Idioma::en);
    otro.elegirTerminal("com.dos");
    despachador.correrTodo();
    EXPECT_EQ(*otro.fallo(), std::nullopt) << "call " << cual;
    EXPECT_EQ(*otro.eleccion(), "com.dos") << "call " << cual;
    ASSERT_LT(cual, 100);
  }
}

TEST_F(ModeloDeAjustesTest, alternarElArranqueLoEnciendeYLoApaga) {
  modelo->alternarArranque();
  EXPECT_TRUE(inicio.encendido);
  EXPECT_TRUE(*modelo->arranqueActivo());
  modelo->alternarArranque();
  EXPECT_FALSE(inicio.encendido);
  EXPECT_FALSE(*modelo->arranqueActivo());
}

TEST_F(ModeloDeAjustesTest, siElArranqueFallaSeMuestraElEstadoReal) {
  cargar();
  inicio.fallo = "denied";
  modelo->alternarArranque();
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::arranque, "denied"}));
  EXPECT_FALSE(*modelo->arranqueActivo());
  inicio.encendido = true;
  modelo->alternarArranque();
  EXPECT_TRUE(*modelo->arranqueActivo());
}

TEST_F(ModeloDeAjustesTest, unArranqueQueResultaQuitaElFallo) {
  inicio.fallo = "denied";
  modelo->alternarArranque();
  inicio.fallo.reset();
  modelo->alternarArranque();
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, unaCargaBuenaQuitaElFalloDelArranque) {
  *manejador = "com.uno";
  inicio.fallo = "denied";
  modelo->alternarArranque();
  cargar();
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, unaCargaMalaSustituyeElFalloDelArranque) {
  inicio.fallo = "denied";
  modelo->alternarArranque();
  cargar();
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::deNucleo, variasInstaladas}));
}

TEST_F(ModeloDeAjustesTest, unFalloDelArranqueDuranteUnaCargaNoSePierdeAlAcabarEsta) {
  *manejador = "com.uno";
  inicio.fallo = "denied";
  modelo->cargar();
  modelo->alternarArranque();
  despachador.correrTodo();
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{Caso::arranque, "denied"}));
}

TEST_F(ModeloDeAjustesTest, deDosCargasALaVezCuentaLaUltima) {
  guardada("com.uno");
  modelo->cargar();
  elegirYCargar("com.dos");
  EXPECT_EQ(*modelo->eleccion(), "com.dos");
}

TEST_F(ModeloDeAjustesTest, deDosCargasQueAcabanAlRevesCuentaLaUltima) {
  guardada("com.uno");
  modelo->cargar();
  guardada("com.dos");
  modelo->cargar();
  ASSERT_TRUE(despachador.pasoDeFondo(1));
  guardada("com.uno");
  ASSERT_TRUE(despachador.pasoDeFondo(0));
  despachador.correrTodo();
  EXPECT_EQ(*modelo->eleccion(), "com.dos");
}

TEST_F(ModeloDeAjustesTest, elModeloPuedeDesaparecerMientrasCarga) {
  modelo->cargar();
  ASSERT_TRUE(despachador.pasoDeFondo());
  modelo.reset();
  EXPECT_TRUE(despachador.pasoPrincipal());
}

TEST_F(ModeloDeAjustesTest, unaCargaQueNoCambiaNadaNoAvisa) {
  cargar();
  int avisos = 0;
  auto const suscripciones = modelo->observar([&] { ++avisos; });
  cargar();
  EXPECT_EQ(avisos, 0);
}

TEST_F(ModeloDeAjustesTest, laVersionEsLaDelPaqueteOElTextoDelIdioma) {
  EXPECT_EQ(modelo->version(), "1.2");
  hacerDeNuevo(std::nullopt);
  EXPECT_EQ(modelo->version(), "unpackaged");
  enEspanol();
  EXPECT_EQ(modelo->version(), "sin empaquetar");
}

TEST_F(ModeloDeAjustesTest, loQueNoSePuedeLeerSeDiceAlCargar) {
  *manejador = "com.uno";
  preferencias.fallarCon(IndexError{IndexSource::launcher, "the settings are damaged"});
  cargar();
  EXPECT_EQ(*modelo->fallo(), (FalloDeAjustes{FalloDeAjustes::Caso::deNucleo, "the settings are damaged"}));
  ASSERT_TRUE(modelo->resuelta()->has_value());
  preferencias.fallarCon(std::nullopt);
  cargar();
  EXPECT_EQ(*modelo->fallo(), std::nullopt);
}

TEST_F(ModeloDeAjustesTest, seSabeQuienDiceLaDelSistemaSoloCuandoEsLaQueSeUsa) {
  dichoPor = "$TERMINAL";
  hacerDeNuevo();
  *manejador = "com.uno";
  cargar();
  EXPECT_EQ(*modelo->dichoPor(), "$TERMINAL");
  elegirYCargar("com.dos");
  EXPECT_EQ(*modelo->dichoPor(), std::nullopt);
}

}  // namespace
}  // namespace zorve
