#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/Lectura/RegistroJson.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve::dobles {

/// Titles and directories found the slow and obvious way, over a file held whole in memory: both windows cut
/// out, every line of them tried in order.
class LecturaIngenua {
 public:
  [[nodiscard]] TranscriptScanner::Cabecera cabecera(std::string_view archivo, std::size_t tamanoListado) {
    constexpr auto ventana = static_cast<std::size_t>(TranscriptScanner::ventanaBytes);
    auto const inicio = tamanoListado > ventana ? tamanoListado - ventana : 0;
    auto const cola = inicio < archivo.size() ? archivo.substr(inicio) : std::string_view{};
    TranscriptScanner::Cabecera hallada{titulo(cola), directorio(cola)};
    if (inicio == 0 || (hallada.aiTitle && hallada.cwd)) return hallada;
    auto const cabeza = archivo.substr(0, ventana);
    if (!hallada.aiTitle) hallada.aiTitle = titulo(cabeza);
    if (!hallada.cwd) hallada.cwd = directorio(cabeza);
    return hallada;
  }

  [[nodiscard]] std::optional<std::string> titulo(std::string_view bloque) {
    std::optional<std::string> ultimo;
    cadaLinea(bloque, [&](std::string_view linea) {
      if (!linea.contains("aiTitle")) return;
      RegistroJson::Campo const campos[] = {{"type"}, {"aiTitle"}};
      RegistroJson::Valor valores[2];
      if (!registro_.leer(conMargen(linea), campos, valores)) return;
      if (std::get<std::string_view>(valores[0]) == "ai-title") {
        ultimo = std::string{std::get<std::string_view>(valores[1])};
      }
    });
    return ultimo;
  }

  [[nodiscard]] std::optional<std::string> directorio(std::string_view bloque) {
    std::optional<std::string> primero;
    cadaLinea(bloque, [&](std::string_view linea) {
      if (primero || !linea.contains("\"cwd\"")) return;
      RegistroJson::Campo const campos[] = {{"cwd"}};
      RegistroJson::Valor valores[1];
      if (!registro_.leer(conMargen(linea), campos, valores)) return;
      auto const recortado = recortar(std::get<std::string_view>(valores[0]));
      if (recortado.starts_with('/')) primero = std::string{recortado};
    });
    return primero;
  }

 private:
  template <class F>
  static void cadaLinea(std::string_view bloque, F hacer) {
    while (!bloque.empty()) {
      auto const fin = bloque.find('\n');
      hacer(bloque.substr(0, fin));
      bloque = fin == std::string_view::npos ? std::string_view{} : bloque.substr(fin + 1);
    }
  }

  [[nodiscard]] ConMargen conMargen(std::string_view linea) {
    copia_.assign(linea);
    copia_.append(RegistroJson::margen, '\0');
    return {copia_.data(), linea.size()};
  }

  RegistroJson registro_;
  std::string copia_;
};

}  // namespace zorve::dobles
