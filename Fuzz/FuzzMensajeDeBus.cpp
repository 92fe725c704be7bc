#include <dbus/dbus.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Exigir.h"
#include "ZorveTerminal/DatosDelMensaje.h"
#include "ZorveTerminal/NodosNumerados.h"

namespace zorve::fuzz {
namespace {

using namespace ayudante;

/// The input, taken byte by byte; zeros once it is used up.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_{bytes} {}
  unsigned uno() {
    if (bytes_.empty()) return 0;
    auto const byte = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte;
  }
  std::int64_t entero() {
    std::uint64_t valor = 0;
    for (int i = 0; i < 8; ++i) valor = valor << 8U | uno();
    return static_cast<std::int64_t>(valor);
  }
  [[nodiscard]] bool vacios() const { return bytes_.empty(); }

 private:
  std::string_view bytes_;
};

/// Writes a message as the input says, and beside it the list that reading it must give.
class Redactor {
 public:
  Redactor(DBusMessage* mensaje, Bytes& bytes) : bytes_{bytes} {
    dbus_message_iter_init_append(mensaje, &donde_);
  }
  std::vector<DatoDeRespuesta> esperados;

  void valores(int cuantos, int hondo) {
    std::size_t largo = 0;
    for (int i = 0; i < cuantos && !bytes_.vacios(); ++i) {
      auto const suyo = tipo(hondo);
      if (largo += suyo.size(); largo > firmaComoMucho) return;
      valor(suyo, hondo);
    }
  }

 private:
  static constexpr std::string_view simples = "bixtsogydnqu";
  /// A signature has 255 bytes at most (D-Bus Specification, "Valid Signatures"); nobody sends a longer one.
  static constexpr std::size_t firmaComoMucho = 250;

  /// A complete type that a signature has room for.
  std::string tipo(int hondo) {
    auto entero = cualquierTipo(hondo);
    return entero.size() > firmaComoMucho ? "i" : entero;
  }

  /// A simple type, or a container of them.
  std::string cualquierTipo(int hondo) {
    auto const cual = bytes_.uno();
    std::string const simple{simples[cual / 8 % simples.size()]};
    if (hondo > 8) return simple;
    if (cual % 8 == 0) return "v";
    if (cual % 8 == 1) return "a" + cualquierTipo(hondo + 1);
    if (cual % 8 == 2) return "(" + cualquierTipo(hondo + 1) + cualquierTipo(hondo + 1) + ")";
    if (cual % 8 == 3) return "a{" + simple + cualquierTipo(hondo + 1) + "}";
    return simple;
  }

  static std::size_t largoDelTipo(std::string_view firma) {
    if (firma.front() == 'a') return 1 + largoDelTipo(firma.substr(1));
    if (firma.front() != '(' && firma.front() != '{') return 1;
    std::size_t largo = 1;
    while (firma[largo] != ')' && firma[largo] != '}') largo += largoDelTipo(firma.substr(largo));
    return largo + 1;
  }

  void valor(std::string const& firma, int hondo) {
    switch (firma.front()) {
      case 'v': {
        auto const dentro = tipo(hondo + 1);
        return contenedor('v', dentro.c_str(), [&] { valor(dentro, hondo + 1); });
      }
      case 'a': {
        auto const elemento = firma.substr(1);
        auto const cuantos = bytes_.uno() % 4;
        return contenedor('a', elemento.c_str(), [&] {
          for (unsigned i = 0; i < cuantos; ++i) valor(elemento, hondo + 1);
        });
      }
      case '(':
      case '{':
        return contenedor(firma.front() == '(' ? DBUS_TYPE_STRUCT : DBUS_TYPE_DICT_ENTRY, nullptr,
                          [&] { miembros(firma, hondo); });
      default:
        return simple(firma.front());
    }
  }

  void miembros(std::string const& firma, int hondo) {
    for (std::size_t i = 1; i + 1 < firma.size();) {
      auto const largo = largoDelTipo(std::string_view{firma}.substr(i));
      valor(firma.substr(i, largo), hondo + 1);
      i += largo;
    }
  }

