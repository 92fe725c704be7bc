import QtQuick
import Zorve.Tipos

// The panel's bands, top to bottom. `opaco` asks for square, solid glass.
Escalado {
    id: raiz

    property bool opaco: false
    property double densidad: 0.9

    Keys.onPressed: evento => {
        const sentido = evento.key === Qt.Key_PageDown ? 1 : evento.key === Qt.Key_PageUp ? -1 : 0
        if (sentido === 0) return
        if (!banda.pasarPagina(sentido)) lista.pasarPagina(sentido)
        evento.accepted = true
    }

    width: Medidas.ancho * Estilo.escala
    height: Medidas.alto * Estilo.escala
    // As good as opaque, and nothing in it counts as opaque: below what does, the renderer clears the window and paints
    // nothing, also at the edges where it covers but a part of a pixel.
    opacity: presente ? 0.999 : 0
    // Whether it is there or has gone; it comes and goes shortly where windows are translucent.
    property bool presente: true
    // How long that takes, in milliseconds.
    readonly property int desvanecimiento: opaco ? 0 : Estilo.transicion
    Behavior on opacity {
        enabled: raiz.desvanecimiento > 0
        NumberAnimation { duration: raiz.desvanecimiento; easing.type: Easing.OutQuad }
    }

    Vidrio {
        anchors.fill: parent
        densidad: raiz.opaco ? 1 : raiz.densidad
        radio: raiz.opaco ? 0 : Medidas.radioDelPanel
        contornoAlto: Estilo.bordeSuperior
        contornoBajo: Estilo.borde
    }

    Busqueda {
        id: busqueda
        anchors { left: parent.left; right: parent.right; top: parent.top }
        focus: true
    }

    Banda {
        id: banda
        conLinea: lista.cortada
        anchors { left: parent.left; right: parent.right; top: busqueda.bottom }
    }

    Lista {
        id: lista
        onAyuda: (de, texto, y) => ayuda.mostrar(de, texto, lista.y + y - Medidas.altoDeFila, lista.y + y)
        anchors { left: parent.left; right: parent.right; top: banda.bottom; bottom: pie.top }
    }

    Pie {
        id: pie
        onAyuda: (de, texto) => ayuda.mostrar(de, texto, pie.y - Medidas.ayudaBajoFila, raiz.height)
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    Ayuda { id: ayuda }
}
