#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ZorveCore/Terminales/Terminal.h"

namespace zorve::dobles {

/// A terminal as the test says. Opening plans "/abrir <cwd> <command>", focusing "/enfocar <tty>"; `mas`
/// commands follow either.
class TerminalFija final : public Terminal {
 public:
  struct Datos {
    std::string identificador;
    std::string nombre;
    bool puedeEnfocar = true;
    bool instalada = true;
    std::vector<ComandoDeApertura> mas{};
  };

  explicit TerminalFija(Datos datos) : datos_{std::move(datos)} {}

  [[nodiscard]] std::string identificador() const override { return datos_.identificador; }
  [[nodiscard]] std::string nombre() const override { return datos_.nombre; }
  [[nodiscard]] std::string nombreDelBundle() const override { return datos_.nombre + ".app"; }
  [[nodiscard]] bool puedeEnfocar() const override { return datos_.puedeEnfocar; }
  [[nodiscard]] bool estaInstalada() const override { return datos_.instalada; }
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override {
    return plan({"/abrir", {cwd, comando}});
  }
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override {
    return plan({"/enfocar", {tty}});
  }

 private:
  [[nodiscard]] std::vector<ComandoDeApertura> plan(ComandoDeApertura primero) const {
    std::vector<ComandoDeApertura> comandos{std::move(primero)};
    comandos.insert(comandos.end(), datos_.mas.begin(), datos_.mas.end());
    return comandos;
  }

  Datos datos_;
};

[[nodiscard]] inline TerminalRef terminalFija(TerminalFija::Datos datos) {
  return std::make_shared<TerminalFija const>(std::move(datos));
}

}  // namespace zorve::dobles
