import QtQuick
import Zorve.Tipos

// The accent-coloured caret. It blinks only while its field has the keyboard.
Rectangle {
    id: cursor

    readonly property TextInput campo: parent as TextInput

    width: Medidas.anchoDelCursor
    color: Estilo.acento
    visible: campo !== null && campo.cursorVisible && encendido
    property bool encendido: true

    Timer {
        id: parpadeo
        interval: Estilo.parpadeo
        running: cursor.campo !== null && cursor.campo.activeFocus && interval > 0
        repeat: true
        onTriggered: cursor.encendido = !cursor.encendido
        onRunningChanged: cursor.encendido = true
    }
    Connections {
        target: cursor.campo
        function onCursorPositionChanged() {
            cursor.encendido = true
            if (parpadeo.running) parpadeo.restart()
        }
    }
}
