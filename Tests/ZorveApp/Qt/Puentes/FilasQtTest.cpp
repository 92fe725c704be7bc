#include "ZorveApp/Qt/Puentes/FilasQt.h"

#include <chrono>

#include "ZorveApp/Mesa.h"

namespace zorve {
namespace {

/// The rows of two sessions. The panel reads the clock once for each row that it makes.
class FilasQtTest : public Mesa {
 protected:
  FilasQtTest() {
    cargar({sesionDe("a", "alfa"), sesionDe("b", "beta")});
    filas.actualizar();
  }

  void leerTodos(int fila) const {
    for (auto const papel : filas.roleNames().keys())
      EXPECT_TRUE(filas.data(filas.index(fila), papel).isValid());
  }
  [[nodiscard]] QString titulo(int fila) const {
    return filas.data(filas.index(fila), FilasQt::titulo).toString();
  }

  int hechas = 0;
  EstadoDelPanel estado;
  PanelView panel{
      *modelo, estado, idioma, "/Users/ana", [this] { return ++hechas, Fecha{}; }, Modificador::control};
  FilasQt filas{panel};
};

TEST_F(FilasQtTest, unaFilaSeHaceUnaSolaVezParaTodosSusPapeles) {
  leerTodos(0);
  EXPECT_EQ(hechas, 1);
  leerTodos(1);
  EXPECT_EQ(hechas, 2);
}

TEST_F(FilasQtTest, trasUnCambioLaFilaSeHaceDeNuevo) {
  EXPECT_EQ(titulo(0), QStringLiteral("alfa"));
  panel.escribirConsulta("beta");
  filas.actualizar();
  EXPECT_EQ(titulo(0), QStringLiteral("beta"));
}

TEST_F(FilasQtTest, conElPasoDelTiempoLaFilaSeHaceDeNuevo) {
  leerTodos(0);
  filas.actualizarTiempos();
  leerTodos(0);
  EXPECT_EQ(hechas, 2);
}

}  // namespace
}  // namespace zorve
