import QtQuick
import Zorve.Dibujo

// An option: the whole card is the button.
Rectangle {
    id: fila

    property string titulo
    property string nota
    property bool marcada: false
    property bool cuadro: false
    signal elegida

    height: nota.length > 0 ? estilo.altoDeOpcionConNota : estilo.altoDeOpcion
    radius: estilo.radioDeOpcion
    color: marcada ? estilo.filaSeleccionada
                   : zona.pressed ? Qt.rgba(1, 1, 1, 0.09) : zona.containsMouse ? Qt.rgba(1, 1, 1, 0.065) : estilo.fondoDeOpcion
    border { width: 1; color: marcada ? estilo.contornoDeFila : estilo.lineaFila }
    activeFocusOnTab: true
    Keys.onSpacePressed: elegida()
    Keys.onReturnPressed: elegida()
    Keys.onEnterPressed: elegida()
    Accessible.role: cuadro ? Accessible.CheckBox : Accessible.RadioButton
    Accessible.name: titulo
    Accessible.description: nota
    Accessible.focusable: true
    Accessible.checkable: true
    Accessible.checked: marcada
    Accessible.onPressAction: elegida()
    Accessible.onToggleAction: elegida()

    Foco {}
    Item {
        id: marca
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        width: estilo.ladoDeMarca; height: estilo.ladoDeMarca

        Simbolo {
            anchors.fill: parent
            nombre: fila.cuadro ? "caja" : "aro"
            color: fila.marcada ? estilo.acento : estilo.textoDebil
        }
        Rectangle {
            anchors.fill: parent
            visible: fila.marcada && fila.cuadro
            radius: 4
            color: estilo.acento
        }
        Simbolo {
            anchors.centerIn: parent
            width: 12; height: 12
            visible: fila.marcada && fila.cuadro
            nombre: "visto"
            grosor: 1.8
            color: Qt.rgba(0.05, 0.09, 0.1, 1)
        }
        Rectangle {
            anchors.centerIn: parent
            width: 8; height: 8; radius: 4
            visible: fila.marcada && !fila.cuadro
            color: estilo.acento
        }
    }

    Column {
        anchors { left: marca.right; leftMargin: 12; right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
        spacing: 2
        Text {
            width: parent.width
            text: fila.titulo
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            font { pointSize: estilo.letraDeOpcion; weight: Font.Medium }
            color: estilo.textoAlto
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            visible: text.length > 0
            text: fila.nota
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            font.pointSize: estilo.letraDeNota
            color: estilo.textoTenue
            Accessible.ignored: true
        }
    }

    MouseArea {
        id: zona
        anchors.fill: parent
        hoverEnabled: true
        onClicked: fila.elegida()
    }
}
