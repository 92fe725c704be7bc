#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): the mask of signals is POSIX
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <future>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve {
namespace {

std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(std::string const& ruta,
                                                            std::vector<std::string> const& args) {
  return EjecutorDeProcesos{}.correr(ruta, args);
}

std::expected<ResultadoDeEjecucion, FalloDelSistema> shell(std::string const& guion,
                                                           std::vector<std::string> const& mas = {}) {
  std::vector<std::string> args{"-c", guion, "sh"};
  args.insert(args.end(), mas.begin(), mas.end());
  return correr("/bin/sh", args);
}

std::string salidaDe(std::string const& guion) {
  auto const resultado = shell(guion);
  return resultado ? resultado->salida : "failed: " + resultado.error().descripcion;
}

int fallaCon(std::string const& ruta, std::vector<std::string> const& args = {}) {
  auto const resultado = correr(ruta, args);
  return resultado ? 0 : resultado.error().codigo;
}

TEST(EjecutorDeProcesos, lasDosSalidasLleganEntrelazadasEnSuOrden) {
  EXPECT_EQ(salidaDe("echo 1; echo 2 >&2; echo 3; echo 4 >&2"), "1\n2\n3\n4\n");
}

TEST(EjecutorDeProcesos, unHijoQueLlenaLaTuberiaNoSeBloquea) {
  auto const resultado = shell("head -c 3000000 /dev/zero | tr '\\0' x; exit 5");
  ASSERT_TRUE(resultado.has_value());
  EXPECT_EQ(resultado->codigo, 5);
  EXPECT_EQ(resultado->salida, std::string(3000000, 'x'));
}

TEST(EjecutorDeProcesos, unHijoSinSalidaDaTextoVacio) {
  EXPECT_EQ(shell("exit 0"), (ResultadoDeEjecucion{0, ""}));
}

TEST(EjecutorDeProcesos, unHijoQueMuereDeUnaSenalDa128MasSuNumero) {
  EXPECT_EQ(shell("echo antes; kill -TERM $$"), (ResultadoDeEjecucion{128 + SIGTERM, "antes\n"}));
  EXPECT_EQ(shell("kill -KILL $$"), (ResultadoDeEjecucion{128 + SIGKILL, ""}));
}

TEST(EjecutorDeProcesos, losBytesQueNoSonUtf8SeReemplazan) {
  EXPECT_EQ(salidaDe("printf 'a\\377b\\303\\261\\303'"),
            "a\xEF\xBF\xBD"
            "b\xC3\xB1\xEF\xBF\xBD");
}

TEST(EjecutorDeProcesos, unNulEnLaSalidaSeConserva) {
  EXPECT_EQ(salidaDe("printf 'a\\000b'"), (std::string{"a\0b", 3}));
}

TEST(EjecutorDeProcesos, laEntradaEstaVacia) {
  EXPECT_EQ(salidaDe("cat; [ /dev/stdin -ef /dev/null ] && echo /dev/null"), "/dev/null\n");
}

TEST(EjecutorDeProcesos, unProgramaQueNoExisteNoSeLanza) { EXPECT_EQ(fallaCon("/no/hay/tal"), ENOENT); }

TEST(EjecutorDeProcesos, unPsSoloRecibeElPathYElIdiomaC) {
  dobles::CarpetaTemporal const carpeta;
  std::filesystem::create_symlink("/usr/bin/env", carpeta.dentro("ps"));
  EjecutorDeProcesos const ejecutor{{"HOME=/x", "COLUMNS=5", "LINES=1", "PS_FORMAT=pid", "LC_ALL=es_ES.UTF-8",
                                     "PATH=/usr/bin:/bin", "UNIX95=1"}};
  EXPECT_EQ(ejecutor.correr(carpeta.dentro("ps"), {})->salida, "LC_ALL=C\nPATH=/usr/bin:/bin\n");
  EXPECT_EQ(entornoParaPs({"COLUMNS=5"}), (std::vector<std::string>{"LC_ALL=C"}));
}

TEST(EjecutorDeProcesos, elAnchoDeLaPersonaNoCortaLoQueDicePs) {
  auto entorno = entornoDelProceso();
  entorno.emplace_back("COLUMNS=5");
  entorno.emplace_back("PS_FORMAT=pid");
  std::vector<std::string> const args{"-o", "ppid=,comm=", "-p", std::to_string(::getpid())};
  auto const corrida = EjecutorDeProcesos{entorno}.correr("/bin/ps", args);
  ASSERT_TRUE(corrida);
  EXPECT_EQ(corrida->codigo, 0);
  EXPECT_THAT(corrida->salida, testing::HasSubstr("PruebasDePlataf"));
}

TEST(EjecutorDeProcesos, elPathNoSeMira) { EXPECT_EQ(fallaCon("sh"), ENOENT); }

TEST(EjecutorDeProcesos, unArchivoQueNoEsEjecutableNoSeLanza) {
  dobles::CarpetaTemporal const carpeta;
  auto const ruta = carpeta.escribir("guion", "#!/bin/sh\nexit 0\n");
  dobles::SinPrivilegios const comoCualquiera;
  EXPECT_EQ(fallaCon(ruta), EACCES);
}

TEST(EjecutorDeProcesos, unaCarpetaNoSeLanza) { EXPECT_EQ(fallaCon("/"), EACCES); }

TEST(EjecutorDeProcesos, unArchivoSinFormatoNoSeEntregaAUnaShell) {
  dobles::CarpetaTemporal const carpeta;
  auto const ruta = carpeta.escribir("texto", "exit 0\n");
  ASSERT_EQ(::chmod(ruta.c_str(), 0755), 0);
  EXPECT_EQ(fallaCon(ruta), ENOEXEC);
}

TEST(EjecutorDeProcesos, unNulNoSeCorta) {
  EXPECT_EQ(fallaCon("/bin/sh", {"-c", std::string{"exit 0\0x", 8}}), EINVAL);
  EXPECT_EQ(fallaCon(std::string{"/bin/sh\0x", 9}), EINVAL);
}

TEST(EjecutorDeProcesos, losArgumentosVaciosTambienLlegan) {
  auto const resultado = shell("printf '[%s]' \"$@\"", {"", "-x", "a b", "", "\n", "ñ\\"});
  ASSERT_TRUE(resultado.has_value());
  EXPECT_EQ(resultado->salida, "[][-x][a b][][\n][ñ\\]");
}

TEST(EjecutorDeProcesos, elPrimerArgumentoEsLaRuta) {
  EXPECT_EQ(salidaDe("ps -o args= -p $$ | cut -c 1-7"), "/bin/sh\n");
}

TEST(EjecutorDeProcesos, elHijoNoHeredaNingunDescriptor) {
  Descriptor const abierto{::open("/dev/null", O_RDONLY)};
  ASSERT_TRUE(static_cast<bool>(abierto));
  auto const resultado = correr("/bin/ls", {"/dev/fd/"});
  ASSERT_TRUE(resultado.has_value());
  EXPECT_EQ(resultado->salida, "0\n1\n2\n3\n");
}

TEST(EjecutorDeProcesos, nadaQuedaAbiertoDespues) {
  auto const cuantos = [] {
    return std::distance(std::filesystem::directory_iterator{"/dev/fd"},
                         std::filesystem::directory_iterator{});
  };
  auto const antes = cuantos();
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(salidaDe("echo a"), "a\n");
    ASSERT_EQ(fallaCon("/no/hay/tal"), ENOENT);
  }
  EXPECT_EQ(cuantos(), antes);
}

/// A signal every two milliseconds that interrupts whatever waits.
class Interrupciones {
 public:
  Interrupciones() {
    struct sigaction accion{};
    accion.sa_handler = [](int) {};
    ::sigaction(SIGALRM, &accion, &antes_);
    poner(2'000);
  }
  Interrupciones(Interrupciones const&) = delete;
  Interrupciones& operator=(Interrupciones const&) = delete;
  ~Interrupciones() {
    poner(0);
    ::sigaction(SIGALRM, &antes_, nullptr);
  }

 private:
  static void poner(long microsegundos) {
    itimerval const cada{{0, microsegundos}, {0, microsegundos}};
    ::setitimer(ITIMER_REAL, &cada, nullptr);
  }

  struct sigaction antes_{};
};

TEST(EjecutorDeProcesos, lasSenalesNoCortanLaLecturaNiLaEspera) {
  Interrupciones const interrupciones;
  auto const leida = shell("sleep 0.1; echo a; sleep 0.1; echo b");
  ASSERT_TRUE(leida);
  EXPECT_EQ(leida->salida, "a\nb\n");
  auto const esperada = shell("echo a; exec >&- 2>&-; sleep 0.2; exit 3");
  ASSERT_TRUE(esperada);
  EXPECT_EQ(esperada->codigo, 3);
}

TEST(EjecutorDeProcesos, nadieQuedaSinEnterrar) {
  ASSERT_EQ(salidaDe("echo a"), "a\n");
  ASSERT_EQ(fallaCon("/no/hay/tal"), ENOENT);
  EXPECT_EQ(salidaDe("ps -A -o ppid= -o stat= | grep -c \"^ *$PPID  *Z\""), "0\n");
}

TEST(EjecutorDeProcesos, variosALaVezNoSeEsperanUnosAOtros) {
  dobles::CarpetaTemporal const carpeta;
  auto const cola = carpeta.dentro("cola");
  ASSERT_EQ(::mkfifo(cola.c_str(), 0600), 0);
  auto esperando = std::async(std::launch::async,
                              [&] { return shell("read x < \"$1\"; echo $x", {cola}).value().salida; });
  EXPECT_EQ(salidaDe("echo rapido"), "rapido\n");
  Descriptor const escritura{::open(cola.c_str(), O_WRONLY)};
  ASSERT_EQ(::write(escritura.numero(), "ya\n", 3), 3);
  EXPECT_EQ(esperando.get(), "ya\n");
}

TEST(EjecutorDeProcesos, muchosHilosRecibenCadaUnoLoSuyo) {
  std::vector<std::future<std::string>> corridas;
  corridas.reserve(16);
  for (int i = 0; i < 16; ++i) {
    corridas.push_back(std::async(std::launch::async, [i] { return salidaDe("echo " + std::to_string(i)); }));
  }
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(corridas[static_cast<std::size_t>(i)].get(), std::to_string(i) + "\n");
  }
}

}  // namespace
}  // namespace zorve
