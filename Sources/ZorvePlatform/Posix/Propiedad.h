#pragma once

#include <string>

namespace zorve {

/// Whether nobody but this user and root can put something else in the place of `ruta` (absolute, links
/// followed; it is there): it and every folder above are theirs, and nobody else may write to them, or only
/// as to a sticky folder. A group that holds nobody but this user is this user.
[[nodiscard]] bool soloNuestra(std::string const& ruta);

/// Whether `ruta` is the absolute path of a folder (no link) of this user's that is closed to all others, and
/// `soloNuestra`.
[[nodiscard]] bool esCarpetaPrivada(std::string const& ruta);

}  // namespace zorve
