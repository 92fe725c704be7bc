#include "ZorveApp/Qt/Ventanas/ExtensionDeGnome.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

namespace zorve {

namespace {

QString servicio() { return QStringLiteral("com.sarnol.zorve.Windows"); }

}  // namespace

bool sobreGnome() {
  auto const escritorios = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
  return QGuiApplication::platformName().startsWith(u"wayland") &&
         escritorios.contains(QStringLiteral("GNOME"));
}

void colgarDelIcono(QWindow const& ventana) {
  auto llamada = QDBusMessage::createMethodCall(servicio(), QStringLiteral("/com/sarnol/zorve/Windows"),
                                                servicio(), QStringLiteral("Hang"));
  llamada.setAutoStartService(false);
  llamada << ventana.width() << ventana.height();
  QDBusConnection::sessionBus().call(llamada, QDBus::NoBlock);
}

}  // namespace zorve
