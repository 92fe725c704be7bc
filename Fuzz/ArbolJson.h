#pragma once

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "Dobles/SegundaLectura.h"

namespace zorve::fuzz {

/// A JSON value as another parser than the program's reads it. Numbers are their text.
struct NodoJson {
  struct Numero {
    std::string texto;
  };
  std::variant<std::monostate, bool, Numero, std::string> valor;
  bool esLista = false;
  bool esObjeto = false;
  /// In their order; keys stand beside them in an object.
  std::vector<NodoJson> hijos;
  std::vector<std::string> claves;

  /// The first member of that name, or null.
  [[nodiscard]] NodoJson const* de(std::string_view clave) const {
    for (std::size_t i = 0; i < claves.size(); ++i) {
      if (claves[i] == clave) return &hijos[i];
    }
    return nullptr;
  }
  [[nodiscard]] std::string const* texto(std::string_view clave) const {
    auto const* const nodo = de(clave);
    return nodo == nullptr ? nullptr : std::get_if<std::string>(&nodo->valor);
  }
  [[nodiscard]] bool const* cierto(std::string_view clave) const {
    auto const* const nodo = de(clave);
    return nodo == nullptr ? nullptr : std::get_if<bool>(&nodo->valor);
  }
  /// An integer of 18 digits at most; nothing for another value.
  [[nodiscard]] std::optional<long long> entero(std::string_view clave) const {
    auto const* const nodo = de(clave);
    auto const* const numero = nodo == nullptr ? nullptr : std::get_if<Numero>(&nodo->valor);
    if (numero == nullptr || numero->texto.find_first_of(".eE") != std::string::npos) return std::nullopt;
    return std::stoll(numero->texto);
  }
};

/// Builds the tree; `noSabe` where parsers differ by right: numbers of 18 digits and more or with an
/// exponent, values that lie deeper than 1,000.
class ConstructorDeArbol : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ConstructorDeArbol> {
 public:
  NodoJson raiz;
  bool noSabe = false;

  bool Null() { return poner({}); }
  bool Bool(bool v) { return poner({.valor = v}); }
  bool RawNumber(char const* texto, rapidjson::SizeType largo, bool) {
    std::string numero{texto, largo};
    if (largo > 18 || numero.find_first_of("eE") != std::string::npos) noSabe = true;
    return !noSabe && poner({.valor = NodoJson::Numero{std::move(numero)}});
  }
  bool String(char const* texto, rapidjson::SizeType largo, bool) {
    return !dobles::mediaParejaSuelta({texto, largo}) && poner({.valor = std::string{texto, largo}});
  }
  bool Key(char const* texto, rapidjson::SizeType largo, bool) {
    abiertos_.back().claves.emplace_back(texto, largo);
    return !dobles::mediaParejaSuelta({texto, largo});
  }
  bool StartObject() { return abrir({.esObjeto = true}); }
  bool StartArray() { return abrir({.esLista = true}); }
  bool EndObject(rapidjson::SizeType) { return cerrar(); }
  bool EndArray(rapidjson::SizeType) { return cerrar(); }

 private:
  bool poner(NodoJson nodo) {
    if (abiertos_.empty()) {
      raiz = std::move(nodo);
    } else {
      abiertos_.back().hijos.push_back(std::move(nodo));
    }
    return true;
  }
  bool abrir(NodoJson nodo) {
    abiertos_.push_back(std::move(nodo));
    noSabe = noSabe || abiertos_.size() > 1000;
    return !noSabe;
  }
  bool cerrar() {
    auto nodo = std::move(abiertos_.back());
    abiertos_.pop_back();
    return poner(std::move(nodo));
  }

  std::vector<NodoJson> abiertos_;
};

/// What the text holds: nothing where it is no JSON; `noSabe` where this reading cannot tell.
struct ArbolLeido {
  std::optional<NodoJson> raiz;
  bool noSabe = false;
};

inline ArbolLeido leerArbol(std::string_view json) {
  constexpr auto banderas = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag |
                            rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseStopWhenDoneFlag;
  ConstructorDeArbol constructor;
  rapidjson::MemoryStream flujo{json.data(), json.size()};
  rapidjson::Reader lector;
  auto const fin = lector.Parse<banderas>(flujo, constructor);
  if (constructor.noSabe || json.starts_with("\xEF\xBB\xBF")) return {.noSabe = true};
  if (fin.IsError() || json.find_first_not_of(" \t\r\n", flujo.Tell()) != std::string_view::npos) return {};
  return {.raiz = std::move(constructor.raiz)};
}

}  // namespace zorve::fuzz
