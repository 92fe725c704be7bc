#import "MacOS/Frente/Frente.h"

#include <iostream>

namespace zorve {

Frente::Frente() {
  tramoya::reponer();
  EXPECT_TRUE(preferencias.escribir(PrimerArranque::clave, true).has_value());
  FuentesDeTerminales const terminales{
      .conocidas = conocidas,
      .sistema = [manejador = manejador] { return RespuestaDelSistema{.aplicacion = *manejador}; },
      .eleccion = [this] { return leerLaEleccion(preferencias); }};
  modelo =
      std::make_unique<ModeloDeVista>(ColaboradoresDelModelo{.cargar = [disco = disco] { return *disco; },
                                                             .servicios = {.fuentes = terminales},
                                                             .ejecutor = ejecutor,
                                                             .portapapeles = portapapeles,
                                                             .despachador = despachador,
                                                             .idioma = idioma});
  ajustar(terminales, "1.2");
  vista = std::make_unique<PanelView>(
      *modelo, estado, idioma, "/Users/ana", [] { return Fecha{std::chrono::seconds{1'000'000}}; },
      Modificador::mando);
}

void Frente::ajustar(FuentesDeTerminales terminales, std::optional<std::string> version) {
  ajustes.reset();
  modeloDeAjustes =
      std::make_unique<ModeloDeAjustes>(ColaboradoresDeAjustes{.terminales = std::move(terminales),
                                                               .preferencias = preferencias,
                                                               .inicio = inicio,
                                                               .idioma = idioma,
                                                               .despachador = despachador,
                                                               .version = std::move(version)});
  ajustes = std::make_unique<VistaAjustes>(*modeloDeAjustes, idioma, Modificador::mando);
}

Frente::~Frente() {
  soltar();
  if (!tramoya::faltas().empty()) ADD_FAILURE() << tramoya::faltas().front();
  if (HasFailure()) {
    for (auto const& linea : tramoya::diario()) std::cerr << "    " << linea << "\n";
  }
  modelo.reset();
  tramoya::reponer();
}

void Frente::arrancar() {
  @autoreleasepool {
    delegado = [[Delegado alloc] initCon:{.panel = *vista,
                                          .ajustes = *ajustes,
                                          .estado = estado,
                                          .idioma = idioma,
                                          .despachador = despachador,
                                          .primerArranque = PrimerArranque{banderas}}];
    NSApplication.sharedApplication.delegate = delegado;
    [NSApplication.sharedApplication run];
  }
  correr();
}

void Frente::soltar() {
  @autoreleasepool {
    delegado = nil;
  }
  tramoya::girar();
}

void Frente::correr() {
  @autoreleasepool {
    do {
      despachador.correrTodo();
      tramoya::girar();
    } while (despachador.principales() + despachador.deFondo() > 0);
  }
}

void Frente::abrirElPanel() {
  if (delegado == nil) arrancar();
  tramoya::pulsarItem(tramoya::Boton::izquierdo);
  correr();
}

void Frente::abrirLosAjustes() {
  if (delegado == nil) arrancar();
  estado.abrirLaVentanaDeAjustes();
  correr();
}

Session Frente::sesion(std::string const& identificador, std::string const& titulo, std::string const& cwd) {
  return {.titulo = titulo, .tituloOrigen = TitleSource::aiTitle, .cwd = cwd, .sessionId = identificador};
}

std::vector<Session> Frente::sesiones(std::size_t cuantas) {
  std::vector<Session> unas;
  unas.reserve(cuantas);
  for (std::size_t i = 0; i < cuantas; ++i) {
    unas.push_back(sesion("s" + std::to_string(i), "title " + std::to_string(i)));
  }
  return unas;
}

void Frente::enDisco(std::vector<Session> unas, std::vector<IndexError> errores) {
  *disco = {std::move(unas), std::move(errores)};
}

void Frente::recargar(std::vector<Session> unas) {
  enDisco(std::move(unas));
  modelo->refrescar();
  correr();
}

void Frente::teclear(tramoya::Golpe const& golpe) {
  tramoya::teclear(golpe);
  correr();
}

void Frente::escribir(std::string_view letras) {
  tramoya::escribir(letras);
  correr();
}

NSView* Frente::panel() const { return tramoya::popover().contentViewController.view; }

NSWindow* Frente::ventanaDeAjustes() const {
  for (NSWindow* ventana in tramoya::ventanas()) {
    if ([ventana.title isEqualToString:@"Zorve"]) return ventana;
  }
  return nil;
}

NSTableView* Frente::tabla() const {
  return static_cast<NSTableView*>(tramoya::vista(panel(), NSTableView.class));
}

NSTextField* Frente::campo() const {
  return static_cast<NSTextField*>(tramoya::vista(panel(), NSClassFromString(@"CampoLlano")));
}

std::vector<std::string> Frente::fila(NSInteger cual) const {
  return tramoya::rotulos([tabla() rowViewAtRow:cual makeIfNecessary:NO]);
}

std::string Frente::titulo(NSInteger cual) const {
  auto const textos = fila(cual);
  return textos.empty() ? "" : textos.front();
}

bool Frente::aLaVista(std::string const& texto, NSView* donde) const {
  auto const textos = tramoya::rotulos(donde);
  return std::ranges::find(textos, texto) != textos.end();
}

NSButton* Frente::opcion(std::string const& texto) const {
  for (NSView* boton in tramoya::vistas(ajustesALaVista(), NSButton.class)) {
    if (aLaVista(texto, boton)) return static_cast<NSButton*>(boton);
  }
  return nil;
}

bool Frente::marcada(std::string const& texto) const {
  return [static_cast<NSNumber*>(opcion(texto).accessibilityValue) boolValue] == YES;
}

}  // namespace zorve
