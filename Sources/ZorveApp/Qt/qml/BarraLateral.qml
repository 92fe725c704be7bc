import QtQuick
import Zorve.Dibujo

// One row a section; the chosen one is drawn selected. Up and Down go from one to the next.
Rectangle {
    width: estilo.anchoDeBarraLateral
    color: estilo.fondoDeBarraLateral

    Column {
        anchors { fill: parent; margins: 10; topMargin: 20 }
        spacing: 2
        Accessible.role: Accessible.PageTabList

        Repeater {
            id: filas
            model: ajustes.secciones.length
            delegate: Rectangle {
                id: fila
                required property int index
                readonly property var datos: ajustes.secciones[index]

                function irA(cual) {
                    if (cual < 0 || cual >= filas.count) return
                    ajustes.clicEnSeccion(cual)
                    filas.itemAt(cual).forceActiveFocus(Qt.TabFocusReason)
                }

                objectName: "seccion" + index
                width: parent.width
                height: estilo.altoDeSeccion
                radius: 7
                color: datos.elegida ? estilo.filaSeleccionada
                                     : Qt.rgba(1, 1, 1, zona.pressed ? 0.06 : zona.containsMouse ? 0.03 : 0)
                border { width: datos.elegida ? 1 : 0; color: estilo.contornoDeFila }
                activeFocusOnTab: true
                Keys.onSpacePressed: ajustes.clicEnSeccion(index)
                Keys.onReturnPressed: ajustes.clicEnSeccion(index)
                Keys.onEnterPressed: ajustes.clicEnSeccion(index)
                Keys.onUpPressed: irA(index - 1)
                Keys.onDownPressed: irA(index + 1)
                Accessible.role: Accessible.PageTab
                Accessible.name: datos.titulo
                Accessible.focusable: true
                Accessible.selectable: true
                Accessible.selected: datos.elegida
                Accessible.onPressAction: ajustes.clicEnSeccion(index)

                Foco { separacion: 0 }
                Simbolo {
                    x: 10
                    anchors.verticalCenter: parent.verticalCenter
                    width: 15; height: 15
                    nombre: fila.datos.simbolo
                    grosor: 1.3
                    color: fila.datos.elegida ? estilo.acento : estilo.textoTenue
                }
                Text {
                    anchors { left: parent.left; leftMargin: 34; verticalCenter: parent.verticalCenter }
                    text: fila.datos.titulo
                    textFormat: Text.PlainText
                    font.pointSize: estilo.letraDeOpcion
                    color: fila.datos.elegida ? estilo.textoAlto : estilo.texto
                    Accessible.ignored: true
                }
                MouseArea {
                    id: zona
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: ajustes.clicEnSeccion(fila.index)
                }
            }
        }
    }
}
