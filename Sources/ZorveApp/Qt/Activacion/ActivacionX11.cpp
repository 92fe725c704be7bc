#include "ZorveApp/Qt/Activacion/ActivacionX11.h"

#include <unistd.h>
#include <xcb/xinput.h>

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
  X11::pedirAlGestor(conexion(), raiz(), ventana, X11::atomo(conexion(), "_NET_ACTIVE_WINDOW"),
                     pedidoDeUnPrograma, momento);
}

void ActivacionX11::agotar() {
  auto const gastado = std::exchange(testigo_, {});
  if (!gastado.arranque.isEmpty()) difundir("remove: ID=" + entreComillas(gastado.arranque));
}

/// A text in pieces of twenty bytes, the last one ended by a NUL, to whoever listens at the root.
void ActivacionX11::difundir(QByteArray const& texto) {
  auto const primero = X11::atomo(conexion(), "_NET_STARTUP_INFO_BEGIN");
  auto const siguientes = X11::atomo(conexion(), "_NET_STARTUP_INFO");
  if (primero == 0 || siguientes == 0) return;
  auto const emisora = xcb_generate_id(conexion());
  xcb_create_window(conexion(), 0, emisora, raiz(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                    nullptr);
  xcb_client_message_event_t mensaje{};
  mensaje.response_type = XCB_CLIENT_MESSAGE;
  mensaje.format = 8;
  mensaje.window = emisora;
  mensaje.type = primero;
  for (qsizetype desde = 0; desde <= texto.size(); desde += trozoDeMensaje) {
    std::ranges::fill(mensaje.data.data8, std::uint8_t{0});
    std::ranges::copy(texto.mid(desde, trozoDeMensaje), std::begin(mensaje.data.data8));
    xcb_send_event(conexion(), 0, raiz(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                   reinterpret_cast<char const*>(&mensaje));
    mensaje.type = siguientes;
  }
  xcb_destroy_window(conexion(), emisora);
  xcb_flush(conexion());
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

bool ActivacionX11::alSuceso(xcb_generic_event_t const& suceso) {
  if (tipoDe(suceso) == XCB_KEY_PRESS || tipoDe(suceso) == XCB_BUTTON_PRESS) {
    ultimoGesto_ = reinterpret_cast<xcb_key_press_event_t const&>(suceso).time;
  } else if (esDeEntrada(suceso, XCB_INPUT_BUTTON_PRESS)) {
    ultimoGesto_ = reinterpret_cast<xcb_input_button_press_event_t const&>(suceso).time;
  }
  return false;
}

}  // namespace zorve
