#include "ZorveApp/Qt/Ventanas/OyenteDeX11.h"

#include <xcb/xinput.h>

#include <QGuiApplication>

#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

bool OyenteDeX11::hay() { return X11::conexion() != nullptr; }

OyenteDeX11::OyenteDeX11() : conexion_{X11::conexion()}, raiz_{X11::raiz(conexion_)} {
  auto const* const extension = xcb_get_extension_data(conexion_, &xcb_input_id);
  if (extension && extension->present != 0) entrada_ = extension->major_opcode;
  qGuiApp->installNativeEventFilter(this);
}

OyenteDeX11::~OyenteDeX11() {
  if (qGuiApp) qGuiApp->removeNativeEventFilter(this);
}

bool OyenteDeX11::nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* /*resultado*/) {
  return clase == "xcb_generic_event_t" && alSuceso(*static_cast<xcb_generic_event_t const*>(mensaje));
}

std::uint8_t OyenteDeX11::tipoDe(xcb_generic_event_t const& suceso) {
  constexpr std::uint8_t sinLaMarcaDeEnviado = 0x7F;
  return suceso.response_type & sinLaMarcaDeEnviado;
}

bool OyenteDeX11::esDeEntrada(xcb_generic_event_t const& suceso, std::uint16_t cual) const {
  if (tipoDe(suceso) != XCB_GE_GENERIC) return false;
  auto const& general = reinterpret_cast<xcb_ge_generic_event_t const&>(suceso);
  return general.extension == entrada_ && general.event_type == cual;
}

}  // namespace zorve
