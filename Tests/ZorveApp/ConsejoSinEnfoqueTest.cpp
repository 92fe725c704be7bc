#include "Mesa.h"
#include "ZorveApp/InterruptorDeVentanas.h"
#include "ZorveApp/PanelView.h"

namespace zorve {
namespace {

class ConsejoSinEnfoqueTest : public Mesa {
 protected:
  void unaVivaQueNoSeEnfoca(std::string const& tty) {
    terminalesConocidas(
        {dobles::terminalFija({.identificador = "uno", .nombre = "Uno", .puedeEnfocar = false})});
    auto con = colaboradores();
    con.servicios.faltaUnInterruptor = [] { return true; };
    modelo = std::make_unique<ModeloDeVista>(std::move(con));
    cargar({sesionViva("a", 40)});
    ejecutor.proceso(40, 1, "/sbin/otra", tty);
    abrir();
  }
  std::vector<std::string> lineas() {
    EstadoDelPanel const estado;
    PanelView const panel{*modelo, estado, idioma, "/h", [] { return Fecha{}; }, Modificador::control};
    std::vector<std::string> todas;
    for (auto const& linea : panel.banda()) todas.push_back(linea.texto);
    return todas;
  }
};

TEST_F(ConsejoSinEnfoqueTest, siguenAlAvisoYEnSuIdioma) {
  enEspanol();
  unaVivaQueNoSeEnfoca("pts/3");
  EXPECT_EQ(lineas(), (std::vector<std::string>{Textos{Idioma::es}.vivaSinEnfoque("pts/3", "Uno"),
                                                std::string{TextosDelInterruptor::consejo(Idioma::es)}}));
}

TEST_F(ConsejoSinEnfoqueTest, sinTtyNoHayNadaQueAconsejar) {
  unaVivaQueNoSeEnfoca("??");
  EXPECT_EQ(lineas(), std::vector<std::string>{std::string{Textos{Idioma::en}.vivaSinTty}});
}

TEST_F(ConsejoSinEnfoqueTest, seVaConElAvisoAlCopiarYAlVolverAAbrir) {
  unaVivaQueNoSeEnfoca("pts/3");
  modelo->copiarIdentificador();
  EXPECT_EQ(*modelo->consejo(), std::nullopt);
  abrir();
  EXPECT_NE(*modelo->consejo(), std::nullopt);
  modelo->abrirSeleccionada();
  EXPECT_EQ(*modelo->consejo(), std::nullopt);
}

}  // namespace
}  // namespace zorve
