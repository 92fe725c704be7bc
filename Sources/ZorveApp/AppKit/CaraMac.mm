#import "ZorveApp/AppKit/CaraMac.h"

#import "ZorveApp/AppKit/Delegado.h"

namespace zorve {

bool CaraMac::panelVisible() const { return [delegado_ panelVisible] == YES; }

void CaraMac::mostrarPanel() { [delegado_ mostrar]; }

void CaraMac::cerrarPanel() { [delegado_ cerrarPanel]; }

void CaraMac::mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) { [delegado_ mostrarMenu:entradas]; }

void CaraMac::mostrarAjustes() { [delegado_ mostrarAjustes]; }

void CaraMac::salir() { [NSApplication.sharedApplication terminate:nil]; }

}  // namespace zorve
