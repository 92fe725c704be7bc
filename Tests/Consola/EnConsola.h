#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

#include "Consola/PantallaVirtual.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {

/// A home with three sessions, the first of which runs (the test itself stands for it), and the panel over
/// it.
class EnConsola : public testing::Test {
 protected:
  EnConsola() {
    home.transcripcion(id(1), aiTitle("Rewrite the history parser"));
    home.transcripcion(id(2), aiTitle("Añadir pruebas 日本語 e\u0301"));
    home.transcripcion(id(3), aiTitle("Draw the icon"));
    escribirEnLaHistoria(prompt(id(1), "x", enElHome("src/zorve"), haceMilisegundos(5'000)) +
                         prompt(id(2), "x", enElHome("trabajo"), haceMilisegundos(400'000)) +
                         prompt(id(3), "x", enElHome("src/icon"), haceMilisegundos(90'000'000)));
    home.viva("1.json", R"({"pid":)" + std::to_string(::getpid()) + R"(,"sessionId":")" + id(1) +
                            R"(","cwd":"/v","status":"busy"})");
    for (auto const* carpeta : {"src/zorve", "trabajo", "src/icon"}) home.carpeta().carpeta(carpeta);
  }

  static std::string id(int cual) {
    return "1000000" + std::to_string(cual) + "-aaaa-4bbb-8ccc-000000000001";
  }
  [[nodiscard]] std::string enElHome(std::string const& dentro) const { return home.ruta() + "/" + dentro; }

  void escribirEnLaHistoria(std::string const& lineas) {
    historia_ += lineas;
    home.historia(historia_);
  }

  /// A program `claude` in the person's own PATH, which only their shell's settings name.
  void conClaude(std::string const& guion) {
    auto const ruta = home.carpeta().escribir("propios/claude", "#!/bin/sh\n" + guion + "\n");
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
    home.carpeta().escribir(".bashrc", "PATH=$HOME/propios:$PATH\n");
  }
  void enEspanol() const {
    home.carpeta().escribir(".config/com.sarnol.zorve/preferences.json", R"({"zorve.idioma":"es"})");
  }

  PantallaVirtual::Con con(std::vector<std::string> opciones = {}, std::vector<std::string> entorno = {}) {
    opciones.insert(opciones.begin(), {ZORVECTL, "panel"});
    entorno.insert(entorno.end(), {"HOME=" + home.ruta(), "PATH=/usr/bin:/bin", "SHELL=/bin/bash"});
    if (std::ranges::none_of(entorno, [](std::string const& una) { return una.starts_with("TERM="); })) {
      entorno.emplace_back("TERM=xterm-256color");
    }
    return {.palabras = std::move(opciones), .entorno = std::move(entorno), .carpeta = home.ruta()};
  }
  PantallaVirtual& abrir(PantallaVirtual::Con como) {
    pantalla = std::make_unique<PantallaVirtual>(std::move(como));
    EXPECT_TRUE(pantalla->esperar("1/3"));
    return *pantalla;
  }
  PantallaVirtual& abrir() { return abrir(con()); }

  Home home;
  std::unique_ptr<PantallaVirtual> pantalla;

 private:
  std::string historia_;
};

}  // namespace zorve::pruebas
