#include "ZorvePlatform/MacOS/DirectorioHomeMac.h"

#import <Foundation/Foundation.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

std::string directorioHomeMac() {
  @autoreleasepool {
    return textoDe(NSFileManager.defaultManager.homeDirectoryForCurrentUser.path);
  }
}

}  // namespace zorve
