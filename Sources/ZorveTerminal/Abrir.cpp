#include "ZorveTerminal/Abrir.h"

#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "ZorveCore/Escape.h"
#include "ZorvePlatform/Linux/BuscarPrograma.h"
#include "ZorveTerminal/Entorno.h"
#include "ZorveTerminal/GuionDeShell.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazoDelArranque{2500};

/// An empty directory of its own; whoever finds it removes it.
class Senal {
 public:
  explicit Senal(std::string const& carpeta) {
    std::string plantilla = (carpeta.starts_with('/') ? carpeta : "/tmp") + "/zorve-XXXXXX";
    if (::mkdtemp(plantilla.data()) != nullptr) ruta_ = plantilla;
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

std::optional<std::string> programaDe(FichaDeTerminal const& ficha, LugaresDeProgramas const& lugares) {
  for (auto const& nombre : ficha.programas) {
    if (auto ruta = buscarPrograma(nombre, lugares)) return ruta;
  }
  return programaDeLaEntrada(ficha.entradaDeEscritorio, ficha.programas, lugares);
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
  auto const lugares =
      lugaresDeProgramas([&](std::string const& nombre) { return valorEn(entorno, nombre); });
  auto const programa = programaDe(ficha, lugares);
  if (!programa) return std::unexpected{FinTemprano{127, ficha.nombre + " is not installed"}};
  Senal const senal{valorEn(entorno, "XDG_RUNTIME_DIR")};
  auto const palabras = palabrasDelGuion(
      {directorio, comando, shellDeLaPersona(entorno), valorEn(entorno, "HOME"), senal.ruta()});
  return lanzar({.ejecutable = *programa,
                 .args = argumentosDe(ficha, palabras),
                 .entorno = entornoLimpio(entorno),
                 .directorio = casaDeLaPersona(entorno),
                 .senal = senal.ruta()},
                plazoDelArranque);
}

}  // namespace zorve
