#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveApp/Estilo.h"
#include "ZorveTui/Trazo.h"

namespace zorve::tui {

/// How many colours a terminal has.
enum class Profundidad : std::uint8_t { ninguna, dieciseis, doscientosCincuentaYSeis, directa };

/// What a terminal's environment says of it.
struct SenasDeColor {
  std::string noColor;
  std::string colorTerm;
  std::string colorFgBg;
  /// The "colors" of its description; -1 for none.
  int colores = -1;
};

/// None where NO_COLOR is set to something; 24 bits where COLORTERM says so or the description has them.
[[nodiscard]] Profundidad profundidadDe(SenasDeColor const& senas);

/// The background by COLORFGBG ("15;0"), or nothing.
[[nodiscard]] std::optional<Color> fondoDelEntorno(std::string_view colorFgBg);

/// The background that a terminal answers to OSC 11 ("rgb:1e1e/1e1e/2e2e", one to four digits each), or
/// nothing.
[[nodiscard]] std::optional<Color> fondoDeRespuesta(std::string_view respuesta);

/// Relation of luminances, from 1 to 21, as the Web Content Accessibility Guidelines 2.1 define it.
[[nodiscard]] double contraste(Color const& uno, Color const& otro);

/// The style's colours for one terminal. `fondo` is its background, where that is known; without it text
/// keeps to what can be read on light and on dark. Text has a contrast of at least 4.5, lines and marks of 2.
class Paleta {
 public:
  Paleta() = default;
  Paleta(Profundidad profundidad, std::optional<Color> fondo);

  /// The control sequence that puts the stroke in force, whatever was before (ECMA-48, SGR; 24 bits as
  /// ISO 8613-6 has them, written with semicolons as terminals take them).
  [[nodiscard]] std::string secuencia(Trazo const& trazo) const;
  [[nodiscard]] Color color(Tinta tinta) const;
  bool operator==(Paleta const&) const = default;

 private:
  void agregarTinta(std::string& destino, Tinta tinta) const;
  void agregarSeleccion(std::string& destino) const;

  Profundidad profundidad_ = Profundidad::ninguna;
  std::optional<Color> fondo_;
};

/// The nearest of the 240 fixed colours of a 256-colour terminal (16 to 255).
[[nodiscard]] int masCercano(Color const& color);

}  // namespace zorve::tui
