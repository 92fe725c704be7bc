#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ZorveApp/Despachador.h"
#include "ZorveApp/Textos.h"
#include "ZorveCore/Modelo.h"
#include "ZorveTui/Salida.h"
#include "ZorveTui/SitioEnTmux.h"

namespace zorve::tui {

/// Where sessions open: as in the panel of a desktop, in the terminal that shows us, in a new window of the
/// tmux around us, or nowhere: the shell line is written.
enum class ModoDeApertura : std::uint8_t { escritorio, aqui, ventanaDeTmux, imprimir };

/// Opens sessions without a desktop. What it refers to outlives the process's tasks. Main thread only.
class AperturaDeConsola {
 public:
  struct Con {
    ModoDeApertura modo = ModoDeApertura::aqui;
    TmuxDeAqui tmux;
    /// Absolute path of the person's shell.
    std::string shell;
    Ejecutor const& ejecutor;
    Despachador& despachador;
    PreferenciaDeIdioma const& idioma;
  };

  explicit AperturaDeConsola(Con con);

  /// The panel ends so.
  std::function<void(Salida)> terminar = [](Salida const&) {};
  /// Something to tell the person.
  std::function<void(std::string)> decir = [](std::string const&) {};
  /// This one is opened, or refused, as the panel of a desktop does it.
  std::function<void()> comoElPanel = [] {};

  void abrir(Session const& sesion);

 private:
  struct Viva {
    std::optional<SitioEnTmux> sitio;
  };
  struct Hecho {
    std::optional<std::string> falla;
    Salida salida;
  };
  void abrirAcabada(Session const& sesion);
  void abrirViva(Viva viva);
  void terminarHecho(Hecho hecho);

  Con con_;
  std::shared_ptr<AperturaDeConsola*> vida_ = std::make_shared<AperturaDeConsola*>(this);
};

}  // namespace zorve::tui
