#include "ZorveApp/LineaDeReanudacion.h"

#include "ZorveCore/Terminales/Tecleado.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve {

std::optional<std::string> lineaDeReanudacion(Session const& sesion) {
  if (!sesion.sessionId) return std::nullopt;
  // No shell takes a directory of this name for an option.
  auto const directorio = sesion.cwd.starts_with('-') ? "./" + sesion.cwd : sesion.cwd;
  auto linea = "cd " + palabraDeCualquierShell(directorio) + " && claude -r " +
               palabraDeCualquierShell(*sesion.sessionId);
  return tieneControles(linea) ? std::nullopt : std::optional{std::move(linea)};
}

}  // namespace zorve
