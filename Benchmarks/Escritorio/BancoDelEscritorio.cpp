// The program as a person meets it, from outside: how soon the icon stands, the panel is painted after a
// click and the list after a key; what it holds in memory; whether it sleeps. On an X server and a bus
// that nobody else uses.

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "Anfitrion.h"
#include "Home.h"
#include "Pantalla.h"
#include "Tabla.h"

namespace zorve::medir {
namespace {

constexpr int plazoMs = 60'000;
constexpr std::uint32_t cifraSiete = 0x37;
constexpr std::uint32_t retroceso = 0xFF08;
/// Where the pointer is when the icon is clicked, and a part of the list of the panel that opens there.
constexpr int xDelClic = 900;
constexpr int xDeLaLista = 760;
constexpr int yDeLaLista = 150;
constexpr int anchoDeLaLista = 220;
constexpr int altoDeLaLista = 160;

double mediana(std::vector<double> todas) {
  std::ranges::sort(todas);
  return todas[todas.size() / 2];
}
double peor(std::vector<double> const& todas) { return *std::ranges::max_element(todas); }

/// Milliseconds until `hecho`, with the bus attended to meanwhile.
double hasta(std::function<bool()> const& hecho, int descanso = 0) {
  auto const antes = std::chrono::steady_clock::now();
  auto const pasados = [&] {
    return std::chrono::duration<double, std::milli>{std::chrono::steady_clock::now() - antes}.count();
  };
  while (!hecho()) {
    QCoreApplication::processEvents();
    if (descanso > 0) QThread::msleep(static_cast<unsigned long>(descanso));
    if (pasados() > plazoMs) throw std::runtime_error{"waited in vain"};
  }
  return pasados();
}

void dejarPasar(double ms) {
  auto const fin = std::chrono::steady_clock::now() + std::chrono::duration<double, std::milli>{ms};
  hasta([&] { return std::chrono::steady_clock::now() >= fin; }, 5);
}

/// Kibibytes under a name of /proc/PID/smaps_rollup, all lines that begin so together, as MiB.
double memoria(qint64 pid, std::vector<std::string> const& nombres) {
  std::ifstream archivo{"/proc/" + std::to_string(pid) + "/smaps_rollup"};
  double todo = 0;
  for (std::string linea; std::getline(archivo, linea);) {
    for (auto const& nombre : nombres) {
      if (linea.starts_with(nombre + ":")) todo += std::stod(linea.substr(nombre.size() + 1));
    }
  }
  return todo / 1024;
}
double residente(qint64 pid) { return memoria(pid, {"Rss"}); }
double privada(qint64 pid) { return memoria(pid, {"Private_Clean", "Private_Dirty"}); }

/// How often each thread of a process has gone to sleep of itself, by the thread's folder.
std::map<std::string, long> despertares(qint64 pid) {
  std::map<std::string, long> todos;
  for (auto const& hilo : std::filesystem::directory_iterator{"/proc/" + std::to_string(pid) + "/task"}) {
    std::ifstream archivo{hilo.path() / "status"};
    for (std::string linea; std::getline(archivo, linea);) {
      if (linea.starts_with("voluntary_ctxt_switches:")) todos[hilo.path()] = std::stol(linea.substr(24));
    }
  }
  return todos;
}

class Banco {
 public:
  explicit Banco(std::string const& home) {
    qputenv("HOME", QByteArray::fromStdString(home));
    qputenv("XDG_CONFIG_HOME", carpeta_.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_CURRENT_DESKTOP", "");
    qputenv("XDG_RUNTIME_DIR", carpeta_.path().toLocal8Bit());
    std::filesystem::create_directories(
        carpeta_.filePath(QStringLiteral("config/com.sarnol.zorve")).toStdString());
    std::ofstream{carpeta_.filePath(QStringLiteral("config/com.sarnol.zorve/preferences.json")).toStdString()}
        << R"({"app.zorve.panelMostradoEnPrimerArranque":true})";
    if (!anfitrion_.ocupar()) throw std::runtime_error{"the bus does not take the tray host"};
    pantalla_.ponerPuntero(xDelClic, 10);
  }

  void todo() {
    arranque();
    dejarPasar(2000);
    tabla::tope("resident once prepared", residente(zorve_.processId()), "MiB", 55);
    tabla::dato("  of it private", privada(zorve_.processId()), "MiB");
    apariciones();
    teclas();
    tabla::tope("resident after all that", residente(zorve_.processId()), "MiB", 70);
    tabla::dato("  of it private", privada(zorve_.processId()), "MiB");
    reposo();
    zorve_.terminate();
    zorve_.waitForFinished();
  }

 private:
  void arranque() {
    zorve_.setProgram(QStringLiteral(ZORVE));
    auto const ms = milisegundos([&] {
      zorve_.start();
      hasta([&] { return anfitrion_.hayIcono(); });
    });
    tabla::tope("start to tray icon", ms, "ms", 150);
  }

  [[nodiscard]] std::vector<std::uint8_t> lista() const {
    return pantalla_.mirar(xDeLaLista, yDeLaLista, anchoDeLaLista, altoDeLaLista);
  }
  [[nodiscard]] double cambio(std::function<void()> const& hacer) const {
    auto const antes = lista();
    return milisegundos([&] {
      hacer();
      hasta([&] { return lista() != antes; });
    });
  }
  /// A click until the panel is there, or is gone.
  [[nodiscard]] double abrir() const {
    return milisegundos([&] {
      anfitrion_.pulsarIcono();
      hasta([&] { return lista() != fondo_; });
    });
  }
  void cerrar() const {
    anfitrion_.pulsarIcono();
    hasta([&] { return lista() == fondo_; });
  }

  void apariciones() {
    tabla::tope("first click to painted panel", abrir(), "ms", 50);
    dejarPasar(1500);
    cerrar();
    std::vector<double> tiempos;
    for (int i = 0; i < 1000; ++i) {
      dejarPasar(i < 50 ? 100 : 1);
      tiempos.push_back(abrir());
      dejarPasar(i < 50 ? 300 : 1);
      cerrar();
    }
    tiempos.resize(50);
    tabla::tope("later clicks, the middle one", mediana(tiempos), "ms", 16);
    tabla::dato("  the slowest of 50", peor(tiempos), "ms");
    tabla::tope("resident right after 1,000 openings", residente(zorve_.processId()), "MiB", 70);
  }

  void teclas() {
    (void)abrir();
    dejarPasar(1500);
    std::vector<double> tiempos;
    for (int i = 0; i < 50; ++i) {
      tiempos.push_back(cambio([&] { pantalla_.teclear(cifraSiete); }));
      dejarPasar(20);
      tiempos.push_back(cambio([&] { pantalla_.teclear(retroceso); }));
      dejarPasar(20);
    }
    tabla::tope("key press to painted list, the middle one", mediana(tiempos), "ms", 16);
    tabla::dato("  the slowest of 100", peor(tiempos), "ms");
    for (int i = 0; i < 4900; ++i) {
      pantalla_.teclear(i % 2 == 0 ? cifraSiete : retroceso);
      if (i % 10 == 9) dejarPasar(30);
    }
    dejarPasar(1000);
    cerrar();
  }

  void reposo() {
    constexpr double espera = 30'000;
    dejarPasar(3000);
    auto const antes = despertares(zorve_.processId());
    dejarPasar(espera);
    long nuevos = 0;
    for (auto const& [hilo, veces] : despertares(zorve_.processId())) {
      auto const visto = antes.find(hilo);
      nuevos += veces - (visto == antes.end() ? 0 : visto->second);
    }
    tabla::tope("wake-ups in 30 s of rest", static_cast<double>(nuevos), "", 0);
  }

  QTemporaryDir carpeta_;
  Anfitrion anfitrion_;
  Pantalla pantalla_;
  std::vector<std::uint8_t> fondo_ = lista();
  QProcess zorve_;
};

}  // namespace
}  // namespace zorve::medir

int main(int cuantos, char** palabras) {
  using namespace zorve::medir;
  auto const home =
      Home{
          .nombre = "escritorio", .transcripciones = 5000, .bytes = 5000UL * 8192, .lineasDeHistoria = 20'000}
          .preparar();
  QCoreApplication const aplicacion{cuantos, palabras};
  tabla::titulo("The front end with 5,000 sessions");
  try {
    Banco{home}.todo();
  } catch (std::exception const& fallo) {
    std::fprintf(stderr, "BancoDelEscritorio: %s\n", fallo.what());
    return 1;
  }
  return 0;
}
