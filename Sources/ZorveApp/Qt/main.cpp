#include <malloc.h>

#include <QApplication>
#include <QQuickWindow>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include "ZorveApp/Qt/DelegadoQt.h"
#include "ZorveApp/Qt/DespachadorQt.h"
#include "ZorveApp/Qt/EjecutorConTestigo.h"
#include "ZorveApp/Qt/EstiloQt.h"
#include "ZorveApp/Qt/PortapapelesQt.h"
#include "ZorveApp/Qt/ServicioDeSesion.h"
#include "ZorveApp/Qt/TeclasQt.h"
#include "ZorveCore/SessionIndex.h"
#include "ZorveCore/TerminalTmux.h"
#include "ZorveCore/TerminalesDeLinux.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/InicioDeSesionLinux.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"
#include "ZorvePlatform/Linux/PreferenciasLinux.h"
#include "ZorvePlatform/Linux/SesionGraficaLinux.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Hogar.h"
#include "ZorvePlatform/Posix/Local.h"
#include "ZorvePlatform/Posix/SenalesDeHijos.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace {

using namespace zorve;

/// A compositor that has not answered by then gives no leave.
constexpr std::chrono::milliseconds esperaDelTestigo{300};

std::string esteEjecutable() { return std::filesystem::read_symlink("/proc/self/exe").string(); }

/// Beside the program, or under ../libexec.
std::string rutaDelAyudante(std::string const& ejecutable) {
  auto const carpeta = std::filesystem::path{ejecutable}.parent_path();
  auto const junto = carpeta / "zorve-terminal";
  if (std::filesystem::exists(junto)) return junto.string();
  return (carpeta.parent_path() / "libexec/zorve/zorve-terminal").string();
}

std::optional<std::string> version(std::string const& ejecutable) {
  auto const datos = std::filesystem::path{ejecutable}.parent_path().parent_path() / "share/applications";
  if (!std::filesystem::exists(datos / "com.sarnol.zorve.desktop")) return std::nullopt;
  return ZORVE_VERSION;
}

/// What the program runs with, the real thing behind every seam. Background tasks may outlive the event loop,
/// so it is made once and never destroyed.
struct Mundo {
  Mundo(std::string de, std::vector<std::string> variables)
      : home{std::move(de)},
        entorno{EntornoLinux::delProceso(home)},
        ejecutable{esteEjecutable()},
        ejecutor{std::move(variables), rutaDelAyudante(ejecutable),
                 [this] { return pedirDesdeOtroHilo(*activacion, esperaDelTestigo).variables(); }} {}

  std::string home;
  EntornoLinux entorno;
  std::string ejecutable;
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  std::unique_ptr<Activacion> activacion = activacionEnUso();
  EjecutorConTestigo ejecutor;
  PortapapelesQt portapapeles;
  DespachadorQt despachador;
  AplicacionesLinux aplicaciones{entorno};
  ManejadorLinux manejador{LugaresDelManejador::delProceso(entorno)};
  PreferenciasLinux preferencias{PreferenciasLinux::archivoPorDefecto(entorno)};
  InicioDeSesionLinux inicio{entorno, ejecutable};
  BanderasDeUsuario banderas{preferencias};
  PreferenciaDeIdioma idioma{preferencias};
  CatalogoDeTerminales catalogo = catalogoDelSistema(
      terminalesDeLinux(aplicaciones, rutaDelAyudante(ejecutable), sesionGraficaDelProceso()), manejador,
      preferencias);

  [[nodiscard]] IndexResult cargar() {
    return SessionIndex::construir(archivos, procesos, SessionIndex::ubicacionesPorDefecto(home));
  }
};

/// The program's models and views over that world.
struct Programa {
  explicit Programa(Mundo& de) : mundo{de} {}

  Mundo& mundo;
  EstadoDelPanel estado{};
  ModeloDeVista modelo{{.cargar = [de = &mundo] { return de->cargar(); },
                        .catalogo = mundo.catalogo,
                        .ejecutor = mundo.ejecutor,
                        .portapapeles = mundo.portapapeles,
                        .despachador = mundo.despachador,
                        .idioma = mundo.idioma,
                        .regla = reglaDelEntorno(),
                        .anfitrionas = anfitrionasDeLinux(rutaDelAyudante(mundo.ejecutable))}};
  PanelView panel{modelo,
                  estado,
                  mundo.idioma,
                  mundo.home,
                  [] { return Fecha{std::chrono::system_clock::now()}; },
                  modificadorPrincipal};
  ModeloDeAjustes modeloDeAjustes{{.catalogo = mundo.catalogo,
                                   .preferencias = mundo.preferencias,
                                   .inicio = mundo.inicio,
                                   .idioma = mundo.idioma,
                                   .despachador = mundo.despachador,
                                   .version = version(mundo.ejecutable),
                                   .dichoPor = [de = &mundo] {
                                     return de->manejador.dichoPor(CatalogoDeTerminales::tipoDeGuionDeShell);
                                   }}};
  VistaAjustes ajustes{modeloDeAjustes, mundo.idioma, modificadorPrincipal};
  DelegadoQt delegado{{modelo, panel, estado, ajustes, modeloDeAjustes, mundo.idioma, mundo.despachador,
                       mundo.banderas, *mundo.activacion}};
};

/// Every load has a thread of its own: without bounds each would leave an arena of the allocator behind.
void acotarMemoria() {
#ifdef __GLIBC__
  constexpr int arenas = 2;
  constexpr int umbral = 256 * 1024;
  mallopt(M_ARENA_MAX, arenas);
  mallopt(M_MMAP_THRESHOLD, umbral);
  mallopt(M_TRIM_THRESHOLD, umbral);
#endif
}

void nombrar() {
  QCoreApplication::setApplicationName(QStringLiteral("zorve"));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Zorve"));
  QGuiApplication::setDesktopFileName(QStringLiteral("com.sarnol.zorve"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

/// `testigo`: the leave that the program was started with; `entorno`: what its children get.
int correr(Testigo const& testigo, std::vector<std::string> entorno) {
  Programa* programa = nullptr;
  ServicioDeSesion servicio{[&](Testigo llamada) { programa->delegado.reabrir(std::move(llamada)); }};
  auto const turno = servicio.ocupar(testigo);
  if (turno == ServicioDeSesion::Turno::segundo) return 0;
  if (turno == ServicioDeSesion::Turno::mudo) {
    std::fputs(
        "zorve: the one that runs already does not answer on the session bus; end it and start again\n",
        stderr);
    return 1;
  }
  auto const home = hogarDelUsuario();
  if (!home) {
    std::fprintf(stderr, "zorve: %s\n", home.error().c_str());
    return 1;
  }
  registrarDibujos();
  Programa este{*new Mundo{*home, std::move(entorno)}};
  programa = &este;
  este.mundo.activacion->recibir(testigo);
  este.delegado.arrancar();
  auto const estado = QCoreApplication::exec();
  servicio.soltar();
  return estado;
}

}  // namespace

int main(int cuantos, char** palabras) {
  if (cuantos > 1) {
    std::fputs("zorve takes no arguments; zorvectl is its command line\n", stderr);
    return 2;
  }
  recordarALosHijos();
  auto const testigo = Testigo::tomarDelEntorno();
  auto entorno = entornoDelProceso();
  acotarMemoria();
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication const aplicacion{cuantos, palabras};
  nombrar();
  return correr(testigo, std::move(entorno));
}
