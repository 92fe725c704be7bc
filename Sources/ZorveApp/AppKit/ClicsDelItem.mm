#import "ZorveApp/AppKit/ClicsDelItem.h"

namespace zorve {

ClicsDelItem::Clic ClicsDelItem::delBoton(NSEvent* evento, NSWindow* ventana) {
  bool const derecho = evento.type == NSEventTypeRightMouseUp;
  bool const deRaton = derecho || evento.type == NSEventTypeLeftMouseUp;
  bool const aqui = evento.window == nil || evento.window == ventana;
  if (evento == nil || !deRaton || !aqui || evento.timestamp == delBoton_) return {};
  delBoton_ = evento.timestamp;
  ClicEnLaBarra const clic{.derecho = derecho,
                           .conControl = (evento.modifierFlags & NSEventModifierFlagControl) != 0};
  bool const yaOido = derecho && delBoton_ == deOyente_;
  return {.que = yaOido || esElDelCierre(clic, delBoton_) ? Que::repetido : Que::suyo, .evento = clic};
}

bool ClicsDelItem::deOyente(NSEvent* evento) {
  deOyente_ = evento.timestamp;
  return deOyente_ != delBoton_;
}

bool ClicsDelItem::esElDelCierre(ClicEnLaBarra const& clic, NSTimeInterval cuando) const {
  return !clic.derecho && !clic.conControl && cierre_ >= 0 && cuando - cierre_ < trasElCierre;
}

}  // namespace zorve
