# Objective-C++ with automatic reference counting, for the sources that need the system's frameworks. With
# ZORVE_SOLO_PORTABLE none of them is built: that is for checks on machines that have no frameworks.
option(ZORVE_SOLO_PORTABLE "Leave out what needs the system's frameworks" OFF)

if(NOT ZORVE_SOLO_PORTABLE)
  if(CMAKE_VERSION VERSION_LESS 3.26)
    message(FATAL_ERROR "CMake ${CMAKE_VERSION} gives Objective-C++ no language standard: install 3.26 or later")
  endif()
  enable_language(OBJCXX)
  set(CMAKE_OBJCXX_STANDARD 23)
  set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
  set(CMAKE_OBJCXX_EXTENSIONS OFF)
  add_compile_options($<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
endif()
