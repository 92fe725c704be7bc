# The macOS side, read from Sources/. With ZORVE_SOLO_PORTABLE nothing that needs the system's frameworks is
# built: that is for checks on machines that have none.
option(ZORVE_SOLO_PORTABLE "Leave out what needs the system's frameworks" OFF)

if(ZORVE_SOLO_PORTABLE)
  zorve_capa(ZorvePlatform ZorvePlatform/Posix/*.cpp ZorvePlatform/MacOS/*.cpp)
  add_subdirectory(${PROJECT_SOURCE_DIR}/Scripts/darwin/enlace ${PROJECT_BINARY_DIR}/enlace)
else()
  enable_language(OBJCXX)
  set(CMAKE_OBJCXX_STANDARD 23)
  set(CMAKE_OBJCXX_EXTENSIONS OFF)
  add_compile_options($<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
  zorve_capa(ZorvePlatform ZorvePlatform/Posix/*.cpp ZorvePlatform/MacOS/*.cpp ZorvePlatform/MacOS/*.mm)
  target_link_libraries(ZorvePlatform PUBLIC "-framework AppKit" "-framework ServiceManagement"
    "-framework UniformTypeIdentifiers")
endif()
