# Releases are built the way distributions harden theirs: position-independent programs whose links are all made and
# sealed at start, guards on the stack, checked copies, and checked jumps and returns where the processor has them.
# Scripts/endurecido.sh looks for it in the programs.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
  return()
endif()
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(endurecen -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
foreach(bandera -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
  string(MAKE_C_IDENTIFIER "entiende${bandera}" entiende)
  check_cxx_compiler_flag("-Werror ${bandera}" ${entiende})
  if(${entiende})
    list(APPEND endurecen ${bandera})
  endif()
endforeach()
target_compile_options(zorve_opciones INTERFACE ${endurecen})
if(NOT APPLE)
  target_link_options(zorve_opciones INTERFACE -Wl,-z,relro,-z,now)
endif()
