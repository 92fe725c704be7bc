#pragma once

#include <vector>

#include "ZorveTerminal/Bus.h"
#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// The windows of GNOME's compositor, which our extension of it tells: those of the processes asked for
/// alone.
class VentanasDeGnome final : public Ventanas {
 public:
  explicit VentanasDeGnome(std::vector<pid_t> const& procesos);

  [[nodiscard]] bool abierta() const override;
  [[nodiscard]] std::vector<Ventana> todas() const override;
  [[nodiscard]] bool activar(std::uint64_t id, std::chrono::milliseconds plazo) const override;

 private:
  Bus bus_;
  std::vector<std::uint32_t> procesos_;
};

/// Whether the extension is on: it answers for the compositor's own process.
[[nodiscard]] bool hayExtensionDeGnome(Bus const& bus);

/// What draws this process's windows, and whether GNOME's compositor tells of them now.
[[nodiscard]] SesionGrafica sesionDeAhora();

}  // namespace zorve::ayudante
