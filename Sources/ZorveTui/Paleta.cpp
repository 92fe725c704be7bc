#include "ZorveTui/Paleta.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "ZorveCore/Texto/Entero.h"

namespace zorve::tui {

namespace {

constexpr double paraTextos = 4.5;
constexpr double paraMarcas = 2;
constexpr Color negro{0, 0, 0, 1};
constexpr Color blanco{1, 1, 1, 1};
/// Seen on black and on white alike: 4.6 to 1 on either.
constexpr double luminanciaNeutra = 0.179;

double lineal(double parte) {
  return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
}

double luminancia(Color const& color) {
  return 0.2126 * lineal(color.rojo) + 0.7152 * lineal(color.verde) + 0.0722 * lineal(color.azul);
}

Color mezcla(Color const& uno, Color const& otro, double cuanto) {
  auto const entre = [&](double a, double b) { return a + (b - a) * cuanto; };
  return {entre(uno.rojo, otro.rojo), entre(uno.verde, otro.verde), entre(uno.azul, otro.azul), 1};
}

/// `color`, brought as little towards black or white as `basta` asks.
template <class Basta>
Color hacia(Color const& color, Color const& extremo, Basta const& basta) {
  constexpr int pasos = 250;
  for (int i = 0; i <= pasos; ++i) {
    auto const uno = mezcla(color, extremo, static_cast<double>(i) / pasos);
    if (basta(uno)) return uno;
  }
  return extremo;
}

bool esClaro(Color const& fondo) { return contraste(fondo, negro) > contraste(fondo, blanco); }

Color legible(Color const& color, Color const& fondo, double minimo) {
  return hacia(color, esClaro(fondo) ? negro : blanco,
               [&](Color const& uno) { return contraste(uno, fondo) >= minimo; });
}

Color neutro(Color const& color) {
  if (luminancia(color) > luminanciaNeutra) {
    return hacia(color, negro, [](Color const& uno) { return luminancia(uno) <= luminanciaNeutra; });
  }
  return hacia(color, blanco, [](Color const& uno) { return luminancia(uno) >= luminanciaNeutra; });
}

Color deEstilo(Tinta tinta, bool claro) {
  switch (tinta) {
    case Tinta::texto:
      return claro ? Estilo::tinteBase : Estilo::texto;
    case Tinta::alto:
      return claro ? Estilo::tinteBase : Estilo::textoAlto;
    case Tinta::tenue:
      return Estilo::textoTenue;
    case Tinta::debil:
    case Tinta::linea:
      return Estilo::textoDebil;
    case Tinta::acento:
      return Estilo::acento;
    case Tinta::ember:
      return Estilo::ember;
    case Tinta::error:
      return Estilo::error;
  }
  return Estilo::texto;
}

bool esDelTerminal(Tinta tinta) { return tinta == Tinta::texto || tinta == Tinta::alto; }

int entero(double parte) { return static_cast<int>(std::lround(std::clamp(parte, 0.0, 1.0) * 255)); }

std::string componentes(Color const& color) {
  return std::to_string(entero(color.rojo)) + ";" + std::to_string(entero(color.verde)) + ";" +
         std::to_string(entero(color.azul));
}

/// In sixteen colours, which every person sets to taste, only what is readable in each usual set is used.
std::string_view deDieciseis(Tinta tinta, std::optional<Color> const& fondo) {
  bool const oscuro = fondo && !esClaro(*fondo);
  switch (tinta) {
    case Tinta::tenue:
    case Tinta::debil:
    case Tinta::linea:
      return ";2";
    case Tinta::acento:
      return oscuro ? ";36" : ";1";
    case Tinta::ember:
      return oscuro ? ";33" : ";1";
    case Tinta::error:
      return ";31";
    default:
      return "";
  }
}

}  // namespace

double contraste(Color const& uno, Color const& otro) {
  auto const [menor, mayor] = std::minmax({luminancia(uno), luminancia(otro)});
  return (mayor + 0.05) / (menor + 0.05);
}

Profundidad profundidadDe(SenasDeColor const& senas) {
  constexpr int directos = 1 << 24;
  if (!senas.noColor.empty() || senas.colores < 8) return Profundidad::ninguna;
  bool const dice = senas.colorTerm == "truecolor" || senas.colorTerm == "24bit";
  if (dice || senas.colores >= directos) return Profundidad::directa;
  return senas.colores >= 256 ? Profundidad::doscientosCincuentaYSeis : Profundidad::dieciseis;
}

std::optional<Color> fondoDelEntorno(std::string_view colorFgBg) {
  auto const desde = colorFgBg.rfind(';');
  if (desde == std::string_view::npos) return std::nullopt;
  auto const numero = enteroEn<int>(colorFgBg.substr(desde + 1));
  if (!numero || *numero < 0 || *numero > 15) return std::nullopt;
  return *numero == 7 || *numero == 15 ? blanco : negro;
}

std::optional<Color> fondoDeRespuesta(std::string_view respuesta) {
  auto const prefijo = respuesta.starts_with("rgba:") ? 5U : 4U;
  if (!respuesta.starts_with("rgb:") && !respuesta.starts_with("rgba:")) return std::nullopt;
  respuesta.remove_prefix(prefijo);
  std::array<double, 3> partes{};
  for (auto& parte : partes) {
    auto const cifras = respuesta.substr(0, respuesta.find('/'));
    respuesta.remove_prefix(std::min(respuesta.size(), cifras.size() + 1));
    if (cifras.empty() || cifras.size() > 4) return std::nullopt;
    double valor = 0;
    double tope = 0;
    for (char const cifra : cifras) {
      constexpr std::string_view todas = "0123456789abcdef";
      auto const cual = todas.find(static_cast<char>(cifra | 0x20));
      if (cual == std::string_view::npos) return std::nullopt;
      valor = valor * 16 + static_cast<double>(cual);
      tope = tope * 16 + 15;
    }
    parte = valor / tope;
  }
  return Color{partes[0], partes[1], partes[2], 1};
}

int masCercano(Color const& color) {
  constexpr std::array niveles{0, 95, 135, 175, 215, 255};
  std::array const quiere{entero(color.rojo), entero(color.verde), entero(color.azul)};
  int mejor = 16;
  int menor = std::numeric_limits<int>::max();
  auto const probar = [&](int indice, std::array<int, 3> const& este) {
    int lejos = 0;
    for (std::size_t i = 0; i < 3; ++i) lejos += (este[i] - quiere[i]) * (este[i] - quiere[i]);
    if (lejos < menor) {
      menor = lejos;
      mejor = indice;
    }
  };
  for (int i = 0; i < 216; ++i) {
    auto const nivel = [&](int cual) { return niveles[static_cast<std::size_t>(cual % 6)]; };
    probar(16 + i, {nivel(i / 36), nivel(i / 6), nivel(i)});
  }
  for (int i = 0; i < 24; ++i) probar(232 + i, {8 + 10 * i, 8 + 10 * i, 8 + 10 * i});
  return mejor;
}

Paleta::Paleta(Profundidad profundidad, std::optional<Color> fondo)
    : profundidad_{profundidad}, fondo_{fondo} {}

Color Paleta::color(Tinta tinta) const {
  auto const suyo = deEstilo(tinta, fondo_ && esClaro(*fondo_));
  if (!fondo_) return neutro(suyo);
  constexpr double haciaElFondo = 0.45;
  if (tinta == Tinta::linea) return legible(mezcla(suyo, *fondo_, haciaElFondo), *fondo_, paraMarcas);
  return legible(suyo, *fondo_, paraTextos);
}

void Paleta::agregarTinta(std::string& destino, Tinta tinta) const {
  if (profundidad_ == Profundidad::ninguna || (!fondo_ && esDelTerminal(tinta))) {
    bool const aparte = tinta == Tinta::tenue || tinta == Tinta::debil || tinta == Tinta::linea;
    if (aparte) destino += ";2";
  } else if (profundidad_ == Profundidad::dieciseis) {
    destino += deDieciseis(tinta, fondo_);
  } else if (profundidad_ == Profundidad::directa) {
    destino += ";38;2;" + componentes(color(tinta));
  } else {
    destino += ";38;5;" + std::to_string(masCercano(color(tinta)));
  }
}

void Paleta::agregarSeleccion(std::string& destino) const {
  if (!fondo_) return;
  constexpr double masEnLaPaletaFija = 0.1;
  auto const cuanto = Estilo::filaSeleccionada.opacidad;
  if (profundidad_ == Profundidad::directa) {
    destino += ";48;2;" + componentes(mezcla(*fondo_, Estilo::acento, cuanto));
  } else if (profundidad_ == Profundidad::doscientosCincuentaYSeis) {
    auto const mezclado = mezcla(*fondo_, Estilo::acento, cuanto + masEnLaPaletaFija);
    destino += ";48;5;" + std::to_string(masCercano(mezclado));
  }
}

std::string Paleta::secuencia(Trazo const& trazo) const {
  std::string numeros = "0";
  if (trazo.negrita) numeros += ";1";
  if (trazo.cursiva) numeros += ";3";
  agregarTinta(numeros, trazo.tinta);
  if (trazo.seleccion) agregarSeleccion(numeros);
  return "\x1B[" + numeros + "m";
}

}  // namespace zorve::tui
