#include "ZorveTerminal/VentanasDeKWin.h"

#include <simdjson.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <thread>
#include <utility>

#include "ZorvePlatform/Posix/Home.h"
#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTerminal/CarpetaDePaso.h"

namespace zorve::ayudante {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr char const* servicio = "org.kde.KWin";
constexpr char const* interfaz = "com.sarnol.zorve.Windows";
constexpr char const* metodo = "Listed";
constexpr std::chrono::milliseconds plazoDelGuion{1500};
constexpr std::chrono::milliseconds entreMiradas{50};

/// KWin 5 and 6 call the same things by different names.
constexpr std::string_view alPrincipio = R"((function () {
  var lista = workspace.windowList ? workspace.windowList() : workspace.clientList();
  var nueva = "activeWindow" in workspace;
)";
constexpr std::string_view alFinal = R"(
  var activa = nueva ? workspace.activeWindow : workspace.activeClient;
  var todas = [];
  for (var i = 0; i < lista.length; ++i) {
    var una = lista[i];
    if (!una.normalWindow) continue;
    // An X window says itself whose it is.
    var deX = Number(una.windowId || 0) !== 0 || String(una).indexOf("X11") >= 0;
    todas.push({id: String(una.internalId), pid: deX ? 0 : una.pid, name: String(una.caption), focused: una === activa});
  }
)";

/// A text between quotation marks of JavaScript. Only for texts that were checked.
std::string literal(std::string_view texto) { return '"' + std::string{texto} + '"'; }

/// KWin's names are identifiers in braces; anything else has no place in a script.
bool esNombre(std::string_view nombre) {
  return !nombre.empty() && std::ranges::all_of(nombre, [](char letra) {
    return (letra >= '0' && letra <= '9') || (letra >= 'a' && letra <= 'f') || letra == '{' || letra == '}' ||
           letra == '-';
  });
}

std::string paraActivar(std::string const& nombre) {
  return "  for (var j = 0; j < lista.length; ++j) {\n    if (String(lista[j].internalId) !== " +
         literal(nombre) +
         ") continue;\n    if (nueva) workspace.activeWindow = lista[j];\n    else workspace.activeClient = "
         "lista[j];\n  }\n";
}

}  // namespace

std::vector<VentanaDeKWin> ventanasDeLaRespuesta(std::string_view respuesta) {
  std::vector<VentanaDeKWin> ventanas;
  simdjson::dom::parser lector;
  simdjson::dom::array todas;
  if (lector.parse(respuesta.data(), respuesta.size()).get(todas) != simdjson::SUCCESS) return ventanas;
  for (auto const una : todas) {
    std::string_view nombre;
    std::string_view titulo;
    std::int64_t pid = 0;
    bool enfocada = false;
    auto const mal = una["id"].get(nombre) != simdjson::SUCCESS || una["pid"].get(pid) != simdjson::SUCCESS ||
                     una["name"].get(titulo) != simdjson::SUCCESS ||
                     una["focused"].get(enfocada) != simdjson::SUCCESS;
    if (mal || !esNombre(nombre) || !std::in_range<pid_t>(pid)) continue;
    ventanas.push_back({std::string{nombre}, {0, static_cast<pid_t>(pid), std::string{titulo}, enfocada}});
  }
  return ventanas;
}

bool VentanasDeKWin::abierta() const { return bus_.procesoDe(servicio) > 0; }

std::vector<Ventana> VentanasDeKWin::todas() const {
  std::vector<Ventana> ventanas;
  for (auto& una : ventanasDeLaRespuesta(correr("").value_or(""))) {
    una.ventana.id = idDe(una.nombre);
    ventanas.push_back(std::move(una.ventana));
  }
  return ventanas;
}

bool VentanasDeKWin::activar(std::uint64_t id, std::chrono::milliseconds plazo) const {
  if (id == 0 || id > nombres_.size()) return false;
  auto const limite = Reloj::now() + plazo;
  auto respuesta = correr(paraActivar(nombres_[id - 1]));
  while (respuesta && Reloj::now() < limite) {
    for (auto const& una : ventanasDeLaRespuesta(*respuesta)) {
      if (una.ventana.enfocada && una.nombre == nombres_[id - 1]) return true;
    }
    std::this_thread::sleep_for(entreMiradas);
    respuesta = correr("");
  }
  return false;
}

std::optional<std::string> VentanasDeKWin::correr(std::string const& guion) const {
  Metodo const nuestro{bus_.nombre(), "/" + std::to_string(++preguntas_), interfaz, metodo};
  auto const texto = std::string{alPrincipio} + guion + std::string{alFinal} + "  callDBus(" +
                     literal(nuestro.servicio) + ", " + literal(nuestro.objeto) + ", " + literal(interfaz) +
                     ", " + literal(metodo) + ", JSON.stringify(todas));\n})();\n";
  CarpetaDePaso const carpeta{lugarDePaso(variable("XDG_RUNTIME_DIR"), homeDelUsuario().value_or("/"))};
  if (carpeta.ruta().empty() || !carpeta.escribir("guion", texto)) return std::nullopt;
  auto const archivo = carpeta.ruta() + "/guion";
  std::vector<Argumento> const cual{archivo, archivo};
  Metodo const cargar{servicio, "/Scripting", "org.kde.kwin.Scripting", "loadScript"};
  auto const cargado = bus_.llamar(cargar, cual, plazoDelGuion);
  auto const* const numero =
      cargado && !cargado->empty() ? std::get_if<std::int64_t>(&cargado->front()) : nullptr;
  if (numero == nullptr || *numero < 0) return std::nullopt;
  std::optional<std::string> respuesta;
  for (auto const& objeto : {"/Scripting/Script" + std::to_string(*numero), "/" + std::to_string(*numero)}) {
    if (!bus_.llamar({servicio, objeto, "org.kde.kwin.Script", "run"}, {}, plazoDelGuion)) continue;
    respuesta = bus_.recibir(nuestro, plazoDelGuion, bus_.duenoDe(servicio));
    break;
  }
  std::vector<Argumento> const nombre{archivo};
  [[maybe_unused]] auto const descargado =
      bus_.llamar({servicio, "/Scripting", "org.kde.kwin.Scripting", "unloadScript"}, nombre, plazoDelGuion);
  return respuesta;
}

std::uint64_t VentanasDeKWin::idDe(std::string const& nombre) const {
  auto const donde = std::ranges::find(nombres_, nombre);
  if (donde != nombres_.end()) return static_cast<std::uint64_t>(donde - nombres_.begin()) + 1;
  nombres_.push_back(nombre);
  return nombres_.size();
}

}  // namespace zorve::ayudante
