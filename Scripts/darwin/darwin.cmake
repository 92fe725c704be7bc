# CMake toolchain: clang and lld on Linux for macOS, for checks. Settings come from the environment, so that
# CMake's own test projects see them too: ZORVE_DARWIN_SDK (folder made by sdk.sh), ZORVE_DARWIN_ARCH (arm64 or
# x86_64), ZORVE_DARWIN_LLVM (the tools' suffix, "-16").
set(sdk "$ENV{ZORVE_DARWIN_SDK}")
set(llvm "$ENV{ZORVE_DARWIN_LLVM}")
set(minimo 13.0)

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 22.0.0)
set(CMAKE_SYSTEM_PROCESSOR $ENV{ZORVE_DARWIN_ARCH})
set(CMAKE_OSX_SYSROOT "${sdk}")
set(CMAKE_OSX_ARCHITECTURES $ENV{ZORVE_DARWIN_ARCH})
set(CMAKE_OSX_DEPLOYMENT_TARGET ${minimo})

find_program(cc NAMES clang${llvm} REQUIRED)
find_program(cxx NAMES clang++${llvm} REQUIRED)
set(CMAKE_C_COMPILER ${cc})
set(CMAKE_CXX_COMPILER ${cxx})
set(CMAKE_C_COMPILER_TARGET $ENV{ZORVE_DARWIN_ARCH}-apple-macos${minimo})
set(CMAKE_CXX_COMPILER_TARGET $ENV{ZORVE_DARWIN_ARCH}-apple-macos${minimo})
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++")
foreach(herramienta AR RANLIB NM STRIP INSTALL_NAME_TOOL OTOOL)
  string(TOLOWER ${herramienta} nombre)
  string(REPLACE _ - nombre ${nombre})
  find_program(CMAKE_${herramienta} NAMES llvm-${nombre}${llvm} REQUIRED)
endforeach()
# arm64 code must be signed to run at all; "ad hoc" needs no certificate, and lld can do it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-adhoc_codesign")

set(CMAKE_FIND_ROOT_PATH "${sdk}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
