import QtQuick
import Zorve.Tipos

// The search field. What is typed goes to the panel at once; what the panel holds comes back here.
FocusScope {
    height: Medidas.altoDeBusqueda

    Simbolo {
        x: Medidas.xDeLupa
        anchors.verticalCenter: parent.verticalCenter
        width: Medidas.ladoDeLupa; height: width
        forma: Simbolo.Lupa
        grosor: Medidas.trazoDeLupa
        color: campo.text.length > 0 ? Estilo.texto : Estilo.textoTenue
    }

    TextInput {
        id: campo
        objectName: "campo"
        anchors { left: parent.left; leftMargin: Medidas.xDeBusqueda; right: limpiar.left; rightMargin: Medidas.huecoDeBusqueda }
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        clip: true
        font.pointSize: Estilo.letraDeBusqueda
        color: Estilo.textoAlto
        selectionColor: Estilo.textoEscogido
        selectedTextColor: Estilo.textoAlto
        selectByMouse: true
        maximumLength: 2000
        cursorDelegate: Cursor {}
        Accessible.role: Accessible.EditableText
        Accessible.name: DatosDelPanel.nombreDelCampo
        Accessible.searchEdit: true

        onTextEdited: DatosDelPanel.consultaEscrita(text)
        Component.onCompleted: text = DatosDelPanel.consulta
        Connections {
            target: DatosDelPanel
            // What was searched last is there to be kept, or to be typed over.
            function onAparecio() { campo.selectAll() }
            function onOtraBusqueda() { campo.selectAll() }
            function onCambio() { if (campo.text !== DatosDelPanel.consulta) campo.text = DatosDelPanel.consulta }
        }
    }

    Simbolo {
        id: limpiar
        objectName: "limpiar"
        anchors { right: parent.right; rightMargin: Medidas.margenDeEquis; verticalCenter: parent.verticalCenter }
        width: Medidas.ladoDeEquis; height: width
        forma: Simbolo.Equis
        visible: campo.text.length > 0
        color: zona.containsMouse ? Estilo.textoAlto : Estilo.textoTenue
        Accessible.role: Accessible.Button
        Accessible.name: DatosDelPanel.nombreDeLimpiar
        Accessible.onPressAction: DatosDelPanel.consultaEscrita("")

        MouseArea {
            id: zona
            anchors { fill: parent; margins: -Medidas.alcanceDeEquis }
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: DatosDelPanel.consultaEscrita("")
        }
    }

    Raya { anchors.bottom: parent.bottom }
}
