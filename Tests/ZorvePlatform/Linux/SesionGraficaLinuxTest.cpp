#include "ZorvePlatform/Linux/SesionGraficaLinux.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace zorve {
namespace {

/// The test process's own environment, with these variables alone of those that matter.
class SesionGraficaTest : public testing::Test {
 public:
  ~SesionGraficaTest() override {
    for (auto const& [nombre, valor] : antes_) poner(nombre, valor);
  }

 protected:
  SesionGraficaTest() {
    for (auto const* const nombre : nombres) {
      char const* const valor = std::getenv(nombre);
      antes_[nombre] = valor != nullptr ? std::optional<std::string>{valor} : std::nullopt;
    }
  }

  static SesionGrafica con(std::map<std::string, std::string> const& variables) {
    for (auto const* const nombre : nombres) poner(nombre, std::nullopt);
    for (auto const& [nombre, valor] : variables) poner(nombre, valor);
    return sesionGraficaDelProceso();
  }

 private:
  static void poner(std::string const& nombre, std::optional<std::string> const& valor) {
    if (valor) {
      ::setenv(nombre.c_str(), valor->c_str(), 1);
    } else {
      ::unsetenv(nombre.c_str());
    }
  }

  static constexpr std::array<char const*, 4> nombres{"DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK",
                                                      "XDG_CURRENT_DESKTOP"};
  std::map<std::string, std::optional<std::string>> antes_;
};

TEST_F(SesionGraficaTest, unServidorXSolo) {
  EXPECT_EQ(con({{"DISPLAY", ":0"}}), SesionGrafica::x11);
  EXPECT_EQ(con({{"DISPLAY", ":0"}, {"XDG_CURRENT_DESKTOP", "KDE"}}), SesionGrafica::x11);
}

TEST_F(SesionGraficaTest, swayDondeHaySuEnchufe) {
  EXPECT_EQ(con({{"WAYLAND_DISPLAY", "wayland-1"}, {"SWAYSOCK", "/s"}, {"DISPLAY", ":0"}}),
            SesionGrafica::sway);
  EXPECT_EQ(con({{"SWAYSOCK", "/s"}}), SesionGrafica::otra);
}

TEST_F(SesionGraficaTest, kwinEsElDeKdeSobreWayland) {
  EXPECT_EQ(con({{"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}, {"XDG_CURRENT_DESKTOP", "KDE"}}),
            SesionGrafica::kwin);
  EXPECT_EQ(con({{"WAYLAND_DISPLAY", "wayland-0"}, {"XDG_CURRENT_DESKTOP", "x:KDE"}}), SesionGrafica::kwin);
}

TEST_F(SesionGraficaTest, elCompositorDeGnomeEsElDeGnomeSobreWayland) {
  EXPECT_EQ(
      con({{"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}, {"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"}}),
      SesionGrafica::gnome);
  EXPECT_EQ(con({{"DISPLAY", ":0"}, {"XDG_CURRENT_DESKTOP", "GNOME"}}), SesionGrafica::x11);
}

TEST_F(SesionGraficaTest, loDemasEsOtra) {
  EXPECT_EQ(con({}), SesionGrafica::otra);
  EXPECT_EQ(con({{"WAYLAND_DISPLAY", "wayland-0"}, {"XDG_CURRENT_DESKTOP", "XGNOME:GNOMEX"}}),
            SesionGrafica::otra);
  EXPECT_EQ(con({{"WAYLAND_DISPLAY", "wayland-0"}, {"XDG_CURRENT_DESKTOP", "XKDE:KDEX"}}),
            SesionGrafica::otra);
}

}  // namespace
}  // namespace zorve
