import QtQuick
import Zorve.Tipos

// A colour that changes shortly and not at once; at once where the person asks for less motion.
Behavior {
    enabled: Estilo.transicion > 0
    ColorAnimation { duration: Estilo.transicion; easing.type: Easing.OutQuad }
}
