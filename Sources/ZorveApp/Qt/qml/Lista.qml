import QtQuick
import Zorve.Tipos

// The rows, or the text that stands in their place. The selected row is always in sight.
Item {
    id: cuerpo

    // Help for row `de` and where its foot is, when the pointer comes; an empty text when it goes.
    signal ayuda(Item de, string texto, double y)
    readonly property bool cortada: !lista.atYBeginning

    // A page on (1) or back (-1); the selection stays.
    function pasarPagina(sentido) {
        const principio = lista.originY - lista.topMargin
        const fin = Math.max(principio, lista.originY + lista.contentHeight + lista.bottomMargin - lista.height)
        const pagina = Math.max(Medidas.altoDeFila, lista.height - Medidas.altoDeFila)
        lista.contentY = Math.max(principio, Math.min(fin, lista.contentY + sentido * pagina))
    }

    ListView {
        id: lista
        objectName: "filas"
        Accessible.role: Accessible.List
        Accessible.name: DatosDelPanel.nombreDeLaLista
        anchors.fill: parent
        topMargin: Medidas.margenDeLista
        bottomMargin: Medidas.margenDeLista
        model: DatosDelPanel.filas
        clip: true
        reuseItems: true
        cacheBuffer: 2 * Medidas.altoDeFila
        boundsBehavior: Flickable.StopAtBounds
        maximumFlickVelocity: 6000
        currentIndex: -1
        highlightFollowsCurrentItem: false
        readonly property int seleccion: DatosDelPanel.seleccion
        onSeleccionChanged: {
            ponerALaVista()
            lectura.restart()
        }
        onCountChanged: colocacion.restart()
        onHeightChanged: ponerALaVista()

        // Whole, clear of what fades at the foot, and with the list's own margin before the first and after the last.
        function ponerALaVista() {
            if (seleccion < 0 || seleccion >= count) return
            positionViewAtIndex(seleccion, ListView.Contain)
            const primera = originY - topMargin
            const ultima = Math.max(primera, originY + contentHeight + bottomMargin - height)
            const arriba = originY + seleccion * Medidas.altoDeFila - topMargin
            const abajo = arriba + topMargin + Medidas.altoDeFila + (seleccion + 1 < count ? Medidas.fundidoDeLista : bottomMargin) - height
            if (arriba < contentY) contentY = Math.max(primera, arriba)
            else if (abajo > contentY) contentY = Math.min(ultima, abajo)
        }

        // Going from row to row has a screen reader read each; typing has it back in the field.
        readonly property string consulta: DatosDelPanel.consulta
        onConsultaChanged: lectura.restart()
        property string consultaLeida: consulta
        property int filaLeida: -1
        function leer() {
            const escrita = consulta !== consultaLeida
            const otraFila = filaLeida >= 0 && seleccion >= 0 && seleccion !== filaLeida
            consultaLeida = consulta
            filaLeida = seleccion
            if (escrita) DatosDelPanel.lecturaPedida(Window.activeFocusItem)
            else if (otraFila) DatosDelPanel.lecturaPedida(itemAtIndex(seleccion))
        }

        Connections {
            target: DatosDelPanel
            function onMenuLlamado() {
                lista.ponerALaVista()
                const elegida = lista.itemAtIndex(lista.seleccion)
                if (elegida) DatosDelPanel.menuPedido(lista.seleccion, elegida.mapToItem(null, Medidas.xDeTitulo, elegida.height / 2))
            }
        }

        Timer { id: lectura; interval: 0; onTriggered: lista.leer() }
        Timer { id: colocacion; interval: 0; onTriggered: lista.ponerALaVista() }

        delegate: FilaDeSesion {
            id: fila
            width: ListView.view.width
            seleccionada: index === DatosDelPanel.seleccion
            conLinea: index !== DatosDelPanel.seleccion && index + 1 !== DatosDelPanel.seleccion && index + 1 < ListView.view.count
            onPulsada: DatosDelPanel.filaPulsada(index)
            onMenuPedido: donde => DatosDelPanel.menuPedido(index, mapToItem(null, donde))
            onSenalada: texto => cuerpo.ayuda(fila, texto, y - ListView.view.contentY + height)
        }
    }

    Fundido {
        objectName: "fundidoDeLaLista"
        anchors { left: lista.left; right: lista.right; bottom: lista.bottom; leftMargin: Medidas.borde; rightMargin: Medidas.borde }
        height: Medidas.fundidoDeLista
        tono: Estilo.fondoBajo
        visible: lista.contentHeight > lista.height && !lista.atYEnd
    }

    Desplazamiento { lista: lista }

    Column {
        objectName: "marcador"
        anchors { centerIn: parent; verticalCenterOffset: -Medidas.subidaDelMarcador }
        visible: DatosDelPanel.marcador.length > 0
        spacing: Medidas.huecoDelMarcador

        MarcaDibujada {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Medidas.ladoDeMarcador; height: width
            color: Estilo.aroInactivo
            opacity: 0.5
        }
        LetreroDicho {
            anchors.horizontalCenter: parent.horizontalCenter
            text: DatosDelPanel.marcador
            font.pointSize: Estilo.letraDeTitulo
            color: Estilo.textoTenue
        }
        Repeater {
            model: DatosDelPanel.vacio && DatosDelPanel.banda.length <= 2 ? DatosDelPanel.banda : []
            delegate: Letrero {
                required property var modelData
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, Medidas.ancho - 2 * Medidas.xDeTitulo)
                text: modelData.texto
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font.pointSize: Estilo.letraDeBanda
                color: Estilo.texto
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
    }
}
