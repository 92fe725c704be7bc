#include "ZorvePlatform/Linux/ObjetoJson.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>

#include <cstdint>
#include <utility>

#include "ZorveCore/Texto.h"

namespace zorve {

namespace {

using rapidjson::SizeType;

constexpr unsigned reglas = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag |
                            rapidjson::kParseNumbersAsStringsFlag;

/// Where in the document an event is. At depth 1 the keys are the settings' own.
class Posicion {
 public:
  void entra() { ++profundidad_; }
  void sale() { --profundidad_; }
  [[nodiscard]] bool enLaRaiz() const { return profundidad_ == 1; }
  [[nodiscard]] bool fuera() const { return profundidad_ == 0; }

 private:
  std::size_t profundidad_ = 0;
};

/// Refuses a document whose root is no object.
struct Comprobador : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Comprobador> {
  bool empezado = false;
  bool Default() { return empezado; }
  bool StartObject() { return empezado = true; }
};

/// Picks the first value of one top-level key.
class Buscador : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Buscador> {
 public:
  explicit Buscador(std::string_view clave) : clave_{clave} {}

  std::optional<Preferencias::Valor> valor;

  bool Default() { return tomar(std::nullopt); }
  bool Bool(bool b) { return tomar(b); }
  bool RawNumber(char const* /*texto*/, SizeType /*largo*/, bool /*copia*/) { return tomar(std::nullopt); }
  bool String(char const* texto, SizeType largo, bool /*copia*/) { return tomar(std::string{texto, largo}); }
  bool Key(char const* texto, SizeType largo, bool /*copia*/) {
    toca_ = posicion_.enLaRaiz() && std::string_view{texto, largo} == clave_;
    return true;
  }
  bool StartObject() { return abrir(); }
  bool StartArray() { return abrir(); }
  bool EndObject(SizeType /*miembros*/) { return cerrar(); }
  bool EndArray(SizeType /*elementos*/) { return cerrar(); }

 private:
  /// Stops the reader once the key's value has been met.
  bool tomar(std::optional<Preferencias::Valor> hallado) {
    if (!toca_) return true;
    valor = std::move(hallado);
    return false;
  }
  bool abrir() {
    if (toca_) return false;
    posicion_.entra();
    return true;
  }
  bool cerrar() {
    posicion_.sale();
    return true;
  }

  std::string_view clave_;
  Posicion posicion_;
  bool toca_ = false;
};

using Escritor = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

/// Copies a document with one top-level key replaced or left out.
class Copista {
 public:
  Copista(Escritor& escritor, std::string_view clave, std::optional<Preferencias::Valor> const& valor)
      : escritor_{escritor}, clave_{clave}, valor_{valor}, pendiente_{valor.has_value()} {}

  bool Null() { return omitir_ || escritor_.Null(); }
  bool Bool(bool b) { return omitir_ || escritor_.Bool(b); }
  bool Int(int n) { return omitir_ || escritor_.Int(n); }
  bool Uint(unsigned n) { return omitir_ || escritor_.Uint(n); }
  bool Int64(std::int64_t n) { return omitir_ || escritor_.Int64(n); }
  bool Uint64(std::uint64_t n) { return omitir_ || escritor_.Uint64(n); }
  bool Double(double d) { return omitir_ || escritor_.Double(d); }
  bool RawNumber(char const* texto, SizeType largo, bool /*copia*/) {
    return omitir_ || escritor_.RawValue(texto, largo, rapidjson::kNumberType);
  }
  bool String(char const* texto, SizeType largo, bool /*copia*/) {
    return omitir_ || escritor_.String(texto, largo);
  }
  bool Key(char const* texto, SizeType largo, bool /*copia*/) {
    if (posicion_.enLaRaiz()) {
      omitir_ = std::string_view{texto, largo} == clave_;
      if (omitir_) escribirValor();
    }
    return omitir_ || escritor_.Key(texto, largo);
  }
  bool StartObject() {
    posicion_.entra();
    return omitir_ || escritor_.StartObject();
  }
  bool EndObject(SizeType /*miembros*/) {
    posicion_.sale();
    if (posicion_.fuera()) {
      omitir_ = false;
      escribirValor();
    }
    return omitir_ || escritor_.EndObject();
  }
  bool StartArray() {
    posicion_.entra();
    return omitir_ || escritor_.StartArray();
  }
  bool EndArray(SizeType /*elementos*/) {
    posicion_.sale();
    return omitir_ || escritor_.EndArray();
  }

 private:
  void escribirValor() {
    if (!std::exchange(pendiente_, false)) return;
    escritor_.Key(clave_.data(), static_cast<SizeType>(clave_.size()));
    if (auto const* b = std::get_if<bool>(&*valor_)) {
      escritor_.Bool(*b);
    } else {
      auto const texto = conUtf8Valido(std::get<std::string>(*valor_));
      escritor_.String(texto.data(), static_cast<SizeType>(texto.size()));
    }
  }

  Escritor& escritor_;
  std::string_view clave_;
  std::optional<Preferencias::Valor> const& valor_;
  Posicion posicion_;
  bool pendiente_;
  bool omitir_ = false;
};

template <class Receptor>
bool leerCon(std::string_view texto, Receptor& receptor) {
  rapidjson::MemoryStream flujo{texto.data(), texto.size()};
  rapidjson::Reader lector;
  return !lector.Parse<reglas>(flujo, receptor).IsError();
}

}  // namespace

bool esObjetoJson(std::string_view texto) {
  Comprobador comprobador;
  return !texto.contains('\0') && leerCon(texto, comprobador);
}

std::optional<Preferencias::Valor> valorEnObjetoJson(std::string_view texto, std::string_view clave) {
  Buscador buscador{clave};
  leerCon(texto, buscador);
  return buscador.valor;
}

std::string conValorEnObjetoJson(std::string_view texto, std::string_view clave,
                                 std::optional<Preferencias::Valor> const& valor) {
  rapidjson::StringBuffer bufer;
  Escritor escritor{bufer};
  escritor.SetIndent(' ', 2);
  Copista copista{escritor, clave, valor};
  leerCon(texto, copista);
  return std::string{bufer.GetString(), bufer.GetSize()} + "\n";
}

}  // namespace zorve
