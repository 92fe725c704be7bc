#include "ZorveCore/LectorDeCabeceras.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ZorveCore/Aguja.h"
#include "ZorveCore/Texto.h"

namespace zorve {

namespace {

constexpr Aguja agujaTitulo{TranscriptScanner::agujaAITitle, 0, 2};
constexpr Aguja agujaDirectorio{TranscriptScanner::agujaCwd, 1, 2};
constexpr Aguja finDeLinea{"\n", 0, 0};
constexpr std::string_view blancos = " \t\r";

/// A piece cut at a window's edge shows it at its ends; decoding it would fail after more work.
bool puedeSerObjeto(std::string_view pieza) {
  auto const primero = pieza.find_first_not_of(blancos);
  return primero != std::string_view::npos && pieza[primero] == '{' &&
         pieza[pieza.find_last_not_of(blancos)] == '}';
}

}  // namespace

std::expected<TranscriptScanner::Cabecera, FalloDelSistema> LectorDeCabeceras::leer(
    Archivos& archivos, std::string const& ruta, std::int64_t tamanoBytes) {
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return std::unexpected{archivo.error()};
  auto const inicio = std::max<std::int64_t>(tamanoBytes - TranscriptScanner::ventanaBytes, 0);
  TranscriptScanner::Cabecera cabecera;
  auto paso = mirarLaCola(**archivo, inicio, tamanoBytes);
  if (paso) paso = completar(cabecera);
  if (paso && inicio > 0 && !(cabecera.aiTitle && cabecera.cwd)) {
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

Ventana::Paso LectorDeCabeceras::mirarLaCola(ArchivoAbierto& archivo, std::int64_t inicio,
                                             std::int64_t tamanoBytes) {
  if (tamanoBytes <= static_cast<std::int64_t>(Ventana::deUnaVez)) {
    auto const corto = ventana_.mirarCorto(archivo);
    if (!corto) return std::unexpected{corto.error()};
    if (*corto) return {};
  }
  auto const fin = archivo.tamano();
  if (!fin) return std::unexpected{fin.error()};
  auto const largo = std::clamp<std::int64_t>(*fin - inicio, 0, TranscriptScanner::colaMaxima);
  ventana_.mirar(archivo, inicio, static_cast<std::size_t>(largo));
  return {};
}

Ventana::Paso LectorDeCabeceras::completar(TranscriptScanner::Cabecera& cabecera) {
  if (!cabecera.aiTitle) {
    auto hallado = buscar(&LectorDeCabeceras::tituloDesdeElFin);
    if (!hallado) return std::unexpected{hallado.error()};
    cabecera.aiTitle = std::move(*hallado);
  }
  if (!cabecera.cwd) {
    auto hallado = buscar(&LectorDeCabeceras::directorioDesdeElInicio);
    if (!hallado) return std::unexpected{hallado.error()};
    cabecera.cwd = std::move(*hallado);
  }
  return {};
}

LectorDeCabeceras::Hallazgo LectorDeCabeceras::buscar(Busqueda busqueda) {
  auto hallado = (this->*busqueda)();
  if (hallado || hallado.error().codigo != Ventana::encogio) return hallado;
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
