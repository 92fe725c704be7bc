#include "Dobles/EjecutorGuionado.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace zorve::dobles {

EjecutorGuionado& EjecutorGuionado::contestar(Palabras palabras, Respuesta respuesta) {
  respuestas_.insert_or_assign(std::move(palabras), std::move(respuesta));
  return *this;
}

EjecutorGuionado& EjecutorGuionado::proceso(std::int32_t pid, std::int32_t padre, std::string const& comando,
                                            std::string const& tty) {
  auto const numero = std::to_string(pid);
  contestar({rutaPs, "-o", "tty=", "-p", numero}, ResultadoDeEjecucion{0, tty + "\n"});
  return contestar({rutaPs, "-o", "ppid=,comm=", "-p", numero},
                   ResultadoDeEjecucion{0, "  " + std::to_string(padre) + " " + comando + "\n"});
}

EjecutorGuionado::Respuesta EjecutorGuionado::correr(std::string const& ruta,
                                                     std::span<std::string const> args) const {
  Palabras palabras{ruta};
  palabras.insert(palabras.end(), args.begin(), args.end());
  std::scoped_lock const turno{cerrojo_};
  llamadas_.push_back(palabras);
  auto const tieneNul = [](std::string const& texto) { return texto.contains('\0'); };
  if (std::ranges::any_of(palabras, tieneNul)) return std::unexpected{FalloDelSistema::deErrno(EINVAL)};
  auto const hallada = respuestas_.find(palabras);
  if (hallada == respuestas_.end()) return std::unexpected{FalloDelSistema::deErrno(ENOENT)};
  return hallada->second;
}

std::vector<EjecutorGuionado::Palabras> EjecutorGuionado::llamadas() const {
  std::scoped_lock const turno{cerrojo_};
  return llamadas_;
}

}  // namespace zorve::dobles
