import QtQuick

// Shows that its parent has the keyboard.
Rectangle {
    property double separacion: 2

    anchors { fill: parent; margins: -separacion }
    radius: parent.radius + separacion
    color: "transparent"
    visible: parent.activeFocus
    border { width: 2; color: estilo.foco }
}
