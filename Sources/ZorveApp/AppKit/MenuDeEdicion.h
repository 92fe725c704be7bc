#pragma once

#import <AppKit/AppKit.h>

namespace zorve {

/// A main menu that is never seen: it gives text fields the system's editing keys (undo, redo, cut, paste,
/// select all). Copying is not among them: that key is the panel's.
[[nodiscard]] NSMenu* _Nonnull menuDeEdicion();

}  // namespace zorve
