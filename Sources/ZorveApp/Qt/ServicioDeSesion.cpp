#include "ZorveApp/Qt/ServicioDeSesion.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace zorve {

namespace {

constexpr int plazo = 5000;

QString nombre() { return QStringLiteral("com.sarnol.zorve"); }
QString ruta() { return QStringLiteral("/com/sarnol/zorve"); }

/// Whether it answers.
bool pedirQueSeMuestre(QDBusConnection const& bus, Testigo const& testigo) {
  auto pedido = QDBusMessage::createMethodCall(
      nombre(), ruta(), QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
  pedido << testigo.datosDePlataforma();
  return bus.call(pedido, QDBus::Block, plazo).type() == QDBusMessage::ReplyMessage;
}

}  // namespace

ServicioDeSesion::ServicioDeSesion(std::function<void(Testigo)> alActivar, QObject* padre)
    : QObject{padre}, alActivar_{std::move(alActivar)} {}

ServicioDeSesion::Turno ServicioDeSesion::ocupar(Testigo const& testigo) {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return Turno::sinBus;
  bus.registerObject(ruta(), this, QDBusConnection::ExportScriptableSlots);
  auto const respuesta = bus.interface()->registerService(
      nombre(), QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
  if (respuesta.value() == QDBusConnectionInterface::ServiceRegistered) return Turno::primero;
  bus.unregisterObject(ruta());
  return pedirQueSeMuestre(bus, testigo) ? Turno::segundo : Turno::mudo;
}

void ServicioDeSesion::soltar() {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.unregisterObject(ruta());
  bus.unregisterService(nombre());
}

void ServicioDeSesion::Activate(QVariantMap const& datosDePlataforma) {
  alActivar_(Testigo::de(datosDePlataforma));
}

}  // namespace zorve
