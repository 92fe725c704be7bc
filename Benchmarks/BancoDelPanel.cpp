// What the panel takes with 10,000 sessions: a keystroke, coming up again, and the filter by itself.
// Times are processor time of the one thread that works.

#include <algorithm>
#include <array>
#include <ctime>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <string.h>  // NOLINT(modernize-deprecated-headers): memmem

#include "Tabla.h"
#include "ZorveApp/PanelView.h"

namespace zorve::medir {
namespace {

constexpr std::size_t cuantasSesiones = 10'000;
constexpr std::size_t filasALaVista = 12;
constexpr Fecha ahora{std::chrono::duration<double>{1'760'000'000}};

double msDelHilo() {
  std::timespec t{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

template <class F>
double medirHilo(F&& hacer) {
  auto const antes = msDelHilo();
  hacer();
  return msDelHilo() - antes;
}

double percentil(std::vector<double> muestras, double parte) {
  auto const cual = static_cast<std::size_t>(parte * static_cast<double>(muestras.size() - 1));
  std::ranges::nth_element(muestras, muestras.begin() + static_cast<std::ptrdiff_t>(cual));
  return muestras[cual];
}

constexpr std::array<std::string_view, 24> palabrasDePrueba{
    "parser", "rewrite", "history", "streaming", "fuzz",    "corpus", "panel",  "search",
    "fix",    "lone",    "session", "launch",    "review",  "tests",  "bench",  "title",
    "window", "client",  "server",  "migration", "release", "notes",  "cursor", "index"};
constexpr std::array<std::string_view, 6> conAcentos{"señales", "documentación", "Añadir",
                                                     "café",    "sesión",        "日本語"};

/// The same sessions at every run; `acentos` is how many words in a hundred are not ASCII.
std::vector<Session> sesiones(unsigned acentos) {
  std::mt19937 azar{20'240'607};
  auto const frase = [&](std::size_t cuantas) {
    std::string texto;
    for (std::size_t i = 0; i < cuantas; ++i) {
      if (i > 0) texto += ' ';
      texto += azar() % 100 < acentos ? conAcentos[azar() % conAcentos.size()]
                                      : palabrasDePrueba[azar() % palabrasDePrueba.size()];
    }
    return texto;
  };
  std::vector<Session> todas(cuantasSesiones);
  for (std::size_t i = 0; i < todas.size(); ++i) {
    auto const numero = std::to_string(i);
    todas[i] = {.titulo = frase(6),
                .cwd = "/home/ana/src/" + std::string{palabrasDePrueba[azar() % palabrasDePrueba.size()]} +
                       "/" + numero,
                .ultimaActividad = ahora - std::chrono::duration<double>{static_cast<double>(i) * 300},
                .conteoPrompts = static_cast<std::int64_t>(azar() % 200),
                .ultimoPrompt = frase(10 + azar() % 60),
                .sessionId = "00000000-0000-4000-8000-" + std::string(12 - numero.size(), '0') + numero};
  }
  return todas;
}

class SinPreferencias final : public Preferencias {
 public:
  std::expected<std::optional<Valor>, IndexError> leer(std::string const& /*clave*/) const override {
    return std::nullopt;
  }
  std::expected<void, IndexError> escribir(std::string const& /*clave*/, Valor const& /*valor*/) override {
    return {};
  }
  std::expected<void, IndexError> quitar(std::string const& /*clave*/) override { return {}; }
};

class SinProgramas final : public Ejecutor {
 public:
  std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& /*ruta*/, std::span<std::string const> /*args*/) const override {
    return ResultadoDeEjecucion{};
  }
};

class SinPortapapeles final : public Portapapeles {
 public:
  void copiar(std::string const& /*texto*/) override {}
};

class SinHilos final : public Despachador {
 public:
  void enPrincipal(Tarea /*tarea*/) override {}
  void enSegundoPlano(Tarea /*tarea*/) override {}
  void enPrincipalTras(std::chrono::milliseconds /*espera*/, Tarea /*tarea*/) override {}
};

/// A panel over a loaded list.
struct Panel {
  explicit Panel(std::vector<Session> lista) { modelo.escribirResultado({std::move(lista), {}}); }

  /// What a front end asks for to draw the panel; gives something made of all of it.
  std::size_t dibujar() const {
    std::size_t letras = vista.banda().size() + vista.terminal().size() + vista.leyenda().size();
    letras += vista.marcador() ? 1U : 0U;
    for (std::size_t i = 0; i < std::min(filasALaVista, vista.cantidadDeFilas()); ++i) {
      auto const fila = vista.fila(i);
      letras += fila.titulo.size() + fila.lineaDeRuta().size() + fila.tiempo.size() +
                fila.marcasDeTitulo.size() + fila.marcasDeRuta.size();
    }
    return letras + vista.filaSeleccionada().value_or(0);
  }

  SinPreferencias preferencias;
  SinProgramas ejecutor;
  SinPortapapeles portapapeles;
  SinHilos despachador;
  EstadoDelPanel estado;
  PreferenciaDeIdioma idioma{preferencias};
  ModeloDeVista modelo{{.cargar = [] { return IndexResult{}; },
                        .servicios = {},
                        .ejecutor = ejecutor,
                        .portapapeles = portapapeles,
                        .despachador = despachador,
                        .idioma = idioma}};
  PanelView vista{modelo, estado, idioma, "/home/ana", [] { return ahora; }, Modificador::control};
};

std::size_t volatile consumido = 0;

/// Every state of the search field while these texts are typed and then deleted, one letter a keystroke.
std::vector<std::string> teclasDe(std::vector<std::string> const& textos) {
  std::vector<std::string> estados;
  for (auto const& texto : textos) {
    for (std::size_t i = 1; i <= texto.size(); ++i) estados.push_back(texto.substr(0, i));
    for (std::size_t i = texto.size(); i-- > 0;) estados.push_back(texto.substr(0, i));
  }
  return estados;
}

std::string juntas(std::vector<Session> const& lista) {
  std::string todo;
  for (auto const& sesion : lista) todo += textoDeBusqueda(sesion, ReglaDePlegado::general);
  return todo;
}

/// How many times `aguja` occurs: the search that does nothing else.
std::size_t buscar(std::string_view pajar, std::string_view aguja) {
  std::size_t veces = 0;
  while (!aguja.empty()) {
    auto const* const donde = ::memmem(pajar.data(), pajar.size(), aguja.data(), aguja.size());
    if (donde == nullptr) break;
    ++veces;
    auto const desde = static_cast<std::size_t>(static_cast<char const*>(donde) - pajar.data());
    pajar.remove_prefix(desde + 1);
  }
  return veces;
}

void medirTeclas(std::string const& nombre, std::vector<Session> const& lista) {
  Panel panel{lista};
  auto const estados = teclasDe({"parser fuzz", "migration notes", "xyzzy", "sesion", "/src/bench 42"});
  std::vector<double> muestras;
  for (int vuelta = 0; vuelta < 15; ++vuelta) {
    for (auto const& estado : estados) {
      muestras.push_back(medirHilo([&] {
        panel.modelo.escribirConsulta(estado);
        consumido = consumido + panel.dibujar();
      }));
    }
  }
  auto const bytes = juntas(lista);
  std::vector<double> peladas;
  for (auto const& estado : estados) {
    peladas.push_back(medirHilo([&] { consumido = consumido + buscar(bytes, estado); }));
  }
  tabla::titulo("A keystroke, " + nombre + ", " + std::to_string(bytes.size() / 1024) + " KiB of text");
  tabla::tope("median", percentil(muestras, 0.5), "ms", 4);
  tabla::tope("99th percentile", percentil(muestras, 0.99), "ms", 8);
  tabla::frente("a bare search over the same bytes, median", percentil(peladas, 0.5),
                percentil(muestras, 0.5), "ms");
}

/// What the marks of the drawn rows take of each keystroke that finds something.
void medirMarcas(std::string const& nombre, std::vector<Session> const& lista) {
  Panel panel{lista};
  std::vector<double> enteras;
  std::vector<double> marcas;
  for (auto const& texto : teclasDe({"parser fuzz", "senales cafe"})) {
    enteras.push_back(medirHilo([&] {
      panel.vista.escribirConsulta(texto);
      consumido = consumido + panel.dibujar();
    }));
    auto const fichas = panel.modelo.fichas();
    marcas.push_back(medirHilo([&] {
      for (auto const i :
           panel.modelo.visibles().first(std::min(filasALaVista, panel.modelo.visibles().size()))) {
        auto const& sesion = panel.modelo.resultado()->sesiones[i];
        consumido = consumido + tramosDe(sesion.titulo, fichas, panel.modelo.regla()).size() +
                    tramosDe(sesion.cwd, fichas, panel.modelo.regla()).size();
      }
    }));
  }
  tabla::titulo("The marks of " + std::to_string(filasALaVista) + " rows within a keystroke, " + nombre);
  tabla::razon("median", percentil(marcas, 0.5) * 1e3, percentil(enteras, 0.5) * 1e3, "us", 0.1);
}

double alAparecer(Panel& panel) {
  double mejor = 1e300;
  for (int vez = 0; vez < 2'000; ++vez) {
    mejor = std::min(mejor, medirHilo([&] {
                       panel.vista.aparecer();
                       consumido = consumido + panel.dibujar();
                     }));
  }
  return mejor;
}

void medirAparicion(std::vector<Session> const& lista) {
  Panel larga{lista};
  Panel corta{{lista.begin(), lista.begin() + filasALaVista}};
  tabla::titulo("The panel comes up on a loaded list, beside a list of only the rows it draws");
  tabla::razon("10,000 sessions", alAparecer(larga) * 1e3, alAparecer(corta) * 1e3, "us", 1.25);
}

void medirFiltro(std::vector<Session> const& lista) {
  constexpr std::string_view consulta = "/parser/77";
  auto const bytes = juntas(lista);
  double filtro = 1e300;
  double pelada = 1e300;
  std::size_t quedan = 0;
  for (int vez = 0; vez < 60; ++vez) {
    filtro = std::min(filtro,
                      medirHilo([&] { quedan = filtrar(lista, consulta, ReglaDePlegado::general).size(); }));
    pelada = std::min(pelada, medirHilo([&] { consumido = consumido + buscar(bytes, consulta); }));
  }
  auto const gigas = static_cast<double>(bytes.size()) / 1e9;
  tabla::titulo("The filter by itself on ASCII texts");
  tabla::minimo("speed", gigas / (filtro / 1e3), "GB/s", 1);
  tabla::tope("sessions kept", 100.0 * static_cast<double>(quedan) / static_cast<double>(lista.size()), "%",
              1);
  tabla::frente("a bare search over the same bytes", pelada, filtro, "ms");
}

}  // namespace
}  // namespace zorve::medir

int main() {
  using namespace zorve::medir;
  auto const ascii = sesiones(0);
  medirTeclas("ASCII texts", ascii);
  medirTeclas("one word in ten not ASCII", sesiones(10));
  medirMarcas("ASCII texts", ascii);
  medirMarcas("one word in ten not ASCII", sesiones(10));
  medirAparicion(ascii);
  medirFiltro(ascii);
}
