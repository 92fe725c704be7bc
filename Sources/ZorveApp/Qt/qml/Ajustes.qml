import QtQuick
import Zorve.Dibujo

// The settings: sections on the left, the chosen one's content on the right.
Escalado {
    id: raiz

    width: 620 * estilo.escala
    height: 460 * estilo.escala

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
        id: area
        objectName: "area"
        anchors { left: barra.right; leftMargin: 1; right: parent.right; top: parent.top; bottom: parent.bottom }
        contentHeight: contenido.height + 40
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height

        // The option that has the keyboard is in sight.
        readonly property FilaDeOpcion enfocada: raiz.Window.activeFocusItem as FilaDeOpcion
        onEnfocadaChanged: {
            if (!enfocada) return
            const arriba = enfocada.mapToItem(contenido, 0, 0).y + contenido.y - 20
            const abajo = arriba + enfocada.height + 40
            if (arriba < contentY) contentY = Math.max(0, arriba)
            if (abajo > contentY + height) contentY = abajo - height
        }

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
                // Counted, not listed: who has the keyboard keeps it when a value changes.
                model: ajustes.grupos.length
                delegate: GrupoDeOpciones {
                    required property int index
                    readonly property var grupo: ajustes.grupos[index]
                    width: contenido.width
                    titulo: grupo ? grupo.titulo : ""
                    opciones: grupo ? grupo.opciones : []
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
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Text {
                width: parent.width
                visible: text.length > 0
                text: ajustes.pie
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pointSize: estilo.letraDeNota
                color: estilo.textoTenue
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    AcercaDe {
        anchors { left: barra.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        visible: ajustes.seccion === "acercaDe"
    }
}
