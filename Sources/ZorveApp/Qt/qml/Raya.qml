import QtQuick
import Zorve.Tipos

// A line from one edge of its band to the other, inside the window's outline.
Rectangle {
    anchors { left: parent.left; right: parent.right; leftMargin: Medidas.borde; rightMargin: Medidas.borde }
    height: Medidas.borde
    color: Estilo.linea
}
