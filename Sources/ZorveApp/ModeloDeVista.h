#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveApp/Apertura.h"
#include "ZorveApp/Despachador.h"
#include "ZorveApp/Idioma.h"
#include "ZorveApp/ListaFiltrada.h"
#include "ZorveApp/Observable.h"
#include "ZorveApp/Portapapeles.h"
#include "ZorveCore/Lectura/Directorios.h"

namespace zorve {

/// What the model works with. The referenced objects outlive it; `ejecutor`, `despachador` and whatever
/// `cargar` uses outlive every task too, those that still run when the program ends included.
struct ColaboradoresDelModelo {
  /// Reads the sessions: `SessionIndex::construir` over the places the main chose. Called in the background.
  std::function<IndexResult()> cargar;
  ServiciosDeApertura servicios;
  Ejecutor const& ejecutor;
  Portapapeles& portapapeles;
  Despachador& despachador;
  PreferenciaDeIdioma const& idioma;
  ReglaDePlegado regla = ReglaDePlegado::general;
  /// Where directories are looked for; nowhere when null. It outlives every task.
  Directorios* directorios = nullptr;
};

/// The state behind the panel. Main thread only; loading, resolving, planning and running happen in the
/// background and hand back one result each. It may be destroyed while they run.
class ModeloDeVista {
 public:
  /// Starts no load.
  explicit ModeloDeVista(ColaboradoresDelModelo con);
  ModeloDeVista(ModeloDeVista const&) = delete;
  ModeloDeVista& operator=(ModeloDeVista const&) = delete;
  ~ModeloDeVista() = default;

  [[nodiscard]] Observable<IndexResult> const& resultado() const { return resultado_; }
  [[nodiscard]] Observable<std::string> const& consulta() const { return consulta_; }
  /// The `Session::id` of the selected row.
  [[nodiscard]] Observable<std::optional<std::string>> const& seleccion() const { return seleccion_; }
  [[nodiscard]] Observable<std::optional<std::string>> const& errorDeApertura() const { return error_; }
  [[nodiscard]] Observable<std::optional<std::string>> const& avisoDeApertura() const { return aviso_; }
  /// A second line after that one: what can be done about it.
  [[nodiscard]] Observable<std::optional<std::string>> const& consejo() const { return consejo_; }
  /// The directories of sessions that were found to be gone after the last load.
  [[nodiscard]] Observable<std::set<std::string>> const& directoriosPerdidos() const { return perdidos_; }
  [[nodiscard]] Observable<bool> const& refrescando() const { return refrescando_; }
  [[nodiscard]] Observable<std::optional<TerminalResuelta>> const& terminal() const { return terminal_; }
  [[nodiscard]] Observable<std::optional<std::string>> const& errorDeTerminal() const {
    return errorTerminal_;
  }

  /// The positions in `resultado()->sesiones` of the sessions that the search keeps, in order. Valid until
  /// the next write.
  [[nodiscard]] std::span<std::size_t const> visibles() const { return lista_.visibles(); }
  /// The search text's words, folded by `regla`. Valid until the next write.
  [[nodiscard]] std::span<std::string const> fichas() const { return lista_.fichas(); }
  [[nodiscard]] ReglaDePlegado regla() const { return lista_.regla(); }
  /// Where the selection stands in `visibles()`, or nothing.
  [[nodiscard]] std::optional<std::size_t> posicionSeleccionada() const;
  /// The selected session if the search shows it, else null. Valid until the next write.
  [[nodiscard]] Session const* seleccionada() const;
  /// The index's notices, then `errorDeTerminal`, then `errorDeApertura`.
  [[nodiscard]] std::vector<std::string> mensajesDeError() const;
  [[nodiscard]] std::string terminalParaElPie() const;

  /// Both correct the selection.
  void escribirConsulta(std::string texto);
  void escribirResultado(IndexResult nuevo);
  /// Selects the visible session with this id; does nothing when there is none.
  void seleccionar(std::string_view id);
  /// `delta` rows down the list, stopping at both ends.
  void mover(int delta);

  /// Loads in the background, unless a load runs already.
  void refrescar();
  /// Clears both messages and opens the selected session in the background. Openings are independent of
  /// each other: the last to end writes last. The terminal is known when planning has ended, and is written
  /// unless a resolution that began later was. Does nothing without a selection.
  void abrirSeleccionada();
  /// Copies the selected session's identifier (its directory when it has none) and says so.
  void copiarIdentificador();
  /// The same with the line that resumes the selected session from any shell; nothing without such a line.
  void copiarComando();
  void copiarDirectorio();

  /// `observador` is called after each change of any property, until the subscriptions end.
  [[nodiscard]] std::vector<Suscripcion> observar(std::function<void()> const& observador) const;

 private:
  struct Carga;
  struct Resolucion;
  [[nodiscard]] Textos textos() const { return textosDe(con_.idioma); }
  void terminarCarga(Carga carga);
  void escribirTerminal(Resolucion resolucion);
  void terminarApertura(ResultadoDeApertura resultado);
  void ponerResultado(IndexResult nuevo, TextosPlegados plegados);
  void copiar(std::string const& valor);
  void mirarDirectorios();
  void terminarMirada(std::set<std::string> perdidos);
  void corregirSeleccion();
  void escribirSeleccion(std::optional<std::size_t> fila);

  ColaboradoresDelModelo con_;
  ListaFiltrada lista_;
  Observable<IndexResult> resultado_;
  Observable<std::string> consulta_;
  Observable<std::optional<std::string>> seleccion_;
  Observable<std::optional<std::string>> error_;
  Observable<std::optional<std::string>> aviso_;
  Observable<std::optional<std::string>> consejo_;
  Observable<bool> refrescando_;
  Observable<std::optional<TerminalResuelta>> terminal_;
  Observable<std::optional<std::string>> errorTerminal_;
  /// The turn of the resolution that `terminal_` and `errorTerminal_` tell of.
  std::uint64_t turnoEscrito_ = 0;
  /// The last turn given out; resolutions take theirs in the background, right before they ask.
  std::shared_ptr<std::atomic<std::uint64_t>> turnos_ = std::make_shared<std::atomic<std::uint64_t>>(0);
  Observable<std::set<std::string>> perdidos_;
  /// At most one look at the directories goes on at a time.
  bool mirando_ = false;
  std::shared_ptr<ModeloDeVista*> vida_ = std::make_shared<ModeloDeVista*>(this);
};

}  // namespace zorve
