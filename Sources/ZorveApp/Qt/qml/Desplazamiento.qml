import QtQuick
import Zorve.Tipos

// A thin mark of the place in a list that scrolls. It can be taken and dragged; a press beside it brings it there.
Item {
    id: carril

    property Flickable lista

    readonly property double recorrido: height - 2 * Medidas.bordeDeCarril - marca.height
    // How much of the content lies outside the list.
    readonly property double sobrante: lista.contentHeight + lista.topMargin + lista.bottomMargin - lista.height

    anchors { right: lista.right; top: lista.top; bottom: lista.bottom }
    width: Medidas.carril
    visible: lista.visibleArea.heightRatio < 1

    function llevar(y) {
        const parte = Math.max(0, Math.min(1, (y - Medidas.bordeDeCarril) / Math.max(1, recorrido)))
        lista.contentY = lista.originY - lista.topMargin + parte * sobrante
    }

    Rectangle {
        id: marca
        anchors { right: parent.right; rightMargin: Medidas.margenDeAsidero }
        y: Medidas.bordeDeCarril + carril.recorrido * carril.lista.visibleArea.yPosition / Math.max(0.001, 1 - carril.lista.visibleArea.heightRatio)
        width: zona.pressed || zona.containsMouse ? Medidas.asideroTomado : Medidas.asidero
        height: Math.max(Medidas.largoDeAsidero, (carril.height - 2 * Medidas.bordeDeCarril) * carril.lista.visibleArea.heightRatio)
        radius: width / 2
        color: Estilo.textoDebil
        opacity: zona.pressed || zona.containsMouse || carril.lista.moving ? 0.8 : 0.25
    }

    MouseArea {
        id: zona
        objectName: "carril"
        property double asidero: 0

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: raton => {
            const dentro = raton.y >= marca.y && raton.y <= marca.y + marca.height
            asidero = dentro ? raton.y - marca.y : marca.height / 2
            if (!dentro) carril.llevar(raton.y - asidero)
        }
        onPositionChanged: raton => { if (pressed) carril.llevar(raton.y - asidero) }
    }
}
