import QtQuick
import Zorve.Tipos

// The live state: busy a filled dot with a halo, idle a ring, finished a faint ring.
Item {
    id: marca

    property int estado: DatosDelPanel.Acabada
    readonly property bool viva: estado !== DatosDelPanel.Acabada

    width: Medidas.ladoDeEstado; height: width

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        visible: marca.estado === DatosDelPanel.Ocupada
        color: Estilo.haloDeEstado
    }

    Rectangle {
        anchors.centerIn: parent
        width: Medidas.ladoDePunto; height: width
        radius: width / 2
        color: marca.estado === DatosDelPanel.Ocupada ? Estilo.ember : "transparent"
        border { width: marca.viva ? Medidas.trazoVivo : Medidas.trazoAcabado; color: marca.viva ? Estilo.ember : Estilo.aroInactivo }
    }
}
