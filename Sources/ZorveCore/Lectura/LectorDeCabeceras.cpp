#include "ZorveCore/Lectura/LectorDeCabeceras.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ZorveCore/Lectura/Aguja.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

constexpr Aguja agujaTitulo{TranscriptScanner::agujaAITitle, 0, 2};
constexpr Aguja agujaDirectorio{TranscriptScanner::agujaCwd, 1, 2};
constexpr Aguja finDeLinea{"\n", 0, 0};
constexpr std::string_view blancos = " \t\r";

/// A piece cut at a window's edge shows it at its ends; decoding it would fail after more work. A piece over
/// the bound is none.
bool puedeSerObjeto(std::string_view pieza) {
  if (pieza.size() > TranscriptScanner::registroMaximo) return false;
  auto const primero = pieza.find_first_not_of(blancos);
  return primero != std::string_view::npos && pieza[primero] == '{' &&
         pieza[pieza.find_last_not_of(blancos)] == '}';
}

}  // namespace

std::expected<TranscriptScanner::Cabecera, FalloDelSistema> LectorDeCabeceras::leer(
    Archivos& archivos, std::string const& ruta, std::int64_t tamanoBytes) {
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return std::unexpected{archivo.error()};
  TranscriptScanner::Cabecera cabecera;
  auto paso = leerLaCola(cabecera, **archivo, tamanoBytes);
  if (paso && tamanoBytes > TranscriptScanner::ventanaBytes && !(cabecera.aiTitle && cabecera.cwd)) {
    ventana_.mirar(**archivo, 0, TranscriptScanner::ventanaBytes);
    if (!cabecera.aiTitle) paso = ventana_.leerEntera();
    if (paso) paso = completar(cabecera);
  }
  if (!paso) return std::unexpected{paso.error()};
  return cabecera;
}

std::optional<std::string> LectorDeCabeceras::titulo(std::string_view bloque) {
  ventana_.mirar(bloque);
  return tituloDesdeElFin().value();
}

std::optional<std::string> LectorDeCabeceras::directorio(std::string_view bloque) {
  ventana_.mirar(bloque);
  return directorioDesdeElInicio().value();
}

VentanaDeArchivo::Paso LectorDeCabeceras::leerLaCola(TranscriptScanner::Cabecera& cabecera,
                                                     ArchivoAbierto& archivo, std::int64_t tamanoBytes) {
  if (tamanoBytes <= static_cast<std::int64_t>(VentanaDeArchivo::deUnaVez)) {
    auto const corto = ventana_.mirarCorto(archivo);
    if (!corto) return std::unexpected{corto.error()};
    if (*corto) return completar(cabecera);
  }
  auto const fin = archivo.tamano();
  if (!fin) return std::unexpected{fin.error()};
  auto const inicio = std::max<std::int64_t>(tamanoBytes - TranscriptScanner::ventanaBytes, 0);
  if (*fin - inicio > TranscriptScanner::colaMaxima) {
    return leerLosExtremos(cabecera, archivo, inicio, *fin);
  }
  ventana_.mirar(archivo, inicio, static_cast<std::size_t>(std::max<std::int64_t>(*fin - inicio, 0)));
  return completar(cabecera);
}

VentanaDeArchivo::Paso LectorDeCabeceras::leerLosExtremos(TranscriptScanner::Cabecera& cabecera,
                                                          ArchivoAbierto& archivo, std::int64_t inicio,
                                                          std::int64_t fin) {
  constexpr auto largo = static_cast<std::size_t>(TranscriptScanner::colaMaxima);
  ventana_.mirar(archivo, inicio, largo);
  auto paso = completarDirectorio(cabecera);
  if (!paso) return paso;
  ventana_.mirar(archivo, fin - TranscriptScanner::colaMaxima, largo);
  paso = completar(cabecera);
  if (!paso || cabecera.aiTitle) return paso;
  ventana_.mirar(archivo, inicio, largo);
  return completarTitulo(cabecera);
}

VentanaDeArchivo::Paso LectorDeCabeceras::completar(TranscriptScanner::Cabecera& cabecera) {
  auto const paso = completarTitulo(cabecera);
  return paso ? completarDirectorio(cabecera) : paso;
}

VentanaDeArchivo::Paso LectorDeCabeceras::completarTitulo(TranscriptScanner::Cabecera& cabecera) {
  if (cabecera.aiTitle) return {};
  auto hallado = buscar(&LectorDeCabeceras::tituloDesdeElFin);
  if (!hallado) return std::unexpected{hallado.error()};
  cabecera.aiTitle = std::move(*hallado);
  return {};
}

VentanaDeArchivo::Paso LectorDeCabeceras::completarDirectorio(TranscriptScanner::Cabecera& cabecera) {
  if (cabecera.cwd) return {};
  auto hallado = buscar(&LectorDeCabeceras::directorioDesdeElInicio);
  if (!hallado) return std::unexpected{hallado.error()};
  cabecera.cwd = std::move(*hallado);
  return {};
}

LectorDeCabeceras::Hallazgo LectorDeCabeceras::buscar(Busqueda busqueda) {
  auto hallado = (this->*busqueda)();
  if (hallado || hallado.error().codigo != VentanaDeArchivo::encogio) return hallado;
  if (auto const leido = ventana_.leerEntera(); !leido) return std::unexpected{leido.error()};
  return (this->*busqueda)();
}

