#include "ZorveTerminal/Lanzamiento.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <thread>

#include "Dobles/CarpetaTemporal.h"

namespace zorve::ayudante {
namespace {

using namespace std::chrono_literals;
using dobles::CarpetaTemporal;
using Reloj = std::chrono::steady_clock;

constexpr auto mucho = 30s;

std::string contenido(std::string const& ruta) {
  std::ifstream entrada{ruta, std::ios::binary};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

std::string esperarContenido(std::string const& ruta) {
  for (auto const limite = Reloj::now() + 20s; Reloj::now() < limite; std::this_thread::sleep_for(5ms)) {
    if (auto texto = contenido(ruta); texto.ends_with("\n")) return texto;
  }
  return {};
}

/// A shell script in the place of a terminal; $1 is the folder of the test.
class Lanzado : public testing::Test {
 protected:
  [[nodiscard]] Lanzamiento guion(std::string const& texto) const {
    return {"/bin/sh", {"-c", texto, "sh", carpeta.ruta()}, {"PATH=/usr/bin:/bin"}, carpeta.ruta(), {}};
  }

  CarpetaTemporal carpeta;
};

TEST_F(Lanzado, unFalloTempranoTraeLasPalabrasYElCodigoDelTerminal) {
  auto const fin = lanzar(guion("echo no hay pantalla; echo 'lo siento ' >&2; exit 41"), mucho);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().codigo, 41);
  EXPECT_EQ(fin.error().mensaje, "sh ended with exit code 41: no hay pantalla; lo siento");
}

TEST_F(Lanzado, unFalloMudoTambienSeCuenta) {
  auto const fin = lanzar(guion("exit 3"), mucho);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().mensaje, "sh ended with exit code 3 and said nothing");
}

TEST_F(Lanzado, unTerminalQueMuerePorUnaSenalSeCuenta) {
  auto const fin = lanzar(guion("echo antes; kill -SEGV $$"), mucho);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().codigo, 128 + SIGSEGV);
  EXPECT_EQ(fin.error().mensaje, "sh was ended by signal 11 (Segmentation fault): antes");
}

TEST_F(Lanzado, deMuchasPalabrasSeCuentanLasUltimas) {
  auto const fin = lanzar(guion("i=0; while [ $i -lt 3000 ]; do echo $i; i=$((i+1)); done; exit 1"), mucho);
  ASSERT_FALSE(fin);
  EXPECT_LT(fin.error().mensaje.size(), 4200U);
  EXPECT_TRUE(fin.error().mensaje.ends_with("2998; 2999"));
}

TEST_F(Lanzado, lasAcotacionesCallanDondeHayOtrasPalabras) {
  auto const fin = lanzar(guion("echo info: version 1; echo ' err: no hay pantalla'; echo; exit 1"), mucho);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().mensaje, "sh ended with exit code 1: err: no hay pantalla");
  auto const otro = lanzar(guion("echo info: version 1; exit 1"), mucho);
  ASSERT_FALSE(otro);
  EXPECT_EQ(otro.error().mensaje, "sh ended with exit code 1: info: version 1");
}

TEST_F(Lanzado, loQueNoExisteNoSePuedeEmpezar) {
  auto lanzamiento = guion("");
  lanzamiento.ejecutable = carpeta.dentro("nada");
  auto const fin = lanzar(lanzamiento, mucho);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().codigo, 127);
  EXPECT_EQ(fin.error().mensaje, "nada could not be started: No such file or directory");
}

TEST_F(Lanzado, sinDondeGuardarSusPalabrasNadaSeEmpieza) {
  auto const lanzamiento = guion(": >$1/empezado");
  // A sanitizer that meets this class for the first time looks at it, for which it needs descriptors.
  ASSERT_NE(std::generic_category().message(EMFILE), "");
  rlimit antes{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &antes), 0);
  int const libre = ::dup(STDERR_FILENO);
  ::close(libre);
  rlimit const ninguno{.rlim_cur = static_cast<rlim_t>(libre), .rlim_max = antes.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &ninguno), 0);
  auto const fin = lanzar(lanzamiento, mucho);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &antes), 0);
  ASSERT_FALSE(fin);
  EXPECT_EQ(fin.error().mensaje, "sh could not be started: Too many open files");
  EXPECT_FALSE(std::filesystem::exists(carpeta.dentro("empezado")));
}

