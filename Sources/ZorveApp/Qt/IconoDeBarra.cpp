#include "ZorveApp/Qt/IconoDeBarra.h"

#include <QFileInfo>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/MarcaQt.h"

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
    QRectF cuadro{0, 0, double(lado), double(lado)};
    cuadro.moveCenter(QRectF{marco}.center());
    pintor->setRenderHint(QPainter::Antialiasing);
    pintor->fillPath(trazoDeMarca(cuadro), color_);
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
  constexpr int lado = 64;
  constexpr double margen = 6;
  constexpr double radio = 12;
  QPixmap tejuela{lado, lado};
  tejuela.fill(Qt::transparent);
  QPainter pintor{&tejuela};
  pintor.setRenderHint(QPainter::Antialiasing);
  QRectF const marco = QRectF{tejuela.rect()}.adjusted(margen, margen, -margen, -margen);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(aQColor(Estilo::tinteBase));
  pintor.drawRoundedRect(marco, radio, radio);
  pintor.fillPath(trazoDeMarca(marco.adjusted(8, 8, -8, -8)), aQColor(Estilo::acento));
  return QIcon{tejuela};
}

QColor tintaSobre(bool barraClara) { return aQColor(barraClara ? Estilo::tinteBase : Estilo::textoAlto); }

}  // namespace zorve
