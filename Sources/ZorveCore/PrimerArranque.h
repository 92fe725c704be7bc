#pragma once

#include <string>

#include "ZorveCore/Preferencias.h"

namespace zorve {

/// Flags that are kept from one start to the next. There is no way back from true.
class AlmacenDeBanderas {
 public:
  AlmacenDeBanderas() = default;
  AlmacenDeBanderas(AlmacenDeBanderas const&) = delete;
  AlmacenDeBanderas& operator=(AlmacenDeBanderas const&) = delete;
  virtual ~AlmacenDeBanderas() = default;

  /// False when nothing is stored under `clave`.
  [[nodiscard]] virtual bool bandera(std::string const& clave) const = 0;
  virtual void marcar(std::string const& clave) = 0;
};

/// Flags among the user's settings. Settings that cannot be read count as marked: whoever asks "is this the
/// first time?" is told no. A flag that cannot be stored is asked for again at the next start.
class BanderasDeUsuario final : public AlmacenDeBanderas {
 public:
  /// `defaults` outlives this object.
  explicit BanderasDeUsuario(Preferencias& defaults) : defaults_{defaults} {}

  [[nodiscard]] bool bandera(std::string const& clave) const override;
  void marcar(std::string const& clave) override;

 private:
  Preferencias& defaults_;
};

/// Whether the panel shows by itself: on the very first start only. `almacen` outlives this object.
struct PrimerArranque {
  static constexpr char const* clave = "app.zorve.panelMostradoEnPrimerArranque";

  AlmacenDeBanderas& almacen;

  /// True the first time it is asked, ever; the asking is what is remembered. Main thread, once a start.
  [[nodiscard]] bool debeMostrarElPanel() const;
};

}  // namespace zorve
