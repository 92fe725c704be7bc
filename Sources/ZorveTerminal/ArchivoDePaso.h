#pragma once

#include <string>
#include <string_view>

namespace zorve {

/// A file of this user's alone, for another program to read at once; it is removed at the end.
class ArchivoDePaso {
 public:
  /// Writes `texto` to a new file below $XDG_RUNTIME_DIR, or /tmp.
  explicit ArchivoDePaso(std::string_view texto);
  ArchivoDePaso(ArchivoDePaso const&) = delete;
  ArchivoDePaso& operator=(ArchivoDePaso const&) = delete;
  ~ArchivoDePaso();

  /// The absolute path; the empty text when it could not be written.
  [[nodiscard]] std::string const& ruta() const { return ruta_; }

 private:
  std::string ruta_;
};

}  // namespace zorve
