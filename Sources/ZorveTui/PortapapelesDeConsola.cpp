#include "ZorveTui/PortapapelesDeConsola.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace zorve::tui {

namespace {

/// RFC 4648.
std::string enBase64(std::string_view bytes) {
  constexpr std::string_view letras = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string texto;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    auto const grupo = bytes.substr(i, 3);
    std::uint32_t valor = 0;
    for (std::size_t j = 0; j < 3; ++j) {
      valor = valor << 8U | (j < grupo.size() ? static_cast<unsigned char>(grupo[j]) : 0U);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      texto += j <= grupo.size() ? letras[valor >> (18U - 6U * j) & 0x3FU] : '=';
    }
  }
  return texto;
}

}  // namespace

std::string secuenciaDeCopia(std::string_view texto) { return "\x1B]52;c;" + enBase64(texto) + "\x1B\\"; }

PortapapelesDeConsola::PortapapelesDeConsola(TmuxDeAqui tmux, Ejecutor const& ejecutor,
                                             Despachador& despachador)
    : tmux_{std::move(tmux)}, ejecutor_{ejecutor}, despachador_{despachador} {}

void PortapapelesDeConsola::copiar(std::string const& texto) {
  auto const secuencia = secuenciaDeCopia(texto);
  if (!tmux_.estamosDentro()) return escribir(secuencia);
  despachador_.enSegundoPlano([this, texto, secuencia] {
    std::array<std::string, 6> const args{"-S", tmux_.enchufePropio(), "set-buffer", "-w", "--", texto};
    auto const corrida = ejecutor_.correr(tmux_.programa, args);
    if (corrida && corrida->codigo == 0) return;
    despachador_.enPrincipal([this, secuencia] { escribir(secuencia); });
  });
}

}  // namespace zorve::tui
