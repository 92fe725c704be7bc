import QtQuick
import Zorve.Tipos

// One message: a tinted card whose text wraps.
Rectangle {
    id: tarjeta

    property string texto
    property bool esError: true

    height: letrero.implicitHeight + 2 * Medidas.margenDeAviso
    radius: Medidas.radioDeBanda
    color: esError ? Estilo.fondoDeError : Estilo.fondoDeAviso
    border { width: Medidas.borde; color: esError ? Estilo.contornoDeError : Estilo.contornoDeAviso }

    Rectangle {
        id: marca
        x: Medidas.xDePuntoDeAviso; y: Medidas.margenDeAviso + (lineaDePrueba.height - height) / 2
        width: Medidas.ladoDePuntoDeAviso; height: width; radius: width / 2
        color: tarjeta.esError ? Estilo.error : Estilo.acento
    }
    FontMetrics { id: lineaDePrueba; font: letrero.font }

    Letrero {
        id: letrero
        anchors { left: parent.left; leftMargin: Medidas.xDeAviso; right: parent.right; rightMargin: Medidas.margenDerechoDeAviso; top: parent.top; topMargin: Medidas.margenDeAviso }
        text: tarjeta.texto
        wrapMode: Text.Wrap
        font.pointSize: Estilo.letraDeBanda
        color: Estilo.texto
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
