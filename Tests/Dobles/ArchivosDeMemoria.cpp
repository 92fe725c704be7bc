#include "Dobles/ArchivosDeMemoria.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <utility>

namespace zorve::dobles {

namespace {

constexpr int enlacesMaximos = 40;

std::unexpected<FalloDelSistema> fallo(int codigo) {
  return std::unexpected{FalloDelSistema::deErrno(codigo)};
}

std::deque<std::string> componentes(std::string_view ruta) {
  std::deque<std::string> partes;
  while (!ruta.empty()) {
    auto const barra = std::min(ruta.find('/'), ruta.size());
    if (barra > 0) partes.emplace_back(ruta.substr(0, barra));
    ruta.remove_prefix(std::min(barra + 1, ruta.size()));
  }
  return partes;
}

std::string padreDe(std::string const& ruta) { return ruta.substr(0, ruta.rfind('/')); }

}  // namespace

struct ArchivosDeMemoria::Nodo {
  ClaseDeArchivo clase = ClaseDeArchivo::otra;
  std::string contenido;
  std::int64_t generados = 0;
  Generador generador;
  std::string destino;
  Fecha mtime{};
  bool oculto = false;

  [[nodiscard]] std::int64_t tamano() const {
    if (clase == ClaseDeArchivo::enlace) return static_cast<std::int64_t>(destino.size());
    return generador ? generados : static_cast<std::int64_t>(contenido.size());
  }
};

class ArchivosDeMemoria::Abierto final : public ArchivoAbierto {
 public:
  Abierto(ArchivosDeMemoria& sistema, std::string ruta, PunteroANodo nodo)
      : sistema_{sistema}, ruta_{std::move(ruta)}, nodo_{std::move(nodo)} {}
  [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                 std::span<char> destino) override {
    return sistema_.leer(ruta_, *nodo_, desde, destino);
  }
  [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
    return sistema_.tamanoDe(ruta_, *nodo_);
  }

 private:
  ArchivosDeMemoria& sistema_;
  std::string ruta_;
  PunteroANodo nodo_;
};

ArchivosDeMemoria::ArchivosDeMemoria() = default;
ArchivosDeMemoria::~ArchivosDeMemoria() = default;

ArchivosDeMemoria::Nodo& ArchivosDeMemoria::poner(std::string const& ruta, ClaseDeArchivo clase) {
  std::string hasta;
  auto const partes = componentes(ruta);
  for (auto const& parte : partes) {
    hasta += '/' + parte;
    auto& nodo = nodos_[hasta];
    if (!nodo) nodo = std::make_shared<Nodo>(Nodo{.clase = ClaseDeArchivo::carpeta});
  }
  auto& nodo = nodos_[hasta];
  nodo->clase = clase;
  return *nodo;
}

void ArchivosDeMemoria::escribir(std::string const& ruta, std::string_view contenido, Fecha mtime) {
  std::scoped_lock const cerrojo{mutex_};
  auto& nodo = poner(ruta, ClaseDeArchivo::regular);
  nodo.contenido = contenido;
  nodo.generador = nullptr;
  nodo.mtime = mtime;
}

void ArchivosDeMemoria::generar(std::string const& ruta, std::int64_t tamano, Generador bytes) {
  std::scoped_lock const cerrojo{mutex_};
  auto& nodo = poner(ruta, ClaseDeArchivo::regular);
  nodo.generados = tamano;
  nodo.generador = std::move(bytes);
}

void ArchivosDeMemoria::carpeta(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  poner(ruta, ClaseDeArchivo::carpeta);
}

void ArchivosDeMemoria::enlazar(std::string const& ruta, std::string const& destino) {
  std::scoped_lock const cerrojo{mutex_};
  poner(ruta, ClaseDeArchivo::enlace).destino = destino;
}

void ArchivosDeMemoria::especial(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  poner(ruta, ClaseDeArchivo::otra);
}

void ArchivosDeMemoria::quitar(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  nodos_.erase(ruta);
}

void ArchivosDeMemoria::fallarAlAbrir(std::string const& ruta, int codigo) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].abrir = codigo;
}

void ArchivosDeMemoria::ocultar(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  nodos_.at(ruta)->oculto = true;
}

void ArchivosDeMemoria::fallarAtributos(std::string const& ruta, int codigo) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].atributos = codigo;
}

void ArchivosDeMemoria::fallarAlListar(std::string const& ruta, int codigo) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].listar = codigo;
}

void ArchivosDeMemoria::fallarTamano(std::string const& ruta, int codigo) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].tamano = codigo;
}

void ArchivosDeMemoria::fallarLectura(std::string const& ruta, std::size_t cual, int codigo) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].cualLectura = cual;
  fallos_[ruta].lectura = codigo;
}

void ArchivosDeMemoria::lecturasDeHasta(std::size_t bytes) {
  std::scoped_lock const cerrojo{mutex_};
  maximoPorLectura_ = bytes;
}

void ArchivosDeMemoria::antesDeLeer(std::string const& ruta, std::function<void(std::size_t)> hacer) {
  std::scoped_lock const cerrojo{mutex_};
  fallos_[ruta].antesDeLeer = std::move(hacer);
}

