#include "ZorveCore/FichaDeTerminal.h"

#include <algorithm>

namespace zorve {

namespace {

char minuscula(char letra) {
  return letra >= 'A' && letra <= 'Z' ? static_cast<char>(letra - 'A' + 'a') : letra;
}

}  // namespace

std::span<FichaDeTerminal const> fichasDeLinux() {
  static std::vector<FichaDeTerminal> const fichas{
      {"org.gnome.Terminal",
       "GNOME Terminal",
       "org.gnome.Terminal.desktop",
       {"gnome-terminal"},
       {"--window", "--"},
       {"gnome-terminal-"}},
      {"org.kde.konsole", "Konsole", "org.kde.konsole.desktop", {"konsole"}, {"-e"}, {"konsole"}},
      {"kitty", "kitty", "kitty.desktop", {"kitty"}, {}, {"kitty"}},
      {"xfce4-terminal",
       "Xfce Terminal",
       "xfce4-terminal.desktop",
       {"xfce4-terminal"},
       {"-x"},
       {"xfce4-terminal"}},
      {"Alacritty", "Alacritty", "Alacritty.desktop", {"alacritty"}, {"-e"}, {"alacritty"}},
      {"foot", "foot", "foot.desktop", {"foot"}, {}, {"foot"}},
      {"ghostty-linux", "Ghostty", "com.mitchellh.ghostty.desktop", {"ghostty"}, {"-e"}, {"ghostty"}},
      {"org.wezfurlong.wezterm",
       "WezTerm",
       "org.wezfurlong.wezterm.desktop",
       {"wezterm"},
       {"start", "--"},
       {"wezterm-gui", "wezterm"}},
      {"org.gnome.Console", "GNOME Console", "org.gnome.Console.desktop", {"kgx"}, {"--"}, {"kgx"}},
      {"com.gexperts.Tilix",
       "Tilix",
       "com.gexperts.Tilix.desktop",
       {"tilix"},
       {"--action=app-new-window", "-e"},
       {"tilix"},
       true},
      {"qterminal", "QTerminal", "qterminal.desktop", {"qterminal"}, {"-e"}, {"qterminal"}},
      {"terminator", "Terminator", "terminator.desktop", {"terminator"}, {"--no-dbus", "-x"}, {"terminator"}},
      {"xterm", "xterm", "debian-xterm.desktop", {"xterm"}, {"-e"}, {"xterm"}},
      {.identificador = "x-terminal-emulator",
       .nombre = "x-terminal-emulator",
       .entradaDeEscritorio = "x-terminal-emulator.desktop",
       .programas = {"x-terminal-emulator"},
       .argumentos = {"-e"},
       .procesos = {},
       .esCualquierOtra = true},
  };
  return fichas;
}

FichaDeTerminal const* fichaDeLinux(std::string_view identificador) {
  for (auto const& ficha : fichasDeLinux()) {
    if (std::ranges::equal(ficha.identificador, identificador, {}, minuscula, minuscula)) return &ficha;
  }
  return nullptr;
}

}  // namespace zorve
