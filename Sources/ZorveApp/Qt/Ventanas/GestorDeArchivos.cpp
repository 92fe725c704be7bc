#include "ZorveApp/Qt/Ventanas/GestorDeArchivos.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace zorve {

namespace {

/// Of the very bytes, whatever they are.
QUrl urlDe(std::string const& directorio) {
  return QUrl::fromEncoded("file://" + QByteArray::fromStdString(directorio).toPercentEncoding("/"));
}

void pedirPorElBus(QUrl const& cual, QString const& testigo) {
  auto peticion = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
      QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowFolders"));
  peticion << QStringList{cual.toString(QUrl::FullyEncoded)} << testigo;
  auto* const espera = new QDBusPendingCallWatcher{QDBusConnection::sessionBus().asyncCall(peticion)};
  QObject::connect(espera, &QDBusPendingCallWatcher::finished, espera,
                   [cual](QDBusPendingCallWatcher* llamada) {
                     llamada->deleteLater();
                     if (QDBusPendingReply<>{*llamada}.isError()) QDesktopServices::openUrl(cual);
                   });
}

}  // namespace

void mostrarEnElGestorDeArchivos(std::string const& directorio, Activacion& activacion) {
  activacion.pedir([cual = urlDe(directorio)](Testigo const& testigo) {
    pedirPorElBus(cual, testigo.activacion.isEmpty() ? testigo.arranque : testigo.activacion);
  });
}

}  // namespace zorve
