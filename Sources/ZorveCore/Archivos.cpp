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

std::string unirRuta(std::string const& carpeta, std::string const& nombre) {
  return carpeta.ends_with('/') ? carpeta + nombre : carpeta + '/' + nombre;
}

}  // namespace zorve
