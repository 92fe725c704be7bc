#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

#include "Dobles/Saneado.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

constexpr char const* strace = "/usr/bin/strace";

/// Runs zorvectl under strace over a home that holds secrets beside what it reads.
class LlamadasAlSistema : public testing::Test {
 protected:
  void SetUp() override {
    if (saneado) GTEST_SKIP() << "a sanitizer's leak check and a tracer exclude each other";
    if (::access(strace, X_OK) != 0) GTEST_SKIP() << "strace is missing";
    home.transcripcion(Home::uno, aiTitle("Una") + R"({"cwd":"/srv"})"
                                                   "\n");
    home.transcripcion(Home::dos,
                       std::string(700'000, '\n') + R"({"cwd":"/srv"})"
                                                    "\n",
                       "p");
    home.historia(prompt(Home::uno, "x", "/srv", 1'000'000));
    home.viva("1.json", R"({"pid":)" + std::to_string(::getpid()) + R"(,"sessionId":")" +
                            std::string{Home::uno} + R"(","cwd":"/v"})");
    for (auto const* const secreto : {"sessions/1.key", "secreto.key", "projects/p/x.key", "sessions/.key"}) {
      home.carpeta().escribir(std::string{".claude/"} + secreto, "secret");
    }
  }

  dobles::Corrida trazado(std::vector<std::string> const& opciones,
                          std::vector<std::string> const& palabras) {
    std::vector<std::string> todo{strace, "-f", "-qq", "-s", "4096", "-o", trazas};
    todo.insert(todo.end(), opciones.begin(), opciones.end());
    todo.emplace_back(ZORVECTL);
    todo.insert(todo.end(), palabras.begin(), palabras.end());
    return dobles::correr(todo, {{"HOME", home.ruta()},
                                 {"XDG_CONFIG_HOME", home.carpeta().dentro("conf")},
                                 {"COLUMNS", ""},
                                 {"LC_ALL", "C.UTF-8"}});
  }
  [[nodiscard]] std::vector<std::string> lineas() const {
    std::ifstream entrada{trazas};
    std::vector<std::string> todas;
    for (std::string linea; std::getline(entrada, linea);) todas.push_back(linea);
    return todas;
  }

  Home home;
  dobles::CarpetaTemporal otra;
  std::string trazas = otra.dentro("trazas");
};

/// Whether a traced call only looks at what it names.
bool soloMira(std::string_view linea) {
  for (auto const* const palabra : {"O_WRONLY", "O_RDWR", "O_CREAT", "O_TRUNC", "O_APPEND"}) {
    if (linea.contains(palabra)) return false;
  }
  constexpr std::array miran{"openat(",  "open(",      "stat(",  "lstat(", "newfstatat(", "statx(",
                             "fstat(",   "access(",    "close(", "fcntl(", "lseek(",      "readlink(",
                             "pread64(", "read(",      "mmap(",  "ioctl(", "getdents64(", "faccessat2(",
                             "execve(",  "fadvise64(", "getcwd("};
  return std::ranges::any_of(miran, [&](auto const* una) { return linea.contains(una); });
}

TEST_F(LlamadasAlSistema, ningunaEscribeEnLaCarpetaDelAgenteNiAbreUnSecretoNiSaleALaRed) {
  std::size_t bajoLaCarpeta = 0;
  for (auto const& palabras : std::vector<std::vector<std::string>>{{"list"},
                                                                    {"list", "--json", "--filter", "una"},
                                                                    {"plan", "1111", "--terminal", "xterm"},
                                                                    {"plan", "2222", "--terminal", "xterm"},
                                                                    {"terminals"},
                                                                    {"choose", "xterm"},
                                                                    {"choose", "--auto"}}) {
    auto const corrida = trazado({"-y"}, palabras);
    ASSERT_TRUE(corrida.codigo == 0 || corrida.codigo == 1) << corrida.error;
    for (auto const& linea : lineas()) {
      EXPECT_FALSE(linea.contains("AF_INET")) << linea;
      EXPECT_FALSE(linea.contains(".key\"") || linea.contains(".key>")) << linea;
      if (!linea.contains(home.ruta() + "/.claude")) continue;
      ++bajoLaCarpeta;
      EXPECT_TRUE(soloMira(linea)) << linea;
    }
  }
  EXPECT_GT(bajoLaCarpeta, 40U);
}

