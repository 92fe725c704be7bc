import QtQuick
import Zorve.Dibujo

// The settings: sections on the left, the chosen one's content on the right.
FocusScope {
    width: 620; height: 460
    focus: true

    Vidrio { anchors.fill: parent; densidad: 1 }

    BarraLateral {
        id: barra
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
    }

    Rectangle {
        anchors { left: barra.right; top: parent.top; bottom: parent.bottom }
        width: 1
        color: estilo.linea
    }

    Flickable {
        anchors { left: barra.right; leftMargin: 1; right: parent.right; top: parent.top; bottom: parent.bottom }
        contentHeight: contenido.height + 40
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height

        Column {
            id: contenido
            x: 24; y: 20
            width: parent.width - 48
            spacing: 18

            Tarjeta {
                width: parent.width
                visible: ajustes.banda.length > 0
                texto: ajustes.banda
            }
            Repeater {
                model: ajustes.grupos
                delegate: GrupoDeOpciones {
                    required property var modelData
                    required property int index
                    width: contenido.width
                    titulo: modelData.titulo
                    opciones: modelData.opciones
                    onElegida: opcion => ajustes.clicEnOpcion(index, opcion)
                }
            }
            Text {
                width: parent.width
                visible: text.length > 0
                text: ajustes.texto
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pointSize: estilo.letraDeOpcion
                color: estilo.textoTenue
            }
        }
    }

    AcercaDe {
        anchors { left: barra.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        visible: ajustes.seccion === "acercaDe"
    }
}
