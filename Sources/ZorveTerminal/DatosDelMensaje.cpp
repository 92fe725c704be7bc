#include "ZorveTerminal/DatosDelMensaje.h"

#include <dbus/dbus.h>

#include <cstdint>
#include <string>

namespace zorve::ayudante {

namespace {

template <class T>
T basico(DBusMessageIter& donde) {
  T valor{};
  dbus_message_iter_get_basic(&donde, static_cast<void*>(&valor));
  return valor;
}

void leer(DBusMessageIter donde, std::vector<DatoDeRespuesta>& datos) {
  for (; dbus_message_iter_get_arg_type(&donde) != DBUS_TYPE_INVALID; dbus_message_iter_next(&donde)) {
    switch (dbus_message_iter_get_arg_type(&donde)) {
      case DBUS_TYPE_BOOLEAN:
        datos.emplace_back(basico<dbus_bool_t>(donde) != 0);
        break;
      case DBUS_TYPE_INT32:
        datos.emplace_back(std::int64_t{basico<std::int32_t>(donde)});
        break;
      case DBUS_TYPE_UINT32:
        datos.emplace_back(std::int64_t{basico<std::uint32_t>(donde)});
        break;
      case DBUS_TYPE_INT64:
        datos.emplace_back(basico<std::int64_t>(donde));
        break;
      case DBUS_TYPE_STRING:
      case DBUS_TYPE_OBJECT_PATH:
      case DBUS_TYPE_SIGNATURE:
        datos.emplace_back(std::string{basico<char const*>(donde)});
        break;
      case DBUS_TYPE_ARRAY:
      case DBUS_TYPE_STRUCT:
      case DBUS_TYPE_VARIANT:
      case DBUS_TYPE_DICT_ENTRY: {
        DBusMessageIter hijos;
        dbus_message_iter_recurse(&donde, &hijos);
        leer(hijos, datos);
        break;
      }
      default:
        break;
    }
  }
}

}  // namespace

std::vector<DatoDeRespuesta> datosDelMensaje(DBusMessage* mensaje) {
  std::vector<DatoDeRespuesta> datos;
  DBusMessageIter donde;
  if (dbus_message_iter_init(mensaje, &donde) != 0) leer(donde, datos);
  return datos;
}

}  // namespace zorve::ayudante
