#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Mesa.h"

namespace zorve {
namespace {

/// Everything that may happen next at one moment: the test's own next step, the main thread's next task, or
/// any task of the background. Walks every order by replaying a list of choices and then counting it up.
class TodosLosOrdenes {
 public:
  explicit TodosLosOrdenes(dobles::DespachadorPaso& despachador) : despachador_{&despachador} {}

  /// One run: takes steps until none is left. `guion` are the test's own, taken in their order.
  void correr(std::vector<std::function<void()>> const& guion) {
    std::size_t hechos = 0;
    for (std::size_t momento = 0; paso(guion, hechos, momento); ++momento) {
    }
  }
  /// Moves to the next order. Gives false when all have been taken. `despachador` is that of the next run.
  bool siguiente(dobles::DespachadorPaso& despachador) {
    despachador_ = &despachador;
    while (!decisiones_.empty() && decisiones_.back().tomada + 1 == decisiones_.back().de) {
      decisiones_.pop_back();
    }
    if (decisiones_.empty()) return false;
    ++decisiones_.back().tomada;
    return true;
  }

 private:
  struct Decision {
    std::size_t tomada = 0;
    std::size_t de = 0;
  };

  bool paso(std::vector<std::function<void()>> const& guion, std::size_t& hechos, std::size_t momento) {
    std::size_t const propios = hechos < guion.size() ? 1 : 0;
    std::size_t const principales = despachador_->principales() > 0 ? 1 : 0;
    auto const opciones = propios + principales + despachador_->deFondo();
    if (opciones == 0) return false;
    if (momento == decisiones_.size()) decisiones_.push_back({0, opciones});
    auto const cual = decisiones_[momento].tomada;
    if (cual < propios) {
      guion[hechos++]();
    } else if (cual < propios + principales) {
      despachador_->pasoPrincipal();
    } else {
      despachador_->pasoDeFondo(cual - propios - principales);
    }
    return true;
  }

  dobles::DespachadorPaso* despachador_;
  std::vector<Decision> decisiones_;
};

/// A table of its own for each order.
class Partida : public Mesa {
 public:
  void TestBody() override {}

  using Mesa::abrir;
  using Mesa::cargar;
  using Mesa::corre;
  using Mesa::despachador;
  using Mesa::disco;
  using Mesa::ejecutor;
  using Mesa::eleccion;
  using Mesa::enDisco;
  using Mesa::idioma;
  using Mesa::modelo;
  using Mesa::reapertura;

