#pragma once

#include <cstdint>
#include <initializer_list>
#include <set>
#include <vector>

#include "ZorveCore/Lectura/VidaDeProcesos.h"

namespace zorve::dobles {

/// A process table that a test fills. It keeps what it was asked. One thread at a time.
class ProcesosFijos final : public VidaDeProcesos {
 public:
  ProcesosFijos(std::initializer_list<std::int32_t> vivos = {}) : vivos_{vivos} {}

  void nace(std::int32_t pid) { vivos_.insert(pid); }
  void muere(std::int32_t pid) { vivos_.erase(pid); }
  [[nodiscard]] std::vector<std::int32_t> const& preguntados() const { return preguntados_; }

  [[nodiscard]] bool vive(std::int32_t pid) override {
    preguntados_.push_back(pid);
    return vivos_.contains(pid);
  }

 private:
  std::set<std::int32_t> vivos_;
  std::vector<std::int32_t> preguntados_;
};

}  // namespace zorve::dobles
