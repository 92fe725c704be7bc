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

bool SistemaDeVentanasX11::hay() { return X11::conexion() != nullptr; }

SistemaDeVentanasX11::SistemaDeVentanasX11() : conexion_{X11::conexion()}, raiz_{X11::raiz(conexion_)} {
  auto const* const entrada = xcb_get_extension_data(conexion_, &xcb_input_id);
  if (entrada && entrada->present != 0) extension_ = entrada->major_opcode;
  qGuiApp->installNativeEventFilter(this);
}

SistemaDeVentanasX11::~SistemaDeVentanasX11() {
  if (qGuiApp) qGuiApp->removeNativeEventFilter(this);
}

bool SistemaDeVentanasX11::hayTransparencia() const { return X11::duenoDe(conexion_, "_NET_WM_CM_S0") != 0; }

bool SistemaDeVentanasX11::hayDesenfoque() const {
  auto const region = X11::atomo(conexion_, regionDesenfocada);
  if (region == 0 || !hayTransparencia()) return false;
  X11::Respuesta<xcb_list_properties_reply_t> const lista{
      xcb_list_properties_reply(conexion_, xcb_list_properties(conexion_, raiz_), nullptr)};
  if (!lista) return false;
  auto const* const atomos = xcb_list_properties_atoms(lista.get());
  return std::find(atomos, atomos + lista->atoms_len, region) != atomos + lista->atoms_len;
}

void SistemaDeVentanasX11::desenfocar(QWindow& ventana, QRegion const& forma) {
  auto const region = X11::atomo(conexion_, regionDesenfocada);
  if (region == 0) return;
  std::vector<std::uint32_t> numeros;
  for (auto const& trozo : forma) {
    for (int const numero : {trozo.x(), trozo.y(), trozo.width(), trozo.height()}) {
      numeros.push_back(static_cast<std::uint32_t>(numero));
    }
  }
  if (forma.isEmpty()) {
    xcb_delete_property(conexion_, nativa(ventana), region);
  } else {
    xcb_change_property(conexion_, XCB_PROP_MODE_REPLACE, nativa(ventana), region, XCB_ATOM_CARDINAL, 32,
                        static_cast<std::uint32_t>(numeros.size()), numeros.data());
  }
  xcb_flush(conexion_);
}

QRect SistemaDeVentanasX11::areaLibre(QScreen const& pantalla) const {
  return sinBarras(pantalla, barrasDelEscritorio(conexion_, raiz_));
}

void SistemaDeVentanasX11::preparar(QWindow& ventana) {
  ventana.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                   Qt::NoDropShadowWindowHint);
}

std::uint32_t SistemaDeVentanasX11::duenoDelTeclado() const {
  X11::Respuesta<xcb_get_input_focus_reply_t> const quien{
      xcb_get_input_focus_reply(conexion_, xcb_get_input_focus(conexion_), nullptr)};
  return quien ? quien->focus : 0;
}

bool SistemaDeVentanasX11::tieneElTeclado(QWindow const& ventana) const {
  return duenoDelTeclado() == nativa(ventana);
}

void SistemaDeVentanasX11::tomarElTeclado(QWindow& ventana) {
  auto const dueno = duenoDelTeclado();
  if (dueno != nativa(ventana)) anterior_ = dueno;
  darElTeclado(nativa(ventana));
}

void SistemaDeVentanasX11::darElTeclado(std::uint32_t ventana) {
  xcb_set_input_focus(conexion_, XCB_INPUT_FOCUS_POINTER_ROOT, ventana, XCB_CURRENT_TIME);
  xcb_flush(conexion_);
}

bool SistemaDeVentanasX11::nadieTieneElTeclado() const {
  auto const dueno = duenoDelTeclado();
  return dueno == XCB_NONE || dueno == XCB_INPUT_FOCUS_POINTER_ROOT || dueno == raiz_;
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
  if (extension_ == 0) return;
  struct {
    xcb_input_event_mask_t cabeza;
    std::uint32_t mascara;
  } const pedido{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                 si ? static_cast<std::uint32_t>(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS) : 0U};
  xcb_input_xi_select_events(conexion_, raiz_, 1, &pedido.cabeza);
  xcb_flush(conexion_);
}

bool SistemaDeVentanasX11::nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* /*resultado*/) {
  if (!vigilada_ || clase != "xcb_generic_event_t") return false;
  auto const* const evento = static_cast<xcb_ge_generic_event_t const*>(mensaje);
  if ((evento->response_type & 0x7F) != XCB_GE_GENERIC || evento->extension != extension_ ||
      evento->event_type != XCB_INPUT_RAW_BUTTON_PRESS) {
    return false;
  }
  auto const boton = reinterpret_cast<xcb_input_raw_button_press_event_t const*>(evento)->detail;
  constexpr std::uint32_t primeroDeRueda = 4;
  constexpr std::uint32_t ultimoDeRueda = 7;
  if (boton < primeroDeRueda || boton > ultimoDeRueda) comprobarPulsacion();
  return true;
}

void SistemaDeVentanasX11::comprobarPulsacion() {
  X11::Respuesta<xcb_query_pointer_reply_t> const donde{
      xcb_query_pointer_reply(conexion_, xcb_query_pointer(conexion_, nativa(*vigilada_)), nullptr)};
  if (!donde) return;
  auto const tamano = QSizeF{vigilada_->size()} * vigilada_->devicePixelRatio();
  if (QRectF{QPointF{0, 0}, tamano}.contains(donde->win_x, donde->win_y)) return;
  // A copy: who is told may end the listening.
  auto const avisar = alPulsarFuera_;
  avisar(QCursor::pos());
}

}  // namespace zorve