  /// What must hold at every moment.
  void comprobarLaSeleccion() const {
    if (!modelo) return;
    EXPECT_EQ(modelo->seleccion()->has_value(), !modelo->visibles().empty());
    EXPECT_EQ(modelo->seleccionada() != nullptr, !modelo->visibles().empty());
  }
};

using Guion = std::vector<std::function<void()>>;

/// Plays `hacerGuion` in every order, checking `alFinal` after each. Gives how many orders there were.
int enTodosLosOrdenes(std::function<Guion(Partida&)> const& hacerGuion,
                      std::function<void(Partida&)> const& alFinal) {
  int ordenes = 0;
  auto partida = std::make_unique<Partida>();
  TodosLosOrdenes todos{partida->despachador};
  do {
    todos.correr(hacerGuion(*partida));
    partida->comprobarLaSeleccion();
    alFinal(*partida);
    ++ordenes;
    auto siguiente = std::make_unique<Partida>();
    if (!todos.siguiente(siguiente->despachador)) return ordenes;
    partida = std::move(siguiente);
  } while (!::testing::Test::HasFailure());
  return ordenes;
}

TEST(Entrelazado, dosAperturasALaVezAcabanCadaUnaConSuTextoYQuedaElDeLaUltima) {
  std::vector<std::string> vistos;
  auto const guion = [&](Partida& p) {
    vistos.clear();
    p.cargar({sesionDe("a"), sesionDe("b")});
    p.corre(Partida::reapertura("a"), 1, "A");
    p.corre(Partida::reapertura("b"), 2, "B");
    return Guion{[&p] { p.modelo->abrirSeleccionada(); },
                 [&p] {
                   p.modelo->mover(1);
                   p.modelo->abrirSeleccionada();
                 }};
  };
  bool quedoA = false;
  bool quedoB = false;
  auto const ordenes = enTodosLosOrdenes(guion, [&](Partida& p) {
    EXPECT_EQ(p.ejecutor.llamadas().size(), 2U);
    auto const error = *p.modelo->errorDeApertura();
    quedoA |= error == "/abrir exited with code 1: A";
    quedoB |= error == "/abrir exited with code 2: B";
    EXPECT_TRUE(error);
    EXPECT_EQ(*p.modelo->avisoDeApertura(), std::nullopt);
  });
  EXPECT_TRUE(quedoA);
  EXPECT_TRUE(quedoB);
  EXPECT_GT(ordenes, 5);
}

TEST(Entrelazado, unRefrescoDuranteOtroNoHaceNada) {
  auto const guion = [](Partida& p) {
    p.enDisco({sesionDe("a"), sesionDe("b")});
    return Guion{[&p] {
                   p.modelo->refrescar();
                   EXPECT_TRUE(*p.modelo->refrescando());
                   auto const pendientes = p.despachador.deFondo();
                   p.modelo->refrescar();
                   EXPECT_EQ(p.despachador.deFondo(), pendientes);
                 },
                 [&p] { p.modelo->escribirConsulta("x"); },
                 [&p] {
                   bool const cargaba = *p.modelo->refrescando();
                   auto const pendientes = p.despachador.deFondo() + p.despachador.principales();
                   p.modelo->refrescar();
                   auto const despues = p.despachador.deFondo() + p.despachador.principales();
                   EXPECT_EQ(despues, cargaba ? pendientes : pendientes + 1);
                 }};
  };
  enTodosLosOrdenes(guion, [](Partida& p) {
    EXPECT_FALSE(*p.modelo->refrescando());
    EXPECT_EQ(p.modelo->resultado()->sesiones.size(), 2U);
    EXPECT_EQ(*p.modelo->seleccion(), "claude:a");
  });
}

TEST(Entrelazado, unaCargaNuncaBorraElErrorNiElAvisoDeUnaApertura) {
  auto const guion = [](Partida& p) {
    p.cargar({sesionDe("a")});
    p.corre(Partida::reapertura("a"), 1, "A");
    p.abrir();
    p.modelo->copiarIdentificador();
    return Guion{[&p] { p.modelo->refrescar(); },
                 [&p] {
                   p.disco->sesiones = {sesionDe("z")};
                   p.modelo->refrescar();
                 }};
  };
  enTodosLosOrdenes(guion, [](Partida& p) {
    EXPECT_EQ(*p.modelo->errorDeApertura(), "/abrir exited with code 1: A");
    EXPECT_EQ(*p.modelo->avisoDeApertura(), "Copied: a");
  });
}

TEST(Entrelazado, unCambioDeIdiomaAMediasNoCambiaElIdiomaDeLaAperturaYaPedida) {
  auto const guion = [](Partida& p) {
    p.cargar({sesionDe("a")});
    p.corre(Partida::reapertura("a"), 1, "");
    p.modelo->abrirSeleccionada();
    return Guion{[&p] { p.idioma.elegir(Idioma::es); }};
  };
  auto const ordenes = enTodosLosOrdenes(guion, [](Partida& p) {
    EXPECT_EQ(*p.modelo->errorDeApertura(), "/abrir exited with code 1: (no output)");
    EXPECT_EQ(p.modelo->terminalParaElPie(), "Uno (la única)");
  });
  EXPECT_EQ(ordenes, 4);
}

TEST(Entrelazado, elErrorDeTerminalDeUnaCargaVaEnElIdiomaDeCuandoAcaba) {
  bool enIngles = false;
  bool enEspanol = false;
  auto const guion = [](Partida& p) {
    *p.eleccion = "ausente";
    p.modelo->refrescar();
    return Guion{[&p] { p.idioma.elegir(Idioma::es); }};
  };
  enTodosLosOrdenes(guion, [&](Partida& p) {
    auto const error = p.modelo->errorDeTerminal()->value_or("");
    enIngles |= error.starts_with("Could not resolve the terminal: ");
    enEspanol |= error.starts_with("No se pudo resolver la terminal: ");
  });
  EXPECT_TRUE(enIngles);
  EXPECT_TRUE(enEspanol);
}

TEST(Entrelazado, elModeloPuedeDesaparecerEnCualquierMomentoDeUnaCargaYDeUnaApertura) {
  auto const guion = [](Partida& p) {
    p.cargar({sesionDe("a")});
    p.corre(Partida::reapertura("a"), 1, "A");
    p.modelo->refrescar();
    p.modelo->abrirSeleccionada();
    return Guion{[&p] { p.modelo.reset(); }};
  };
  auto const ordenes = enTodosLosOrdenes(guion, [](Partida& p) { EXPECT_EQ(p.modelo, nullptr); });
  EXPECT_GT(ordenes, 10);
}

TEST(Entrelazado, unaAperturaYUnaCargaALaVezDejanUnaTerminalYNingunError) {
  auto const guion = [](Partida& p) {
    p.cargar({sesionDe("a")});
    p.corre(Partida::reapertura("a"), 0, "");
    return Guion{[&p] { p.modelo->abrirSeleccionada(); }, [&p] { p.modelo->refrescar(); },
                 [&p] { p.modelo->escribirConsulta("una"); }};
  };
  enTodosLosOrdenes(guion, [](Partida& p) {
    EXPECT_TRUE(*p.modelo->terminal());
    EXPECT_EQ(*p.modelo->errorDeTerminal(), std::nullopt);
    EXPECT_EQ(*p.modelo->errorDeApertura(), std::nullopt);
    EXPECT_FALSE(*p.modelo->refrescando());
  });
}

TEST(Entrelazado, laSeleccionSeCorrigeConLaListaNuevaCaigaCuandoCaigaLaCarga) {
  auto const guion = [](Partida& p) {
    p.cargar({sesionDe("a", "alfa"), sesionDe("b", "beta")});
    p.enDisco({sesionDe("c", "beta 2"), sesionDe("b", "beta")});
    p.modelo->refrescar();
    return Guion{[&p] {
                   p.modelo->mover(1);
                   p.comprobarLaSeleccion();
                 },
                 [&p] {
                   p.modelo->escribirConsulta("beta");
                   p.comprobarLaSeleccion();
                 }};
  };
  enTodosLosOrdenes(guion, [](Partida& p) { EXPECT_EQ(p.modelo->visibles().size(), 2U); });
}

}  // namespace
}  // namespace zorve
