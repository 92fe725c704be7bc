#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "ZorveApp/Estilo.h"
#include "ZorveTui/Golpe.h"

namespace zorve::tui {

/// What a key asks for.
enum class Orden : std::uint8_t {
  subir,
  bajar,
  paginaArriba,
  paginaAbajo,
  primera,
  ultima,
  abrir,
  refrescar,
  copiar,
  dejar,
  suspender,
  redibujar,
  izquierda,
  derecha,
  inicio,
  fin,
  borrarAtras,
  borrarAdelante,
  borrarPalabra,
  borrarTodo,
};

/// Text for the search, typed or pasted.
struct Escrito {
  std::string texto;
  bool operator==(Escrito const&) const = default;
};

/// The terminal's answers to what it is asked at the start: its background, that it has synchronised output,
/// and the one that every terminal gives last.
struct RespuestaDeFondo {
  Color fondo;
  bool operator==(RespuestaDeFondo const&) const = default;
};
struct TieneSincronia {
  bool operator==(TieneSincronia const&) const = default;
};
struct FinDeRespuestas {
  bool operator==(FinDeRespuestas const&) const = default;
};

using Suceso = std::variant<Orden, Escrito, Raton, RespuestaDeFondo, TieneSincronia, FinDeRespuestas>;

/// Makes out what keys, pastes and answers mean, over any number of bursts. Sequences that nobody knows are
/// dropped whole.
class Descifrador {
 public:
  /// One burst: what came at once. An escape at its end is the key.
  [[nodiscard]] std::vector<Suceso> descifrar(std::span<Golpe const> golpes);

 private:
  enum class Estado : std::uint8_t { llano, escape, secuencia, unaMas, cadena, cadenaEscape };

  void byte(unsigned char cual);
  void tecla(TeclaDeTerminal cual);
  void llano(unsigned char cual);
  void trasEscape(unsigned char cual);
  void enSecuencia(unsigned char cual);
  void enCadena(unsigned char cual);
  void terminarSecuencia(unsigned char ultimo);
  void terminarCadena();
  void agregarTexto();

  std::vector<Suceso> sucesos_;
  Estado estado_ = Estado::llano;
  bool pegando_ = false;
  std::string texto_;
  std::string secuencia_;
};

}  // namespace zorve::tui
