#include <filesystem>
#include <stdexcept>

#include "Terminales/Escritorio.h"

namespace zorve::pruebas {

bool Escritorio::esperarEnchufe(std::string const& principio, std::string const& variable) {
  return esperarA([&] {
    for (auto const& entrada : std::filesystem::directory_iterator{home_.dentro("r")}) {
      auto const nombre = entrada.path().filename().string();
      if (!nombre.starts_with(principio) || nombre.ends_with(".lock")) continue;
      variables[variable] = variable == "SWAYSOCK" ? entrada.path().string() : nombre;
      return true;
    }
    return false;
  });
}

void Escritorio::empezarSway() {
  variables["WLR_BACKENDS"] = "headless";
  variables["WLR_LIBINPUT_NO_DEVICES"] = "1";
  variables["WLR_RENDERER"] = "pixman";
  variables["XDG_SESSION_TYPE"] = "wayland";
  empezarBus();
  home_.escribir("sway.conf", "output HEADLESS-1 resolution 1600x1000\nxwayland disable\n");
  empezar({"sway", "-c", home_.dentro("sway.conf")});
  if (!esperarEnchufe("wayland-", "WAYLAND_DISPLAY") || !esperarEnchufe("sway-ipc", "SWAYSOCK")) {
    throw std::runtime_error("no sway: " + leerArchivoDePrueba(home_.dentro("registro-sway.error")));
  }
  // The bus came first; what it starts needs to know the display.
  (void)correr({"dbus-update-activation-environment", "WAYLAND_DISPLAY", "SWAYSOCK"});
}

void Escritorio::empezarKWin() {
  variables["XDG_SESSION_TYPE"] = "wayland";
  variables["XDG_CURRENT_DESKTOP"] = "KDE";
  // Software rendering.
  variables["KWIN_COMPOSE"] = "Q";
  empezarBus();
  home_.escribir(".config/kwinrc", "[Desktops]\nNumber=2\nRows=1\n");
  // A copy carries no file capability, which an ordinary user of a container may not be allowed.
  auto const copia = home_.dentro("kwin_wayland");
  std::filesystem::copy_file("/usr/bin/kwin_wayland", copia);
  empezar({copia, "--virtual", "--width", "1600", "--height", "1000", "--socket", "wayland-0",
           "--no-lockscreen", "--no-global-shortcuts"});
  auto const manda = [this] {
    return correr({"dbus-send", "--session", "--print-reply", "--dest=org.kde.KWin", "/Scripting",
                   "org.freedesktop.DBus.Peer.Ping"})
               .codigo == 0;
  };
  if (!esperarEnchufe("wayland-", "WAYLAND_DISPLAY") || !esperarA(manda)) {
    throw std::runtime_error("no KWin: " + leerArchivoDePrueba(home_.dentro("registro-kwin_wayland.error")));
  }
  (void)correr({"dbus-update-activation-environment", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"});
}

}  // namespace zorve::pruebas
