#include <cstdint>
#include <string>

#include "Dobles/LecturaIngenua.h"
#include "Dobles/UnSoloArchivo.h"
#include "Exigir.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"

namespace zorve::fuzz {
namespace {

/// A file several windows long: the input, its first byte deciding how often each of its lines is repeated.
std::string archivoDe(std::string_view bytes) {
  if (bytes.empty()) return {};
  auto const veces = std::size_t{1} << (static_cast<unsigned char>(bytes.front()) % 16U);
  std::string archivo;
  for (auto resto = bytes.substr(1); !resto.empty() && archivo.size() < 900'000;) {
    auto const fin = resto.find('\n');
    auto const linea = resto.substr(0, fin == std::string_view::npos ? fin : fin + 1);
    for (std::size_t i = 0; i < veces && archivo.size() < 900'000; ++i) archivo += linea;
    resto.remove_prefix(linea.size());
  }
  return archivo;
}

}  // namespace
}  // namespace zorve::fuzz

/// Whatever a transcript holds, and whatever size was listed, reading little finds what reading all finds.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  using namespace zorve;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
  std::string_view const bytes{reinterpret_cast<char const*>(datos), largo};
  dobles::UnSoloArchivo archivo{fuzz::archivoDe(bytes)};
  auto const tamano = archivo.contenido.size();
  for (auto const listado : {tamano, tamano / 2, 2 * tamano}) {
    auto const hallada = TranscriptScanner::leerCabecera(archivo, "/x", static_cast<std::int64_t>(listado));
    dobles::LecturaIngenua ingenua;
    auto const esperada = ingenua.cabecera(archivo.contenido, listado);
    fuzz::exigir(hallada.has_value() && (ingenua.noSabe || *hallada == esperada));
  }
  return 0;
}
