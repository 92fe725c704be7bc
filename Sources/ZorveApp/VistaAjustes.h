#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveApp/ModeloDeAjustes.h"
#include "ZorveApp/Teclado.h"

namespace zorve {

/// One row of the sidebar. `simbolo` is the system symbol's name on macOS; elsewhere it says what to draw.
struct FilaDeSeccion {
  SeccionDeAjustes seccion = SeccionDeAjustes::general;
  std::string_view titulo;
  std::string_view simbolo;
  bool elegida = false;
  bool operator==(FilaDeSeccion const&) const = default;
};

[[nodiscard]] std::string_view titulo(SeccionDeAjustes seccion, Idioma idioma);
[[nodiscard]] std::string_view simbolo(SeccionDeAjustes seccion);

/// An option row: the whole row is the button.
struct Opcion {
  bool marcada = false;
  std::string titulo;
  /// Shown under the title.
  std::optional<std::string> nota;
  /// A square check mark instead of a round one.
  bool cuadro = false;
  std::function<void()> accion;
};

/// Option rows under a caption, or under none.
struct Grupo {
  std::string_view titulo;
  std::vector<Opcion> opciones;
};

/// The content of the chosen section: `texto` stands alone where there is nothing to choose.
struct ContenidoDeAjustes {
  std::vector<Grupo> grupos;
  std::string_view texto;
};

/// The lines of the about section, and the mark above them.
struct AcercaDe {
  std::string nombreYVersion;
  std::string_view paraCerrar;
};

/// What the settings window asks of the application that holds it.
struct AccionesDeLaVentana {
  std::function<void()> cerrar = [] {};
  std::function<void()> salir = [] {};
};

/// The settings window as values, made from the model at each call. Texts are in the language in force.
/// Main thread only.
class VistaAjustes {
 public:
  static constexpr std::string_view tituloDeLaVentana = "Zorve";

  /// Both outlive the view and the actions of its rows.
  VistaAjustes(ModeloDeAjustes& modelo, PreferenciaDeIdioma const& idioma, Modificador principal);

  AccionesDeLaVentana acciones;

  /// Called each time the window comes up.
  void aparecer();

  [[nodiscard]] std::vector<FilaDeSeccion> secciones() const;
  void clicEnSeccion(SeccionDeAjustes seccion);
  /// The failure band above the content; nothing takes no space.
  [[nodiscard]] std::optional<std::string> banda() const;
  [[nodiscard]] ContenidoDeAjustes general() const;
  [[nodiscard]] ContenidoDeAjustes terminal() const;
  [[nodiscard]] AcercaDe acercaDe() const;

  /// Gives whether the key was the window's.
  bool tecla(Pulsacion const& pulsacion);

 private:
  [[nodiscard]] Textos textos() const { return Textos{*idioma_.idioma()}; }
  [[nodiscard]] Opcion opcionAutomatica() const;
  [[nodiscard]] Opcion opcionDe(Terminal const& terminal) const;

  ModeloDeAjustes& modelo_;
  PreferenciaDeIdioma const& idioma_;
  Modificador principal_;
};

}  // namespace zorve
