#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveApp/EstadoDelPanel.h"
#include "ZorveApp/MenuDeFila.h"
#include "ZorveApp/ModeloDeVista.h"
#include "ZorveApp/Teclado.h"
#include "ZorveCore/Texto/Coincidencias.h"

namespace zorve {

/// What one row shows.
struct Fila {
  std::string id;
  std::string titulo;
  /// The title's help text, for a title made from the first prompt.
  std::optional<std::string> ayuda;
  /// The directory, the home written "~".
  std::string ruta;
  /// The live word, drawn in `ember`; nothing for a finished session.
  std::optional<std::string> palabraDeEstado;
  std::string tiempo;
  /// "12 prompts"; nothing when the count is not known.
  std::optional<std::string> conteo;
  LiveState estado = LiveState::dead;
  bool seleccionada = false;
  /// What the search found in `titulo` and in `ruta`, in bytes of each; empty without a search.
  std::vector<Tramo> marcasDeTitulo;
  std::vector<Tramo> marcasDeRuta;
  /// The help text of a directory that is gone, whose path is struck through; nothing for others.
  std::optional<std::string> directorioPerdido;

  /// The second line as one text: the path and, for a live session, " · " and the live word.
  [[nodiscard]] std::string lineaDeRuta() const;
  bool operator==(Fila const&) const = default;
};

struct LineaDeBanda {
  enum class Clase : std::uint8_t { error, aviso };
  Clase clase = Clase::error;
  std::string texto;
  bool operator==(LineaDeBanda const&) const = default;
};

/// A key and what it does. `tecla` is the key's symbol as a text; front ends may draw `simbolo` instead.
struct EntradaDeLeyenda {
  enum class Simbolo : std::uint8_t { flechas, retorno, refrescar };
  Simbolo simbolo = Simbolo::flechas;
  std::string tecla;
  std::string_view palabra;
  bool operator==(EntradaDeLeyenda const&) const = default;
};

/// What the panel asks of the application that holds it.
struct AccionesDelPanel {
  std::function<void()> esconder = [] {};
  std::function<void()> salir = [] {};
  /// Shows a directory in the system's file manager. Empty where there is none.
  std::function<void(std::string const&)> mostrarDirectorio = {};
};

/// The panel as values, made from the model at each call, and the way of keys, clicks and the search text to
/// the model: a front end sees nothing else of it.
/// Texts are in the language in force. Main thread only.
class PanelView {
 public:
  /// Everything referenced outlives the panel. `home` is absolute, without a slash at its end; `reloj` gives
  /// the time at drawing.
  PanelView(ModeloDeVista& modelo, EstadoDelPanel const& estado, PreferenciaDeIdioma const& idioma,
            std::string home, std::function<Fecha()> reloj, Modificador principal);

  AccionesDelPanel acciones;

  /// `observador` is called after each change of what the panel shows, the passing of time apart, until the
  /// subscriptions end.
  [[nodiscard]] std::vector<Suscripcion> observar(std::function<void()> const& observador) const;

  /// Called each time the panel comes up: loads. The search field takes the focus then.
  void aparecer();

  /// The search field's text.
  [[nodiscard]] std::string const& consulta() const { return *modelo_.consulta(); }
  void escribirConsulta(std::string texto);

  /// Stands in place of the rows.
  [[nodiscard]] std::optional<std::string_view> marcador() const;
  /// Whether there is no session at all, found or not.
  [[nodiscard]] bool vacio() const { return modelo_.resultado()->sesiones.empty(); }
  [[nodiscard]] std::size_t cantidadDeFilas() const;
  /// The content of row `posicion`, below `cantidadDeFilas()`.
  [[nodiscard]] Fila fila(std::size_t posicion) const;
  /// For a row that is there by its last prompt alone: the piece of that prompt around what was found. Empty
  /// for others.
  [[nodiscard]] std::string trozoDelPrompt(std::size_t posicion) const;
  /// `Session::id` of row `posicion`: the key by which rows are the same from one list to the next.
  [[nodiscard]] std::string idDeFila(std::size_t posicion) const;
  /// The row to keep in sight.
  [[nodiscard]] std::optional<std::size_t> filaSeleccionada() const;
  /// The selected session, for a front end that opens some by itself. Valid until the next change, null
  /// without a selection.
  [[nodiscard]] Session const* sesionSeleccionada() const;

  /// Empty when there is nothing to say; the band takes no space then.
  [[nodiscard]] std::vector<LineaDeBanda> banda() const;
  [[nodiscard]] std::array<EntradaDeLeyenda, 3> leyenda() const;
  [[nodiscard]] std::string terminal() const;
  /// The settings button's help text, and the name it has for assistive software.
  [[nodiscard]] std::string ayudaAjustes() const;
  [[nodiscard]] std::string_view nombreAjustes() const;

  /// Gives whether the key was the panel's. Return is handled here alone: a search field that reports its
  /// submission besides must not be wired to `abrir` again.
  bool tecla(Pulsacion const& pulsacion);
  /// Selects the row and opens it.
  void clicEnFila(std::size_t posicion);
  /// Selects the row, if the list has it.
  void elegirFila(std::size_t posicion);
  /// Moves the selection by that many rows, to the first or the last one at most.
  void mover(int filas);
  void clicEnAjustes();
  /// Selects the row, as its menu comes up over it. Gives the menu; nothing for a row that there is not.
  std::vector<EntradaDelMenuDeFila> abrirMenuDeFila(std::size_t posicion);
  /// What was chosen in the menu of the row with this `idDeFila`, wherever the row is by now. Does nothing
  /// when it is gone.
  void elegirEnElMenu(std::string_view id, EntradaDelMenuDeFila::Clase cual);

 private:
  [[nodiscard]] Textos textos() const { return textosDe(idioma_); }
  [[nodiscard]] Session const& sesion(std::size_t posicion) const;
  void hacer(AccionDelPanel accion);

  ModeloDeVista& modelo_;
  EstadoDelPanel const& estado_;
  PreferenciaDeIdioma const& idioma_;
  std::string home_;
  std::function<Fecha()> reloj_;
  Modificador principal_;
};

}  // namespace zorve
