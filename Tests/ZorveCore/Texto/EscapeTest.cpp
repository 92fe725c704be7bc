#include "ZorveCore/Texto/Escape.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

TEST(Escape, unaPalabraDeShellVaEntreComillasSimples) {
  EXPECT_EQ(palabraDeShell(""), "''");
  EXPECT_EQ(palabraDeShell("a b$c\"\\"), "'a b$c\"\\'");
  EXPECT_EQ(palabraDeShell("/Users/ana/it's"), R"('/Users/ana/it'\''s')");
  EXPECT_EQ(palabraDeShell("''"), R"(''\'''\''')");
  EXPECT_EQ(palabraDeShell("ñ\n\xFF"), "'ñ\n\xFF'");
}

TEST(Escape, enCualquierShellLasBarrasYLasComillasVanFuera) {
  EXPECT_EQ(palabraDeCualquierShell(""), "''");
  EXPECT_EQ(palabraDeCualquierShell("a b$c"), "'a b$c'");
  EXPECT_EQ(palabraDeCualquierShell("it's"), R"('it'\''s')");
  EXPECT_EQ(palabraDeCualquierShell(R"(a\)"), R"('a'\\)");
}

TEST(Escape, elLiteralDeAppleScriptEscapaBarrasYComillasYNadaMas) {
  EXPECT_EQ(literalDeAppleScript(""), "\"\"");
  EXPECT_EQ(literalDeAppleScript(R"(a\"b)"), R"("a\\\"b")");
  EXPECT_EQ(literalDeAppleScript("uno\ndos\té's"), "\"uno\ndos\té's\"");
}

TEST(Escape, elTtyCortoPierdeUnSoloDev) {
  EXPECT_EQ(ttyCorto("/dev/ttys004"), "ttys004");
  EXPECT_EQ(ttyCorto("ttys004"), "ttys004");
  EXPECT_EQ(ttyCorto("/dev//dev/x"), "/dev/x");
  EXPECT_EQ(ttyCorto("a/dev/x"), "a/dev/x");
  EXPECT_EQ(ttyCorto("/dev/"), "");
  EXPECT_EQ(ttyCorto(""), "");
}

}  // namespace
}  // namespace zorve
