#include "ZorvePlatform/Linux/ObjetoJson.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/NumerosGrandes.h"
#include "ZorveCore/Texto/Texto.h"

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

using Escritor = rapidjson::Writer<rapidjson::StringBuffer>;

/// Copies a document with one top-level key replaced or left out.
class Copista {
 public:
  /// `numeros`: what stands for each number of the document, in their order.
  Copista(Escritor& escritor, std::string_view clave, std::optional<Preferencias::Valor> const& valor,
          std::vector<std::string_view> const& numeros)
      : escritor_{escritor},
        clave_{clave},
        valor_{valor},
        numero_{numeros.begin()},
        pendiente_{valor.has_value()} {}

  bool Null() { return omitir_ || escritor_.Null(); }
  bool Bool(bool b) { return omitir_ || escritor_.Bool(b); }
  bool Int(int n) { return omitir_ || escritor_.Int(n); }
  bool Uint(unsigned n) { return omitir_ || escritor_.Uint(n); }
  bool Int64(std::int64_t n) { return omitir_ || escritor_.Int64(n); }
  bool Uint64(std::uint64_t n) { return omitir_ || escritor_.Uint64(n); }
  bool Double(double d) { return omitir_ || escritor_.Double(d); }
  bool RawNumber(char const* /*texto*/, SizeType /*largo*/, bool /*copia*/) {
    auto const numero = *numero_++;
    return omitir_ || escritor_.RawValue(numero.data(), numero.size(), rapidjson::kNumberType);
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
  std::vector<std::string_view>::const_iterator numero_;
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

/// A document whose numbers, which may be of any size, stand apart.
struct Documento {
  std::string texto;
  std::vector<std::string_view> numeros;

  explicit Documento(std::string_view original) : numeros{apartarNumeros(original, texto)} {}
};

/// Lays out JSON that is written on one line.
class Disposicion {
 public:
  explicit Disposicion(std::string_view compacto) : compacto_{compacto} {}

  [[nodiscard]] std::string disponer() {
    for (; i_ < compacto_.size(); ++i_) poner(compacto_[i_]);
    return std::move(salida_);
  }

 private:
  static constexpr std::size_t hondura = 16;

  void poner(char c) {
    if (c == '"') return ponerTexto();
    if (c == '{' || c == '[') return abrir(c);
    if (c == '}' || c == ']') --nivel_;
    if ((c == '}' || c == ']') && nivel_ < hondura) renglon();
    salida_ += c;
    if (c == ',' && nivel_ <= hondura) renglon();
    if (c == ':' && nivel_ <= hondura) salida_ += ' ';
  }
  void ponerTexto() {
    auto fin = compacto_.find_first_of("\"\\", i_ + 1);
    while (compacto_[fin] == '\\') fin = compacto_.find_first_of("\"\\", fin + 2);
    salida_ += compacto_.substr(i_, fin + 1 - i_);
    i_ = fin;
  }
  void abrir(char c) {
    salida_ += c;
    auto const siguiente = compacto_[i_ + 1];
    if (siguiente == '}' || siguiente == ']') {
      salida_ += siguiente;
      ++i_;
    } else if (++nivel_ <= hondura) {
      renglon();
    }
  }
  void renglon() { salida_.append(1, '\n').append(2 * nivel_, ' '); }

  std::string_view compacto_;
  std::string salida_;
  std::size_t i_ = 0;
  std::size_t nivel_ = 0;
};

}  // namespace

bool esObjetoJson(std::string_view texto) {
  Comprobador comprobador;
  return !texto.contains('\0') && leerCon(Documento{texto}.texto, comprobador);
}

std::optional<Preferencias::Valor> valorEnObjetoJson(std::string_view texto, std::string_view clave) {
  Buscador buscador{clave};
  leerCon(Documento{texto}.texto, buscador);
  return buscador.valor;
}

std::string conValorEnObjetoJson(std::string_view texto, std::string_view clave,
                                 std::optional<Preferencias::Valor> const& valor, std::size_t tope) {
  rapidjson::StringBuffer bufer;
  Escritor escritor{bufer};
  Documento const documento{texto};
  Copista copista{escritor, clave, valor, documento.numeros};
  leerCon(documento.texto, copista);
  std::string_view const compacto{bufer.GetString(), bufer.GetSize()};
  auto dispuesto = Disposicion{compacto}.disponer() + "\n";
  return dispuesto.size() <= tope ? dispuesto : std::string{compacto} + "\n";
}

}  // namespace zorve
