#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Dobles/Blancos.h"
#include "Dobles/SegundaLectura.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"

namespace zorve::dobles {

/// Titles and directories found the slow and obvious way, over a file held whole in memory and by another
/// parser than the program's: both windows cut out, every line of them tried in order.
class LecturaIngenua {
 public:
  /// Whether there was a line that the other parser cannot tell of; what was found does not count then.
  bool noSabe = false;

  [[nodiscard]] TranscriptScanner::Cabecera cabecera(std::string_view archivo, std::size_t tamanoListado) {
    constexpr auto ventana = static_cast<std::size_t>(TranscriptScanner::ventanaBytes);
    auto const inicio = tamanoListado > ventana ? tamanoListado - ventana : 0;
    auto hallada = deBloque(archivo.substr(std::min(inicio, archivo.size())));
    if (inicio == 0 || (hallada.aiTitle && hallada.cwd)) return hallada;
    auto const cabeza = deBloque(archivo.substr(0, ventana));
    if (!hallada.aiTitle) hallada.aiTitle = cabeza.aiTitle;
    if (!hallada.cwd) hallada.cwd = cabeza.cwd;
    return hallada;
  }

  /// The last title and the first directory of a block of lines.
  [[nodiscard]] TranscriptScanner::Cabecera deBloque(std::string_view bloque) {
    TranscriptScanner::Cabecera hallada;
    while (!bloque.empty()) {
      auto const fin = std::min(bloque.find('\n'), bloque.size());
      deLinea(bloque.substr(0, fin), hallada);
      bloque.remove_prefix(std::min(fin + 1, bloque.size()));
    }
    return hallada;
  }

 private:
  [[nodiscard]] static std::string const* textoEn(std::map<std::string, ValorLeido> const& leido,
                                                  char const* clave) {
    auto const lugar = leido.find(clave);
    return lugar == leido.end() ? nullptr : std::get_if<std::string>(&lugar->second);
  }

  void deLinea(std::string_view json, TranscriptScanner::Cabecera& hallada) {
    bool const conTitulo = json.contains("aiTitle");
    bool const conDirectorio = json.contains("\"cwd\"");
    if (!conTitulo && (!conDirectorio || hallada.cwd)) return;
    auto const segunda = leerOtraVez(json);
    noSabe = noSabe || segunda.noSabe;
    if (!segunda.leido) return;
    auto const* const tipo = textoEn(*segunda.leido, "type");
    auto const* const titulo = textoEn(*segunda.leido, "aiTitle");
    if (conTitulo && tipo != nullptr && titulo != nullptr && *tipo == "ai-title") hallada.aiTitle = *titulo;
    auto const* const cwd = textoEn(*segunda.leido, "cwd");
    if (hallada.cwd || !conDirectorio || cwd == nullptr) return;
    auto const recortado = sinBlancos(*cwd);
    if (recortado.starts_with('/')) hallada.cwd = std::string{recortado};
  }
};

}  // namespace zorve::dobles
