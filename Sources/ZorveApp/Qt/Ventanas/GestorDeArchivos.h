#pragma once

#include <string>

#include "ZorveApp/Qt/Activacion/Activacion.h"

namespace zorve {

/// Shows `directorio` in the desktop's file manager, asked over the bus (org.freedesktop.FileManager1, of the
/// freedesktop.org file manager interface), and where none answers by opening the directory as the desktop
/// opens it. Returns at once; `activacion` gives the leave to come to the front. Main thread only.
void mostrarEnElGestorDeArchivos(std::string const& directorio, Activacion& activacion);

}  // namespace zorve
