#include "ZorveTerminal/Abrir.h"

#include <algorithm>
#include <iterator>

#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/Unir.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Posix/Home.h"
#include "ZorveTerminal/CarpetaDePaso.h"
#include "ZorveTerminal/Entorno.h"
#include "ZorveTerminal/PalabrasDelGuion.h"

namespace zorve::ayudante {

namespace {

constexpr std::chrono::milliseconds plazoDelArranque{2500};

/// A window in a process of the terminal that waits for such. False when there is none.
bool abrirEnLaQueHay(FichaDeTerminal const& ficha, EntornoLinux const& lugares,
                     std::vector<std::string> const& palabras, Lanzamiento lanzamiento) {
  if (ficha.cliente.empty()) return false;
  lanzamiento.ejecutable = ejecutableEn(lugares, ficha.cliente.front());
  if (lanzamiento.ejecutable.empty()) return false;
  lanzamiento.args.assign(ficha.cliente.begin() + 1, ficha.cliente.end());
  lanzamiento.args.insert(lanzamiento.args.end(), palabras.begin(), palabras.end());
  return lanzar(lanzamiento, plazoDelArranque).has_value();
}

std::unexpected<FinTemprano> sinCarpeta(LugarDePaso const& lugar) {
  return std::unexpected{
      FinTemprano{1, "nothing can be written below " + lugar.carpeta +
                         ", which hands the command over to the terminal; make room there"}};
}

}  // namespace

std::vector<std::string> argumentosDe(FichaDeTerminal const& ficha,
                                      std::vector<std::string> const& palabras) {
  auto args = ficha.argumentos;
  if (!ficha.unSoloTexto) {
    args.insert(args.end(), palabras.begin(), palabras.end());
    return args;
  }
  std::vector<std::string> citadas;
  std::ranges::transform(palabras, std::back_inserter(citadas), palabraDeShell);
  args.push_back(unidos(citadas, " "));
  return args;
}

std::expected<void, FinTemprano> abrir(FichaDeTerminal const& ficha, std::string const& directorio,
                                       std::string const& comando, std::span<std::string const> entorno) {
  auto const home = homeDelUsuario().value_or("/");
  auto const lugares = EntornoLinux::delProceso(home);
  auto const programa = programaDe(ficha, lugares);
  if (programa.empty()) return std::unexpected{FinTemprano{127, ficha.nombre + " is not installed"}};
  auto const lugar = lugarDePaso(valorEn(entorno, "XDG_RUNTIME_DIR"), home);
  CarpetaDePaso carpeta{lugar};
  auto const palabras =
      palabrasDelGuion({directorio, comando, shellDeLaPersona(entorno), home}, carpeta, lugar);
  if (palabras.empty()) return sinCarpeta(lugar);
  Lanzamiento const lanzamiento{.ejecutable = programa,
                                .args = argumentosDe(ficha, palabras),
                                .entorno = entornoLimpio(entorno),
                                .directorio = home,
                                .senal = senalEn(carpeta)};
  auto const abierta = abrirEnLaQueHay(ficha, lugares, palabras, lanzamiento)
                           ? std::expected<void, FinTemprano>{}
                           : lanzar(lanzamiento, plazoDelArranque);
  if (abierta) carpeta.dejar();
  return abierta;
}

}  // namespace zorve::ayudante
