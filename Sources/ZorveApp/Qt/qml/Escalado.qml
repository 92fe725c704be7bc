import QtQuick
import Zorve.Tipos

// A window's content, enlarged as the desktop's text is: the root is as large as the window, what stands in it
// is laid out at its own size.
FocusScope {
    id: raiz

    default property alias dentro: lienzo.data

    focus: true

    Item {
        id: lienzo
        width: raiz.width / Estilo.escala
        height: raiz.height / Estilo.escala
        scale: Estilo.escala
        transformOrigin: Item.TopLeft
    }
}
