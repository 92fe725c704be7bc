#pragma once

#include <vector>

#include "ZorveTerminal/Bus.h"

struct DBusMessage;

namespace zorve::ayudante {

/// Every truth value, every 32-bit and signed 64-bit integer and every text of a D-Bus message's body, in
/// order, whatever arrays, structures and variants they stand in; values of other types are passed over.
[[nodiscard]] std::vector<DatoDeRespuesta> datosDelMensaje(DBusMessage* mensaje);

}  // namespace zorve::ayudante