LectorDeCabeceras::Hallazgo LectorDeCabeceras::tituloDesdeElFin() {
  auto hasta = ventana_.largo();
  while (true) {
    auto const desde = ventana_.detras();
    auto const lugar = agujaTitulo.ultima(ventana_.trozo(desde, std::max(desde, hasta)));
    if (lugar == Aguja::nada) {
      if (desde == 0) return std::nullopt;
      hasta = std::min(hasta, desde + agujaTitulo.largo() - 1);
      if (auto const paso = ventana_.masDetras(); !paso) return std::unexpected{paso.error()};
      continue;
    }
    auto const pieza = piezaHaciaAtras(desde + lugar);
    if (!pieza) return std::unexpected{pieza.error()};
    if (auto titulo = tituloDe(*pieza)) return titulo;
    hasta = pieza->desde;
  }
}

LectorDeCabeceras::Hallazgo LectorDeCabeceras::directorioDesdeElInicio() {
  std::size_t desde = 0;
  std::size_t buscado = 0;
  while (true) {
    auto const hasta = ventana_.delante();
    auto const lugar = agujaDirectorio.primera(ventana_.trozo(0, hasta), buscado);
    if (lugar == Aguja::nada) {
      if (hasta == ventana_.largo()) return std::nullopt;
      buscado = std::max(buscado, hasta - std::min(hasta, agujaDirectorio.largo() - 1));
      if (auto const paso = ventana_.masDelante(); !paso) return std::unexpected{paso.error()};
      continue;
    }
    auto const pieza = piezaHaciaDelante(lugar, desde);
    if (!pieza) return std::unexpected{pieza.error()};
    if (auto directorio = directorioDe(*pieza)) return directorio;
    desde = buscado = pieza->hasta;
  }
}

LectorDeCabeceras::PiezaHallada LectorDeCabeceras::piezaHaciaAtras(std::size_t lugar) {
  auto const siguiente = ventana_.trozo(lugar, ventana_.largo()).find('\n');
  auto const hasta = siguiente == std::string_view::npos ? ventana_.largo() : lugar + siguiente;
  auto visto = lugar;
  while (true) {
    auto const desde = ventana_.detras();
    auto const anterior = finDeLinea.ultima(ventana_.trozo(desde, visto));
    if (anterior != Aguja::nada) return Pieza{desde + anterior + 1, hasta};
    if (desde == 0) return Pieza{0, hasta};
    visto = desde;
    if (auto const paso = ventana_.masDetras(); !paso) return std::unexpected{paso.error()};
  }
}

LectorDeCabeceras::PiezaHallada LectorDeCabeceras::piezaHaciaDelante(std::size_t lugar, std::size_t desde) {
  auto const anterior = finDeLinea.ultima(ventana_.trozo(desde, lugar));
  auto const principio = anterior == Aguja::nada ? desde : desde + anterior + 1;
  auto visto = lugar;
  while (true) {
    auto const hasta = ventana_.delante();
    auto const siguiente = ventana_.trozo(visto, hasta).find('\n');
    if (siguiente != std::string_view::npos) return Pieza{principio, visto + siguiente};
    if (hasta == ventana_.largo()) return Pieza{principio, hasta};
    visto = hasta;
    if (auto const paso = ventana_.masDelante(); !paso) return std::unexpected{paso.error()};
  }
}

ConMargen LectorDeCabeceras::conMargen(Pieza pieza) {
  auto const texto = ventana_.trozo(pieza.desde, pieza.hasta);
  if (pieza.hasta + RegistroJson::margen > ventana_.largo() + ventana_.margen()) {
    copia_.assign(texto);
    copia_.resize(texto.size() + RegistroJson::margen);
    return {copia_.data(), texto.size()};
  }
  return {texto.data(), texto.size()};
}

LectorDeCabeceras::Texto LectorDeCabeceras::tituloDe(Pieza pieza) {
  static constexpr std::array<RegistroJson::Campo, 2> campos{{{"type"}, {"aiTitle"}}};
  if (!puedeSerObjeto(ventana_.trozo(pieza.desde, pieza.hasta))) return std::nullopt;
  std::array<RegistroJson::Valor, 2> valores;
  if (!registro_.leer(conMargen(pieza), campos, valores)) return std::nullopt;
  if (std::get<std::string_view>(valores[0]) != "ai-title") return std::nullopt;
  return std::string{std::get<std::string_view>(valores[1])};
}

LectorDeCabeceras::Texto LectorDeCabeceras::directorioDe(Pieza pieza) {
  static constexpr std::array<RegistroJson::Campo, 1> campos{{{"cwd"}}};
  if (!puedeSerObjeto(ventana_.trozo(pieza.desde, pieza.hasta))) return std::nullopt;
  std::array<RegistroJson::Valor, 1> valores;
  if (!registro_.leer(conMargen(pieza), campos, valores)) return std::nullopt;
  auto const recortado = recortar(std::get<std::string_view>(valores[0]));
  if (!recortado.starts_with('/')) return std::nullopt;
  return std::string{recortado};
}

}  // namespace zorve
