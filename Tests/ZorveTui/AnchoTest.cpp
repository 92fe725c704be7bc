#include "ZorveTui/Ancho.h"

#include <gtest/gtest.h>

namespace zorve::tui {
namespace {

TEST(Ancho, lasLetrasTomanUnaColumnaYLasAnchasDos) {
  EXPECT_EQ(anchoDe("abc"), 3U);
  EXPECT_EQ(anchoDe("ñandú"), 5U);
  EXPECT_EQ(anchoDe("日本"), 4U);
  EXPECT_EQ(anchoDe("한국"), 4U);
}

TEST(Ancho, unaMarcaQueSeCombinaNoTomaNinguna) { EXPECT_EQ(anchoDe("e\u0301"), 1U); }

TEST(Ancho, unDibujoCompuestoTomaDos) {
  EXPECT_EQ(anchoDe("\U0001F468\u200D\U0001F469\u200D\U0001F467"), 2U);
  EXPECT_EQ(anchoDe("\U0001F44D\U0001F3FD"), 2U);
  EXPECT_EQ(anchoDe("\U0001F1EA\U0001F1F8"), 2U);
  EXPECT_EQ(anchoDe("\u2764\uFE0F"), 2U);
}

TEST(Ancho, seDudaDeLoCompuestoYDeLoAnchoPeroNoDeLasLetras) {
  EXPECT_FALSE(anchoDudoso("a"));
  EXPECT_FALSE(anchoDudoso("ñ"));
  EXPECT_TRUE(anchoDudoso("日"));
  EXPECT_TRUE(anchoDudoso("e\u0301"));
}

TEST(Ancho, cortarDejaLosCaracteresEnteros) {
  EXPECT_EQ(hastaDonde("日本語", 5), "日本…");
  EXPECT_EQ(hastaDonde("日本語", 4), "日…");
  EXPECT_EQ(desdeDonde("~/src/日本", 6), "…/日本");
  EXPECT_EQ(hastaDonde("abc", 3), "abc");
  EXPECT_EQ(hastaDonde("abc", 0), "");
  EXPECT_EQ(desdeDonde("abc", 1), "…");
}

}  // namespace
}  // namespace zorve::tui
