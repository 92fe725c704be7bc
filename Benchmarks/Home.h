#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace zorve::medir {

/// What a session's transcript looks like.
enum class Forma : std::uint8_t {
  /// The title on line 1 and again in the last 40 KiB, a directory on nearly every line.
  actual,
  /// The title on line 1 only, or (every other file) nowhere.
  dificil,
};

/// A home directory to be measured on. The same parameters always give the same bytes.
struct Home {
  std::string nombre;
  Forma forma = Forma::actual;
  std::size_t transcripciones = 0;
  /// Bytes of all transcripts together; sizes are log-normal, from a few KiB to tens of MiB.
  std::uint64_t bytes = 0;
  /// Every transcript has the mean size instead.
  bool iguales = false;
  std::size_t lineasDeHistoria = 0;

  /// The home's path. It is made where it does not stand yet.
  [[nodiscard]] std::string preparar() const;
};

/// The home of 2,000 transcripts (1.1 GB) and 30,000 history lines.
[[nodiscard]] Home homeGrande(Forma forma);

}  // namespace zorve::medir
