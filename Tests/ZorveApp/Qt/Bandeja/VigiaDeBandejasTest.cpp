#include "ZorveApp/Qt/Bandeja/VigiaDeBandejas.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

TEST(VigiaDeBandejas, losAnfitrionesDeMenusSeConocenPorSuProceso) {
  EXPECT_TRUE(esDeMenus("gnome-shell"));
  EXPECT_TRUE(esDeMenus("ayatana-indicat"));
}

TEST(VigiaDeBandejas, losDemasAnfitrionesAvisanDelClic) {
  for (auto const* uno :
       {"plasmashell", "kded5", "xfce4-panel", "wrapper-2.0", "budgie-panel", "lxqt-panel", ""}) {
    EXPECT_FALSE(esDeMenus(uno)) << uno;
  }
}

}  // namespace
}  // namespace zorve
