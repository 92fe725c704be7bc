#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveApp/InterruptorDeVentanas.h"
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
  std::string texto;
};

/// The lines of the about section, and the mark above them.
struct AcercaDe {
  std::string nombreYVersion;
  std::string paraCerrar;
};

/// What the settings window asks of the application that holds it.
struct AccionesDeLaVentana {
  std::function<void()> cerrar = [] {};
  std::function<void()> salir = [] {};
};

/// The settings window as values, made from the model at each call, and the way of keys and clicks to the
/// model: a front end sees nothing else of it. Texts are in the language in force. Main thread only.
class VistaAjustes {
 public:
  static constexpr std::string_view tituloDeLaVentana = "Zorve";

  /// Both outlive the view and the actions of its rows.
  VistaAjustes(ModeloDeAjustes& modelo, PreferenciaDeIdioma const& idioma, Modificador principal);

  AccionesDeLaVentana acciones;

  /// The desktop has a switch for bringing windows to the front: a row of the terminal section from now on.
  /// It outlives the view.
  void ponerInterruptor(InterruptorDeVentanas& interruptor);
  /// `observador` is called after each change of what the window shows, until the subscriptions end.
  [[nodiscard]] std::vector<Suscripcion> observar(std::function<void()> const& observador) const;

  /// Called each time the window comes up.
  void aparecer();

  [[nodiscard]] std::vector<FilaDeSeccion> secciones() const;
  /// The one whose content is shown.
  [[nodiscard]] SeccionDeAjustes seccion() const { return *modelo_.seccion(); }
  void clicEnSeccion(SeccionDeAjustes seccion);
  /// The failure band above the content; nothing takes no space.
  [[nodiscard]] std::optional<std::string> banda() const;
  [[nodiscard]] ContenidoDeAjustes general() const;
  [[nodiscard]] ContenidoDeAjustes terminal() const;
  /// Who says which is the system's terminal, where that one would be used and more than one could say so.
  [[nodiscard]] std::optional<std::string> const& dichoPor() const { return *modelo_.dichoPor(); }
  [[nodiscard]] AcercaDe acercaDe() const;

  /// Gives whether the key was the window's.
  bool tecla(Pulsacion const& pulsacion);

 private:
  [[nodiscard]] Textos textos() const { return textosDe(idioma_); }
  [[nodiscard]] Opcion opcionAutomatica() const;
  [[nodiscard]] Opcion opcionDe(Terminal const& terminal) const;
  [[nodiscard]] Opcion opcionDelInterruptor() const;

  ModeloDeAjustes& modelo_;
  PreferenciaDeIdioma const& idioma_;
  Modificador principal_;
  InterruptorDeVentanas* interruptor_ = nullptr;
  Suscripcion alCambiarElInterruptor_;
};

}  // namespace zorve
