#include "ZorveApp/Qt/Activacion/Testigo.h"

#include <gtest/gtest.h>

#include "ZorveApp/Qt/Activacion/EjecutorConTestigo.h"

namespace zorve {
namespace {

TEST(Testigo, seTomaDelEntornoYNoQuedaEnEl) {
  qputenv("XDG_ACTIVATION_TOKEN", "uno");
  qputenv("DESKTOP_STARTUP_ID", "dos");
  EXPECT_EQ(Testigo::tomarDelEntorno(), (Testigo{QStringLiteral("uno"), QStringLiteral("dos")}));
  EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
  EXPECT_FALSE(qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
}

TEST(Testigo, comoDatosDePlataformaIdaYVueltaEsElMismo) {
  Testigo const testigo{QStringLiteral("a b"), QStringLiteral("zorve_TIME5")};
  EXPECT_EQ(Testigo::de(testigo.datosDePlataforma()), testigo);
  EXPECT_TRUE(Testigo{}.datosDePlataforma().isEmpty());
}

TEST(Testigo, unosDatosDeOtraClaseNoSonTestigo) {
  EXPECT_TRUE(Testigo::de({{QStringLiteral("activation-token"), QVariantList{1}}}).vacio());
}

TEST(Testigo, loQueNingunEscritorioDaNoCuenta) {
  auto const de = [](QString const& texto) {
    return Testigo::de(
        {{QStringLiteral("activation-token"), texto}, {QStringLiteral("desktop-startup-id"), texto}});
  };
  EXPECT_FALSE(de(QString{512, u'x'}).vacio());
  EXPECT_TRUE(de(QString{513, u'x'}).vacio());
  EXPECT_TRUE(de(QStringLiteral("a\nb")).vacio());
  EXPECT_TRUE(de(QStringLiteral("a") + QChar{0}).vacio());
}

TEST(Testigo, elMomentoEsElDelFinalDelIdentificador) {
  auto const momentoDe = [](char const* arranque) {
    return Testigo{{}, QString::fromLatin1(arranque)}.momento();
  };
  EXPECT_EQ(momentoDe("gtk-launch-1-vm-x_TIME0-0_TIME4294967295"), 4294967295U);
  EXPECT_EQ(momentoDe("sin momento"), 0U);
  EXPECT_EQ(momentoDe("x_TIME"), 0U);
  EXPECT_EQ(momentoDe("x_TIME4294967296"), 0U);
  EXPECT_EQ((Testigo{QStringLiteral("x_TIME7"), {}}.momento()), 7U);
}

TEST(EjecutorConTestigo, soloElProgramaQueAbreVentanasRecibeElTestigo) {
  int pedidos = 0;
  EjecutorConTestigo const ejecutor{{"UNA=1"}, "/usr/bin/env", [&] {
                                      ++pedidos;
                                      return std::vector<std::string>{"XDG_ACTIVATION_TOKEN=abc"};
                                    }};
  auto const con = ejecutor.correr("/usr/bin/env", {});
  ASSERT_TRUE(con);
  EXPECT_EQ(con->salida, "UNA=1\nXDG_ACTIVATION_TOKEN=abc\n");
  std::vector<std::string> const args{"-c", "echo $UNA$XDG_ACTIVATION_TOKEN"};
  auto const sin = ejecutor.correr("/bin/sh", args);
  ASSERT_TRUE(sin);
  EXPECT_EQ(sin->salida, "1\n");
  EXPECT_EQ(pedidos, 1);
}

}  // namespace
}  // namespace zorve
