import QtQuick
import Zorve.Tipos

// A line of text in which what was searched for is drawn in the accent colour: a mark is the line itself once more, seen
// through a window as wide as the mark. Of a line that is cut every piece is drawn so.
Letrero {
    id: entero

    property color tinta: Estilo.texto
    // Two numbers a mark, where it begins and ends in UTF-16 units.
    property var marcas: []
    readonly property bool conMarcas: (marcas?.length ?? 0) > 0
    readonly property var cortado: conMarcas ? Piezas.de(text, font, width, truncated ? elide : Text.ElideNone, marcas) : ({ texto: "", piezas: [] })

    color: conMarcas && truncated ? "transparent" : tinta

    Repeater {
        // Counted, not listed: pieces stay while what they show changes.
        model: entero.cortado.piezas.length
        delegate: Item {
            id: pieza
            required property int index
            readonly property LetreroMarcado suyo: parent as LetreroMarcado
            readonly property var datos: suyo ? suyo.cortado.piezas[index] : null
            readonly property bool marcada: datos ? datos.marcada : false

            x: datos ? datos.x : 0
            width: datos ? datos.ancho : 0
            height: suyo ? suyo.height : 0
            clip: true

            Letrero {
                x: -pieza.x
                text: pieza.suyo && (pieza.marcada || pieza.suyo.truncated) ? pieza.suyo.cortado.texto : ""
                font: pieza.suyo ? pieza.suyo.font : Qt.font({})
                color: pieza.marcada || !pieza.suyo ? Estilo.acento : pieza.suyo.tinta
            }
        }
    }
}
