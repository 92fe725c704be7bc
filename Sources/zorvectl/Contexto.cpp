#include "zorvectl/Contexto.h"

#include "ZorveCore/Lectura/SessionIndex.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorvePlatform/Posix/Home.h"

namespace zorve::ctl {

std::expected<std::string, std::string> homeDe(std::string const& opcion) {
  if (opcion.empty()) return homeDelUsuario();
  return homeNombrado(opcion);
}

IndexResult leerSesiones(Contexto const& contexto, std::string const& home, VocesDelSistema const& voces) {
  return SessionIndex::construir(contexto.archivos, contexto.procesos,
                                 SessionIndex::ubicacionesPorDefecto(home), voces);
}

std::string lineaDeAviso(IndexError const& aviso) {
  return textoVisible(std::string{textoCrudo(aviso.fuente)} + ": " + aviso.mensaje);
}

}  // namespace zorve::ctl
