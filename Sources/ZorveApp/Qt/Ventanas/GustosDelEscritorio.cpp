#include "ZorveApp/Qt/Ventanas/GustosDelEscritorio.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

constexpr auto servicio = "org.freedesktop.portal.Desktop";
constexpr auto ruta = "/org/freedesktop/portal/desktop";
constexpr auto interfaz = "org.freedesktop.portal.Settings";
constexpr auto apariencia = "org.freedesktop.appearance";
constexpr auto gnome = "org.gnome.desktop.interface";
constexpr auto accesibilidad = "org.gnome.desktop.a11y.interface";
constexpr double escalaMinima = 0.5;
constexpr double escalaMaxima = 3;

/// On X11 the desktop writes the same factor into the server's resources, by which the toolkit enlarges all.
bool escalaElTexto() { return X11::conexion() == nullptr; }

/// Read wraps its answer in one variant more than it should.
QVariant desnudo(QVariant valor) {
  while (valor.canConvert<QDBusVariant>()) valor = valor.value<QDBusVariant>().variant();
  return valor;
}

/// 1 for what is no number.
double escalaDicha(QVariant const& valor) {
  bool esNumero = false;
  auto const escala = valor.toDouble(&esNumero);
  return esNumero && std::isfinite(escala) ? std::clamp(escala, escalaMinima, escalaMaxima) : 1;
}

}  // namespace

GustosDelEscritorio::GustosDelEscritorio(QObject* padre) : QObject{padre} {}

void GustosDelEscritorio::preguntar() {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(QString::fromLatin1(servicio), QString::fromLatin1(ruta), QString::fromLatin1(interfaz),
              QStringLiteral("SettingChanged"), this, SLOT(alCambiar(QString, QString, QDBusVariant)));
  auto* const vigia = new QDBusServiceWatcher{QString::fromLatin1(servicio), bus,
                                              QDBusServiceWatcher::WatchForRegistration, this};
  connect(vigia, &QDBusServiceWatcher::serviceRegistered, this, &GustosDelEscritorio::leerTodo);
  leerTodo();
}

void GustosDelEscritorio::leerTodo() {
  leer(apariencia, "color-scheme");
  leer(apariencia, "contrast");
  leer(apariencia, "reduced-motion");
  leer(accesibilidad, "high-contrast");
  leer(gnome, "enable-animations");
  leer(gnome, "text-scaling-factor");
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
  auto const antes = std::pair{claro_, dePantalla_};
  auto const es = [&](char const* cualEspacio, char const* cualClave) {
    return espacio == QLatin1String{cualEspacio} && clave == QLatin1String{cualClave};
  };
  if (es(apariencia, "color-scheme")) claro_ = valor.toUInt() == prefiereClaro;
  if (es(apariencia, "contrast")) contraste_[0] = valor.toUInt() == 1;
  if (es(accesibilidad, "high-contrast")) contraste_[1] = valor.toBool();
  if (es(apariencia, "reduced-motion")) quietud_[0] = valor.toUInt() == 1;
  if (es(gnome, "enable-animations")) quietud_[1] = !valor.toBool();
  dePantalla_.altoContraste = contraste_[0] || contraste_[1];
  dePantalla_.conMovimiento = !quietud_[0] && !quietud_[1];
  if (es(gnome, "text-scaling-factor") && escalaElTexto()) {
    dePantalla_.escala = escalaDicha(valor);
  }
  if (antes != std::pair{claro_, dePantalla_}) Q_EMIT cambio();
}

}  // namespace zorve
