#include "ZorveApp/Qt/Activacion/Activacion.h"

#include <QGuiApplication>
#include <future>

#include "ZorveApp/Qt/Activacion/ActivacionWayland.h"
#include "ZorveApp/Qt/Activacion/ActivacionX11.h"

namespace zorve {

namespace {

/// Where windows come to the front without anybody's leave.
class ActivacionSencilla final : public Activacion {
 public:
  void recibir(Testigo /*testigo*/) override {}
  void alFrente(QWindow& ventana) override {
    ventana.raise();
    ventana.requestActivate();
  }
  void agotar() override {}
  void pedir(std::function<void(Testigo)> alTener) override { alTener({}); }
};

}  // namespace

Testigo pedirDesdeOtroHilo(Activacion& activacion, std::chrono::milliseconds plazo) {
  auto const promesa = std::make_shared<std::promise<Testigo>>();
  auto futuro = promesa->get_future();
  QMetaObject::invokeMethod(
      qGuiApp,
      [&activacion, promesa] {
        activacion.pedir([promesa](Testigo testigo) { promesa->set_value(std::move(testigo)); });
      },
      Qt::QueuedConnection);
  return futuro.wait_for(plazo) == std::future_status::ready ? futuro.get() : Testigo{};
}

std::unique_ptr<Activacion> activacionEnUso() {
  if (ActivacionX11::hay()) return std::make_unique<ActivacionX11>();
  if (ActivacionWayland::hay()) return std::make_unique<ActivacionWayland>();
  return std::make_unique<ActivacionSencilla>();
}

}  // namespace zorve
