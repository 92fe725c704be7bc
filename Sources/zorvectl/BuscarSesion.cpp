#include "zorvectl/BuscarSesion.h"

#include <algorithm>
#include <vector>

namespace zorve::ctl {

namespace {

constexpr std::size_t nombradasComoMucho = 3;

std::string ambigua(std::string_view texto, std::vector<Session const*> const& candidatas) {
  std::string linea = std::to_string(candidatas.size()) + " sessions begin with " + std::string{texto} + " (";
  for (std::size_t i = 0; i < std::min(candidatas.size(), nombradasComoMucho); ++i) {
    linea += (i == 0 ? "" : ", ") + *candidatas[i]->sessionId;
  }
  return linea + (candidatas.size() > nombradasComoMucho ? ", …" : "") + "); give more of the identifier";
}

}  // namespace

std::expected<Session const*, std::string> buscarSesion(std::span<Session const> sesiones,
                                                        std::string_view texto) {
  std::vector<Session const*> candidatas;
  for (auto const& sesion : sesiones) {
    if (!sesion.sessionId || !sesion.sessionId->starts_with(texto)) continue;
    if (sesion.sessionId->size() == texto.size()) return &sesion;
    candidatas.push_back(&sesion);
  }
  if (candidatas.size() == 1) return candidatas.front();
  if (candidatas.empty()) {
    return std::unexpected{"no session has the identifier " + std::string{texto} + " or one that begins so"};
  }
  return std::unexpected{ambigua(texto, candidatas)};
}

}  // namespace zorve::ctl
