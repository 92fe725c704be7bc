#include "ZorveTerminal/FrasesDeEnfoque.h"

#include "ZorveCore/Terminales/Anfitriona.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve::ayudante {

std::string fraseNoEsta(FichaDeTerminal const& ficha, std::string const& tty) {
  return sesionNoHallada(ficha.nombre, textoVisible(ttyCorto(tty)));
}

std::string fraseVarias(FichaDeTerminal const& ficha, std::string const& tty) {
  return "Zorve found several " + ficha.nombre + " windows or tabs and cannot tell which one shows " +
         textoVisible(ttyCorto(tty)) + ".";
}

std::string fraseNoContesta(FichaDeTerminal const& ficha, std::string const& tty) {
  return ficha.nombre + " does not answer, so its session on " + textoVisible(ttyCorto(tty)) +
         " could not be shown. Try again when it responds.";
}

std::string fraseNoVino(FichaDeTerminal const& ficha) {
  return "the window manager did not bring the " + ficha.nombre + " window to the front";
}

std::string fraseSinExtension(FichaDeTerminal const& ficha, std::string const& tty) {
  return "GNOME brings the " + ficha.nombre + " window of " + textoVisible(ttyCorto(tty)) +
         " to the front only through Zorve's extension of it, which is off. Switch it on in Zorve's "
         "settings, "
         "section Terminal.";
}

std::string fraseVariasSinExtension(FichaDeTerminal const& ficha, std::string const& tty) {
  return fraseVarias(ficha, tty) +
         " Zorve's GNOME extension would tell: switch it on in Zorve's settings, section Terminal.";
}

}  // namespace zorve::ayudante
