import QtQuick
import Zorve.Dibujo

// A key cap with a drawn symbol or a text.
Rectangle {
    property string simbolo
    property string texto

    width: (simbolo.length > 0 ? dibujo.width : letrero.implicitWidth) + 12
    height: 18
    radius: estilo.radioDeTecla
    color: estilo.fondoDeTecla
    anchors.verticalCenter: parent.verticalCenter

    Simbolo {
        id: dibujo
        anchors.centerIn: parent
        visible: parent.simbolo.length > 0
        width: parent.simbolo === "flechas" ? 13 : 12
        height: width
        nombre: parent.simbolo
        grosor: 1.4
        color: estilo.texto
    }
    Text {
        id: letrero
        anchors.centerIn: parent
        visible: parent.simbolo.length === 0
        text: parent.texto
        textFormat: Text.PlainText
        font.pointSize: estilo.letraDelPie
        color: estilo.texto
    }
}
