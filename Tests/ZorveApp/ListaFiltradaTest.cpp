#include "ZorveApp/ListaFiltrada.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace zorve {
namespace {

constexpr std::array<std::string_view, 32> trozos{
    "a", "A",  "b",  "é",    "e\u0301", "É",  "Ñ",    "n",       "ß",      "ss", "SS",
    "I", "İ",  "ı",  "i",    " ",       "\t", "\n",   "\u2003",  "ﬁ",      "fi", "Ω",
    "ω", "日", "한", "\xff", "\xc3",    "-",  "proj", "Project", "\u0301", "ⅷ"};

class Azar {
 public:
  explicit Azar(unsigned semilla) : numeros_{semilla} {}
  std::size_t hasta(std::size_t tope) { return numeros_() % tope; }
  std::string texto(std::size_t masLargo) {
    std::string todo;
    for (auto quedan = hasta(masLargo + 1); quedan > 0; --quedan) todo += trozos[hasta(trozos.size())];
    return todo;
  }
  Session sesion() {
    Session nueva{.titulo = texto(6), .cwd = "/" + texto(4)};
    if (hasta(2) == 0) nueva.ultimoPrompt = texto(8);
    return nueva;
  }
  std::vector<Session> sesiones(std::size_t cuantas) {
    std::vector<Session> todas(cuantas);
    std::ranges::generate(todas, [this] { return sesion(); });
    return todas;
  }

 private:
  std::mt19937 numeros_;
};

std::vector<std::size_t> copia(std::span<std::size_t const> posiciones) {
  return {posiciones.begin(), posiciones.end()};
}

TEST(ListaFiltrada, esIgualQueElFiltroPuroConTextosCualesquiera) {
  for (unsigned semilla = 0; semilla < 25; ++semilla) {
    Azar azar{semilla};
    auto const regla = semilla % 3 == 0 ? ReglaDePlegado::turca : ReglaDePlegado::general;
    auto const sesiones = azar.sesiones(40);
    ListaFiltrada lista{regla};
    lista.cambiarTextos(TextosPlegados{sesiones, regla});
    for (int vez = 0; vez < 8; ++vez) {
      auto const consulta = azar.texto(4);
      lista.cambiarConsulta(consulta);
      ASSERT_EQ(copia(lista.visibles()), filtrar(sesiones, consulta, regla)) << semilla << ": " << consulta;
    }
  }
}

TEST(ListaFiltrada, tecleandoYBorrandoEsIgualQueElFiltroPuro) {
  for (unsigned semilla = 0; semilla < 25; ++semilla) {
    Azar azar{semilla};
    auto const sesiones = azar.sesiones(30);
    ListaFiltrada lista{ReglaDePlegado::general};
    lista.cambiarTextos(TextosPlegados{sesiones, ReglaDePlegado::general});
    std::string consulta;
    for (int tecla = 0; tecla < 12; ++tecla) {
      if (azar.hasta(4) == 0 && !consulta.empty()) {
        consulta.pop_back();
      } else {
        consulta += azar.texto(1);
      }
      lista.cambiarConsulta(consulta);
      ASSERT_EQ(copia(lista.visibles()), filtrar(sesiones, consulta, ReglaDePlegado::general));
    }
  }
}

TEST(ListaFiltrada, alCambiarLosTextosRigeLaMismaConsulta) {
  Azar azar{7};
  ListaFiltrada lista{ReglaDePlegado::general};
  lista.cambiarConsulta("e");
  for (std::size_t cuantas : {std::size_t{50}, std::size_t{3}, std::size_t{0}, std::size_t{20}}) {
    auto const sesiones = azar.sesiones(cuantas);
    lista.cambiarTextos(TextosPlegados{sesiones, ReglaDePlegado::general});
    EXPECT_EQ(copia(lista.visibles()), filtrar(sesiones, "e", ReglaDePlegado::general));
  }
}

TEST(ListaFiltrada, unaPalabraNoSeEncuentraACaballoDeDosSesiones) {
  std::vector<Session> const sesiones{{.titulo = "x", .cwd = "/fin"}, {.titulo = "al", .cwd = "/y"}};
  ListaFiltrada lista{ReglaDePlegado::general};
  lista.cambiarTextos(TextosPlegados{sesiones, ReglaDePlegado::general});
  lista.cambiarConsulta("final");
  EXPECT_TRUE(lista.visibles().empty());
}

TEST(TextosPlegados, cadaUnoEsElTextoDeBusquedaDeSuSesion) {
  Azar azar{11};
  auto const sesiones = azar.sesiones(30);
  TextosPlegados const textos{sesiones, ReglaDePlegado::general};
  ASSERT_EQ(textos.cantidad(), sesiones.size());
  for (std::size_t i = 0; i < sesiones.size(); ++i) {
    EXPECT_EQ(textos.texto(i), textoDeBusqueda(sesiones[i], ReglaDePlegado::general));
  }
}

}  // namespace
}  // namespace zorve
