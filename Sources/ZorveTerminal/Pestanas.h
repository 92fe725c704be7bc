#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "ZorveTerminal/Bus.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve::ayudante {

/// What became of a request to a terminal.
enum class Mostrada : std::uint8_t {
  /// The session's tab is the one that its window shows.
  si,
  /// The terminal cannot be asked this way.
  noSabe,
  /// The terminal does not answer.
  calla,
};

/// What became of one that D-Bus carried.
[[nodiscard]] Mostrada mostradaSegun(FalloDeBus fallo);
[[nodiscard]] Mostrada mostradaSegun(Respuesta const& respuesta);

/// What a terminal offers to bring a session's tab to the front of its window. Every call ends within 3 s.
class Pestanas {
 public:
  Pestanas() = default;
  Pestanas(Pestanas const&) = delete;
  Pestanas& operator=(Pestanas const&) = delete;
  virtual ~Pestanas() = default;

  /// Asks the terminal itself for the session's tab.
  [[nodiscard]] virtual Mostrada mostrar() = 0;
  /// The X window of the session, where the terminal says so; 0 where it does not.
  [[nodiscard]] virtual std::uint64_t ventana() const { return 0; }
  /// Whether its tabs can be gone through, where `mostrar` does not know.
  [[nodiscard]] virtual bool recorre() const { return false; }
  /// Shows one more tab, whosever it is. `noSabe` when all were shown.
  [[nodiscard]] virtual Mostrada siguiente() { return Mostrada::noSabe; }
  /// Shows what was shown before `siguiente`.
  virtual void volver() {}
};

/// What is known of the terminals that show a session. A terminal without a row has windows alone, and none
/// that could be marked.
struct ModoDeEnfoque {
  /// As in its FichaDeTerminal.
  std::string_view identificador;
  /// Keeps titles on a stack, and shows the active session's in its window's title: MarcaDeTitulo works.
  bool admiteMarca = false;
  /// Makes what selects its tabs; null where nothing does.
  std::unique_ptr<Pestanas> (*pestanas)(SesionEnTty const&) = nullptr;
};

/// The row of the terminal.
[[nodiscard]] ModoDeEnfoque modoDeEnfoque(std::string_view identificador);

}  // namespace zorve::ayudante
