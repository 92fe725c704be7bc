#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include "Terminales/Escritorio.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve::pruebas {

/// A desktop with one tmux server, whose panes hold sessions that write down the lines they are typed.
class ConTmux : public testing::Test {
 protected:
  void TearDown() override {
    for (auto const pid : parados) ::kill(pid, SIGCONT);
  }

  [[nodiscard]] dobles::Corrida tmux(std::vector<std::string> palabras, std::string const& cual) const {
    palabras.insert(palabras.begin(), {"tmux", "-f", "/dev/null", "-S", cual});
    return escritorio.correr(std::move(palabras));
  }
  [[nodiscard]] dobles::Corrida tmux(std::vector<std::string> palabras) const {
    return tmux(std::move(palabras), enchufe);
  }

  /// Runs the command with a session behind it; gives the session's place in `panes`.
  std::size_t pane(std::vector<std::string> palabras) {
    palabras.push_back(escritorio.home().dentro("propios/claude"));
    auto const corrida = tmux(std::move(palabras));
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    anotarElNuevo();
    return panes.size() - 1;
  }

  /// A window of the terminal that shows the session.
  void cliente(std::string const& terminal, std::string const& sesion) const {
    auto const antes = clientes();
    auto const corrida = escritorio.ayudante({"open", terminal, escritorio.home().ruta(),
                                              "tmux -S " + palabraDeShell(enchufe) + " attach -t " + sesion});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    ASSERT_TRUE(esperarA([&] { return clientes() == antes + 1; }));
  }
  [[nodiscard]] std::ptrdiff_t clientes() const {
    return std::ranges::count(tmux({"list-clients", "-F", "x"}).salida, '\n');
  }

  [[nodiscard]] dobles::Corrida enfocar(std::size_t cual, std::string const& terminal = "xterm") const {
    return escritorio.ayudante({"focus", "tmux", panes.at(cual).tty, terminal});
  }
  [[nodiscard]] std::vector<std::string> teclas() const {
    std::vector<std::string> todas;
    todas.reserve(panes.size());
    for (auto const& uno : panes) {
      todas.push_back(leerArchivoDePrueba(escritorio.home().dentro("teclas/" + std::to_string(uno.pid))));
    }
    return todas;
  }
  /// Presses a key and sees it arrive at that session and at no other.
  void laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
    auto esperadas = teclas();
    esperadas.at(cual) += tecla + "\n";
    ASSERT_EQ(escritorio.correr({"xdotool", "key", tecla, "Return"}).codigo, 0);
    EXPECT_TRUE(esperarA([&] { return teclas().at(cual) == esperadas.at(cual); }, std::chrono::seconds{10}));
    EXPECT_EQ(teclas(), esperadas);
  }
  void enfocadaLaTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
    auto const corrida = enfocar(cual);
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_EQ(corrida.error, "");
    laTeclaLlegaSoloA(cual, tecla);
  }
  void parar(pid_t pid) {
    parados.push_back(pid);
    ASSERT_EQ(::kill(pid, SIGSTOP), 0);
  }

  void anotarElNuevo() {
    auto const todos = escritorio.anotados(panes.size() + 1);
    auto const nuevo = std::ranges::find_if(
        todos, [&](Anotado const& uno) { return std::ranges::count(panes, uno.pid, &Anotado::pid) == 0; });
    ASSERT_NE(nuevo, todos.end());
    panes.push_back(*nuevo);
  }

  explicit ConTmux(Escritorio::Pantalla pantalla = Escritorio::Pantalla::x11) : escritorio{pantalla} {}

  Escritorio escritorio;
  std::string enchufe = escritorio.home().dentro("r/t m");
  std::vector<Anotado> panes;
  std::vector<pid_t> parados;
};

}  // namespace zorve::pruebas
