#pragma once

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/Modelo.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve::ctl {

/// Writes one JSON text on one line. Bytes that are no UTF-8 become U+FFFD; controls, DEL and what steers the
/// direction of text are escaped (\u009b), so that a terminal may show it; nothing becomes null; times are
/// seconds since 1970.
class EscritorJson {
 public:
  void clave(std::string_view nombre) { valor(nombre); }
  void valor(std::string_view uno) {
    auto const valido = conUtf8Valido(uno);
    escritor_.String(valido.data(), static_cast<rapidjson::SizeType>(valido.size()));
  }
  void valor(std::string const& uno) { valor(std::string_view{uno}); }
  void valor(bool uno) { escritor_.Bool(uno); }
  void valor(std::int64_t uno) { escritor_.Int64(uno); }
  void valor(std::int32_t uno) { escritor_.Int(uno); }
  void valor(Fecha una) { escritor_.Double(una.time_since_epoch().count()); }
  void valor(std::nullopt_t /*nada*/) { escritor_.Null(); }
  template <class T>
  void valor(std::optional<T> const& uno) {
    if (uno) {
      valor(*uno);
    } else {
      escritor_.Null();
    }
  }
  template <class T>
  void campo(std::string_view nombre, T const& uno) {
    clave(nombre);
    valor(uno);
  }

  template <class Cuerpo>
  void objeto(Cuerpo const& cuerpo) {
    escritor_.StartObject();
    cuerpo();
    escritor_.EndObject();
  }
  template <class Cuerpo>
  void lista(std::string_view nombre, Cuerpo const& cuerpo) {
    clave(nombre);
    escritor_.StartArray();
    cuerpo();
    escritor_.EndArray();
  }

  /// What was written, with a line feed.
  [[nodiscard]] std::string hecho() const;

 private:
  rapidjson::StringBuffer memoria_;
  rapidjson::Writer<rapidjson::StringBuffer> escritor_{memoria_};
};

/// An object with the error's source and message.
void agregar(EscritorJson& json, IndexError const& error);

}  // namespace zorve::ctl
