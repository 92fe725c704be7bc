#include "ZorvePlatform/Posix/SenalesDeHijos.h"

#include <csignal>

namespace zorve {

void recordarALosHijos() { (void)std::signal(SIGCHLD, SIG_DFL); }

}  // namespace zorve
