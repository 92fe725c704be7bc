import QtQuick

// Options under a caption, or under none.
Column {
    id: grupo

    property string titulo
    property var opciones: []
    signal elegida(int opcion)

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: titulo

    Text {
        visible: text.length > 0
        text: grupo.titulo
        textFormat: Text.PlainText
        bottomPadding: 2
        font { pointSize: estilo.letraDeRotulo; letterSpacing: 0.8; capitalization: Font.AllUppercase }
        color: estilo.textoDebil
        Accessible.ignored: true
    }

    Repeater {
        id: filas
        model: grupo.opciones.length
        delegate: FilaDeOpcion {
            required property int index
            readonly property var opcion: grupo.opciones[index]

            function irA(cual) {
                if (cual >= 0 && cual < filas.count) filas.itemAt(cual).forceActiveFocus(Qt.TabFocusReason)
            }

            width: grupo.width
            titulo: opcion ? opcion.titulo : ""
            nota: opcion ? opcion.nota : ""
            marcada: opcion ? opcion.marcada : false
            cuadro: opcion ? opcion.cuadro : false
            onElegida: grupo.elegida(index)
            Keys.onUpPressed: irA(index - 1)
            Keys.onDownPressed: irA(index + 1)
        }
    }
}
