#include "ZorveCore/Lectura/NumerosGrandes.h"

#include <algorithm>
#include <cstddef>

namespace zorve {

namespace {

constexpr std::size_t digitosSeguros = 18;

bool esDigito(char c) { return c >= '0' && c <= '9'; }
bool empiezaNumero(char c) { return c == '-' || esDigito(c); }
bool sigueNumero(char c) { return esDigito(c) || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E'; }

std::size_t digitos(std::string_view& resto) {
  auto const cuantos = static_cast<std::size_t>(std::ranges::find_if_not(resto, esDigito) - resto.begin());
  resto.remove_prefix(cuantos);
  return cuantos;
}

bool quitar(std::string_view& resto, std::string_view opciones) {
  if (resto.empty() || !opciones.contains(resto.front())) return false;
  resto.remove_prefix(1);
  return true;
}

bool esNumero(std::string_view resto) {
  quitar(resto, "-");
  if (!quitar(resto, "0") && digitos(resto) == 0) return false;
  if (quitar(resto, ".") && digitos(resto) == 0) return false;
  if (quitar(resto, "eE")) {
    quitar(resto, "+-");
    if (digitos(resto) == 0) return false;
  }
  return resto.empty();
}

bool esEntero(std::string_view numero) { return numero.find_first_of(".eE") == std::string_view::npos; }

std::string aMedida(std::string_view numero, std::function<bool(std::string&)> const& cabe) {
  std::string texto{numero};
  auto const entero = esEntero(numero);
  if (!esNumero(numero) || (entero && numero.size() <= digitosSeguros)) return texto;
  if (entero) texto += "e0";
  return cabe(texto) ? texto : "true";
}

std::size_t finDelTexto(std::string_view json, std::size_t comilla) {
  auto i = json.find_first_of("\"\\", comilla + 1);
  while (i != std::string_view::npos && json[i] == '\\') i = json.find_first_of("\"\\", i + 2);
  return i == std::string_view::npos ? json.size() : i + 1;
}

std::size_t finDelNumero(std::string_view json, std::size_t inicio) {
  auto const resto = json.substr(inicio);
  return inicio + static_cast<std::size_t>(std::ranges::find_if_not(resto, sigueNumero) - resto.begin());
}

/// Walks over the tokens of `json`: numbers and what looks like them go to `numero`, all else to `resto`.
template <class Numero, class Resto>
void recorrer(std::string_view json, Numero numero, Resto resto) {
  for (std::size_t i = 0; i < json.size();) {
    auto fin = i + 1;
    if (empiezaNumero(json[i])) {
      fin = finDelNumero(json, i);
      numero(json.substr(i, fin - i));
    } else {
      if (json[i] == '"') fin = finDelTexto(json, i);
      resto(json.substr(i, fin - i));
    }
    i = fin;
  }
}

}  // namespace

void reescribirNumeros(std::string_view json, std::function<bool(std::string&)> const& cabe,
                       std::string& salida) {
  recorrer(
      json, [&](std::string_view numero) { salida += aMedida(numero, cabe); },
      [&](std::string_view resto) { salida += resto; });
}

std::vector<std::string_view> apartarNumeros(std::string_view json, std::string& salida) {
  std::vector<std::string_view> numeros;
  recorrer(
      json,
      [&](std::string_view numero) {
        if (!esNumero(numero)) {
          salida += numero;
          return;
        }
        numeros.push_back(numero);
        salida += '0';
      },
      [&](std::string_view resto) { salida += resto; });
  return numeros;
}

}  // namespace zorve
