import QtQuick
import Zorve.Tipos

// Options under a caption, or under none.
Column {
    id: grupo

    property string titulo
    property var opciones: []
    signal elegida(int opcion)

    spacing: Medidas.huecoDeOpciones
    Accessible.role: Accessible.Grouping
    Accessible.name: titulo
    Keys.onUpPressed: irA(conTeclado() - 1)
    Keys.onDownPressed: irA(conTeclado() + 1)

    function conTeclado() {
        for (let cual = 0; cual < filas.count; cual++) if (filas.itemAt(cual).activeFocus) return cual
        return -1
    }
    function irA(cual) {
        if (cual >= 0 && cual < filas.count) filas.itemAt(cual).forceActiveFocus(Qt.TabFocusReason)
    }

    Letrero {
        visible: text.length > 0
        text: grupo.titulo
        bottomPadding: Medidas.bajoRotulo
        font { pointSize: Estilo.letraDeRotulo; letterSpacing: Medidas.espacioDeRotulo; capitalization: Font.AllUppercase }
        color: Estilo.textoTenue
        Accessible.ignored: true
    }

    Repeater {
        id: filas
        model: grupo.opciones.length
        delegate: FilaDeOpcion {
            required property int index
            readonly property GrupoDeOpciones suyo: parent as GrupoDeOpciones
            readonly property var opcion: suyo ? suyo.opciones[index] : null

            width: parent.width
            titulo: opcion ? opcion.titulo : ""
            nota: opcion ? opcion.nota : ""
            marcada: opcion ? opcion.marcada : false
            cuadro: opcion ? opcion.cuadro : false
            onElegida: suyo.elegida(index)
        }
    }
}
