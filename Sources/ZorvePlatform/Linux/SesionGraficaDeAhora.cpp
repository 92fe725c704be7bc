#include "ZorvePlatform/Linux/SesionGraficaDeAhora.h"

#include <array>
#include <chrono>
#include <utility>

#include "ZorvePlatform/Linux/ProgramaAcotado.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazo{1000};

}  // namespace

SesionGraficaDeAhora::SesionGraficaDeAhora(SesionGrafica delProceso, std::string rutaDelAyudante)
    : delProceso_{delProceso},
      rutaDelAyudante_{std::move(rutaDelAyudante)},
      mirada_{delProceso != SesionGrafica::gnome},
      vista_{delProceso} {}

void SesionGraficaDeAhora::mirar() {
  if (delProceso_ != SesionGrafica::gnome) return;
  std::array<std::string, 1> const args{"desktop"};
  bool const encendida = salidaDe(rutaDelAyudante_, args, plazo) == "gnome\n";
  vista_ = encendida ? SesionGrafica::gnome : SesionGrafica::gnomeSinExtension;
  mirada_ = true;
}

SesionGrafica SesionGraficaDeAhora::actual() {
  if (!mirada_) mirar();
  return vista_;
}

}  // namespace zorve
