#include "ZorveCore/Texto/BuscadorAscii.h"

#include <algorithm>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

constexpr std::string_view iSinPunto = "\u0131";
constexpr std::string_view deComunARara = " eaoinsrtlcdumpg/hb-.fyvkwxjqz";

std::size_t rareza(char byte) { return std::min(deComunARara.find(byte), deComunARara.size()); }

std::string mayusculas(std::string texto, ReglaDePlegado regla) {
  for (char& byte : texto) {
    bool const tieneOtra = byte >= 'a' && byte <= 'z' && !(regla == ReglaDePlegado::turca && byte == 'i');
    if (tieneOtra) byte = static_cast<char>(byte - ('a' - 'A'));
  }
  return texto;
}

std::string conIMayuscula(std::string texto) {
  for (auto i = texto.find(iSinPunto); i != std::string::npos; i = texto.find(iSinPunto, i)) {
    texto.replace(i, iSinPunto.size(), "I");
  }
  return texto;
}

}  // namespace

BuscadorAscii::BuscadorAscii(std::string_view ficha, ReglaDePlegado regla) : unaCaja_{ficha} {
  if (regla == ReglaDePlegado::turca) unaCaja_ = conIMayuscula(unaCaja_);
  otraCaja_ = mayusculas(unaCaja_, regla);
  imposible_ = !esAscii(unaCaja_);
  std::size_t primera = 0;
  for (std::size_t i = 1; i < unaCaja_.size(); ++i) {
    if (rareza(unaCaja_[i]) > rareza(unaCaja_[primera])) primera = i;
  }
  std::size_t segunda = primera == 0 && unaCaja_.size() > 1 ? 1 : 0;
  for (std::size_t i = 0; i < unaCaja_.size(); ++i) {
    if (i != primera && rareza(unaCaja_[i]) > rareza(unaCaja_[segunda])) segunda = i;
  }
  primera_ = anclaEn(primera);
  segunda_ = anclaEn(segunda);
}

BuscadorAscii::Ancla BuscadorAscii::anclaEn(std::size_t posicion) const {
  if (unaCaja_.empty()) return {};
  return {posicion, unaCaja_[posicion], otraCaja_[posicion]};
}

bool BuscadorAscii::algunaEnElBloque(char const* desde) const {
  char const* const uno = desde + primera_.posicion;
  char const* const dos = desde + segunda_.posicion;
  auto const [sinUso, una, otra] = primera_;
  auto const [sinUso2, una2, otra2] = segunda_;
  unsigned char junto = 0;
  for (std::size_t i = 0; i < margen; ++i) {
    unsigned char const cae = static_cast<unsigned char>(uno[i] == una) | (uno[i] == otra);
    unsigned char const cae2 = static_cast<unsigned char>(dos[i] == una2) | (dos[i] == otra2);
    junto |= cae & cae2;
  }
  return junto != 0;
}

bool BuscadorAscii::coincideEn(char const* desde) const {
  for (std::size_t i = 0; i < unaCaja_.size(); ++i) {
    if (desde[i] != unaCaja_[i] && desde[i] != otraCaja_[i]) return false;
  }
  return true;
}

bool BuscadorAscii::esta(std::string_view texto) const {
  if (unaCaja_.empty()) return true;
  if (imposible_ || texto.size() < unaCaja_.size()) return false;
  char const* const fin = texto.data() + (texto.size() - unaCaja_.size() + 1);
  for (char const* bloque = texto.data(); bloque < fin; bloque += margen) {
    if (!algunaEnElBloque(bloque)) continue;
    for (char const* p = bloque; p < std::min(bloque + margen, fin); ++p) {
      if (coincideEn(p)) return true;
    }
  }
  return false;
}

}  // namespace zorve
