#include "ZorveTerminal/FrasesDeEnfoque.h"

#include "ZorveCore/Escape.h"
#include "ZorveCore/TextoVisible.h"

namespace zorve {

std::string fraseNoEsta(FichaDeTerminal const& ficha, std::string const& tty) {
  return "Zorve found no " + ficha.nombre + " session on " + textoVisible(ttyCorto(tty)) +
         ". The Claude session is still alive, but its window no longer exists.";
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

}  // namespace zorve
