#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Exigir.h"
#include "ZorveTerminal/Orden.h"

namespace zorve::fuzz {
namespace {

using namespace ayudante;

std::vector<std::string> argumentosDe(std::string_view bytes) {
  std::vector<std::string> todos;
  while (!bytes.empty()) {
    auto const fin = std::min(bytes.find('\0'), bytes.size());
    todos.emplace_back(bytes.substr(0, fin));
    bytes.remove_prefix(std::min(fin + 1, bytes.size()));
  }
  return todos;
}

std::string enMinusculas(std::string texto) {
  for (char& letra : texto) {
    if (letra >= 'A' && letra <= 'Z') letra = static_cast<char>(letra - 'A' + 'a');
  }
  return texto;
}

/// The identifier of the terminal that the word names, "" for none. Words of ASCII alone.
std::string terminal(std::string const& palabra) {
  constexpr std::string_view conocidas[] = {"org.gnome.Terminal",
                                            "org.kde.konsole",
                                            "kitty",
                                            "xfce4-terminal",
                                            "Alacritty",
                                            "foot",
                                            "ghostty-linux",
                                            "org.wezfurlong.wezterm",
                                            "org.gnome.Console",
                                            "com.gexperts.Tilix",
                                            "qterminal",
                                            "terminator",
                                            "xterm",
                                            "x-terminal-emulator"};
  for (auto const una : conocidas) {
    if (enMinusculas(std::string{una}) == enMinusculas(palabra)) return std::string{una};
  }
  return {};
}

bool esAscii(std::string const& texto) {
  return std::ranges::all_of(texto, [](char letra) { return static_cast<unsigned char>(letra) < 0x80; });
}

/// Between 1 and the greatest process number.
bool esProceso(std::string const& texto) {
  if (texto.empty() || texto.find_first_not_of("0123456789") != std::string::npos) return false;
  auto const desde = texto.find_first_not_of('0');
  if (desde == std::string::npos || texto.size() - desde > 10) return false;
  return std::stoll(texto) <= std::numeric_limits<std::int32_t>::max();
}

/// The words of an order, one a line, so that two can be compared.
std::string enLinea(Orden const& orden) {
  struct Dicho {
    std::string operator()(PedirAyuda const&) const { return "help"; }
    std::string operator()(PedirVersion const&) const { return "version"; }
    std::string operator()(PedirEscritorio const&) const { return "desktop"; }
    std::string operator()(PedirAbrir const& p) const {
      return "open\n" + p.ficha->identificador + "\n" + p.directorio + "\n" + p.orden;
    }
    std::string operator()(PedirEnfocar const& p) const {
      return "focus\n" + p.ficha->identificador + "\n" + p.tty + "\n" + std::to_string(p.pid.value_or(0));
    }
    std::string operator()(PedirEnfocarTmux const& p) const {
      return "tmux\n" + p.tty + "\n" + (p.elegida == nullptr ? "" : p.elegida->identificador) + "\n" +
             std::to_string(p.pid.value_or(0));
    }
  };
  return std::visit(Dicho{}, orden);
}

/// The same by the usage text, or nothing for wrong usage.
std::optional<std::string> esperada(std::vector<std::string> const& a) {
  auto const n = a.size();
  if (n == 1 && (a[0] == "--help" || a[0] == "--version")) return a[0].substr(2);
  if (n == 1 && a[0] == "desktop") return a[0];
  if (n == 4 && a[0] == "open" && !terminal(a[1]).empty()) {
    return "open\n" + terminal(a[1]) + "\n" + a[2] + "\n" + a[3];
  }
  if (n < 3 || a[0] != "focus") return std::nullopt;
  if (a[1] == "tmux") {
    if (n > 5 || (n > 3 && terminal(a[3]).empty()) || (n > 4 && !esProceso(a[4]))) return std::nullopt;
    return "tmux\n" + a[2] + "\n" + (n > 3 ? terminal(a[3]) : "") + "\n" +
           std::to_string(n > 4 ? std::stol(a[4]) : 0);
  }
  if (n > 4 || terminal(a[1]).empty() || (n > 3 && !esProceso(a[3]))) return std::nullopt;
  return "focus\n" + terminal(a[1]) + "\n" + a[2] + "\n" + std::to_string(n > 3 ? std::stol(a[3]) : 0);
}

void probar(std::string_view bytes) {
  auto const argumentos = argumentosDe(bytes);
  auto const orden = leerOrden(argumentos);
  if (!orden) exigir(!orden.error().empty());
  if (!std::ranges::all_of(argumentos, esAscii)) return;
  auto const debida = esperada(argumentos);
  exigir(orden.has_value() == debida.has_value());
  if (orden) exigir(enLinea(*orden) == *debida);
}

}  // namespace
}  // namespace zorve::fuzz

/// Any arguments of the helper are the order that its usage text gives them, or wrong usage.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
