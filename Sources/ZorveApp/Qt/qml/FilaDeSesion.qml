import QtQuick
import Zorve.Tipos

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
    required property int estado
    required property string perdida
    required property var marcasDeTitulo
    required property var marcasDeRuta
    property bool seleccionada: false
    property bool conLinea: true
    // Kept by the list for another session, and told to nobody meanwhile.
    property bool guardada: false
    // Whether its card is lit, over which faint texts are drawn stronger.
    readonly property bool encendida: seleccionada || zona.containsMouse
    signal pulsada
    signal senalada(string texto)
    // The menu of this row, at a place in it.
    signal menuPedido(point donde)

    // What the row has no room for, and what there is to say about it.
    function ayudaEntera() {
        let dicho = letreroDeTitulo.truncated ? titulo : ""
        dicho = conOtroRenglon(dicho, letreroDeRuta.truncated ? ruta : "")
        dicho = conOtroRenglon(dicho, perdida)
        dicho = conOtroRenglon(dicho, DatosDelPanel.trozoDe(index))
        return conOtroRenglon(dicho, ayuda)
    }
    function conOtroRenglon(dicho: string, otro: string): string {
        return dicho.length === 0 ? otro : otro.length === 0 ? dicho : dicho + "\n" + otro
    }

    height: Medidas.altoDeFila
    ListView.onPooled: guardada = true
    ListView.onReused: guardada = false
    Accessible.ignored: guardada
    Accessible.role: Accessible.ListItem
    Accessible.name: fila.titulo
    Accessible.description: [palabra, ruta.replace(/\u200e/g, ""), tiempo, conteo, perdida, ayuda].filter(dicho => dicho.length > 0).join(", ")
    Accessible.selectable: true
    Accessible.selected: seleccionada
    Accessible.onPressAction: pulsada()

    Rectangle {
        anchors { fill: parent; leftMargin: Medidas.sangriaDeSeleccion; rightMargin: Medidas.sangriaDeSeleccion }
        objectName: "tarjeta"
        visible: color.a > 0 || border.color.a > 0
        radius: Medidas.radioDeSeleccion
        color: fila.seleccionada ? Estilo.filaSeleccionada
                                 : zona.pressed ? Estilo.filaAlPulsar : zona.containsMouse ? Estilo.filaAlPasar : Estilo.filaApagada
        border.width: Estilo.trazoDeSeleccion
        border.color: !fila.seleccionada ? Estilo.filaApagada : zona.pressed ? Estilo.acento : Estilo.contornoDeFila
        Fundirse on color {}
        Fundirse on border.color {}
    }

    MarcaDeEstado {
        x: Medidas.xDeEstado - width / 2
        anchors.verticalCenter: parent.verticalCenter
        estado: fila.estado
    }

    // A line has its height whatever is written: glyphs of other fonts reach neither the line below nor the next row.
    Item {
        id: lineaDeTitulo
        anchors { left: parent.left; leftMargin: Medidas.xDeTitulo; right: letreroDeTiempo.left; rightMargin: Medidas.huecoDeFila }
        y: Medidas.yDeTitulo
        height: Medidas.altoDeTitulo
        clip: true

        LetreroMarcado {
            id: letreroDeTitulo
            width: parent.width
            y: letreroDeTiempo.y + letreroDeTiempo.baselineOffset - lineaDeTitulo.y - baselineOffset
            text: fila.titulo
            maximumLineCount: 1
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font { pointSize: Estilo.letraDeTitulo; weight: Estilo.pesoMedio }
            tinta: Estilo.textoAlto
            marcas: fila.marcasDeTitulo
        }
    }

    LetreroMarcado {
        id: letreroDeRuta
        anchors { left: lineaDeTitulo.left; baseline: letreroDeConteo.baseline }
        width: Math.min(implicitWidth, letreroDeConteo.x - Medidas.huecoDeFila - x - letreroDePalabra.width)
        text: fila.ruta
        maximumLineCount: 1
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignLeft
        font { family: Estilo.fija; pointSize: Estilo.letraDeRuta; strikeout: fila.perdida.length > 0 }
        tinta: fila.encendida ? Estilo.textoEncendido : Estilo.textoTenue
        marcas: fila.marcasDeRuta
    }

    Letrero {
        id: letreroDePalabra
        anchors.baseline: letreroDeRuta.baseline
        x: letreroDeRuta.x + Math.min(letreroDeRuta.width, letreroDeRuta.contentWidth)
        text: fila.palabra.length > 0 ? " · " + fila.palabra : ""
        font { family: Estilo.fija; pointSize: Estilo.letraDeRuta }
        color: Estilo.ember
    }

    Letrero {
        id: letreroDeTiempo
        anchors { right: parent.right; rightMargin: Medidas.margenDerecho }
        y: Medidas.yDeTiempo
        text: fila.tiempo
        font: Estilo.cifras
        color: fila.encendida ? Estilo.textoEncendido : Estilo.textoTenue
    }

    Letrero {
        id: letreroDeConteo
        anchors { right: letreroDeTiempo.right }
        y: Medidas.yDeConteo
        text: fila.conteo
        font: Estilo.cifras
        color: fila.encendida ? Estilo.textoEncendido : Estilo.textoTenue
    }

    Rectangle {
        anchors { left: lineaDeTitulo.left; right: letreroDeTiempo.right; bottom: parent.bottom }
        height: Medidas.borde
        visible: fila.conLinea
        color: Estilo.lineaFila
    }

    MouseArea {
        id: zona
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onContainsMouseChanged: fila.senalada(containsMouse ? fila.ayudaEntera() : "")
        onPressed: raton => { if (raton.button === Qt.RightButton) fila.menuPedido(Qt.point(raton.x, raton.y)) }
        onClicked: raton => { if (raton.button === Qt.LeftButton) fila.pulsada() }
        // Heard, the second click of a double one is none of its own.
        onDoubleClicked: {}
    }
}