TEST_F(LlamadasAlSistema, unaLecturaInterrumpidaSigue) {
  auto const sana = trazado({"-e", "trace=pread64"}, {"list"});
  ASSERT_EQ(sana.codigo, 0);
  auto const interrumpida = trazado(
      {"-e", "inject=pread64:error=EINTR:when=1+2", "-P", home.ruta() + "/.claude/history.jsonl"}, {"list"});
  EXPECT_EQ(interrumpida.salida, sana.salida);
  EXPECT_EQ(interrumpida.error, "");
  EXPECT_THAT(lineas(), testing::Contains(testing::HasSubstr("EINTR")));
}

TEST_F(LlamadasAlSistema, sinDescriptoresNiDiscoSeDiceEnUnaLinea) {
  auto const sinDisco = trazado({"-e", "inject=fsync:error=ENOSPC"}, {"choose", "xterm"});
  EXPECT_EQ(sinDisco.codigo, 1);
  EXPECT_THAT(sinDisco.error, testing::HasSubstr("No space left on device"));
  auto const sinDescriptores =
      trazado({"-e", "inject=openat:error=EMFILE", "-P", home.ruta() + "/.claude/history.jsonl"}, {"list"});
  EXPECT_EQ(sinDescriptores.codigo, 0);
  EXPECT_THAT(sinDescriptores.error, testing::HasSubstr("Could not open " + home.ruta() +
                                                        "/.claude/history.jsonl: Too many open files"));
  EXPECT_THAT(sinDescriptores.salida, testing::HasSubstr("Una"));
}

/// The settings as they are on the disk.
std::string contenido(std::string const& archivo) {
  std::ifstream entrada{archivo};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

TEST_F(LlamadasAlSistema, unaSenalAntesDeCualquierLlamadaDejaLosAjustesEnteros) {
  auto const archivo = home.carpeta().dentro("conf/com.sarnol.zorve/preferences.json");
  std::string const viejos = "{\"ajena\":[1,2.50]}";
  std::string const nuevos =
      "{\n  \"ajena\": [\n    1,\n    2.50\n  ],\n  \"zorve.terminalElegida\": \"xterm\"\n}\n";
  std::size_t viejosQueQuedan = 0;
  for (int cual = 1;; ++cual) {
    home.carpeta().escribir("conf/com.sarnol.zorve/preferences.json", viejos);
    auto const corrida =
        trazado({"-e", "trace=%file,write,fsync,flock,close", "-e",
                 "inject=%file,write,fsync,flock,close:signal=TERM:when=" + std::to_string(cual)},
                {"choose", "xterm"});
    auto const quedan = contenido(archivo);
    EXPECT_TRUE(quedan == viejos || quedan == nuevos) << "call " << cual << ": " << quedan;
    viejosQueQuedan += quedan == viejos ? 1U : 0U;
    if (corrida.codigo == 0) break;
    ASSERT_LT(cual, 1000);
  }
  EXPECT_GT(viejosQueQuedan, 20U) << "the signal came too late to tell anything";
}

TEST_F(LlamadasAlSistema, unFalloDeCualquierLlamadaEsUnaFraseYDejaLosAjustesEnteros) {
  auto const archivo = home.carpeta().dentro("conf/com.sarnol.zorve/preferences.json");
  std::string const viejos = "{\"ajena\":1}";
  auto const cerrojo = home.carpeta().dentro("conf/com.sarnol.zorve/preferences.lock");
  for (std::string const llamada : {"openat", "write", "fsync", "flock", "rename"}) {
    for (std::string const causa : {"EIO", "ENOSPC", "EMFILE"}) {
      home.carpeta().escribir("conf/com.sarnol.zorve/preferences.json", viejos);
      std::vector<std::string> opciones{"-e", "trace=" + llamada, "-e",
                                        "inject=" + llamada + ":error=" + causa + ":when=1"};
      if (llamada == "openat") opciones.insert(opciones.end(), {"-P", archivo, "-P", cerrojo});
      auto const corrida = trazado(opciones, {"choose", "xterm"});
      EXPECT_THAT(lineas(), testing::Contains(testing::HasSubstr("(INJECTED)"))) << llamada;
      EXPECT_TRUE(corrida.codigo == 0 || corrida.codigo == 1) << llamada << " " << causa;
      auto const quedan = contenido(archivo);
      EXPECT_TRUE(quedan.contains("\"ajena\"")) << llamada << " " << causa << ": " << quedan;
      if (corrida.codigo == 0) continue;
      EXPECT_EQ(quedan, viejos) << llamada << " " << causa;
      EXPECT_EQ(std::ranges::count(corrida.error, '\n'), 1) << corrida.error;
    }
  }
}

}  // namespace
}  // namespace zorve::pruebas
