import QtQuick
import Zorve.Dibujo

// The legend of keys, the terminal in use and the way to the settings.
Item {
    id: pie

    // Help for what is under the pointer; empty when there is none.
    signal ayuda(string texto)

    height: estilo.altoDelPie

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: 1; rightMargin: 1 }
        height: 1
        color: estilo.linea
    }

    Row {
        id: leyenda
        anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
        spacing: 12

        Repeater {
            model: panel.leyenda
            delegate: Row {
                id: entrada
                required property var modelData
                spacing: 6
                Tecla {
                    simbolo: entrada.modelData.simbolo
                    texto: entrada.modelData.tecla
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: entrada.modelData.palabra
                    textFormat: Text.PlainText
                    font.pointSize: estilo.letraDelPie
                    color: estilo.textoTenue
                }
            }
        }
    }

    Text {
        id: terminal
        anchors { left: leyenda.right; leftMargin: 12; right: engranaje.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: panel.terminal
        textFormat: Text.PlainText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: Text.AlignRight
        font.pointSize: estilo.letraDelPie
        color: estilo.textoTenue

        MouseArea {
            anchors.fill: parent
            hoverEnabled: terminal.truncated
            onContainsMouseChanged: pie.ayuda(containsMouse ? terminal.text : "")
        }
    }

    Item {
        id: engranaje
        objectName: "engranaje"
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        width: 26; height: 26
        Accessible.role: Accessible.Button
        Accessible.name: panel.nombreAjustes
        Accessible.description: panel.ayudaAjustes
        Accessible.onPressAction: panel.clicEnAjustes()

        Rectangle {
            anchors.fill: parent
            radius: 6
            color: Qt.rgba(1, 1, 1, zona.pressed ? 0.1 : 0.06)
            visible: zona.containsMouse
        }
        Simbolo {
            anchors.centerIn: parent
            width: 15; height: 15
            nombre: "engranaje"
            grosor: 1.2
            color: zona.containsMouse ? estilo.textoAlto : estilo.textoTenue
        }
        MouseArea {
            id: zona
            anchors.fill: parent
            hoverEnabled: true
            onContainsMouseChanged: pie.ayuda(containsMouse ? panel.ayudaAjustes : "")
            onClicked: panel.clicEnAjustes()
        }
    }
}
