#pragma once

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace zorve::dobles {

/// What a value of the outermost object is; `Otro` is true, false, an array, an object or a number out of
/// range.
struct Nulo {
  bool operator==(Nulo const&) const = default;
};
struct Otro {
  bool operator==(Otro const&) const = default;
};
using ValorLeido = std::variant<Nulo, Otro, std::string, std::int64_t, double>;

/// The outermost object of a JSON text, read by another parser than the program's: of equal keys the first.
/// `leido` is nothing where the text is no record, or where this parser cannot tell (`noSabe`: numbers beyond
/// doubles).
struct SegundaLectura {
  std::optional<std::map<std::string, ValorLeido>> leido;
  bool noSabe = false;
};

/// Whether half a surrogate pair stands in `utf8`: RapidJSON lets the second half stand alone.
inline bool mediaParejaSuelta(std::string_view utf8) {
  for (std::size_t i = 0; i + 1 < utf8.size(); ++i) {
    if (static_cast<unsigned char>(utf8[i]) == 0xED && static_cast<unsigned char>(utf8[i + 1]) >= 0xA0)
      return true;
  }
  return false;
}

class Receptor : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Receptor> {
 public:
  std::map<std::string, ValorLeido> valores;
  bool objeto = false;

  bool Null() { return poner(Nulo{}); }
  bool Bool(bool) { return poner(Otro{}); }
  bool Int(int v) { return poner(std::int64_t{v}); }
  bool Uint(unsigned v) { return poner(std::int64_t{v}); }
  bool Int64(std::int64_t v) { return poner(v); }
  bool Uint64(std::uint64_t v) {
    if (std::in_range<std::int64_t>(v)) return poner(static_cast<std::int64_t>(v));
    return poner(static_cast<double>(v));
  }
  bool Double(double v) { return poner(v); }
  bool String(char const* texto, rapidjson::SizeType largo, bool) {
    return !mediaParejaSuelta({texto, largo}) && poner(std::string{texto, largo});
  }
  bool Key(char const* texto, rapidjson::SizeType largo, bool) {
    if (hondo_ == 1) clave_.assign(texto, largo);
    return !mediaParejaSuelta({texto, largo});
  }
  bool StartObject() {
    if (hondo_ == 0) objeto = true;
    return entrar();
  }
  bool StartArray() { return entrar(); }
  bool EndObject(rapidjson::SizeType) { return salir(); }
  bool EndArray(rapidjson::SizeType) { return salir(); }

 private:
  static constexpr int hondoMaximo = 1023;

  bool poner(ValorLeido valor) {
    if (hondo_ == 1) valores.try_emplace(clave_, std::move(valor));
    return true;
  }
  bool entrar() {
    poner(Otro{});
    return ++hondo_ <= hondoMaximo;
  }
  bool salir() {
    --hondo_;
    return true;
  }

  int hondo_ = 0;
  std::string clave_;
};

inline SegundaLectura leerOtraVez(std::string_view json) {
  constexpr auto banderas = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag |
                            rapidjson::kParseStopWhenDoneFlag;
  Receptor receptor;
  rapidjson::MemoryStream flujo{json.data(), json.size()};
  rapidjson::Reader lector;
  auto const fin = lector.Parse<banderas>(flujo, receptor);
  if (fin.IsError()) return {.noSabe = fin.Code() == rapidjson::kParseErrorNumberTooBig};
  auto const resto = json.substr(flujo.Tell());
  if (!receptor.objeto || resto.find_first_not_of(" \t\r\n") != std::string_view::npos) return {};
  return {.leido = std::move(receptor.valores)};
}

}  // namespace zorve::dobles
