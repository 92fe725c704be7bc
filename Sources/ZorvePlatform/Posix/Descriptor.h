#pragma once

#include <unistd.h>

#include <utility>

namespace zorve {

/// Owns a file descriptor and closes it at the end; -1 owns nothing.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int numero) : numero_{numero} {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  Descriptor(Descriptor&& otro) noexcept : numero_{std::exchange(otro.numero_, -1)} {}
  Descriptor& operator=(Descriptor&& otro) noexcept {
    std::swap(numero_, otro.numero_);
    return *this;
  }
  ~Descriptor() { cerrar(); }

  [[nodiscard]] int numero() const { return numero_; }
  explicit operator bool() const { return numero_ >= 0; }
  void cerrar() {
    if (numero_ >= 0) ::close(std::exchange(numero_, -1));
  }

 private:
  int numero_ = -1;
};

}  // namespace zorve
