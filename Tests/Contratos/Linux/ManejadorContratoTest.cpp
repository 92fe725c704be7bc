#include <filesystem>

#include "Contratos/ManejadorContrato.h"
#include "Dobles/ManejadorFijo.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"

namespace zorve::contratos {
namespace {

std::unique_ptr<ManejadorDelSistema> fijo(dobles::CarpetaTemporal const& /*carpeta*/,
                                          std::optional<std::string> const& identificador) {
  return std::make_unique<dobles::ManejadorFijo>(std::string{tipoConocido}, identificador);
}

LugaresDelManejador lugares(dobles::CarpetaTemporal const& carpeta) {
  std::filesystem::permissions(carpeta.escribir("bin/kitty", "#!/bin/sh\n"), std::filesystem::perms{0755});
  return {.entorno = {.home = carpeta.ruta(), .path = {carpeta.dentro("bin")}, .configHome = carpeta.ruta()},
          .escritorio = "",
          .terminal = "",
          .enlace = carpeta.dentro("enlace")};
}

std::unique_ptr<ManejadorDelSistema> porEnlace(dobles::CarpetaTemporal const& carpeta,
                                               std::optional<std::string> const& identificador) {
  if (identificador) std::filesystem::create_symlink("/usr/bin/" + *identificador, carpeta.dentro("enlace"));
  return std::make_unique<ManejadorLinux>(lugares(carpeta));
}

std::unique_ptr<ManejadorDelSistema> porPrograma(dobles::CarpetaTemporal const& carpeta,
                                                 std::optional<std::string> const& identificador) {
  if (identificador) {
    auto const programa =
        carpeta.escribir("bin/xdg-terminal-exec", "#!/bin/sh\necho " + *identificador + ".desktop\n");
    std::filesystem::permissions(programa, std::filesystem::perms{0755});
  }
  return std::make_unique<ManejadorLinux>(lugares(carpeta));
}

std::unique_ptr<ManejadorDelSistema> porAjuste(dobles::CarpetaTemporal const& carpeta,
                                               std::optional<std::string> const& identificador) {
  if (identificador)
    carpeta.escribir("kdeglobals", "[General]\nTerminalApplication=" + *identificador + "\n");
  return std::make_unique<ManejadorLinux>(lugares(carpeta));
}

INSTANTIATE_TEST_SUITE_P(Todos, ContratoDelManejador,
                         testing::Values(std::pair{"Fijo", FabricaDeManejador{fijo}},
                                         std::pair{"PorEnlace", FabricaDeManejador{porEnlace}},
                                         std::pair{"PorPrograma", FabricaDeManejador{porPrograma}},
                                         std::pair{"PorAjuste", FabricaDeManejador{porAjuste}}),
                         [](auto const& caso) { return std::string{caso.param.first}; });

}  // namespace
}  // namespace zorve::contratos
