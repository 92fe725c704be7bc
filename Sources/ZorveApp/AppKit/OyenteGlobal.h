#pragma once

#import <AppKit/AppKit.h>

namespace zorve {

/// Hears of events that go to other programs, as long as it lives. Main thread only.
class OyenteGlobal {
 public:
  OyenteGlobal(NSEventMask cuales, void (^_Nonnull que)(NSEvent* _Nonnull));
  OyenteGlobal(OyenteGlobal const&) = delete;
  OyenteGlobal& operator=(OyenteGlobal const&) = delete;
  ~OyenteGlobal();

 private:
  id _Nullable oyente_;
};

}  // namespace zorve
