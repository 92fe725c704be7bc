#include "Consola/PantallaVirtual.h"

#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <utility>

#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve::pruebas {

namespace {

using Reloj = std::chrono::steady_clock;

void senalesDeFabrica() {
  for (int senal = 1; senal < NSIG; ++senal) ::signal(senal, SIG_DFL);
  sigset_t ninguna;
  sigemptyset(&ninguna);
  ::sigprocmask(SIG_SETMASK, &ninguna, nullptr);
}

void agregarUtf8(std::string& destino, std::uint32_t punto) {
  if (punto < 0x80) {
    destino += static_cast<char>(punto);
  } else if (punto < 0x800) {
    destino += static_cast<char>(0xC0 | punto >> 6U);
    destino += static_cast<char>(0x80 | (punto & 0x3FU));
  } else if (punto < 0x10000) {
    destino += static_cast<char>(0xE0 | punto >> 12U);
    destino += static_cast<char>(0x80 | (punto >> 6U & 0x3FU));
    destino += static_cast<char>(0x80 | (punto & 0x3FU));
  } else {
    destino += static_cast<char>(0xF0 | punto >> 18U);
    destino += static_cast<char>(0x80 | (punto >> 12U & 0x3FU));
    destino += static_cast<char>(0x80 | (punto >> 6U & 0x3FU));
    destino += static_cast<char>(0x80 | (punto & 0x3FU));
  }
}

ColorDeCelda colorDe(VTermColor const& color, bool propio) {
  if (propio) return {};
  if (VTERM_COLOR_IS_INDEXED(&color))
    return {.clase = ColorDeCelda::Clase::numero, .numero = color.indexed.idx};
  return {.clase = ColorDeCelda::Clase::directo,
          .rojo = color.rgb.red,
          .verde = color.rgb.green,
          .azul = color.rgb.blue};
}

}  // namespace

PantallaVirtual::PantallaVirtual(Con con) : columnas_{con.columnas}, filas_{con.filas}, fondo_{con.fondo} {
  terminal_ = vterm_new(filas_, columnas_);
  vterm_set_utf8(terminal_, 1);
  pantalla_ = vterm_obtain_screen(terminal_);
  vterm_screen_enable_altscreen(pantalla_, 1);
  llamadas_.settermprop = alCambiar;
  llamadas_.movecursor = alMoverse;
  vterm_screen_set_callbacks(pantalla_, &llamadas_, this);
  vterm_screen_reset(pantalla_, 1);
  auto const argumentos = punteros(con.palabras);
  auto const variables = punteros(con.entorno);
  winsize tamano{static_cast<unsigned short>(filas_), static_cast<unsigned short>(columnas_), 0, 0};
  pid_ = ::forkpty(&maestro_, nullptr, nullptr, &tamano);
  if (pid_ < 0) throw std::runtime_error("forkpty failed");
  if (pid_ == 0) {
    senalesDeFabrica();
    if (con.enLugar) ::_exit(con.enLugar());
    if (::chdir(con.carpeta.c_str()) == 0) ::execve(argumentos[0], argumentos.data(), variables.data());
    ::_exit(127);
  }
  vterm_output_set_callback(
      terminal_,
      [](char const* bytes, std::size_t cuantos, void* este) {
        static_cast<PantallaVirtual*>(este)->escribir({bytes, cuantos});
      },
      this);
}

PantallaVirtual::~PantallaVirtual() {
  if (maestro_ >= 0) ::close(maestro_);
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }
  vterm_free(terminal_);
}

int PantallaVirtual::alCambiar(VTermProp propiedad, VTermValue* valor, void* este) {
  auto& pantalla = *static_cast<PantallaVirtual*>(este);
  if (propiedad == VTERM_PROP_ALTSCREEN) pantalla.aparte_ = valor->boolean != 0;
  if (propiedad == VTERM_PROP_CURSORVISIBLE) pantalla.cursorVisible_ = valor->boolean != 0;
  return 1;
}

int PantallaVirtual::alMoverse(VTermPos donde, VTermPos /*antes*/, int /*visible*/, void* este) {
  static_cast<PantallaVirtual*>(este)->cursor_ = donde;
  return 1;
}

void PantallaVirtual::escribir(std::string_view teclas) const {
  while (!teclas.empty()) {
    auto const n = ::write(maestro_, teclas.data(), teclas.size());
    if (n <= 0) return;
    teclas.remove_prefix(static_cast<std::size_t>(n));
  }
}

void PantallaVirtual::redimensionar(int columnas, int filas) {
  columnas_ = columnas;
  filas_ = filas;
  vterm_set_size(terminal_, filas, columnas);
  winsize const tamano{static_cast<unsigned short>(filas), static_cast<unsigned short>(columnas), 0, 0};
  ::ioctl(maestro_, TIOCSWINSZ, &tamano);
}

