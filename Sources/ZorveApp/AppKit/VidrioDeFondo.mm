#import "ZorveApp/AppKit/VidrioDeFondo.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace {

constexpr NSInteger vidrioClaro = 1;

NSView* vistaDeVidrio(Class vidrio) {
  NSView* const vista = [[vidrio alloc] initWithFrame:NSZeroRect];
  [vista setValue:[NSNumber numberWithInteger:vidrioClaro] forKey:@"style"];
  return vista;
}

NSView* vistaDeEfecto() {
  NSVisualEffectView* const vista = [[NSVisualEffectView alloc] initWithFrame:NSZeroRect];
  vista.material = NSVisualEffectMaterialHUDWindow;
  vista.blendingMode = NSVisualEffectBlendingModeBehindWindow;
  vista.state = NSVisualEffectStateActive;
  return vista;
}

}  // namespace

@implementation VidrioDeZorve

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    self.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    Class const vidrio = NSClassFromString(@"NSGlassEffectView");
    zorve::llenar(vidrio == Nil ? vistaDeEfecto() : vistaDeVidrio(vidrio), self);
  }
  return self;
}

- (void)reactivar {
  for (NSView* vista in self.subviews) {
    if (![vista isKindOfClass:NSVisualEffectView.class]) continue;
    static_cast<NSVisualEffectView*>(vista).state = NSVisualEffectStateActive;
  }
}

@end

/// Tint and light, drawn over the blur.
@interface TinteDeVidrio : NSView
@end

@implementation TinteDeVidrio

- (void)drawRect:(NSRect)sucio {
  namespace Estilo = zorve::Estilo;
  [zorve::colorDe(zorve::menosTransparencia() ? Estilo::tinteBase : Estilo::tinte) setFill];
  NSRectFillUsingOperation(self.bounds, NSCompositingOperationSourceOver);
  [zorve::degradadoDe(Estilo::luzSuperior) drawInRect:self.bounds angle:-90];
}

@end

@implementation VidrioDeFondo {
  VidrioDeZorve* _vidrio;
}

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _vidrio = [[VidrioDeZorve alloc] initWithFrame:self.bounds];
    TinteDeVidrio* const tinte = [[TinteDeVidrio alloc] initWithFrame:self.bounds];
    zorve::llenar(_vidrio, self);
    zorve::llenar(tinte, self);
    self.accessibilityElement = NO;
    [NSWorkspace.sharedWorkspace.notificationCenter
        addObserver:self
           selector:@selector(cambiaronLasOpciones:)
               name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
             object:nil];
  }
  return self;
}

- (void)reactivar {
  [_vidrio reactivar];
}

- (void)cambiaronLasOpciones:(NSNotification*)nota {
  for (NSView* vista in self.subviews) vista.needsDisplay = YES;
}

@end
