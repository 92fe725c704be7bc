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

char32_t primeroDe(NSString* _Nullable cadena) {
  std::string const texto = textoDe(cadena);
  return texto.empty() ? char32_t{0} : static_cast<char32_t>(puntoAlInicio(texto).valor);
}

char32_t caracterDe(NSEvent* evento) {
  char32_t const suyo = primeroDe(evento.charactersIgnoringModifiers);
  bool const conMando = (evento.modifierFlags & NSEventModifierFlagCommand) != 0;
  if (!conMando || suyo < 0x80 || teclaDe(suyo) != Tecla::caracter) return suyo;
  char32_t const latino = primeroDe([evento charactersByApplyingModifiers:NSEventModifierFlagCommand]);
  return latino == 0 ? suyo : latino;
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
  char32_t const caracter = caracterDe(evento);
  Tecla const tecla = teclaDe(caracter);
  NSEventModifierFlags const banderas = evento.modifierFlags & NSEventModifierFlagDeviceIndependentFlagsMask;
  return {.tecla = tecla,
          .caracter = caracter,
          .modificadores = modificadoresDe(tecla == Tecla::caracter ? banderas : banderas & ~deLaTecla),
          .repetida = evento.ARepeat == YES};
}

std::optional<Pulsacion> pulsacionDeOrden(SEL orden) {
  if (sel_isEqual(orden, @selector(moveUp:))) return Pulsacion{.tecla = Tecla::arriba};
  if (sel_isEqual(orden, @selector(moveDown:))) return Pulsacion{.tecla = Tecla::abajo};
  if (sel_isEqual(orden, @selector(insertNewline:))) return Pulsacion{.tecla = Tecla::retorno};
  if (sel_isEqual(orden, @selector(cancelOperation:))) return Pulsacion{.tecla = Tecla::escape};
  return std::nullopt;
}

}  // namespace zorve
