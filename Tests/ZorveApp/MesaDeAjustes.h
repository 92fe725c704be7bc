#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/InicioDePrueba.h"
#include "Dobles/PreferenciasEnMemoria.h"
#include "Dobles/TerminalFija.h"
#include "ZorveApp/ModeloDeAjustes.h"

namespace zorve {

/// A settings model with everything around it played by doubles. Two terminals are known: "Uno" (id
/// "com.uno"), and "Dos" (id "com.dos"), which cannot focus.
class MesaDeAjustes : public ::testing::Test {
 protected:
  MesaDeAjustes() { hacerDeNuevo(); }

  void hacerDeNuevo(std::optional<std::string> version = "1.2") {
    modelo.reset();
    modelo = std::make_unique<ModeloDeAjustes>(
        ColaboradoresDeAjustes{.terminales = {.conocidas = conocidas,
                                              .sistema =
                                                  [this] {
                                                    ++miradas;
                                                    return RespuestaDelSistema{*manejador, dichoPor};
                                                  },
                                              .eleccion =
                                                  [this] {
                                                    ++lecturas;
                                                    return leerLaEleccion(preferencias);
                                                  }},
                               .preferencias = preferencias,
                               .inicio = inicio,
                               .idioma = idioma,
                               .despachador = despachador,
                               .version = std::move(version)});
  }
  void cargar() {
    modelo->cargar();
    despachador.correrTodo();
  }
  void elegirYCargar(std::optional<std::string> const& identificador) {
    modelo->elegirTerminal(identificador);
    despachador.correrTodo();
  }
  void elegirYGuardar(Idioma cual) {
    modelo->elegirIdioma(cual);
    despachador.correrTodo();
  }
  void guardada(std::string const& identificador) { ASSERT_TRUE(elegir(preferencias, identificador)); }
  void enEspanol() { idioma.elegir(Idioma::es); }

  static constexpr char const* variasInstaladas =
      "Several terminals are installed (Uno, Dos) and the system has none registered as the handler for "
      "shell scripts. Pick one: defaults write com.sarnol.zorve zorve.terminalElegida -string com.uno";

  std::vector<TerminalRef> conocidas{
      dobles::terminalFija({.identificador = "com.uno", .nombre = "Uno"}),
      dobles::terminalFija({.identificador = "com.dos", .nombre = "Dos", .puedeEnfocar = false})};
  std::shared_ptr<std::optional<std::string>> manejador = std::make_shared<std::optional<std::string>>();
  std::optional<std::string> dichoPor;
  /// How often the system's terminal was looked up.
  int miradas = 0;
  /// How often the saved choice was read.
  int lecturas = 0;
  dobles::PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  dobles::InicioDePrueba inicio;
  dobles::DespachadorPaso despachador;
  std::unique_ptr<ModeloDeAjustes> modelo;
};

}  // namespace zorve
