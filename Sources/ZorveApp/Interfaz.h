#pragma once

#include <optional>
#include <string>

#include "ZorveApp/BanderasEnFondo.h"
#include "ZorveApp/EstadoDelPanel.h"
#include "ZorveApp/ModeloDeAjustes.h"
#include "ZorveApp/ModeloDeVista.h"
#include "ZorveApp/PanelView.h"
#include "ZorveApp/VistaAjustes.h"
#include "ZorveCore/Lectura/SessionIndex.h"

namespace zorve {

/// What an interface stands on: the real side of every seam, and what tells one system from another.
/// Everything referenced outlives the interface and its background tasks, those that still run when the
/// program ends too.
struct Cimientos {
  /// Absolute, without a slash at its end.
  std::string home;
  Archivos& archivos;
  VidaDeProcesos& procesos;
  ServiciosDeApertura servicios;
  Preferencias& preferencias;
  Ejecutor const& ejecutor;
  Portapapeles& portapapeles;
  InicioDeSesion& inicio;
  Despachador& despachador;
  ReglaDePlegado regla = ReglaDePlegado::general;
  /// The system's shortcut modifier.
  Modificador principal = Modificador::mando;
  /// The packaged program's version; nothing when it runs from where it was built.
  std::optional<std::string> version;
  /// Where directories that are gone are found out; nowhere when null.
  Directorios* directorios = nullptr;
};

/// The portable whole of a program with a face: its models, and the values that the face draws. Main thread
/// only.
class Interfaz {
 public:
  explicit Interfaz(Cimientos const& sobre);
  Interfaz(Interfaz const&) = delete;
  Interfaz& operator=(Interfaz const&) = delete;
  ~Interfaz() = default;

  BanderasEnFondo banderas;
  PreferenciaDeIdioma idioma;
  EstadoDelPanel estado;

 private:
  ModeloDeVista modelo_;
  ModeloDeAjustes modeloDeAjustes_;

 public:
  PanelView panel;
  VistaAjustes ajustes;
};

}  // namespace zorve
