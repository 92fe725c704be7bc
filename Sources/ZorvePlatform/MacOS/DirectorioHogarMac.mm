#include "ZorvePlatform/MacOS/DirectorioHogarMac.h"

#import <Foundation/Foundation.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

std::string directorioHogarMac() {
  @autoreleasepool {
    return textoDe(NSFileManager.defaultManager.homeDirectoryForCurrentUser.path);
  }
}

}  // namespace zorve
