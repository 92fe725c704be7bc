#include "ZorveCore/Texto/Filtro.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorve {
namespace {

using Posiciones = std::vector<std::size_t>;
constexpr auto general = ReglaDePlegado::general;
constexpr auto turca = ReglaDePlegado::turca;

std::vector<Session> const sesiones{
    {.titulo = "Arreglar el menú", .cwd = "/home/ana/zorve", .ultimoPrompt = "compila y prueba"},
    {.titulo = "Notes", .cwd = "/srv/NOTAS", .ultimoPrompt = std::nullopt, .sessionId = "abc"},
    {.titulo = "Año nuevo", .cwd = "/home/ana", .ultimoPrompt = "Straße nach ISTANBUL"}};

TEST(Filtro, sinPalabrasQuedanTodasEnSuOrden) {
  EXPECT_EQ(filtrar(sesiones, "", general), (Posiciones{0, 1, 2}));
  EXPECT_EQ(filtrar(sesiones, " \t\n\u00A0\u3000", general), (Posiciones{0, 1, 2}));
}

TEST(Filtro, cajaYAcentosDanIgual) {
  EXPECT_EQ(filtrar(sesiones, "MENU", general), (Posiciones{0}));
  EXPECT_EQ(filtrar(sesiones, "ménú", general), (Posiciones{0}));
  EXPECT_EQ(filtrar(sesiones, "ANO", general), (Posiciones{2}));
  EXPECT_EQ(filtrar(sesiones, "ñotes", general), (Posiciones{1}));
  EXPECT_EQ(filtrar(sesiones, "STRASSE", general), (Posiciones{2}));
}

TEST(Filtro, todasLasPalabrasHacenFaltaEnCualquierOrden) {
  EXPECT_EQ(filtrar(sesiones, "prueba zorve", general), (Posiciones{0}));
  EXPECT_EQ(filtrar(sesiones, "zorve\u2003prueba\nmen", general), (Posiciones{0}));
  EXPECT_EQ(filtrar(sesiones, "zorve notas", general), Posiciones{});
  EXPECT_EQ(filtrar(sesiones, "ana", general), (Posiciones{0, 2}));
  EXPECT_EQ(filtrar(sesiones, "an ana na", general), (Posiciones{0, 2}));
}

TEST(Filtro, seBuscaEnTituloDirectorioYUltimoPromptYEnNadaMas) {
  EXPECT_EQ(filtrar(sesiones, "notes", general), (Posiciones{1}));
  EXPECT_EQ(filtrar(sesiones, "srv/notas", general), (Posiciones{1}));
  EXPECT_EQ(filtrar(sesiones, "compila", general), (Posiciones{0}));
  EXPECT_EQ(filtrar(sesiones, "abc", general), Posiciones{});
  EXPECT_EQ(filtrar(sesiones, "claude", general), Posiciones{});
  EXPECT_EQ(filtrar(sesiones, "dead", general), Posiciones{});
}

TEST(Filtro, unaPalabraNoSaltaDelTituloAlDirectorio) {
  EXPECT_EQ(filtrar(sesiones, "notes/srv", general), Posiciones{});
  EXPECT_EQ(filtrar(sesiones, "notas/", general), Posiciones{});
}

TEST(Filtro, elTextoDeBusquedaUneConUnEspacioAunqueFalteElPrompt) {
  EXPECT_EQ(textoDeBusqueda(sesiones[1], general), "notes /srv/notas ");
  EXPECT_EQ(textoDeBusqueda(Session{}, general), "  ");
  EXPECT_EQ(textoDeBusqueda(Session{.titulo = "a", .cwd = "\u0301b"}, general), "a b ");
}

TEST(Filtro, enTurcoLaIMayusculaEsLaSinPunto) {
  EXPECT_EQ(filtrar(sesiones, "ıstanbul", turca), (Posiciones{2}));
  EXPECT_EQ(filtrar(sesiones, "ISTANBUL", turca), (Posiciones{2}));
  EXPECT_EQ(filtrar(sesiones, "istanbul", turca), Posiciones{});
  EXPECT_EQ(filtrar(sesiones, "istanbul", general), (Posiciones{2}));
  std::vector<Session> const ascii{{.titulo = "ISTANBUL"}, {.titulo = "istanbul"}};
  EXPECT_EQ(filtrar(ascii, "ıst", turca), (Posiciones{0}));
  EXPECT_EQ(filtrar(ascii, "İst", turca), (Posiciones{1}));
  EXPECT_EQ(filtrar(ascii, "ıst", general), Posiciones{});
}

TEST(Filtro, unByteSueltoSoloEsIgualASiMismo) {
  std::vector<Session> const raras{{.titulo = "漢"}, {.titulo = "x\xA2y"}, {.titulo = "x\xE6\xBC"}};
  EXPECT_EQ(filtrar(raras, "\xA2", general), (Posiciones{1}));
  EXPECT_EQ(filtrar(raras, "\xE6\xBC", general), (Posiciones{2}));
  EXPECT_EQ(filtrar(raras, "漢", general), (Posiciones{0}));
}

TEST(Filtro, encuentraLaPalabraEnCualquierPosicionYLargo) {
  for (std::size_t largo = 1; largo <= 70; ++largo) {
    for (std::size_t antes = 0; antes < 140; antes += 3) {
      std::string const ficha = std::string(largo - 1, 'a') + "Z";
      std::vector<Session> const una{{.titulo = std::string(antes, 'a') + ficha}};
      std::vector<Session> const ninguna{{.titulo = std::string(antes + largo, 'a')}};
      ASSERT_EQ(filtrar(una, ficha, general), (Posiciones{0})) << largo << ' ' << antes;
      ASSERT_EQ(filtrar(ninguna, ficha, general), Posiciones{}) << largo << ' ' << antes;
    }
  }
}

class Azar {
 public:
  explicit Azar(unsigned semilla) : motor_{semilla} {}
  std::size_t hasta(std::size_t tope) { return std::uniform_int_distribution<std::size_t>{0, tope}(motor_); }
  std::string texto(std::span<std::string_view const> piezas, std::size_t tope) {
    std::string resultado;
    for (auto n = hasta(tope); n > 0; --n) resultado += piezas[hasta(piezas.size() - 1)];
    return resultado;
  }

