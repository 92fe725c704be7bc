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
    border { width: 1; color: marcada ? estilo.contornoDeFila : activeFocus ? estilo.acento : estilo.lineaFila }
    activeFocusOnTab: true
    Keys.onSpacePressed: elegida()
    Accessible.role: cuadro ? Accessible.CheckBox : Accessible.RadioButton
    Accessible.name: titulo
    Accessible.description: nota
    Accessible.checkable: true
    Accessible.checked: marcada
    Accessible.onPressAction: elegida()

    Rectangle {
        id: marca
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        width: estilo.ladoDeMarca; height: estilo.ladoDeMarca
        radius: fila.cuadro ? 4 : width / 2
        color: fila.marcada ? estilo.acento : "transparent"
        border { width: fila.marcada ? 0 : 1.5; color: estilo.textoDebil }

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
            width: 6; height: 6; radius: 3
            visible: fila.marcada && !fila.cuadro
            color: Qt.rgba(0.05, 0.09, 0.1, 1)
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
            font.pointSize: estilo.letraDeOpcion
            color: estilo.textoAlto
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
        }
    }

    MouseArea {
        id: zona
        anchors.fill: parent
        hoverEnabled: true
        onClicked: fila.elegida()
    }
}
