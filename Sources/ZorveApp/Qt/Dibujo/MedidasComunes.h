#pragma once

#include <QObject>
#include <QQmlEngine>

#include "ZorveApp/Estilo.h"

namespace zorve {

/// The sizes of `Medidas` by their names, for QML's singleton of that name, which adds this front end's own.
class MedidasComunes : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double ancho MEMBER ancho CONSTANT)
  Q_PROPERTY(double alto MEMBER alto CONSTANT)
  Q_PROPERTY(double radioDelPanel MEMBER radioDelPanel CONSTANT)
  Q_PROPERTY(double altoDeBusqueda MEMBER altoDeBusqueda CONSTANT)
  Q_PROPERTY(double xDeLupa MEMBER xDeLupa CONSTANT)
  Q_PROPERTY(double xDeBusqueda MEMBER xDeBusqueda CONSTANT)
  Q_PROPERTY(double margenDeBanda MEMBER margenDeBanda CONSTANT)
  Q_PROPERTY(double radioDeBanda MEMBER radioDeBanda CONSTANT)
  Q_PROPERTY(double altoDeFila MEMBER altoDeFila CONSTANT)
  Q_PROPERTY(double xDeEstado MEMBER xDeEstado CONSTANT)
  Q_PROPERTY(double xDeTitulo MEMBER xDeTitulo CONSTANT)
  Q_PROPERTY(double margenDerecho MEMBER margenDerecho CONSTANT)
  Q_PROPERTY(double sangriaDeSeleccion MEMBER sangriaDeSeleccion CONSTANT)
  Q_PROPERTY(double radioDeSeleccion MEMBER radioDeSeleccion CONSTANT)
  Q_PROPERTY(double altoDelPie MEMBER altoDelPie CONSTANT)
  Q_PROPERTY(double radioDeTecla MEMBER radioDeTecla CONSTANT)
  Q_PROPERTY(double anchoDeAjustes MEMBER anchoDeAjustes CONSTANT)
  Q_PROPERTY(double altoDeAjustes MEMBER altoDeAjustes CONSTANT)
  Q_PROPERTY(double anchoDeBarraLateral MEMBER anchoDeBarraLateral CONSTANT)
  Q_PROPERTY(double altoDeSeccion MEMBER altoDeSeccion CONSTANT)
  Q_PROPERTY(double radioDeOpcion MEMBER radioDeOpcion CONSTANT)
  Q_PROPERTY(double altoDeOpcion MEMBER altoDeOpcion CONSTANT)
  Q_PROPERTY(double altoDeOpcionConNota MEMBER altoDeOpcionConNota CONSTANT)
  Q_PROPERTY(double ladoDeMarca MEMBER ladoDeMarca CONSTANT)

 public:
  using QObject::QObject;

  double const ancho = Medidas::panel.ancho;
  double const alto = Medidas::panel.alto;
  double const radioDelPanel = Medidas::radioDelPanel;
  double const altoDeBusqueda = Medidas::altoDeBusqueda;
  double const xDeLupa = Medidas::xDeLupa;
  double const xDeBusqueda = Medidas::xDeBusqueda;
  double const margenDeBanda = Medidas::margenDeBanda;
  double const radioDeBanda = Medidas::radioDeBanda;
  double const altoDeFila = Medidas::altoDeFila;
  double const xDeEstado = Medidas::xDeEstado;
  double const xDeTitulo = Medidas::xDeTitulo;
  double const margenDerecho = Medidas::margenDerecho;
  double const sangriaDeSeleccion = Medidas::sangriaDeSeleccion;
  double const radioDeSeleccion = Medidas::radioDeSeleccion;
  double const altoDelPie = Medidas::altoDelPie;
  double const radioDeTecla = Medidas::radioDeTecla;
  double const anchoDeAjustes = Medidas::ajustes.ancho;
  double const altoDeAjustes = Medidas::ajustes.alto;
  double const anchoDeBarraLateral = Medidas::anchoDeBarraLateral;
  double const altoDeSeccion = Medidas::altoDeSeccion;
  double const radioDeOpcion = Medidas::radioDeOpcion;
  double const altoDeOpcion = Medidas::altoDeOpcion;
  double const altoDeOpcionConNota = Medidas::altoDeOpcionConNota;
  double const ladoDeMarca = Medidas::ladoDeMarca;
};

}  // namespace zorve