std::vector<std::string> ArchivosDeMemoria::abiertos() const {
  std::scoped_lock const cerrojo{mutex_};
  return abiertos_;
}

std::vector<ArchivosDeMemoria::Lectura> ArchivosDeMemoria::lecturas() const {
  std::scoped_lock const cerrojo{mutex_};
  return lecturas_;
}

std::expected<std::string, int> ArchivosDeMemoria::resolver(std::string const& ruta,
                                                            bool seguirElUltimo) const {
  if (ruta.empty()) return std::unexpected{ENOENT};
  auto partes = componentes(ruta);
  std::string hasta;
  for (int saltos = 0; !partes.empty();) {
    auto const parte = std::exchange(partes.front(), {});
    partes.pop_front();
    auto candidata = hasta;
    candidata.append("/").append(parte);
    auto const nodo = nodos_.find(candidata);
    if (nodo == nodos_.end()) return std::unexpected{ENOENT};
    auto const clase = nodo->second->clase;
    if (clase == ClaseDeArchivo::enlace && (seguirElUltimo || !partes.empty())) {
      if (++saltos > enlacesMaximos) return std::unexpected{ELOOP};
      auto const destino = componentes(nodo->second->destino);
      partes.insert(partes.begin(), destino.begin(), destino.end());
      if (nodo->second->destino.starts_with('/')) hasta.clear();
      continue;
    }
    if (clase != ClaseDeArchivo::carpeta && !partes.empty()) return std::unexpected{ENOTDIR};
    hasta = nodo->first;
  }
  return hasta;
}

std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> ArchivosDeMemoria::abrir(
    std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  abiertos_.push_back(ruta);
  if (auto const codigo = fallos_[ruta].abrir) return fallo(codigo);
  auto const resuelta = resolver(ruta, true);
  if (!resuelta) return fallo(resuelta.error());
  if (resuelta->empty()) return fallo(EISDIR);
  auto const& nodo = nodos_.at(*resuelta);
  if (nodo->clase == ClaseDeArchivo::carpeta) return fallo(EISDIR);
  if (nodo->clase != ClaseDeArchivo::regular) {
    return std::unexpected{FalloDelSistema{EINVAL, "Not a regular file"}};
  }
  return std::make_unique<Abierto>(*this, ruta, nodo);
}

std::expected<Atributos, FalloDelSistema> ArchivosDeMemoria::atributos(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  if (auto const codigo = fallos_[ruta].atributos) return fallo(codigo);
  auto const resuelta = resolver(ruta, false);
  if (!resuelta) return fallo(resuelta.error());
  if (resuelta->empty()) return Atributos{.clase = ClaseDeArchivo::carpeta};
  auto const& nodo = *nodos_.at(*resuelta);
  return Atributos{nodo.clase, nodo.tamano(), nodo.mtime, nodo.oculto};
}

std::expected<std::vector<std::string>, FalloDelSistema> ArchivosDeMemoria::listar(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  if (auto const codigo = fallos_[ruta].listar) return fallo(codigo);
  auto const resuelta = resolver(ruta, true);
  if (!resuelta) return fallo(resuelta.error());
  if (!resuelta->empty() && nodos_.at(*resuelta)->clase != ClaseDeArchivo::carpeta) return fallo(ENOTDIR);
  std::vector<std::string> nombres;
  for (auto const& [entrada, nodo] : nodos_) {
    if (padreDe(entrada) == *resuelta) nombres.push_back(entrada.substr(resuelta->size() + 1));
  }
  std::ranges::reverse(nombres);
  return nombres;
}

bool ArchivosDeMemoria::existe(std::string const& ruta) {
  std::scoped_lock const cerrojo{mutex_};
  return fallos_[ruta].atributos == 0 && resolver(ruta, true).has_value();
}

std::expected<std::size_t, FalloDelSistema> ArchivosDeMemoria::leer(std::string const& ruta, Nodo const& nodo,
                                                                    std::int64_t desde,
                                                                    std::span<char> destino) {
  std::unique_lock cerrojo{mutex_};
  auto& propios = fallos_[ruta];
  auto const cual = ++propios.lecturasHechas;
  lecturas_.push_back({ruta, desde, destino.size()});
  if (auto const hacer = propios.antesDeLeer) {
    cerrojo.unlock();
    hacer(cual);
    cerrojo.lock();
  }
  if (propios.lectura != 0 && cual >= propios.cualLectura) return fallo(propios.lectura);
  auto const resto = static_cast<std::size_t>(std::max<std::int64_t>(nodo.tamano() - desde, 0));
  auto const cuantos = std::min({resto, destino.size(), maximoPorLectura_});
  if (nodo.generador) {
    nodo.generador(desde, destino.first(cuantos));
  } else if (cuantos > 0) {
    nodo.contenido.copy(destino.data(), cuantos, static_cast<std::size_t>(desde));
  }
  return cuantos;
}

std::expected<std::int64_t, FalloDelSistema> ArchivosDeMemoria::tamanoDe(std::string const& ruta,
                                                                         Nodo const& nodo) {
  std::scoped_lock const cerrojo{mutex_};
  if (auto const codigo = fallos_[ruta].tamano) return fallo(codigo);
  return nodo.tamano();
}

}  // namespace zorve::dobles
