#pragma once

#include <CLI/CLI.hpp>

#include <expected>
#include <memory>
#include <optional>
#include <string>

#include "ZorveCore/Terminales/Terminal.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"
#include "zorvectl/Contexto.h"

namespace zorve::ctl {

/// What `plan` and `open` are asked for: a session, a directory with a command line, or a terminal device.
struct Objetivo {
  std::optional<std::string> sesion;
  std::optional<std::string> cwd;
  std::optional<std::string> comando;
  std::optional<std::string> tty;
  /// The identifier of a terminal, in place of the one that would be resolved.
  std::optional<std::string> terminal;
  std::string home;
};

/// A plan and the terminal that it was made with. The terminal refers to `servicios`.
struct PlanHecho {
  std::unique_ptr<ServiciosDeTerminal> servicios;
  TerminalRef terminal;
  PlanDeApertura plan;
};

/// Why there is no plan: the exit status and one line.
struct SinPlan {
  int codigo = Contexto::fallo;
  std::string linea;
};

/// Adds the options of an `Objetivo` to `orden`.
[[nodiscard]] std::shared_ptr<Objetivo> agregarObjetivo(CLI::App& orden);

/// Resolves the terminal and plans; runs nothing but `ps`. Settings that cannot be read are reported on
/// standard error and count as none.
[[nodiscard]] std::expected<PlanHecho, SinPlan> planear(Contexto const& contexto, Objetivo const& objetivo);

}  // namespace zorve::ctl
