#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <optional>

#include "ZorveApp/ItemDeEstado.h"

namespace zorve {

/// Which click stands behind what the status button reports. The program's current event may be an old one,
/// when assistive software pressed the button; and a right click may come by two ways, by the button and,
/// where the system hands it to another program, by a listener. Times are those of events, in seconds. Main
/// thread only.
class ClicsDelItem {
 public:
  /// A press that ends within this time of the panel's closing is the one that closed it.
  static constexpr NSTimeInterval trasElCierre = 0.2;

  enum class Que : std::uint8_t { suyo, repetido };
  struct Clic {
    Que que = Que::suyo;
    /// Nothing when no click is behind the report.
    std::optional<ClicEnLaBarra> evento;
  };

  /// The button, which is in `ventana`, reported while `evento` was the current event.
  [[nodiscard]] Clic delBoton(NSEvent* _Nullable evento, NSWindow* _Nullable ventana);
  /// A listener heard of a right click over the button. Gives whether it is a new one.
  [[nodiscard]] bool deOyente(NSEvent* _Nonnull evento);
  void cerroElPanel(NSTimeInterval cuando) { cierre_ = cuando; }

 private:
  [[nodiscard]] bool esElDelCierre(ClicEnLaBarra const& clic, NSTimeInterval cuando) const;

  NSTimeInterval delBoton_ = -1;
  NSTimeInterval deOyente_ = -1;
  NSTimeInterval cierre_ = -1;
};

}  // namespace zorve
