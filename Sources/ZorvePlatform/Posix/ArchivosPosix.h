#pragma once

#include "ZorveCore/Lectura/Archivos.h"

namespace zorve {

/// The real file system. Stateless.
class ArchivosPosix final : public Archivos {
 public:
  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override;
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override;
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) override;
  [[nodiscard]] bool existe(std::string const& ruta) override;
};

}  // namespace zorve
