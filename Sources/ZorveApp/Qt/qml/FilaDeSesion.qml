import QtQuick

// One session: its state, title, directory and when it was last active.
Item {
    id: fila

    required property int index
    required property string titulo
    required property string ayuda
    required property string ruta
    required property string palabra
    required property string tiempo
    required property string conteo
    required property string estado
    property bool seleccionada: false
    property bool conLinea: true
    signal pulsada
    signal senalada(string texto)

    height: estilo.altoDeFila
    Accessible.role: Accessible.ListItem
    Accessible.name: fila.titulo
    Accessible.description: [palabra, ruta.replace(/\u200e/g, ""), tiempo, conteo, ayuda].filter(dicho => dicho.length > 0).join(", ")
    Accessible.selectable: true
    Accessible.selected: seleccionada
    Accessible.onPressAction: pulsada()

    Rectangle {
        anchors { fill: parent; leftMargin: estilo.sangriaDeSeleccion; rightMargin: estilo.sangriaDeSeleccion }
        visible: fila.seleccionada || zona.containsMouse
        radius: estilo.radioDeSeleccion
        color: fila.seleccionada ? estilo.filaSeleccionada : Qt.rgba(1, 1, 1, zona.pressed ? 0.06 : 0.03)
        border { width: fila.seleccionada ? 1 : 0; color: zona.pressed ? estilo.acento : estilo.contornoDeFila }
    }

    MarcaDeEstado {
        x: estilo.xDeEstado - width / 2
        anchors.verticalCenter: parent.verticalCenter
        estado: fila.estado
    }

    // A line has its height whatever is written: glyphs of other fonts reach neither the line below nor the next row.
    Item {
        id: lineaDeTitulo
        anchors { left: parent.left; leftMargin: estilo.xDeTitulo; right: letreroDeTiempo.left; rightMargin: 14 }
        y: 6
        height: 25
        clip: true

        Text {
            id: letreroDeTitulo
            width: parent.width
            y: letreroDeTiempo.y + letreroDeTiempo.baselineOffset - lineaDeTitulo.y - baselineOffset
            text: fila.titulo
            textFormat: Text.PlainText
            maximumLineCount: 1
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font { pointSize: estilo.letraDeTitulo; weight: Font.Medium }
            color: estilo.textoAlto
        }
    }

    Text {
        id: letreroDeRuta
        anchors { left: lineaDeTitulo.left; baseline: letreroDeConteo.baseline }
        width: Math.min(implicitWidth, letreroDeConteo.x - 14 - x - letreroDePalabra.width)
        text: fila.ruta
        textFormat: Text.PlainText
        maximumLineCount: 1
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignLeft
        font { family: estilo.fija; pointSize: estilo.letraDeRuta }
        color: estilo.textoTenue
    }

    Text {
        id: letreroDePalabra
        anchors.baseline: letreroDeRuta.baseline
        x: letreroDeRuta.x + Math.min(letreroDeRuta.width, letreroDeRuta.contentWidth)
        width: fila.palabra.length > 0 ? implicitWidth : 0
        visible: fila.palabra.length > 0
        text: " · " + fila.palabra
        textFormat: Text.PlainText
        font: letreroDeRuta.font
        color: estilo.ember
    }

    Text {
        id: letreroDeTiempo
        anchors { right: parent.right; rightMargin: estilo.margenDerecho }
        y: 12
        text: fila.tiempo
        textFormat: Text.PlainText
        font.pointSize: estilo.letraDerecha
        color: estilo.textoTenue
    }

    Text {
        id: letreroDeConteo
        anchors { right: letreroDeTiempo.right }
        y: 30
        text: fila.conteo
        textFormat: Text.PlainText
        font.pointSize: estilo.letraDerecha
        color: estilo.textoDebil
    }

    Rectangle {
        anchors { left: lineaDeTitulo.left; right: letreroDeTiempo.right; bottom: parent.bottom }
        height: 1
        visible: fila.conLinea
        color: estilo.lineaFila
    }

    MouseArea {
        id: zona
        anchors.fill: parent
        hoverEnabled: true
        onContainsMouseChanged: fila.senalada(containsMouse ? fila.ayuda : "")
        onClicked: fila.pulsada()
    }
}
