#include <cstdint>
#include <string>
#include <utility>

#include "Dobles/SegundaLectura.h"
#include "Dobles/UnSoloArchivo.h"
#include "Exigir.h"
#include "ZorveCore/Lectura/LiveProbe.h"

namespace zorve::fuzz {
namespace {

using namespace dobles;

/// One record in a folder of its own.
class UnRegistro final : public Archivos {
 public:
  explicit UnRegistro(std::string_view bytes) : archivo_{std::string{bytes}} {}

  std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(std::string const& ruta) override {
    return archivo_.abrir(ruta);
  }
  std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override {
    return archivo_.atributos(ruta);
  }
  std::expected<std::vector<std::string>, FalloDelSistema> listar(std::string const&) override {
    return std::vector<std::string>{"1.json"};
  }
  bool existe(std::string const&) override { return true; }

 private:
  dobles::UnSoloArchivo archivo_;
};

/// Odd processes live.
class Impares final : public VidaDeProcesos {
 public:
  bool vive(std::int32_t pid) override { return pid % 2 != 0; }
};

using Leido = std::map<std::string, ValorLeido>;

template <class T>
T const* valorEn(Leido const& leido, char const* clave) {
  auto const lugar = leido.find(clave);
  return lugar == leido.end() ? nullptr : std::get_if<T>(&lugar->second);
}

bool esTextoOFalta(Leido const& leido, char const* clave) {
  return !leido.contains(clave) || valorEn<Nulo>(leido, clave) != nullptr ||
         valorEn<std::string>(leido, clave) != nullptr;
}

bool esRegistro(Leido const& leido) {
  auto const* const pid = valorEn<std::int64_t>(leido, "pid");
  return pid != nullptr && std::in_range<std::int32_t>(*pid) &&
         valorEn<std::string>(leido, "sessionId") != nullptr &&
         valorEn<std::string>(leido, "cwd") != nullptr && esTextoOFalta(leido, "status") &&
         esTextoOFalta(leido, "name");
}

LiveProbeResult esperado(Leido const& leido) {
  auto const pid = *valorEn<std::int64_t>(leido, "pid");
  if (pid < 1 || pid % 2 == 0) return {};
  auto const* const status = valorEn<std::string>(leido, "status");
  auto const* const nombre = valorEn<std::string>(leido, "name");
  bool const ocupada = status != nullptr && (*status == "busy" || *status == "shell" || *status == "waiting");
  LiveProbeResult resultado;
  resultado.vivas[*valorEn<std::string>(leido, "sessionId")] = {
      .pid = static_cast<std::int32_t>(pid),
      .estado = ocupada ? LiveState::busy : LiveState::idle,
      .cwd = *valorEn<std::string>(leido, "cwd"),
      .nombre = nombre == nullptr ? std::nullopt : std::optional{*nombre}};
  return resultado;
}

void probar(std::string_view bytes) {
  UnRegistro archivos{bytes};
  Impares procesos;
  auto const resultado = LiveProbe::sondear(archivos, procesos, "/s");
  auto const segunda = leerOtraVez(bytes);
  if (segunda.noSabe) return;
  if (segunda.leido && esRegistro(*segunda.leido)) return exigir(resultado == esperado(*segunda.leido));
  exigir(resultado.vivas.empty() && resultado.errores.size() == 1);
  exigir(resultado.errores[0].mensaje.starts_with("Invalid JSON in 1.json: "));
}

}  // namespace
}  // namespace zorve::fuzz

/// A live record gives what another parser reads in it, or one notice.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
