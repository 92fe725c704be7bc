#include "Anfitrion.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace zorve::medir {

bool Anfitrion::ocupar() {
  auto bus = QDBusConnection::sessionBus();
  return bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                            QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAllProperties) &&
         bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

void Anfitrion::RegisterStatusNotifierItem(QString const& /*servicio*/) { servicio_ = message().service(); }

void Anfitrion::pulsarIcono() const {
  auto clic = QDBusMessage::createMethodCall(servicio_, QStringLiteral("/StatusNotifierItem"),
                                             QStringLiteral("org.kde.StatusNotifierItem"),
                                             QStringLiteral("Activate"));
  clic << 0 << 0;
  QDBusConnection::sessionBus().send(clic);
}

}  // namespace zorve::medir
