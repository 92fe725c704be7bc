#include "ZorveCore/Lectura/RegistroJson.h"

#include <simdjson.h>

#include <algorithm>
#include <bit>
#include <limits>

#include "ZorveCore/Lectura/FalloDeNumero.h"
#include "ZorveCore/Lectura/NumerosGrandes.h"

namespace zorve {

static_assert(RegistroJson::margen >= simdjson::SIMDJSON_PADDING);

namespace {

namespace dom = simdjson::dom;

constexpr std::string_view marcaDeOrden = "\xEF\xBB\xBF";
constexpr std::size_t capacidadMinima = std::size_t{64} << 10U;

std::unexpected<std::string> fallo(std::string_view clave, std::string_view problema) {
  std::string texto{"key \""};
  texto.append(clave).append("\" ").append(problema);
  return std::unexpected{std::move(texto)};
}

/// What the library says of an error, without the code's name, which newer versions put before it.
std::string_view explicacion(simdjson::error_code codigo) {
  constexpr std::string_view deNombres = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
  std::string_view const texto{simdjson::error_message(codigo)};
  auto const fin = texto.find(": ");
  bool const conNombre = fin != std::string_view::npos && texto.find_first_not_of(deNombres) == fin;
  return conNombre ? texto.substr(fin + 2) : texto;
}

std::unexpected<std::string> noEsJson(simdjson::error_code codigo) {
  return std::unexpected{std::string{"not valid JSON: "}.append(explicacion(codigo))};
}

unsigned unidadUtf16(char const* digitos) {
  unsigned valor = 0;
  for (auto const digito : std::string_view{digitos, 4}) {
    valor = valor * 16 + static_cast<unsigned>(digito <= '9' ? digito - '0' : (digito | 0x20) - 'a' + 10);
  }
  return valor;
}

bool esAlta(unsigned unidad) { return unidad >= 0xD800 && unidad <= 0xDBFF; }
bool esBaja(unsigned unidad) { return unidad >= 0xDC00 && unidad <= 0xDFFF; }

/// Whether every escaped surrogate in valid JSON has its other half.
bool sustitutosEnPareja(std::string_view json) {
  for (auto i = json.find('\\'); i != std::string_view::npos; i = json.find('\\', i)) {
    if (json[i + 1] != 'u') {
      i += 2;
      continue;
    }
    auto const unidad = unidadUtf16(json.data() + i + 2);
    i += 6;
    if (esBaja(unidad)) return false;
    if (!esAlta(unidad)) continue;
    if (json.size() - i < 6 || json[i] != '\\' || json[i + 1] != 'u') return false;
    if (!esBaja(unidadUtf16(json.data() + i + 2))) return false;
    i += 6;
  }
  return true;
}

std::expected<RegistroJson::Valor, std::string> convertir(RegistroJson::Campo const& campo,
                                                          dom::element elemento) {
  using Tipo = RegistroJson::Tipo;
  switch (campo.tipo) {
    case Tipo::texto:
      if (std::string_view texto; !elemento.get(texto)) return texto;
      return fallo(campo.clave, "is not a string");
    case Tipo::numero:
      if (double numero = 0; !elemento.get(numero)) return numero;
      return fallo(campo.clave, "is not a number in range");
    case Tipo::entero32:
      if (std::int64_t entero = 0; !elemento.get(entero) && std::in_range<std::int32_t>(entero)) {
        return static_cast<std::int32_t>(entero);
      }
      return fallo(campo.clave, "is not an integer of 32 bits");
  }
  return fallo(campo.clave, "has no known type");
}

}  // namespace

struct RegistroJson::Interior {
  dom::parser lector;
  dom::document documento;
  std::string reescrito;

  [[nodiscard]] simdjson::error_code crecer(std::size_t largo);
  [[nodiscard]] simdjson::simdjson_result<dom::element> analizar(ConMargen bytes);
  [[nodiscard]] simdjson::simdjson_result<dom::element> analizarConNumerosGrandes(std::string_view json);
  [[nodiscard]] bool cabe(std::string& numero);
};

simdjson::error_code RegistroJson::Interior::crecer(std::size_t largo) {
  if (largo <= documento.capacity()) return simdjson::SUCCESS;
  if (largo > std::numeric_limits<std::uint32_t>::max() / 2) return simdjson::CAPACITY;
  auto const capacidad = std::max(std::bit_ceil(largo), capacidadMinima);
  auto codigo = documento.allocate(capacidad);
  if (codigo == simdjson::SUCCESS) codigo = lector.allocate(capacidad);
  // What has grown in part only would be taken for whole next time.
  if (codigo != simdjson::SUCCESS) {
    documento = {};
    lector = dom::parser{};
  }
  return codigo;
}

simdjson::simdjson_result<dom::element> RegistroJson::Interior::analizar(ConMargen bytes) {
  if (bytes.texto().starts_with(marcaDeOrden)) return simdjson::TAPE_ERROR;
  if (auto const codigo = crecer(bytes.largo)) return codigo;
  auto leido = lector.parse_into_document(documento, bytes.datos, bytes.largo, false);
  if (leido.error() == simdjson::SUCCESS && !sustitutosEnPareja(bytes.texto())) return simdjson::STRING_ERROR;
  return leido;
}

bool RegistroJson::Interior::cabe(std::string& numero) {
  auto const largo = numero.size();
  numero.append(margen, ' ');
  auto const codigo = analizar({numero.data(), largo}).error();
  numero.resize(largo);
  return codigo == simdjson::SUCCESS;
}

simdjson::simdjson_result<dom::element> RegistroJson::Interior::analizarConNumerosGrandes(
    std::string_view json) {
  reescrito.clear();
  reescribirNumeros(json, [this](std::string& numero) { return cabe(numero); }, reescrito);
  auto const largo = reescrito.size();
  reescrito.append(margen, ' ');
  return analizar({reescrito.data(), largo});
}

RegistroJson::RegistroJson() : interior_{std::make_unique<Interior>()} {}
RegistroJson::~RegistroJson() = default;

std::expected<void, std::string> RegistroJson::leer(ConMargen bytes, std::span<Campo const> campos,
                                                    std::span<Valor> valores) {
  auto leido = interior_->analizar(bytes);
  if (esFalloDeNumero(leido.error())) leido = interior_->analizarConNumerosGrandes(bytes.texto());
  if (auto const codigo = leido.error()) return noEsJson(codigo);
  dom::object objeto;
  if (leido.get(objeto)) return std::unexpected{"not a JSON object"};

  std::ranges::fill(valores, Valor{});
  std::uint64_t vistos = 0;
  for (auto const par : objeto) {
    auto const campo = std::ranges::find(campos, par.key, &Campo::clave);
    if (campo == campos.end()) continue;
    auto const indice = static_cast<std::size_t>(campo - campos.begin());
    auto const bit = std::uint64_t{1} << indice;
    if ((vistos & bit) != 0) continue;
    vistos |= bit;
    if (par.value.is_null() && !campo->requerido) continue;
    auto valor = convertir(*campo, par.value);
    if (!valor) return std::unexpected{std::move(valor.error())};
    valores[indice] = *valor;
  }
  for (std::size_t i = 0; i < campos.size(); ++i) {
    if (campos[i].requerido && valores[i].index() == 0) return fallo(campos[i].clave, "is missing");
  }
  return {};
}

}  // namespace zorve
