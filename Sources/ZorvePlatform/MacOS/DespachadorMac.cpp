#include "ZorvePlatform/MacOS/DespachadorMac.h"

#include <dispatch/dispatch.h>

#include <memory>
#include <utility>

namespace zorve {

namespace {

void correr(void* tarea) {
  std::unique_ptr<Despachador::Tarea> const una{static_cast<Despachador::Tarea*>(tarea)};
  (*una)();
}

void* entregada(Despachador::Tarea tarea) {
  return std::make_unique<Despachador::Tarea>(std::move(tarea)).release();
}

}  // namespace

void DespachadorMac::enPrincipal(Tarea tarea) {
  dispatch_async_f(dispatch_get_main_queue(), entregada(std::move(tarea)), correr);
}

void DespachadorMac::enSegundoPlano(Tarea tarea) {
  dispatch_async_f(dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), entregada(std::move(tarea)),
                   correr);
}

void DespachadorMac::enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) {
  std::chrono::nanoseconds const tras = espera;
  dispatch_after_f(dispatch_time(DISPATCH_TIME_NOW, tras.count()), dispatch_get_main_queue(),
                   entregada(std::move(tarea)), correr);
}

}  // namespace zorve
