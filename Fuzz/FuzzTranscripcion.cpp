#include <cstdint>
#include <cstdlib>
#include <string>

#include "Dobles/UnSoloArchivo.h"
#include "SegundaLectura.h"
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

/// Unicode white space, by its bytes.
std::string_view sinBlancos(std::string_view texto) {
  constexpr std::string_view blancos[] = {
      " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00A0", "\u1680",
      "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
      "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};
  for (bool cambia = true; cambia;) {
    cambia = false;
    for (auto const blanco : blancos) {
      if (texto.starts_with(blanco)) texto.remove_prefix(blanco.size()), cambia = true;
      if (texto.ends_with(blanco)) texto.remove_suffix(blanco.size()), cambia = true;
    }
  }
  return texto;
}

std::string const* textoEn(std::map<std::string, ValorLeido> const& leido, char const* clave) {
  auto const lugar = leido.find(clave);
  return lugar == leido.end() ? nullptr : std::get_if<std::string>(&lugar->second);
}

/// Titles and directories by another parser, every line of a block tried in its order. Lines that it cannot
/// tell of make it say so.
struct Ingenua {
  bool noSabe = false;

  TranscriptScanner::Cabecera bloque(std::string_view bytes) {
    TranscriptScanner::Cabecera hallada;
    while (!bytes.empty()) {
      auto const fin = std::min(bytes.find('\n'), bytes.size());
      linea(bytes.substr(0, fin), hallada);
      bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    }
    return hallada;
  }
  TranscriptScanner::Cabecera archivo(std::string_view bytes, std::size_t listado) {
    auto const ventana = static_cast<std::size_t>(TranscriptScanner::ventanaBytes);
    auto const inicio = listado > ventana ? listado - ventana : 0;
    auto hallada = bloque(bytes.substr(std::min(inicio, bytes.size())));
    if (inicio == 0 || (hallada.aiTitle && hallada.cwd)) return hallada;
    auto const cabeza = bloque(bytes.substr(0, ventana));
    if (!hallada.aiTitle) hallada.aiTitle = cabeza.aiTitle;
    if (!hallada.cwd) hallada.cwd = cabeza.cwd;
    return hallada;
  }

 private:
  void linea(std::string_view json, TranscriptScanner::Cabecera& hallada) {
    bool const conTitulo = json.contains("aiTitle");
    bool const conDirectorio = json.contains("\"cwd\"");
    if (!conTitulo && !conDirectorio) return;
    auto const segunda = leerOtraVez(json);
    noSabe = noSabe || segunda.noSabe;
    if (!segunda.leido) return;
    auto const* const tipo = textoEn(*segunda.leido, "type");
    auto const* const titulo = textoEn(*segunda.leido, "aiTitle");
    if (conTitulo && tipo != nullptr && titulo != nullptr && *tipo == "ai-title") hallada.aiTitle = *titulo;
    auto const* const cwd = textoEn(*segunda.leido, "cwd");
    if (hallada.cwd || !conDirectorio || cwd == nullptr) return;
    auto const recortado = sinBlancos(*cwd);
    if (recortado.starts_with('/')) hallada.cwd = std::string{recortado};
  }
};

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
    fuzz::Ingenua ingenua;
    auto const esperada = ingenua.archivo(archivo.contenido, listado);
    fuzz::exigir(hallada.has_value() && (ingenua.noSabe || *hallada == esperada));
  }
  return 0;
}
