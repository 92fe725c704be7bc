#include <malloc.h>

#include <QApplication>
#include <QQuickWindow>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include "ZorveApp/Interfaz.h"
#include "ZorveApp/Qt/Activacion/EjecutorConTestigo.h"
#include "ZorveApp/Qt/Activacion/ServicioDeSesion.h"
#include "ZorveApp/Qt/DelegadoQt.h"
#include "ZorveApp/Qt/Puentes/DespachadorQt.h"
#include "ZorveApp/Qt/Puentes/PortapapelesQt.h"
#include "ZorveApp/Qt/Puentes/TeclasQt.h"
#include "ZorveApp/Qt/Puentes/TiposDeQml.h"
#include "ZorveApp/Qt/Ventanas/ExtensionDeGnome.h"
#include "ZorveApp/Qt/Ventanas/InterruptorDeGnome.h"
#include "ZorvePlatform/Linux/DirectoriosLinux.h"
#include "ZorvePlatform/Linux/InicioDeSesionLinux.h"
#include "ZorvePlatform/Linux/RutaDelAyudante.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Home.h"
#include "ZorvePlatform/Posix/Local.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace {

using namespace zorve;

/// A compositor that has not answered by then gives no leave.
constexpr std::chrono::milliseconds esperaDelTestigo{300};

std::string esteEjecutable() { return std::filesystem::read_symlink("/proc/self/exe").string(); }

std::optional<std::string> version(std::string const& ejecutable) {
  auto const datos = std::filesystem::path{ejecutable}.parent_path().parent_path() / "share/applications";
  if (!std::filesystem::exists(datos / "com.sarnol.zorve.desktop")) return std::nullopt;
  return ZORVE_VERSION;
}

/// What the program runs with, the real thing behind every seam. Background tasks may outlive the event loop,
/// so it is made once and never destroyed.
struct Mundo {
  Mundo(std::string const& de, std::vector<std::string> variables)
      : home{de},
        servicios{serviciosDeTerminal(home)},
        ejecutor{std::move(variables), rutaDelAyudante(),
                 [this] { return pedirDesdeOtroHilo(*activacion, esperaDelTestigo).variables(); }} {}

  std::string home;
  std::string ejecutable = esteEjecutable();
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  std::unique_ptr<Activacion> activacion = activacionEnUso();
  ServiciosDeTerminal servicios;
  EjecutorConTestigo ejecutor;
  PortapapelesQt portapapeles;
  DespachadorQt despachador;
  DirectoriosLinux directorios;
  InicioDeSesionLinux inicio{EntornoLinux::delProceso(home), ejecutable};

  [[nodiscard]] Cimientos cimientos() {
    return {.home = home,
            .archivos = archivos,
            .procesos = procesos,
            .servicios = servicios.apertura,
            .preferencias = *servicios.preferencias,
            .ejecutor = ejecutor,
            .portapapeles = portapapeles,
            .inicio = inicio,
            .despachador = despachador,
            .regla = reglaDelEntorno(),
            .principal = modificadorPrincipal,
            .version = version(ejecutable),
            .directorios = &directorios};
  }
};

/// The program's face over that world.
struct Programa {
  explicit Programa(Mundo& de) : mundo{de} {
    if (!sobreGnome()) return;
    interruptor = std::make_unique<InterruptorDeGnome>();
    interfaz.ajustes.ponerInterruptor(*interruptor);
  }

  Mundo& mundo;
  std::unique_ptr<InterruptorDeGnome> interruptor;
  Interfaz interfaz{mundo.cimientos()};
  DelegadoQt delegado{{interfaz.panel, interfaz.estado, interfaz.ajustes, interfaz.idioma, mundo.despachador,
                       interfaz.banderas, *mundo.activacion}};
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
  ServicioDeSesion servicio{[&](Testigo llamada, ServicioDeSesion::Quien quien) {
    programa->delegado.reabrir(std::move(llamada), quien);
  }};
  auto const turno = servicio.ocupar(testigo);
  if (turno == ServicioDeSesion::Turno::segundo) return 0;
  if (turno == ServicioDeSesion::Turno::mudo) {
    std::fputs(
        "zorve: the one that runs already does not answer on the session bus; end it and start again\n",
        stderr);
    return 1;
  }
  if (turno == ServicioDeSesion::Turno::ajeno) {
    std::fputs(
        "zorve: another program has the name com.sarnol.zorve on the session bus, and was told nothing; end "
        "it "
        "and start again\n",
        stderr);
    return 1;
  }
  auto const home = homeDelUsuario();
  if (!home) {
    std::fprintf(stderr, "zorve: %s\n", home.error().c_str());
    return 1;
  }
  registrarTipos();
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
