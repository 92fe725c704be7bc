import QtQuick
import Zorve.Tipos

// Where something that scrolls is cut: it fades into the glass.
Rectangle {
    id: fundido

    // Whether what is cut goes on above.
    property bool desdeArriba: false
    // The glass there.
    property color tono: Estilo.fondo
    readonly property color claro: Qt.rgba(tono.r, tono.g, tono.b, 0)

    height: Medidas.fundido
    gradient: Gradient {
        GradientStop { position: fundido.desdeArriba ? 0 : 1; color: fundido.tono }
        GradientStop { position: fundido.desdeArriba ? 1 : 0; color: fundido.claro }
    }
}
