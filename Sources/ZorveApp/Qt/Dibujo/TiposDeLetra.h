#pragma once

namespace zorve {

/// From now on what the interface font lacks is looked for in the desktop's colour emoji font before any
/// other, so that joined emoji stay one glyph. Without such a font nothing changes. Main thread only.
void preferirEmojiEnColor();

}  // namespace zorve
