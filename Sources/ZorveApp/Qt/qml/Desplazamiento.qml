import QtQuick

// A thin mark of the place in a list that scrolls, stronger while it moves.
Rectangle {
    property Flickable lista

    anchors.right: lista.right
    y: lista.y + 2 + (lista.height - 4 - height) * lista.visibleArea.yPosition / Math.max(0.001, 1 - lista.visibleArea.heightRatio)
    width: 3
    height: Math.max(24, (lista.height - 4) * lista.visibleArea.heightRatio)
    radius: 1.5
    color: estilo.textoDebil
    visible: lista.visibleArea.heightRatio < 1
    opacity: lista.moving ? 0.8 : 0.25
}
