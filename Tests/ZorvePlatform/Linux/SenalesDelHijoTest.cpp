#include <signal.h>  // NOLINT(modernize-deprecated-headers): the mask of signals is POSIX

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

namespace zorve {
namespace {

/// Every signal blocked and one ignored, while it lives.
class SenalesCambiadas {
 public:
  SenalesCambiadas() {
    antes_ = ::signal(SIGPIPE, SIG_IGN);
    sigset_t todas{};
    sigfillset(&todas);
    ::pthread_sigmask(SIG_SETMASK, &todas, &mascara_);
  }
  SenalesCambiadas(SenalesCambiadas const&) = delete;
  SenalesCambiadas& operator=(SenalesCambiadas const&) = delete;
  ~SenalesCambiadas() {
    ::pthread_sigmask(SIG_SETMASK, &mascara_, nullptr);
    ::signal(SIGPIPE, antes_);
  }

 private:
  sigset_t mascara_{};
  void (*antes_)(int) = SIG_DFL;
};

/// A mask of signals in /proc/self/status, without the two that the C library keeps to itself.
std::uint64_t mascaraDelHijo(std::string const& nombre) {
  std::vector<std::string> const args{"-c", "sed -n 's/^" + nombre + ":\t//p' /proc/self/status"};
  auto const hexadecimal = EjecutorDeProcesos{}.correr("/bin/sh", args).value().salida;
  constexpr std::uint64_t deLaBiblioteca = 0x180000000U;
  return std::stoull(hexadecimal, nullptr, 16) & ~deLaBiblioteca;
}

TEST(EjecutorDeProcesos, elHijoNoHeredaSenalesBloqueadasNiIgnoradas) {
  SenalesCambiadas const cambiadas;
  EXPECT_EQ(mascaraDelHijo("SigBlk"), 0U);
  EXPECT_EQ(mascaraDelHijo("SigIgn"), 0U);
}

}  // namespace
}  // namespace zorve
