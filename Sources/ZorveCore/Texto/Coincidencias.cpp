#include "ZorveCore/Texto/Coincidencias.h"

#include <algorithm>

#include "ZorveCore/Texto/Filtro.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

/// User-perceived characters shown before a match and after it.
constexpr std::size_t antesDelTrozo = 40;
constexpr std::size_t despuesDelTrozo = 80;
constexpr std::size_t largoTrasElTrozo = 2048;

bool esAsciiElByte(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

/// The character at the start, and what follows it without a base of its own.
std::string_view caracterAlInicio(std::string_view texto) {
  if (texto.size() < 2 || (esAsciiElByte(texto[0]) && esAsciiElByte(texto[1]))) return texto.substr(0, 1);
  auto largo = primerosCaracteres(texto, 1).size();
  while (largo < texto.size() && esMarcaSuelta(texto.substr(largo))) {
    largo += primerosCaracteres(texto.substr(largo), 1).size();
  }
  return texto.substr(0, largo);
}

/// At most `bytes` of `texto`, whole characters.
std::string_view acotado(std::string_view texto, std::size_t bytes) {
  if (texto.size() <= bytes) return texto;
  auto corte = bytes;
  while (corte > 0 && (static_cast<unsigned char>(texto[corte]) & 0xC0U) == 0x80U) --corte;
  return texto.substr(0, corte);
}

/// A folded text that knows which character each of its bytes came from.
class PlegadoConOrigen {
 public:
  PlegadoConOrigen(std::string_view texto, ReglaDePlegado regla) {
    plegado_.reserve(texto.size());
    caracteres_.reserve(texto.size());
    std::size_t leidos = 0;
    while (leidos < texto.size()) {
      auto const caracter = caracterAlInicio(texto.substr(leidos));
      agregarPlegado(plegado_, caracter, regla);
      leidos += caracter.size();
      caracteres_.push_back({.enTexto = leidos, .enPlegado = plegado_.size()});
    }
  }

  [[nodiscard]] std::string_view plegado() const { return plegado_; }

  /// The characters that the folded part came from.
  [[nodiscard]] Tramo origen(Tramo enPlegado) const {
    auto const primero = std::ranges::upper_bound(caracteres_, enPlegado.desde, {}, &Caracter::enPlegado);
    auto const ultimo = std::ranges::lower_bound(caracteres_, enPlegado.hasta, {}, &Caracter::enPlegado);
    return {primero == caracteres_.begin() ? 0 : std::prev(primero)->enTexto, ultimo->enTexto};
  }

 private:
  /// Where it ends.
  struct Caracter {
    std::size_t enTexto = 0;
    std::size_t enPlegado = 0;
  };

  std::string plegado_;
  std::vector<Caracter> caracteres_;
};

/// Where the words occur in a folded text.
std::vector<Tramo> ocurrencias(std::string_view plegado, std::span<std::string const> fichas) {
  std::vector<Tramo> todas;
  for (auto const& ficha : fichas) {
    auto donde = dondeEsta(plegado, ficha, 0);
    while (donde != std::string_view::npos) {
      todas.push_back({donde, donde + ficha.size()});
      donde = dondeEsta(plegado, ficha, donde + 1);
    }
  }
  return todas;
}

/// In order; those that touch are one.
std::vector<Tramo> fundidos(std::vector<Tramo> tramos) {
  std::ranges::sort(tramos, {}, &Tramo::desde);
  std::vector<Tramo> juntos;
  for (auto const& tramo : tramos) {
    if (juntos.empty() || tramo.desde > juntos.back().hasta) {
      juntos.push_back(tramo);
    } else {
      juntos.back().hasta = std::max(juntos.back().hasta, tramo.hasta);
    }
  }
  return juntos;
}

/// Where a text is ASCII and no letter folds to two bytes, its folded text has its length.
bool pliegaByteAByte(std::string_view texto, ReglaDePlegado regla) {
  return regla == ReglaDePlegado::general && esAscii(texto);
}

std::vector<Tramo> tramosEn(std::string_view texto, std::span<std::string const> fichas,
                            ReglaDePlegado regla) {
  if (fichas.empty()) return {};
  auto const plegado = plegar(texto, regla);
  auto tramos = ocurrencias(plegado, fichas);
  if (tramos.empty() || pliegaByteAByte(texto, regla)) return fundidos(std::move(tramos));
  PlegadoConOrigen const conOrigen{texto, regla};
  tramos = ocurrencias(conOrigen.plegado(), fichas);
  for (auto& tramo : tramos) tramo = conOrigen.origen(tramo);
  return fundidos(std::move(tramos));
}

std::string_view ultimosCaracteres(std::string_view texto, std::size_t cuantos) {
  constexpr std::size_t holgura = 4;
  auto const alcance = cuantos * holgura;
  auto resto = texto.size() > alcance ? texto.substr(acotado(texto, texto.size() - alcance).size()) : texto;
  std::vector<std::size_t> principios;
  for (std::size_t leidos = 0; leidos < resto.size();) {
    principios.push_back(leidos);
    leidos += caracterAlInicio(resto.substr(leidos)).size();
  }
  if (principios.size() > cuantos) resto.remove_prefix(principios[principios.size() - cuantos]);
  return resto;
}

std::string enUnRenglon(std::string_view texto) {
  std::string renglon;
  for (auto const palabra : palabras(texto)) {
    if (!renglon.empty()) renglon += ' ';
    renglon += palabra;
  }
  return renglon;
}

std::string alrededorDe(Tramo tramo, std::string_view texto) {
  auto const antes = ultimosCaracteres(texto.substr(0, tramo.desde), antesDelTrozo);
  auto const despues =
      primerosCaracteres(acotado(texto.substr(tramo.hasta), largoTrasElTrozo), despuesDelTrozo);
  auto const desde = tramo.desde - antes.size();
  auto const hasta = tramo.hasta + despues.size();
  auto trozo = enUnRenglon(texto.substr(desde, hasta - desde));
  return (desde > 0 ? "…" : "") + trozo + (hasta < texto.size() ? "…" : "");
}

}  // namespace

std::vector<Tramo> tramosDe(std::string_view texto, std::span<std::string const> fichas,
                            ReglaDePlegado regla) {
  return tramosEn(acotado(texto, largoConMarcas), fichas, regla);
}

std::string trozoQueCoincide(std::string_view titulo, std::string_view cwd, std::string_view prompt,
                             std::span<std::string const> fichas, ReglaDePlegado regla) {
  auto const enTitulo = plegar(titulo, regla);
  auto const enRuta = plegar(cwd, regla);
  auto const mirado = acotado(prompt, largoDelPrompt);
  for (auto const& ficha : fichas) {
    auto const sola = std::span{&ficha, 1};
    if (coincide(enTitulo, sola) || coincide(enRuta, sola)) continue;
    auto const tramos = tramosEn(mirado, sola, regla);
    return tramos.empty() ? std::string{} : alrededorDe(tramos.front(), prompt);
  }
  return {};
}

}  // namespace zorve
