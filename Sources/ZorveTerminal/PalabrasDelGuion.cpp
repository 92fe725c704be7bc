#include "ZorveTerminal/PalabrasDelGuion.h"

#include <sys/stat.h>

#include "ZorveCore/Texto/Escape.h"
#include "ZorveTerminal/GuionDeShell.h"

namespace zorve::ayudante {

namespace {

std::string sinOpciones(std::string const& directorio) {
  return directorio.empty() || directorio.starts_with('/') ? directorio : "./" + directorio;
}

}  // namespace

std::vector<std::string> palabrasDelGuion(OrdenParaLaShell const& orden, CarpetaDePaso const& carpeta,
                                          LugarDePaso const& lugar) {
  std::string texto = "set --";
  for (auto const& palabra : {sinOpciones(orden.directorio), orden.shell, orden.home, carpeta.ruta(),
                              std::string{lugar.privado ? "privado" : ""}}) {
    texto += " " + palabraDeShell(palabra);
  }
  texto += "\n" + std::string{guionDeShell()};
  bool const escrito = !carpeta.ruta().empty() && carpeta.escribir("linea", orden.comando) &&
                       carpeta.escribir("orden", texto) && ::mkdir(senalEn(carpeta).c_str(), S_IRWXU) == 0;
  if (!escrito) return {};
  return {"/bin/sh", carpeta.ruta() + "/orden"};
}

std::string senalEn(CarpetaDePaso const& carpeta) { return carpeta.ruta() + "/senal"; }

}  // namespace zorve::ayudante
