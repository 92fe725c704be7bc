#include "zorvectl/ListaJson.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>

#include "ZorveCore/Texto.h"

namespace zorve::ctl {

namespace {

class Escritor {
 public:
  void clave(std::string_view nombre) { texto(nombre); }
  void texto(std::string_view valor) {
    auto const valido = conUtf8Valido(valor);
    escritor_.String(valido.data(), static_cast<rapidjson::SizeType>(valido.size()));
  }
  void valor(std::string const& uno) { texto(uno); }
  void valor(std::int64_t uno) { escritor_.Int64(uno); }
  void valor(Fecha una) { escritor_.Double(una.time_since_epoch().count()); }
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
  void crudo(std::string_view nombre, std::string_view uno) {
    clave(nombre);
    texto(uno);
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

  [[nodiscard]] std::string hecho() const { return {memoria_.GetString(), memoria_.GetSize()}; }

 private:
  rapidjson::StringBuffer memoria_;
  rapidjson::Writer<rapidjson::StringBuffer> escritor_{memoria_};
};

void agregar(Escritor& json, Session const& sesion) {
  json.objeto([&] {
    json.campo("id", sesion.id());
    json.campo("titulo", sesion.titulo);
    json.crudo("tituloOrigen", textoCrudo(sesion.tituloOrigen));
    json.campo("cwd", sesion.cwd);
    json.crudo("kind", textoCrudo(sesion.kind));
    json.crudo("liveState", textoCrudo(sesion.liveState));
    json.campo("ultimaActividad", sesion.ultimaActividad);
    json.campo("conteoPrompts", sesion.conteoPrompts);
    json.campo("ultimoPrompt", sesion.ultimoPrompt);
    json.campo("sessionId", sesion.sessionId);
    json.campo("pid", sesion.pid);
  });
}

void agregar(Escritor& json, IndexError const& error) {
  json.objeto([&] {
    json.crudo("fuente", textoCrudo(error.fuente));
    json.campo("mensaje", error.mensaje);
  });
}

}  // namespace

std::string listaJson(std::span<Session const* const> sesiones, std::span<IndexError const> errores) {
  Escritor json;
  json.objeto([&] {
    json.lista("sesiones", [&] {
      for (auto const* sesion : sesiones) agregar(json, *sesion);
    });
    json.lista("errores", [&] {
      for (auto const& error : errores) agregar(json, error);
    });
  });
  return json.hecho() + "\n";
}

}  // namespace zorve::ctl
