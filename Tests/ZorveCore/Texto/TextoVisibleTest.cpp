#include "ZorveCore/Texto/TextoVisible.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

TEST(TextoVisible, losControlesSeVen) {
  EXPECT_EQ(textoVisible("a\x1B[31m\tb\nc\x7F"), "a␛[31m␉b␊c␡");
  EXPECT_EQ(textoVisible(std::string_view{"\0", 1}), "␀");
  EXPECT_EQ(textoVisible("\u009B\u2028\uFEFF"), "<U+009B><U+2028><U+FEFF>");
}

TEST(TextoVisible, losControlesBidireccionalesSeVen) {
  EXPECT_EQ(textoVisible("a\u202Egnp.exe\u2066\u2069\u200F\u061C"),
            "a<U+202E>gnp.exe<U+2066><U+2069><U+200F><U+061C>");
}

TEST(TextoVisible, loQueSeEscribeQuedaIgual) {
  for (auto const* texto :
       {"", "añ 漢字 한 हिन्दी", "👩‍👩‍👧‍👦", "می‌خواهم", "שלום", "e\u0301"}) {
    EXPECT_EQ(textoVisible(texto), texto);
  }
}

TEST(TextoVisible, losBytesRotosSonReemplazos) { EXPECT_EQ(textoVisible("a\xFF\x9B"), "a\uFFFD\uFFFD"); }

TEST(TextoVisible, lasColumnasSonLasDeUnTerminal) {
  EXPECT_EQ(columnasDe("abc"), 3);
  EXPECT_EQ(columnasDe("ñe\u0301"), 2);
  EXPECT_EQ(columnasDe("漢字"), 4);
  EXPECT_EQ(columnasDe("한…"), 3);
  EXPECT_EQ(columnasDe("🚀"), 2);
  EXPECT_EQ(columnasDe(""), 0);
}

TEST(TextoVisible, elCorteAlFinalNuncaPasaDeLasColumnas) {
  EXPECT_EQ(cortadoAlFinal("abcdef", 6), "abcdef");
  EXPECT_EQ(cortadoAlFinal("abcdef", 5), "abcd…");
  EXPECT_EQ(cortadoAlFinal("漢字漢", 5), "漢字…");
  EXPECT_EQ(cortadoAlFinal("漢字漢", 4), "漢…");
  EXPECT_EQ(cortadoAlFinal("abe\u0301fgh", 4), "abe\u0301…");
  EXPECT_EQ(cortadoAlFinal("abc", 1), "…");
  EXPECT_EQ(cortadoAlFinal("abc", 0), "");
}

TEST(TextoVisible, elCorteAlPrincipioGuardaElFinal) {
  EXPECT_EQ(cortadoAlPrincipio("~/uno/dos", 9), "~/uno/dos");
  EXPECT_EQ(cortadoAlPrincipio("~/uno/dos", 5), "…/dos");
  EXPECT_EQ(cortadoAlPrincipio("/漢字", 4), "…字");
  EXPECT_EQ(cortadoAlPrincipio("abce\u0301", 2), "…e\u0301");
  EXPECT_EQ(cortadoAlPrincipio("abc", 1), "…");
  EXPECT_EQ(cortadoAlPrincipio("abc", 0), "");
}

}  // namespace
}  // namespace zorve
