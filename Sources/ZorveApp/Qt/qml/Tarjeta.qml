import QtQuick

// One message: a tinted card whose text wraps.
Rectangle {
    id: tarjeta

    property string texto
    property bool esError: true

    height: letrero.implicitHeight + 14
    radius: estilo.radioDeBanda
    color: esError ? estilo.fondoDeError : estilo.fondoDeAviso
    border { width: 1; color: Qt.rgba(marca.color.r, marca.color.g, marca.color.b, 0.14) }

    Rectangle {
        id: marca
        x: 11; y: 7 + (lineaDePrueba.height - height) / 2
        width: 6; height: 6; radius: 3
        color: tarjeta.esError ? estilo.error : estilo.acento
    }
    FontMetrics { id: lineaDePrueba; font: letrero.font }

    Text {
        id: letrero
        anchors { left: parent.left; leftMargin: 27; right: parent.right; rightMargin: 12; top: parent.top; topMargin: 7 }
        text: tarjeta.texto
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: estilo.letraDeBanda
        color: estilo.texto
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
