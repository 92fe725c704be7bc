#include "ZorveApp/Qt/Testigo.h"

#include <QtGlobal>

namespace zorve {

namespace {

constexpr auto variableDeActivacion = "XDG_ACTIVATION_TOKEN";
constexpr auto variableDeArranque = "DESKTOP_STARTUP_ID";

QString claveDeActivacion() { return QStringLiteral("activation-token"); }
QString claveDeArranque() { return QStringLiteral("desktop-startup-id"); }

QString tomar(char const* variable) {
  auto const valor = qEnvironmentVariable(variable);
  qunsetenv(variable);
  return valor;
}

}  // namespace

Testigo Testigo::tomarDelEntorno() { return {tomar(variableDeActivacion), tomar(variableDeArranque)}; }

Testigo Testigo::de(QVariantMap const& datosDePlataforma) {
  return {datosDePlataforma.value(claveDeActivacion()).toString(),
          datosDePlataforma.value(claveDeArranque()).toString()};
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
