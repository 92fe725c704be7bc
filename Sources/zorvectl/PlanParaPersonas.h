#pragma once

#include <string>

#include "ZorveCore/Terminal.h"
#include "zorvectl/Contexto.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

/// Each command: its path, then its arguments, numbered, those of several lines indented under their number.
/// A plan that cannot focus is the sentence that says so.
[[nodiscard]] std::string planParaPersonas(Contexto const& contexto, PlanDeApertura const& plan,
                                           Terminal const& terminal, Pantalla const& pantalla);

/// One JSON object on one line.
[[nodiscard]] std::string planJson(PlanDeApertura const& plan);

/// Why the session cannot be brought to the front, as one sentence for people.
[[nodiscard]] std::string avisoSinEnfoque(Contexto const& contexto, NoSePuedeEnfocar const& plan,
                                          Terminal const& terminal);

}  // namespace zorve::ctl
