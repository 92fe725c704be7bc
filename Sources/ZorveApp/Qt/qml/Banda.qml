import QtQuick

// Errors and notices as cards. Without any it takes no space; many scroll inside it.
Item {
    id: banda

    readonly property double altoMaximo: 140
    // Whether what follows is cut off at the band's foot.
    property bool conLinea: false

    visible: lista.count > 0
    height: lista.count === 0 ? 0 : Math.min(altoMaximo, Math.max(30, lista.contentHeight)) + 2 * 10 - 2

    ListView {
        id: lista
        objectName: "banda"
        anchors { fill: parent; leftMargin: estilo.margenDeBanda; rightMargin: estilo.margenDeBanda; topMargin: 10 }
        anchors.bottomMargin: 8
        model: panel.banda
        spacing: 6
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        onCountChanged: Qt.callLater(positionViewAtEnd)
        onContentHeightChanged: if (interactive) Qt.callLater(positionViewAtEnd)
        delegate: Tarjeta {
            required property var modelData
            width: ListView.view.width
            texto: modelData.texto
            esError: modelData.esError
        }
    }

    Desplazamiento { lista: lista; anchors.rightMargin: -estilo.margenDeBanda }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 1; rightMargin: 1 }
        height: 1
        visible: banda.conLinea
        color: estilo.linea
    }
}
