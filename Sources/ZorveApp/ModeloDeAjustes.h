#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZorveApp/Despachador.h"
#include "ZorveApp/Idioma.h"
#include "ZorveApp/InicioDeSesion.h"
#include "ZorveApp/Observable.h"
#include "ZorveApp/Textos.h"
#include "ZorveCore/Terminales/MiradaDeTerminales.h"

namespace zorve {

enum class SeccionDeAjustes : std::uint8_t { general, terminal, acercaDe };

template <>
struct Casos<SeccionDeAjustes> {
  static constexpr std::array<std::pair<SeccionDeAjustes, std::string_view>, 3> tabla{
      {{SeccionDeAjustes::general, "general"},
       {SeccionDeAjustes::terminal, "terminal"},
       {SeccionDeAjustes::acercaDe, "acercaDe"}}};
};

/// What went wrong last. `deNucleo` carries a whole message, the other two a detail.
struct FalloDeAjustes {
  enum class Caso : std::uint8_t { deNucleo, terminalDesconocida, arranque };
  Caso caso = Caso::deNucleo;
  std::string texto;

  /// The band's text.
  [[nodiscard]] std::string banda(Textos const& textos) const;
  bool operator==(FalloDeAjustes const&) const = default;
};

/// What the settings work with. The referenced objects outlive the model; `despachador` and `preferencias`
/// outlive its tasks.
struct ColaboradoresDeAjustes {
  FuentesDeTerminales terminales;
  Preferencias& preferencias;
  InicioDeSesion& inicio;
  PreferenciaDeIdioma& idioma;
  Despachador& despachador;
  /// The packaged program's version; nothing when it runs from where it was built.
  std::optional<std::string> version;
};

/// The state behind the settings window. Main thread only; terminals are looked at in the background, since
/// that may run programs, and choices are saved there, since that may wait for another program.
class ModeloDeAjustes {
 public:
  explicit ModeloDeAjustes(ColaboradoresDeAjustes con);
  ModeloDeAjustes(ModeloDeAjustes const&) = delete;
  ModeloDeAjustes& operator=(ModeloDeAjustes const&) = delete;
  ~ModeloDeAjustes() = default;

  [[nodiscard]] Observable<SeccionDeAjustes> const& seccion() const { return seccion_; }
  /// The known terminals that are installed, in the catalogue's order.
  [[nodiscard]] Observable<std::vector<TerminalRef>> const& instaladas() const { return instaladas_; }
  /// The saved choice, or nothing when the program is to decide.
  [[nodiscard]] Observable<std::optional<std::string>> const& eleccion() const { return eleccion_; }
  /// The terminal that would be used now.
  [[nodiscard]] Observable<std::optional<TerminalResuelta>> const& resuelta() const { return resuelta_; }
  /// Who says which is the system's terminal, where that one would be used and more than one could say so.
  [[nodiscard]] Observable<std::optional<std::string>> const& dichoPor() const { return dichoPor_; }
  [[nodiscard]] Observable<bool> const& arranqueActivo() const { return arranqueActivo_; }
  [[nodiscard]] Observable<std::optional<FalloDeAjustes>> const& fallo() const { return fallo_; }
  /// Whether the first load has ended: before it, nothing is known of terminals.
  [[nodiscard]] Observable<bool> const& cargado() const { return cargado_; }
  /// The version, or the word for none in the language in force.
  [[nodiscard]] std::string version() const;

  void escribirSeccion(SeccionDeAjustes seccion);
  /// Asks the system again for everything but the section. Of loads that overlap the last one counts.
  void cargar();
  /// Switches launch at login and shows the real state after it, also after a failure.
  void alternarArranque();
  /// Saves the terminal to use, or that the program is to decide; then loads. A failure to save stays in
  /// `fallo` until something is saved. Saving happens in the background, one choice after another.
  void elegirTerminal(std::optional<std::string> const& identificador);
  /// In force at once; saved like that.
  void elegirIdioma(Idioma idioma);

  /// `observador` is called after each change of any property, until the subscriptions end.
  [[nodiscard]] std::vector<Suscripcion> observar(std::function<void()> const& observador) const;

 private:
  /// What a load hands back; `numero` counts loads from 1.
  struct Carga {
    std::uint64_t numero = 0;
    MiradaDeTerminales mirada;
  };
  using Guardado = std::expected<void, IndexError>;
  struct PorGuardar {
    std::function<Guardado()> cambio;
    void (ModeloDeAjustes::*alAcabar)(Guardado const&);
  };
  void guardar(PorGuardar uno);
  void guardarElPrimero();
  void terminarGuardado(Guardado guardado);
  void trasLaTerminal(Guardado const& guardado);
  void trasElIdioma(Guardado const& guardado);
  void empezarCarga(std::optional<FalloDeAjustes> reciente);
  void terminarCarga(Carga carga);
  void escribirFalloDe(MiradaDeTerminales const& mirada);

  ColaboradoresDeAjustes con_;
  Observable<SeccionDeAjustes> seccion_;
  Observable<std::vector<TerminalRef>> instaladas_;
  Observable<std::optional<std::string>> eleccion_;
  Observable<std::optional<TerminalResuelta>> resuelta_;
  Observable<std::optional<std::string>> dichoPor_;
  Observable<bool> arranqueActivo_;
  Observable<std::optional<FalloDeAjustes>> fallo_;
  Observable<bool> cargado_;
  /// A failure met since the last load began, or right before it: that load does not clear it.
  std::optional<FalloDeAjustes> falloReciente_;
  /// The last failure to save, until something is saved.
  std::optional<FalloDeAjustes> falloDeGuardar_;
  /// What is being saved, and what waits for its turn.
  std::deque<PorGuardar> porGuardar_;
  std::uint64_t ultimaCarga_ = 0;
  std::shared_ptr<ModeloDeAjustes*> vida_ = std::make_shared<ModeloDeAjustes*>(this);
};

}  // namespace zorve
