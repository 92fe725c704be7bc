#include "zorvectl/EscritorJson.h"

#include "ZorveCore/Texto/PuntoOculto.h"

namespace zorve::ctl {

namespace {

constexpr std::int32_t suprimir = 0x7F;

std::string escapeDe(std::int32_t punto) {
  constexpr std::string_view cifras = "0123456789abcdef";
  std::string escape = "\\u";
  for (int desplazo = 12; desplazo >= 0; desplazo -= 4) {
    escape += cifras[static_cast<std::size_t>(punto >> desplazo) & 0xFU];
  }
  return escape;
}

}  // namespace

std::string EscritorJson::hecho() const {
  std::string_view texto{memoria_.GetString(), memoria_.GetSize()};
  std::string todo;
  todo.reserve(texto.size() + 1);
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    if (punto == suprimir || seOculta(punto)) {
      todo += escapeDe(punto);
    } else {
      todo += texto.substr(0, bytes);
    }
    texto.remove_prefix(bytes);
  }
  return todo + "\n";
}

void agregar(EscritorJson& json, IndexError const& error) {
  json.objeto([&] {
    json.campo("fuente", textoCrudo(error.fuente));
    json.campo("mensaje", error.mensaje);
  });
}

}  // namespace zorve::ctl
