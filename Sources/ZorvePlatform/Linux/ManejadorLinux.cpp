#include "ZorvePlatform/Linux/ManejadorLinux.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <ranges>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Terminales/CatalogoDeTerminales.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Linux/AjusteDeKde.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/ProgramaAcotado.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"
#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

namespace {

constexpr std::size_t topeDeAjustes = 1U << 20U;
constexpr std::string_view envoltura = ".wrapper";

constexpr std::array todasLasFuentes{FuenteDelManejador::xdgTerminalExec, FuenteDelManejador::kdeglobals,
                                     FuenteDelManejador::gsettings, FuenteDelManejador::terminal,
                                     FuenteDelManejador::enlace};

/// Scripts of the package xterm that start xterm with another character set.
constexpr std::array<std::string_view, 3> variantesDeXterm{"lxterm", "uxterm", "koi8rxterm"};

std::string_view nombreDelPrograma(std::string_view ruta) {
  ruta = nombreBase(ruta);
  if (ruta.ends_with(envoltura)) ruta.remove_suffix(envoltura.size());
  return std::ranges::find(variantesDeXterm, ruta) == variantesDeXterm.end() ? ruta : "xterm";
}

std::optional<std::string> terminalDeLaOrden(std::string_view orden) {
  orden = recortarAscii(orden);
  return terminalDelPrograma(orden.substr(0, orden.find_first_of(" \t")));
}

std::optional<std::string> correr(LugaresDelManejador const& lugares, std::string const& programa,
                                  std::vector<std::string> const& args) {
  auto const ruta = ejecutableEn(lugares.entorno, programa);
  return ruta.empty() ? std::nullopt : salidaDe(ruta, args, lugares.plazo);
}

std::optional<std::string> laDeXdgTerminalExec(LugaresDelManejador const& lugares) {
  auto const salida = correr(lugares, "xdg-terminal-exec", {"--print-id"});
  return salida ? terminalDeLaEntrada(recortarAscii(*salida)) : std::nullopt;
}

std::optional<std::string> laDeKdeglobals(LugaresDelManejador const& lugares) {
  auto carpetas = lugares.entorno.configDirs;
  carpetas.insert(carpetas.begin(), lugares.entorno.configHome);
  std::vector<std::string> textos;
  for (auto const& carpeta : carpetas | std::views::reverse) {
    if (auto texto = leerArchivo(unirRuta(carpeta, "kdeglobals"), topeDeAjustes)) textos.push_back(*texto);
  }
  auto const valor = ajusteDeKde(textos, "General", "TerminalApplication");
  return valor ? terminalDeLaOrden(*valor) : std::nullopt;
}

bool hay(EntornoLinux const& entorno, std::string const& identificador) {
  auto const* const ficha = fichaDeLinux(identificador);
  return ficha != nullptr && estaInstalada(*ficha, AplicacionesLinux{entorno});
}

std::string esquemaDe(std::string const& escritorio) {
  if (escritorio.contains("Cinnamon")) return "org.cinnamon.desktop.default-applications.terminal";
  if (escritorio.contains("MATE")) return "org.mate.applications-terminal";
  return "org.gnome.desktop.default-applications.terminal";
}

std::optional<std::string> laDeGsettings(LugaresDelManejador const& lugares) {
  auto const salida = correr(lugares, "gsettings", {"get", esquemaDe(lugares.escritorio), "exec"});
  if (!salida) return std::nullopt;
  auto valor = recortarAscii(*salida);
  auto const comilla = valor.substr(0, 1);
  if (valor.size() < 2 || (comilla != "'" && comilla != "\"") || !valor.ends_with(comilla)) {
    return std::nullopt;
  }
  return terminalDeLaOrden(valor.substr(1, valor.size() - 2));
}

std::optional<std::string> laDelEnlace(LugaresDelManejador const& lugares) {
  std::error_code error;
  auto const destino = std::filesystem::read_symlink(lugares.enlace, error);
  if (error) return std::nullopt;
  if (auto conocida = terminalDelPrograma(destino.native())) return conocida;
  auto const cualquiera = std::ranges::find_if(fichasDeLinux(), &FichaDeTerminal::esCualquierOtra);
  bool const existe = !ejecutableEn(lugares.entorno, destino.native()).empty();
  return existe ? std::optional{cualquiera->identificador} : std::nullopt;
}

}  // namespace

