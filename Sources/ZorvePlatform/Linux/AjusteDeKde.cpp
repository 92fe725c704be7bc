#include "ZorvePlatform/Linux/AjusteDeKde.h"

#include <algorithm>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

/// A name with what stands in brackets behind it: "General[$i]", "TerminalApplication[$ei]".
struct Nombre {
  std::string_view nombre;
  std::string_view marcas;
  bool deUnIdioma = false;

  [[nodiscard]] bool tiene(char marca) const { return marcas.contains(marca); }
};

Nombre nombreDe(std::string_view texto) {
  Nombre nombre{.nombre = recortarAscii(texto.substr(0, texto.find('[')))};
  for (auto i = texto.find('['); i != std::string_view::npos; i = texto.find('[', i + 1)) {
    auto const dentro = texto.substr(i + 1, texto.find(']', i) - i - 1);
    if (dentro.starts_with('$')) {
      nombre.marcas = dentro.substr(1);
    } else {
      nombre.deUnIdioma = true;
    }
  }
  return nombre;
}

class Lectura {
 public:
  Lectura(std::string_view grupo, std::string_view clave) : grupo_{grupo}, clave_{clave} {}

  void archivo(std::string_view texto) {
    if (fijo_) return;
    enElGrupo_ = false;
    bool fija = false;
    while (!texto.empty()) fija = linea(recortarAscii(sacarLinea(texto))) || fija;
    fijo_ = fija;
  }

  [[nodiscard]] std::optional<std::string> const& valor() const { return valor_; }

 private:
  /// Whether the line locks the setting for the files that follow.
  bool linea(std::string_view texto) {
    if (texto.starts_with('[')) return cabecera(texto);
    if (!enElGrupo_ || texto.starts_with('#')) return false;
    auto const igual = std::min(texto.find('='), texto.size());
    auto const nombre = nombreDe(texto.substr(0, igual));
    if (nombre.nombre != clave_ || nombre.deUnIdioma) return false;
    valor_.reset();
    if (!nombre.tiene('d') && igual < texto.size()) {
      if (auto const valor = recortarAscii(texto.substr(igual + 1)); !valor.empty()) valor_ = valor;
    }
    return nombre.tiene('i');
  }

  bool cabecera(std::string_view texto) {
    if (texto == "[$i]") return true;
    auto const cierre = std::min(texto.find(']'), texto.size());
    auto const resto = recortarAscii(texto.substr(std::min(cierre + 1, texto.size())));
    bool const fija = resto == "[$i]";
    enElGrupo_ = texto.substr(1, cierre - 1) == grupo_ && (resto.empty() || fija);
    return enElGrupo_ && fija;
  }

  std::string_view grupo_;
  std::string_view clave_;
  bool enElGrupo_ = false;
  bool fijo_ = false;
  std::optional<std::string> valor_;
};

}  // namespace

std::optional<std::string> ajusteDeKde(std::span<std::string const> textos, std::string_view grupo,
                                       std::string_view clave) {
  Lectura lectura{grupo, clave};
  for (auto const& texto : textos) lectura.archivo(texto);
  return lectura.valor();
}

}  // namespace zorve
