#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "ZorveApp/PanelView.h"
#include "ZorveTui/AperturaDeConsola.h"
#include "ZorveTui/Consola.h"
#include "ZorveTui/Descifrador.h"
#include "ZorveTui/DespachadorDeConsola.h"
#include "ZorveTui/Dibujo.h"
#include "ZorveTui/Paleta.h"
#include "ZorveTui/Pintor.h"
#include "ZorveTui/Senales.h"

namespace zorve::tui {

/// The panel on a terminal: draws what it says, hands keys, clicks and the search on. Main thread only.
class PanelDeConsola {
 public:
  struct Con {
    PanelView& panel;
    PreferenciaDeIdioma const& idioma;
    AperturaDeConsola& apertura;
    DespachadorDeConsola& despachador;
    Senales& senales;
    Consola& consola;
    SenasDeColor senas;
    ModoDeApertura modo = ModoDeApertura::aqui;
    /// The search it starts with.
    std::string filtro;
    /// Whether a copy comes without anybody's word that it was taken.
    bool copiaIncierta = true;
  };

  explicit PanelDeConsola(Con con);
  PanelDeConsola(PanelDeConsola const&) = delete;
  PanelDeConsola& operator=(PanelDeConsola const&) = delete;
  ~PanelDeConsola() = default;

  /// Shows the panel until it is left.
  [[nodiscard]] Salida correr();

 private:
  void preguntar();
  void esperar();
  void atenderSenales();
  void atenderTeclado();
  void atender(Suceso const& suceso);
  void obedecer(Orden orden);
  void editar(Orden orden);
  void tecla(Tecla cual);
  void atajo(char32_t letra);
  void pagina(int sentido);
  void abrir();
  void copiar();
  void suspender();
  void gesto(Raton const& raton);
  void buscar();
  void pintar();
  void esperarRespuestas();
  [[nodiscard]] Paleta paleta() const;

  Con con_;
  Vista vista_;
  Descifrador descifrador_;
  Pintor pintor_;
  Cuadro cuadro_;
  std::optional<Color> fondo_;
  std::optional<Salida> salida_;
  bool sucio_ = true;
  bool seguir_ = true;
  bool faltanRespuestas_ = false;
  std::vector<Suscripcion> suscripciones_;
};

}  // namespace zorve::tui
