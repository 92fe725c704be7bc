#include "ZorveTui/Consola.h"

#include <curses.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <term.h>
#include <termios.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <utility>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Flujo.h"
#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTui/Rescate.h"

namespace zorve::tui {

namespace {

constexpr std::string_view nuestrosModos = "\x1B[?2004h";
constexpr std::string_view sinNuestrosModos = "\x1B[?2026l\x1B[?2004l\x1B[?25h\x1B[0m";
constexpr std::string_view sinRaton = "\x1B[?1000l\x1B[?1002l\x1B[?1006l";
/// How long, in milliseconds, the rest of a sequence may take to come; a lone escape waits as long.
constexpr int esperaTrasEscape = 40;

/// Older forms of the library tell of four buttons.
#ifdef BUTTON5_PRESSED
constexpr mmask_t ruedaAbajo = BUTTON5_PRESSED;
#else
constexpr mmask_t ruedaAbajo = 0;
#endif

struct Definida {
  char const* secuencia;
  int codigo;
  TeclaDeTerminal tecla;
};

/// What descriptions leave out, or name each in its own way: the sequences of xterm and rxvt. The numbers
/// above KEY_MAX are those that the library gives to what descriptions name in their own way.
constexpr int primerCodigoPropio = KEY_MAX + 1000;
constexpr std::array definidas{
    Definida{"\x1B[200~", primerCodigoPropio, TeclaDeTerminal::empiezaPegado},
    Definida{"\x1B[201~", primerCodigoPropio + 1, TeclaDeTerminal::terminaPegado},
    Definida{"\x1B[1;5H", primerCodigoPropio + 2, TeclaDeTerminal::controlInicio},
    Definida{"\x1B[7^", primerCodigoPropio + 3, TeclaDeTerminal::controlInicio},
    Definida{"\x1B[1;5F", primerCodigoPropio + 4, TeclaDeTerminal::controlFin},
    Definida{"\x1B[8^", primerCodigoPropio + 5, TeclaDeTerminal::controlFin},
    Definida{"\x1B[A", primerCodigoPropio + 6, TeclaDeTerminal::arriba},
    Definida{"\x1B[B", primerCodigoPropio + 7, TeclaDeTerminal::abajo},
    Definida{"\x1B[C", primerCodigoPropio + 8, TeclaDeTerminal::derecha},
    Definida{"\x1B[D", primerCodigoPropio + 9, TeclaDeTerminal::izquierda},
    Definida{"\x1B[H", primerCodigoPropio + 10, TeclaDeTerminal::inicio},
    Definida{"\x1B[F", primerCodigoPropio + 11, TeclaDeTerminal::fin},
};

TeclaDeTerminal teclaDe(int codigo) {
  for (auto const& una : definidas) {
    if (una.codigo == codigo) return una.tecla;
  }
  switch (codigo) {
    case KEY_UP:
      return TeclaDeTerminal::arriba;
    case KEY_DOWN:
      return TeclaDeTerminal::abajo;
    case KEY_LEFT:
      return TeclaDeTerminal::izquierda;
    case KEY_RIGHT:
      return TeclaDeTerminal::derecha;
    case KEY_HOME:
      return TeclaDeTerminal::inicio;
    case KEY_END:
      return TeclaDeTerminal::fin;
    case KEY_PPAGE:
      return TeclaDeTerminal::paginaArriba;
    case KEY_NPAGE:
      return TeclaDeTerminal::paginaAbajo;
    case KEY_ENTER:
      return TeclaDeTerminal::retorno;
    case KEY_BACKSPACE:
      return TeclaDeTerminal::borrarAtras;
    case KEY_DC:
      return TeclaDeTerminal::borrarAdelante;
    default:
      return TeclaDeTerminal::otra;
  }
}

std::optional<Raton> gestoDelRaton() {
  MEVENT cual{};
  if (::getmouse(&cual) != OK || cual.x < 0 || cual.y < 0) return std::nullopt;
  Raton raton{.fila = static_cast<std::size_t>(cual.y), .columna = static_cast<std::size_t>(cual.x)};
  if ((cual.bstate & BUTTON4_PRESSED) != 0) {
    raton.gesto = Raton::Gesto::ruedaArriba;
  } else if ((cual.bstate & ruedaAbajo) != 0) {
    raton.gesto = Raton::Gesto::ruedaAbajo;
  } else if ((cual.bstate & BUTTON1_PRESSED) == 0) {
    return std::nullopt;
  }
  return raton;
}

std::string capacidad(char const* nombre) {
  // The library takes names as it did before const.
  char const* const valor =
      ::tigetstr(const_cast<char*>(nombre));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
  if (valor == nullptr || reinterpret_cast<std::intptr_t>(valor) == -1) return {};
  std::string texto{valor};
  // "$<20/>": how long slow devices of old take.
  for (auto desde = texto.find("$<"); desde != std::string::npos; desde = texto.find("$<")) {
    auto const hasta = texto.find('>', desde);
    texto.erase(desde, hasta == std::string::npos ? hasta : hasta - desde + 1);
  }
  return texto;
}

bool esConocida(std::string const& nombre) {
  int falla = 0;
  return !nombre.empty() &&
         ::setupterm(const_cast<char*>(nombre.c_str()), STDOUT_FILENO, &falla) == OK;  // NOLINT
}

/// The terminal's description; for one that is not known here (the other end of a connection has newer ones)
/// that of the terminal which nearly all others take after.
std::string descripcion() {
  auto const suya = variable("TERM");
  for (auto const& una : {suya, std::string{"xterm-256color"}, std::string{"xterm"}}) {
    if (!suya.empty() && esConocida(una)) return una;
  }
  return {};
}

bool sePuedeDibujarEn(std::string const& nombre) {
  return nombre != "dumb" && capacidad("cup").starts_with("\x1B[");
}

}  // namespace

struct Consola::Dentro {
  Descriptor terminal;
  std::unique_ptr<FILE, int (*)(FILE*)> salida{nullptr, std::fclose};
  std::unique_ptr<FILE, int (*)(FILE*)> entrada{nullptr, std::fclose};
  SCREEN* pantalla = nullptr;
  WINDOW* teclado = nullptr;
  int colores = -1;
  std::string nombre;
  std::optional<Rescate> rescate;
};

Consola::Consola(std::unique_ptr<Dentro> dentro) : dentro_{std::move(dentro)} {}

namespace {

void tomar(WINDOW* teclado) {
  ::raw();
  ::noecho();
  ::nonl();
  ::keypad(teclado, TRUE);
  ::nodelay(teclado, TRUE);
  ::mouseinterval(0);
  ::mousemask(BUTTON1_PRESSED | BUTTON4_PRESSED | ruedaAbajo, nullptr);
}

}  // namespace

std::expected<std::unique_ptr<Consola>, std::string> Consola::abrir() {
  auto dentro = std::make_unique<Dentro>();
  dentro->terminal = Descriptor{::open("/dev/tty", O_RDWR | O_CLOEXEC)};
  termios modos{};
  if (!dentro->terminal || ::tcgetattr(dentro->terminal.numero(), &modos) != 0) {
    return std::unexpected{"there is no terminal here to draw the panel on; zorvectl list needs none"};
  }
  auto const nombre = descripcion();
  if (nombre.empty() || !sePuedeDibujarEn(nombre)) {
    return std::unexpected{"this terminal (TERM=" + variable("TERM") +
                           ") cannot be drawn on; zorvectl list works on it"};
  }
  dentro->nombre = nombre;
  dentro->salida.reset(::fdopen(::fcntl(dentro->terminal.numero(), F_DUPFD_CLOEXEC, 3), "w"));
  dentro->entrada.reset(::fdopen(::fcntl(dentro->terminal.numero(), F_DUPFD_CLOEXEC, 3), "r"));
  ::set_escdelay(esperaTrasEscape);
  ::use_env(FALSE);
  dentro->pantalla =
      ::newterm(const_cast<char*>(nombre.c_str()), dentro->salida.get(), dentro->entrada.get());  // NOLINT
  if (dentro->pantalla == nullptr) return std::unexpected{"the terminal could not be prepared for drawing"};
  // Reading through a pad never redraws the library's own, empty screen.
  dentro->teclado = ::newpad(1, 1);
  for (auto const& una : definidas) ::define_key(una.secuencia, una.codigo);
  tomar(dentro->teclado);
  dentro->colores = ::tigetnum(const_cast<char*>("colors"));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
  dentro->rescate.emplace(dentro->terminal.numero(), modos,
                          std::string{sinNuestrosModos} + std::string{sinRaton} + capacidad("rmkx") +
                              capacidad("cnorm") + capacidad("rmcup"));
  std::unique_ptr<Consola> consola{new Consola{std::move(dentro)}};
  consola->escribir(nuestrosModos);
  return consola;
}

Consola::~Consola() {
  suspender();
  ::delwin(dentro_->teclado);
  ::delscreen(dentro_->pantalla);
}

int Consola::descriptor() const { return dentro_->terminal.numero(); }

Tamano Consola::tamano() const {
  struct winsize hay{};
  if (::ioctl(dentro_->terminal.numero(), TIOCGWINSZ, &hay) == 0 && hay.ws_col > 0 && hay.ws_row > 0) {
    return {hay.ws_col, hay.ws_row};
  }
  constexpr Tamano deCostumbre{80, 24};
  return deCostumbre;
}

int Consola::colores() const { return dentro_->colores; }

std::vector<Golpe> Consola::leer() {
  std::vector<Golpe> golpes;
  for (int codigo = ::wgetch(dentro_->teclado); codigo != ERR; codigo = ::wgetch(dentro_->teclado)) {
    if (codigo == KEY_MOUSE) {
      if (auto const raton = gestoDelRaton()) golpes.emplace_back(*raton);
    } else if (codigo >= 0 && codigo < KEY_MIN - 1) {
      golpes.emplace_back(static_cast<unsigned char>(codigo));
    } else if (codigo != KEY_RESIZE) {
      golpes.emplace_back(teclaDe(codigo));
    }
  }
  return golpes;
}

bool Consola::escribir(std::string_view bytes) {
  return bytes.empty() || escribirTodo(dentro_->terminal.numero(), bytes) == 0;
}

bool Consola::sigueAhi() const {
  termios modos{};
  return ::tcgetattr(dentro_->terminal.numero(), &modos) == 0;
}

bool Consola::sePuedePreguntar() const {
  return !dentro_->nombre.starts_with("linux") && !dentro_->nombre.starts_with("vt");
}

void Consola::suspender() {
  dentro_->rescate->pausar();
  escribir(sinNuestrosModos);
  ::endwin();
}

void Consola::reanudar() {
  ::doupdate();
  dentro_->rescate->seguir();
  escribir(nuestrosModos);
}

}  // namespace zorve::tui
