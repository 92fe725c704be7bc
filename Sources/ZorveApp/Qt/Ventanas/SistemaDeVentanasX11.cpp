#include "ZorveApp/Qt/Ventanas/SistemaDeVentanasX11.h"

#include <xcb/xinput.h>

#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "ZorveApp/Qt/Ventanas/Barras.h"
#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

/// What a window manager takes at most to move the keyboard to a window that was pressed.
constexpr std::chrono::milliseconds margenDelGestor{200};

/// A compositor that blurs has it at the root; a window that wants it has its rectangles there.
constexpr auto regionDesenfocada = "_KDE_NET_WM_BLUR_BEHIND_REGION";

xcb_window_t nativa(QWindow const& ventana) { return static_cast<xcb_window_t>(ventana.winId()); }

}  // namespace

bool SistemaDeVentanasX11::hayTransparencia() const { return X11::duenoDe(conexion(), "_NET_WM_CM_S0") != 0; }

bool SistemaDeVentanasX11::hayDesenfoque() const {
  auto const region = X11::atomo(conexion(), regionDesenfocada);
  if (region == 0 || !hayTransparencia()) return false;
  X11::Respuesta<xcb_list_properties_reply_t> const lista{
      xcb_list_properties_reply(conexion(), xcb_list_properties(conexion(), raiz()), nullptr)};
  if (!lista) return false;
  auto const* const atomos = xcb_list_properties_atoms(lista.get());
  return std::find(atomos, atomos + lista->atoms_len, region) != atomos + lista->atoms_len;
}

void SistemaDeVentanasX11::desenfocar(QWindow& ventana, QRegion const& forma) {
  auto const region = X11::atomo(conexion(), regionDesenfocada);
  if (region == 0) return;
  std::vector<std::uint32_t> numeros;
  for (auto const& trozo : forma) {
    for (int const numero : {trozo.x(), trozo.y(), trozo.width(), trozo.height()}) {
      numeros.push_back(static_cast<std::uint32_t>(numero));
    }
  }
  if (forma.isEmpty()) {
    xcb_delete_property(conexion(), nativa(ventana), region);
  } else {
    xcb_change_property(conexion(), XCB_PROP_MODE_REPLACE, nativa(ventana), region, XCB_ATOM_CARDINAL, 32,
                        static_cast<std::uint32_t>(numeros.size()), numeros.data());
  }
  xcb_flush(conexion());
}

QRect SistemaDeVentanasX11::areaLibre(QScreen const& pantalla) const {
  return sinBarras(pantalla, barrasDelEscritorio(conexion(), raiz()));
}

void SistemaDeVentanasX11::preparar(QWindow& ventana) {
  ventana.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                   Qt::NoDropShadowWindowHint);
}

bool SistemaDeVentanasX11::tieneElTeclado(QWindow const& ventana) const {
  return X11::tecladoEn(conexion()) == nativa(ventana);
}

void SistemaDeVentanasX11::tomarElTeclado(QWindow& ventana) {
  auto const dueno = X11::tecladoEn(conexion());
  if (dueno != nativa(ventana)) anterior_ = dueno;
  darElTeclado(nativa(ventana));
}

void SistemaDeVentanasX11::darElTeclado(std::uint32_t ventana) {
  xcb_set_input_focus(conexion(), XCB_INPUT_FOCUS_POINTER_ROOT, ventana, XCB_CURRENT_TIME);
  xcb_flush(conexion());
}

bool SistemaDeVentanasX11::nadieTieneElTeclado() const {
  auto const dueno = X11::tecladoEn(conexion());
  return dueno == XCB_NONE || dueno == XCB_INPUT_FOCUS_POINTER_ROOT || dueno == raiz();
}

void SistemaDeVentanasX11::devolverElTeclado(QWindow& ventana) {
  auto const anterior = std::exchange(anterior_, std::nullopt);
  if (anterior && tieneElTeclado(ventana)) darElTeclado(*anterior);
}

void SistemaDeVentanasX11::soltarElTeclado(QWindow& ventana) {
  auto const anterior = std::exchange(anterior_, std::nullopt);
  if (!anterior || !tieneElTeclado(ventana)) return;
  QTimer::singleShot(margenDelGestor, qGuiApp, [this, anterior = *anterior] {
    if (nadieTieneElTeclado()) darElTeclado(anterior);
  });
}

void SistemaDeVentanasX11::vigilarPulsaciones(QWindow& ventana, std::function<void(QPoint)> alPulsarFuera) {
  vigilada_ = alPulsarFuera ? &ventana : nullptr;
  alPulsarFuera_ = std::move(alPulsarFuera);
  escucharPulsaciones(vigilada_ != nullptr);
}

void SistemaDeVentanasX11::escucharPulsaciones(bool si) {
  if (!hayEntrada()) return;
  struct {
    xcb_input_event_mask_t cabeza;
    std::uint32_t mascara;
  } const pedido{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                 si ? static_cast<std::uint32_t>(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS) : 0U};
  xcb_input_xi_select_events(conexion(), raiz(), 1, &pedido.cabeza);
  xcb_flush(conexion());
}

bool SistemaDeVentanasX11::alSuceso(xcb_generic_event_t const& suceso) {
  if (!vigilada_ || !esDeEntrada(suceso, XCB_INPUT_RAW_BUTTON_PRESS)) return false;
  auto const boton = reinterpret_cast<xcb_input_raw_button_press_event_t const&>(suceso).detail;
  constexpr std::uint32_t primeroDeRueda = 4;
  constexpr std::uint32_t ultimoDeRueda = 7;
  if (boton < primeroDeRueda || boton > ultimoDeRueda) comprobarPulsacion();
  return true;
}

void SistemaDeVentanasX11::comprobarPulsacion() {
  X11::Respuesta<xcb_query_pointer_reply_t> const donde{
      xcb_query_pointer_reply(conexion(), xcb_query_pointer(conexion(), nativa(*vigilada_)), nullptr)};
  if (!donde) return;
  auto const tamano = QSizeF{vigilada_->size()} * vigilada_->devicePixelRatio();
  if (QRectF{QPointF{0, 0}, tamano}.contains(donde->win_x, donde->win_y)) return;
  // A copy: who is told may end the listening.
  auto const avisar = alPulsarFuera_;
  avisar(QCursor::pos());
}

}  // namespace zorve
