import QtQuick

// Help text for what is under the pointer, after it has rested there.
Rectangle {
    id: ayuda

    property double cabeza: 0
    property double pie: 0

    // Shows `texto` for what reaches from `arriba` to `abajo`: below it in the upper half, else above it. An empty
    // text takes it away.
    function mostrar(texto, arriba, abajo) {
        visible = false
        letrero.text = texto
        cabeza = arriba
        pie = abajo
        if (texto.length > 0) espera.restart()
        else espera.stop()
    }

    visible: false
    anchors { right: parent.right; rightMargin: 12 }
    y: pie < parent.height / 2 ? pie - 6 : cabeza - height + 2
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
