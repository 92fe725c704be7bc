#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

namespace zorve::dobles {

/// A folder of its own for one test, removed with everything in it at the end.
class CarpetaTemporal {
 public:
  CarpetaTemporal() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "zorve-XXXXXX").string();
    if (::mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("mkdtemp failed: " + plantilla);
    ruta_ = plantilla;
    std::filesystem::permissions(ruta_, std::filesystem::perms{0755});
  }
  CarpetaTemporal(CarpetaTemporal const&) = delete;
  CarpetaTemporal& operator=(CarpetaTemporal const&) = delete;
  ~CarpetaTemporal() {
    std::error_code ignorado;
    for (auto const& entrada : std::filesystem::recursive_directory_iterator(
             ruta_, std::filesystem::directory_options::skip_permission_denied, ignorado)) {
      if (entrada.is_directory(ignorado) && !entrada.is_symlink(ignorado)) {
        std::filesystem::permissions(entrada.path(), std::filesystem::perms{0755}, ignorado);
      }
    }
    std::filesystem::remove_all(ruta_, ignorado);
  }

  [[nodiscard]] std::string const& ruta() const { return ruta_; }
  [[nodiscard]] std::string dentro(std::string const& relativa) const { return ruta_ + "/" + relativa; }

  /// Writes a file, making the folders above it, and gives its path.
  std::string escribir(std::string const& relativa, std::string_view contenido) const {
    auto const destino = std::filesystem::path{dentro(relativa)};
    std::filesystem::create_directories(destino.parent_path());
    std::ofstream salida{destino, std::ios::binary | std::ios::trunc};
    salida.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
    salida.close();
    if (!salida) throw std::runtime_error("could not write " + destino.string());
    return destino.string();
  }

  std::string carpeta(std::string const& relativa) const {
    std::filesystem::create_directories(dentro(relativa));
    return dentro(relativa);
  }

 private:
  std::string ruta_;
};

}  // namespace zorve::dobles
