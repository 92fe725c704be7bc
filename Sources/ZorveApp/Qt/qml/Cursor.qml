import QtQuick

// The accent-coloured caret. It blinks only while its field has the keyboard.
Rectangle {
    id: cursor

    readonly property TextInput campo: parent

    width: 2
    color: estilo.acento
    visible: campo !== null && campo.cursorVisible && encendido
    property bool encendido: true

    Timer {
        interval: Qt.styleHints.cursorFlashTime / 2
        running: cursor.campo !== null && cursor.campo.activeFocus && interval > 0 && estilo.transicion > 0
        repeat: true
        onTriggered: cursor.encendido = !cursor.encendido
        onRunningChanged: cursor.encendido = true
    }
    Connections {
        target: cursor.campo
        function onCursorPositionChanged() { cursor.encendido = true }
    }
}
