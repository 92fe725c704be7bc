#pragma once

#include <string>
#include <string_view>

namespace zorve::ayudante {

/// Where things are left for another program to take up.
struct LugarDePaso {
  /// An absolute path of letters, digits, "/", "-", "_" and "." alone, which no program in between alters.
  std::string carpeta;
  /// Nobody else can make anything there.
  bool privado = false;
  bool operator==(LugarDePaso const&) const = default;
};

/// `deEjecucion` (what $XDG_RUNTIME_DIR says) if that is this user's own and closed to others; else the
/// folder .cache of `home`, if nobody else can write there; else /tmp, which is sticky.
[[nodiscard]] LugarDePaso lugarDePaso(std::string const& deEjecucion, std::string const& home);

/// A new folder that is closed to others, removed at the end with what is in it unless it is left.
class CarpetaDePaso {
 public:
  explicit CarpetaDePaso(LugarDePaso const& lugar);
  CarpetaDePaso(CarpetaDePaso const&) = delete;
  CarpetaDePaso& operator=(CarpetaDePaso const&) = delete;
  ~CarpetaDePaso();

  /// The absolute path; the empty text when it could not be made.
  [[nodiscard]] std::string const& ruta() const { return ruta_; }
  /// Writes a file of that name, for this user alone. False when it cannot.
  [[nodiscard]] bool escribir(std::string const& nombre, std::string_view texto) const;
  /// It stays: whoever was told its name removes it.
  void dejar() { seQueda_ = true; }

 private:
  std::string ruta_;
  bool seQueda_ = false;
};

}  // namespace zorve::ayudante
