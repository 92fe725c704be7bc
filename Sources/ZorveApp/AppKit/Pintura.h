#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/Estilo.h"

NS_ASSUME_NONNULL_BEGIN

namespace zorve {

[[nodiscard]] NSColor* colorDe(Color const& color);
/// The same, half way to white while the system asks for more contrast.
[[nodiscard]] NSColor* colorLegible(Color const& color);
[[nodiscard]] NSGradient* degradadoDe(Degradado const& degradado);

/// A one-line label of plain text, cut at its end, that takes no clicks from what lies under it.
[[nodiscard]] NSTextField* rotulo(NSFont* letra, Color const& color);
/// A system symbol in `color`; assistive software does not see it.
[[nodiscard]] NSImageView* simbolo(NSString* nombre, CGFloat puntos, Color const& color);

/// A filled and outlined rounded rectangle just inside `marco`.
void tarjeta(NSRect marco, CGFloat radio, Color const& fondo, Color const& contorno);

/// Adds `dentro` to `fuera`, edge to edge.
void llenar(NSView* dentro, NSView* fuera);
/// Adds `dentro` to `fuera`, to be placed by constraints.
void colgar(NSView* dentro, NSView* fuera);

/// Out of hiding, and in front of the other programs.
void traerElPrograma();

[[nodiscard]] BOOL masContraste();
[[nodiscard]] BOOL menosTransparencia();

}  // namespace zorve

/// A line one point thick along the width of its place.
@interface LineaFina : NSView
@end

NS_ASSUME_NONNULL_END
