#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/wait.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "Carga/DespachadorSuelto.h"
#include "Carga/HomeGrande.h"
#include "Carga/Recursos.h"
#include "Dobles/PortapapelesDePrueba.h"
#include "Dobles/PreferenciasEnMemoria.h"
#include "ZorveApp/ModeloDeVista.h"
#include "ZorveCore/Lectura/SessionIndex.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace zorve::pruebas {
namespace {

using Reloj = DespachadorSuelto::Reloj;

constexpr std::size_t sesiones = 300;
constexpr int aperturas = 1000;
constexpr std::chrono::milliseconds entreRefrescos{100};
constexpr std::int64_t crecidaComoMucho = 8 * 1024;

/// Ten minutes, or what ZORVE_CARGA_SEGUNDOS says.
std::chrono::seconds duracion() {
  auto const* const dicha = std::getenv("ZORVE_CARGA_SEGUNDOS");
  return std::chrono::seconds{dicha == nullptr ? 600 : std::atoi(dicha)};
}

/// A terminal whose window is a real program that ends at once.
class TerminalFugaz final : public Terminal {
 public:
  [[nodiscard]] std::string identificador() const override { return "fugaz"; }
  [[nodiscard]] std::string nombre() const override { return "Fugaz"; }
  [[nodiscard]] std::string nombreDelBundle() const override { return "Fugaz.app"; }
  [[nodiscard]] bool puedeEnfocar() const override { return true; }
  [[nodiscard]] bool estaInstalada() const override { return true; }
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override {
    return std::vector{ComandoDeApertura{"/bin/echo", {cwd, comando}}};
  }
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override {
    return std::vector{ComandoDeApertura{"/bin/echo", {tty}}};
  }
};

/// Changes the home without rest: titles, prompts, live records, whole transcripts that come and go.
class Escritor {
 public:
  explicit Escritor(HomeGrande const& home) : home_{home}, hilo_{[this] { escribir(); }} {}
  Escritor(Escritor const&) = delete;
  Escritor& operator=(Escritor const&) = delete;
  ~Escritor() {
    basta_ = true;
    hilo_.join();
  }

 private:
  void escribir() {
    std::mt19937 azar{7};
    for (int vuelta = 0; !basta_; ++vuelta) {
      auto const n = azar() % sesiones;
      auto const deQueVa = vuelta % 4;
      if (deQueVa == 0) home_.transcripcion(n, "Title " + std::to_string(vuelta));
      if (deQueVa == 1) quitar("projects/p0/" + HomeGrande::uuid(n) + ".jsonl");
      if (deQueVa == 2) vuelta % 8 == 2 ? home_.viva(n) : quitar("sessions/" + std::to_string(n) + ".json");
      if (deQueVa == 3 && vuelta % 400 == 3) (void)home_.historia(sesiones, 200'000, 40);
      std::this_thread::sleep_for(std::chrono::milliseconds{2});
    }
  }
  void quitar(std::string const& relativa) const {
    std::error_code error;
    std::filesystem::remove(home_.ruta() + "/.claude/" + relativa, error);
  }

  HomeGrande const& home_;
  std::atomic<bool> basta_ = false;
  std::thread hilo_;
};

class PanelSinDescanso : public testing::Test {
 protected:
  PanelSinDescanso() {
    // As the programs with a face have it.
    mallopt(M_ARENA_MAX, 2);
    for (std::size_t n = 0; n < sesiones; ++n) home.transcripcion(n, "Session");
    (void)home.historia(sesiones, 200'000, 40);
  }

  IndexResult leer() {
    return SessionIndex::construir(archivos, procesos, SessionIndex::ubicacionesPorDefecto(home.ruta()));
  }
  /// One round: a refresh, what a person does to the list, and openings until there were that many.
  void ronda(int vuelta, int hastaAhora) {
    modelo->refrescar();
    modelo->escribirConsulta(vuelta % 5 == 0 ? "title" : "");
    modelo->mover(vuelta % 7 - 3);
    while (abiertas < hastaAhora && modelo->seleccionada() != nullptr) {
      modelo->abrirSeleccionada();
      ++abiertas;
    }
  }

  Recursos const alPrincipio = Recursos::deAhora();
  HomeGrande home;
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  EjecutorDeProcesos ejecutor;
  dobles::PortapapelesDePrueba portapapeles;
  dobles::PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  DespachadorSuelto despachador;
  int abiertas = 0;
  std::unique_ptr<ModeloDeVista> modelo = std::make_unique<ModeloDeVista>(
      ColaboradoresDelModelo{.cargar = [this] { return leer(); },
                             .servicios = {.fuentes = {.conocidas = {std::make_shared<TerminalFugaz>()}}},
                             .ejecutor = ejecutor,
                             .portapapeles = portapapeles,
                             .despachador = despachador,
                             .idioma = idioma});
};

TEST_F(PanelSinDescanso, LargoDiezMinutosDeRefrescosYMilAperturasNoDejanNadaAtras) {
  auto const dura = duracion();
  auto const rondas = static_cast<int>(dura / entreRefrescos);
  auto escritor = std::make_unique<Escritor>(home);
  auto const empieza = Reloj::now();
  std::vector<std::int64_t> memoria;
  for (int vuelta = 1; vuelta <= rondas; ++vuelta) {
    ronda(vuelta, vuelta * aperturas / rondas);
    despachador.girar(empieza + vuelta * entreRefrescos);
    if (vuelta % (rondas / 10) == 0) {
      memoria.push_back(Recursos::deAhora().kilobytes);
      std::cout << 10 * memoria.size() << " %: " << memoria.back() / 1024 << " MiB, " << abiertas
                << " openings\n";
    }
  }
  escritor.reset();
  despachador.acabarTodo();
  EXPECT_GE(abiertas, aperturas * 9 / 10);
  EXPECT_EQ(*modelo->errorDeApertura(), std::nullopt) << **modelo->errorDeApertura();
  EXPECT_LE(memoria.back(), memoria.at(2) + crecidaComoMucho);

  modelo->escribirConsulta("");
  modelo->refrescar();
  despachador.acabarTodo();
  EXPECT_EQ(*modelo->resultado(), leer());
  auto const recursos = Recursos::deAhora();
  EXPECT_EQ(recursos.descriptores, alPrincipio.descriptores);
  EXPECT_EQ(recursos.hilos, alPrincipio.hilos);
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD) << "a child was not buried";
}

}  // namespace
}  // namespace zorve::pruebas
