#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

bool Terminal::hospeda(std::string_view command) const {
  return command.contains("/" + nombreDelBundle() + "/");
}

}  // namespace zorve
