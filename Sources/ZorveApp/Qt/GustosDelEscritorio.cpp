#include "ZorveApp/Qt/GustosDelEscritorio.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace zorve {

namespace {

constexpr auto servicio = "org.freedesktop.portal.Desktop";
constexpr auto ruta = "/org/freedesktop/portal/desktop";
constexpr auto interfaz = "org.freedesktop.portal.Settings";
constexpr auto apariencia = "org.freedesktop.appearance";
constexpr auto gnome = "org.gnome.desktop.interface";

/// Read wraps its answer in one variant more than it should.
QVariant desnudo(QVariant valor) {
  while (valor.canConvert<QDBusVariant>()) valor = valor.value<QDBusVariant>().variant();
  return valor;
}

}  // namespace

GustosDelEscritorio::GustosDelEscritorio(QObject* padre) : QObject{padre} {}

void GustosDelEscritorio::preguntar() {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(QString::fromLatin1(servicio), QString::fromLatin1(ruta), QString::fromLatin1(interfaz),
              QStringLiteral("SettingChanged"), this, SLOT(alCambiar(QString, QString, QDBusVariant)));
  leer(apariencia, "color-scheme");
  leer(apariencia, "contrast");
  leer(gnome, "enable-animations");
}

void GustosDelEscritorio::leer(char const* espacio, char const* clave) {
  auto pregunta = QDBusMessage::createMethodCall(QString::fromLatin1(servicio), QString::fromLatin1(ruta),
                                                 QString::fromLatin1(interfaz), QStringLiteral("Read"));
  auto const e = QString::fromLatin1(espacio);
  auto const c = QString::fromLatin1(clave);
  pregunta << e << c;
  pregunta.setAutoStartService(false);
  auto* const espera = new QDBusPendingCallWatcher{QDBusConnection::sessionBus().asyncCall(pregunta), this};
  connect(espera, &QDBusPendingCallWatcher::finished, this, [this, e, c](QDBusPendingCallWatcher* llamada) {
    llamada->deleteLater();
    QDBusPendingReply<QDBusVariant> const respuesta{*llamada};
    if (!respuesta.isError()) anotar(e, c, desnudo(respuesta.value().variant()));
  });
}

void GustosDelEscritorio::alCambiar(QString const& espacio, QString const& clave, QDBusVariant const& valor) {
  anotar(espacio, clave, desnudo(valor.variant()));
}

void GustosDelEscritorio::anotar(QString const& espacio, QString const& clave, QVariant const& valor) {
  constexpr unsigned prefiereClaro = 2;
  bool const deApariencia = espacio == QLatin1String{apariencia};
  if (deApariencia && clave == QLatin1String{"color-scheme"}) claro_ = valor.toUInt() == prefiereClaro;
  if (deApariencia && clave == QLatin1String{"contrast"}) altoContraste_ = valor.toUInt() == 1;
  if (espacio == QLatin1String{gnome} && clave == QLatin1String{"enable-animations"}) {
    conMovimiento_ = valor.toBool();
  }
  Q_EMIT cambio();
}

}  // namespace zorve
