#include "ZorveApp/Qt/Bandeja/IconoDeBarra.h"

#include <QFileInfo>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Dibujo/MarcaQt.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"

namespace zorve {

namespace {

QString nombreInstalado() {
  auto const nombre = QStringLiteral("com.sarnol.zorve-symbolic");
  auto const rutas = QIcon::themeSearchPaths();
  bool const esta = std::ranges::any_of(rutas, [&](QString const& ruta) {
    return QFileInfo::exists(ruta + QStringLiteral("/hicolor/symbolic/apps/") + nombre +
                             QStringLiteral(".svg"));
  });
  return esta ? nombre : QString{};
}

class MotorDeMarca final : public QIconEngine {
 public:
  MotorDeMarca(QColor const& color, QString nombre) : color_{color}, nombre_{std::move(nombre)} {}

  void paint(QPainter* pintor, QRect const& marco, QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    auto const lado = std::min(marco.width(), marco.height());
    QRect cuadro{0, 0, lado, lado};
    cuadro.moveCenter(marco.center());
    pintor->drawImage(cuadro, imagenDeMarca(lado, color_));
  }
  QPixmap pixmap(QSize const& tamano, QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    return QPixmap::fromImage(imagenDeMarca(std::min(tamano.width(), tamano.height()), color_));
  }
  QList<QSize> availableSizes(QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    return {{18, 18}, {22, 22}, {24, 24}, {32, 32}, {36, 36}, {48, 48}};
  }
  QString iconName() override { return nombre_; }
  [[nodiscard]] QIconEngine* clone() const override { return new MotorDeMarca{color_, nombre_}; }

 private:
  QColor color_;
  QString nombre_;
};

}  // namespace

QIcon iconoDeBarra(QColor const& color) { return QIcon{new MotorDeMarca{color, nombreInstalado()}}; }

QIcon iconoDeLaAplicacion() {
  QIcon icono;
  for (int const lado : {16, 22, 24, 32, 48, 64, 128, 256}) {
    icono.addFile(QStringLiteral(":/Zorve/Iconos/zorve-%1.png").arg(lado), {lado, lado});
  }
  return icono;
}

QColor tintaSobre(bool barraClara) { return aQColor(barraClara ? Estilo::tinteBase : Estilo::textoAlto); }

}  // namespace zorve
