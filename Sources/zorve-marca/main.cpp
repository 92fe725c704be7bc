// Writes the brand mark as an SVG document to standard output: `zorve-marca icono` the application's icon,
// `zorve-marca simbolo` the mark alone in black, for use as a symbolic icon.

#include <cstdio>
#include <string>
#include <string_view>

#include "ZorveApp/Marca.h"

int main(int cuantos, char** palabras) {
  std::string_view const que = cuantos == 2 ? palabras[1] : "";
  std::string svg;
  if (que == "icono") svg = zorve::iconoEnSvg();
  if (que == "simbolo") svg = zorve::marcaEnSvg(16, {0, 0, 0, 1});
  if (svg.empty()) {
    std::fputs("usage: zorve-marca icono|simbolo\n", stderr);
    return 2;
  }
  return std::fputs(svg.c_str(), stdout) < 0 ? 1 : 0;
}
