#include "ZorvePlatform/Linux/AplicacionesLinux.h"

#include <utility>

#include "ZorveCore/Archivos.h"
#include "ZorvePlatform/Linux/EntradaDeEscritorio.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"

namespace zorve {

namespace {

constexpr std::size_t topeDeEntrada = 1U << 20U;

}  // namespace

AplicacionesLinux::AplicacionesLinux(EntornoLinux entorno) : entorno_{std::move(entorno)} {}

bool AplicacionesLinux::hay(std::string const& identificador) const {
  if (identificador.empty() || identificador.contains('/') || identificador.contains('\0')) return false;
  return !ejecutableEn(entorno_, identificador).empty() ||
         !programaDeLaEntrada(entorno_, identificador).empty();
}

std::string programaDeLaEntrada(EntornoLinux const& entorno, std::string const& identificador) {
  for (auto const& datos : entorno.datos) {
    auto const texto =
        leerArchivo(unirRuta(unirRuta(datos, "applications"), identificador + ".desktop"), topeDeEntrada);
    if (!texto) continue;
    auto const entrada = leerEntradaDeEscritorio(*texto);
    return entrada.oculta ? std::string{} : ejecutableEn(entorno, entrada.tryExec.value_or(entrada.programa));
  }
  return {};
}

}  // namespace zorve
