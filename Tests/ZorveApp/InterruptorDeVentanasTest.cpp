#include "ZorveApp/InterruptorDeVentanas.h"

#include <gmock/gmock.h>

#include "MesaDeAjustes.h"
#include "ZorveApp/VistaAjustes.h"

namespace zorve {
namespace {

using Estado = InterruptorDeVentanas::Estado;
using Caso = InterruptorDeVentanas::Rechazo::Caso;

class InterruptorDePrueba final : public InterruptorDeVentanas {
 public:
  void mirar() override { ++miradas; }
  void alternar() override { ++toques; }
  void poner(Estado estado) { estado_.escribir(estado); }
  void rehusar(Rechazo rechazo) { rechazo_.escribir(std::move(rechazo)); }

  int miradas = 0;
  int toques = 0;
};

class InterruptorEnLosAjustes : public MesaDeAjustes {
 protected:
  InterruptorEnLosAjustes() {
    cargar();
    vista.ponerInterruptor(interruptor);
  }
  Opcion opcion() const { return vista.terminal().grupos.at(1).opciones.at(0); }

  InterruptorDePrueba interruptor;
  VistaAjustes vista{*modelo, idioma, Modificador::control};
};

TEST_F(InterruptorEnLosAjustes, noSeMuestraHastaQueElEscritorioContesta) {
  EXPECT_EQ(vista.terminal().grupos.size(), 1U);
  interruptor.poner(Estado::apagado);
  EXPECT_EQ(vista.terminal().grupos.size(), 2U);
  EXPECT_EQ(vista.general().grupos.size(), 2U);
}

TEST_F(InterruptorEnLosAjustes, esUnaCasillaConSuEstadoComoNota) {
  interruptor.poner(Estado::apagado);
  EXPECT_EQ(opcion().titulo, "Bring windows to the front (GNOME extension)");
  EXPECT_EQ(opcion().nota, "off");
  EXPECT_TRUE(opcion().cuadro);
  EXPECT_FALSE(opcion().marcada);
  interruptor.poner(Estado::encendido);
  EXPECT_EQ(opcion().nota, "on");
  EXPECT_TRUE(opcion().marcada);
  enEspanol();
  EXPECT_EQ(opcion().titulo, "Traer ventanas al frente (extensión de GNOME)");
  interruptor.poner(Estado::alProximoInicio);
  EXPECT_EQ(opcion().nota, "tras el próximo inicio de sesión");
  EXPECT_FALSE(opcion().marcada);
  interruptor.poner(Estado::noInstalado);
  EXPECT_EQ(opcion().nota, "no instalada: la traen el paquete de Zorve y cmake --install");
}

TEST_F(InterruptorEnLosAjustes, unToqueLoAlternaYCadaAparicionMira) {
  interruptor.poner(Estado::apagado);
  opcion().accion();
  EXPECT_EQ(interruptor.toques, 1);
  vista.aparecer();
  EXPECT_EQ(interruptor.miradas, 1);
}

TEST_F(InterruptorEnLosAjustes, alCambiarSeVuelveAMirarQueTerminalesEnfocan) {
  auto const antes = miradas;
  interruptor.poner(Estado::encendido);
  despachador.correrTodo();
  EXPECT_EQ(miradas, antes + 1);
}

TEST_F(InterruptorEnLosAjustes, unRechazoSeDiceEnLaBanda) {
  int avisos = 0;
  auto const suscripciones = vista.observar([&] { ++avisos; });
  interruptor.rehusar({Caso::rehusado, "no such method"});
  EXPECT_EQ(vista.banda(), "Could not switch the GNOME extension: no such method");
  EXPECT_EQ(avisos, 1);
  interruptor.rehusar({Caso::todasApagadas});
  EXPECT_THAT(*vista.banda(), testing::HasSubstr("Switch them on"));
  enEspanol();
  interruptor.rehusar({Caso::alProximoInicio});
  EXPECT_THAT(*vista.banda(), testing::HasSubstr("vuelve a entrar"));
  interruptor.rehusar({Caso::noInstalado});
  EXPECT_THAT(*vista.banda(), testing::HasSubstr("cmake --install"));
}

}  // namespace
}  // namespace zorve