LugaresDelManejador LugaresDelManejador::delProceso(EntornoLinux entorno) {
  return {.entorno = std::move(entorno),
          .escritorio = variable("XDG_CURRENT_DESKTOP"),
          .terminal = variable("TERMINAL")};
}

ManejadorLinux::ManejadorLinux()
    : ManejadorLinux{LugaresDelManejador::delProceso(EntornoLinux::delProceso(variable("HOME")))} {}

ManejadorLinux::ManejadorLinux(LugaresDelManejador lugares) : lugares_{std::move(lugares)} {}

ManejadorLinux::ManejadorLinux(std::string enlace)
    : ManejadorLinux{LugaresDelManejador{.enlace = std::move(enlace)}} {}

RespuestaDelSistema ManejadorLinux::preguntar(std::string_view tipo) const {
  if (tipo != CatalogoDeTerminales::tipoDeGuionDeShell) return {};
  auto hallada = buscar();
  if (!hallada) return {};
  return {.aplicacion = std::move(hallada->identificador),
          .dichoPor = std::string{nombreDe(hallada->fuente)}};
}

std::optional<TerminalDelSistema> ManejadorLinux::buscar() const {
  for (auto const fuente : todasLasFuentes) {
    auto identificador = dichaPor(fuente);
    if (!identificador) continue;
    if (fuente == FuenteDelManejador::enlace || hay(lugares_.entorno, *identificador)) {
      return TerminalDelSistema{std::move(*identificador), fuente};
    }
  }
  return std::nullopt;
}

std::optional<std::string> ManejadorLinux::dichaPor(FuenteDelManejador fuente) const {
  switch (fuente) {
    case FuenteDelManejador::xdgTerminalExec:
      return laDeXdgTerminalExec(lugares_);
    case FuenteDelManejador::kdeglobals:
      return laDeKdeglobals(lugares_);
    case FuenteDelManejador::gsettings:
      return laDeGsettings(lugares_);
    case FuenteDelManejador::terminal:
      return terminalDeLaOrden(lugares_.terminal);
    case FuenteDelManejador::enlace:
      return laDelEnlace(lugares_);
  }
  return std::nullopt;
}

std::string_view nombreDe(FuenteDelManejador fuente) {
  switch (fuente) {
    case FuenteDelManejador::xdgTerminalExec:
      return "xdg-terminal-exec";
    case FuenteDelManejador::kdeglobals:
      return "kdeglobals";
    case FuenteDelManejador::gsettings:
      return "gsettings";
    case FuenteDelManejador::terminal:
      return "$TERMINAL";
    case FuenteDelManejador::enlace:
      return "x-terminal-emulator";
  }
  return {};
}

std::optional<std::string> terminalDelPrograma(std::string_view ruta) {
  auto const nombre = nombreDelPrograma(ruta);
  for (auto const& ficha : fichasDeLinux()) {
    if (ficha.esCualquierOtra) continue;
    if (std::ranges::find(ficha.programas, nombre) != ficha.programas.end()) return ficha.identificador;
  }
  return std::nullopt;
}

std::optional<std::string> terminalDeLaEntrada(std::string_view entrada) {
  entrada = entrada.substr(0, entrada.find(':'));
  for (auto const& ficha : fichasDeLinux()) {
    if (ficha.entradaDeEscritorio == entrada) return ficha.identificador;
  }
  return std::nullopt;
}

}  // namespace zorve
