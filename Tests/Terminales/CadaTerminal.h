#pragma once

#include <string>

#include <gtest/gtest.h>
#include <sys/types.h>

#include "Terminales/Escritorio.h"
#include "ZorveCore/FichaDeTerminal.h"

namespace zorve::pruebas {

/// What /proc says of a process: its state ('T' for a stopped one), or '\0' once it is gone; and its parent.
struct Proceso {
  char estado = '\0';
  pid_t padre = 0;
};

[[nodiscard]] Proceso procesoDe(pid_t pid);

/// Whether the long tests run too (./test --all).
[[nodiscard]] bool conLosLargos();

/// Whether this machine has the terminal; says by name that it is skipped when it has not.
[[nodiscard]] bool estaAqui(FichaDeTerminal const& ficha);

/// A desktop that the terminal can be tried on: foot speaks Wayland alone; x-terminal-emulator leads to
/// urxvt, which the table does not know.
class EscritorioDe final : public Escritorio {
 public:
  explicit EscritorioDe(FichaDeTerminal const& ficha, std::string const& gestorDeVentanas = "openbox");
  EscritorioDe(FichaDeTerminal const& ficha, Pantalla pantalla,
               std::string const& gestorDeVentanas = "openbox");
};

/// The terminal's identifier as a part of a test's name.
[[nodiscard]] std::string nombreDelTerminal(testing::TestParamInfo<FichaDeTerminal> const& caso);

}  // namespace zorve::pruebas
