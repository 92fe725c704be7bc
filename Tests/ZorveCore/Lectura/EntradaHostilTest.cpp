#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): kill is POSIX
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <thread>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/ComoOtroUsuario.h"
#include "Dobles/ProcesosFijos.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorveCore/Lectura/HistoryStore.h"
#include "ZorveCore/Lectura/LiveProbe.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace zorve {
namespace {

using ::testing::SizeIs;
using ::testing::StartsWith;

/// The readers over the real file system and the real process table.
class EntradaHostil : public ::testing::Test {
 protected:
  dobles::CarpetaTemporal home;
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;

  [[nodiscard]] std::string historia() const { return home.dentro("history.jsonl"); }
  std::string falloDeHistoria() {
    auto const resultado = HistoryStore::cargar(archivos, historia());
    return resultado ? "" : resultado.error().mensaje;
  }
  LiveProbeResult sondear() { return LiveProbe::sondear(archivos, procesos, home.dentro("sessions")); }
  void registro(std::string const& nombre, std::int32_t pid) const {
    home.escribir("sessions/" + nombre,
                  R"({"pid":)" + std::to_string(pid) + R"(,"sessionId":")" + nombre + R"(","cwd":"/p"})");
  }
};

TEST_F(EntradaHostil, unFifoComoHistoriaNoBloquea) {
  ASSERT_EQ(::mkfifo(historia().c_str(), 0600), 0);
  EXPECT_EQ(falloDeHistoria(), "Could not open " + historia() + ": Not a regular file");
}

TEST_F(EntradaHostil, unDispositivoOUnaCarpetaComoHistoriaSonUnFalloAlAbrir) {
  std::filesystem::create_symlink("/dev/zero", historia());
  EXPECT_EQ(falloDeHistoria(), "Could not open " + historia() + ": Not a regular file");
  std::filesystem::remove(historia());
  home.carpeta("history.jsonl");
  EXPECT_THAT(falloDeHistoria(), StartsWith("Could not open " + historia() + ": "));
}

TEST_F(EntradaHostil, unEnlaceRotoComoHistoriaEsUnaHistoriaQueFalta) {
  std::filesystem::create_symlink("nada", historia());
  EXPECT_THAT(falloDeHistoria(), StartsWith(historia() + " does not exist. "));
}

TEST_F(EntradaHostil, unaHistoriaSinPermisoEsUnFalloAlAbrir) {
  home.escribir("history.jsonl", "");
  std::filesystem::permissions(historia(), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  EXPECT_THAT(falloDeHistoria(), StartsWith("Could not open " + historia() + ": "));
}

TEST_F(EntradaHostil, unaHistoriaTrasUnaCarpetaCerradaFalta) {
  auto const ruta = home.escribir("cerrada/history.jsonl", "");
  std::filesystem::permissions(home.dentro("cerrada"), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  EXPECT_THAT(HistoryStore::cargar(archivos, ruta).error().mensaje, StartsWith(ruta + " does not exist. "));
}

TEST_F(EntradaHostil, unaHistoriaQueEsUnBucleDeEnlacesFalta) {
  std::filesystem::create_symlink("history.jsonl", historia());
  EXPECT_THAT(falloDeHistoria(), StartsWith(historia() + " does not exist. "));
}

TEST_F(EntradaHostil, unDirectorioDeRegistrosQueEsUnBucleNoEsUnProblema) {
  std::filesystem::create_symlink("sessions", home.dentro("sessions"));
  EXPECT_EQ(sondear(), LiveProbeResult{});
}

TEST_F(EntradaHostil, unaHistoriaQueCreceYEncogeMientrasSeLeeNoRevienta) {
  auto const ruta = home.escribir("history.jsonl", "");
  auto const linea = std::string{R"({"display":"x","timestamp":1,"project":"/p","sessionId":"s"})"} + "\n";
  std::atomic<bool> seguir{true};
  std::thread escritor{[&] {
    while (seguir) {
      std::ofstream{ruta, std::ios::app} << std::string(2000, 'x') << "\n" << linea;
      std::error_code ignorado;
      if (std::filesystem::file_size(ruta, ignorado) > 400'000)
        std::filesystem::resize_file(ruta, 1000, ignorado);
    }
  }};
  for (int vez = 0; vez < 50; ++vez) {
    auto const resultado = HistoryStore::cargar(archivos, ruta);
    EXPECT_TRUE(resultado);
  }
  seguir = false;
  escritor.join();
}

TEST_F(EntradaHostil, unRegistroEspecialDaUnAvisoYLosDemasSeLeen) {
  registro("z.json", ::getpid());
  ASSERT_EQ(::mkfifo(home.dentro("sessions/a.json").c_str(), 0600), 0);
  std::filesystem::create_symlink("/dev/zero", home.dentro("sessions/b.json"));
  std::filesystem::create_symlink("nada", home.dentro("sessions/c.json"));
  home.carpeta("sessions/d.json");
  auto const resultado = sondear();
  ASSERT_THAT(resultado.errores, SizeIs(4));
  EXPECT_EQ(resultado.errores[0].mensaje, "Could not read a.json: Not a regular file");
  EXPECT_EQ(resultado.errores[1].mensaje, "Could not read b.json: Not a regular file");
  EXPECT_THAT(resultado.errores[2].mensaje, StartsWith("Could not read c.json: "));
  EXPECT_THAT(resultado.errores[3].mensaje, StartsWith("Could not read d.json: "));
  EXPECT_TRUE(resultado.vivas.contains("z.json"));
}

TEST_F(EntradaHostil, unRegistroSinPermisoDaUnAviso) {
  registro("a.json", ::getpid());
  std::filesystem::permissions(home.dentro("sessions/a.json"), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  auto const resultado = sondear();
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_THAT(resultado.errores[0].mensaje, StartsWith("Could not read a.json: "));
}

TEST_F(EntradaHostil, unDirectorioDeRegistrosSinPermisoDaUnAviso) {
  home.carpeta("sessions");
  std::filesystem::permissions(home.dentro("sessions"), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  auto const resultado = sondear();
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_THAT(resultado.errores[0].mensaje, StartsWith("Could not list " + home.dentro("sessions") + ": "));
}

TEST_F(EntradaHostil, elProcesoDeOtroUsuarioEstaVivo) {
  registro("a.json", 1);
  EXPECT_TRUE(dobles::comoOtroUsuario([this] {
    auto const vivas = sondear().vivas;
    return ::kill(1, 0) != 0 && vivas.contains("a.json") && vivas.at("a.json").pid == 1;
  }));
}

TEST_F(EntradaHostil, unPidQueNadieTieneSeOmiteSinAviso) {
  registro("a.json", std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(sondear(), LiveProbeResult{});
}

}  // namespace
}  // namespace zorve
