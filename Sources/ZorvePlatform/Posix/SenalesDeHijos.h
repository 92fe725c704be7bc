#pragma once

namespace zorve {

/// Children that end wait to be asked how. Whoever starts a program with SIGCHLD ignored takes that from it:
/// the kernel then forgets them at once (sigaction(2), POSIX). For the beginning of a main.
void recordarALosHijos();

}  // namespace zorve
