import QtQuick
import Zorve.Dibujo

// The search field. What is typed goes to the panel at once; what the panel holds comes back here.
FocusScope {
    height: estilo.altoDeBusqueda

    Simbolo {
        x: estilo.xDeLupa
        anchors.verticalCenter: parent.verticalCenter
        width: 16; height: 16
        nombre: "lupa"
        grosor: 1.6
        color: campo.text.length > 0 ? estilo.texto : estilo.textoTenue
    }

    TextInput {
        id: campo
        objectName: "campo"
        anchors { left: parent.left; leftMargin: estilo.xDeBusqueda; right: limpiar.left; rightMargin: 8 }
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        clip: true
        font.pointSize: estilo.letraDeBusqueda
        color: estilo.textoAlto
        selectionColor: Qt.rgba(estilo.acento.r, estilo.acento.g, estilo.acento.b, 0.3)
        selectedTextColor: estilo.textoAlto
        selectByMouse: true
        maximumLength: 2000
        cursorDelegate: Cursor {}
        Accessible.role: Accessible.EditableText
        Accessible.name: panel.nombreDelCampo
        Accessible.searchEdit: true

        onTextEdited: panel.escribirConsulta(text)
        Component.onCompleted: text = panel.consulta
        Connections {
            target: panel
            function onCambio() { if (campo.text !== panel.consulta) campo.text = panel.consulta }
        }
    }

    Simbolo {
        id: limpiar
        anchors { right: parent.right; rightMargin: estilo.margenDerecho - 2; verticalCenter: parent.verticalCenter }
        width: 16; height: 16
        nombre: "equis"
        visible: campo.text.length > 0
        color: zona.containsMouse ? estilo.textoAlto : estilo.textoDebil

        MouseArea {
            id: zona
            anchors { fill: parent; margins: -8 }
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: panel.escribirConsulta("")
        }
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 1; rightMargin: 1 }
        height: 1
        color: estilo.linea
    }
}
