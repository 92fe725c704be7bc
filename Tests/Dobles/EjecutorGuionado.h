#pragma once

#include <expected>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "ZorveCore/Terminales/Ejecutor.h"

namespace zorve::dobles {

/// A runner that starts nothing: it gives the answers it was told, by path and arguments, and keeps every
/// call. A program it was told nothing about does not exist.
class EjecutorGuionado final : public Ejecutor {
 public:
  using Palabras = std::vector<std::string>;
  using Respuesta = std::expected<ResultadoDeEjecucion, FalloDelSistema>;

  /// `palabras` are the path and then the arguments.
  EjecutorGuionado& contestar(Palabras palabras, Respuesta respuesta);
  /// What `ps` at `rutaPs` says of a process.
  EjecutorGuionado& proceso(std::int32_t pid, std::int32_t padre, std::string const& comando,
                            std::string const& tty = "??");

  [[nodiscard]] Respuesta correr(std::string const& ruta, std::span<std::string const> args) const override;
  [[nodiscard]] std::vector<Palabras> llamadas() const;

  static constexpr char const* rutaPs = "/bin/ps";

 private:
  std::map<Palabras, Respuesta> respuestas_;
  mutable std::mutex cerrojo_;
  mutable std::vector<Palabras> llamadas_;
};

}  // namespace zorve::dobles
