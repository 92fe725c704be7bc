#include "Home.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace zorve::medir {

namespace fs = std::filesystem;

namespace {

using Azar = std::mt19937_64;

constexpr std::size_t proyectos = 40;
constexpr std::size_t zonaDelTitulo = 40'960;
/// Bytes of a line beside its message.
constexpr std::size_t restoDeLinea = 420;
/// Changes with what the homes hold, so that older ones are made anew.
constexpr std::string_view version = "5\n";
/// With it the smallest of 2,000 files of 1.1 GB has a few KiB and the largest some 20 MiB.
constexpr double dispersion = 1.4;
constexpr double mayor = 48.0 * 1024 * 1024;
constexpr double menor = 3.0 * 1024;
constexpr std::int64_t principio = 1'735'000'000'000;

constexpr std::array<std::string_view, 48> vocabulario{
    "the",       "of",        "window",   "return",     "const",   "auto",     "session", "file",
    "\\n",       "  ",        "if (x)",   "{ }",        "título",  "setTitle", "iTerm",   "multiThread",
    "\\\"a\\\"", "pwd",       "cwd",      "int main()", "std::",   "while",    "list",    "refactor",
    "please",    "the tests", "run",      "error:",     "line 42", "src/main", "README",  "[x]",
    "\\t",       "año",       "—",        "json",       "object",  "string",   "number",  "true",
    "0x7f",      "npm test",  "git diff", "commit",     "branch",  "merge",    "later",   "done"};

double normal(Azar& azar) {
  auto const uno = (static_cast<double>(azar() >> 11U) + 1.0) * 0x1p-53;
  auto const dos = static_cast<double>(azar() >> 11U) * 0x1p-53;
  return std::sqrt(-2.0 * std::log(uno)) * std::cos(6.283185307179586 * dos);
}

std::string uuid(std::size_t n) {
  std::array<char, 37> texto{};
  auto const mezcla = (n + 1) * 0x9E3779B97F4A7C15ULL;
  (void)std::snprintf(texto.data(), texto.size(), "%08x-%04x-4%03x-8%03x-%012zx",
                      static_cast<unsigned>(mezcla >> 32U), static_cast<unsigned>(mezcla >> 16U) & 0xffffU,
                      static_cast<unsigned>(mezcla) & 0xfffU, static_cast<unsigned>(mezcla >> 8U) & 0xfffU,
                      n);
  return texto.data();
}

/// Prose and code as it stands within a JSON string, any length of it.
class Prosa {
 public:
  explicit Prosa(Azar& azar) {
    while (texto_.size() < (4U << 20U)) {
      texto_ += vocabulario.at(azar() % vocabulario.size());
      texto_ += ' ';
    }
  }
  [[nodiscard]] std::string_view trozo(Azar& azar, std::size_t largo) const {
    largo = std::min(largo, texto_.size() / 2);
    auto const desde = texto_.find(' ', azar() % (texto_.size() / 2)) + 1;
    auto const hasta = texto_.rfind(' ', desde + largo);
    return std::string_view{texto_}.substr(desde, hasta <= desde ? 0 : hasta - desde);
  }

 private:
  std::string texto_;
};

class Escritor {
 public:
  Escritor(Home const& home, std::string raiz)
      : home_{home}, raiz_{std::move(raiz)}, azar_{42}, prosa_{azar_} {}

  void transcripciones() {
    for (std::size_t p = 0; p < proyectos; ++p) fs::create_directories(carpeta(p));
    auto const largos = this->largos();
    for (std::size_t n = 0; n < largos.size(); ++n) {
      transcripcion(n, largos[n]);
      guardar(carpeta(n % proyectos) + "/" + uuid(n) + ".jsonl");
    }
  }

  void historia() {
    auto const sesiones = std::max<std::size_t>(home_.transcripciones, 1);
    std::ofstream salida{raiz_ + "/.claude/history.jsonl", std::ios::binary};
    for (std::size_t n = 0; n < home_.lineasDeHistoria; ++n) {
      auto const sesion = n * sesiones / home_.lineasDeHistoria;
      std::string linea = "{\"display\":\"";
      linea += prosa_.trozo(azar_, 60 + azar_() % 240);
      linea += "\",\"pastedContents\":{},\"timestamp\":" +
               std::to_string(principio + static_cast<std::int64_t>(n) * 1000);
      linea +=
          ",\"project\":\"" + proyecto(sesion % proyectos) + "\",\"sessionId\":\"" + uuid(sesion) + "\"}\n";
      salida << linea;
    }
    if (!salida) throw std::runtime_error("could not write the history");
  }

