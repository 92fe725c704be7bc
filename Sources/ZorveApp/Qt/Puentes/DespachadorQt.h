#pragma once

#include <QObject>

#include "ZorveApp/Despachador.h"

namespace zorve {

/// The main thread is the one that runs Qt's event loop and made this object. Background tasks run on threads
/// of their own, which the program's end does not wait for.
class DespachadorQt final : public Despachador {
 public:
  void enPrincipal(Tarea tarea) override;
  void enSegundoPlano(Tarea tarea) override;
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override;

 private:
  QObject principal_;
};

}  // namespace zorve