TEST_F(Lanzado, loQueTerminaBienHaSalidoBien) { EXPECT_TRUE(lanzar(guion("echo aviso >&2"), mucho)); }

TEST_F(Lanzado, loQueSigueVivoAlCaboDelPlazoHaSalidoBien) {
  auto const empieza = Reloj::now();
  EXPECT_TRUE(lanzar(guion("echo $$ >$1/pid; exec sleep 30"), 300ms));
  EXPECT_GE(Reloj::now() - empieza, 300ms);
  auto const pid = std::stoi(esperarContenido(carpeta.dentro("pid")));
  EXPECT_EQ(::kill(pid, SIGKILL), 0);
}

TEST_F(Lanzado, laSenalTerminaLaEsperaAntesDelPlazo) {
  auto lanzamiento = guion("echo $$ >$1/pid; rmdir $1/senal; exec sleep 30");
  lanzamiento.senal = carpeta.carpeta("senal");
  auto const empieza = Reloj::now();
  EXPECT_TRUE(lanzar(lanzamiento, mucho));
  EXPECT_LT(Reloj::now() - empieza, 20s);
  EXPECT_EQ(::kill(std::stoi(esperarContenido(carpeta.dentro("pid"))), SIGKILL), 0);
}

TEST_F(Lanzado, unFalloDespuesDeLaSenalYaNoEsTemprano) {
  auto lanzamiento = guion("rmdir $1/senal; exit 1");
  lanzamiento.senal = carpeta.carpeta("senal");
  EXPECT_TRUE(lanzar(lanzamiento, mucho));
}

TEST_F(Lanzado, loQueDiceDespuesDeAbrirNoSeGuarda) {
  auto lanzamiento = guion(
      "echo antes; rmdir $1/senal; while ! [ -e $1/sigue ]; do sleep 0.01; done; "
      "head -c 1000000 /dev/zero 2>$1/queja; stat -L -c %s /proc/$$/fd/1 >$1/tamano");
  lanzamiento.senal = carpeta.carpeta("senal");
  ASSERT_TRUE(lanzar(lanzamiento, mucho));
  carpeta.escribir("sigue", "");
  EXPECT_EQ(esperarContenido(carpeta.dentro("tamano")), "0\n");
}

TEST_F(Lanzado, estaEnUnaSesionPropiaYEnSuDirectorio) {
  ASSERT_TRUE(lanzar(guion("ps -o sid= -p $$ >sesion; echo $$ >pid"), mucho));
  EXPECT_EQ(std::stoi(contenido(carpeta.dentro("sesion"))), std::stoi(contenido(carpeta.dentro("pid"))));
}

TEST_F(Lanzado, unDirectorioQueNoEstaNoImpideEmpezar) {
  auto lanzamiento = guion("pwd >$1/donde");
  lanzamiento.directorio = carpeta.dentro("nada");
  ASSERT_TRUE(lanzar(lanzamiento, mucho));
  EXPECT_EQ(contenido(carpeta.dentro("donde")), "/\n");
}

TEST_F(Lanzado, noHeredaDescriptoresNiSenales) {
  int const heredable = ::dup(STDERR_FILENO);
  auto* const antes = ::signal(SIGPIPE, SIG_IGN);
  auto const bien =
      lanzar(guion("ls /proc/self/fd | wc -l >abiertos; readlink /proc/$$/fd/0 >entrada; "
                   "sed -nE 's/^Sig(Ign|Blk):..........(.*)/\\1 \\2/p' /proc/self/status >senales"),
             mucho);
  ::signal(SIGPIPE, antes);
  ::close(heredable);
  ASSERT_TRUE(bien);
  EXPECT_EQ(std::stoi(contenido(carpeta.dentro("abiertos"))), 4) << "three streams and the folder itself";
  EXPECT_EQ(contenido(carpeta.dentro("entrada")), "/dev/null\n");
  EXPECT_EQ(contenido(carpeta.dentro("senales")), "Blk 0000000\nIgn 0000000\n");
}

}  // namespace
}  // namespace zorve::ayudante
