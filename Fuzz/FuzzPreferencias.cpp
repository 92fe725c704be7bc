#include <simdjson.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "ZorvePlatform/Linux/ObjetoJson.h"

namespace zorve::fuzz {
namespace {

constexpr std::size_t tope = 1UZ << 20U;

void exigir(bool seCumple) {
  if (!seCumple) std::abort();
}

/// The settings read by a parser that ours does not use. It refuses more: deep nesting, numbers out of range.
class Otra {
 public:
  explicit Otra(std::string_view texto) : texto_{texto} {
    legible = lector_.parse(texto_).get(objeto_) == simdjson::SUCCESS && !texto.starts_with("\xEF\xBB\xBF");
  }

  bool legible = false;

  [[nodiscard]] std::optional<Preferencias::Valor> valor(std::string_view clave) const {
    for (auto const par : objeto_) {
      if (par.key != clave) continue;
      if (std::string_view texto; !par.value.get(texto)) return std::string{texto};
      if (bool cierto = false; !par.value.get(cierto)) return cierto;
      return std::nullopt;
    }
    return std::nullopt;
  }
  [[nodiscard]] std::size_t claves() const { return objeto_.size(); }

 private:
  simdjson::dom::parser lector_;
  simdjson::padded_string texto_;
  simdjson::dom::object objeto_;
};

void escribirGuarda(std::string const& texto, std::string_view clave,
                    std::optional<Preferencias::Valor> const& valor) {
  auto const nuevo = conValorEnObjetoJson(texto, clave, valor, tope);
  exigir(esObjetoJson(nuevo));
  exigir(nuevo.size() <= 40 * texto.size() + 200);
  exigir(valorEnObjetoJson(nuevo, clave) == valor);
  exigir(conValorEnObjetoJson(nuevo, clave, valor, tope) == nuevo);
  Otra const antes{texto};
  Otra const despues{nuevo};
  if (!antes.legible) return;
  exigir(despues.legible && despues.valor(clave) == valor);
  for (auto const* const otra : {"a", "b", "", "zorve.idioma"}) {
    if (otra != clave) exigir(despues.valor(otra) == antes.valor(otra));
  }
}

void probar(std::string const& texto) {
  Otra const otra{texto};
  auto const objeto = esObjetoJson(texto);
  if (otra.legible && !texto.contains("\\u")) exigir(objeto);
  if (!objeto) return;
  if (otra.legible) exigir(valorEnObjetoJson(texto, "a") == otra.valor("a"));
  escribirGuarda(texto, "a", Preferencias::Valor{true});
  escribirGuarda(texto, "a", Preferencias::Valor{std::string{"\"\n\u00E9"}});
  escribirGuarda(texto, "zorve.idioma", std::nullopt);
}

}  // namespace
}  // namespace zorve::fuzz

/// Settings read as another parser reads them, and a change keeps all else and can be read again.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
