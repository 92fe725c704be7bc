#pragma once

#include <cstdint>
#include <optional>

namespace zorve {

/// The keys that the program gives a meaning; every other key is `caracter`.
enum class Tecla : std::uint8_t { arriba, abajo, retorno, escape, caracter };

/// Modifier keys held down, as a set. Caps lock and the keypad are no modifiers here.
enum class Modificador : std::uint8_t {
  ninguno = 0,
  mando = 1U << 0U,  ///< Command, Meta
  control = 1U << 1U,
  mayusculas = 1U << 2U,
  opcion = 1U << 3U,
  otro = 1U << 4U,
};

[[nodiscard]] constexpr Modificador operator|(Modificador uno, Modificador otro) {
  return static_cast<Modificador>(static_cast<std::uint8_t>(uno) | static_cast<std::uint8_t>(otro));
}

/// One key press. `caracter` is what the key gives without its modifiers, for `Tecla::caracter` only.
/// `repetida`: the key is held down and this is not its first press.
struct Pulsacion {
  Tecla tecla = Tecla::caracter;
  char32_t caracter = 0;
  Modificador modificadores = Modificador::ninguno;
  bool repetida = false;
};

enum class AccionDelPanel : std::uint8_t {
  subir,
  bajar,
  abrir,
  esconder,
  refrescar,
  copiar,
  salir,
  ajustes,
  nada,  ///< the key is taken and does nothing: Return held down
};

enum class AccionDeAjustes : std::uint8_t { cerrar, salir };

/// What a key does in the panel; nothing when it is not the panel's and goes on to whoever is next.
/// `principal` is the system's shortcut modifier: Command on macOS, Control on Linux.
[[nodiscard]] std::optional<AccionDelPanel> accionDelPanel(Pulsacion const& pulsacion, Modificador principal);

/// The same for the settings window.
[[nodiscard]] std::optional<AccionDeAjustes> accionDeAjustes(Pulsacion const& pulsacion,
                                                             Modificador principal);

}  // namespace zorve
