#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/Terminales/ManejadorDelSistema.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Where the system says which terminal it uses, in the order in which it is asked.
enum class FuenteDelManejador : std::uint8_t { xdgTerminalExec, kdeglobals, gsettings, terminal, enlace };

/// The known terminal that the system uses, and who said so.
struct TerminalDelSistema {
  std::string identificador;
  FuenteDelManejador fuente = FuenteDelManejador::enlace;
  bool operator==(TerminalDelSistema const&) const = default;
};

/// What the lookup needs to know of the person's session.
struct LugaresDelManejador {
  static constexpr char const* enlacePorDefecto = "/etc/alternatives/x-terminal-emulator";

  EntornoLinux entorno;
  /// $XDG_CURRENT_DESKTOP.
  std::string escritorio;
  /// $TERMINAL.
  std::string terminal;
  /// The link behind x-terminal-emulator.
  std::string enlace = enlacePorDefecto;
  /// How long each program may take.
  std::chrono::milliseconds plazo{1000};

  /// From this process's environment. Call it before other threads run.
  [[nodiscard]] static LugaresDelManejador delProceso(EntornoLinux entorno);
};

/// The system's terminal: what xdg-terminal-exec prints, KDE's kdeglobals, the GNOME-like setting, $TERMINAL,
/// the alternatives link. An answer that is no known terminal counts as none, and so does one that is not
/// installed, but for the link's, which is the last.
/// Each question runs programs, each bounded.
class ManejadorLinux final : public ManejadorDelSistema {
 public:
  /// All of this process's places, with $HOME as the home.
  ManejadorLinux();
  explicit ManejadorLinux(LugaresDelManejador lugares);
  /// The link alone.
  explicit ManejadorLinux(std::string enlace);

  /// Any `tipo` but the one of shell scripts has no handler.
  [[nodiscard]] RespuestaDelSistema preguntar(std::string_view tipo) const override;
  /// The terminal of shell scripts, and its source.
  [[nodiscard]] std::optional<TerminalDelSistema> buscar() const;

 private:
  [[nodiscard]] std::optional<std::string> dichaPor(FuenteDelManejador fuente) const;

  LugaresDelManejador lugares_;
};

/// How a person knows the source ("xdg-terminal-exec", "kdeglobals", "gsettings", "$TERMINAL",
/// "x-terminal-emulator").
[[nodiscard]] std::string_view nombreDe(FuenteDelManejador fuente);

/// The identifier of the known terminal that the program at `ruta` starts; Debian's ".wrapper" scripts stand
/// for the program they wrap. Nothing when it is none.
[[nodiscard]] std::optional<std::string> terminalDelPrograma(std::string_view ruta);

/// The identifier of the known terminal with this desktop entry ("foot.desktop"), whatever follows a colon;
/// nothing when it is none.
[[nodiscard]] std::optional<std::string> terminalDeLaEntrada(std::string_view entrada);

}  // namespace zorve
