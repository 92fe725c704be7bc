#include "ZorveCore/Texto/Filtro.h"

#include <algorithm>
#include <numeric>

#include "ZorveCore/Texto/BuscadorAscii.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

void juntar(std::string& destino, Session const& sesion) {
  destino = sesion.titulo;
  destino += ' ';
  destino += sesion.cwd;
  destino += ' ';
  if (sesion.ultimoPrompt) destino += *sesion.ultimoPrompt;
}

bool esUtf8(std::string_view texto) {
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    if (punto < 0) return false;
    texto.remove_prefix(bytes);
  }
  return true;
}

bool acabaEnCaracter(std::string_view texto, std::size_t largo) {
  while (largo > 0) {
    auto const bytes = puntoAlInicio(texto).bytes;
    if (bytes > largo) return false;
    texto.remove_prefix(bytes);
    largo -= bytes;
  }
  return true;
}

std::size_t dondeEstanLosCaracteres(std::string_view texto, std::string_view ficha, std::size_t desde) {
  std::size_t donde = 0;
  while (texto.size() - donde >= ficha.size()) {
    auto const resto = texto.substr(donde);
    if (donde >= desde && resto.starts_with(ficha) && acabaEnCaracter(resto, ficha.size())) return donde;
    if (resto.empty()) break;
    donde += puntoAlInicio(resto).bytes;
  }
  return std::string_view::npos;
}

class Criba {
 public:
  Criba(std::span<std::string const> fichas, ReglaDePlegado regla) : fichas_{fichas}, regla_{regla} {
    for (auto const& ficha : fichas) {
      buscadores_.emplace_back(ficha, regla);
      margen_ = std::max(margen_, BuscadorAscii::margen + ficha.size());
    }
  }

  bool pasa(Session const& sesion) {
    juntar(texto_, sesion);
    auto const largo = texto_.size();
    texto_.resize(largo + margen_);
    std::string_view const texto{texto_.data(), largo};
    if (esAscii(texto)) {
      return std::ranges::all_of(buscadores_, [texto](auto const& uno) { return uno.esta(texto); });
    }
    plegado_.clear();
    agregarPlegado(plegado_, texto, regla_);
    return coincide(plegado_, fichas_);
  }

 private:
  std::span<std::string const> fichas_;
  ReglaDePlegado regla_;
  std::vector<BuscadorAscii> buscadores_;
  std::size_t margen_ = 0;
  std::string texto_;
  std::string plegado_;
};

}  // namespace

std::vector<std::string> fichasDe(std::string_view consulta, ReglaDePlegado regla) {
  std::vector<std::string> fichas;
  for (auto const pieza : palabras(consulta)) {
    if (auto ficha = plegar(pieza, regla); !ficha.empty()) fichas.push_back(std::move(ficha));
  }
  return fichas;
}

std::string textoDeBusqueda(Session const& sesion, ReglaDePlegado regla) {
  std::string texto;
  juntar(texto, sesion);
  return plegar(texto, regla);
}

std::size_t dondeEsta(std::string_view textoPlegado, std::string_view ficha, std::size_t desde) {
  return esUtf8(ficha) ? textoPlegado.find(ficha, desde)
                       : dondeEstanLosCaracteres(textoPlegado, ficha, desde);
}

bool coincide(std::string_view textoPlegado, std::span<std::string const> fichas) {
  return std::ranges::all_of(fichas, [textoPlegado](auto const& ficha) {
    return dondeEsta(textoPlegado, ficha, 0) != std::string_view::npos;
  });
}

std::vector<std::size_t> filtrar(std::span<Session const> sesiones, std::string_view consulta,
                                 ReglaDePlegado regla) {
  auto const fichas = fichasDe(consulta, regla);
  std::vector<std::size_t> posiciones(sesiones.size());
  std::iota(posiciones.begin(), posiciones.end(), std::size_t{0});
  if (fichas.empty()) return posiciones;
  Criba criba{fichas, regla};
  std::erase_if(posiciones, [&](std::size_t i) { return !criba.pasa(sesiones[i]); });
  return posiciones;
}

}  // namespace zorve
