#include "ZorveTerminal/EnchufeLocal.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/ComoOtroUsuario.h"

namespace zorve::ayudante {
namespace {

/// A socket that anyone may connect to, on which this process listens.
class EnchufeAbierto : public testing::Test {
 protected:
  EnchufeAbierto() {
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    std::strncpy(direccion.sun_path, ruta.c_str(), sizeof direccion.sun_path - 1);
    escucha = Descriptor{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    EXPECT_EQ(::bind(escucha.numero(), reinterpret_cast<sockaddr const*>(&direccion), sizeof direccion), 0);
    EXPECT_EQ(::listen(escucha.numero(), 4), 0);
    EXPECT_EQ(::chmod(ruta.c_str(), 0777), 0);
  }

  dobles::CarpetaTemporal carpeta;
  std::string ruta = carpeta.dentro("enchufe");
  Descriptor escucha;
};

TEST_F(EnchufeAbierto, seSabeQuienEscuchaSiEsDelMismoUsuario) {
  auto const conectado = conectarA(ruta);
  ASSERT_TRUE(static_cast<bool>(conectado));
  EXPECT_EQ(quienEscucha(conectado), ::getpid());
}

TEST_F(EnchufeAbierto, elDeOtroUsuarioNoEsDeNadie) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
  EXPECT_TRUE(dobles::comoOtroUsuario([this] {
    auto const conectado = conectarA(ruta);
    return static_cast<bool>(conectado) && quienEscucha(conectado) == 0;
  }));
}

TEST_F(EnchufeAbierto, dondeNadieEscuchaNoHayConexion) {
  EXPECT_FALSE(static_cast<bool>(conectarA(carpeta.dentro("otro"))));
  EXPECT_FALSE(static_cast<bool>(conectarA("")));
}

}  // namespace
}  // namespace zorve::ayudante
