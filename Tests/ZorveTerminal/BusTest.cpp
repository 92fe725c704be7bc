#include "ZorveTerminal/Bus.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"
#include "ZorveTerminal/NodosNumerados.h"

namespace zorve::ayudante {
namespace {

using namespace std::chrono_literals;
using Numeros = std::vector<std::uint32_t>;

TEST(NodosNumerados, sonLosHijosCuyoNombreEsElPrefijoYUnNumero) {
  constexpr char const* texto =
      "<node><interface name=\"7\"/><node name=\"10\"/><node name=\"2\"/><node name=\"a3\"/></node>";
  EXPECT_EQ(nodosNumerados(texto, ""), (Numeros{2, 10}));
  EXPECT_EQ(nodosNumerados(texto, "a"), Numeros{3});
}

TEST(NodosNumerados, loQueNoEsUnNumeroNoCuenta) {
  for (auto const* const texto :
       {"", "<node name=\"", "<node name=\"\"/>", "<node name=\"-1\"/>", "<node name=\"1 \"/>",
        "<node name=\"99999999999\"/>", "<node name=\"/org\">"}) {
    EXPECT_EQ(nodosNumerados(texto, ""), Numeros{}) << texto;
  }
}

/// A session bus of its own.
class ConBus : public testing::Test {
 protected:
  void SetUp() override {
    auto const demonio = dobles::correr(
        {"/usr/bin/dbus-daemon", "--session", "--fork", "--print-address=1", "--print-pid=1", direccion()});
    std::istringstream{demonio.salida} >> direccion_ >> pid_;
    ASSERT_GT(pid_, 1) << demonio.error;
    ::setenv("DBUS_SESSION_BUS_ADDRESS", direccion_.c_str(), 1);
  }
  void TearDown() override {
    ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
    if (pid_ > 1) ::kill(pid_, SIGTERM);
  }

 private:
  [[nodiscard]] std::string direccion() const { return "--address=unix:path=" + carpeta_.dentro("bus"); }

  dobles::CarpetaTemporal carpeta_;
  std::string direccion_;
  pid_t pid_ = 0;
};

TEST_F(ConBus, recibirDejaPasarLoQueEsParaOtroObjetoUOtroMetodo) {
  Bus const nuestro;
  Bus const otro;
  ASSERT_TRUE(nuestro.abierto() && otro.abierto());
  auto const decir = [&](char const* objeto, char const* metodo, std::string const& texto) {
    std::vector<Argumento> const argumentos{texto};
    EXPECT_EQ(otro.llamar({nuestro.nombre(), objeto, "com.una.Prueba", metodo}, argumentos, 10ms),
              std::unexpected{FalloDeBus::calla});
  };
  decir("/1", "Dice", "tarde");
  decir("/2", "Calla", "otro");
  decir("/2", "Dice", "bien");
  EXPECT_EQ(nuestro.recibir({nuestro.nombre(), "/2", "com.una.Prueba", "Dice"}, 5s, otro.nombre()), "bien");
  EXPECT_EQ(nuestro.recibir({nuestro.nombre(), "/1", "com.una.Prueba", "Dice"}, 10ms, otro.nombre()),
            std::nullopt);
}

TEST_F(ConBus, recibirDejaPasarLoQueDiceOtraConexion) {
  Bus const nuestro;
  Bus const extrana;
  Bus const esperada;
  std::vector<Argumento> const argumentos{"mentira"};
  Metodo const metodo{nuestro.nombre(), "/1", "com.una.Prueba", "Dice"};
  (void)extrana.llamar(metodo, argumentos, 10ms);
  EXPECT_EQ(nuestro.recibir(metodo, 50ms, esperada.nombre()), std::nullopt);
  EXPECT_EQ(nuestro.recibir(metodo, 50ms, ""), std::nullopt);
}

TEST_F(ConBus, elDuenoDeUnNombreEsSuConexion) {
  Bus const nuestro;
  EXPECT_EQ(nuestro.duenoDe(nuestro.nombre()), nuestro.nombre());
  EXPECT_EQ(nuestro.duenoDe("com.sarnol.nadie"), "");
  EXPECT_EQ(nuestro.duenoDe(""), "");
}

TEST_F(ConBus, quienNoContestaCallaYQuienNoEstaRechaza) {
  Bus const nuestro;
  Bus const mudo;
  Metodo metodo{mudo.nombre(), "/", "com.una.Prueba", "Dice"};
  EXPECT_EQ(nuestro.llamar(metodo, {}, 50ms), std::unexpected{FalloDeBus::calla});
  metodo.servicio = "com.sarnol.nadie";
  EXPECT_EQ(nuestro.llamar(metodo), std::unexpected{FalloDeBus::rechaza});
  EXPECT_EQ(nuestro.procesoDe(mudo.nombre()), ::getpid());
  EXPECT_EQ(nuestro.procesoDe("com.sarnol.nadie"), 0);
}

}  // namespace
}  // namespace zorve::ayudante
