#include "ZorveApp/Qt/Activacion/ActivacionX11.h"

#include <unistd.h>
#include <xcb/xinput.h>

#include <QGuiApplication>
#include <QSysInfo>
#include <algorithm>
#include <utility>

#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

constexpr std::uint32_t pedidoDeUnPrograma = 1;
constexpr qsizetype trozoDeMensaje = 20;

/// A word of a startup message: quotes and backslashes escaped.
QByteArray entreComillas(QString const& texto) {
  auto palabra = texto.toUtf8();
  palabra.replace('\\', "\\\\").replace('"', "\\\"");
  return '"' + palabra + '"';
}

}  // namespace

bool ActivacionX11::hay() { return X11::conexion() != nullptr; }

ActivacionX11::ActivacionX11() : conexion_{X11::conexion()}, raiz_{X11::raiz(conexion_)} {
  auto const* const entrada = xcb_get_extension_data(conexion_, &xcb_input_id);
  if (entrada && entrada->present != 0) extension_ = entrada->major_opcode;
  qGuiApp->installNativeEventFilter(this);
}

ActivacionX11::~ActivacionX11() {
  if (qGuiApp) qGuiApp->removeNativeEventFilter(this);
}

void ActivacionX11::recibir(Testigo testigo) {
  agotar();
  testigo_ = std::move(testigo);
}

void ActivacionX11::alFrente(QWindow& ventana) {
  // Who asked without a time of their own, such as a bar that draws our menu, asked now.
  auto const dicho = testigo_.momento();
  auto const momento = dicho != 0 ? dicho : X11::momentoDelServidor();
  ventana.raise();
  if (momento == 0) {
    ventana.requestActivate();
  } else {
    activar(static_cast<xcb_window_t>(ventana.winId()), momento);
  }
  agotar();
}

void ActivacionX11::activar(xcb_window_t ventana, std::uint32_t momento) {
  xcb_client_message_event_t mensaje{};
  mensaje.response_type = XCB_CLIENT_MESSAGE;
  mensaje.format = 32;
  mensaje.window = ventana;
  mensaje.type = X11::atomo(conexion_, "_NET_ACTIVE_WINDOW");
  mensaje.data.data32[0] = pedidoDeUnPrograma;
  mensaje.data.data32[1] = momento;
  xcb_send_event(conexion_, 0, raiz_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<char const*>(&mensaje));
  xcb_flush(conexion_);
}

void ActivacionX11::agotar() {
  auto const gastado = std::exchange(testigo_, {});
  if (!gastado.arranque.isEmpty()) difundir("remove: ID=" + entreComillas(gastado.arranque));
}

/// A text in pieces of twenty bytes, the last one ended by a NUL, to whoever listens at the root.
void ActivacionX11::difundir(QByteArray const& texto) {
  auto const primero = X11::atomo(conexion_, "_NET_STARTUP_INFO_BEGIN");
  auto const siguientes = X11::atomo(conexion_, "_NET_STARTUP_INFO");
  if (primero == 0 || siguientes == 0) return;
  auto const emisora = xcb_generate_id(conexion_);
  xcb_create_window(conexion_, 0, emisora, raiz_, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                    nullptr);
  xcb_client_message_event_t mensaje{};
  mensaje.response_type = XCB_CLIENT_MESSAGE;
  mensaje.format = 8;
  mensaje.window = emisora;
  mensaje.type = primero;
  for (qsizetype desde = 0; desde <= texto.size(); desde += trozoDeMensaje) {
    std::ranges::fill(mensaje.data.data8, std::uint8_t{0});
    std::ranges::copy(texto.mid(desde, trozoDeMensaje), std::begin(mensaje.data.data8));
    xcb_send_event(conexion_, 0, raiz_, XCB_EVENT_MASK_PROPERTY_CHANGE,
                   reinterpret_cast<char const*>(&mensaje));
    mensaje.type = siguientes;
  }
  xcb_destroy_window(conexion_, emisora);
  xcb_flush(conexion_);
}

void ActivacionX11::pedir(std::function<void(Testigo)> alTener) {
  if (ultimoGesto_ == 0) return alTener({});
  alTener({{},
           QStringLiteral("zorve-%1-%2-%3_TIME%4")
               .arg(::getpid())
               .arg(pedidos_++)
               .arg(QSysInfo::machineHostName())
               .arg(ultimoGesto_)});
}

bool ActivacionX11::nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* /*resultado*/) {
  if (clase != "xcb_generic_event_t") return false;
  auto const* const evento = static_cast<xcb_generic_event_t const*>(mensaje);
  auto const tipo = evento->response_type & 0x7FU;
  if (tipo == XCB_KEY_PRESS || tipo == XCB_BUTTON_PRESS) {
    ultimoGesto_ = static_cast<xcb_key_press_event_t const*>(mensaje)->time;
  }
  auto const* const general = static_cast<xcb_input_button_press_event_t const*>(mensaje);
  if (tipo == XCB_GE_GENERIC && general->extension == extension_ &&
      general->event_type == XCB_INPUT_BUTTON_PRESS) {
    ultimoGesto_ = general->time;
  }
  return false;
}

}  // namespace zorve
