#pragma once

#include <QWindow>

namespace zorve {

/// Whether the windows are drawn by GNOME's compositor, over Wayland.
[[nodiscard]] bool sobreGnome();

/// Has our extension of GNOME Shell, where it is on, hang `ventana`, which has just been shown, under the
/// tray icon, give it the keyboard and close it by a click on the wallpaper. Waits for nothing. Main thread.
void colgarDelIcono(QWindow const& ventana);

}  // namespace zorve