 private:
  [[nodiscard]] static std::string proyecto(std::size_t p) {
    return "/home/u/code/project-" + std::to_string(p);
  }
  [[nodiscard]] std::string carpeta(std::size_t p) const {
    return raiz_ + "/.claude/projects/-home-u-code-project-" + std::to_string(p);
  }

  [[nodiscard]] std::vector<std::size_t> largos() {
    auto const cuantas = static_cast<double>(home_.transcripciones);
    std::vector<double> pesos(home_.transcripciones, 1.0);
    if (!home_.iguales) std::ranges::generate(pesos, [this] { return std::exp(dispersion * normal(azar_)); });
    double suma = 0;
    for (auto const peso : pesos) suma += peso;
    std::vector<std::size_t> largos;
    for (auto const peso : pesos) {
      auto const largo = peso / suma * static_cast<double>(home_.bytes);
      largos.push_back(static_cast<std::size_t>(home_.iguales ? static_cast<double>(home_.bytes) / cuantas
                                                              : std::clamp(largo, menor, mayor)));
    }
    return largos;
  }

  void titulo(std::size_t n, std::string_view cual) {
    texto_ += R"({"type":"ai-title","sessionId":")" + uuid(n) + R"(","aiTitle":")";
    texto_ += cual;
    texto_ += " of session " + std::to_string(n) + "\"}\n";
  }

  /// A message line of at most `tope` bytes of message.
  void linea(std::size_t n, std::size_t tope) {
    bool const deHerramienta = azar_() % 100 == 0;
    auto const usual = static_cast<std::size_t>(std::min(900.0 * std::exp(normal(azar_)), 60'000.0));
    auto const largo = std::min(deHerramienta ? 20'000 + azar_() % 80'000 : usual, tope);
    texto_ += R"({"parentUuid":")" + uuid(azar_() % 1000);
    texto_ += R"(","isSidechain":false,"type":"user","message":{"role":"user","content":")";
    texto_ += prosa_.trozo(azar_, largo);
    texto_ += R"("},"uuid":")" + uuid(azar_() % 1000) + R"(","timestamp":"2026-01-02T03:04:05.678Z")";
    if (azar_() % 20 != 0) texto_ += R"(,"userType":"external","cwd":")" + proyecto(n % proyectos) + "\"";
    texto_ += R"(,"sessionId":")" + uuid(n) + "\",\"version\":\"2.1.0\"}\n";
  }

  void lineasHasta(std::size_t n, std::size_t largo) {
    while (texto_.size() + restoDeLinea < largo) linea(n, largo - texto_.size() - restoDeLinea);
  }

  void transcripcion(std::size_t n, std::size_t largo) {
    texto_.clear();
    if (home_.forma == Forma::actual || n % 2 == 0) titulo(n, "First title");
    if (home_.forma == Forma::actual) {
      lineasHasta(n, largo - azar_() % std::min(largo, zonaDelTitulo));
      titulo(n, "Title");
    }
    lineasHasta(n, largo);
  }

  void guardar(std::string const& ruta) const {
    std::ofstream salida{ruta, std::ios::binary};
    salida.write(texto_.data(), static_cast<std::streamsize>(texto_.size()));
    salida.close();
    if (!salida) throw std::runtime_error("could not write " + ruta);
  }

  Home const& home_;
  std::string raiz_;
  Azar azar_;
  Prosa prosa_;
  std::string texto_;
};

}  // namespace

std::string Home::preparar() const {
  auto const ruta = std::string{ZORVE_CASAS} + "/" + nombre;
  auto const sello = ruta + "/made";
  std::string sellada;
  if (std::getline(std::ifstream{sello}, sellada, '\0') && sellada == version) return ruta;
  fs::remove_all(ruta);
  fs::create_directories(ruta + "/.claude/projects");
  fs::create_directories(ruta + "/.claude/sessions");
  (void)std::fprintf(stderr, "making %s ...\n", ruta.c_str());
  Escritor escritor{*this, ruta};
  escritor.transcripciones();
  escritor.historia();
  std::ofstream{sello} << version;
  return ruta;
}

Home homeGrande(Forma forma) {
  return {.nombre = forma == Forma::actual ? "big-current" : "big-hard",
          .forma = forma,
          .transcripciones = 2'000,
          .bytes = 1'100'000'000,
          .lineasDeHistoria = 30'000};
}

}  // namespace zorve::medir
