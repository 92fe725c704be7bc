#include "zorvectl/Contexto.h"

#include "ZorveCore/SessionIndex.h"
#include "ZorveCore/TextoVisible.h"
#include "ZorvePlatform/Posix/Hogar.h"

namespace zorve::ctl {

std::expected<std::string, std::string> hogarDe(std::string const& opcion) {
  if (opcion.empty()) return hogarDelUsuario();
  return hogarNombrado(opcion);
}

IndexResult leerSesiones(Contexto const& contexto, std::string const& home) {
  return SessionIndex::construir(contexto.archivos, contexto.procesos,
                                 SessionIndex::ubicacionesPorDefecto(home));
}

std::string lineaDeAviso(Contexto const& contexto, IndexError const& aviso) {
  auto const linea = std::string{textoCrudo(aviso.fuente)} + ": " + aviso.mensaje;
  return textoVisible(contexto.textoPropio(linea));
}

}  // namespace zorve::ctl
