#include "ZorveCore/Texto/TextoPlegado.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

using Puntos = std::vector<utf8proc_int32_t>;

constexpr std::int32_t puntoSobrepuesto = 0x307;
constexpr std::int32_t iSinPunto = 0x131;
constexpr std::int32_t finDeLasBasesConMarcasSueltas = 0x510;

bool esAsciiElByte(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool esMayuscula(char byte) { return byte >= 'A' && byte <= 'Z'; }

int claseDeCombinacion(std::int32_t punto) { return utf8proc_get_property(punto)->combining_class; }

bool esMarca(std::int32_t punto) { return utf8proc_category(punto) == UTF8PROC_CATEGORY_MN; }

void agregarPunto(std::string& destino, std::int32_t punto) {
  std::array<utf8proc_uint8_t, 4> bytes{};
  auto const cuantos = utf8proc_encode_char(punto, bytes.data());
  destino.append(reinterpret_cast<char const*>(bytes.data()), static_cast<std::size_t>(cuantos));
}

void agregarDescompuesto(Puntos& destino, std::int32_t punto, utf8proc_option_t opciones) {
  std::array<utf8proc_int32_t, 32> partes{};
  int clase = 0;
  auto const cuantas = utf8proc_decompose_char(punto, partes.data(), partes.size(), opciones, &clase);
  destino.insert(destino.end(), partes.begin(), partes.begin() + cuantas);
}

void ordenarMarcas(Puntos& puntos) {
  auto const esInicial = [](std::int32_t punto) { return claseDeCombinacion(punto) == 0; };
  auto desde = puntos.begin();
  while ((desde = std::find_if_not(desde, puntos.end(), esInicial)) != puntos.end()) {
    auto const hasta = std::find_if(desde, puntos.end(), esInicial);
    std::stable_sort(desde, hasta,
                     [](auto a, auto b) { return claseDeCombinacion(a) < claseDeCombinacion(b); });
    desde = hasta;
  }
}

bool llevaPunto(Puntos const& puntos, std::size_t i) {
  constexpr int encima = 230;
  for (++i; i < puntos.size(); ++i) {
    int const clase = claseDeCombinacion(puntos[i]);
    if (clase == 0 || clase == encima) return puntos[i] == puntoSobrepuesto;
  }
  return false;
}

std::int32_t conReglaTurca(Puntos const& puntos, std::size_t i) {
  if (puntos[i] != 'I') return puntos[i];
  return llevaPunto(puntos, i) ? 'i' : iSinPunto;
}

Puntos sinCaja(Puntos const& puntos, ReglaDePlegado regla) {
  Puntos plegados;
  plegados.reserve(puntos.size());
  constexpr auto opciones = static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD | UTF8PROC_DECOMPOSE);
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    auto const punto = regla == ReglaDePlegado::turca ? conReglaTurca(puntos, i) : puntos[i];
    agregarDescompuesto(plegados, punto, opciones);
  }
  ordenarMarcas(plegados);
  return plegados;
}

void soltarMarcas(Puntos& puntos) {
  bool suelta = false;
  std::erase_if(puntos, [&suelta](std::int32_t punto) {
    if (esMarca(punto)) return suelta;
    suelta = punto < finDeLasBasesConMarcasSueltas;
    return false;
  });
}

void agregarPorPasos(std::string& destino, Puntos const& puntos, ReglaDePlegado regla) {
  Puntos descompuestos;
  descompuestos.reserve(puntos.size());
  for (auto const punto : puntos) agregarDescompuesto(descompuestos, punto, UTF8PROC_DECOMPOSE);
  ordenarMarcas(descompuestos);
  auto plegados = sinCaja(descompuestos, regla);
  soltarMarcas(plegados);
  auto const largo =
      utf8proc_normalize_utf32(plegados.data(), static_cast<utf8proc_ssize_t>(plegados.size()),
                               static_cast<utf8proc_option_t>(UTF8PROC_COMPOSE | UTF8PROC_STABLE));
  plegados.resize(static_cast<std::size_t>(largo));
  for (auto const punto : plegados) agregarPunto(destino, punto);
}

struct Plegado {
  std::array<char, 7> bytes{};
  std::uint8_t largo = 0;
};
using Tabla = std::array<Plegado, finDeLasBasesConMarcasSueltas>;

Tabla hacerTabla(ReglaDePlegado regla) {
  Tabla tabla{};
  std::string texto;
  for (std::int32_t punto = 0; punto < finDeLasBasesConMarcasSueltas; ++punto) {
    texto.clear();
    agregarPorPasos(texto, {punto}, regla);
    auto& fila = tabla[static_cast<std::size_t>(punto)];
    fila.largo = static_cast<std::uint8_t>(texto.copy(fila.bytes.data(), fila.bytes.size()));
  }
  return tabla;
}

