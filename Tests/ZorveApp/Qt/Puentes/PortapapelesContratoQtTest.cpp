#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "Contratos/PortapapelesContrato.h"
#include "ZorveApp/Qt/Puentes/PortapapelesQt.h"

namespace zorve::contratos {
namespace {

class ConQt {
 public:
  Portapapeles& portapapeles() { return portapapeles_; }
  static std::optional<std::string> texto() {
    auto const* datos = QGuiApplication::clipboard()->mimeData();
    if (datos == nullptr || !datos->hasText() || datos->hasHtml()) return std::nullopt;
    return datos->text().toStdString();
  }

 private:
  PortapapelesQt portapapeles_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PortapapelesContrato, ::testing::Types<ConQt>);

}  // namespace
}  // namespace zorve::contratos
