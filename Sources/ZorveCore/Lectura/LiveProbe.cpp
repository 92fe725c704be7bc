#include "ZorveCore/Lectura/LiveProbe.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <expected>
#include <string_view>
#include <utility>

#include "ZorveCore/Lectura/RegistroJson.h"

namespace zorve {

namespace {

constexpr std::size_t paso = std::size_t{16} << 10U;

bool esRegistro(std::string_view nombre) {
  constexpr std::string_view extension{".json"};
  return nombre.size() > extension.size() && nombre.ends_with(extension);
}

LiveState estadoDe(RegistroJson::Valor const& status) {
  auto const* const texto = std::get_if<std::string_view>(&status);
  if (texto == nullptr) return LiveState::idle;
  auto const ocupada = *texto == "busy" || *texto == "shell" || *texto == "waiting";
  return ocupada ? LiveState::busy : LiveState::idle;
}

std::optional<std::string> textoDe(RegistroJson::Valor const& valor) {
  auto const* const texto = std::get_if<std::string_view>(&valor);
  if (texto == nullptr) return std::nullopt;
  return std::string{*texto};
}

/// One run over a folder; the buffer and the parser serve record after record.
class Sondeo {
 public:
  Sondeo(Archivos& archivos, VidaDeProcesos& procesos) : archivos_{archivos}, procesos_{procesos} {}

  [[nodiscard]] LiveProbeResult recorrer(std::string const& directorio);

 private:
  void anotar(std::string const& directorio, std::string const& nombre);
  void guardar(std::string const& nombre, ConMargen bytes);
  [[nodiscard]] std::expected<ConMargen, FalloDelSistema> leerEntero(std::string const& ruta);
  void avisar(std::string mensaje) {
    resultado_.errores.push_back({IndexSource::sessions, std::move(mensaje)});
  }

  Archivos& archivos_;
  VidaDeProcesos& procesos_;
  RegistroJson registro_;
  std::vector<char> bufer_;
  LiveProbeResult resultado_;
};

LiveProbeResult Sondeo::recorrer(std::string const& directorio) {
  if (!archivos_.existe(directorio)) return {};
  auto nombres = archivos_.listar(directorio);
  if (!nombres) {
    avisar("Could not list " + directorio + ": " + nombres.error().descripcion);
    return std::move(resultado_);
  }
  std::ranges::sort(*nombres);
  for (auto const& nombre : *nombres) {
    if (esRegistro(nombre)) anotar(directorio, nombre);
  }
  return std::move(resultado_);
}

void Sondeo::anotar(std::string const& directorio, std::string const& nombre) {
  auto const bytes = leerEntero(unirRuta(directorio, nombre));
  if (!bytes) return avisar("Could not read " + nombre + ": " + bytes.error().descripcion);
  guardar(nombre, *bytes);
}

std::expected<ConMargen, FalloDelSistema> Sondeo::leerEntero(std::string const& ruta) {
  auto const archivo = archivos_.abrir(ruta);
  if (!archivo) return std::unexpected{archivo.error()};
  for (std::size_t largo = 0;;) {
    if (largo > LiveProbe::registroMaximo) {
      return std::unexpected{
          FalloDelSistema{EFBIG, "larger than " + std::to_string(LiveProbe::registroMaximo) + " bytes"}};
    }
    bufer_.resize(std::max(bufer_.size(), largo + paso + RegistroJson::margen));
    auto const llegaron = (*archivo)->leer(static_cast<std::int64_t>(largo), {bufer_.data() + largo, paso});
    if (!llegaron) return std::unexpected{llegaron.error()};
    if (*llegaron == 0) return ConMargen{bufer_.data(), largo};
    largo += *llegaron;
  }
}

void Sondeo::guardar(std::string const& nombre, ConMargen bytes) {
  using Tipo = RegistroJson::Tipo;
  static constexpr std::array<RegistroJson::Campo, 5> campos{{{"pid", Tipo::entero32},
                                                              {"sessionId"},
                                                              {"cwd"},
                                                              {"status", Tipo::texto, false},
                                                              {"name", Tipo::texto, false}}};
  std::array<RegistroJson::Valor, campos.size()> valores;
  if (auto const leido = registro_.leer(bytes, campos, valores); !leido) {
    return avisar("Invalid JSON in " + nombre + ": " + leido.error());
  }
  auto const pid = std::get<std::int32_t>(valores[0]);
  if (pid < 1 || !procesos_.vive(pid)) return;
  resultado_.vivas.insert_or_assign(std::string{std::get<std::string_view>(valores[1])},
                                    LiveInfo{.pid = pid,
                                             .estado = estadoDe(valores[3]),
                                             .cwd = std::string{std::get<std::string_view>(valores[2])},
                                             .nombre = textoDe(valores[4])});
}

}  // namespace

std::string LiveProbe::directorioPorOmision(std::string const& home) {
  return unirRuta(unirRuta(home, ".claude"), "sessions");
}

LiveProbeResult LiveProbe::sondear(Archivos& archivos, VidaDeProcesos& procesos,
                                   std::string const& directorio) {
  return Sondeo{archivos, procesos}.recorrer(directorio);
}

}  // namespace zorve
