#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveTerminal/Bus.h"
#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// What a script of ours says about one window.
struct VentanaDeKWin {
  /// KWin's own name for it, in braces.
  std::string nombre;
  Ventana ventana;
  bool operator==(VentanaDeKWin const&) const = default;
};

/// The windows in a script's answer, without identifiers; none when the text is not understood.
[[nodiscard]] std::vector<VentanaDeKWin> ventanasDeLaRespuesta(std::string_view respuesta);

/// The windows of the compositor KWin, which tells them to scripts alone (KWin scripting API, KDE's
/// documentation). Each question is a script that it loads, runs and forgets, and that calls back over D-Bus.
class VentanasDeKWin final : public Ventanas {
 public:
  [[nodiscard]] bool abierta() const override;
  [[nodiscard]] std::vector<Ventana> todas() const override;
  [[nodiscard]] bool activar(std::uint64_t id, std::chrono::milliseconds plazo) const override;

 private:
  [[nodiscard]] std::optional<std::string> correr(std::string const& guion) const;
  [[nodiscard]] std::uint64_t idDe(std::string const& nombre) const;

  Bus bus_;
  /// How many questions were asked: the late answer to one must not be taken for the next one's.
  mutable unsigned preguntas_ = 0;
  /// The windows seen so far: a window's identifier is its place, from 1.
  mutable std::vector<std::string> nombres_;
};

}  // namespace zorve::ayudante
