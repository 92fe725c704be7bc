#include "ZorvePlatform/Linux/PreferenciasLinux.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <fcntl.h>
#include <cerrno>
#include <filesystem>
#include <thread>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Linux/ObjetoJson.h"
#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"
#include "ZorvePlatform/Posix/ReemplazarArchivo.h"

namespace zorve {

namespace {

constexpr std::size_t tope = 1U << 20U;
constexpr char const* objetoVacio = "{}\n";

std::unexpected<IndexError> fallo(std::string const& mensaje) {
  return std::unexpected{IndexError{IndexSource::launcher, conUtf8Valido(mensaje)}};
}

std::unexpected<IndexError> noSeGuarda(std::string const& ruta, FalloDelSistema const& causa) {
  return fallo("Zorve could not save its settings in " + ruta + ": " + causa.descripcion +
               ". Make sure that you may write to that folder and that the disk has room, then try again.");
}

std::unexpected<IndexError> noSeLee(std::string const& ruta, FalloDelSistema const& causa) {
  return fallo("Zorve could not read its settings in " + ruta + ": " + causa.descripcion +
               ". Make the file readable or delete it; until then the defaults apply.");
}

std::unexpected<IndexError> danado(std::string const& ruta) {
  return fallo("Zorve cannot use its settings in " + ruta +
               ": the file is not a JSON object. Correct or delete it; until then the defaults apply.");
}

/// The text of the settings; of a missing file, that of an empty object.
std::expected<std::string, IndexError> textoDe(std::string const& archivo) {
  auto texto = leerArchivo(archivo, tope);
  if (!texto && texto.error().codigo == ENOENT) return objetoVacio;
  if (!texto) return noSeLee(archivo, texto.error());
  if (!esObjetoJson(*texto)) return danado(archivo);
  return *std::move(texto);
}

std::unexpected<IndexError> noCabe(std::string const& ruta) {
  return fallo("Zorve could not save its settings in " + ruta + ": the file would be longer than " +
               std::to_string(tope) + " bytes. Take out of it what is not Zorve's, then try again.");
}

std::unexpected<IndexError> estaTomado(std::string const& ruta, std::string const& cerrojo) {
  return fallo("Zorve could not save its settings in " + ruta + ": another program holds the lock " +
               cerrojo + ". Close it, then try again.");
}

/// Fails with EWOULDBLOCK when somebody else has the lock for all of `plazo`.
std::expected<Descriptor, FalloDelSistema> tomarCerrojo(std::string const& ruta,
                                                        std::chrono::milliseconds plazo) {
  constexpr std::chrono::milliseconds pausa{20};
  Descriptor cerrojo{::open(ruta.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600)};
  if (!cerrojo) return std::unexpected{FalloDelSistema::deErrno(errno)};
  auto const limite = std::chrono::steady_clock::now() + plazo;
  while (::flock(cerrojo.numero(), LOCK_EX | LOCK_NB) != 0) {
    auto const codigo = errno;
    bool const tomado = codigo == EWOULDBLOCK && std::chrono::steady_clock::now() < limite;
    if (codigo != EINTR && !tomado) return std::unexpected{FalloDelSistema::deErrno(codigo)};
    if (tomado) std::this_thread::sleep_for(pausa);
  }
  return cerrojo;
}

std::expected<void, FalloDelSistema> crearCarpeta(std::string const& carpeta) {
  auto const padre = std::filesystem::path{carpeta}.parent_path().string();
  if (::mkdir(carpeta.c_str(), 0700) == 0 || errno == EEXIST) return {};
  if (errno != ENOENT || padre == carpeta) return std::unexpected{FalloDelSistema::deErrno(errno)};
  if (auto arriba = crearCarpeta(padre); !arriba) return arriba;
  if (::mkdir(carpeta.c_str(), 0700) == 0 || errno == EEXIST) return {};
  return std::unexpected{FalloDelSistema::deErrno(errno)};
}

}  // namespace

PreferenciasLinux::PreferenciasLinux(std::string archivo, std::chrono::milliseconds plazo)
    : archivo_{std::move(archivo)}, plazo_{plazo} {}

std::string PreferenciasLinux::archivoPorDefecto(EntornoLinux const& entorno) {
  return unirRuta(entorno.configHome, "com.sarnol.zorve/preferences.json");
}

std::expected<std::optional<Preferencias::Valor>, IndexError> PreferenciasLinux::leer(
    std::string const& clave) const {
  auto const texto = textoDe(archivo_);
  if (!texto) return std::unexpected{texto.error()};
  return valorEnObjetoJson(*texto, clave);
}

std::expected<void, IndexError> PreferenciasLinux::escribir(std::string const& clave, Valor const& valor) {
  return cambiar(clave, valor);
}

std::expected<void, IndexError> PreferenciasLinux::quitar(std::string const& clave) {
  if (struct stat estado{}; ::lstat(archivo_.c_str(), &estado) != 0 && errno == ENOENT) return {};
  return cambiar(clave, std::nullopt);
}

std::expected<void, IndexError> PreferenciasLinux::cambiar(std::string const& clave,
                                                           std::optional<Valor> const& valor) {
  auto const carpeta = std::filesystem::path{archivo_}.parent_path().string();
  if (auto creada = crearCarpeta(carpeta); !creada) return noSeGuarda(archivo_, creada.error());
  auto const rutaDelCerrojo = unirRuta(carpeta, "preferences.lock");
  auto const cerrojo = tomarCerrojo(rutaDelCerrojo, plazo_);
  if (!cerrojo && cerrojo.error().codigo == EWOULDBLOCK) return estaTomado(archivo_, rutaDelCerrojo);
  if (!cerrojo) return noSeGuarda(archivo_, cerrojo.error());
  quitarRestos(archivo_);
  auto const texto = textoDe(archivo_);
  if (!texto) return std::unexpected{texto.error()};
  auto const nuevo = conValorEnObjetoJson(*texto, clave, valor, tope);
  if (nuevo.size() > tope) return noCabe(archivo_);
  if (auto escrito = reemplazarArchivo(archivo_, nuevo); !escrito)
    return noSeGuarda(archivo_, escrito.error());
  return {};
}

}  // namespace zorve
