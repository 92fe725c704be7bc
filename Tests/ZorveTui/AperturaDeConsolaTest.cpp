#include "ZorveTui/AperturaDeConsola.h"

#include "Dobles/CarpetaTemporal.h"
#include "MesaDeConsola.h"
#include "ZorveTui/Circunstancias.h"

namespace zorve::tui {
namespace {

class AperturaDeConsolaTest : public MesaDeConsola {
 protected:
  std::optional<Salida> abrirEn(ModoDeApertura modo, Session const& sesion) {
    AperturaDeConsola apertura{{.modo = modo,
                                .tmux = tmux,
                                .shell = "/bin/bash",
                                .ejecutor = ejecutor,
                                .despachador = despachador,
                                .idioma = idioma}};
    std::optional<Salida> salida;
    apertura.terminar = [&](Salida final) { salida = std::move(final); };
    apertura.decir = [&](std::string texto) { dicho = std::move(texto); };
    apertura.comoElPanel = [&] { ++delPanel; };
    apertura.abrir(sesion);
    despachador.correrTodo();
    return salida;
  }

  dobles::CarpetaTemporal carpeta;
  TmuxDeAqui tmux;
  std::string dicho;
  int delPanel = 0;
};

TEST_F(AperturaDeConsolaTest, enUnEscritorioAbreElPanel) {
  EXPECT_EQ(abrirEn(ModoDeApertura::escritorio, sesionDe("a")), std::nullopt);
  EXPECT_EQ(delPanel, 1);
}

TEST_F(AperturaDeConsolaTest, aquiLaAcabadaCorreEnSuDirectorioConLaShellDeLaPersona) {
  auto const sesion = sesionDe("it's", "una", carpeta.ruta());
  EXPECT_EQ(abrirEn(ModoDeApertura::aqui, sesion),
            (Salida{Relevo{"/bin/bash", {"-i", "-c", R"(claude -r 'it'\''s')"}, carpeta.ruta()}}));
}

TEST_F(AperturaDeConsolaTest, unDirectorioQueFaltaSeDiceSinDejarElPanel) {
  EXPECT_EQ(abrirEn(ModoDeApertura::aqui, sesionDe("a", "una", "/no/esta")), std::nullopt);
  EXPECT_EQ(dicho, "Could not open the session: /no/esta: No such file or directory");
}

TEST_F(AperturaDeConsolaTest, imprimirDaLaLineaDeShell) {
  EXPECT_EQ(abrirEn(ModoDeApertura::imprimir, sesionDe("a", "una", "/it's here")),
            (Salida{Impresa{R"(cd '/it'\''s here' && claude -r 'a')"}}));
}

TEST_F(AperturaDeConsolaTest, sinIdentificadorRespondeElPanel) {
  auto sesion = sesionDe("a");
  sesion.sessionId.reset();
  EXPECT_EQ(abrirEn(ModoDeApertura::aqui, sesion), std::nullopt);
  EXPECT_EQ(delPanel, 1);
}

TEST_F(AperturaDeConsolaTest, unaVivaFueraDeTmuxLaRespondeElPanel) {
  EXPECT_EQ(abrirEn(ModoDeApertura::aqui, sesionViva("a", 41)), std::nullopt);
  EXPECT_EQ(delPanel, 1);
}

TEST(ModoDeApertura, sigueALoPedidoYAlLugar) {
  using enum ModoDeApertura;
  EXPECT_EQ(modoDe({}, true, false), escritorio);
  EXPECT_EQ(modoDe({}, false, false), aqui);
  EXPECT_EQ(modoDe({.aqui = true}, true, true), aqui);
  EXPECT_EQ(modoDe({.imprimir = true}, true, true), imprimir);
  EXPECT_EQ(modoDe({.emergente = true}, true, true), ventanaDeTmux);
  EXPECT_EQ(modoDe({.emergente = true}, true, false), escritorio);
}

}  // namespace
}  // namespace zorve::tui
