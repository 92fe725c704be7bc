import QtQuick
import Zorve.Tipos

// The mark, the name with its version, and how to quit.
Item {
    implicitHeight: columna.height

    Column {
        id: columna
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Medidas.subidaDeEmblema
        spacing: Medidas.huecoDeEmblema

        MarcaDibujada {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Medidas.ladoDeEmblema; height: width
            color: Estilo.acento
        }
        Item { width: Medidas.borde; height: Medidas.bajoEmblema }
        LetreroDicho {
            anchors.horizontalCenter: parent.horizontalCenter
            text: DatosDeAjustes.nombreYVersion
            font { pointSize: Estilo.letraDeTitulo; weight: Estilo.pesoMedio }
            color: Estilo.textoAlto
        }
        LetreroDicho {
            anchors.horizontalCenter: parent.horizontalCenter
            text: DatosDeAjustes.paraCerrar
            font.pointSize: Estilo.letraDeNota
            color: Estilo.textoTenue
        }
    }
}
