#include "ZorveApp/InterruptorDeVentanas.h"

namespace zorve::TextosDelInterruptor {

namespace {

using Estado = InterruptorDeVentanas::Estado;
using Caso = InterruptorDeVentanas::Rechazo::Caso;

std::string_view elegir(Idioma idioma, std::string_view ingles, std::string_view espanol) {
  return idioma == Idioma::es ? espanol : ingles;
}

}  // namespace

std::string_view titulo(Idioma idioma) {
  return elegir(idioma, "Bring windows to the front (GNOME extension)",
                "Traer ventanas al frente (extensión de GNOME)");
}

std::string_view nota(Estado estado, Idioma idioma) {
  switch (estado) {
    case Estado::encendido:
      return elegir(idioma, "on", "encendida");
    case Estado::apagado:
      return elegir(idioma, "off", "apagada");
    case Estado::alProximoInicio:
      return elegir(idioma, "after the next login", "tras el próximo inicio de sesión");
    default:
      return elegir(idioma, "not installed: Zorve's package has it, and cmake --install",
                    "no instalada: la traen el paquete de Zorve y cmake --install");
  }
}

std::string banda(InterruptorDeVentanas::Rechazo const& rechazo, Idioma idioma) {
  switch (rechazo.caso) {
    case Caso::todasApagadas:
      return std::string{
          elegir(idioma, "GNOME has all extensions switched off. Switch them on in its Extensions program.",
                 "GNOME tiene apagadas todas las extensiones. Enciéndelas en su programa Extensiones.")};
    case Caso::alProximoInicio:
      return std::string{
          elegir(idioma, "GNOME finds the extension at login. Log out and in again, and switch it on then.",
                 "GNOME encuentra la extensión al iniciar sesión. Sal, vuelve a entrar y enciéndela.")};
    case Caso::noInstalado:
      return std::string{elegir(
          idioma,
          "This GNOME finds no extension of Zorve's for it. Install Zorve's package, or run cmake "
          "--install, and log in again.",
          "Este GNOME no encuentra una extensión de Zorve para él. Instala el paquete de Zorve, o corre "
          "cmake --install, y vuelve a iniciar sesión.")};
    default:
      return std::string{elegir(idioma, "Could not switch the GNOME extension: ",
                                "No se pudo cambiar la extensión de GNOME: ")} +
             rechazo.detalle;
  }
}

std::string_view consejo(Idioma idioma) {
  return elegir(idioma,
                "On GNOME an extension of Zorve's does that: switch it on in the settings, section Terminal.",
                "En GNOME lo hace una extensión de Zorve: enciéndela en los ajustes, sección Terminal.");
}

}  // namespace zorve::TextosDelInterruptor
