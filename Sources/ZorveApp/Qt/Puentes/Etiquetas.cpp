#include "ZorveApp/Qt/Puentes/Etiquetas.h"

#include <algorithm>

#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve {

namespace {

bool separa(char16_t c) {
  return (c >= u'\t' && c <= u'\r') || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

bool imponeLaDireccion(char16_t c) { return c >= u'\u202a' && c <= u'\u202e'; }

bool aisla(char16_t c) { return c >= u'\u2066' && c <= u'\u2068'; }

constexpr char16_t finDeAislamiento = u'\u2069';

bool engana(char16_t c) {
  return c < u' ' || (c >= u'\u007f' && c <= u'\u009f') || imponeLaDireccion(c) ||
         (c >= u'\ufff9' && c <= u'\ufffc');
}

char16_t visible(char16_t c, bool variasLineas) {
  if (variasLineas && c == u'\n') return c;
  if (separa(c)) return u' ';
  return engana(c) ? u'\ufffd' : c;
}

/// Every isolate ends within its text, and nothing ends that did not begin in it.
QString conAislamientosCerrados(QString texto) {
  qsizetype abiertos = 0;
  for (auto& c : texto) {
    if (aisla(c.unicode())) ++abiertos;
    if (c != finDeAislamiento) continue;
    if (abiertos == 0)
      c = u'\ufffd';
    else
      --abiertos;
  }
  return texto + QString{abiertos, QChar{finDeAislamiento}};
}

QString preparado(std::string_view texto, qsizetype largo, bool variasLineas) {
  auto todo = aQString(texto.substr(0, static_cast<std::size_t>(largo) * 4));
  bool const cortado = todo.size() > largo || texto.size() > static_cast<std::size_t>(largo) * 4;
  if (todo.size() > largo) todo.truncate(largo);
  if (cortado && todo.back().isHighSurrogate()) todo.chop(1);
  std::ranges::transform(todo, todo.begin(),
                         [&](QChar c) { return QChar{visible(c.unicode(), variasLineas)}; });
  return conAislamientosCerrados(cortado ? todo + QChar{u'…'} : todo);
}

}  // namespace

QString enUnaLinea(std::string_view texto) { return preparado(texto, largoDeUnaLinea, false); }

QString enVariasLineas(std::string_view texto) { return preparado(texto, largoDeUnAviso, true); }

}  // namespace zorve
