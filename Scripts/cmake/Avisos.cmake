# The warnings and sanitizers that every target of ours is built with. Warnings are errors.
add_library(zorve_opciones INTERFACE)
target_compile_options(zorve_opciones INTERFACE
  -Wall -Wextra -Wno-missing-field-initializers -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-qual -Wformat=2 -Wundef -Werror -fno-common -fvisibility=hidden)
target_include_directories(zorve_opciones INTERFACE ${PROJECT_SOURCE_DIR}/Sources)
if(ZORVE_SANITIZE)
  target_compile_options(zorve_opciones INTERFACE
    -fsanitize=${ZORVE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zorve_opciones INTERFACE -fsanitize=${ZORVE_SANITIZE})
endif()
# These follow values through inlined library code; where g++ optimises or sanitizes they report code that is right
# (its bug 105651 among others). The plain build, which the tests run, keeps them.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND (ZORVE_SANITIZE OR NOT CMAKE_BUILD_TYPE STREQUAL "Debug"))
  target_compile_options(zorve_opciones INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow
    -Wno-stringop-overread -Wno-maybe-uninitialized -Wno-free-nonheap-object)
endif()
if(ZORVE_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(zorve_opciones INTERFACE -Wno-tsan)
endif()
# clang reports libstdc++ 12's own use of a deprecated function inside std::stable_sort as ours.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_compile_options(zorve_opciones INTERFACE -Wno-deprecated-declarations)
endif()
