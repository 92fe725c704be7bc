// What the panel in a terminal takes, from a key to the last byte that a terminal is sent, beside a bare
// program over ncurses and fzf with the same lines on the same pseudoterminal.

#include <curses.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "Home.h"
#include "Proceso.h"
#include "Tabla.h"

namespace {

using namespace zorve::medir;
using Reloj = std::chrono::steady_clock;

constexpr int quieto = 40;
constexpr int veces = 25;
constexpr std::size_t teclas = 400;

double ms(Reloj::duration cuanto) { return std::chrono::duration<double, std::milli>{cuanto}.count(); }

/// A program on a pseudoterminal of 80 by 24 at whose other end somebody reads.
class EnPty {
 public:
  explicit EnPty(std::vector<std::string> const& palabras) {
    std::vector<char*> punteros;
    for (auto const& palabra : palabras) punteros.push_back(const_cast<char*>(palabra.c_str()));  // NOLINT
    punteros.push_back(nullptr);
    winsize const tamano{24, 80, 0, 0};
    desde_ = Reloj::now();
    pid_ = ::forkpty(&maestro_, nullptr, nullptr, &tamano);
    if (pid_ == 0) {
      ::setenv("TERM", "xterm-256color", 1);
      for (auto const* nombre : {"DISPLAY", "WAYLAND_DISPLAY", "TMUX", "NO_COLOR"}) ::unsetenv(nombre);
      ::execvp(punteros[0], punteros.data());
      ::_exit(127);
    }
  }
  EnPty(EnPty const&) = delete;
  EnPty& operator=(EnPty const&) = delete;
  ~EnPty() {
    ::close(maestro_);
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }

