#include "zorvectl/Ordenes.h"

namespace zorve::ctl {

void agregarOpcionHome(CLI::App& orden, std::string& home) {
  orden.add_option("--home", home, "The home directory to look in, instead of the user's")
      ->type_name("DIR")
      ->check(
          [](std::string const& ruta) { return std::string{ruta.empty() ? "DIR must not be empty" : ""}; });
}

}  // namespace zorve::ctl
