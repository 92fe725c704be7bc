#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <sys/types.h>

namespace zorve::ayudante {

/// What a D-Bus message holds, as far as terminals need it.
using DatoSimple = std::variant<std::int32_t, std::uint32_t, std::string>;
/// A value of any type: "v".
struct Variante {
  DatoSimple valor;
};
/// Values of any types: "av".
struct Variantes {
  std::vector<DatoSimple> valores;
};
/// An empty dictionary: "a{sv}".
struct SinOpciones {};
/// A dictionary of one text: "a{sv}".
struct Opcion {
  std::string nombre;
  std::string valor;
};
/// One argument of a call.
using Argumento = std::variant<std::int32_t, std::uint32_t, std::string, std::vector<std::string>,
                               std::vector<std::uint32_t>, Variante, Variantes, SinOpciones, Opcion>;

/// A method of an object.
struct Metodo {
  std::string servicio;
  std::string objeto;
  std::string interfaz;
  std::string nombre;
};

/// Why a call brought no answer: the program is silent, or it (or the bus) refused.
enum class FalloDeBus : std::uint8_t { calla, rechaza };

/// An answer: every basic value in it, in order, whatever arrays, structures and variants it stands in.
using DatoDeRespuesta = std::variant<bool, std::int64_t, std::string>;
using Respuesta = std::expected<std::vector<DatoDeRespuesta>, FalloDeBus>;

/// The person's session bus (D-Bus Specification, freedesktop.org). Nothing is started by calling it.
class Bus {
 public:
  /// Connects to the bus that $DBUS_SESSION_BUS_ADDRESS or $XDG_RUNTIME_DIR names.
  Bus();
  Bus(Bus const&) = delete;
  Bus& operator=(Bus const&) = delete;
  ~Bus();

  [[nodiscard]] bool abierto() const;
  /// Waits for the answer no longer than `plazo`.
  [[nodiscard]] Respuesta llamar(Metodo const& metodo, std::span<Argumento const> argumentos = {},
                                 std::chrono::milliseconds plazo = std::chrono::milliseconds{2500}) const;
  /// This connection's own name on the bus.
  [[nodiscard]] std::string nombre() const;
  /// Waits until the connection `quien` (its own name on the bus) calls that method of ours (its service is
  /// `nombre`), and gives the call's first text. All other calls that come meanwhile are passed over.
  [[nodiscard]] std::optional<std::string> recibir(Metodo const& nuestro, std::chrono::milliseconds plazo,
                                                   std::string const& quien) const;
  /// The own name of the connection behind a name on the bus, or the empty text.
  [[nodiscard]] std::string duenoDe(std::string const& servicio) const;
  /// The process behind a name on the bus, or 0.
  [[nodiscard]] pid_t procesoDe(std::string const& servicio) const;
  /// The numbers of the objects directly below `objeto` that are named `prefijo` and a number, ascending.
  [[nodiscard]] std::expected<std::vector<std::uint32_t>, FalloDeBus> numerados(
      std::string const& servicio, std::string const& objeto, std::string_view prefijo = "") const;

 private:
  struct Conexion;
  std::unique_ptr<Conexion> conexion_;
};

}  // namespace zorve::ayudante
