import QtQuick

// The live state: busy a filled dot with a halo, idle a ring, finished a faint ring.
Item {
    id: marca

    property string estado: "dead"
    readonly property bool viva: estado !== "dead"

    width: 14; height: 14

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        visible: marca.estado === "busy"
        color: estilo.haloDeEstado
    }

    Rectangle {
        anchors.centerIn: parent
        width: 8; height: 8
        radius: width / 2
        color: marca.estado === "busy" ? estilo.ember : "transparent"
        border { width: marca.viva ? 2 : 1.25; color: marca.viva ? estilo.ember : estilo.aroInactivo }
    }
}
