#include "ZorveCore/Lectura/HistoryStore.h"

#include <array>
#include <string_view>
#include <utility>

#include "ZorveCore/Lectura/Lineas.h"
#include "ZorveCore/Lectura/RegistroJson.h"

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
  explicit Pliegue(HistoryStore::Encargo const& encargo) : interesa_{encargo.interesa} {}

  void anotar(Lineas::Linea const& linea);
  [[nodiscard]] HistoryResult terminar(std::string const& ruta);
  [[nodiscard]] std::int64_t lineas() const { return lineas_; }

 private:
  [[nodiscard]] std::expected<RegistroCrudo, std::string> decodificar(Lineas::Linea const& linea);
  void plegar(RegistroCrudo const& crudo);
  void contarIlegible(std::string_view causa);
  /// Nothing for a session that is not wanted.
  [[nodiscard]] HistoryEntry* entradaDe(RegistroCrudo const& crudo);

  std::function<bool(std::string const&)> const& interesa_;
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

HistoryEntry* Pliegue::entradaDe(RegistroCrudo const& crudo) {
  if (ultima_ != nullptr && ultima_->sessionId == crudo.sessionId) return ultima_;
  clave_ = crudo.sessionId;
  if (interesa_ && !interesa_(clave_)) return nullptr;
  auto const [lugar, nueva] = resultado_.entradas.try_emplace(clave_);
  ultima_ = &lugar->second;
  if (nueva) {
    *ultima_ = {.sessionId = clave_,
                .primerPrompt = std::string{crudo.display},
                .primerTimestamp = crudo.fecha,
                .ultimoTimestamp = crudo.fecha};
  }
  return ultima_;
}

void Pliegue::plegar(RegistroCrudo const& crudo) {
  auto* const propia = entradaDe(crudo);
  if (propia == nullptr) return;
  auto& entrada = *propia;
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

/// An open file of which no more is read than an order allows: what lies behind is as if it were not there.
class ArchivoAcotado final : public ArchivoAbierto {
 public:
  ArchivoAcotado(ArchivoAbierto& archivo, HistoryStore::Encargo const& encargo)
      : archivo_{archivo}, encargo_{encargo}, limite_{encargo.ahora() + encargo.plazo} {}

  [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                 std::span<char> destino) override;
  [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override { return archivo_.tamano(); }
  /// Why reading was cut short; empty when it was not.
  [[nodiscard]] std::string const& causa() const { return causa_; }

 private:
  ArchivoAbierto& archivo_;
  HistoryStore::Encargo const& encargo_;
  HistoryStore::Encargo::Reloj::time_point limite_;
  std::string causa_;
};

std::expected<std::size_t, FalloDelSistema> ArchivoAcotado::leer(std::int64_t desde,
                                                                 std::span<char> destino) {
  auto const leidos = archivo_.leer(desde, destino);
  if (!leidos || *leidos == 0) return leidos;
  if (desde + static_cast<std::int64_t>(*leidos) > encargo_.bytes) {
    causa_ = "it is longer than " + std::to_string(encargo_.bytes) + " bytes";
  } else if (encargo_.ahora() > limite_) {
    causa_ = "reading it takes longer than " + std::to_string(encargo_.plazo.count()) + " s";
  }
  return causa_.empty() ? leidos : 0;
}

HistoryResult cortado(HistoryResult resultado, std::string const& ruta, std::int64_t lineas,
                      std::string const& causa) {
  resultado.errores.push_back(
      {IndexSource::history, "Stopped reading " + ruta + " after line " + std::to_string(lineas) + ": " +
                                 causa +
                                 ". What follows there is missing from the list; shorten that file."});
  return resultado;
}

}  // namespace

std::expected<HistoryResult, IndexError> HistoryStore::cargar(Archivos& archivos, std::string const& ruta,
                                                              Encargo const& encargo) {
  if (!archivos.existe(ruta)) {
    return fallo(ruta +
                 " does not exist. Without that file there is no reliable way to know the cwd of Claude Code "
                 "sessions.");
  }
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return fallo("Could not open " + ruta + ": " + archivo.error().descripcion);
  ArchivoAcotado acotado{**archivo, encargo};
  Lineas lineas{acotado, largoMaximoDeLinea};
  Pliegue pliegue{encargo};
  Lineas::Linea linea;
  for (;;) {
    auto const hay = lineas.siguiente(linea);
    if (!hay) {
      return fallo("Failed to read " + ruta + " after line " + std::to_string(pliegue.lineas()) + ": " +
                   hay.error().descripcion);
    }
    if (auto const& causa = acotado.causa(); !causa.empty()) {
      return cortado(pliegue.terminar(ruta), ruta, pliegue.lineas(), causa);
    }
    if (!*hay) return pliegue.terminar(ruta);
    pliegue.anotar(linea);
  }
}

}  // namespace zorve
