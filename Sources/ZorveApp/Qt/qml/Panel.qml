import QtQuick
import Zorve.Dibujo

// The panel's bands, top to bottom. `panel` and `estilo` are its values; `opaco` asks for square, solid glass.
Escalado {
    id: raiz

    property bool opaco: false
    property double densidad: 0.9

    width: estilo.ancho * estilo.escala
    height: estilo.alto * estilo.escala

    Vidrio {
        anchors.fill: parent
        densidad: raiz.opaco ? 1 : raiz.densidad
        radio: raiz.opaco ? 0 : estilo.radioDelPanel
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
        onAyuda: (texto, y) => ayuda.mostrar(texto, lista.y + y - estilo.altoDeFila, lista.y + y)
        anchors { left: parent.left; right: parent.right; top: banda.bottom; bottom: pie.top }
    }

    Pie {
        id: pie
        onAyuda: texto => ayuda.mostrar(texto, pie.y - 6, raiz.height)
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    Ayuda { id: ayuda }
}
