#include "ZorveTui/AperturaDeConsola.h"

#include <unistd.h>

#include <cerrno>
#include <utility>
#include <vector>

#include "ZorveApp/TareaDeFondo.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveTui/TextosDelTerminal.h"

namespace zorve::tui {

namespace {

std::string ordenDe(Session const& sesion) { return "claude -r " + palabraDeShell(*sesion.sessionId); }

/// The person's own shell as they use it, so that it finds what they find.
std::vector<std::string> palabrasDeShell(Session const& sesion) { return {"-i", "-c", ordenDe(sesion)}; }

std::string lineaDeTmux(SitioEnTmux const& sitio, TmuxDeAqui const& tmux) {
  return "tmux -S " + palabraDeShell(sitio.enchufe) + (tmux.estamosDentro() ? " switch-client" : " attach") +
         " -t " + palabraDeShell(sitio.destino);
}

/// Why nobody can work in the directory, or nothing.
std::optional<std::string> fallaDelDirectorio(std::string const& directorio) {
  if (::access((directorio + "/.").c_str(), X_OK) == 0) return std::nullopt;
  return directorio + ": " + FalloDelSistema::deErrno(errno).descripcion;
}

}  // namespace

AperturaDeConsola::AperturaDeConsola(Con con) : con_{std::move(con)} {}

void AperturaDeConsola::abrir(Session const& sesion) {
  if (con_.modo == ModoDeApertura::escritorio || !sesion.sessionId) return comoElPanel();
  if (sesion.liveState == LiveState::dead) return abrirAcabada(sesion);
  if (!sesion.pid) return comoElPanel();
  enFondo(
      con_.despachador, vida_,
      [pid = *sesion.pid, tmux = con_.tmux, &ejecutor = con_.ejecutor] {
        return Viva{sitioEnTmux(pid, tmux, ejecutor)};
      },
      &AperturaDeConsola::abrirViva);
}

void AperturaDeConsola::abrirAcabada(Session const& sesion) {
  if (con_.modo == ModoDeApertura::imprimir) {
    return terminar(Impresa{"cd " + palabraDeShell(sesion.cwd) + " && " + ordenDe(sesion)});
  }
  auto const textos = textosDe(con_.idioma);
  enFondo(
      con_.despachador, vida_,
      [con = con_, cwd = sesion.cwd, palabras = palabrasDeShell(sesion), textos] {
        if (auto const falla = fallaDelDirectorio(cwd)) return Hecho{textos.noSePudoAbrir(*falla), Dejado{}};
        if (con.modo == ModoDeApertura::aqui) return Hecho{{}, Relevo{con.shell, palabras, cwd}};
        auto orden = palabras;
        orden.insert(orden.begin(), con.shell);
        auto const hecha = ventanaDeTmux(cwd, orden, con.tmux, con.ejecutor);
        if (hecha) return Hecho{{}, Dejado{}};
        return Hecho{TextosDelTerminal::tmuxNoQuiso(textos.idioma, hecha.error()), Dejado{}};
      },
      &AperturaDeConsola::terminarHecho);
}

void AperturaDeConsola::abrirViva(Viva viva) {
  auto const& tmux = con_.tmux;
  if (!viva.sitio) return comoElPanel();
  bool const enOtroServidor = tmux.estamosDentro() && viva.sitio->enchufe != tmux.enchufePropio();
  if (enOtroServidor) return comoElPanel();
  if (con_.modo == ModoDeApertura::imprimir) return terminar(Impresa{lineaDeTmux(*viva.sitio, tmux)});
  if (!tmux.estamosDentro()) {
    return terminar(
        Relevo{tmux.programa, {"-S", viva.sitio->enchufe, "attach", "-t", viva.sitio->destino}, {}});
  }
  enFondo(
      con_.despachador, vida_,
      [sitio = *viva.sitio, tmux, &ejecutor = con_.ejecutor, idioma = *con_.idioma.idioma()] {
        auto const hecho = mostrarEnTmux(sitio, tmux, ejecutor);
        if (hecho) return Hecho{{}, Dejado{}};
        return Hecho{TextosDelTerminal::tmuxNoQuiso(idioma, hecho.error()), Dejado{}};
      },
      &AperturaDeConsola::terminarHecho);
}

void AperturaDeConsola::terminarHecho(Hecho hecho) {
  if (hecho.falla) return decir(*std::move(hecho.falla));
  terminar(std::move(hecho.salida));
}

}  // namespace zorve::tui
