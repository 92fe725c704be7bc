import QtQuick
import Zorve.Tipos

// The settings: sections on the left, the chosen one's content on the right.
Escalado {
    id: raiz

    // Whether a frame around it draws the glass and the round corners.
    property bool enMarco: false

    width: Medidas.anchoDeAjustes * Estilo.escala
    height: Medidas.altoDeAjustes * Estilo.escala

    Vidrio {
        anchors.fill: parent
        densidad: 1
        visible: !raiz.enMarco
        contornoAlto: Estilo.bordeSuperior
        contornoBajo: Estilo.borde
    }

    BarraLateral {
        id: barra
        radio: raiz.enMarco ? Medidas.radioDelPanel : 0
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
    }

    Rectangle {
        anchors { left: barra.right; top: parent.top; bottom: parent.bottom }
        width: Medidas.borde
        color: Estilo.linea
    }

    Flickable {
        id: area
        objectName: "area"
        anchors { left: barra.right; leftMargin: Medidas.borde; right: parent.right; top: parent.top; bottom: parent.bottom }
        contentHeight: contenido.height + 2 * Medidas.margenSobreAjustes
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height

        // The option that has the keyboard is in sight.
        readonly property FilaDeOpcion enfocada: raiz.Window.activeFocusItem as FilaDeOpcion
        onEnfocadaChanged: {
            if (!enfocada) return
            const arriba = enfocada.mapToItem(contenido, 0, 0).y + contenido.y - Medidas.margenSobreAjustes
            const abajo = arriba + enfocada.height + 2 * Medidas.margenSobreAjustes
            if (arriba < contentY) contentY = Math.max(0, arriba)
            if (abajo > contentY + height) contentY = abajo - height
        }

        Column {
            id: contenido
            x: Medidas.margenDeAjustes; y: Medidas.margenSobreAjustes
            width: parent.width - 2 * x
            spacing: Medidas.huecoDeAjustes

            Tarjeta {
                width: parent.width
                visible: DatosDeAjustes.banda.length > 0
                texto: DatosDeAjustes.banda
            }
            Repeater {
                // Counted, not listed: who has the keyboard keeps it when a value changes.
                model: DatosDeAjustes.grupos.length
                delegate: GrupoDeOpciones {
                    required property int index
                    readonly property var grupo: DatosDeAjustes.grupos[index]
                    width: parent.width
                    titulo: grupo ? grupo.titulo : ""
                    opciones: grupo ? grupo.opciones : []
                    onElegida: opcion => DatosDeAjustes.opcionPulsada(index, opcion)
                }
            }
            AcercaDe {
                objectName: "acercaDe"
                width: parent.width
                height: Math.max(implicitHeight, area.height - 2 * Medidas.margenSobreAjustes - y)
                visible: DatosDeAjustes.acercaDe
            }
            LetreroDicho {
                width: parent.width
                visible: text.length > 0
                text: DatosDeAjustes.texto
                wrapMode: Text.Wrap
                font.pointSize: Estilo.letraDeOpcion
                color: Estilo.textoTenue
            }
            LetreroDicho {
                width: parent.width
                visible: text.length > 0
                text: DatosDeAjustes.pie
                wrapMode: Text.Wrap
                font.pointSize: Estilo.letraDeNota
                color: Estilo.textoTenue
            }
        }
    }

}