/// libvterm does not know the question for the background.
void PantallaVirtual::responder(std::string_view trozo) {
  if (fondo_.empty() || !trozo.contains("\x1B]11;?")) return;
  escribir("\x1B]11;" + fondo_ + "\x1B\\");
}

bool PantallaVirtual::leer(int milisegundos) {
  pollfd esperado{maestro_, POLLIN, 0};
  if (::poll(&esperado, 1, milisegundos) <= 0) return false;
  std::array<char, 65536> trozo{};
  auto const n = ::read(maestro_, trozo.data(), trozo.size());
  if (n <= 0) return false;
  std::string_view const vistos{trozo.data(), static_cast<std::size_t>(n)};
  bytes_ += vistos;
  responder(vistos);
  vterm_input_write(terminal_, vistos.data(), vistos.size());
  return true;
}

bool PantallaVirtual::esperarA(std::function<bool()> const& listo, std::chrono::seconds plazo) {
  auto const limite = Reloj::now() + plazo;
  while (!listo()) {
    if (Reloj::now() >= limite) return false;
    if (!leer(20)) ::usleep(500);
  }
  return true;
}

bool PantallaVirtual::esperar(std::string_view texto) {
  return esperarA([&] { return donde(texto).has_value(); });
}

bool PantallaVirtual::esperarCuadro() {
  return esperarA([&] { return bytes_.ends_with("\x1B[?25h") || bytes_.ends_with("\x1B[?2026l"); });
}

CeldaVista PantallaVirtual::celda(int fila, int columna) const {
  VTermScreenCell una{};
  vterm_screen_get_cell(pantalla_, {fila, columna}, &una);
  CeldaVista vista;
  for (std::size_t i = 0; i < VTERM_MAX_CHARS_PER_CELL && una.chars[i] != 0; ++i) {
    if (una.chars[i] != static_cast<std::uint32_t>(-1)) agregarUtf8(vista.texto, una.chars[i]);
  }
  vista.tinta = colorDe(una.fg, VTERM_COLOR_IS_DEFAULT_FG(&una.fg));
  vista.fondo = colorDe(una.bg, VTERM_COLOR_IS_DEFAULT_BG(&una.bg));
  vista.negrita = una.attrs.bold != 0;
  return vista;
}

std::string PantallaVirtual::linea(int fila) const {
  std::string todo;
  for (int columna = 0; columna < columnas_; ++columna) {
    VTermScreenCell una{};
    vterm_screen_get_cell(pantalla_, {fila, columna}, &una);
    auto const texto = celda(fila, columna).texto;
    todo += texto.empty() ? " " : texto;
    if (una.width == 2) ++columna;
  }
  todo.erase(todo.find_last_not_of(' ') + 1);
  return todo;
}

std::vector<std::string> PantallaVirtual::lineas() const {
  std::vector<std::string> todas;
  for (int fila = 0; fila < filas_; ++fila) todas.push_back(linea(fila));
  return todas;
}

std::optional<std::pair<int, int>> PantallaVirtual::donde(std::string_view texto) const {
  for (int fila = 0; fila < filas_; ++fila) {
    auto const esta = linea(fila);
    if (auto const lugar = esta.find(texto); lugar != std::string::npos) {
      return std::pair{fila, static_cast<int>(lugar)};
    }
  }
  return std::nullopt;
}

std::pair<int, int> PantallaVirtual::cursor() const { return {cursor_.row, cursor_.col}; }

std::string PantallaVirtual::sacarBytes() { return std::exchange(bytes_, {}); }

bool PantallaVirtual::comoUnaShellLaQuiere() const {
  termios modos{};
  ::tcgetattr(maestro_, &modos);
  return (modos.c_lflag & ECHO) != 0 && (modos.c_lflag & ICANON) != 0 && (modos.c_lflag & ISIG) != 0 &&
         (modos.c_iflag & ICRNL) != 0;
}

int PantallaVirtual::terminar() {
  int estado = 0;
  bool acabo = false;
  auto const visto = esperarA([&] {
    acabo = acabo || ::waitpid(pid_, &estado, WNOHANG) == pid_;
    return acabo && !leer(0);
  });
  if (!visto) throw std::runtime_error("the program does not end");
  pid_ = 0;
  return WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado);
}

std::chrono::milliseconds PantallaVirtual::colgar() {
  auto const desde = Reloj::now();
  ::close(std::exchange(maestro_, -1));
  auto const limite = desde + std::chrono::seconds{20};
  while (::waitpid(pid_, nullptr, WNOHANG) != pid_) {
    if (Reloj::now() >= limite) throw std::runtime_error("the program outlives its terminal");
    ::usleep(1000);
  }
  pid_ = 0;
  return std::chrono::duration_cast<std::chrono::milliseconds>(Reloj::now() - desde);
}

}  // namespace zorve::pruebas
