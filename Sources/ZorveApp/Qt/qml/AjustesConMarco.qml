import QtQuick
import Zorve.Tipos

// The settings in a frame of their own, where the system draws none: a title to move them by, a button that closes
// them, and a shadow as wide as `sombra`, in points like everything here, which takes no clicks.
FocusScope {
    id: marco

    readonly property double escala: Estilo.escala
    readonly property double sombra: Medidas.sombraDelMarco * escala
    readonly property double barra: Medidas.altoDelTitulo * escala
    readonly property double radio: Medidas.radioDelPanel * escala

    width: Medidas.anchoDeAjustes * escala + 2 * sombra
    height: Medidas.altoDeAjustes * escala + barra + 2 * sombra
    focus: true

    Item {
        anchors { fill: parent; margins: marco.sombra }

        Repeater {
            model: Array.from({ length: 9 }, (nada, cual) => cual * marco.sombra / 9)
            delegate: Rectangle {
                required property double modelData

                anchors { fill: parent; margins: -modelData }
                radius: Medidas.radioDelPanel * Estilo.escala + modelData
                color: Qt.rgba(0, 0, 0, 0.035)
            }
        }
    }

    Vidrio {
        id: cuerpo
        anchors { fill: parent; margins: marco.sombra }
        densidad: 1
        radio: marco.radio
        contornoAlto: Estilo.bordeSuperior
        contornoBajo: Estilo.borde
    }

    Item {
        id: titulo
        anchors { left: cuerpo.left; right: cuerpo.right; top: cuerpo.top }
        height: marco.barra

        Letrero {
            anchors.centerIn: parent
            text: marco.Window.window ? marco.Window.window.title : ""
            font { pointSize: Estilo.letraDeOpcion * marco.escala; weight: Estilo.pesoMedio }
            color: Estilo.texto
            Accessible.role: Accessible.TitleBar
            Accessible.name: text
        }
        MouseArea {
            anchors.fill: parent
            onPressed: marco.Window.window.startSystemMove()
        }
        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Medidas.borde; rightMargin: Medidas.borde }
            height: Medidas.borde
            color: Estilo.linea
        }
    }

    Ajustes {
        id: contenido
        anchors { left: cuerpo.left; top: titulo.bottom }
        enMarco: true
    }

    Rectangle {
        id: cierre
        objectName: "cierre"
        anchors { right: titulo.right; rightMargin: Medidas.margenDeCierre * marco.escala; verticalCenter: titulo.verticalCenter }
        width: Medidas.ladoDeCierre * marco.escala; height: width; radius: width / 2
        color: Qt.rgba(1, 1, 1, zona.pressed ? 0.2 : zona.containsMouse ? 0.14 : 0.08)
        activeFocusOnTab: true
        Keys.onSpacePressed: DatosDeAjustes.cierrePulsado()
        Keys.onReturnPressed: DatosDeAjustes.cierrePulsado()
        Keys.onEnterPressed: DatosDeAjustes.cierrePulsado()
        Accessible.role: Accessible.Button
        Accessible.name: DatosDeAjustes.textoDeCerrar
        Accessible.focusable: true
        Accessible.onPressAction: DatosDeAjustes.cierrePulsado()

        Foco { separacion: 1 }
        Simbolo {
            anchors.centerIn: parent
            width: Medidas.ladoDeEquisDeCierre * marco.escala; height: width
            forma: Simbolo.Equis
            grosor: Medidas.trazoDeCierre
            color: Estilo.texto
        }
        MouseArea {
            id: zona
            anchors.fill: parent
            hoverEnabled: true
            onClicked: DatosDeAjustes.cierrePulsado()
        }
    }
}
