#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

#include <signal.h>  // NOLINT(modernize-deprecated-headers): kill() is POSIX, not C++

#include <cerrno>

namespace zorve {

bool VidaDeProcesosPosix::vive(std::int32_t pid) { return ::kill(pid, 0) == 0 || errno == EPERM; }

}  // namespace zorve
