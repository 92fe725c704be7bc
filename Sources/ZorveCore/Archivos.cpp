#include "ZorveCore/Archivos.h"

#include <cerrno>

namespace zorve {

namespace {
bool faltaPor(FalloDelSistema const& fallo) { return fallo.codigo == ENOENT || fallo.codigo == ENOTDIR; }
}  // namespace

bool existe(Archivos& archivos, std::string const& ruta) {
  auto const propios = archivos.atributos(ruta);
  if (!propios) return !faltaPor(propios.error());
  if (propios->clase != ClaseDeArchivo::enlace) return true;
  auto const abierto = archivos.abrir(ruta);
  return abierto || !faltaPor(abierto.error());
}

std::string_view nombreBase(std::string_view ruta) { return ruta.substr(ruta.rfind('/') + 1); }

std::string unirRuta(std::string const& carpeta, std::string const& nombre) {
  return carpeta.ends_with('/') ? carpeta + nombre : carpeta + '/' + nombre;
}

}  // namespace zorve
