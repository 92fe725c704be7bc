#pragma once

#include <array>
#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZorveCore/Modelo.h"
#include "ZorveCore/Preferencias.h"
#include "ZorveCore/Terminales/ManejadorDelSistema.h"
#include "ZorveCore/Terminales/Terminal.h"
#include "ZorveCore/VocesDelSistema.h"

namespace zorve {

/// How a terminal was resolved: the person's choice, the system's handler, or the only one installed.
enum class OrigenDeLaTerminal : std::uint8_t { eleccionDeLaPersona, manejadorDelSistema, unicaInstalada };

template <>
struct Casos<OrigenDeLaTerminal> {
  static constexpr std::array<std::pair<OrigenDeLaTerminal, std::string_view>, 3> tabla{
      {{OrigenDeLaTerminal::eleccionDeLaPersona, "eleccionDeLaPersona"},
       {OrigenDeLaTerminal::manejadorDelSistema, "manejadorDelSistema"},
       {OrigenDeLaTerminal::unicaInstalada, "unicaInstalada"}}};
};

struct TerminalResuelta {
  TerminalRef terminal;
  OrigenDeLaTerminal origen = OrigenDeLaTerminal::eleccionDeLaPersona;
  bool operator==(TerminalResuelta const& otra) const;
};

/// The known terminals and the two answers that decide which one is used.
struct CatalogoDeTerminales {
  /// The preference under which the choice is saved, as a text.
  static constexpr std::string_view clavePreferencia = "zorve.terminalElegida";
  /// The uniform type whose default handler macOS is asked for.
  static constexpr std::string_view tipoDeGuionDeShell = "com.apple.terminal.shell-script";

  std::vector<TerminalRef> conocidas;
  /// The identifier of the system's terminal, or nothing.
  std::function<std::optional<std::string>()> manejadorDelSistema;
  /// The saved choice, or nothing.
  std::function<std::optional<std::string>()> leerEleccion;
  /// In which messages are written.
  VocesDelSistema voces = {};

  [[nodiscard]] std::vector<TerminalRef> instaladas() const;
  /// Decides from the choice, the handler, the only one installed, in this order. Fails with source
  /// `launcher`.
  [[nodiscard]] std::expected<TerminalResuelta, IndexError> resolver() const;
};

/// The identifier of the system's handler for shell scripts, or nothing.
[[nodiscard]] std::optional<std::string> manejadorRegistrado(ManejadorDelSistema const& manejador);

/// The text saved under `clavePreferencia`, or nothing; why it could not be read.
[[nodiscard]] std::expected<std::optional<std::string>, IndexError> leerLaEleccion(
    Preferencias const& preferencias);

/// The same, nothing where it could not be read.
[[nodiscard]] std::optional<std::string> eleccionGuardada(Preferencias const& preferencias);

/// Saves `identificador` as the choice; with nothing, removes the choice.
[[nodiscard]] std::expected<void, IndexError> elegir(Preferencias& preferencias,
                                                     std::optional<std::string> const& identificador);

/// The first of `terminales` whose identifier is `identificador`, case ignored, or null.
[[nodiscard]] TerminalRef buscarTerminal(std::string_view identificador,
                                         std::vector<TerminalRef> const& terminales);

}  // namespace zorve
