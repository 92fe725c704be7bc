#import <Foundation/Foundation.h>

#include "Contratos/DespachadorContrato.h"
#include "ZorvePlatform/MacOS/DespachadorMac.h"

namespace zorve::contratos {
namespace {

class Mac {
 public:
  Despachador& despachador() { return despachador_; }
  bool girarHasta(std::function<bool()> const& listo) {
    NSDate* const limite = [NSDate dateWithTimeIntervalSinceNow:10];
    while (!listo()) {
      if (limite.timeIntervalSinceNow < 0) return false;
      [NSRunLoop.mainRunLoop runMode:NSDefaultRunLoopMode
                          beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
    }
    return true;
  }

 private:
  DespachadorMac despachador_;
};

using Reales = ::testing::Types<Mac>;
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, DespachadorContrato, Reales);

}  // namespace
}  // namespace zorve::contratos
