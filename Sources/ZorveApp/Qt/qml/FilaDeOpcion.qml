import QtQuick
import Zorve.Tipos

// An option: the whole card is the button.
Rectangle {
    id: fila

    property string titulo
    property string nota
    property bool marcada: false
    property bool cuadro: false
    signal elegida

    height: nota.length > 0 ? Medidas.altoDeOpcionConNota : Medidas.altoDeOpcion
    radius: Medidas.radioDeOpcion
    color: marcada ? Estilo.filaSeleccionada
                   : zona.pressed ? Estilo.opcionAlPulsar : zona.containsMouse ? Estilo.opcionAlPasar : Estilo.fondoDeOpcion
    border { width: marcada ? Estilo.trazoDeSeleccion : Medidas.borde; color: marcada ? Estilo.contornoDeFila : Estilo.lineaFila }
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
        x: Medidas.margenDeOpcion
        anchors.verticalCenter: parent.verticalCenter
        width: Medidas.ladoDeMarca; height: Medidas.ladoDeMarca

        Simbolo {
            anchors.fill: parent
            forma: fila.cuadro ? Simbolo.Caja : Simbolo.Aro
            color: fila.marcada ? Estilo.acento : Estilo.textoDebil
        }
        Rectangle {
            anchors.fill: parent
            visible: fila.marcada && fila.cuadro
            radius: Medidas.radioDeCasilla
            color: Estilo.acento
        }
        Simbolo {
            anchors.centerIn: parent
            width: Medidas.ladoDeVisto; height: width
            visible: fila.marcada && fila.cuadro
            forma: Simbolo.Visto
            grosor: Medidas.trazoDeVisto
            color: Estilo.visto
        }
        Rectangle {
            anchors.centerIn: parent
            width: Medidas.ladoDePunto; height: width; radius: width / 2
            visible: fila.marcada && !fila.cuadro
            color: Estilo.acento
        }
    }

    Column {
        anchors { left: marca.right; leftMargin: Medidas.huecoDeOpcion; right: parent.right; rightMargin: Medidas.margenDeOpcion; verticalCenter: parent.verticalCenter }
        spacing: Medidas.huecoDeNota
        Letrero {
            width: parent.width
            text: fila.titulo
            elide: Text.ElideRight
            maximumLineCount: 1
            font { pointSize: Estilo.letraDeOpcion; weight: Estilo.pesoMedio }
            color: Estilo.textoAlto
            Accessible.ignored: true
        }
        Letrero {
            width: parent.width
            visible: text.length > 0
            text: fila.nota
            elide: Text.ElideRight
            maximumLineCount: 1
            font.pointSize: Estilo.letraDeNota
            color: fila.marcada || zona.containsMouse ? Estilo.textoEncendido : Estilo.textoTenue
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
