#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Pseudoterminal.h"
#include "ZorveTerminal/PalabrasDelGuion.h"

namespace zorve::dobles {

/// A home with a prompt that is known, and a `claude` that only the person's own shell settings find.
class HomeConShell {
 public:
  explicit HomeConShell(std::string shell) : shell_{std::move(shell)} {
    std::string const ajustes = "PATH=\"$HOME/mis programas:$PATH\"\nPS1='LISTO> '\n";
    carpeta_.escribir(".bashrc", ajustes);
    carpeta_.escribir(".shrc", ajustes);
    carpeta_.escribir(".zshrc", ajustes + "unsetopt PROMPT_SP\nHISTSIZE=100\n");
    carpeta_.escribir(".config/fish/config.fish",
                      "set -x PATH \"$HOME/mis programas\" $PATH\nfunction fish_prompt; echo 'LISTO> '; end\n"
                      "set fish_greeting\n");
    carpeta_.carpeta("temporal");
    carpeta_.carpeta("sesión");
    claude("printf '%s\\0' \"$(pwd -P; echo .)\" \"$@\" >\"$HOME/anotado\"; echo AQUI\n");
  }

  void claude(std::string const& cuerpo) const {
    auto const ruta = carpeta_.escribir("mis programas/claude", "#!/bin/sh\n" + cuerpo);
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
  }

  [[nodiscard]] Pseudoterminal abrir(std::string const& directorio, std::string const& comando,
                                     std::string const& path = "/usr/local/bin:/usr/bin:/bin") const {
    ayudante::CarpetaDePaso paso{lugar};
    paso.dejar();
    return {ayudante::palabrasDelGuion({directorio, comando, shell_, ""}, paso, lugar),
            {"HOME=" + carpeta_.ruta(), "PATH=" + path, "TERM=dumb", "LANG=C.UTF-8",
             "ENV=" + carpeta_.dentro(".shrc")},
            carpeta_.ruta()};
  }

  [[nodiscard]] std::string leer(std::string const& archivo) const {
    std::ifstream entrada{carpeta_.dentro(archivo), std::ios::binary};
    return {std::istreambuf_iterator<char>{entrada}, {}};
  }

  /// What `claude` wrote down: its directory and its arguments.
  [[nodiscard]] std::vector<std::string> anotado() const {
    auto const todo = leer("anotado");
    std::vector<std::string> palabras;
    for (std::size_t i = 0; i < todo.size();) {
      auto const fin = todo.find('\0', i);
      palabras.push_back(todo.substr(i, fin - i));
      i = fin + 1;
    }
    if (!palabras.empty()) palabras[0].resize(palabras[0].size() - 2);
    return palabras;
  }

  void noQuedanCarpetas() const {
    for (auto const& resto : std::filesystem::directory_iterator(lugar.carpeta)) {
      EXPECT_FALSE(resto.path().filename().string().starts_with("zorve")) << resto.path();
    }
  }

  [[nodiscard]] CarpetaTemporal const& carpeta() const { return carpeta_; }
  [[nodiscard]] std::string sesion() const {
    return std::filesystem::canonical(carpeta_.dentro("sesión")).string();
  }

 private:
  std::string shell_;
  CarpetaTemporal carpeta_;

 public:
  /// Where the order is left.
  ayudante::LugarDePaso lugar{carpeta_.carpeta("temporal"), true};
};

}  // namespace zorve::dobles
