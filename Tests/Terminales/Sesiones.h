#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Terminales/CadaTerminal.h"
#include "Terminales/Escritorio.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::pruebas {

/// The terminals whose sessions can be brought to the front there.
[[nodiscard]] std::vector<FichaDeTerminal> enfocables(SesionGrafica sesion);

/// A desktop with sessions of one terminal, each of which writes down the lines it is typed.
class Sesiones {
 public:
  Sesiones(FichaDeTerminal ficha, Escritorio::Pantalla pantalla, std::string const& gestor = "openbox")
      : escritorio{pantalla, gestor}, ficha_{std::move(ficha)} {}

  /// Opens one more window with the helper, for that command. False when no session appeared in it.
  [[nodiscard]] bool abrirVentana(std::string const& orden = "claude");
  /// Waits for one more session, opened some other way. False when none appears.
  [[nodiscard]] bool esperarOtra();
  [[nodiscard]] dobles::Corrida enfocar(std::size_t cual) const;
  /// What was typed into the session.
  [[nodiscard]] std::string teclasDe(std::size_t cual) const;
  /// Focuses the session, presses a key, and sees it arrive there and nowhere else.
  void laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const;
  /// The process that shows the session.
  [[nodiscard]] pid_t anfitrionDe(std::size_t cual) const;
  /// A variable of the shell that started the session.
  [[nodiscard]] std::string variableDe(std::size_t cual, std::string const& nombre) const;
  /// The identifiers of the windows on this desktop; none where only KWin knows them.
  [[nodiscard]] std::vector<std::string> ventanas() const;
  /// Runs a program in this desktop; its words appear where it fails.
  [[nodiscard]] bool hacer(std::vector<std::string> const& palabras) const;

  Escritorio escritorio;
  std::vector<Anotado> sesiones;

 private:
  [[nodiscard]] bool sabeLasVentanas() const;

  FichaDeTerminal ficha_;
};

}  // namespace zorve::pruebas
