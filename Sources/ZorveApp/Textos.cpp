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

std::string_view Textos::segun(std::string_view en, std::string_view es) const {
  return idioma == Idioma::es ? es : en;
}

Textos::Textos(Idioma de)
    : idioma{de},
      ayudaAjustes{segun("Settings (⌘,)", "Ajustes (⌘,)")},
      buscandoSesiones{segun("looking for sessions…", "buscando sesiones…")},
      sinSesiones{segun("no sessions", "sin sesiones")},
      sinCoincidencias{segun("no matches", "sin coincidencias")},
      atajoMover{segun("move", "mover")},
      atajoAbrir{segun("open", "abrir")},
      atajoRefrescar{segun("refresh", "refrescar")},
      ajustes{segun("Settings", "Ajustes")},
      salir{segun("Quit", "Salir")},
      prompts{"prompts"},
      tituloDerivado{segun("Title derived from the first prompt: this session has no ai-title.",
                           "Título derivado del primer prompt: esta sesión no tiene ai-title.")},
      procesando{segun("working", "procesando")},
      activa{segun("active", "activa")},
      ahora{segun("now", "ahora")},
      sinTerminal{segun("no terminal", "sin terminal")},
      menuAjustes{segun("Settings…", "Ajustes…")},
      menuSalirDeZorve{segun("Quit Zorve", "Salir de Zorve")},
      seccionInicio{segun("STARTUP", "INICIO")},
      seccionIdioma{segun("LANGUAGE", "IDIOMA")},
      sinTerminalCompatible{segun("No supported terminal was found on this Mac.",
                                  "No se encontró ninguna terminal compatible en esta Mac.")},
      noPuedeEnfocar{segun("cannot focus", "no puede enfocar")},
      laQueDecidaZorve{segun("Whichever Zorve picks", "La que decida Zorve")},
      abrirAlIniciarSesion{segun("Open Zorve at login", "Abrir Zorve al iniciar sesión")},
      sinEmpaquetar{segun("unpackaged", "sin empaquetar")},
      paraCerrarZorve{segun("To quit Zorve: ⌘Q", "Para cerrar Zorve: ⌘Q")},
      vivaSinTty{segun("The session is alive but has no controlling terminal; there is nowhere to focus. ⌘C "
                       "copies its id.",
                       "La sesión está viva pero sin terminal de control; no hay a dónde enfocar. ⌘C copia "
                       "su id.")},
      sinSalida{segun("(no output)", "(sin salida)")} {}

std::string Textos::noSePudoResolverLaTerminal(std::string_view detalle) const {
  return unir({segun("Could not resolve the terminal: ", "No se pudo resolver la terminal: "), detalle});
}

std::string Textos::vivaSinEnfoque(std::string_view tty, std::string_view terminal) const {
  return unir({segun("The session is alive on ", "La sesión está viva en "), tty, segun(" and ", " y "),
               terminal,
               segun(" cannot bring its window to the front. ⌘C copies its id.",
                     " no puede traer su ventana al frente. ⌘C copia su id.")});
}

std::string Textos::noSePudoAbrir(std::string_view detalle) const {
  return unir({segun("Could not open the session: ", "No se pudo abrir la sesión: "), detalle});
}

std::string Textos::comandoFallo(std::string_view ejecutable, std::int32_t codigo,
                                 std::string_view salida) const {
  return unir(
      {ejecutable, segun(" exited with code ", " salió con código "), std::to_string(codigo), ": ", salida});
}

std::string Textos::noSePudoLanzar(std::string_view ejecutable, std::string_view detalle) const {
  return unir({segun("Could not launch ", "No se pudo lanzar "), ejecutable, ": ", detalle});
}

std::string Textos::hoyLaDelSistema(std::string_view nombre) const {
  return unir({segun("today: ", "hoy: "), nombre, segun(", the system's", ", la del sistema")});
}

std::string Textos::hoyLaUnica(std::string_view nombre) const {
  return unir({segun("today: ", "hoy: "), nombre, segun(", the only one", ", la única")});
}

std::string Textos::noSePudoCambiarArranque(std::string_view detalle) const {
  return unir(
      {segun("Could not change the launch-at-login setting: ", "No se pudo cambiar el arranque automático: "),
       detalle, ". ",
       segun("Usually because Zorve.app is not in /Applications.",
             "Suele ser porque Zorve.app no está en /Applications.")});
}

std::string Textos::copiado(std::string_view valor) const {
  return unir({segun("Copied: ", "Copiado: "), valor});
}

std::string Textos::pieDelSistema(std::string_view nombre) const {
  return unir({nombre, segun(" (the system's)", " (del sistema)")});
}

std::string Textos::pieLaUnica(std::string_view nombre) const {
  return unir({nombre, segun(" (the only one)", " (la única)")});
}

}  // namespace zorve
