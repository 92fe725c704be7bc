#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// The text of Guion.sh, built into the executable.
[[nodiscard]] std::string_view guionDeShell();

/// What the shell piece is told.
struct OrdenParaLaShell {
  std::string directorio;
  std::string comando;
  /// Absolute path of the person's shell.
  std::string shell;
  /// The person's home directory, for terminals that change it; or nothing.
  std::string casa;
  /// An empty directory that the shell piece removes when it starts, or nothing.
  std::string senal;
};

/// The words of a command that runs the shell piece. They hold no byte of the order as it is: it travels
/// encoded, so that no layer in between can alter it. A directory that is not absolute counts from the
/// place where the terminal starts.
[[nodiscard]] std::vector<std::string> palabrasDelGuion(OrdenParaLaShell const& orden);

/// `texto` in base64, without line breaks.
[[nodiscard]] std::string base64(std::string_view texto);

}  // namespace zorve
