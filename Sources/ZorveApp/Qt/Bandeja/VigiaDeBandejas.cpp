#include "ZorveApp/Qt/Bandeja/VigiaDeBandejas.h"

#include <xcb/xcb.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <array>

#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

/// How long a host may take to say that it is one, in milliseconds.
constexpr int plazo = 500;

QString notificadores() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
QString rutaDeNotificadores() { return QStringLiteral("/StatusNotifierWatcher"); }

QDBusMessage preguntaPorElAnfitrion() {
  auto pregunta = QDBusMessage::createMethodCall(notificadores(), rutaDeNotificadores(),
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("Get"));
  pregunta.setAutoStartService(false);
  return pregunta << notificadores() << QStringLiteral("IsStatusNotifierHostRegistered");
}

/// A watcher alone shows nothing: it is up before the bar that hosts the icons. The toolkit asks but once.
bool hayNotificadores() {
  auto const bus = QDBusConnection::sessionBus();
  if (!bus.isConnected() || !bus.interface()->isServiceRegistered(notificadores())) return false;
  QDBusReply<QDBusVariant> const hay = bus.call(preguntaPorElAnfitrion(), QDBus::Block, plazo);
  return hay.isValid() && hay.value().variant().toBool();
}

bool hayBandejaDeX11() {
  auto* const conexion = X11::conexion();
  return conexion && X11::duenoDe(conexion, "_NET_SYSTEM_TRAY_S0") != 0;
}

QByteArray nombreDelProceso(uint pid) {
  QFile fichero{QStringLiteral("/proc/%1/comm").arg(pid)};
  return fichero.open(QIODevice::ReadOnly) ? fichero.readAll().trimmed() : QByteArray{};
}

}  // namespace

VigiaDeBandejas::VigiaDeBandejas(QObject* padre) : QObject{padre} {
  if (auto* const conexion = X11::conexion()) {
    deGerente_ = X11::atomoNuevo(conexion, "MANAGER");
    deBandeja_ = X11::atomoNuevo(conexion, "_NET_SYSTEM_TRAY_S0");
    qGuiApp->installNativeEventFilter(this);
  }
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  auto* const vigia =
      new QDBusServiceWatcher{notificadores(), bus, QDBusServiceWatcher::WatchForRegistration, this};
  connect(vigia, &QDBusServiceWatcher::serviceRegistered, this, &VigiaDeBandejas::llego);
  bus.connect(notificadores(), rutaDeNotificadores(), notificadores(),
              QStringLiteral("StatusNotifierHostRegistered"), this, SIGNAL(llego()));
  preguntarSinEsperar();
}

void VigiaDeBandejas::preguntarSinEsperar() {
  auto* const espera =
      new QDBusPendingCallWatcher{QDBusConnection::sessionBus().asyncCall(preguntaPorElAnfitrion()), this};
  connect(espera, &QDBusPendingCallWatcher::finished, this, [this, espera] {
    QDBusPendingReply<QDBusVariant> const hay = *espera;
    espera->deleteLater();
    if (hay.isValid() && hay.value().variant().toBool()) Q_EMIT llego();
  });
}

VigiaDeBandejas::~VigiaDeBandejas() {
  if (qGuiApp) qGuiApp->removeNativeEventFilter(this);
}

bool VigiaDeBandejas::hay() { return hayNotificadores() || hayBandejaDeX11(); }

bool VigiaDeBandejas::soloMuestraMenus() {
  auto const bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return false;
  QDBusReply<uint> const pid = bus.interface()->servicePid(notificadores());
  return pid.isValid() && esDeMenus(nombreDelProceso(pid.value()));
}

bool VigiaDeBandejas::nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* /*resultado*/) {
  if (clase != "xcb_generic_event_t") return false;
  auto const* const evento = static_cast<xcb_client_message_event_t const*>(mensaje);
  if ((evento->response_type & 0x7F) != XCB_CLIENT_MESSAGE || evento->type != deGerente_) return false;
  // After the toolkit, which learns of its tray from the same message.
  if (evento->data.data32[1] == deBandeja_) QTimer::singleShot(0, this, &VigiaDeBandejas::llego);
  return false;
}

bool esDeMenus(QByteArray const& proceso) {
  static constexpr std::array<char const*, 5> conocidos{"gnome-shell", "ayatana-indicat", "indicator-appli",
                                                        "unity-panel-ser", "io.elementary.w"};
  return std::ranges::any_of(conocidos, [&](char const* uno) { return proceso == uno; });
}

}  // namespace zorve
