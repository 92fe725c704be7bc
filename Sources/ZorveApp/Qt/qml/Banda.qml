import QtQuick
import Zorve.Tipos

// Errors and notices as cards. Without any it takes no space; many scroll inside it, from the first one on, unless only
// the last one is new.
Item {
    id: banda

    // Whether what follows, or the band itself, is cut off at the band's foot.
    property bool conLinea: false

    // A page on (1) or back (-1). Gives whether there was anything to scroll.
    function pasarPagina(sentido) {
        const principio = lista.originY
        const fin = lista.originY + Math.max(0, lista.contentHeight - lista.height)
        const nueva = Math.max(principio, Math.min(fin, lista.contentY + sentido * (lista.height - Medidas.fundido)))
        if (nueva === lista.contentY) return false
        lista.alFinal = false
        lista.contentY = nueva
        return true
    }

    // With no session at all, a line or two stand under the mark instead.
    readonly property bool bajoLaMarca: DatosDelPanel.vacio && lista.count <= 2
    visible: lista.count > 0 && !bajoLaMarca
    height: !visible ? 0 : Math.min(Medidas.altoDeBanda, Math.max(Medidas.altoDeUnAviso, lista.contentHeight))
                                      + Medidas.margenSobreBanda + Medidas.margenBajoBanda

    ListView {
        id: lista
        objectName: "banda"

        // Whether the last line is kept in sight.
        property bool alFinal: false
        property var antes: []

        // Whether `ahora` has what was there `antes`, the last line apart, and no less.
        function soloCambiaElFinal(ahora) {
            return antes.length > 0 && ahora.length >= antes.length
                && antes.slice(0, -1).every((texto, i) => texto === ahora[i])
        }

        anchors { fill: parent; leftMargin: Medidas.margenDeBanda; rightMargin: Medidas.margenDeBanda; topMargin: Medidas.margenSobreBanda }
        anchors.bottomMargin: Medidas.margenBajoBanda
        model: DatosDelPanel.banda
        onModelChanged: {
            const ahora = DatosDelPanel.banda.map(linea => linea.texto)
            alFinal = soloCambiaElFinal(ahora)
            antes = ahora
            colocacion.restart()
        }
        spacing: Medidas.huecoEntreAvisos
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        onMovementStarted: alFinal = false
        onContentHeightChanged: if (alFinal) colocacion.restart()
        Timer {
            id: colocacion
            interval: 0
            onTriggered: lista.alFinal ? lista.positionViewAtEnd() : lista.positionViewAtBeginning()
        }
        delegate: Tarjeta {
            required property var modelData
            width: ListView.view.width
            texto: modelData.texto
            esError: modelData.esError
            NumberAnimation on opacity { running: Estilo.transicion > 0; from: 0; to: 1; duration: Estilo.transicion }
        }
    }

    Fundido {
        objectName: "fundidoDeArriba"
        anchors { left: lista.left; right: lista.right; top: lista.top }
        visible: lista.interactive && !lista.atYBeginning
        desdeArriba: true
    }
    Fundido {
        objectName: "fundidoDeAbajo"
        anchors { left: lista.left; right: lista.right; bottom: lista.bottom }
        visible: lista.interactive && !lista.atYEnd
    }

    Desplazamiento { lista: lista; anchors.rightMargin: -Medidas.margenDeBanda }

    Raya {
        anchors.bottom: parent.bottom
        visible: banda.conLinea || lista.interactive
    }
}
