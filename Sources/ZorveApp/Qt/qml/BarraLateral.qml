import QtQuick
import Zorve.Tipos

// One row a section; the chosen one is drawn selected. Up and Down go from one to the next. `radio` rounds the corner
// that the window's own corner is.
Item {
    id: barra

    property double radio: 0

    width: Medidas.anchoDeBarraLateral

    Item {
        anchors.fill: parent
        clip: barra.radio > 0

        Rectangle {
            anchors { fill: parent; topMargin: -barra.radio; rightMargin: -barra.radio }
            radius: barra.radio
            color: Estilo.fondoDeBarraLateral
        }
    }

    Column {
        anchors { fill: parent; margins: Medidas.margenDeBarraLateral; topMargin: Medidas.margenSobreSecciones }
        spacing: Medidas.huecoEntreSecciones
        Accessible.role: Accessible.PageTabList
        Keys.onUpPressed: irA(conTeclado() - 1)
        Keys.onDownPressed: irA(conTeclado() + 1)

        function conTeclado() {
            for (let cual = 0; cual < filas.count; cual++) if (filas.itemAt(cual).activeFocus) return cual
            return -1
        }
        function irA(cual) {
            if (cual < 0 || cual >= filas.count) return
            DatosDeAjustes.seccionPulsada(cual)
            filas.itemAt(cual).forceActiveFocus(Qt.TabFocusReason)
        }

        Repeater {
            id: filas
            model: DatosDeAjustes.secciones.length
            delegate: Rectangle {
                id: fila
                required property int index
                readonly property var datos: DatosDeAjustes.secciones[index]

                objectName: "seccion" + index
                width: parent.width
                height: Medidas.altoDeSeccion
                radius: Medidas.radioDeSeccion
                color: datos.elegida ? Estilo.filaSeleccionada
                                     : zona.pressed ? Estilo.filaAlPulsar : zona.containsMouse ? Estilo.filaAlPasar : "transparent"
                border { width: datos.elegida ? Estilo.trazoDeSeleccion : 0; color: Estilo.contornoDeFila }
                activeFocusOnTab: true
                Keys.onSpacePressed: DatosDeAjustes.seccionPulsada(index)
                Keys.onReturnPressed: DatosDeAjustes.seccionPulsada(index)
                Keys.onEnterPressed: DatosDeAjustes.seccionPulsada(index)
                Accessible.role: Accessible.PageTab
                Accessible.name: datos.titulo
                Accessible.focusable: true
                Accessible.selectable: true
                Accessible.selected: datos.elegida
                Accessible.onPressAction: DatosDeAjustes.seccionPulsada(index)

                Foco { separacion: 0 }
                Simbolo {
                    x: Medidas.xDeSimbolo
                    anchors.verticalCenter: parent.verticalCenter
                    width: Medidas.ladoDeSimbolo; height: width
                    forma: fila.datos.simbolo
                    grosor: Medidas.trazoDeSimbolo
                    color: fila.datos.elegida ? Estilo.acento : Estilo.textoTenue
                }
                Letrero {
                    anchors { left: parent.left; leftMargin: Medidas.xDeSeccion; verticalCenter: parent.verticalCenter }
                    text: fila.datos.titulo
                    font.pointSize: Estilo.letraDeOpcion
                    color: fila.datos.elegida ? Estilo.textoAlto : Estilo.texto
                    Accessible.ignored: true
                }
                MouseArea {
                    id: zona
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: DatosDeAjustes.seccionPulsada(fila.index)
                }
            }
        }
    }
}
