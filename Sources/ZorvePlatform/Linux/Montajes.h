#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// The mounted file systems, as proc_pid_mountinfo(5) writes them. Immutable; any thread.
class Montajes {
 public:
  /// `mountinfo`: the file's text. Lines that are none are passed over.
  explicit Montajes(std::string_view mountinfo);

  /// Whether `ruta` (absolute, without "..", "." and links) lies on a file system of this machine's own,
  /// which answers without another machine or a program. No for types that are not known.
  [[nodiscard]] bool esLocal(std::string_view ruta) const;

 private:
  struct Montaje {
    std::string donde;
    bool local = false;
  };

  std::vector<Montaje> todos_;
};

}  // namespace zorve
