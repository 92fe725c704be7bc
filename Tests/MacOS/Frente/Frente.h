#pragma once

#include <gtest/gtest.h>

#import "MacOS/Tramoya/Tramoya.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/EjecutorGuionado.h"
#include "Dobles/InicioDePrueba.h"
#include "Dobles/PortapapelesDePrueba.h"
#include "Dobles/PreferenciasEnMemoria.h"
#include "Dobles/TerminalFija.h"
#import "ZorveApp/AppKit/Delegado.h"

namespace zorve {

/// The whole front end over the real portable layer; files, processes, settings and time are played. Two
/// terminals are installed, "Uno" (id "com.uno") and "Dos" (id "com.dos"); the first launch is over.
class Frente : public ::testing::Test {
 protected:
  Frente();
  ~Frente() override;

  /// The program starts: what `NSApplicationMain` would have the delegate do.
  void arrancar();
  /// Other settings, before the program starts.
  void ajustar(FuentesDeTerminales terminales, std::optional<std::string> version);
  /// What is kept alive by the delegate alone goes.
  void soltar();
  /// Both queues run until neither has anything to do.
  void correr();
  /// The panel is open and has loaded.
  void abrirElPanel();
  void abrirLosAjustes();

  static Session sesion(std::string const& identificador, std::string const& titulo,
                        std::string const& cwd = "/x");
  /// As many sessions as `cuantas`, "s0" the first.
  static std::vector<Session> sesiones(std::size_t cuantas);
  void enDisco(std::vector<Session> unas, std::vector<IndexError> errores = {});
  /// What the disk has now comes into the panel.
  void recargar(std::vector<Session> unas);

  void teclear(tramoya::Golpe const& golpe);
  void escribir(std::string_view letras);

  NSView* panel() const;
  NSWindow* ventanaDeAjustes() const;
  NSView* ajustesALaVista() const { return ventanaDeAjustes().contentView; }
  NSTableView* tabla() const;
  NSTextField* campo() const;
  std::string busqueda() const { return tramoya::utf8(campo().stringValue); }
  /// The texts of the row, if it is in sight.
  std::vector<std::string> fila(NSInteger cual) const;
  std::string titulo(NSInteger cual) const;
  bool aLaVista(std::string const& texto, NSView* donde) const;
  /// The option of the settings with this title.
  NSButton* opcion(std::string const& texto) const;
  bool marcada(std::string const& texto) const;
  std::size_t abiertas() const { return ejecutor.llamadas().size(); }

  std::shared_ptr<IndexResult> disco = std::make_shared<IndexResult>();
  /// The terminal that the system names.
  std::shared_ptr<std::optional<std::string>> manejador =
      std::make_shared<std::optional<std::string>>("com.uno");
  dobles::PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  dobles::InicioDePrueba inicio;
  dobles::EjecutorGuionado ejecutor;
  dobles::PortapapelesDePrueba portapapeles;
  dobles::DespachadorPaso despachador;
  BanderasDeUsuario banderas{preferencias};
  EstadoDelPanel estado;
  std::vector<TerminalRef> conocidas{
      dobles::terminalFija({.identificador = "com.uno", .nombre = "Uno"}),
      dobles::terminalFija({.identificador = "com.dos", .nombre = "Dos", .puedeEnfocar = false})};
  std::unique_ptr<ModeloDeVista> modelo;
  std::unique_ptr<ModeloDeAjustes> modeloDeAjustes;
  std::unique_ptr<PanelView> vista;
  std::unique_ptr<VistaAjustes> ajustes;
  Delegado* delegado = nil;
};

}  // namespace zorve