  template <class F>
  void contenedor(int clase, char const* firma, F const& llenar) {
    DBusMessageIter fuera = donde_;
    exigir(dbus_message_iter_open_container(&fuera, clase, firma, &donde_) != 0);
    llenar();
    exigir(dbus_message_iter_close_container(&fuera, &donde_) != 0);
    donde_ = fuera;
  }

  template <class T>
  void escribir(int clase, T valor) {
    exigir(dbus_message_iter_append_basic(&donde_, clase, &valor) != 0);
  }

  void simple(char clase) {
    auto const n = bytes_.entero();
    switch (clase) {
      case 'b':
        esperados.emplace_back(n % 2 != 0);
        return escribir<dbus_bool_t>(clase, n % 2 != 0 ? 1 : 0);
      case 'i':
        esperados.emplace_back(std::int64_t{static_cast<std::int32_t>(n)});
        return escribir(clase, static_cast<std::int32_t>(n));
      case 'u':
        esperados.emplace_back(std::int64_t{static_cast<std::uint32_t>(n)});
        return escribir(clase, static_cast<std::uint32_t>(n));
      case 'x':
        esperados.emplace_back(n);
        return escribir(clase, n);
      case 's':
        return texto(clase, std::string(static_cast<std::size_t>(n & 15), (n & 16) != 0 ? 'a' : 'z'));
      case 'o':
        return texto(clase, "/o" + std::to_string(n & 0xFFFF));
      case 'g':
        return texto(clase, (n & 1) != 0 ? "a{sv}" : "");
      case 't':
        return escribir(clase, static_cast<std::uint64_t>(n));
      case 'd':
        return escribir(clase, static_cast<double>(n));
      case 'n':
      case 'q':
        return escribir(clase, static_cast<std::int16_t>(n));
      default:
        return escribir(clase, static_cast<unsigned char>(n));
    }
  }

  void texto(int clase, std::string const& que) {
    esperados.emplace_back(que);
    escribir(clase, que.c_str());
  }

  Bytes& bytes_;
  DBusMessageIter donde_{};
};

using Mensaje = std::unique_ptr<DBusMessage, decltype(&dbus_message_unref)>;

void escritosSeLeen(std::string_view entrada) {
  Bytes bytes{entrada};
  Mensaje const mensaje{dbus_message_new(DBUS_MESSAGE_TYPE_SIGNAL), dbus_message_unref};
  Redactor redactor{mensaje.get(), bytes};
  redactor.valores(20, 0);
  exigir(datosDelMensaje(mensaje.get()) == redactor.esperados);
}

/// Raw bytes as they would come off the wire.
void deLaRedSeLeen(std::string_view entrada) {
  Mensaje const mensaje{dbus_message_demarshal(entrada.data(), static_cast<int>(entrada.size()), nullptr),
                        dbus_message_unref};
  if (mensaje) exigir(datosDelMensaje(mensaje.get()).size() <= entrada.size());
}

/// The numbers of the nodes by searching the text from its end.
void losNodosSonEsos(std::string_view texto) {
  std::vector<std::uint32_t> esperados;
  constexpr std::string_view principio = "<node name=\"W";
  for (auto i = texto.rfind(principio); i != std::string_view::npos;
       i = i == 0 ? std::string_view::npos : texto.rfind(principio, i - 1)) {
    auto cifras = texto.substr(i + principio.size());
    cifras = cifras.substr(0, cifras.find('"'));
    if (cifras.empty() || cifras.find_first_not_of("0123456789") != std::string_view::npos) continue;
    while (cifras.size() > 1 && cifras.front() == '0') cifras.remove_prefix(1);
    if (cifras.size() > 10 || std::stoull(std::string{cifras}) > UINT32_MAX) continue;
    esperados.push_back(static_cast<std::uint32_t>(std::stoull(std::string{cifras})));
  }
  std::ranges::sort(esperados);
  exigir(nodosNumerados(texto, "W") == esperados);
}

}  // namespace
}  // namespace zorve::fuzz

/// A D-Bus message gives, in their order, the values that were written into it, in whatever containers; raw
/// bytes and introspection texts are read without harm.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  std::string_view const bytes{reinterpret_cast<char const*>(datos), largo};
  zorve::fuzz::escritosSeLeen(bytes);
  zorve::fuzz::deLaRedSeLeen(bytes);
  zorve::fuzz::losNodosSonEsos(bytes);
  return 0;
}
