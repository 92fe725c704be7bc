#import "ZorveApp/AppKit/OyenteGlobal.h"

namespace zorve {

OyenteGlobal::OyenteGlobal(NSEventMask cuales, void (^que)(NSEvent*))
    : oyente_{[NSEvent addGlobalMonitorForEventsMatchingMask:cuales handler:que]} {}

OyenteGlobal::~OyenteGlobal() {
  if (oyente_ != nil) [NSEvent removeMonitor:static_cast<id _Nonnull>(oyente_)];
}

}  // namespace zorve
