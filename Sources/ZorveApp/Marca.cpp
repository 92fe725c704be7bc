#include "ZorveApp/Marca.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace zorve {

namespace {

/// Two rows: a running session (a dot and its line) and one to open (a line and an arrow head), each the
/// other turned half around the centre. All edges fall on whole pixels at 18 and at 36.
constexpr double unidad = 1.0 / 18;
constexpr Rectangulo punto{1, 2, 6, 6};
constexpr Rectangulo lineaDeArriba{9, 3, 8, 4};
constexpr Rectangulo lineaDeAbajo{1, 11, 8, 4};
constexpr std::array<Punto, 3> flecha{{{11, 9.75}, {17, 13}, {11, 16.25}}};
constexpr double redondeo = 2;

constexpr double ladoDelIcono = 1024;
constexpr Rectangulo tejuela{100, 100, 824, 824};
constexpr double radioDeTejuela = 185;
constexpr Rectangulo marcaDelIcono{212, 212, 600, 600};
constexpr Color noche = Color::de8Bits(30, 44, 54);

std::string numero(double valor) {
  auto const diezmilesimas = std::llround(std::abs(valor) * 10'000);
  auto fraccion = std::to_string(diezmilesimas % 10'000);
  fraccion.insert(0, 4 - fraccion.size(), '0');
  fraccion.erase(fraccion.find_last_not_of('0') + 1);
  return (valor < 0 ? "-" : "") + std::to_string(diezmilesimas / 10'000) +
         (fraccion.empty() ? "" : "." + fraccion);
}

/// ` name="value"` for each pair.
std::string atributos(std::initializer_list<std::pair<std::string_view, std::string>> pares) {
  std::string todo;
  for (auto const& [nombre, valor] : pares) todo += " " + std::string{nombre} + "=\"" + valor + "\"";
  return todo;
}

std::string enHexadecimal(Color const& color) {
  constexpr std::string_view cifras = "0123456789abcdef";
  std::string texto = "#";
  for (double const parte : {color.rojo, color.verde, color.azul}) {
    auto const valor = static_cast<std::size_t>(std::lround(std::clamp(parte, 0.0, 1.0) * 255));
    texto += cifras[valor / 16];
    texto += cifras[valor % 16];
  }
  return texto;
}

std::string relleno(Color const& color) {
  auto texto = atributos({{"fill", enHexadecimal(color)}});
  if (color.opacidad < 1) texto += atributos({{"fill-opacity", numero(color.opacidad)}});
  return texto;
}

std::string elipse(Rectangulo const& en, Color const& color) {
  return "  <ellipse" +
         atributos({{"cx", numero(en.x + en.ancho / 2)},
                    {"cy", numero(en.y + en.alto / 2)},
                    {"rx", numero(en.ancho / 2)},
                    {"ry", numero(en.alto / 2)}}) +
         relleno(color) + "/>\n";
}

std::string triangulo(std::array<Punto, 3> const& esquinas, Color const& color) {
  std::string trazo;
  for (auto const& esquina : esquinas) {
    trazo += (trazo.empty() ? "M" : "L") + numero(esquina.x) + " " + numero(esquina.y);
  }
  return "  <path" + atributos({{"d", trazo + "Z"}}) + relleno(color) + "/>\n";
}

std::string rectangulo(RectanguloRedondeado const& en, std::string const& pintura) {
  return "  <rect" +
         atributos({{"x", numero(en.marco.x)},
                    {"y", numero(en.marco.y)},
                    {"width", numero(en.marco.ancho)},
                    {"height", numero(en.marco.alto)},
                    {"rx", numero(en.radio)}}) +
         pintura + "/>\n";
}

struct ColoresDeMarca {
  Color elipse;
  Color triangulo;
  Color rectangulos;
};

std::string dibujar(Marca const& marca, ColoresDeMarca const& colores) {
  auto texto = elipse(marca.elipse, colores.elipse) + triangulo(marca.triangulo, colores.triangulo);
  for (auto const& linea : marca.rectangulos) texto += rectangulo(linea, relleno(colores.rectangulos));
  return texto;
}

std::string documento(double lado, std::string const& contenido) {
  auto const l = numero(lado);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
         atributos({{"width", l}, {"height", l}, {"viewBox", "0 0 " + l + " " + l}}) + ">\n" + contenido +
         "</svg>\n";
}

std::string degradado(std::string_view nombre, Degradado const& de) {
  auto const parada = [](std::string_view donde, Color const& color) {
    return "    <stop" +
           atributos({{"offset", std::string{donde}},
                      {"stop-color", enHexadecimal(color)},
                      {"stop-opacity", numero(color.opacidad)}}) +
           "/>\n";
  };
  return "  <linearGradient" +
         atributos({{"id", std::string{nombre}}, {"x1", "0"}, {"y1", "0"}, {"x2", "0"}, {"y2", "1"}}) +
         ">\n" + parada("0", de.arriba) + parada("1", de.abajo) + "  </linearGradient>\n";
}

Rectangulo encogido(Rectangulo const& de, double cuanto) {
  return {de.x + cuanto, de.y + cuanto, de.ancho - 2 * cuanto, de.alto - 2 * cuanto};
}

}  // namespace

Marca Marca::en(Rectangulo const& marco) {
  double const ancho = marco.ancho * unidad;
  double const alto = marco.alto * unidad;
  auto const colocar = [&](Rectangulo const& r) {
    return Rectangulo{marco.x + r.x * ancho, marco.y + r.y * alto, r.ancho * ancho, r.alto * alto};
  };
  Marca marca{.elipse = colocar(punto), .triangulo = flecha, .rectangulos = {}};
  for (auto& [x, y] : marca.triangulo) {
    x = marco.x + x * ancho;
    y = marco.y + y * alto;
  }
  double const radio = redondeo * std::min(ancho, alto);
  marca.rectangulos = {{{colocar(lineaDeArriba), radio}, {colocar(lineaDeAbajo), radio}}};
  return marca;
}

std::string marcaEnSvg(double lado, Color const& color) {
  return documento(lado, dibujar(Marca::en({0, 0, lado, lado}), {color, color, color}));
}

std::string iconoEnSvg() {
  constexpr double grosor = 6;
  auto const fondo = degradado("fondo", {noche, Estilo::tinteBase});
  auto const luz = degradado("luz", {Color::blanco(0.3), Estilo::borde});
  auto const contorno = " fill=\"none\" stroke=\"url(#luz)\"" + atributos({{"stroke-width", numero(grosor)}});
  return documento(ladoDelIcono,
                   fondo + luz + rectangulo({tejuela, radioDeTejuela}, " fill=\"url(#fondo)\"") +
                       rectangulo({encogido(tejuela, grosor / 2), radioDeTejuela - grosor / 2}, contorno) +
                       dibujar(Marca::en(marcaDelIcono), {Estilo::ember, Estilo::acento, Estilo::textoAlto}));
}

}  // namespace zorve
