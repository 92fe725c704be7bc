#pragma once

#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace zorve::dobles {

/// While it lives, a process started by root is subject to file permissions like any other user's.
class SinPrivilegios {
 public:
  SinPrivilegios() : efectivo_{::geteuid()} {
    if (efectivo_ == 0 && ::seteuid(65534) != 0) throw std::runtime_error("seteuid failed");
  }
  SinPrivilegios(SinPrivilegios const&) = delete;
  SinPrivilegios& operator=(SinPrivilegios const&) = delete;
  ~SinPrivilegios() {
    if (efectivo_ == 0 && ::seteuid(0) != 0) std::abort();
  }

 private:
  ::uid_t efectivo_;
};

}  // namespace zorve::dobles
