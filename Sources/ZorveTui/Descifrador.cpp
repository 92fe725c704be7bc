#include "ZorveTui/Descifrador.h"

#include <optional>
#include <utility>

#include "ZorveCore/Texto/Texto.h"
#include "ZorveTui/Paleta.h"

namespace zorve::tui {

namespace {

constexpr unsigned char escape = 0x1B;
constexpr unsigned char campana = 0x07;
constexpr unsigned char suprimir = 0x7F;
/// A terminal's answer is no longer; whatever is ends here.
constexpr std::size_t cadenaComoMucho = 256;

constexpr unsigned char control(char letra) { return static_cast<unsigned char>(letra & 0x1F); }

std::optional<Orden> ordenDe(unsigned char byte) {
  switch (byte) {
    case control('A'):
      return Orden::inicio;
    case control('B'):
      return Orden::izquierda;
    case control('C'):
    case control('Q'):
      return Orden::dejar;
    case control('D'):
      return Orden::borrarAdelante;
    case control('E'):
      return Orden::fin;
    case control('F'):
      return Orden::derecha;
    case control('H'):
    case suprimir:
      return Orden::borrarAtras;
    case control('J'):
    case control('M'):
      return Orden::abrir;
    case control('L'):
      return Orden::redibujar;
    case control('N'):
      return Orden::bajar;
    case control('P'):
      return Orden::subir;
    case control('R'):
      return Orden::refrescar;
    case control('U'):
      return Orden::borrarTodo;
    case control('W'):
      return Orden::borrarPalabra;
    case control('Y'):
      return Orden::copiar;
    case control('Z'):
      return Orden::suspender;
    default:
      return std::nullopt;
  }
}

std::optional<Orden> ordenDe(TeclaDeTerminal tecla) {
  switch (tecla) {
    case TeclaDeTerminal::arriba:
      return Orden::subir;
    case TeclaDeTerminal::abajo:
      return Orden::bajar;
    case TeclaDeTerminal::izquierda:
      return Orden::izquierda;
    case TeclaDeTerminal::derecha:
      return Orden::derecha;
    case TeclaDeTerminal::inicio:
      return Orden::inicio;
    case TeclaDeTerminal::fin:
      return Orden::fin;
    case TeclaDeTerminal::controlInicio:
      return Orden::primera;
    case TeclaDeTerminal::controlFin:
      return Orden::ultima;
    case TeclaDeTerminal::paginaArriba:
      return Orden::paginaArriba;
    case TeclaDeTerminal::paginaAbajo:
      return Orden::paginaAbajo;
    case TeclaDeTerminal::retorno:
      return Orden::abrir;
    case TeclaDeTerminal::borrarAtras:
      return Orden::borrarAtras;
    case TeclaDeTerminal::borrarAdelante:
      return Orden::borrarAdelante;
    default:
      return std::nullopt;
  }
}

/// Whether `texto` ends within a character whose other bytes are still to come.
bool quedaAMedias(std::string_view texto) {
  std::size_t continuan = 0;
  while (continuan < texto.size() && continuan < 3) {
    auto const byte = static_cast<unsigned char>(texto[texto.size() - 1 - continuan]);
    if (byte < 0x80) return false;
    if (byte >= 0xC0) {
      std::size_t const largo = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
      return continuan + 1 < largo;
    }
    ++continuan;
  }
  return false;
}

}  // namespace

std::vector<Suceso> Descifrador::descifrar(std::span<Golpe const> golpes) {
  for (auto const& golpe : golpes) {
    if (auto const* uno = std::get_if<unsigned char>(&golpe)) {
      byte(*uno);
    } else if (auto const* cual = std::get_if<TeclaDeTerminal>(&golpe)) {
      tecla(*cual);
    } else {
      agregarTexto();
      sucesos_.emplace_back(std::get<Raton>(golpe));
    }
  }
  if (estado_ == Estado::escape) {
    estado_ = Estado::llano;
    sucesos_.emplace_back(Orden::dejar);
  }
  if (!pegando_ && !quedaAMedias(texto_)) agregarTexto();
  return std::exchange(sucesos_, {});
}

void Descifrador::agregarTexto() {
  if (texto_.empty()) return;
  sucesos_.emplace_back(Escrito{std::exchange(texto_, {})});
}

void Descifrador::byte(unsigned char cual) {
  switch (estado_) {
    case Estado::llano:
      return llano(cual);
    case Estado::escape:
      return trasEscape(cual);
    case Estado::secuencia:
      return enSecuencia(cual);
    case Estado::unaMas:
      estado_ = Estado::llano;
      return;
    case Estado::cadena:
    case Estado::cadenaEscape:
      return enCadena(cual);
  }
}

void Descifrador::tecla(TeclaDeTerminal cual) {
  estado_ = Estado::llano;
  if (cual == TeclaDeTerminal::empiezaPegado) {
    agregarTexto();
    pegando_ = true;
  } else if (cual == TeclaDeTerminal::terminaPegado) {
    pegando_ = false;
    agregarTexto();
  } else if (auto const orden = ordenDe(cual); orden && !pegando_) {
    agregarTexto();
    sucesos_.emplace_back(*orden);
  }
}

void Descifrador::llano(unsigned char cual) {
  if (cual == escape) {
    estado_ = Estado::escape;
  } else if (pegando_ || (cual >= ' ' && cual != suprimir)) {
    texto_ += static_cast<char>(cual);
  } else if (auto const orden = ordenDe(cual)) {
    agregarTexto();
    sucesos_.emplace_back(*orden);
  }
}

void Descifrador::trasEscape(unsigned char cual) {
  secuencia_.clear();
  switch (cual) {
    case '[':
      estado_ = Estado::secuencia;
      return;
    case 'O':
      estado_ = Estado::unaMas;
      return;
    case ']':
    case 'P':
    case '_':
    case '^':
      estado_ = Estado::cadena;
      secuencia_ += static_cast<char>(cual);
      return;
    case escape:
      return;
    default:
      estado_ = Estado::llano;
  }
}

void Descifrador::enSecuencia(unsigned char cual) {
  secuencia_ += static_cast<char>(cual);
  bool const ultimo = cual >= 0x40 && cual <= 0x7E;
  if (!ultimo && secuencia_.size() < cadenaComoMucho && cual != escape) return;
  estado_ = cual == escape ? Estado::escape : Estado::llano;
  if (ultimo) terminarSecuencia(cual);
}

void Descifrador::terminarSecuencia(unsigned char ultimo) {
  if (secuencia_ == "?2026;1$y" || secuencia_ == "?2026;2$y") sucesos_.emplace_back(TieneSincronia{});
  if (ultimo == 'c' && secuencia_.starts_with('?')) sucesos_.emplace_back(FinDeRespuestas{});
}

void Descifrador::enCadena(unsigned char cual) {
  bool const cierra = cual == campana || (estado_ == Estado::cadenaEscape && cual == '\\');
  if (cierra) return terminarCadena();
  estado_ = cual == escape ? Estado::cadenaEscape : Estado::cadena;
  if (cual != escape) secuencia_ += static_cast<char>(cual);
  if (secuencia_.size() > cadenaComoMucho) estado_ = Estado::llano;
}

void Descifrador::terminarCadena() {
  constexpr std::string_view delFondo = "]11;";
  estado_ = Estado::llano;
  if (!secuencia_.starts_with(delFondo)) return;
  if (auto const fondo = fondoDeRespuesta(std::string_view{secuencia_}.substr(delFondo.size()))) {
    sucesos_.emplace_back(RespuestaDeFondo{*fondo});
  }
}

}  // namespace zorve::tui
