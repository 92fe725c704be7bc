#import "ZorveApp/AppKit/MenuDeEdicion.h"

namespace zorve {

NSMenu* menuDeEdicion() {
  NSMenu* const edicion = [[NSMenu alloc] init];
  [edicion addItemWithTitle:@"" action:@selector(undo:) keyEquivalent:@"z"];
  [edicion addItemWithTitle:@"" action:@selector(redo:) keyEquivalent:@"Z"];
  [edicion addItemWithTitle:@"" action:@selector(cut:) keyEquivalent:@"x"];
  [edicion addItemWithTitle:@"" action:@selector(paste:) keyEquivalent:@"v"];
  [edicion addItemWithTitle:@"" action:@selector(selectAll:) keyEquivalent:@"a"];
  NSMenuItem* const titulo = [[NSMenuItem alloc] initWithTitle:@"" action:nullptr keyEquivalent:@""];
  titulo.submenu = edicion;
  NSMenu* const principal = [[NSMenu alloc] init];
  [principal addItem:titulo];
  return principal;
}

}  // namespace zorve
