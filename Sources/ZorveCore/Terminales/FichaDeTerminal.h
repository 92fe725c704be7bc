#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// What draws the person's windows: an X server alone, the compositor sway or KWin, or anything else. GNOME's
/// compositor tells of windows by an extension of ours, which may be off.
enum class SesionGrafica : std::uint8_t { otra, x11, sway, kwin, gnome, gnomeSinExtension };

/// Tells which it is now. Any thread.
using SesionDeAhora = std::function<SesionGrafica()>;

/// Everything that tells one Linux terminal from another.
struct FichaDeTerminal {
  /// Saved as the person's choice ("org.kde.konsole").
  std::string identificador;
  /// Shown to people.
  std::string nombre;
  /// The file name of its desktop entry.
  std::string entradaDeEscritorio;
  /// Its executables' names, the preferred one first.
  std::vector<std::string> programas;
  /// What follows the executable's name; the words of the command to run come after them.
  std::vector<std::string> argumentos;
  /// The names of the processes that host its shells, as `ps -o comm=` cuts them (15 characters).
  std::vector<std::string> procesos;
  /// The words of the command arrive as one text, quoted for a shell.
  bool unSoloTexto = false;
  /// Stands for whichever terminal the system starts under the name x-terminal-emulator.
  bool esCualquierOtra = false;
  /// Where a session's window can be found and brought to the front.
  std::vector<SesionGrafica> enfocableEn = {};
  /// The words that open a window in a process of the terminal that is there already and waits for such; they
  /// fail at once where there is none. The words of the command to run come after them.
  std::vector<std::string> cliente = {};
};

/// The known Linux terminals, in the order in which they are listed. Any thread.
[[nodiscard]] std::span<FichaDeTerminal const> fichasDeLinux();

/// The row with this identifier, ignoring case, or null.
[[nodiscard]] FichaDeTerminal const* fichaDeLinux(std::string_view identificador);

}  // namespace zorve
