#include "ZorvePlatform/Linux/Montajes.h"

#include <algorithm>
#include <array>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

/// Their data are in this machine's memory or on its disks.
constexpr std::array<std::string_view, 29> tiposLocales{
    "apfs",  "aufs",    "bcachefs", "btrfs",    "cramfs",  "devtmpfs", "ecryptfs", "erofs", "exfat",  "ext2",
    "ext3",  "ext4",    "f2fs",     "hfsplus",  "iso9660", "jfs",      "minix",    "msdos", "nilfs2", "ntfs",
    "ntfs3", "overlay", "ramfs",    "reiserfs", "rootfs",  "squashfs", "tmpfs",    "vfat",  "xfs"};

bool esTipoLocal(std::string_view tipo) {
  return tipo == "zfs" || tipo == "udf" || std::ranges::find(tiposLocales, tipo) != tiposLocales.end();
}

bool esOctal(char c) { return c >= '0' && c <= '7'; }

/// Blanks and backslashes are written as three octal digits behind a backslash.
std::string sinEscapes(std::string_view texto) {
  std::string limpio;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    bool const escape = texto[i] == '\\' && i + 3 < texto.size() && esOctal(texto[i + 1]) &&
                        esOctal(texto[i + 2]) && esOctal(texto[i + 3]);
    if (!escape) {
      limpio += texto[i];
      continue;
    }
    limpio += static_cast<char>((texto[i + 1] - '0') * 64 + (texto[i + 2] - '0') * 8 + (texto[i + 3] - '0'));
    i += 3;
  }
  return limpio;
}

/// Whether `ruta` is `carpeta` or lies below it.
bool estaBajo(std::string_view ruta, std::string_view carpeta) {
  if (carpeta == "/") return true;
  return ruta.starts_with(carpeta) && (ruta.size() == carpeta.size() || ruta[carpeta.size()] == '/');
}

}  // namespace

Montajes::Montajes(std::string_view mountinfo) {
  constexpr std::size_t campoDelLugar = 4;
  while (!mountinfo.empty()) {
    auto const campos = palabras(sacarLinea(mountinfo));
    auto const raya = std::ranges::find(campos, "-");
    if (campos.size() <= campoDelLugar || raya == campos.end() || raya + 1 == campos.end()) continue;
    todos_.push_back({sinEscapes(campos[campoDelLugar]), esTipoLocal(*(raya + 1))});
  }
}

bool Montajes::esLocal(std::string_view ruta) const {
  Montaje const* suyo = nullptr;
  for (auto const& uno : todos_) {
    // What was mounted last at a place hides what was there.
    if (estaBajo(ruta, uno.donde) && (!suyo || uno.donde.size() >= suyo->donde.size())) suyo = &uno;
  }
  return suyo != nullptr && suyo->local;
}

}  // namespace zorve
