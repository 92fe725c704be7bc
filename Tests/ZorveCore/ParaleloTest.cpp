#include "ZorveCore/Paralelo.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>

namespace zorve {
namespace {

TEST(Paralelo, pocasTareasNoPidenOtroHilo) {
  EXPECT_EQ(hilosPara(0, 10), 1U);
  EXPECT_EQ(hilosPara(10, 10), 1U);
  EXPECT_EQ(hilosPara(19, 10), 1U);
}

TEST(Paralelo, nuncaHayMasHilosQueProcesadores) {
  EXPECT_LE(hilosPara(1'000'000, 1), std::max(1U, std::thread::hardware_concurrency()));
  EXPECT_EQ(hilosPara(1'000'000, 1), std::max(1U, std::thread::hardware_concurrency()));
}

TEST(Paralelo, nuncaHayMasHilosQueTareasParaEllos) { EXPECT_LE(hilosPara(20, 10), 2U); }

TEST(Paralelo, unSoloHiloEsElPropio) {
  std::thread::id quien;
  ladoALado(1, [&] { quien = std::this_thread::get_id(); });
  EXPECT_EQ(quien, std::this_thread::get_id());
}

TEST(Paralelo, vuelveCuandoTodosHanTerminado) {
  std::mutex cerrojo;
  std::set<std::thread::id> quienes;
  std::atomic<int> terminados{0};
  ladoALado(4, [&] {
    {
      std::scoped_lock const cierre{cerrojo};
      quienes.insert(std::this_thread::get_id());
    }
    std::this_thread::sleep_for(std::chrono::milliseconds{2});
    ++terminados;
  });
  EXPECT_EQ(terminados, 4);
  EXPECT_EQ(quienes.size(), 4U);
}

}  // namespace
}  // namespace zorve
