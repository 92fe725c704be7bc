#include <filesystem>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "Dobles/AplicacionesFijas.h"
#include "Dobles/CarpetaTemporal.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"

namespace zorve {
namespace {

/// Makes a machine that has exactly the applications "kitty" and "org.kde.konsole".
using Fabrica = std::function<std::unique_ptr<AplicacionesInstaladas>(dobles::CarpetaTemporal const&)>;

std::unique_ptr<AplicacionesInstaladas> fijas(dobles::CarpetaTemporal const& /*carpeta*/) {
  return std::make_unique<dobles::AplicacionesFijas>(std::set<std::string>{"kitty", "org.kde.konsole"});
}

std::unique_ptr<AplicacionesInstaladas> linux_(dobles::CarpetaTemporal const& carpeta) {
  for (auto const* const programa : {"bin/kitty", "opt/konsole"}) {
    std::filesystem::permissions(carpeta.escribir(programa, "#!/bin/sh\n"), std::filesystem::perms{0755});
  }
  carpeta.escribir("datos/applications/org.kde.konsole.desktop",
                   "[Desktop Entry]\nExec=" + carpeta.dentro("opt/konsole") + "\n");
  return std::make_unique<AplicacionesLinux>(
      EntornoLinux{.path = {carpeta.dentro("bin")}, .datos = {carpeta.dentro("datos")}});
}

class ContratoDeAplicaciones : public testing::TestWithParam<std::pair<char const*, Fabrica>> {
 protected:
  [[nodiscard]] bool hay(std::string const& identificador) const { return aplicaciones_->hay(identificador); }

 private:
  dobles::CarpetaTemporal carpeta_;
  std::unique_ptr<AplicacionesInstaladas> aplicaciones_ = GetParam().second(carpeta_);
};

TEST_P(ContratoDeAplicaciones, lasInstaladasEstan) {
  EXPECT_TRUE(hay("kitty"));
  EXPECT_TRUE(hay("org.kde.konsole"));
}

TEST_P(ContratoDeAplicaciones, lasDemasNo) {
  EXPECT_FALSE(hay("foot"));
  EXPECT_FALSE(hay("org.kde.konsole.desktop"));
}

TEST_P(ContratoDeAplicaciones, unIdentificadorVacioORaroNoEsDeNadie) {
  EXPECT_FALSE(hay(""));
  EXPECT_FALSE(hay("."));
  EXPECT_FALSE(hay("../bin/kitty"));
  EXPECT_FALSE(hay("/bin/sh"));
  EXPECT_FALSE(hay(std::string{"kitty\0x", 7}));
}

INSTANTIATE_TEST_SUITE_P(Todas, ContratoDeAplicaciones,
                         testing::Values(std::pair{"Fijas", Fabrica{fijas}},
                                         std::pair{"Linux", Fabrica{linux_}}),
                         [](auto const& caso) { return std::string{caso.param.first}; });

}  // namespace
}  // namespace zorve
