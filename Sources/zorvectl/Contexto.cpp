#include "zorvectl/Contexto.h"

#include "ZorveCore/Lectura/SessionIndex.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorvePlatform/Posix/Hogar.h"

namespace zorve::ctl {

std::expected<std::string, std::string> hogarDe(std::string const& opcion) {
  if (opcion.empty()) return hogarDelUsuario();
  return hogarNombrado(opcion);
}

IndexResult leerSesiones(Contexto const& contexto, std::string const& home, VocesDelSistema const& voces) {
  return SessionIndex::construir(contexto.archivos, contexto.procesos,
                                 SessionIndex::ubicacionesPorDefecto(home), voces);
}

std::string lineaDeAviso(IndexError const& aviso) {
  return textoVisible(std::string{textoCrudo(aviso.fuente)} + ": " + aviso.mensaje);
}

}  // namespace zorve::ctl
