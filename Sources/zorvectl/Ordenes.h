#pragma once

#include <CLI/CLI.hpp>

#include "zorvectl/Contexto.h"

namespace zorve::ctl {

/// Each adds one command to `app`; parsing runs it over `contexto`, which outlives the parsing.
void agregarOrdenList(CLI::App& app, Contexto& contexto);
void agregarOrdenPlan(CLI::App& app, Contexto& contexto);
void agregarOrdenOpen(CLI::App& app, Contexto& contexto);
void agregarOrdenTerminals(CLI::App& app, Contexto& contexto);
void agregarOrdenChoose(CLI::App& app, Contexto& contexto);
/// Only where the build has the panel in a terminal (ZORVE_PANEL_EN_TERMINAL).
void agregarOrdenPanel(CLI::App& app, Contexto& contexto);

}  // namespace zorve::ctl