 private:
  std::mt19937 motor_;
};

Posiciones lento(std::span<Session const> todas, std::string_view consulta, ReglaDePlegado regla) {
  auto const fichas = fichasDe(consulta, regla);
  Posiciones quedan;
  for (std::size_t i = 0; i < todas.size(); ++i) {
    auto const texto = textoDeBusqueda(todas[i], regla);
    bool pasa = true;
    for (auto const& ficha : fichas) pasa = pasa && texto.find(ficha) != std::string::npos;
    if (pasa) quedan.push_back(i);
  }
  return quedan;
}

TEST(Filtro, elCaminoRapidoDaLoMismoQueLaDefinicion) {
  constexpr std::array<std::string_view, 9> ascii{"a", "I", "i", "B", "b", " ", "/", "Zz", "aI"};
  constexpr std::array<std::string_view, 12> mezcla{"a", "I", "i",      "B", " ",      "/",
                                                    "ñ", "İ", "\u0301", "ı", "\u00A0", "ß"};
  Azar azar{20240229};
  std::size_t conAlgo = 0;
  for (int vuelta = 0; vuelta < 6000; ++vuelta) {
    bool const pura = azar.hasta(2) != 0;
    std::span<std::string_view const> const piezas =
        pura ? std::span<std::string_view const>{ascii} : std::span<std::string_view const>{mezcla};
    std::vector<Session> todas(4);
    for (auto& una : todas) {
      una.titulo = azar.texto(piezas, 12);
      una.cwd = azar.texto(piezas, 90);
      if (azar.hasta(1) == 0) una.ultimoPrompt = azar.texto(piezas, 12);
    }
    auto const consulta =
        azar.texto(azar.hasta(1) == 0 ? piezas : std::span<std::string_view const>{mezcla}, 5);
    auto const regla = azar.hasta(1) == 0 ? general : turca;
    auto const esperado = lento(todas, consulta, regla);
    if (!esperado.empty() && esperado.size() < todas.size()) ++conAlgo;
    ASSERT_EQ(filtrar(todas, consulta, regla), esperado) << consulta;
  }
  EXPECT_GT(conAlgo, 500);
}

}  // namespace
}  // namespace zorve
