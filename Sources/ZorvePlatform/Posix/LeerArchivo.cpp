#include "ZorvePlatform/Posix/LeerArchivo.h"

#include <cerrno>
#include <utility>

#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {

std::expected<std::string, FalloDelSistema> leerArchivo(std::string const& ruta, std::size_t tope) {
  ArchivosPosix archivos;
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return std::unexpected{archivo.error()};
  auto const tamano = (*archivo)->tamano();
  if (!tamano) return std::unexpected{tamano.error()};
  if (std::cmp_greater(*tamano, tope)) return std::unexpected{FalloDelSistema::deErrno(EFBIG)};
  std::string texto(tope + 1, '\0');
  if (std::cmp_less(*tamano, tope)) texto.resize(static_cast<std::size_t>(*tamano) + 1);
  auto const leidos = (*archivo)->leer(0, texto);
  if (!leidos) return std::unexpected{leidos.error()};
  if (*leidos > tope) return std::unexpected{FalloDelSistema::deErrno(EFBIG)};
  texto.resize(*leidos);
  return texto;
}

}  // namespace zorve
