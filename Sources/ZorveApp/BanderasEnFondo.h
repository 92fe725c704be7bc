#pragma once

#include <set>
#include <string>

#include "ZorveApp/Despachador.h"
#include "ZorveCore/PrimerArranque.h"

namespace zorve {

/// The user's flags, read at once and stored in the background, since storing may wait for another program.
/// What this object has marked counts as marked from then on. Main thread only.
class BanderasEnFondo final : public AlmacenDeBanderas {
 public:
  /// `defaults` outlives this object and the tasks that it hands to `despachador`.
  BanderasEnFondo(Preferencias& defaults, Despachador& despachador)
      : defaults_{defaults}, despachador_{despachador} {}

  [[nodiscard]] bool bandera(std::string const& clave) const override;
  void marcar(std::string const& clave) override;

 private:
  Preferencias& defaults_;
  Despachador& despachador_;
  std::set<std::string> marcadas_;
};

}  // namespace zorve
