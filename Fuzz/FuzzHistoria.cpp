#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Dobles/SegundaLectura.h"
#include "Exigir.h"
#include "ZorveCore/Lectura/HistoryStore.h"

namespace zorve::fuzz {
namespace {

using namespace dobles;

/// One file in memory whose reads give at most `maximo` bytes.
class UnArchivo final : public Archivos {
 public:
  UnArchivo(std::string_view bytes, std::size_t maximo) : bytes_{bytes}, maximo_{maximo} {}

  std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(std::string const&) override {
    return std::make_unique<Abierto>(*this);
  }
  std::expected<Atributos, FalloDelSistema> atributos(std::string const&) override {
    return Atributos{.clase = ClaseDeArchivo::regular};
  }
  std::expected<std::vector<std::string>, FalloDelSistema> listar(std::string const&) override {
    return std::vector<std::string>{};
  }
  bool existe(std::string const&) override { return true; }

 private:
  class Abierto final : public ArchivoAbierto {
   public:
    explicit Abierto(UnArchivo const& archivo) : archivo_{archivo} {}
    std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde, std::span<char> destino) override {
      auto const lugar = std::min(static_cast<std::size_t>(desde), archivo_.bytes_.size());
      return archivo_.bytes_.copy(destino.data(), std::min(destino.size(), archivo_.maximo_), lugar);
    }
    std::expected<std::int64_t, FalloDelSistema> tamano() override {
      return static_cast<std::int64_t>(archivo_.bytes_.size());
    }

   private:
    UnArchivo const& archivo_;
  };

  std::string_view bytes_;
  std::size_t maximo_;
};

struct Cuenta {
  std::int64_t legibles = 0;
  std::int64_t ilegibles = 0;
  bool noSabe = false;
};

bool esTextoLleno(std::map<std::string, ValorLeido> const& leido, char const* clave) {
  auto const lugar = leido.find(clave);
  if (lugar == leido.end()) return false;
  auto const* const texto = std::get_if<std::string>(&lugar->second);
  return texto != nullptr && !texto->empty();
}

bool esLegible(std::map<std::string, ValorLeido> const& leido) {
  auto const display = leido.find("display");
  auto const fecha = leido.find("timestamp");
  if (display == leido.end() || fecha == leido.end()) return false;
  auto const esNumero =
      std::holds_alternative<std::int64_t>(fecha->second) || std::holds_alternative<double>(fecha->second);
  return std::holds_alternative<std::string>(display->second) && esNumero && esTextoLleno(leido, "project") &&
         esTextoLleno(leido, "sessionId");
}

void contarLinea(std::string_view linea, Cuenta& cuenta) {
  if (linea.find_first_not_of(" \t\r\n") == std::string_view::npos) return;
  auto const segunda = leerOtraVez(linea);
  cuenta.noSabe = cuenta.noSabe || segunda.noSabe;
  ++(segunda.leido && esLegible(*segunda.leido) ? cuenta.legibles : cuenta.ilegibles);
}

Cuenta contar(std::string_view bytes) {
  Cuenta cuenta;
  while (!bytes.empty()) {
    auto const salto = std::min(bytes.find('\n'), bytes.size());
    contarLinea(bytes.substr(0, salto), cuenta);
    bytes.remove_prefix(std::min(salto + 1, bytes.size()));
  }
  return cuenta;
}

void exigirEntrada(std::string const& clave, HistoryEntry const& entrada) {
  exigir(clave == entrada.sessionId && !clave.empty() && !entrada.cwd.empty());
  exigir(entrada.conteo >= 1 && entrada.primerTimestamp <= entrada.ultimoTimestamp);
}

void probar(std::string_view bytes) {
  UnArchivo entero{bytes, bytes.size() + 1};
  UnArchivo aTrozos{bytes, 3};
  auto const resultado = HistoryStore::cargar(entero, "/h");
  exigir(resultado.has_value());
  exigir(resultado == HistoryStore::cargar(aTrozos, "/h"));
  exigir(resultado->errores.size() == (resultado->lineasIlegibles > 0 ? 1U : 0U));
  std::int64_t legibles = 0;
  for (auto const& [clave, entrada] : resultado->entradas) {
    exigirEntrada(clave, entrada);
    legibles += entrada.conteo;
  }
  auto const cuenta = contar(bytes);
  if (cuenta.noSabe) return;
  exigir(legibles == cuenta.legibles && resultado->lineasIlegibles == cuenta.ilegibles);
}

}  // namespace
}  // namespace zorve::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
