#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// Every node of sway's tree (the text of its reply) that has a process, in the order of the tree; none when
/// the text is not understood.
[[nodiscard]] std::vector<Ventana> ventanasDelArbol(std::string_view arbol);

/// The windows of the compositor sway, through the socket whose path $SWAYSOCK gives.
class Sway final : public Ventanas {
 public:
  Sway();

  [[nodiscard]] bool abierta() const override;
  [[nodiscard]] std::vector<Ventana> todas() const override;
  /// sway answers when it is done: `plazo` is not needed.
  [[nodiscard]] bool activar(std::uint64_t id, std::chrono::milliseconds plazo) const override;

 private:
  [[nodiscard]] std::optional<std::string> preguntar(std::uint32_t tipo, std::string_view texto) const;

  Descriptor enchufe_;
};

}  // namespace zorve::ayudante
