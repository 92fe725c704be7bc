#include "ZorveApp/Qt/Puentes/PortapapelesQt.h"

#include <QClipboard>
#include <QGuiApplication>

#include "ZorveApp/Qt/Puentes/Conversiones.h"

namespace zorve {

void PortapapelesQt::copiar(std::string const& texto) {
  QGuiApplication::clipboard()->setText(aQString(texto));
}

}  // namespace zorve
