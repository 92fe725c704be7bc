#import "MacOS/Frente/Frente.h"

#include "Dobles/CarpetaTemporal.h"
#include "ZorvePlatform/MacOS/InicioDeSesionMac.h"
#include "ZorvePlatform/MacOS/ManejadorMac.h"
#include "ZorvePlatform/MacOS/PreferenciasMac.h"

int mainDeZorve();

/// The program's objects are left to the system at its end, on purpose; here two programs end in one process.
extern "C" char const* __lsan_default_suppressions() { return "leak:mainDeZorve\n"; }

namespace zorve {
namespace {

using tramoya::sistema;

/// The program from its entry on, over real files, threads and processes; the toolkit alone is played.
class ElPrograma : public ::testing::Test {
 protected:
  ElPrograma() {
    tramoya::reponer();
    sistema().home = carpeta.ruta();
    carpeta.escribir(".claude/projects/-srv-demo/11111111-2222-4333-8444-555555555555.jsonl",
                     "{\"type\":\"ai-title\",\"aiTitle\":\"Hello\"}\n{\"cwd\":\"/srv/demo\"}\n");
  }
  static bool aLaVista(std::string const& texto) {
    auto const textos = tramoya::rotulos(tramoya::popover().contentViewController.view);
    return std::ranges::find(textos, texto) != textos.end();
  }
  dobles::CarpetaTemporal carpeta;
};

TEST_F(ElPrograma, arrancaMuestraLaPrimeraVezElPanelYListaLoQueHayEnDisco) {
  bool visto = false;
  tramoya::alCorrer([&visto] {
    tramoya::avanzar(0.4);
    visto = tramoya::girarHasta([] { return aLaVista("Hello"); });
    tramoya::teclear(tramoya::golpe::mando("q"));
  });
  EXPECT_EQ(mainDeZorve(), 0);
  EXPECT_TRUE(visto);
  EXPECT_TRUE(tramoya::terminada());
  EXPECT_EQ(tramoya::veces("activation policy 1"), 1U);
  EXPECT_EQ(tramoya::faltas(), std::vector<std::string>{});
  EXPECT_TRUE(
      [sistema().preferencias["com.sarnol.zorve"]["app.zorve.panelMostradoEnPrimerArranque"] boolValue]);
}

TEST_F(ElPrograma, fueraDeUnPaqueteNoSabeSuVersion) {
  sistema().version.reset();
  sistema().paquete.clear();
  bool visto = false;
  tramoya::alCorrer([&visto] {
    tramoya::conElMenu([](NSMenu* menu) { tramoya::elegirDelMenu(menu, 0); });
    tramoya::pulsarItem(tramoya::Boton::derecho);
    visto = tramoya::girarHasta([] { return tramoya::ventanaConTeclado() != nil; });
  });
  EXPECT_EQ(mainDeZorve(), 0);
  EXPECT_TRUE(visto);
}

class ElInicioDeSesion : public ElPrograma {
 protected:
  InicioDeSesionMac inicio;
};

TEST_F(ElInicioDeSesion, seEnciendeYSeApaga) {
  EXPECT_FALSE(inicio.activo());
  ASSERT_TRUE(inicio.registrar().has_value());
  EXPECT_TRUE(inicio.activo());
  ASSERT_TRUE(inicio.retirar().has_value());
  EXPECT_FALSE(inicio.activo());
}

TEST_F(ElInicioDeSesion, diceLoQueElSistemaDice) {
  sistema().falloDeInicio = "Operation not permitted";
  EXPECT_EQ(inicio.registrar().error(), "Operation not permitted");
  EXPECT_EQ(inicio.retirar().error(), "Operation not permitted");
}

using ElManejador = ElPrograma;

TEST_F(ElManejador, esElIdentificadorDeQuienAbreElTipo) {
  sistema().manejadores["com.apple.terminal.shell-script"] = "com.googlecode.iterm2";
  EXPECT_EQ(ManejadorMac{}.preguntar("com.apple.terminal.shell-script").aplicacion, "com.googlecode.iterm2");
}

TEST_F(ElManejador, sinNadieOSinIdentificadorEsNada) {
  EXPECT_EQ(ManejadorMac{}.preguntar("public.unix-executable").aplicacion, std::nullopt);
  sistema().manejadores["public.unix-executable"] = "sin-identificador";
  EXPECT_EQ(ManejadorMac{}.preguntar("public.unix-executable").aplicacion, std::nullopt);
}

using LasPreferencias = ElPrograma;

TEST_F(LasPreferencias, dentroDelPaqueteSonLasSuyasYFueraElMismoDominioPorNombre) {
  PreferenciasMac preferencias;
  ASSERT_TRUE(preferencias.escribir("clave", std::string{"dentro"}).has_value());
  sistema().paquete = "";
  EXPECT_EQ(std::get<std::string>(preferencias.leer("clave").value().value()), "dentro");
  EXPECT_EQ(tramoya::faltas(), std::vector<std::string>{});
}

/// The toolkit's own promise: what is freed does not answer.
TEST(LaTramoyaDeathTest, unMensajeAUnObjetoSueltoTerminaElPrograma) {
  EXPECT_DEATH(
      {
        __unsafe_unretained NSView* suelta = nil;
        @autoreleasepool {
          NSView* const vista = [[NSView alloc] initWithFrame:NSZeroRect];
          suelta = vista;
        }
        [suelta setHidden:YES];
      },
      "AddressSanitizer");
}

}  // namespace
}  // namespace zorve
