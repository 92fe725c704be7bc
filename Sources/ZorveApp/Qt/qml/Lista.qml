import QtQuick
import Zorve.Dibujo

// The rows, or the text that stands in their place. The selected row is always in sight.
Item {
    id: cuerpo

    // Help for the row under the pointer and where its foot is; empty when there is none.
    signal ayuda(string texto, double y)
    readonly property bool cortada: !lista.atYBeginning

    ListView {
        id: lista
        objectName: "filas"
        Accessible.role: Accessible.List
        Accessible.name: panel.nombreDeLaLista
        anchors.fill: parent
        topMargin: 4
        bottomMargin: 4
        model: panel.filas
        clip: true
        reuseItems: true
        cacheBuffer: 2 * estilo.altoDeFila
        boundsBehavior: Flickable.StopAtBounds
        maximumFlickVelocity: 6000
        currentIndex: -1
        highlightFollowsCurrentItem: false
        readonly property int seleccion: panel.seleccion
        onSeleccionChanged: {
            ponerALaVista()
            Qt.callLater(leer)
        }
        onCountChanged: Qt.callLater(ponerALaVista)
        onHeightChanged: ponerALaVista()

        function ponerALaVista() {
            if (seleccion >= 0 && seleccion < count) positionViewAtIndex(seleccion, ListView.Contain)
        }

        // Going from row to row has a screen reader read each; typing has it back in the field.
        readonly property string consulta: panel.consulta
        onConsultaChanged: Qt.callLater(leer)
        property string consultaLeida: consulta
        property int filaLeida: -1
        function leer() {
            const escrita = consulta !== consultaLeida
            const otraFila = filaLeida >= 0 && seleccion >= 0 && seleccion !== filaLeida
            consultaLeida = consulta
            filaLeida = seleccion
            if (escrita) panel.leer(Window.activeFocusItem)
            else if (otraFila) panel.leer(itemAtIndex(seleccion))
        }

        delegate: FilaDeSesion {
            width: ListView.view.width
            seleccionada: index === lista.seleccion
            conLinea: index !== lista.seleccion && index + 1 !== lista.seleccion && index + 1 < lista.count
            onPulsada: panel.clicEnFila(index)
            onSenalada: texto => cuerpo.ayuda(texto, y - lista.contentY + height)
        }
    }

    Desplazamiento { lista: lista }

    Column {
        objectName: "marcador"
        anchors { centerIn: parent; verticalCenterOffset: -12 }
        visible: panel.marcador.length > 0
        spacing: 16

        MarcaDibujada {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 44; height: 44
            color: estilo.aroInactivo
            opacity: 0.5
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: panel.marcador
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            textFormat: Text.PlainText
            font.pointSize: estilo.letraDeTitulo
            color: estilo.textoTenue
        }
    }
}
