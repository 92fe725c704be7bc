#include "ZorveTerminal/VentanasX.h"

#include <xcb/res.h>

#include <map>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

#include "ZorveX11/X11.h"

namespace zorve::ayudante {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::uint32_t todosLosEscritorios = 0xFFFFFFFFU;
constexpr std::uint32_t comoUnPaginador = 2;
constexpr std::chrono::milliseconds entreMiradas{20};
constexpr std::chrono::milliseconds entrePeticiones{500};
/// How long an active window may be without the keyboard before its word is taken: a program may keep it in a
/// window that is not below its own.
constexpr std::chrono::milliseconds esperaDelTeclado{1000};
/// How long the window must keep the keyboard: a program that learns late that it had it takes it back.
constexpr std::chrono::milliseconds firmeza{100};
constexpr int masHondo = 32;

}  // namespace

struct VentanasX::Conexion {
  Conexion() {
    int pantalla = 0;
    x = xcb_connect(nullptr, &pantalla);
    if (xcb_connection_has_error(x) != 0) return;
    raiz = X11::raiz(x, pantalla);
  }
  Conexion(Conexion const&) = delete;
  Conexion& operator=(Conexion const&) = delete;
  ~Conexion() { xcb_disconnect(x); }

  [[nodiscard]] xcb_atom_t atomo(std::string_view nombre) const {
    if (auto const conocido = atomos.find(nombre); conocido != atomos.end()) return conocido->second;
    return atomos[nombre] = X11::atomoNuevo(x, nombre);
  }

  [[nodiscard]] std::string texto(xcb_window_t ventana, std::string_view nombre) const {
    return X11::texto(x, ventana, atomo(nombre));
  }

  [[nodiscard]] std::vector<std::uint32_t> numeros(xcb_window_t ventana, std::string_view nombre) const {
    return X11::numeros(x, ventana, atomo(nombre));
  }

  [[nodiscard]] std::optional<std::uint32_t> numero(xcb_window_t ventana, std::string_view nombre) const {
    auto const todos = numeros(ventana, nombre);
    return todos.empty() ? std::nullopt : std::optional{todos.front()};
  }

