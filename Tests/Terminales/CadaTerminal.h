#pragma once

#include <string>

#include <gtest/gtest.h>
#include <sys/types.h>

#include "Terminales/Escritorio.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::pruebas {

/// What /proc says of a process: its state ('T' for a stopped one), or '\0' once it is gone; and its parent.
struct Proceso {
  char estado = '\0';
  pid_t padre = 0;
};

[[nodiscard]] Proceso procesoDe(pid_t pid);

/// Whether this machine has the terminal.
[[nodiscard]] bool estaAqui(FichaDeTerminal const& ficha);

/// Why a test of it does not run where it has not.
[[nodiscard]] std::string noEstaAqui(FichaDeTerminal const& ficha);

/// A test of one terminal, which does not run where that is not installed.
class DeUnTerminal : public testing::TestWithParam<FichaDeTerminal> {
 protected:
  void SetUp() override {
    if (!estaAqui(GetParam())) GTEST_SKIP() << noEstaAqui(GetParam());
  }
};

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
