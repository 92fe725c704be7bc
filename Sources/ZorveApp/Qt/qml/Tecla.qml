import QtQuick
import Zorve.Tipos

// A key cap with a drawn symbol or a text.
Rectangle {
    id: tecla

    property int simbolo: Simbolo.Ninguna
    property string texto
    readonly property bool dibujada: simbolo !== Simbolo.Ninguna

    width: (dibujada ? dibujo.width : letrero.implicitWidth) + 2 * Medidas.margenDeTecla
    height: Medidas.altoDeTecla
    radius: Medidas.radioDeTecla
    color: Estilo.fondoDeTecla
    anchors.verticalCenter: parent.verticalCenter

    Simbolo {
        id: dibujo
        anchors.centerIn: parent
        visible: tecla.dibujada
        width: tecla.simbolo === Simbolo.Flechas ? Medidas.ladoDeFlechas : Medidas.ladoDeRetorno
        height: width
        forma: tecla.simbolo
        grosor: Medidas.trazoDeTecla
        color: Estilo.texto
    }
    Letrero {
        id: letrero
        anchors.centerIn: parent
        visible: !tecla.dibujada
        text: tecla.texto
        font.pointSize: Estilo.letraDelPie
        color: Estilo.texto
    }
}
