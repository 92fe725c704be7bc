# Run by `cmake --install`: writes the files that name the program's absolute path, which is known only now.
set(ejecutable "${CMAKE_INSTALL_PREFIX}/bin/zorve")
if(NOT ejecutable MATCHES "^/[A-Za-z0-9 /._+@:,=~-]*$")
  message(FATAL_ERROR "zorve cannot be installed in '${CMAKE_INSTALL_PREFIX}': a desktop entry and a D-Bus service "
    "must name its path, and this one holds characters that they would misread. Choose another --prefix.")
endif()

function(instala_con_ruta plantilla carpeta)
  string(REPLACE ".in" "" nombre ${plantilla})
  set(hecho "${TALLER}/${nombre}")
  configure_file("${CMAKE_CURRENT_LIST_DIR}/${plantilla}" "${hecho}" @ONLY)
  file(INSTALL "${hecho}" DESTINATION "${CMAKE_INSTALL_PREFIX}/${carpeta}")
endfunction()

instala_con_ruta(com.sarnol.zorve.desktop.in share/applications)
instala_con_ruta(com.sarnol.zorve.service.in share/dbus-1/services)

# The extension of GNOME Shell, in the form for the version that was configured, or else for this system's; the newest
# where there is neither.
function(instala_la_extension)
  set(FORMA 45)
  set(dicho "${GNOME_SHELL}")
  if(NOT dicho)
    execute_process(COMMAND gnome-shell --version OUTPUT_VARIABLE dicho ERROR_QUIET RESULT_VARIABLE estado)
  endif()
  if(dicho MATCHES "([0-9]+)" AND CMAKE_MATCH_1 LESS 45)
    set(FORMA 42)
  endif()
  set(DESTINO "${TALLER}/zorve-windows@sarnol.com")
  include("${CMAKE_CURRENT_LIST_DIR}/gnome/extension.cmake")
  file(INSTALL "${DESTINO}" DESTINATION "${CMAKE_INSTALL_PREFIX}/share/gnome-shell/extensions")
endfunction()
instala_la_extension()
