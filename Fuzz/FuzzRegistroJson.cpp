#include <array>
#include <cmath>
#include <string>

#include "Dobles/SegundaLectura.h"
#include "Exigir.h"
#include "ZorveCore/Lectura/RegistroJson.h"

namespace zorve::fuzz {
namespace {

using namespace dobles;

using Tipo = RegistroJson::Tipo;
using Valor = RegistroJson::Valor;

constexpr std::array<RegistroJson::Campo, 4> campos{
    {{"a"}, {"n", Tipo::numero}, {"pid", Tipo::entero32, false}, {"t", Tipo::texto, false}}};
using Valores = std::array<Valor, campos.size()>;

/// What the record must give for a field, or nothing where the record must fail.
std::optional<Valor> esperado(RegistroJson::Campo const& campo,
                              std::map<std::string, ValorLeido> const& leido) {
  auto const lugar = leido.find(std::string{campo.clave});
  if (lugar == leido.end() || std::holds_alternative<Nulo>(lugar->second)) {
    return campo.requerido ? std::nullopt : std::optional{Valor{}};
  }
  auto const& valor = lugar->second;
  auto const* const entero = std::get_if<std::int64_t>(&valor);
  if (campo.tipo == Tipo::texto) {
    auto const* const texto = std::get_if<std::string>(&valor);
    return texto == nullptr ? std::nullopt : std::optional{Valor{std::string_view{*texto}}};
  }
  if (campo.tipo == Tipo::entero32) {
    if (entero == nullptr || !std::in_range<std::int32_t>(*entero)) return std::nullopt;
    return Valor{static_cast<std::int32_t>(*entero)};
  }
  if (entero != nullptr) return Valor{static_cast<double>(*entero)};
  auto const* const numero = std::get_if<double>(&valor);
  return numero == nullptr ? std::nullopt : std::optional{Valor{*numero}};
}

bool iguales(Valor const& uno, Valor const& otro) {
  auto const* const x = std::get_if<double>(&uno);
  auto const* const y = std::get_if<double>(&otro);
  if (x == nullptr || y == nullptr) return uno == otro;
  return *x == *y || std::abs(*x - *y) <= 1e-14 * std::abs(*x) + 1e-300;
}

void compararConLaSegunda(std::string_view json, bool leyo, Valores const& valores) {
  auto const segunda = leerOtraVez(json);
  if (segunda.noSabe) return;
  if (!segunda.leido) return exigir(!leyo);
  for (std::size_t i = 0; i < campos.size(); ++i) {
    auto const uno = esperado(campos[i], *segunda.leido);
    if (!uno) return exigir(!leyo);
    if (leyo) exigir(iguales(*uno, valores[i]));
  }
}

bool leer(RegistroJson& registro, std::string_view json, char relleno, Valores& valores) {
  std::string bytes{json};
  bytes.append(RegistroJson::margen, relleno);
  return registro.leer({bytes.data(), json.size()}, campos, valores).has_value();
}

/// The same record with a number out of range in a key that nobody reads counts no less and no more.
std::string conNumeroSinMedida(std::string_view json) {
  auto const llave = json.find('{');
  std::string otro{json};
  return otro.insert(llave == std::string::npos ? 0 : llave + 1, "\"zz\":1e999,");
}

bool esObjetoConClaves(std::string_view json) {
  auto const llave = json.find_first_not_of(" \t\r\n");
  if (llave == std::string_view::npos || json[llave] != '{') return false;
  auto const comilla = json.find_first_not_of(" \t\r\n", llave + 1);
  return comilla != std::string_view::npos && json[comilla] == '"';
}

void probar(std::string_view json) {
  RegistroJson registro;
  Valores valores;
  Valores otros;
  auto const leyo = leer(registro, json, '\0', valores);
  compararConLaSegunda(json, leyo, valores);
  RegistroJson otroRegistro;
  exigir(leer(otroRegistro, json, '"', otros) == leyo);
  if (leyo) exigir(valores == otros);
  if (!esObjetoConClaves(json)) return;
  exigir(leer(otroRegistro, conNumeroSinMedida(json), ' ', otros) == leyo);
  if (leyo) exigir(valores == otros);
}

}  // namespace
}  // namespace zorve::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
