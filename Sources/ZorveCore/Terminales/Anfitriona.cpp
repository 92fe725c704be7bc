#include "ZorveCore/Terminales/Anfitriona.h"

namespace zorve {

std::string sesionNoHallada(std::string const& nombre, std::string const& ttyCorto) {
  return "Zorve found no " + nombre + " session on " + ttyCorto +
         ". The Claude session is still alive, but its window no longer exists.";
}

}  // namespace zorve
