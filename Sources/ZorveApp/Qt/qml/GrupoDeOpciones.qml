import QtQuick

// Options under a caption, or under none.
Column {
    id: grupo

    property string titulo
    property var opciones: []
    signal elegida(int opcion)

    spacing: 6

    Text {
        visible: text.length > 0
        text: grupo.titulo
        textFormat: Text.PlainText
        bottomPadding: 2
        font { pointSize: estilo.letraDeRotulo; letterSpacing: 0.8; capitalization: Font.AllUppercase }
        color: estilo.textoDebil
    }

    Repeater {
        model: grupo.opciones
        delegate: FilaDeOpcion {
            required property var modelData
            required property int index
            width: grupo.width
            titulo: modelData.titulo
            nota: modelData.nota
            marcada: modelData.marcada
            cuadro: modelData.cuadro
            onElegida: grupo.elegida(index)
        }
    }
}
