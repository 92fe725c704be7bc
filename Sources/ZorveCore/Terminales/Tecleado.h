#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "ZorveCore/Terminales/PlanDeApertura.h"

namespace zorve {

/// Some terminals type the line that a plan hands them, and a shell that reads it acts on control characters
/// within quotation marks too. The first directory or line of the plan's that must not be typed: one that
/// holds a control character (below U+0020 but tab and line feed, U+007F to U+009F, or such a byte), with
/// those made visible. Nothing where there is none, or where nothing is typed.
[[nodiscard]] std::optional<std::string> loQueNoSeTeclea(std::span<ComandoDeApertura const> comandos);

/// Whether `texto` holds one of those characters.
[[nodiscard]] bool tieneControles(std::string_view texto);

}  // namespace zorve
