#pragma once

#include <array>
#include <cstdint>
#include <expected>
#include <functional>
#include <string_view>
#include <utility>

#include "ZorveApp/Observable.h"
#include "ZorveCore/Enumeracion.h"
#include "ZorveCore/Preferencias.h"
#include "ZorveCore/VocesDelSistema.h"

namespace zorve {

/// The languages of the interface.
enum class Idioma : std::uint8_t { en, es };

template <>
struct Casos<Idioma> {
  static constexpr std::array<std::pair<Idioma, std::string_view>, 2> tabla{
      {{Idioma::en, "en"}, {Idioma::es, "es"}}};
};

/// The language that a stored text selects: Spanish for exactly "es", English for anything else or nothing.
[[nodiscard]] Idioma idiomaGuardado(std::string_view texto);

/// A language's own name, the same whatever the interface language: "English", "Español".
[[nodiscard]] std::string_view nombrePropio(Idioma idioma);

/// The language in force. One object for the whole program, built by its main over the user's settings.
/// Main thread only.
class PreferenciaDeIdioma {
 public:
  static constexpr std::string_view clave = "zorve.idioma";

  /// Reads the stored language. `preferencias` outlives this object.
  explicit PreferenciaDeIdioma(Preferencias& preferencias, VocesDelSistema const& voces = {});

  [[nodiscard]] Observable<Idioma> const& idioma() const { return idioma_; }
  /// In which this system's texts are written, whatever the language.
  [[nodiscard]] VocesDelSistema const& voces() const { return voces_; }

  /// Puts `nuevo` in force, and gives what stores it, to be called once and on any thread but the main one,
  /// since it may wait; this object may be gone by then, the settings may not. What was in force already is
  /// stored only where the settings select another. What cannot be stored is in force until the program ends.
  std::function<std::expected<void, IndexError>()> elegir(Idioma nuevo);

 private:
  Preferencias& preferencias_;
  VocesDelSistema voces_;
  Observable<Idioma> idioma_;
};

}  // namespace zorve
