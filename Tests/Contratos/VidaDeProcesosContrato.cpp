#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <limits>
#include <stdexcept>

#include "Dobles/ComoOtroUsuario.h"
#include "Dobles/ProcesosFijos.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace zorve {
namespace {

/// A child that waits until it is let go.
class Hijo {
 public:
  Hijo() {
    int extremos[2];
    if (::pipe(extremos) != 0) throw std::runtime_error("pipe failed");
    pid_ = ::fork();
    if (pid_ == 0) {
      ::close(extremos[1]);
      char nada = 0;
      while (::read(extremos[0], &nada, 1) > 0) {
      }
      ::_exit(0);
    }
    ::close(extremos[0]);
    cuerda_ = extremos[1];
  }
  Hijo(Hijo const&) = delete;
  Hijo& operator=(Hijo const&) = delete;
  ~Hijo() { terminar(); }

  [[nodiscard]] std::int32_t pid() const { return pid_; }
  void terminar() {
    if (cuerda_ < 0) return;
    ::close(cuerda_);
    cuerda_ = -1;
    int estado = 0;
    while (::waitpid(pid_, &estado, 0) < 0) {
    }
  }

 private:
  int cuerda_ = -1;
  ::pid_t pid_ = 0;
};

struct MundoPosix {
  VidaDeProcesosPosix procesos;
  Hijo hijo;
  [[nodiscard]] std::int32_t vivo() const { return hijo.pid(); }
  void terminar() { hijo.terminar(); }
};

struct MundoFijo {
  dobles::ProcesosFijos procesos{4321};
  [[nodiscard]] static std::int32_t vivo() { return 4321; }
  void terminar() { procesos.muere(4321); }
};

template <class Mundo>
class VidaDeProcesosContrato : public ::testing::Test {
 protected:
  Mundo mundo;
};

using Mundos = ::testing::Types<MundoPosix, MundoFijo>;
TYPED_TEST_SUITE(VidaDeProcesosContrato, Mundos);

TYPED_TEST(VidaDeProcesosContrato, unProcesoQueCorreVive) {
  EXPECT_TRUE(this->mundo.procesos.vive(this->mundo.vivo()));
}

TYPED_TEST(VidaDeProcesosContrato, unProcesoQueTerminoNoVive) {
  this->mundo.terminar();
  EXPECT_FALSE(this->mundo.procesos.vive(this->mundo.vivo()));
}

TYPED_TEST(VidaDeProcesosContrato, unPidQueNadieTieneNoVive) {
  EXPECT_FALSE(this->mundo.procesos.vive(std::numeric_limits<std::int32_t>::max()));
}

TEST(VidaDeProcesosPosix, unProcesoDeOtroUsuarioVive) {
  EXPECT_TRUE(dobles::comoOtroUsuario([] { return ::kill(1, 0) != 0 && VidaDeProcesosPosix{}.vive(1); }));
  EXPECT_TRUE(dobles::comoOtroUsuario(
      [] { return !VidaDeProcesosPosix{}.vive(std::numeric_limits<std::int32_t>::max()); }));
}

}  // namespace
}  // namespace zorve
