#include "ZorveApp/Qt/Ventanas/InterruptorDeGnome.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStandardPaths>
#include <utility>

namespace zorve {

namespace {

using Estado = InterruptorDeVentanas::Estado;
using Caso = InterruptorDeVentanas::Rechazo::Caso;

/// What GNOME Shell calls an extension's states.
constexpr int encendida = 1;
constexpr int deOtraVersion = 4;
constexpr int encendiendose = 8;

QString uuid() { return QStringLiteral("zorve-windows@sarnol.com"); }
QString shell() { return QStringLiteral("org.gnome.Shell"); }
QString objeto() { return QStringLiteral("/org/gnome/Shell"); }
QString interfaz() { return QStringLiteral("org.gnome.Shell.Extensions"); }

QDBusMessage llamada(QString const& metodo) {
  auto mensaje = QDBusMessage::createMethodCall(shell(), objeto(), interfaz(), metodo);
  mensaje.setAutoStartService(false);
  return mensaje << uuid();
}

/// Calls `alContestar` with the answer, or with the failure.
template <class... T, class Funcion>
void llamar(QObject* quien, QDBusMessage const& mensaje, Funcion alContestar) {
  auto* const espera = new QDBusPendingCallWatcher{QDBusConnection::sessionBus().asyncCall(mensaje), quien};
  QObject::connect(espera, &QDBusPendingCallWatcher::finished, quien, [espera, alContestar] {
    alContestar(QDBusPendingReply<T...>{*espera});
    espera->deleteLater();
  });
}

bool estaEnElDisco() {
  auto const fichero = QStringLiteral("gnome-shell/extensions/") + uuid() + QStringLiteral("/metadata.json");
  return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, fichero).isEmpty();
}

Estado estadoSegun(QVariantMap const& datos) {
  if (datos.isEmpty()) return estaEnElDisco() ? Estado::alProximoInicio : Estado::noInstalado;
  auto const estado = datos.value(QStringLiteral("state")).toInt();
  if (estado == encendida || estado == encendiendose) return Estado::encendido;
  return estado == deOtraVersion ? Estado::noInstalado : Estado::apagado;
}

}  // namespace

InterruptorDeGnome::InterruptorDeGnome(QObject* padre) : QObject{padre} {
  QDBusConnection::sessionBus().connect(
      shell(), objeto(), interfaz(), QStringLiteral("ExtensionStateChanged"), this, SLOT(alCambiar(QString)));
}

void InterruptorDeGnome::mirar() {
  rechazo_.escribir(std::nullopt);
  preguntar();
}

void InterruptorDeGnome::preguntar() {
  llamar<QVariantMap>(this, llamada(QStringLiteral("GetExtensionInfo")),
                      [this](QDBusPendingReply<QVariantMap> const& respuesta) {
                        if (respuesta.isValid()) anotar(respuesta.value());
                      });
}

void InterruptorDeGnome::alCambiar(QString const& cual) {
  if (cual == uuid()) preguntar();
}

void InterruptorDeGnome::anotar(QVariantMap const& datos) { estado_.escribir(estadoSegun(datos)); }

void InterruptorDeGnome::alternar() {
  rechazo_.escribir(std::nullopt);
  if (!*estado_) return;
  switch (**estado_) {
    case Estado::encendido:
      return pedir(QStringLiteral("DisableExtension"));
    case Estado::apagado:
      return encender();
    case Estado::alProximoInicio:
      return rehusar({Caso::alProximoInicio});
    default:
      return rehusar({Caso::noInstalado});
  }
}

void InterruptorDeGnome::encender() {
  auto pregunta = QDBusMessage::createMethodCall(
      shell(), objeto(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  pregunta << interfaz() << QStringLiteral("UserExtensionsEnabled");
  llamar<QDBusVariant>(this, pregunta, [this](QDBusPendingReply<QDBusVariant> const& respuesta) {
    bool const ninguna = respuesta.isValid() && !respuesta.value().variant().toBool();
    if (ninguna) return rehusar({Caso::todasApagadas});
    pedir(QStringLiteral("EnableExtension"));
  });
}

void InterruptorDeGnome::pedir(QString const& metodo) {
  llamar<bool>(this, llamada(metodo), [this, metodo](QDBusPendingReply<bool> const& respuesta) {
    if (!respuesta.isValid()) return rehusar({Caso::rehusado, respuesta.error().message().toStdString()});
    if (!respuesta.value()) rehusar({Caso::rehusado, (metodo + QStringLiteral(" gave false")).toStdString()});
    preguntar();
  });
}

}  // namespace zorve
