#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): the numbers of signals are POSIX
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "Dobles/Saneado.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

constexpr long cimaEnKilobytes = 150'000;

struct Gasto {
  int estado = 0;
  long kilobytes = 0;
};

/// Runs `zorvectl list --json` over the home, with no more address space than `limite` bytes where it is not
/// 0.
Gasto listar(std::string const& home, rlim_t limite = 0) {
  auto const hijo = ::vfork();
  if (hijo == 0) {
    if (rlimit const tope{limite, limite}; limite != 0) ::setrlimit(RLIMIT_AS, &tope);
    int const nada = ::open("/dev/null", O_RDWR);
    ::dup2(nada, 1);
    ::dup2(nada, 2);
    ::execl(ZORVECTL, ZORVECTL, "list", "--json", "--home", home.c_str(), nullptr);
    ::_exit(127);
  }
  Gasto gasto;
  rusage uso{};
  while (::wait4(hijo, &gasto.estado, 0, &uso) < 0) {
  }
  gasto.kilobytes = uso.ru_maxrss;
  return gasto;
}

/// What a process has had at most passes to the program it becomes, so the large texts are made elsewhere.
void enOtroProceso(std::function<void()> const& hacer) {
  auto const hijo = ::fork();
  if (hijo == 0) {
    hacer();
    ::_exit(0);
  }
  int estado = 0;
  while (::waitpid(hijo, &estado, 0) < 0) {
  }
  ASSERT_EQ(estado, 0);
}

std::string repetido(std::string_view pieza, std::size_t bytes) {
  std::string todo;
  todo.reserve(bytes + pieza.size());
  while (todo.size() < bytes) todo += pieza;
  return todo;
}

constexpr std::size_t mega = 1UZ << 20U;

struct HomeHostil {
  char const* nombre;
  std::function<void(Home const&)> hacer;
};

std::vector<HomeHostil> const homes{
    {"OchoPromptsDe50Megas",
     [](Home const& home) {
       std::ofstream salida{home.historia("")};
       for (int i = 0; i < 8; ++i) salida << prompt(std::to_string(i), std::string(50 * mega, 'x'), "/p", i);
     }},
    {"CienPromptsLargosSinTranscripcion",
     [](Home const& home) {
       std::ofstream salida{home.historia("")};
       for (int i = 0; i < 100; ++i)
         salida << prompt(std::to_string(i), std::string(4 * mega - 500, 'x'), "/p", i);
     }},
    {"UnaLineaDe64MegasDeNumeros",
     [](Home const& home) { home.historia("{\"x\":[" + repetido("1,", 64 * mega) + "1]}"); }},
    {"LineasDe4MegasDeNumeros",
     [](Home const& home) {
       auto const linea = "{\"x\":[" + repetido("1,", 4 * mega - 100) + "1]}\n";
       home.historia(linea + linea + linea);
     }},
    {"LargoTranscripcionesEnlazadasDe30MegasDeNumeros",
     [](Home const& home) {
       auto const linea = R"({"aiTitle":1,"cwd":[)" + repetido("1,", 2 * mega - 100) + "1]}\n";
       auto const ajena = home.carpeta().escribir("ajena", repetido(linea, 30 * mega));
       home.carpeta().carpeta(".claude/projects/p");
       for (int i = 0; i < 60; ++i) {
         std::filesystem::create_symlink(
             ajena, home.carpeta().dentro(".claude/projects/p/11111111-aaaa-4bbb-8ccc-0000000000" +
                                          std::to_string(10 + i) + ".jsonl"));
       }
     }},
    {"LargoHistoriaHuecaDe2Gigas",
     [](Home const& home) { std::filesystem::resize_file(home.historia(""), 2048 * mega); }},
    {"HistoriaDeVeinteMilSesiones",
     [](Home const& home) {
       std::ofstream salida{home.historia("")};
       for (int i = 0; i < 20'000; ++i) salida << prompt(std::to_string(i), std::string(5'000, 'x'), "/p", i);
     }},
    {"RegistrosVivosDeUnMega",
     [](Home const& home) {
       auto const lleno = "{\"x\":[" + repetido("1,", mega - 100) + "1]}";
       for (int i = 0; i < 50; ++i) home.viva(std::to_string(i) + ".json", lleno);
     }},
};

class SinMemoriaAjena : public testing::Test {
 protected:
  void SetUp() override {
    if (saneado) GTEST_SKIP() << "a sanitizer takes memory of its own";
  }
};

class Memoria : public SinMemoriaAjena, public testing::WithParamInterface<std::size_t> {};

TEST_P(Memoria, deUnaCasaHostilNoPasaDe150Megas) {
  Home const home;
  home.transcripcion(Home::uno, R"({"cwd":"/srv"})"
                                "\n");
  enOtroProceso([&] { homes.at(GetParam()).hacer(home); });
  auto const gasto = listar(home.ruta());
  EXPECT_EQ(gasto.estado, 0);
  EXPECT_LT(gasto.kilobytes, cimaEnKilobytes);
  std::cout << homes.at(GetParam()).nombre << ": " << gasto.kilobytes / 1024 << " MiB at most\n";
}

INSTANTIATE_TEST_SUITE_P(Zorvectl, Memoria, testing::Range(std::size_t{0}, homes.size()),
                         [](auto const& una) { return std::string{homes.at(una.param).nombre}; });

TEST_F(SinMemoriaAjena, laMemoriaQueFaltaNuncaLoTiraAbajo) {
  Home const home;
  std::string historia;
  for (int i = 0; i < 200; ++i) {
    auto const id = "11111111-aaaa-4bbb-8ccc-000000000" + std::to_string(100 + i);
    home.transcripcion(id, R"({"cwd":"/srv"})"
                           "\n" +
                               std::string(300'000, '\n') + aiTitle("t"));
    historia += prompt(id, std::string(20'000, 'x'), "/p", i);
  }
  home.historia(historia);
  int terminadas = 0;
  for (rlim_t const megas : {8UZ, 10UZ, 14UZ, 20UZ, 30UZ, 50UZ, 80UZ, 120UZ}) {
    auto const gasto = listar(home.ruta(), megas << 20U);
    EXPECT_FALSE(WIFSIGNALED(gasto.estado) && WTERMSIG(gasto.estado) == SIGABRT) << megas << " MiB";
    EXPECT_FALSE(WIFSIGNALED(gasto.estado) && WTERMSIG(gasto.estado) == SIGSEGV) << megas << " MiB";
    terminadas += WIFEXITED(gasto.estado) && WEXITSTATUS(gasto.estado) == 0 ? 1 : 0;
  }
  EXPECT_GT(terminadas, 3);
}

}  // namespace
}  // namespace zorve::pruebas
