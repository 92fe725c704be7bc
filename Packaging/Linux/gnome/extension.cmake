# Puts the extension of GNOME Shell together in its form for one version of it. Variables: FORMA, 42 (to 44) or 45 (and
# later); DESTINO, the folder for it. Also `cmake -DFORMA=... -DDESTINO=... -P extension.cmake`.
if(FORMA EQUAL 42)
  set(VERSIONES "\"42\", \"43\", \"44\"")
else()
  set(VERSIONES "\"45\", \"46\", \"47\", \"48\", \"49\", \"50\", \"51\"")
endif()
set(texto "")
foreach(trozo head-${FORMA} windows tail-${FORMA})
  file(READ "${CMAKE_CURRENT_LIST_DIR}/${trozo}.js" este)
  string(APPEND texto "${este}")
endforeach()
file(WRITE "${DESTINO}/extension.js" "${texto}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/metadata.json.in" "${DESTINO}/metadata.json" @ONLY)