Tabla const& tablaDe(ReglaDePlegado regla) {
  if (regla == ReglaDePlegado::turca) {
    static Tabla const turca = hacerTabla(ReglaDePlegado::turca);
    return turca;
  }
  static Tabla const general = hacerTabla(ReglaDePlegado::general);
  return general;
}

bool estaEnLaTabla(std::int32_t punto) {
  return punto >= 0 && punto < finDeLasBasesConMarcasSueltas && !esMarca(punto);
}

class Plegador {
 public:
  Plegador(std::string& destino, ReglaDePlegado regla) : destino_{destino}, regla_{regla} {}

  void agregar(std::int32_t punto, char byte) {
    if (punto < 0 || estaEnLaTabla(punto)) terminar();
    if (punto < 0) {
      destino_ += byte;
    } else {
      pendientes_.push_back(punto);
    }
  }

  void terminar() {
    if (pendientes_.size() == 1 && estaEnLaTabla(pendientes_.front())) {
      auto const& fila = tablaDe(regla_)[static_cast<std::size_t>(pendientes_.front())];
      destino_.append(fila.bytes.data(), fila.largo);
    } else if (!pendientes_.empty()) {
      agregarPorPasos(destino_, pendientes_, regla_);
    }
    pendientes_.clear();
  }

 private:
  std::string& destino_;
  ReglaDePlegado regla_;
  Puntos pendientes_;
};

std::size_t asciiAlInicio(std::string_view texto) {
  return static_cast<std::size_t>(std::ranges::find_if_not(texto, esAsciiElByte) - texto.begin());
}

void agregarAscii(std::string& destino, std::string_view texto) {
  auto const desde = destino.size();
  destino.append(texto);
  for (auto i = desde; i < destino.size(); ++i) {
    char const byte = destino[i];
    destino[i] = esMayuscula(byte) ? static_cast<char>(byte + ('a' - 'A')) : byte;
  }
}

void agregarAscii(std::string& destino, std::string_view texto, ReglaDePlegado regla) {
  if (regla == ReglaDePlegado::general) return agregarAscii(destino, texto);
  for (std::size_t i = texto.find('I'); i != std::string_view::npos; i = texto.find('I')) {
    agregarAscii(destino, texto.substr(0, i));
    agregarPunto(destino, iSinPunto);
    texto.remove_prefix(i + 1);
  }
  agregarAscii(destino, texto);
}

/// Case folded by utf8proc's own table, without dropping marks; what is no UTF-8 stays as it is.
std::string sinMayusculas(std::string_view texto) {
  utf8proc_uint8_t* plegado = nullptr;
  auto const largo = utf8proc_map(reinterpret_cast<utf8proc_uint8_t const*>(texto.data()),
                                  static_cast<utf8proc_ssize_t>(texto.size()), &plegado,
                                  static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD | UTF8PROC_COMPOSE));
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> const dueno{plegado, &std::free};
  if (largo < 0) return std::string{texto};
  return {reinterpret_cast<char const*>(plegado), static_cast<std::size_t>(largo)};
}

}  // namespace

void agregarPlegado(std::string& destino, std::string_view texto, ReglaDePlegado regla) {
  if (esAscii(texto)) return agregarAscii(destino, texto, regla);
  Plegador plegador{destino, regla};
  while (!texto.empty()) {
    if (auto const ascii = asciiAlInicio(texto); ascii > 1) {
      plegador.terminar();
      agregarAscii(destino, texto.substr(0, ascii - 1), regla);
      texto.remove_prefix(ascii - 1);
    }
    auto const [punto, bytes] = puntoAlInicio(texto);
    plegador.agregar(punto, texto.front());
    texto.remove_prefix(bytes);
  }
  plegador.terminar();
}

std::string plegar(std::string_view texto, ReglaDePlegado regla) {
  std::string plegado;
  plegado.reserve(texto.size());
  agregarPlegado(plegado, texto, regla);
  return plegado;
}

bool esMarcaSuelta(std::string_view texto) {
  auto const punto = puntoAlInicio(texto).valor;
  return punto >= 0 && esMarca(punto);
}

bool igualesSinMayusculas(std::string_view uno, std::string_view otro) {
  return sinMayusculas(uno) == sinMayusculas(otro);
}

ReglaDePlegado reglaDe(std::string_view local) {
  auto const idioma = local.substr(0, local.find_first_of("_.-@"));
  bool const turca = igualesSinMayusculas(idioma, "tr") || igualesSinMayusculas(idioma, "az");
  return turca ? ReglaDePlegado::turca : ReglaDePlegado::general;
}

}  // namespace zorve