  /// The process on this machine that made the window, by the server's own word (X-Resource 1.2); 0 where it
  /// has none. What a window says of itself (_NET_WM_PID) may be a lie.
  [[nodiscard]] pid_t proceso(xcb_window_t ventana) const {
    xcb_res_client_id_spec_t const cual{ventana, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    X11::Respuesta<xcb_res_query_client_ids_reply_t> const respuesta{
        xcb_res_query_client_ids_reply(x, xcb_res_query_client_ids(x, 1, &cual), nullptr)};
    if (!respuesta) return 0;
    auto ids = xcb_res_query_client_ids_ids_iterator(respuesta.get());
    for (; ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
      bool const esPid = (ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0;
      if (!esPid || xcb_res_client_id_value_value_length(ids.data) < 1) continue;
      return static_cast<pid_t>(*xcb_res_client_id_value_value(ids.data));
    }
    return 0;
  }

  /// A dialog stands before a window of its own (ICCCM 4.1.2.6) and shows no session.
  [[nodiscard]] bool esDeOtra(xcb_window_t ventana) const {
    auto const cual = numero(ventana, "WM_TRANSIENT_FOR").value_or(XCB_WINDOW_NONE);
    return cual != XCB_WINDOW_NONE && cual != raiz;
  }

  /// The server's time, always later than what was given before: a request that carries it wins over a
  /// program that takes the keyboard late, with the time of an older request (ICCCM 4.1.7).
  [[nodiscard]] xcb_timestamp_t hora() const {
    if (!reloj) reloj.emplace(x, raiz);
    std::this_thread::sleep_for(std::chrono::milliseconds{2});
    return reloj->ahora();
  }

  void pedir(xcb_window_t ventana, std::string_view nombre, std::uint32_t primero) const {
    X11::pedirAlGestor(x, raiz, ventana, atomo(nombre), primero, hora());
  }

  /// The keyboard is in the window or in one below it.
  [[nodiscard]] bool tieneElTeclado(xcb_window_t ventana) const {
    auto cual = X11::tecladoEn(x);
    for (int nivel = 0; nivel < masHondo && cual > XCB_INPUT_FOCUS_POINTER_ROOT && cual != raiz; ++nivel) {
      if (cual == ventana) return true;
      X11::Respuesta<xcb_query_tree_reply_t> const arbol{
          xcb_query_tree_reply(x, xcb_query_tree(x, cual), nullptr)};
      cual = arbol ? arbol->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    }
    return false;
  }

  void irASuEscritorio(xcb_window_t ventana) const {
    auto const suyo = numero(ventana, "_NET_WM_DESKTOP");
    if (suyo && *suyo != todosLosEscritorios && suyo != numero(raiz, "_NET_CURRENT_DESKTOP")) {
      pedir(raiz, "_NET_CURRENT_DESKTOP", *suyo);
    }
  }

  xcb_connection_t* x = nullptr;
  xcb_window_t raiz = XCB_WINDOW_NONE;
  mutable std::optional<X11::HoraDelServidor> reloj;
  mutable std::map<std::string_view, xcb_atom_t> atomos;
};

VentanasX::VentanasX() : conexion_{std::make_unique<Conexion>()} {}

VentanasX::~VentanasX() = default;

bool VentanasX::abierta() const { return conexion_->raiz != XCB_WINDOW_NONE; }

std::vector<Ventana> VentanasX::todas() const {
  if (!abierta()) return {};
  std::vector<Ventana> ventanas;
  auto const activa = conexion_->numero(conexion_->raiz, "_NET_ACTIVE_WINDOW");
  for (auto const ventana : conexion_->numeros(conexion_->raiz, "_NET_CLIENT_LIST")) {
    if (conexion_->esDeOtra(ventana)) continue;
    auto const pid = conexion_->proceso(ventana);
    auto titulo = conexion_->texto(ventana, "_NET_WM_NAME");
    if (titulo.empty()) titulo = conexion_->texto(ventana, "WM_NAME");
    ventanas.push_back({ventana, pid, std::move(titulo), activa == ventana});
  }
  return ventanas;
}

namespace {

/// Since when `vale` holds without a break.
void desde(std::optional<Reloj::time_point>& cuando, bool vale, Reloj::time_point ahora) {
  if (!vale) {
    cuando.reset();
  } else if (!cuando) {
    cuando = ahora;
  }
}

}  // namespace

bool VentanasX::activar(std::uint64_t id, std::chrono::milliseconds plazo) const {
  if (!abierta()) return false;
  auto const ventana = static_cast<xcb_window_t>(id);
  auto const limite = Reloj::now() + plazo;
  auto siguiente = Reloj::now();
  std::optional<Reloj::time_point> activaDesde;
  std::optional<Reloj::time_point> conTecladoDesde;
  while (Reloj::now() < limite) {
    if (!conTecladoDesde && Reloj::now() >= siguiente) {
      conexion_->irASuEscritorio(ventana);
      conexion_->pedir(ventana, "_NET_ACTIVE_WINDOW", comoUnPaginador);
      siguiente = Reloj::now() + entrePeticiones;
    }
    auto const ahora = Reloj::now();
    bool const activa = conexion_->numero(conexion_->raiz, "_NET_ACTIVE_WINDOW") == ventana;
    desde(activaDesde, activa, ahora);
    desde(conTecladoDesde, activa && conexion_->tieneElTeclado(ventana), ahora);
    if (conTecladoDesde && ahora - *conTecladoDesde >= firmeza) return true;
    if (activaDesde && !conTecladoDesde && ahora - *activaDesde >= esperaDelTeclado) return true;
    std::this_thread::sleep_for(entreMiradas);
  }
  return activaDesde.has_value();
}

}  // namespace zorve::ayudante
