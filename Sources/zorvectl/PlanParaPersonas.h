#pragma once

#include <string>

#include "ZorveCore/Terminales/Terminal.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

/// Each command: its path, then its arguments, numbered, those of several lines indented under their number.
/// A plan that cannot focus is the sentence that says so.
[[nodiscard]] std::string planParaPersonas(PlanDeApertura const& plan, Terminal const& terminal,
                                           Pantalla const& pantalla);

/// One JSON object on one line.
[[nodiscard]] std::string planJson(PlanDeApertura const& plan);

}  // namespace zorve::ctl
