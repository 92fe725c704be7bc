#include "ZorveTerminal/Abrir.h"

#include <unistd.h>

#include <cstdlib>

#include "ZorveCore/Escape.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Posix/Hogar.h"
#include "ZorveTerminal/Entorno.h"
#include "ZorveTerminal/GuionDeShell.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazoDelArranque{2500};

/// An empty directory of its own; whoever finds it removes it.
class Senal {
 public:
  explicit Senal(std::string const& carpeta) {
    for (auto const& lugar : {carpeta, std::string{"/tmp"}}) {
      std::string plantilla = lugar + "/zorve-XXXXXX";
      if (!ruta_.empty() || !lugar.starts_with('/')) continue;
      if (::mkdtemp(plantilla.data()) != nullptr) ruta_ = plantilla;
    }
  }
  Senal(Senal const&) = delete;
  Senal& operator=(Senal const&) = delete;
  ~Senal() {
    if (!ruta_.empty()) ::rmdir(ruta_.c_str());
  }
  [[nodiscard]] std::string const& ruta() const { return ruta_; }

 private:
  std::string ruta_;
};

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

}  // namespace

std::vector<std::string> argumentosDe(FichaDeTerminal const& ficha,
                                      std::vector<std::string> const& palabras) {
  auto args = ficha.argumentos;
  if (!ficha.unSoloTexto) {
    args.insert(args.end(), palabras.begin(), palabras.end());
    return args;
  }
  std::string texto;
  for (auto const& palabra : palabras) texto += (texto.empty() ? "" : " ") + palabraDeShell(palabra);
  args.push_back(texto);
  return args;
}

std::expected<void, FinTemprano> abrir(FichaDeTerminal const& ficha, std::string const& directorio,
                                       std::string const& comando, std::span<std::string const> entorno) {
  auto const casa = hogarDelUsuario().value_or("/");
  auto const lugares = EntornoLinux::delProceso(casa);
  auto const programa = programaDe(ficha, lugares);
  if (programa.empty()) return std::unexpected{FinTemprano{127, ficha.nombre + " is not installed"}};
  Senal const senal{valorEn(entorno, "XDG_RUNTIME_DIR")};
  auto const palabras = palabrasDelGuion(
      {directorio, comando, shellDeLaPersona(entorno), valorEn(entorno, "HOME"), senal.ruta()});
  Lanzamiento lanzamiento{.ejecutable = programa,
                          .args = argumentosDe(ficha, palabras),
                          .entorno = entornoLimpio(entorno),
                          .directorio = casa,
                          .senal = senal.ruta()};
  if (abrirEnLaQueHay(ficha, lugares, palabras, lanzamiento)) return {};
  return lanzar(lanzamiento, plazoDelArranque);
}

}  // namespace zorve
