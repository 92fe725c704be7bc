#include "ZorveTerminal/Entorno.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve::ayudante {

namespace {

/// A name that ends in "*" stands for all that begin so.
constexpr std::array<std::string_view, 16> ajenas{"WINDOWID",      "TMUX",
                                                  "TMUX_PANE",     "STY",
                                                  "KITTY_*",       "GNOME_TERMINAL_*",
                                                  "KONSOLE_*",     "TILIX_ID",
                                                  "WEZTERM_*",     "GHOSTTY_*",
                                                  "ALACRITTY_*",   "VTE_VERSION",
                                                  "TERM_PROGRAM*", "SHELL_SESSION_ID",
                                                  "CLAUDECODE",    "ZORVE_*"};

bool esAjena(std::string_view nombre) {
  return std::ranges::any_of(ajenas, [nombre](std::string_view ajena) {
    return ajena.ends_with('*') ? nombre.starts_with(ajena.substr(0, ajena.size() - 1)) : nombre == ajena;
  });
}

}  // namespace

std::vector<std::string> entornoLimpio(std::span<std::string const> entorno) {
  std::vector<std::string> limpio;
  std::ranges::copy_if(entorno, std::back_inserter(limpio), [](std::string_view variable) {
    return !esAjena(variable.substr(0, variable.find('=')));
  });
  return limpio;
}

std::string valorEn(std::span<std::string const> entorno, std::string const& nombre) {
  auto const prefijo = nombre + "=";
  auto const it =
      std::ranges::find_if(entorno, [&](std::string_view variable) { return variable.starts_with(prefijo); });
  return it == entorno.end() ? std::string{} : it->substr(prefijo.size());
}

std::string shellDeLaPersona(std::span<std::string const> entorno) {
  auto elegida = valorEn(entorno, "SHELL");
  if (esEjecutable(elegida)) return elegida;
  passwd const* const cuenta = ::getpwuid(::getuid());
  if (cuenta != nullptr && esEjecutable(cuenta->pw_shell)) return cuenta->pw_shell;
  return "/bin/sh";
}

}  // namespace zorve::ayudante
