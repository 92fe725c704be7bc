#include "ZorveApp/Qt/Puentes/DespachadorQt.h"

#include <QTimer>
#include <thread>
#include <utility>

namespace zorve {

void DespachadorQt::enPrincipal(Tarea tarea) {
  QMetaObject::invokeMethod(&principal_, std::move(tarea), Qt::QueuedConnection);
}

void DespachadorQt::enSegundoPlano(Tarea tarea) { std::thread{std::move(tarea)}.detach(); }

void DespachadorQt::enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) {
  enPrincipal([this, espera, tarea = std::move(tarea)]() mutable {
    QTimer::singleShot(espera, Qt::PreciseTimer, &principal_, std::move(tarea));
  });
}

}  // namespace zorve
