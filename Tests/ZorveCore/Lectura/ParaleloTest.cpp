#include "ZorveCore/Lectura/Paralelo.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <new>
#include <set>
#include <stdexcept>
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

TEST(Paralelo, loQueUnoLanzaLlegaCuandoTodosHanTerminado) {
  std::atomic<int> empezados{0};
  std::atomic<int> terminados{0};
  auto const trabajo = [&] {
    if (empezados++ == 1) throw std::bad_alloc{};
    std::this_thread::sleep_for(std::chrono::milliseconds{5});
    ++terminados;
  };
  EXPECT_THROW(ladoALado(4, trabajo), std::bad_alloc);
  EXPECT_EQ(terminados, empezados - 1);
}

TEST(Paralelo, loQueLanzaElPropioHiloNoDejaAOtrosSinEsperar) {
  auto const propio = std::this_thread::get_id();
  std::atomic<bool> otroTermino{false};
  EXPECT_THROW(ladoALado(2,
                         [&] {
                           if (std::this_thread::get_id() == propio) throw std::runtime_error{"x"};
                           std::this_thread::sleep_for(std::chrono::milliseconds{5});
                           otroTermino = true;
                         }),
               std::runtime_error);
  EXPECT_TRUE(otroTermino);
}

}  // namespace
}  // namespace zorve
