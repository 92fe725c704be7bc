import QtQuick
import Zorve.Tipos

// Shows that its parent has the keyboard.
Rectangle {
    readonly property Rectangle cuerpo: parent as Rectangle
    property double separacion: Medidas.grosorDeFoco

    anchors { fill: parent; margins: -separacion }
    radius: cuerpo.radius + separacion
    color: "transparent"
    visible: cuerpo.activeFocus
    border { width: Medidas.grosorDeFoco; color: Estilo.foco }
}
