#include "ZorveApp/Qt/Etiquetas.h"

#include <algorithm>

#include "ZorveApp/Qt/Conversiones.h"

namespace zorve {

namespace {

bool separa(char16_t c) {
  return (c >= u'\t' && c <= u'\r') || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

bool gobiernaLaDireccion(char16_t c) {
  return c == u'\u061c' || c == u'\u200e' || c == u'\u200f' || (c >= u'\u202a' && c <= u'\u202e') ||
         (c >= u'\u2066' && c <= u'\u2069');
}

bool engana(char16_t c) {
  return c < u' ' || (c >= u'\u007f' && c <= u'\u009f') || gobiernaLaDireccion(c) ||
         (c >= u'\ufff9' && c <= u'\ufffc');
}

char16_t visible(char16_t c, bool variasLineas) {
  if (variasLineas && c == u'\n') return c;
  if (separa(c)) return u' ';
  return engana(c) ? u'\ufffd' : c;
}

QString preparado(std::string_view texto, qsizetype largo, bool variasLineas) {
  auto todo = aQString(texto.substr(0, static_cast<std::size_t>(largo) * 4));
  bool const cortado = todo.size() > largo || texto.size() > static_cast<std::size_t>(largo) * 4;
  if (todo.size() > largo) todo.truncate(largo);
  if (cortado && todo.back().isHighSurrogate()) todo.chop(1);
  std::ranges::transform(todo, todo.begin(),
                         [&](QChar c) { return QChar{visible(c.unicode(), variasLineas)}; });
  return cortado ? todo + QChar{u'…'} : todo;
}

}  // namespace

QString enUnaLinea(std::string_view texto) { return preparado(texto, largoDeUnaLinea, false); }

QString enVariasLineas(std::string_view texto) { return preparado(texto, largoDeUnAviso, true); }

}  // namespace zorve
