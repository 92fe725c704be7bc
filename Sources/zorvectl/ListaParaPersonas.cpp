#include "zorvectl/ListaParaPersonas.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "ZorveCore/Texto/Presentacion.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "zorvectl/Tabla.h"

namespace zorve::ctl {

namespace {

constexpr std::size_t claveMinima = 4;
constexpr std::string_view tenue = "2";
constexpr std::string_view colorDeRuta = "36";

std::string_view palabraDe(LiveState estado) {
  if (estado == LiveState::busy) return "working";
  return estado == LiveState::idle ? "active" : "";
}

std::string_view colorDe(LiveState estado) { return estado == LiveState::busy ? "1;33" : "1;32"; }

std::size_t enComun(std::string_view una, std::string_view otra) {
  return static_cast<std::size_t>(std::ranges::mismatch(una, otra).in1 - una.begin());
}

template <class Celda>
std::vector<std::string> celdas(std::span<Session const* const> sesiones, Celda const& celda) {
  std::vector<std::string> todas;
  todas.reserve(sesiones.size());
  for (auto const* sesion : sesiones) todas.push_back(celda(*sesion));
  return todas;
}

std::vector<std::string_view> coloresDeEstado(std::span<Session const* const> sesiones) {
  std::vector<std::string_view> colores;
  for (auto const* sesion : sesiones) colores.push_back(colorDe(sesion->liveState));
  return colores;
}

}  // namespace

std::size_t largoDeClave(std::span<Session const> todas) {
  std::vector<std::string_view> ids;
  for (auto const& sesion : todas) {
    if (sesion.sessionId) ids.emplace_back(*sesion.sessionId);
  }
  std::ranges::sort(ids);
  std::size_t largo = claveMinima;
  for (std::size_t i = 1; i < ids.size(); ++i) largo = std::max(largo, enComun(ids[i - 1], ids[i]) + 1);
  return largo;
}

std::string listaParaPersonas(std::span<Session const* const> sesiones, std::size_t largoDeClave,
                              std::string const& home, Fecha ahora, Pantalla const& pantalla) {
  auto const clave = [&](Session const& s) {
    return textoVisible(s.sessionId.value_or("").substr(0, largoDeClave));
  };
  auto const titulo = [](Session const& s) { return textoVisible(s.titulo); };
  auto const ruta = [&](Session const& s) { return textoVisible(abreviar(s.cwd, home)); };
  auto const estado = [](Session const& s) { return std::string{palabraDe(s.liveState)}; };
  auto const edad = [&](Session const& s) { return relativo(s.ultimaActividad, ahora, "now"); };
  auto const prompts = [](Session const& s) {
    return s.conteoPrompts ? std::to_string(*s.conteoPrompts) + " prompts" : std::string{};
  };
  constexpr std::size_t topeDelTitulo = 80;
  constexpr std::size_t topeDeLaRuta = 60;
  return tabla(
      {{.celdas = celdas(sesiones, clave), .prescindible = 4, .colores = {tenue}},
       {.celdas = celdas(sesiones, titulo), .corte = Corte::alFinal, .tope = topeDelTitulo},
       {.celdas = celdas(sesiones, ruta),
        .corte = Corte::alPrincipio,
        .tope = topeDeLaRuta,
        .prescindible = 3,
        .colores = {colorDeRuta}},
       {.celdas = celdas(sesiones, estado), .prescindible = 2, .colores = coloresDeEstado(sesiones)},
       {.celdas = celdas(sesiones, edad), .aLaDerecha = true, .prescindible = 1, .colores = {tenue}},
       {.celdas = celdas(sesiones, prompts), .aLaDerecha = true, .prescindible = 5, .colores = {tenue}}},
      pantalla);
}

}  // namespace zorve::ctl
