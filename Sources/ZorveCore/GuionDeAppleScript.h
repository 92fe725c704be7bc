#pragma once

#include <string>

#include "ZorveCore/Terminal.h"

namespace zorve {

/// The plan that runs `guion`, an AppleScript text, with the program at `rutaOsascript`.
[[nodiscard]] PlanDeApertura planDeGuion(std::string const& rutaOsascript, std::string guion);

/// The shell line that enters directory `cwd` and there runs the shell command line `comando`.
[[nodiscard]] std::string lineaDeShell(std::string const& cwd, std::string const& comando);

/// What a focus script says when no tab of the terminal `nombre` has the device.
[[nodiscard]] std::string sesionNoHallada(std::string const& nombre, std::string const& ttyCorto);

}  // namespace zorve
