#include "zorvectl/EscritorJson.h"

namespace zorve::ctl {

void agregar(EscritorJson& json, IndexError const& error) {
  json.objeto([&] {
    json.campo("fuente", textoCrudo(error.fuente));
    json.campo("mensaje", error.mensaje);
  });
}

}  // namespace zorve::ctl
