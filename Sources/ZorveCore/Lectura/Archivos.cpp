#include "ZorveCore/Lectura/Archivos.h"

namespace zorve {

std::string_view nombreBase(std::string_view ruta) { return ruta.substr(ruta.rfind('/') + 1); }

std::string unirRuta(std::string const& carpeta, std::string const& nombre) {
  return carpeta.ends_with('/') ? carpeta + nombre : carpeta + '/' + nombre;
}

}  // namespace zorve
