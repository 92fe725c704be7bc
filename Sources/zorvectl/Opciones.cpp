#include "zorvectl/Opciones.h"

namespace zorve::ctl {

CLI::Option* agregarTexto(CLI::App& orden, std::string const& nombre, std::optional<std::string>& destino,
                          std::string const& ayuda) {
  return orden.add_option_function<std::string>(
      nombre, [&destino](std::string const& dicho) { destino = dicho; }, ayuda);
}

void agregarOpcionHome(CLI::App& orden, std::string& home) {
  orden.add_option("--home", home, "The home directory to look in, instead of the user's")
      ->type_name("DIR")
      ->check(
          [](std::string const& ruta) { return std::string{ruta.empty() ? "DIR must not be empty" : ""}; });
}

}  // namespace zorve::ctl
