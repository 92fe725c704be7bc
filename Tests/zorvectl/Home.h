#pragma once

#include <chrono>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"

namespace zorve::pruebas {

/// A home directory in the shapes that the agent writes.
class Home {
 public:
  static constexpr std::string_view uno = "11111111-aaaa-4bbb-8ccc-000000000001";
  static constexpr std::string_view dos = "22222222-aaaa-4bbb-8ccc-000000000002";

  [[nodiscard]] std::string const& ruta() const { return carpeta_.ruta(); }

  std::string transcripcion(std::string_view id, std::string_view lineas,
                            std::string const& proyecto = "-home-ana-src") const {
    return carpeta_.escribir(".claude/projects/" + proyecto + "/" + std::string{id} + ".jsonl", lineas);
  }
  std::string historia(std::string_view lineas) const {
    return carpeta_.escribir(".claude/history.jsonl", lineas);
  }
  std::string viva(std::string const& nombre, std::string_view registro) const {
    return carpeta_.escribir(".claude/sessions/" + nombre, registro);
  }
  [[nodiscard]] dobles::CarpetaTemporal const& carpeta() const { return carpeta_; }

  /// Runs zorvectl with this home in HOME.
  [[nodiscard]] dobles::Corrida zorvectl(std::vector<std::string> palabras,
                                         std::map<std::string, std::string> entorno = {}) const {
    palabras.insert(palabras.begin(), ZORVECTL);
    for (auto const* nombre : {"COLUMNS", "NO_COLOR", "LC_ALL", "LC_CTYPE", "LANG", "XDG_CONFIG_HOME"})
      entorno.try_emplace(nombre, "");
    entorno.try_emplace("HOME", ruta());
    return dobles::correr(palabras, entorno);
  }

 private:
  dobles::CarpetaTemporal carpeta_;
};

inline std::string prompt(std::string_view id, std::string_view texto, std::string_view cwd,
                          std::int64_t milisegundos) {
  return R"({"display":")" + std::string{texto} + R"(","pastedContents":{},"timestamp":)" +
         std::to_string(milisegundos) + R"(,"project":")" + std::string{cwd} + R"(","sessionId":")" +
         std::string{id} + "\"}\n";
}

inline std::string aiTitle(std::string_view titulo) {
  return R"({"type":"ai-title","aiTitle":")" + std::string{titulo} + "\"}\n";
}

inline std::int64_t haceMilisegundos(std::int64_t milisegundos) {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count() - milisegundos;
}

}  // namespace zorve::pruebas
