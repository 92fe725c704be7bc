# The macOS side, read from Sources/.
if(ZORVE_SOLO_PORTABLE)
  zorve_capa(ZorvePlatform ZorvePlatform/Posix/*.cpp ZorvePlatform/MacOS/*.cpp
    ${PROJECT_SOURCE_DIR}/Scripts/darwin/enlace/SinSistema.cpp)
  add_subdirectory(${PROJECT_SOURCE_DIR}/Scripts/darwin/enlace ${PROJECT_BINARY_DIR}/enlace)
  return()
endif()

zorve_capa(ZorvePlatform ZorvePlatform/Posix/*.cpp ZorvePlatform/MacOS/*.cpp ZorvePlatform/MacOS/*.mm)
target_link_libraries(ZorvePlatform PUBLIC "-framework AppKit" "-framework ServiceManagement"
  "-framework UniformTypeIdentifiers")

if(ZORVE_FRONT_END)
  set(empaque ${PROJECT_SOURCE_DIR}/Packaging/macOS)
  file(GLOB fuentes CONFIGURE_DEPENDS ZorveApp/AppKit/*.mm)
  add_executable(Zorve MACOSX_BUNDLE ${fuentes} ${empaque}/Zorve.icns)
  target_link_libraries(Zorve PRIVATE zorve_opciones ZorvePlatform "-framework QuartzCore")
  configure_file(${empaque}/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)
  set_target_properties(Zorve PROPERTIES MACOSX_BUNDLE_INFO_PLIST ${PROJECT_BINARY_DIR}/Info.plist)
  set_source_files_properties(${empaque}/Zorve.icns PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  foreach(idioma en es)
    target_sources(Zorve PRIVATE ${empaque}/${idioma}.lproj/InfoPlist.strings)
    set_source_files_properties(${empaque}/${idioma}.lproj/InfoPlist.strings PROPERTIES
      MACOSX_PACKAGE_LOCATION Resources/${idioma}.lproj)
  endforeach()
  # The companion goes into the bundle; then the whole is signed for this Mac, as arm64 code must be to run.
  set_property(TARGET Zorve APPEND PROPERTY LINK_DEPENDS $<TARGET_FILE:zorvectl>)
  add_dependencies(Zorve zorvectl)
  add_custom_command(TARGET Zorve POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:zorvectl> $<TARGET_BUNDLE_CONTENT_DIR:Zorve>/MacOS/zorvectl
    COMMAND ${CMAKE_COMMAND} -E env ZORVE_IDENTIDAD=- ${empaque}/firma.sh $<TARGET_BUNDLE_DIR:Zorve>
    VERBATIM)
endif()
