#include "ZorveApp/Qt/Puentes/TiposDeQml.h"

/// Generated from the types' headers.
extern void qml_register_types_Zorve_Tipos();

namespace zorve {

void registrarTipos() { qml_register_types_Zorve_Tipos(); }

}  // namespace zorve
