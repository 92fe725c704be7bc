#pragma once

#include <CLI/CLI.hpp>

#include "zorvectl/Contexto.h"

namespace zorve::ctl {

/// Each adds one command to `app`; parsing runs it over `contexto`, which outlives the parsing.
void agregarOrdenList(CLI::App& app, Contexto& contexto);

}  // namespace zorve::ctl
