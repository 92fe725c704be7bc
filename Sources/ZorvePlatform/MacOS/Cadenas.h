#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

/// `texto` for the system; bytes that are no UTF-8 become U+FFFD. Any thread.
[[nodiscard]] inline NSString* _Nonnull cadena(std::string_view texto) {
  std::string const valido = conUtf8Valido(texto);
  NSString* const entera = [[NSString alloc] initWithBytes:valido.data()
                                                    length:valido.size()
                                                  encoding:NSUTF8StringEncoding];
  return entera == nil ? @"" : entera;
}

/// `cadena` as UTF-8; a lone surrogate becomes a replacement character. Nothing gives an empty text.
[[nodiscard]] inline std::string textoDe(NSString* _Nullable cadena) {
  NSData* const bytes = [cadena dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  return bytes.length == 0 ? std::string{} : std::string{static_cast<char const*>(bytes.bytes), bytes.length};
}

}  // namespace zorve
