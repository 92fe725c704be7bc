import QtQuick
import Zorve.Tipos

// Where something that scrolls is cut: it fades into the glass.
Rectangle {
    id: fundido

    // Whether what is cut goes on above.
    property bool desdeArriba: false

    height: Medidas.fundido
    gradient: Gradient {
        GradientStop { position: fundido.desdeArriba ? 0 : 1; color: Estilo.fondo }
        GradientStop { position: fundido.desdeArriba ? 1 : 0; color: Estilo.fondoClaro }
    }
}
