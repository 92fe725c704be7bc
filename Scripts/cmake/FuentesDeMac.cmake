# macOS builds compile the JSON and the Unicode library in, so that the application bundle needs nothing but
# the system's libraries and holds both architectures. The files are the ones of the releases that every other
# test of ours runs with; checksums make sure of it. ZORVE_FUENTES names a folder that has them already.
set(ZORVE_FUENTES "" CACHE PATH "Folder with the sources of simdjson and utf8proc; empty: they are downloaded")

function(zorve_fuente archivo origen suma)
  set(destino ${ZORVE_FUENTES}/${archivo})
  if(NOT EXISTS ${destino})
    file(DOWNLOAD https://raw.githubusercontent.com/${origen} ${destino} STATUS estado TLS_VERIFY ON)
  endif()
  file(SHA256 ${destino} hallada)
  if(NOT hallada STREQUAL suma)
    file(REMOVE ${PROJECT_BINARY_DIR}/fuentes/${archivo})
    message(FATAL_ERROR "${destino} is not the file of ${origen} (${estado}). Without a network, put the file "
      "into a folder of yours and configure with -DZORVE_FUENTES=FOLDER.")
  endif()
endfunction()

if(NOT ZORVE_FUENTES)
  set(ZORVE_FUENTES ${PROJECT_BINARY_DIR}/fuentes)
endif()
zorve_fuente(simdjson.h simdjson/simdjson/v3.0.1/singleheader/simdjson.h
  5ce048173caafa1e4b71872cedf10c011698b336a34fab2905f94dc377918f19)
zorve_fuente(simdjson.cpp simdjson/simdjson/v3.0.1/singleheader/simdjson.cpp
  3911df6dfec471668231fd47bc2f96378567a12fcd74669bc9dfad28fa182ea7)
zorve_fuente(utf8proc.h JuliaStrings/utf8proc/v2.8.0/utf8proc.h
  3ac6bcc03716a8af82ad91d8287186a846209b3aadab04f001004d33bdb7314e)
zorve_fuente(utf8proc.c JuliaStrings/utf8proc/v2.8.0/utf8proc.c
  fdcc214d140a526b0de3ad22d816823c3e7940c017568c046e40f444060e7a51)
zorve_fuente(utf8proc_data.c JuliaStrings/utf8proc/v2.8.0/utf8proc_data.c
  57a774e8b9b5ae6b2bca3927adee178c20ffcc1986d7e2eff8f39a015f464c88)

enable_language(C)
add_library(simdjson STATIC ${ZORVE_FUENTES}/simdjson.cpp)
target_include_directories(simdjson SYSTEM PUBLIC ${ZORVE_FUENTES})
add_library(simdjson::simdjson ALIAS simdjson)

add_library(utf8proc STATIC ${ZORVE_FUENTES}/utf8proc.c)
target_compile_definitions(utf8proc PUBLIC UTF8PROC_STATIC)
target_include_directories(utf8proc SYSTEM PUBLIC ${ZORVE_FUENTES})
add_library(zorve_utf8proc ALIAS utf8proc)
