#include "ZorveApp/Textos.h"

#include <initializer_list>

namespace zorve {

namespace {

std::string unir(std::initializer_list<std::string_view> partes) {
  std::string todo;
  for (auto const parte : partes) todo += parte;
  return todo;
}

}  // namespace

std::string_view Textos::elegir(std::string_view en, std::string_view es) const {
  return idioma == Idioma::es ? es : en;
}

Textos::Textos(Idioma de, VocesDelSistema const& con)
    : idioma{de},
      ayudaAjustes{unir({elegir("Settings (", "Ajustes ("), con.atajo, ",)"})},
      buscandoSesiones{elegir("looking for sessions…", "buscando sesiones…")},
      sinSesiones{elegir("no sessions", "sin sesiones")},
      sinCoincidencias{elegir("no matches", "sin coincidencias")},
      atajoMover{elegir("move", "mover")},
      atajoAbrir{elegir("open", "abrir")},
      atajoRefrescar{elegir("refresh", "refrescar")},
      ajustes{elegir("Settings", "Ajustes")},
      salir{elegir("Quit", "Salir")},
      prompts{"prompts"},
      tituloDerivado{elegir("Title derived from the first prompt: this session has no ai-title.",
                            "Título derivado del primer prompt: esta sesión no tiene ai-title.")},
      procesando{elegir("working", "procesando")},
      activa{elegir("active", "activa")},
      ahora{elegir("now", "ahora")},
      sinTerminal{elegir("no terminal", "sin terminal")},
      menuAjustes{elegir("Settings…", "Ajustes…")},
      menuSalirDeZorve{elegir("Quit Zorve", "Salir de Zorve")},
      seccionInicio{elegir("STARTUP", "INICIO")},
      seccionIdioma{elegir("LANGUAGE", "IDIOMA")},
      sinTerminalCompatible{
          unir({elegir("No supported terminal was found ", "No se encontró ninguna terminal compatible "),
                elegir(con.aquiEnIngles, con.aquiEnEspanol), "."})},
      noPuedeEnfocar{elegir("cannot focus", "no puede enfocar")},
      laQueDecidaZorve{elegir("Whichever Zorve picks", "La que decida Zorve")},
      abrirAlIniciarSesion{elegir("Open Zorve at login", "Abrir Zorve al iniciar sesión")},
      sinEmpaquetar{elegir("unpackaged", "sin empaquetar")},
      paraCerrarZorve{unir({elegir("To quit Zorve: ", "Para cerrar Zorve: "), con.atajo, "Q"})},
      sinSalida{elegir("(no output)", "(sin salida)")},
      voces{con} {
  vivaSinTty = sinTty() + pistaDeCopiar();
}

Textos textosDe(PreferenciaDeIdioma const& preferencia) {
  return Textos{*preferencia.idioma(), preferencia.voces()};
}

std::string Textos::atajo(std::string_view tecla) const { return unir({voces.atajo, tecla}); }

std::string Textos::pistaDeCopiar() const {
  return unir({" ", voces.atajo, voces.teclaDeCopiar, elegir(" copies its id.", " copia su id.")});
}

std::string Textos::sinTty() const {
  return std::string{
      elegir("The session is alive but has no controlling terminal; there is nowhere to focus.",
             "La sesión está viva pero sin terminal de control; no hay a dónde enfocar.")};
}

std::string Textos::noSePudoResolverLaTerminal(std::string_view detalle) const {
  return unir({elegir("Could not resolve the terminal: ", "No se pudo resolver la terminal: "), detalle});
}

std::string Textos::sinEnfoque(std::string_view tty, std::string_view terminal) const {
  return unir({elegir("The session is alive on ", "La sesión está viva en "), tty, elegir(" and ", " y "),
               terminal,
               elegir(" cannot bring its window to the front.", " no puede traer su ventana al frente.")});
}

std::string Textos::vivaSinEnfoque(std::string_view tty, std::string_view terminal) const {
  return sinEnfoque(tty, terminal) + pistaDeCopiar();
}

std::string Textos::noSePudoAbrir(std::string_view detalle) const {
  return unir({elegir("Could not open the session: ", "No se pudo abrir la sesión: "), detalle});
}

std::string Textos::comandoFallo(std::string_view ejecutable, std::int32_t codigo,
                                 std::string_view salida) const {
  return unir(
      {ejecutable, elegir(" exited with code ", " salió con código "), std::to_string(codigo), ": ", salida});
}

std::string Textos::noSePudoLanzar(std::string_view ejecutable, std::string_view detalle) const {
  return unir({elegir("Could not launch ", "No se pudo lanzar "), ejecutable, ": ", detalle});
}

std::string Textos::hoyLaDelSistema(std::string_view nombre) const {
  return unir({elegir("today: ", "hoy: "), nombre, elegir(", the system's", ", la del sistema")});
}

std::string Textos::hoyLaUnica(std::string_view nombre) const {
  return unir({elegir("today: ", "hoy: "), nombre, elegir(", the only one", ", la única")});
}

std::string Textos::noSePudoCambiarArranque(std::string_view detalle) const {
  return unir({elegir("Could not change the launch-at-login setting: ",
                      "No se pudo cambiar el arranque automático: "),
               detalle, ".", elegir(voces.pistaDeArranqueEnIngles, voces.pistaDeArranqueEnEspanol)});
}

std::string Textos::copiado(std::string_view valor) const {
  return unir({elegir("Copied: ", "Copiado: "), valor});
}

std::string Textos::pieDelSistema(std::string_view nombre) const {
  return unir({nombre, elegir(" (the system's)", " (del sistema)")});
}

std::string Textos::pieLaUnica(std::string_view nombre) const {
  return unir({nombre, elegir(" (the only one)", " (la única)")});
}

}  // namespace zorve
