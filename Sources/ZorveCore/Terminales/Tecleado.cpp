#include "ZorveCore/Terminales/Tecleado.h"

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve {

namespace {

constexpr std::int32_t primeraLetra = 0x20;
constexpr std::int32_t suprimir = 0x7F;
constexpr std::int32_t ultimoControl = 0x9F;

bool esControl(std::int32_t punto) {
  return (punto < primeraLetra && punto != '\t' && punto != '\n') ||
         (punto >= suprimir && punto <= ultimoControl);
}

/// The script's programs are typed into terminals by AppleScript alone: "osascript -e SCRIPT".
bool teclea(ComandoDeApertura const& comando) { return nombreBase(comando.ejecutable) == "osascript"; }

/// What stands between "cd '" and "' && " in the script, else all of it.
std::string_view directorioDe(std::string_view guion) {
  constexpr std::string_view antes = "cd '";
  constexpr std::string_view despues = "' && ";
  auto const desde = guion.find(antes);
  auto const hasta = guion.rfind(despues);
  if (desde == std::string_view::npos || hasta == std::string_view::npos || hasta < desde + antes.size()) {
    return guion;
  }
  return guion.substr(desde + antes.size(), hasta - desde - antes.size());
}

}  // namespace

bool tieneControles(std::string_view texto) {
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    // A byte that is no UTF-8 is what it is in the terminals' older encodings.
    if (esControl(punto < 0 ? static_cast<unsigned char>(texto.front()) : punto)) return true;
    texto.remove_prefix(bytes);
  }
  return false;
}

std::optional<std::string> loQueNoSeTeclea(std::span<ComandoDeApertura const> comandos) {
  for (auto const& comando : comandos) {
    if (!teclea(comando)) continue;
    for (auto const& texto : comando.args) {
      if (tieneControles(texto)) return textoVisible(directorioDe(texto));
    }
  }
  return std::nullopt;
}

}  // namespace zorve
