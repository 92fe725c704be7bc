import QtQuick
import Zorve.Tipos

// Help text for what is under the pointer, after it has rested there.
Rectangle {
    id: ayuda
    objectName: "ayuda"

    // Whose help it is.
    property Item de: null
    property double cabeza: 0
    property double pie: 0
    readonly property string texto: letrero.text

    // Shows `texto` for `quien`, which reaches from `arriba` to `abajo`: below it in the upper half, else above it. An
    // empty text takes away what is shown for `quien`, and nothing else: who is left may tell after who is entered.
    function mostrar(quien, texto, arriba, abajo) {
        if (texto.length === 0 && quien !== de) return
        de = texto.length > 0 ? quien : null
        visible = false
        letrero.text = texto
        cabeza = arriba
        pie = abajo
        if (texto.length > 0) espera.restart()
        else espera.stop()
    }

    visible: false
    anchors { right: parent.right; rightMargin: Medidas.margenDeAyuda }
    y: pie < parent.height / 2 ? pie - Medidas.ayudaBajoFila : cabeza - height + Medidas.ayudaSobreFila
    width: Math.min(letrero.implicitWidth, Medidas.ancho - Medidas.huecoDeAyuda) + 2 * Medidas.xDeAyuda
    height: letrero.height + 2 * Medidas.yDeAyuda
    radius: Medidas.radioDeAyuda
    color: Estilo.fondoDeAyuda
    border { width: Medidas.borde; color: Estilo.borde }

    Timer { id: espera; interval: 700; onTriggered: ayuda.visible = true }

    Letrero {
        id: letrero
        x: Medidas.xDeAyuda; y: Medidas.yDeAyuda
        width: ayuda.width - 2 * x
        wrapMode: Text.Wrap
        font.pointSize: Estilo.letraDelPie
        color: Estilo.texto
    }
}
