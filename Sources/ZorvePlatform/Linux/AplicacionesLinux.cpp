#include "ZorvePlatform/Linux/AplicacionesLinux.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorvePlatform/Linux/EntradaDeEscritorio.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"

namespace zorve {

namespace {

constexpr std::size_t topeDeEntrada = 1U << 20U;

constexpr std::string_view cualquierOtra = "x-terminal-emulator";
constexpr int maximoDeEnlaces = 16;

/// Whether `ruta` is there and none of the names that its links lead through is a known terminal's.
bool esTerminalDesconocida(std::filesystem::path ruta) {
  if (ruta.empty()) return false;
  for (int i = 0; i < maximoDeEnlaces; ++i) {
    if (terminalDelPrograma(ruta.native())) return false;
    std::error_code error;
    auto const destino = std::filesystem::read_symlink(ruta, error);
    if (error) return true;
    ruta = ruta.parent_path() / destino;
  }
  return false;
}

/// The program of the desktop entry with this file name; empty when there is no such entry, it is hidden, or
/// its program does not exist.
std::string programaDeLaEntrada(EntornoLinux const& entorno, std::string const& archivo) {
  for (auto const& datos : entorno.datos) {
    auto const texto = leerArchivo(unirRuta(unirRuta(datos, "applications"), archivo), topeDeEntrada);
    if (!texto) continue;
    auto const entrada = leerEntradaDeEscritorio(*texto);
    return entrada.oculta ? std::string{} : ejecutableEn(entorno, entrada.tryExec.value_or(entrada.programa));
  }
  return {};
}

}  // namespace

AplicacionesLinux::AplicacionesLinux(EntornoLinux entorno) : entorno_{std::move(entorno)} {}

bool AplicacionesLinux::hay(std::string const& identificador) const {
  if (identificador.empty() || identificador.contains('/') || identificador.contains('\0')) return false;
  if (identificador == cualquierOtra) return esTerminalDesconocida(ejecutableEn(entorno_, identificador));
  if (!ejecutableEn(entorno_, identificador).empty()) return true;
  auto const entrada = identificador + ".desktop";
  auto const ficha = std::ranges::find(fichasDeLinux(), entrada, &FichaDeTerminal::entradaDeEscritorio);
  return ficha == fichasDeLinux().end() ? !programaDeLaEntrada(entorno_, entrada).empty()
                                        : !programaDe(*ficha, entorno_).empty();
}

std::string programaDe(FichaDeTerminal const& ficha, EntornoLinux const& entorno) {
  for (auto const& nombre : ficha.programas) {
    if (auto ruta = ejecutableEn(entorno, nombre); !ruta.empty()) return ruta;
  }
  auto ruta = programaDeLaEntrada(entorno, ficha.entradaDeEscritorio);
  bool const suya = std::ranges::find(ficha.programas, nombreBase(ruta)) != ficha.programas.end();
  return suya ? ruta : std::string{};
}

}  // namespace zorve
