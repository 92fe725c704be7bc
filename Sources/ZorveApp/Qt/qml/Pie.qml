import QtQuick
import Zorve.Tipos

// The legend of keys, the terminal in use and the way to the settings.
Item {
    id: pie

    // Help for `de`, when the pointer comes; an empty text when it goes.
    signal ayuda(Item de, string texto)

    height: Medidas.altoDelPie

    Raya { anchors.top: parent.top }

    Row {
        id: leyenda
        anchors { left: parent.left; leftMargin: Medidas.margenDelPie; verticalCenter: parent.verticalCenter }
        spacing: Medidas.huecoDeLeyenda

        Repeater {
            model: DatosDelPanel.leyenda
            delegate: Row {
                id: entrada
                required property var modelData
                spacing: Medidas.huecoDeTecla
                Tecla {
                    simbolo: entrada.modelData.simbolo
                    texto: entrada.modelData.tecla
                }
                Letrero {
                    anchors.verticalCenter: parent.verticalCenter
                    text: entrada.modelData.palabra
                    font.pointSize: Estilo.letraDelPie
                    color: Estilo.textoTenue
                }
            }
        }
    }

    LetreroDicho {
        id: terminal
        objectName: "terminal"
        anchors { left: leyenda.right; leftMargin: Medidas.huecoDeTerminal; right: engranaje.left; rightMargin: Medidas.huecoDeBoton; verticalCenter: parent.verticalCenter }
        text: DatosDelPanel.terminal
        elide: Text.ElideRight
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        horizontalAlignment: Text.AlignRight
        font.pointSize: Estilo.letraDelPie
        color: Estilo.textoTenue

        MouseArea {
            anchors.fill: parent
            hoverEnabled: terminal.truncated
            onContainsMouseChanged: pie.ayuda(terminal, containsMouse ? terminal.text : "")
        }
    }

    Item {
        id: engranaje
        objectName: "engranaje"
        anchors { right: parent.right; rightMargin: Medidas.margenDeBoton; verticalCenter: parent.verticalCenter }
        width: Medidas.ladoDeBoton; height: width
        Accessible.role: Accessible.Button
        Accessible.name: DatosDelPanel.nombreAjustes
        Accessible.description: DatosDelPanel.ayudaAjustes
        Accessible.onPressAction: DatosDelPanel.ajustesPedidos()

        Rectangle {
            anchors.fill: parent
            radius: Medidas.radioDeBoton
            color: zona.pressed ? Estilo.botonAlPulsar : Estilo.botonAlPasar
            visible: zona.containsMouse
        }
        Simbolo {
            anchors.centerIn: parent
            width: Medidas.ladoDeEngranaje; height: width
            forma: Simbolo.Engranaje
            grosor: Medidas.trazoDeEngranaje
            color: zona.containsMouse ? Estilo.textoAlto : Estilo.textoTenue
        }
        MouseArea {
            id: zona
            anchors.fill: parent
            hoverEnabled: true
            onContainsMouseChanged: pie.ayuda(engranaje, containsMouse ? DatosDelPanel.ayudaAjustes : "")
            onClicked: DatosDelPanel.ajustesPedidos()
        }
    }
}
