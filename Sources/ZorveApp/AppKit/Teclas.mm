#import "ZorveApp/AppKit/Teclas.h"

#include <array>
#include <string>
#include <utility>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

namespace {

constexpr std::array<std::pair<char32_t, Tecla>, 5> teclas{{{NSUpArrowFunctionKey, Tecla::arriba},
                                                            {NSDownArrowFunctionKey, Tecla::abajo},
                                                            {NSCarriageReturnCharacter, Tecla::retorno},
                                                            {NSEnterCharacter, Tecla::retorno},
                                                            {0x1B, Tecla::escape}}};

constexpr std::array<std::pair<NSEventModifierFlags, Modificador>, 4> modificadores{
    {{NSEventModifierFlagCommand, Modificador::mando},
     {NSEventModifierFlagControl, Modificador::control},
     {NSEventModifierFlagShift, Modificador::mayusculas},
     {NSEventModifierFlagOption, Modificador::opcion}}};

constexpr NSEventModifierFlags deLaTecla =
    NSEventModifierFlagCapsLock | NSEventModifierFlagNumericPad | NSEventModifierFlagFunction;

Tecla teclaDe(char32_t caracter) {
  for (auto const& [cual, tecla] : teclas) {
    if (cual == caracter) return tecla;
  }
  return Tecla::caracter;
}

Modificador modificadoresDe(NSEventModifierFlags banderas) {
  Modificador conjunto = Modificador::ninguno;
  for (auto const& [bandera, modificador] : modificadores) {
    if ((banderas & bandera) == 0) continue;
    conjunto = conjunto | modificador;
    banderas &= ~bandera;
  }
  return banderas == 0 ? conjunto : conjunto | Modificador::otro;
}

}  // namespace

Pulsacion pulsacionDe(NSEvent* evento) {
  std::string const texto = textoDe(evento.charactersIgnoringModifiers);
  auto const caracter = texto.empty() ? char32_t{0} : static_cast<char32_t>(puntoAlInicio(texto).valor);
  Tecla const tecla = teclaDe(caracter);
  NSEventModifierFlags const banderas = evento.modifierFlags & NSEventModifierFlagDeviceIndependentFlagsMask;
  return {.tecla = tecla,
          .caracter = caracter,
          .modificadores = modificadoresDe(tecla == Tecla::caracter ? banderas : banderas & ~deLaTecla),
          .repetida = evento.ARepeat == YES};
}

}  // namespace zorve