  /// Milliseconds from the start until `marca` was sent.
  double hasta(std::string_view marca) {
    while (visto_.find(marca) == std::string::npos) {
      if (!leer(20'000)) std::exit((std::fprintf(stderr, "no \"%s\" came\n", std::string{marca}.c_str()), 1));
    }
    return ms(Reloj::now() - desde_);
  }
  void callarse() {
    while (leer(quieto)) {
    }
  }
  /// Milliseconds from the key to the last byte that it brings, and how many it brings.
  std::pair<double, std::size_t> tecla(char cual) {
    visto_.clear();
    auto const antes = Reloj::now();
    (void)!::write(maestro_, &cual, 1);
    auto ultimo = antes;
    while (leer(quieto)) ultimo = Reloj::now();
    return {ms(ultimo - antes), visto_.size()};
  }

 private:
  bool leer(int plazo) {
    pollfd esperado{maestro_, POLLIN, 0};
    if (::poll(&esperado, 1, plazo) <= 0) return false;
    std::array<char, 65536> trozo{};
    auto const n = ::read(maestro_, trozo.data(), trozo.size());
    if (n <= 0) return false;
    visto_.append(trozo.data(), static_cast<std::size_t>(n));
    return true;
  }

  int maestro_ = -1;
  pid_t pid_ = 0;
  Reloj::time_point desde_;
  std::string visto_;
};

/// The bare program: the lines of a file, those that have the text that is typed, drawn by ncurses.
int desnudo(char const* archivo) {
  (void)std::setlocale(LC_ALL, "");
  std::vector<std::string> lineas;
  std::ifstream de{archivo};
  for (std::string linea; std::getline(de, linea);) lineas.push_back(linea);
  ::initscr();
  ::raw();
  ::noecho();
  std::string busqueda;
  for (int codigo = 0; codigo != 3; codigo = ::wgetch(stdscr)) {
    if (codigo == 127 && !busqueda.empty()) busqueda.pop_back();
    if (codigo >= ' ' && codigo < 127) busqueda += static_cast<char>(codigo);
    ::werase(stdscr);
    int fila = 1;
    std::size_t cuantas = 0;
    for (auto const& linea : lineas) {
      if (!linea.contains(busqueda)) continue;
      ++cuantas;
      if (fila < LINES) mvaddnstr(fila++, 0, linea.c_str(), COLS);
    }
    ::mvprintw(0, 0, "%zu/%zu %s", cuantas, lineas.size(), busqueda.c_str());
    ::wrefresh(stdscr);
  }
  ::endwin();
  return 0;
}

template <class Arrancar>
double mejorArranque(Arrancar const& arrancar, std::string const& marca, int cuantas) {
  double mejor = 1e300;
  for (int vez = 0; vez < cuantas; ++vez) mejor = std::min(mejor, EnPty{arrancar()}.hasta(marca));
  return mejor;
}

struct Teclas {
  double mediana = 0;
  double alta = 0;
  std::size_t bytes = 0;
};

Teclas teclear(std::vector<std::string> const& palabras, std::string const& marca) {
  EnPty programa{palabras};
  (void)programa.hasta(marca);
  programa.callarse();
  constexpr std::string_view letras = "session 12";
  std::vector<double> tiempos;
  Teclas hechas;
  for (std::size_t i = 0; i < teclas; ++i) {
    auto const [tiempo, bytes] = programa.tecla(i % 20 < 10 ? letras[i % 10] : '\x7F');
    tiempos.push_back(tiempo);
    hechas.bytes = std::max(hechas.bytes, bytes);
  }
  std::ranges::sort(tiempos);
  hechas.mediana = tiempos[teclas / 2];
  hechas.alta = tiempos[teclas * 99 / 100];
  return hechas;
}

std::string lineasDe(std::string const& home) {
  auto const archivo = home + "/lineas";
  auto const orden = std::string{ZORVECTL} + " list --home '" + home + "' >'" + archivo + "' 2>/dev/null";
  if (std::system(orden.c_str()) != 0) std::exit(1);  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  return archivo;
}

std::size_t cuantasLineas(std::string const& archivo) {
  std::ifstream de{archivo};
  std::size_t cuantas = 0;
  for (std::string linea; std::getline(de, linea);) ++cuantas;
  return cuantas;
}

std::vector<std::string> fzf(std::string const& lineas) {
  return {"/bin/sh", "-c", "exec fzf --exact --no-sort <'" + lineas + "'"};
}

void medirArranque(std::string const& este) {
  Home const chica{
      .nombre = "ten-sessions", .transcripciones = 10, .bytes = 10 * 100'000, .lineasDeHistoria = 100};
  auto const home = chica.preparar();
  auto const lineas = lineasDe(home);
  auto const todas = std::to_string(cuantasLineas(lineas));
  std::vector<std::string> const panel{ZORVECTL, "panel", "--home", home};
  tabla::titulo("zorvectl panel on a home of ten sessions, from the process's start");
  tabla::tope("to its first frame", mejorArranque([&] { return panel; }, "\x1B[?25h", veces), "ms", 25);
  auto const propio = mejorArranque([&] { return panel; }, "1/" + todas, veces);
  tabla::tope("to the rows", propio, "ms", 25);
  tabla::frente("a bare program over ncurses, its lines read from a file",
                mejorArranque([&] { return std::vector<std::string>{este, "desnudo", lineas}; },
                              todas + "/" + todas, veces),
                propio, "ms");
  if (hayPrograma("fzf")) {
    tabla::frente("fzf, from the same file",
                  mejorArranque([&] { return fzf(lineas); }, todas + "/" + todas, veces), propio, "ms");
  }
}

void medirGrande() {
  auto const home = homeGrande(Forma::actual).preparar();
  double lista = 1e300;
  double panel = 1e300;
  for (int vez = 0; vez < veces; ++vez) {
    lista = std::min(lista, correr({ZORVECTL, "list", "--home", home}).ms);
    panel = std::min(panel, EnPty{{ZORVECTL, "panel", "--home", home}}.hasta("1/"));
  }
  tabla::titulo("zorvectl panel on 2,000 transcripts (1.1 GB), against zorvectl list");
  tabla::razon("start to the rows", panel, lista, "ms", 1.3);
}

void medirTeclas(std::string const& este) {
  Home const muchas{.nombre = "ten-thousand",
                    .transcripciones = 10'000,
                    .bytes = 10'000 * 2'000,
                    .iguales = true,
                    .lineasDeHistoria = 10'000};
  auto const home = muchas.preparar();
  auto const lineas = lineasDe(home);
  auto const todas = std::to_string(cuantasLineas(lineas));
  auto const panel = teclear({ZORVECTL, "panel", "--home", home}, "1/" + todas);
  tabla::titulo("A keystroke on " + todas + " sessions, to the last byte that the terminal is sent");
  tabla::dato("median", panel.mediana, "ms");
  tabla::tope("99th percentile", panel.alta, "ms", 8);
  tabla::tope("bytes, the most", static_cast<double>(panel.bytes), "bytes", 4096);
  auto const otra = [&](std::string const& nombre, Teclas const& suyas) {
    tabla::frente(nombre + ", median", suyas.mediana, panel.mediana, "ms");
    tabla::frente(nombre + ", 99th percentile", suyas.alta, panel.alta, "ms");
    tabla::dato(nombre + ", bytes, the most", static_cast<double>(suyas.bytes), "bytes");
  };
  otra("a bare program over ncurses", teclear({este, "desnudo", lineas}, todas + "/" + todas));
  if (hayPrograma("fzf")) otra("fzf", teclear(fzf(lineas), todas + "/" + todas));
}

}  // namespace

int main(int cuantos, char** palabras) {
  if (cuantos == 3 && std::string_view{palabras[1]} == "desnudo") return desnudo(palabras[2]);
  auto const este = std::filesystem::read_symlink("/proc/self/exe").string();
  medirArranque(este);
  medirTeclas(este);
  medirGrande();
  return 0;
}
