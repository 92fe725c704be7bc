#pragma once

#include <span>
#include <string>
#include <vector>

namespace zorve::ayudante {

/// The variables ("NAME=value") of `entorno` without those that tell a process in which window, tab or
/// multiplexer it runs: a new window is none of them.
[[nodiscard]] std::vector<std::string> entornoLimpio(std::span<std::string const> entorno);

/// The value of `nombre` in `entorno`, or the empty text.
[[nodiscard]] std::string valorEn(std::span<std::string const> entorno, std::string const& nombre);

/// The absolute path of the person's shell: $SHELL, else the account's entry, else /bin/sh; each only if it
/// can be run.
[[nodiscard]] std::string shellDeLaPersona(std::span<std::string const> entorno);

}  // namespace zorve::ayudante
