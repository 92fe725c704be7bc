#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/EjecutorGuionado.h"
#include "Dobles/PortapapelesDePrueba.h"
#include "Dobles/PreferenciasEnMemoria.h"
#include "Dobles/TerminalFija.h"
#include "ZorveApp/ModeloDeVista.h"

namespace zorve {

inline Session sesionDe(std::string const& identificador, std::string const& titulo = "una",
                        std::string const& cwd = "/x") {
  return {.titulo = titulo, .tituloOrigen = TitleSource::aiTitle, .cwd = cwd, .sessionId = identificador};
}

/// A session whose process runs.
inline Session sesionViva(std::string const& identificador, std::int32_t pid) {
  auto sesion = sesionDe(identificador);
  sesion.liveState = LiveState::busy;
  sesion.pid = pid;
  return sesion;
}

/// A view model with everything around it played by doubles. One terminal, "Uno" (id "uno"), is known.
class Mesa : public ::testing::Test {
 protected:
  using Palabras = dobles::EjecutorGuionado::Palabras;
  using Llamadas = std::vector<Palabras>;

  Mesa() { modelo = std::make_unique<ModeloDeVista>(colaboradores()); }

  /// What the next loads find.
  void enDisco(std::vector<Session> sesiones, std::vector<IndexError> errores = {}) {
    *disco = {std::move(sesiones), std::move(errores)};
  }
  void cargar(std::vector<Session> sesiones) {
    enDisco(std::move(sesiones));
    modelo->refrescar();
    despachador.correrTodo();
  }
  void abrir() {
    modelo->abrirSeleccionada();
    despachador.correrTodo();
  }
  void corre(Palabras palabras, std::int32_t codigo, std::string salida) {
    ejecutor.contestar(std::move(palabras), ResultadoDeEjecucion{codigo, std::move(salida)});
  }
  static Palabras reapertura(std::string const& identificador) {
    return {"/abrir", "/x", "claude -r '" + identificador + "'"};
  }
  void terminalesConocidas(std::vector<TerminalRef> terminales) { *conocidas = std::move(terminales); }
  void hacerDeNuevo() {
    modelo.reset();
    modelo = std::make_unique<ModeloDeVista>(colaboradores());
  }
  void enEspanol() { idioma.elegir(Idioma::es); }

  ColaboradoresDelModelo colaboradores() {
    return {.cargar = [disco = disco] { return *disco; },
            .servicios = {.fuentes = {.conocidas = *conocidas,
                                      .sistema =
                                          [miradas = miradas, manejador = manejador] {
                                            ++*miradas;
                                            return RespuestaDelSistema{.aplicacion = *manejador};
                                          },
                                      .eleccion = [eleccion = eleccion] { return *eleccion; }}},
            .ejecutor = ejecutor,
            .portapapeles = portapapeles,
            .despachador = despachador,
            .idioma = idioma,
            .directorios = directorios};
  }

  std::shared_ptr<IndexResult> disco = std::make_shared<IndexResult>();
  std::shared_ptr<std::vector<TerminalRef>> conocidas = std::make_shared<std::vector<TerminalRef>>(
      std::vector<TerminalRef>{dobles::terminalFija({.identificador = "uno", .nombre = "Uno"})});
  std::shared_ptr<std::optional<std::string>> manejador = std::make_shared<std::optional<std::string>>();
  std::shared_ptr<std::optional<std::string>> eleccion = std::make_shared<std::optional<std::string>>();
  /// How often the system's terminal was looked up.
  std::shared_ptr<std::atomic<int>> miradas = std::make_shared<std::atomic<int>>(0);
  dobles::PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  dobles::EjecutorGuionado ejecutor;
  dobles::PortapapelesDePrueba portapapeles;
  dobles::DespachadorPaso despachador;
  /// Where the models to come look for directories; nowhere at first.
  Directorios* directorios = nullptr;
  std::unique_ptr<ModeloDeVista> modelo;
};

}  // namespace zorve
