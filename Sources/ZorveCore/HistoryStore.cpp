#include "ZorveCore/HistoryStore.h"

#include <array>
#include <string_view>
#include <utility>

#include "ZorveCore/Lineas.h"
#include "ZorveCore/RegistroJson.h"

namespace zorve {

namespace {

constexpr std::size_t muestrasMaximas = 3;

std::unexpected<IndexError> fallo(std::string mensaje) {
  return std::unexpected{IndexError{IndexSource::history, std::move(mensaje)}};
}

struct RegistroCrudo {
  std::string_view display;
  Fecha fecha;
  std::string_view project;
  std::string_view sessionId;
};

/// Folds lines into entries. Real histories have runs of one session, so the latest entry is kept at hand.
class Pliegue {
 public:
  void anotar(Lineas::Linea const& linea);
  [[nodiscard]] HistoryResult terminar(std::string const& ruta);
  [[nodiscard]] std::int64_t lineas() const { return lineas_; }

 private:
  [[nodiscard]] std::expected<RegistroCrudo, std::string> decodificar(Lineas::Linea const& linea);
  void plegar(RegistroCrudo const& crudo);
  void contarIlegible(std::string_view causa);
  [[nodiscard]] HistoryEntry& entradaDe(RegistroCrudo const& crudo);

  RegistroJson registro_;
  HistoryResult resultado_;
  HistoryEntry* ultima_ = nullptr;
  std::string clave_;
  std::vector<std::string> muestras_;
  std::int64_t lineas_ = 0;
};

void Pliegue::anotar(Lineas::Linea const& linea) {
  ++lineas_;
  if (linea.enBlanco) return;
  auto const crudo = decodificar(linea);
  if (!crudo) return contarIlegible(crudo.error());
  if (crudo->sessionId.empty() || crudo->project.empty()) {
    return contarIlegible("empty sessionId or project");
  }
  plegar(*crudo);
}

std::expected<RegistroCrudo, std::string> Pliegue::decodificar(Lineas::Linea const& linea) {
  using Tipo = RegistroJson::Tipo;
  static constexpr std::array<RegistroJson::Campo, 4> campos{
      {{"display"}, {"timestamp", Tipo::numero}, {"project"}, {"sessionId"}}};
  if (linea.demasiadoLarga) {
    return std::unexpected{"longer than " + std::to_string(HistoryStore::largoMaximoDeLinea) + " bytes"};
  }
  std::array<RegistroJson::Valor, campos.size()> valores;
  if (auto const leido = registro_.leer(linea.bytes, campos, valores); !leido) {
    return std::unexpected{leido.error()};
  }
  return RegistroCrudo{.display = std::get<std::string_view>(valores[0]),
                       .fecha = Fecha{std::chrono::duration<double>{std::get<double>(valores[1]) / 1000.0}},
                       .project = std::get<std::string_view>(valores[2]),
                       .sessionId = std::get<std::string_view>(valores[3])};
}

HistoryEntry& Pliegue::entradaDe(RegistroCrudo const& crudo) {
  if (ultima_ != nullptr && ultima_->sessionId == crudo.sessionId) return *ultima_;
  clave_ = crudo.sessionId;
  auto const [lugar, nueva] = resultado_.entradas.try_emplace(clave_);
  ultima_ = &lugar->second;
  if (nueva) {
    *ultima_ = {.sessionId = clave_,
                .primerPrompt = std::string{crudo.display},
                .primerTimestamp = crudo.fecha,
                .ultimoTimestamp = crudo.fecha};
  }
  return *ultima_;
}

void Pliegue::plegar(RegistroCrudo const& crudo) {
  auto& entrada = entradaDe(crudo);
  ++entrada.conteo;
  if (crudo.fecha < entrada.primerTimestamp) {
    entrada.primerTimestamp = crudo.fecha;
    entrada.primerPrompt = crudo.display;
  }
  if (crudo.fecha >= entrada.ultimoTimestamp) {
    entrada.ultimoTimestamp = crudo.fecha;
    entrada.ultimoPrompt = crudo.display;
    entrada.cwd = crudo.project;
  }
}

void Pliegue::contarIlegible(std::string_view causa) {
  ++resultado_.lineasIlegibles;
  if (muestras_.size() == muestrasMaximas) return;
  muestras_.push_back("line " + std::to_string(lineas_) + ": ");
  muestras_.back() += causa;
}

HistoryResult Pliegue::terminar(std::string const& ruta) {
  if (resultado_.lineasIlegibles == 0) return std::move(resultado_);
  auto mensaje = std::to_string(resultado_.lineasIlegibles) + " of " + std::to_string(lineas_) +
                 " lines are unreadable in " + ruta + ". ";
  std::string_view separador;
  for (auto const& muestra : muestras_) {
    mensaje.append(std::exchange(separador, " \u00b7 ")).append(muestra);
  }
  resultado_.errores.push_back({IndexSource::history, std::move(mensaje)});
  return std::move(resultado_);
}

}  // namespace

std::expected<HistoryResult, IndexError> HistoryStore::cargar(Archivos& archivos, std::string const& ruta) {
  if (!existe(archivos, ruta)) {
    return fallo(ruta +
                 " does not exist. Without that file there is no reliable way to know the cwd of Claude Code "
                 "sessions.");
  }
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return fallo("Could not open " + ruta + ": " + archivo.error().descripcion);
  Lineas lineas{**archivo, largoMaximoDeLinea};
  Pliegue pliegue;
  Lineas::Linea linea;
  for (;;) {
    auto const hay = lineas.siguiente(linea);
    if (!hay) {
      return fallo("Failed to read " + ruta + " after line " + std::to_string(pliegue.lineas()) + ": " +
                   hay.error().descripcion);
    }
    if (!*hay) return pliegue.terminar(ruta);
    pliegue.anotar(linea);
  }
}

}  // namespace zorve
