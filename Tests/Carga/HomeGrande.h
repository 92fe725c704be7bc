#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>

#include <unistd.h>

#include "Dobles/CarpetaTemporal.h"

namespace zorve::pruebas {

/// A home of many sessions in the shapes that the agent writes, all of them numbered from 0.
class HomeGrande {
 public:
  static constexpr std::size_t porCarpeta = 1000;

  [[nodiscard]] static std::string uuid(std::size_t n) {
    std::ostringstream texto;
    texto << std::setfill('0') << std::setw(8) << n << "-5e55-4000-8000-" << std::setw(12) << n;
    return texto.str();
  }

  [[nodiscard]] std::string const& ruta() const { return carpeta_.ruta(); }
  [[nodiscard]] dobles::CarpetaTemporal const& carpeta() const { return carpeta_; }

  void transcripcion(std::size_t n, std::string const& titulo) const {
    carpeta_.escribir(".claude/projects/p" + std::to_string(n / porCarpeta) + "/" + uuid(n) + ".jsonl",
                      "{\"type\":\"user\",\"cwd\":\"/srv/" + std::to_string(n) + "\"}\n" +
                          R"({"type":"ai-title","aiTitle":")" + titulo + "\"}\n");
  }

  /// Prompts of the first `sesiones` sessions, in turn, until the file has `bytes`. Gives how many.
  std::int64_t historia(std::size_t sesiones, std::uint64_t bytes, std::size_t largoDelPrompt) const {
    std::ofstream salida{carpeta_.escribir(".claude/history.jsonl", ""), std::ios::binary};
    std::string const relleno(largoDelPrompt, 'x');
    std::uint64_t escritos = 0;
    std::int64_t cuantos = 0;
    for (; escritos < bytes; ++cuantos) {
      auto const n = static_cast<std::size_t>(cuantos) % sesiones;
      auto const linea = R"({"display":"prompt )" + relleno + R"(","pastedContents":{},"timestamp":)" +
                         std::to_string(1'700'000'000'000 + cuantos) + R"(,"project":"/srv/)" +
                         std::to_string(n) + R"(","sessionId":")" + uuid(n) + "\"}\n";
      salida << linea;
      escritos += linea.size();
    }
    return cuantos;
  }

  /// A live record of the session, whose process is this one.
  void viva(std::size_t n) const {
    carpeta_.escribir(".claude/sessions/" + std::to_string(n) + ".json",
                      R"({"pid":)" + std::to_string(::getpid()) + R"(,"sessionId":")" + uuid(n) +
                          R"(","cwd":"/srv/)" + std::to_string(n) + R"(","status":"busy"})");
  }

 private:
  dobles::CarpetaTemporal carpeta_;
};

}  // namespace zorve::pruebas
