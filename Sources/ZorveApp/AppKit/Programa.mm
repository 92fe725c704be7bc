#include "ZorveApp/AppKit/Programa.h"

namespace zorve {

Programa::Programa(std::string const& home, ReglaDePlegado regla, std::optional<std::string> const& version)
    : servicios_{serviciosDeTerminal(home)},
      interfaz{{.home = home,
                .archivos = archivos_,
                .procesos = procesos_,
                .servicios = servicios_.apertura,
                .preferencias = *servicios_.preferencias,
                .ejecutor = ejecutor_,
                .portapapeles = portapapeles_,
                .inicio = inicio_,
                .despachador = despachador,
                .regla = regla,
                .principal = Modificador::mando,
                .version = version}} {}

}  // namespace zorve
