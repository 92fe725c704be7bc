#pragma once

namespace zorve {

/// Makes the types of module Zorve.Tipos (what is drawn, the style, the values) known to QML. Once a program.
void registrarTipos();

}  // namespace zorve
