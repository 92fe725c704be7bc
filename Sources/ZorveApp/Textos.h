#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ZorveApp/Idioma.h"
#include "ZorveCore/VocesDelSistema.h"

namespace zorve {

/// Every text of the interface in one language, with the system's own words. An immutable value that may be
/// copied to any thread; what its views show lives as long as the program.
struct Textos {
  explicit Textos(Idioma de, VocesDelSistema const& con = {});

  Idioma idioma;
  std::string ayudaAjustes;
  std::string_view buscandoSesiones;
  std::string_view sinSesiones;
  std::string_view sinCoincidencias;
  std::string_view atajoMover;
  std::string_view atajoAbrir;
  std::string_view atajoRefrescar;
  std::string_view ajustes;
  std::string_view salir;
  std::string_view prompts;
  std::string_view tituloDerivado;
  std::string_view procesando;
  std::string_view activa;
  std::string_view ahora;
  std::string_view sinTerminal;
  std::string_view menuAjustes;
  std::string_view menuSalirDeZorve;
  std::string_view seccionInicio;
  std::string_view seccionIdioma;
  std::string sinTerminalCompatible;
  std::string_view noPuedeEnfocar;
  std::string_view laQueDecidaZorve;
  std::string_view abrirAlIniciarSesion;
  std::string_view sinEmpaquetar;
  std::string paraCerrarZorve;
  std::string vivaSinTty;
  std::string_view sinSalida;

  [[nodiscard]] std::string noSePudoResolverLaTerminal(std::string_view detalle) const;
  [[nodiscard]] std::string vivaSinEnfoque(std::string_view tty, std::string_view terminal) const;
  /// `vivaSinTty` and `vivaSinEnfoque` where no panel is there to copy from.
  [[nodiscard]] std::string sinTty() const;
  [[nodiscard]] std::string sinEnfoque(std::string_view tty, std::string_view terminal) const;
  [[nodiscard]] std::string noSePudoAbrir(std::string_view detalle) const;
  [[nodiscard]] std::string comandoFallo(std::string_view ejecutable, std::int32_t codigo,
                                         std::string_view salida) const;
  [[nodiscard]] std::string noSePudoLanzar(std::string_view ejecutable, std::string_view detalle) const;
  [[nodiscard]] std::string hoyLaDelSistema(std::string_view nombre) const;
  [[nodiscard]] std::string hoyLaUnica(std::string_view nombre) const;
  [[nodiscard]] std::string noSePudoCambiarArranque(std::string_view detalle) const;

  /// After copying `valor` to the clipboard.
  [[nodiscard]] std::string copiado(std::string_view valor) const;
  /// The terminal in the panel's footer, with where it came from.
  [[nodiscard]] std::string pieDelSistema(std::string_view nombre) const;
  [[nodiscard]] std::string pieLaUnica(std::string_view nombre) const;
  /// A key with the system's shortcut modifier ("⌘R").
  [[nodiscard]] std::string atajo(std::string_view tecla) const;

  VocesDelSistema voces;

 private:
  [[nodiscard]] std::string_view elegir(std::string_view en, std::string_view es) const;
  [[nodiscard]] std::string pistaDeCopiar() const;
};

/// The texts in the language in force.
[[nodiscard]] Textos textosDe(PreferenciaDeIdioma const& preferencia);

}  // namespace zorve
