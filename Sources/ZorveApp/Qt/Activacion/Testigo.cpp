#include "ZorveApp/Qt/Activacion/Testigo.h"

#include <QtGlobal>
#include <algorithm>

namespace zorve {

namespace {

constexpr auto variableDeActivacion = "XDG_ACTIVATION_TOKEN";
constexpr auto variableDeArranque = "DESKTOP_STARTUP_ID";

QString claveDeActivacion() { return QStringLiteral("activation-token"); }
QString claveDeArranque() { return QStringLiteral("desktop-startup-id"); }

/// Window systems take no message much longer than this, and end the connection that sends one.
constexpr qsizetype largoMaximo = 512;

QString admisible(QString texto) {
  auto const esDeControl = [](QChar c) { return c.unicode() < u' ' || c.unicode() == 0x7F; };
  bool const mal = texto.size() > largoMaximo || std::ranges::any_of(texto, esDeControl);
  return mal ? QString{} : texto;
}

QString tomar(char const* variable) {
  auto const valor = qEnvironmentVariable(variable);
  qunsetenv(variable);
  return admisible(valor);
}

}  // namespace

Testigo Testigo::tomarDelEntorno() { return {tomar(variableDeActivacion), tomar(variableDeArranque)}; }

Testigo Testigo::de(QVariantMap const& datosDePlataforma) {
  return {admisible(datosDePlataforma.value(claveDeActivacion()).toString()),
          admisible(datosDePlataforma.value(claveDeArranque()).toString())};
}

QVariantMap Testigo::datosDePlataforma() const {
  QVariantMap datos;
  if (!activacion.isEmpty()) datos.insert(claveDeActivacion(), activacion);
  if (!arranque.isEmpty()) datos.insert(claveDeArranque(), arranque);
  return datos;
}

std::vector<std::string> Testigo::variables() const {
  std::vector<std::string> todas;
  auto const agregar = [&](char const* nombre, QString const& valor) {
    if (!valor.isEmpty()) todas.push_back(std::string{nombre} + "=" + valor.toStdString());
  };
  agregar(variableDeActivacion, activacion);
  agregar(variableDeArranque, arranque);
  return todas;
}

std::uint32_t Testigo::momento() const {
  auto const marca = QStringLiteral("_TIME");
  auto const& texto = arranque.isEmpty() ? activacion : arranque;
  auto const donde = texto.lastIndexOf(marca);
  return donde < 0 ? 0 : texto.mid(donde + marca.size()).toUInt();
}

}  // namespace zorve
