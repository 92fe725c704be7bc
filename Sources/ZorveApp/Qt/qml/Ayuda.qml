import QtQuick

// Help text for what is under the pointer, after it has rested there.
Rectangle {
    id: ayuda

    property double pie: 0

    // Shows `texto` with its foot or, in the upper half, its head at `y`; an empty text takes it away.
    function mostrar(texto, y) {
        visible = false
        letrero.text = texto
        pie = y
        if (texto.length > 0) espera.restart()
        else espera.stop()
    }

    visible: false
    anchors { right: parent.right; rightMargin: 12 }
    y: pie < parent.height / 2 ? pie : pie - height - 4
    width: Math.min(letrero.implicitWidth, estilo.ancho - 80) + 18
    height: letrero.height + 10
    radius: 6
    color: Qt.rgba(0.12, 0.16, 0.19, 1)
    border { width: 1; color: estilo.borde }

    Timer { id: espera; interval: 700; onTriggered: ayuda.visible = true }

    Text {
        id: letrero
        x: 9; y: 5
        width: ayuda.width - 18
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: estilo.letraDelPie
        color: estilo.texto
    }
}
