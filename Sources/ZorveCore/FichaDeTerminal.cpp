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
      {.identificador = "org.gnome.Terminal",
       .nombre = "GNOME Terminal",
       .entradaDeEscritorio = "org.gnome.Terminal.desktop",
       .programas = {"gnome-terminal"},
       .argumentos = {"--window", "--"},
       .procesos = {"gnome-terminal-"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "org.kde.konsole",
       .nombre = "Konsole",
       .entradaDeEscritorio = "org.kde.konsole.desktop",
       .programas = {"konsole"},
       .argumentos = {"-e"},
       .procesos = {"konsole"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "kitty",
       .nombre = "kitty",
       .entradaDeEscritorio = "kitty.desktop",
       .programas = {"kitty"},
       .argumentos = {},
       .procesos = {"kitty"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "xfce4-terminal",
       .nombre = "Xfce Terminal",
       .entradaDeEscritorio = "xfce4-terminal.desktop",
       .programas = {"xfce4-terminal"},
       .argumentos = {"-x"},
       .procesos = {"xfce4-terminal"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "Alacritty",
       .nombre = "Alacritty",
       .entradaDeEscritorio = "Alacritty.desktop",
       .programas = {"alacritty"},
       .argumentos = {"-e"},
       .procesos = {"alacritty"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "foot",
       .nombre = "foot",
       .entradaDeEscritorio = "foot.desktop",
       .programas = {"foot"},
       .argumentos = {},
       .procesos = {"foot"},
       .enfocableEn = {SesionGrafica::sway},
       .cliente = {"footclient", "--no-wait"}},
      {.identificador = "ghostty-linux",
       .nombre = "Ghostty",
       .entradaDeEscritorio = "com.mitchellh.ghostty.desktop",
       .programas = {"ghostty"},
       .argumentos = {"-e"},
       .procesos = {"ghostty"}},
      {.identificador = "org.wezfurlong.wezterm",
       .nombre = "WezTerm",
       .entradaDeEscritorio = "org.wezfurlong.wezterm.desktop",
       .programas = {"wezterm"},
       .argumentos = {"start", "--"},
       .procesos = {"wezterm-gui", "wezterm"}},
      {.identificador = "org.gnome.Console",
       .nombre = "GNOME Console",
       .entradaDeEscritorio = "org.gnome.Console.desktop",
       .programas = {"kgx"},
       .argumentos = {"--"},
       .procesos = {"kgx"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "com.gexperts.Tilix",
       .nombre = "Tilix",
       .entradaDeEscritorio = "com.gexperts.Tilix.desktop",
       .programas = {"tilix"},
       .argumentos = {"--action=app-new-window", "-e"},
       .procesos = {"tilix"},
       .unSoloTexto = true,
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "qterminal",
       .nombre = "QTerminal",
       .entradaDeEscritorio = "qterminal.desktop",
       .programas = {"qterminal"},
       .argumentos = {"-e"},
       .procesos = {"qterminal"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway}},
      {.identificador = "terminator",
       .nombre = "Terminator",
       .entradaDeEscritorio = "terminator.desktop",
       .programas = {"terminator"},
       .argumentos = {"--no-dbus", "-x"},
       .procesos = {"terminator"},
       .enfocableEn = {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin}},
      {.identificador = "xterm",
       .nombre = "xterm",
       .entradaDeEscritorio = "debian-xterm.desktop",
       .programas = {"xterm"},
       .argumentos = {"-e"},
       .procesos = {"xterm"},
       .enfocableEn = {SesionGrafica::x11}},
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
