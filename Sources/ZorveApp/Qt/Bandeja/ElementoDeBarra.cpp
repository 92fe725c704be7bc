#include "ZorveApp/Qt/Bandeja/ElementoDeBarra.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <utility>

#include "ZorveApp/Qt/Bandeja/IconoDeBarra.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

/// An embedded icon knows its place, and its bar is painted, after this long.
constexpr std::chrono::milliseconds esperaDeLaBarra{400};

/// What the tray of X11 says of its foreground: red, green and blue first, 16 bits each.
std::optional<bool> barraClaraSegunX11() {
  auto* const conexion = X11::conexion();
  if (!conexion) return std::nullopt;
  auto const bandeja = X11::duenoDe(conexion, "_NET_SYSTEM_TRAY_S0");
  auto const colores = bandeja == 0
                           ? std::vector<std::uint32_t>{}
                           : X11::numeros(conexion, bandeja, X11::atomo(conexion, "_NET_SYSTEM_TRAY_COLORS"));
  if (colores.size() < 3) return std::nullopt;
  return colores[0] + colores[1] + colores[2] < 3 * 0x8000;
}

/// What an embedded icon stands on, by the pixel at its corner.
std::optional<bool> barraClaraBajo(QRect const& icono) {
  if (!X11::conexion() || icono.isEmpty()) return std::nullopt;
  auto const escala = qGuiApp->devicePixelRatio();
  auto const color = X11::pixel(X11::conexion(), (QPointF{icono.topLeft()} * escala).toPoint());
  if (!color) return std::nullopt;
  return qGray(*color) > 0x80;
}

}  // namespace

ElementoDeBarra::ElementoDeBarra(Acciones acciones, QObject* padre)
    : QObject{padre}, acciones_{std::move(acciones)} {
  connect(&vigia_, &VigiaDeBandejas::llego, this, &ElementoDeBarra::alLlegarUnaBandeja);
}

void ElementoDeBarra::aparecer() { intentar(); }

void ElementoDeBarra::alLlegarUnaBandeja() {
  escribirMenu();
  intentar();
  QTimer::singleShot(esperaDeLaBarra, this, &ElementoDeBarra::vestir);
}

void ElementoDeBarra::intentar() {
  if (puesto() || !VigiaDeBandejas::hay()) return;
  icono_ = std::make_unique<QSystemTrayIcon>();
  icono_->setToolTip(QStringLiteral("Zorve"));
  icono_->setContextMenu(&menu_);
  connect(icono_.get(), &QSystemTrayIcon::activated, this, &ElementoDeBarra::alActivar);
  vestir();
  icono_->show();
  QTimer::singleShot(esperaDeLaBarra, this, &ElementoDeBarra::vestir);
}

void ElementoDeBarra::vestir() {
  if (!puesto()) return;
  auto const segunX11 = barraClaraSegunX11();
  auto const visto = segunX11 ? segunX11 : barraClaraBajo(icono_->geometry());
  icono_->setIcon(iconoDeBarra(tintaSobre(visto.value_or(barraClara_))));
}

void ElementoDeBarra::escribirBarraClara(bool clara) {
  if (std::exchange(barraClara_, clara) != clara) vestir();
}

void ElementoDeBarra::ponerMenu(std::array<EntradaDelMenu, 3> const& entradas) {
  entradas_ = entradas;
  escribirMenu();
}

void ElementoDeBarra::escribirMenu() {
  menu_.clear();
  if (VigiaDeBandejas::soloMuestraMenus()) {
    connect(menu_.addAction(QStringLiteral("Zorve")), &QAction::triggered, this,
            [this] { acciones_.abrir(); });
  }
  for (auto const& [clase, titulo, tecla] : entradas_) {
    if (clase == EntradaDelMenu::Clase::separador) {
      menu_.addSeparator();
      continue;
    }
    auto* const accion = menu_.addAction(aQString(titulo).replace(u'&', QStringLiteral("&&")));
    accion->setShortcut(QKeySequence{QStringLiteral("Ctrl+") + aQString(tecla)});
    connect(accion, &QAction::triggered, this, [this, cual = clase] { acciones_.elegir(cual); });
  }
}

void ElementoDeBarra::abrirMenu() { menu_.popup(QCursor::pos()); }

std::optional<Ancla> ElementoDeBarra::ancla() const {
  auto const marco = puesto() ? icono_->geometry() : QRect{};
  return marco.isEmpty() ? ultimoClic_ : Ancla{marco, false};
}

void ElementoDeBarra::alActivar(QSystemTrayIcon::ActivationReason razon) {
  ultimoClic_ = Ancla{QRect{QCursor::pos(), QSize{1, 1}}, true};
  bool const abreSuMenu = !icono_->geometry().isEmpty();
  bool const conControl = QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
  bool const principal = razon == QSystemTrayIcon::Trigger || razon == QSystemTrayIcon::DoubleClick;
  if (principal) acciones_.clic({false, conControl});
  if (razon == QSystemTrayIcon::Context && !abreSuMenu) acciones_.clic({true, conControl});
}

}  // namespace zorve
