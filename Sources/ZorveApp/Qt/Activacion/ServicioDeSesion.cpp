#include "ZorveApp/Qt/Activacion/ServicioDeSesion.h"

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <filesystem>
#include <string>
#include <string_view>
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

/// A program whose file was replaced meanwhile still is the same.
std::string ejecutableDe(std::string const& proceso) {
  constexpr std::string_view reemplazado = " (deleted)";
  std::error_code fallo;
  auto ruta = std::filesystem::read_symlink("/proc/" + proceso + "/exe", fallo).string();
  if (ruta.ends_with(reemplazado)) ruta.resize(ruta.size() - reemplazado.size());
  return ruta;
}

/// Whether this program, run by this user, is what the name on the bus belongs to.
bool somosNosotros(QDBusConnection const& bus, QString const& quien) {
  auto const usuario = bus.interface()->serviceUid(quien);
  auto const pid = bus.interface()->servicePid(quien);
  if (!usuario.isValid() || !pid.isValid() || usuario.value() != ::getuid()) return false;
  auto const suyo = ejecutableDe(std::to_string(pid.value()));
  return !suyo.empty() && suyo == ejecutableDe("self");
}

}  // namespace

ServicioDeSesion::ServicioDeSesion(std::function<void(Testigo, Quien)> alActivar, QObject* padre)
    : QObject{padre}, alActivar_{std::move(alActivar)} {}

ServicioDeSesion::Turno ServicioDeSesion::ocupar(Testigo const& testigo) {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return Turno::sinBus;
  bus.registerObject(ruta(), this, QDBusConnection::ExportScriptableSlots);
  auto const respuesta = bus.interface()->registerService(
      nombre(), QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
  if (respuesta.value() == QDBusConnectionInterface::ServiceRegistered) return Turno::primero;
  bus.unregisterObject(ruta());
  if (!somosNosotros(bus, nombre())) return Turno::ajeno;
  return pedirQueSeMuestre(bus, testigo) ? Turno::segundo : Turno::mudo;
}

void ServicioDeSesion::soltar() {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.unregisterObject(ruta());
  bus.unregisterService(nombre());
}

void ServicioDeSesion::Activate(QVariantMap const& datosDePlataforma) {
  bool const propio = calledFromDBus() && somosNosotros(connection(), message().service());
  alActivar_(Testigo::de(datosDePlataforma), propio ? Quien::nosotros : Quien::cualquiera);
}

}  // namespace zorve
