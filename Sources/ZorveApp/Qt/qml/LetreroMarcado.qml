import QtQuick
import Zorve.Tipos

// A line of text in which what was searched for is drawn in the accent colour: each piece is the line itself, seen
// through a window as wide as the piece.
Letrero {
    id: entero

    property color tinta: Estilo.texto
    // Two numbers a mark, where it begins and ends in UTF-16 units.
    property var marcas: []
    readonly property bool conMarcas: (marcas?.length ?? 0) > 0
    readonly property var cortado: conMarcas ? Piezas.de(text, font, width, truncated ? elide : Text.ElideNone, marcas) : ({ texto: "", piezas: [] })

    color: conMarcas ? "transparent" : tinta

    Repeater {
        model: entero.cortado.piezas
        delegate: Item {
            id: pieza
            required property var modelData
            readonly property LetreroMarcado suyo: parent as LetreroMarcado

            x: modelData.x
            width: modelData.ancho
            height: suyo ? suyo.height : 0
            clip: true

            Letrero {
                x: -pieza.x
                text: pieza.suyo ? pieza.suyo.cortado.texto : ""
                font: pieza.suyo ? pieza.suyo.font : Qt.font({})
                color: pieza.modelData.marcada || !pieza.suyo ? Estilo.acento : pieza.suyo.tinta
            }
        }
    }
}
