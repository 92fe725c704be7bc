#include "ZorveTerminal/ArchivoDePaso.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkostemp
#include <unistd.h>

#include <fcntl.h>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

ArchivoDePaso::ArchivoDePaso(std::string_view texto) {
  auto const carpeta = variable("XDG_RUNTIME_DIR");
  auto ruta = (carpeta.starts_with('/') ? carpeta : "/tmp") + "/zorve-XXXXXX";
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
