#include "ZorveTerminal/ArchivoDePaso.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkostemp
#include <unistd.h>

#include <fcntl.h>

#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve {

ArchivoDePaso::ArchivoDePaso(std::string_view texto) {
  char const* const carpeta = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe): one thread
  std::string ruta = carpeta != nullptr && carpeta[0] == '/' ? carpeta : "/tmp";
  ruta += "/zorve-XXXXXX";
  Descriptor const archivo{::mkostemp(ruta.data(), O_CLOEXEC)};
  if (!archivo) return;
  ruta_ = ruta;
  auto const escritos = ::write(archivo.numero(), texto.data(), texto.size());
  if (escritos == static_cast<ssize_t>(texto.size())) return;
  ::unlink(ruta_.c_str());
  ruta_.clear();
}

ArchivoDePaso::~ArchivoDePaso() {
  if (!ruta_.empty()) ::unlink(ruta_.c_str());
}

}  // namespace zorve
