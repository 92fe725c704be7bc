#include "ZorveApp/Qt/PortapapelesQt.h"

#include <QClipboard>
#include <QGuiApplication>

#include "ZorveApp/Qt/Conversiones.h"

namespace zorve {

void PortapapelesQt::copiar(std::string const& texto) {
  QGuiApplication::clipboard()->setText(aQString(texto));
}

}  // namespace zorve
