import QtQuick
import Zorve.Dibujo

// One row a section; the chosen one is drawn selected.
Rectangle {
    width: estilo.anchoDeBarraLateral
    color: estilo.fondoDeBarraLateral

    Column {
        anchors { fill: parent; margins: 10; topMargin: 16 }
        spacing: 2

        Repeater {
            model: ajustes.secciones
            delegate: Rectangle {
                id: fila
                required property var modelData
                required property int index

                width: parent.width
                height: estilo.altoDeSeccion
                radius: 7
                color: modelData.elegida ? estilo.filaSeleccionada
                                         : Qt.rgba(1, 1, 1, zona.pressed ? 0.06 : zona.containsMouse ? 0.03 : 0)
                border { width: modelData.elegida ? 1 : 0; color: estilo.contornoDeFila }
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData.titulo
                Accessible.onPressAction: ajustes.clicEnSeccion(index)

                Simbolo {
                    x: 10
                    anchors.verticalCenter: parent.verticalCenter
                    width: 15; height: 15
                    nombre: fila.modelData.simbolo
                    grosor: 1.3
                    color: fila.modelData.elegida ? estilo.acento : estilo.textoTenue
                }
                Text {
                    anchors { left: parent.left; leftMargin: 34; verticalCenter: parent.verticalCenter }
                    text: fila.modelData.titulo
                    textFormat: Text.PlainText
                    font.pointSize: estilo.letraDeOpcion
                    color: fila.modelData.elegida ? estilo.textoAlto : estilo.texto
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
