import QtQuick
import Zorve.Dibujo

// The mark, the name with its version, and how to quit.
Item {
    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -16
        spacing: 8

        MarcaDibujada {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72; height: 72
            color: estilo.acento
        }
        Item { width: 1; height: 6 }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: ajustes.nombreYVersion
            textFormat: Text.PlainText
            font { pointSize: estilo.letraDeTitulo; weight: Font.Medium }
            color: estilo.textoAlto
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: ajustes.paraCerrar
            textFormat: Text.PlainText
            font.pointSize: estilo.letraDeNota
            color: estilo.textoTenue
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
