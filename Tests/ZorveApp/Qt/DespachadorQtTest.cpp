#include "ZorveApp/Qt/DespachadorQt.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <vector>

namespace zorve {
namespace {

using namespace std::chrono_literals;

/// Runs the event loop until `hasta` holds, ten seconds at the most.
template <class Condicion>
bool girar(Condicion hasta) {
  QElapsedTimer reloj;
  reloj.start();
  while (!hasta() && reloj.elapsed() < 10'000) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  return hasta();
}

TEST(DespachadorQt, lasTareasDelPrincipalCorrenEnOrdenYNuncaDentroDeLaLlamada) {
  DespachadorQt despachador;
  std::vector<int> orden;
  for (int i = 0; i < 5; ++i) despachador.enPrincipal([&orden, i] { orden.push_back(i); });
  EXPECT_TRUE(orden.empty());
  ASSERT_TRUE(girar([&] { return orden.size() == 5; }));
  EXPECT_EQ(orden, (std::vector{0, 1, 2, 3, 4}));
}

TEST(DespachadorQt, deSegundoPlanoSeVuelveAlHiloPrincipal) {
  DespachadorQt despachador;
  QThread* fuera = nullptr;
  QThread* vuelta = nullptr;
  despachador.enSegundoPlano([&] {
    fuera = QThread::currentThread();
    despachador.enPrincipal([&] { vuelta = QThread::currentThread(); });
  });
  ASSERT_TRUE(girar([&] { return vuelta != nullptr; }));
  EXPECT_NE(fuera, QThread::currentThread());
  EXPECT_EQ(vuelta, QThread::currentThread());
}

TEST(DespachadorQt, trasUnaEsperaNoCorreAntes) {
  DespachadorQt despachador;
  QElapsedTimer reloj;
  reloj.start();
  qint64 cuando = -1;
  despachador.enPrincipalTras(80ms, [&] { cuando = reloj.elapsed(); });
  ASSERT_TRUE(girar([&] { return cuando >= 0; }));
  EXPECT_GE(cuando, 79);
}

}  // namespace
}  // namespace zorve
