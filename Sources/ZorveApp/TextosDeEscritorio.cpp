#include "ZorveApp/TextosDeEscritorio.h"

#include <array>
#include <cstddef>
#include <optional>

#include "ZorveCore/Modelo.h"

namespace zorve {

namespace {

/// A text of ours: fixed words, and where `conArgumento`, an argument between them that is never looked into.
struct Marco {
  std::string_view antes;
  std::string_view despues;
  std::string_view antesAqui;
  std::string_view despuesAqui;
  bool conArgumento = true;
};

constexpr Marco fijo(std::string_view texto, std::string_view aqui) { return {texto, "", aqui, "", false}; }

constexpr std::array marcos{
    Marco{"No Claude Code sessions on this Mac yet: ",
          " does not exist. Run `claude` once in a terminal and Zorve will list it here.",
          "No Claude Code sessions on this computer yet: ",
          " does not exist. Run `claude` once in a terminal and Zorve will list it here."},
    Marco{"The session is alive on ", " cannot bring its window to the front. ⌘C copies its id.",
          "The session is alive on ", " cannot bring its window to the front. Ctrl+C copies its id."},
    Marco{"La sesión está viva en ", " no puede traer su ventana al frente. ⌘C copia su id.",
          "La sesión está viva en ", " no puede traer su ventana al frente. Ctrl+C copia su id."},
    Marco{"Could not change the launch-at-login setting: ",
          ". Usually because Zorve.app is not in /Applications.",
          "Could not change the launch-at-login setting: ", "."},
    Marco{"No se pudo cambiar el arranque automático: ",
          ". Suele ser porque Zorve.app no está en /Applications.",
          "No se pudo cambiar el arranque automático: ", "."},
    fijo("No supported terminal was found on this Mac.", "No supported terminal was found on this computer."),
    fijo("No se encontró ninguna terminal compatible en esta Mac.",
         "No se encontró ninguna terminal compatible en este equipo."),
    fijo("The session is alive but has no controlling terminal; there is nowhere to focus. ⌘C copies its id.",
         "The session is alive but has no controlling terminal; there is nowhere to focus. Ctrl+C copies its "
         "id."),
    fijo("La sesión está viva pero sin terminal de control; no hay a dónde enfocar. ⌘C copia su id.",
         "La sesión está viva pero sin terminal de control; no hay a dónde enfocar. Ctrl+C copia su id."),
    fijo("To quit Zorve: ⌘Q", "To quit Zorve: Ctrl+Q"),
    fijo("Para cerrar Zorve: ⌘Q", "Para cerrar Zorve: Ctrl+Q"),
    fijo("Settings (⌘,)", "Settings (Ctrl+,)"),
    fijo("Ajustes (⌘,)", "Ajustes (Ctrl+,)"),
    fijo("⌘R", "Ctrl+R"),
    fijo("⌘C", "Ctrl+C"),
    fijo("⌘Q", "Ctrl+Q"),
    fijo("⌘,", "Ctrl+,")};

constexpr std::string_view variasTerminales = "Several terminals are installed (";
constexpr std::string_view ordenDeEleccion =
    ") and the system has none registered as the handler for shell scripts. Pick one: defaults write "
    "com.sarnol.zorve zorve.terminalElegida -string ";
constexpr std::string_view ordenDeEleccionAqui =
    ") and the system has none registered as the handler for shell scripts. Pick one: zorvectl choose ";

std::size_t largoDeLaFuente(std::string_view texto) {
  for (auto const fuente : todosLosCasos<IndexSource>()) {
    auto const nombre = textoCrudo(fuente);
    if (texto.starts_with(nombre) && texto.substr(nombre.size()).starts_with(": ")) return nombre.size() + 2;
  }
  return 0;
}

std::size_t largoDeLaEntrada(std::string_view texto) {
  constexpr std::array<std::string_view, 2> entradas{"Could not resolve the terminal: ",
                                                     "No se pudo resolver la terminal: "};
  auto const fuente = largoDeLaFuente(texto);
  for (auto const entrada : entradas) {
    if (texto.substr(fuente).starts_with(entrada)) return fuente + entrada.size();
  }
  return fuente;
}

std::optional<std::string> segunElMarco(Marco const& marco, std::string_view texto) {
  auto const fijos = marco.antes.size() + marco.despues.size();
  bool const cabe = marco.conArgumento ? texto.size() >= fijos : texto.size() == fijos;
  if (!cabe || !texto.starts_with(marco.antes) || !texto.ends_with(marco.despues)) return std::nullopt;
  auto const argumento = texto.substr(marco.antes.size(), texto.size() - fijos);
  return std::string{marco.antesAqui} + std::string{argumento} + std::string{marco.despuesAqui};
}

std::optional<std::string> conLaOrdenDeAqui(std::string_view texto) {
  auto const donde = texto.rfind(ordenDeEleccion);
  if (!texto.starts_with(variasTerminales) || donde == std::string_view::npos) return std::nullopt;
  return std::string{texto.substr(0, donde)} + std::string{ordenDeEleccionAqui} +
         std::string{texto.substr(donde + ordenDeEleccion.size())};
}

std::string mensajeDeEscritorio(std::string_view mensaje) {
  for (auto const& marco : marcos) {
    if (auto texto = segunElMarco(marco, mensaje)) return *texto;
  }
  return conLaOrdenDeAqui(mensaje).value_or(std::string{mensaje});
}

}  // namespace

std::string textoDeEscritorio(std::string_view texto) {
  auto const entrada = largoDeLaEntrada(texto);
  return std::string{texto.substr(0, entrada)} + mensajeDeEscritorio(texto.substr(entrada));
}

}  // namespace zorve
