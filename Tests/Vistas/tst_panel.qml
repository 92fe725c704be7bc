import QtQuick
import QtTest
import Zorve.Vistas

Item {
    width: 440; height: 560

    ListModel { id: filasDePrueba }

    // Stands for the panel's values.
    QtObject {
        id: panel
        property var filas: filasDePrueba
        property string consulta: ""
        property int seleccion: -1
        property string marcador: ""
        property string terminal: "xterm"
        property var banda: []
        property var leyenda: [{ simbolo: "flechas", tecla: "", palabra: "move" }, { simbolo: "", tecla: "Ctrl+R", palabra: "refresh" }]
        property string ayudaAjustes: "Settings (Ctrl+,)"
        property string nombreAjustes: "Settings"
        property string nombreDelCampo: "Search"
        property string nombreDeLaLista: "Sessions"
        property int ajustesPedidos: 0
        property int filaPedida: -1
        signal cambio
        function escribirConsulta(texto) { consulta = texto; cambio() }
        property var leidas: []
        function leer(que) { leidas.push(que.titulo ?? "campo") }
        function clicEnFila(fila) { filaPedida = fila }
        function clicEnAjustes() { ajustesPedidos++ }
    }

    Panel { id: vista; anchors.fill: parent }

    TestCase {
        name: "Panel"
        when: windowShown

        function llenar(cuantas) {
            filasDePrueba.clear()
            for (let i = 0; i < cuantas; i++) {
                filasDePrueba.append({ titulo: "Sesión " + i, ayuda: "", ruta: "~/r", palabra: "", tiempo: "1h", conteo: "", estado: "dead" })
            }
        }
        function lista() { return findChild(vista, "filas") }
        function campo() { return findChild(vista, "campo") }

        function init() {
            panel.banda = []
            panel.seleccion = -1
            panel.consulta = ""
            panel.filaPedida = -1
            panel.cambio()
            llenar(0)
        }

        function test_elCampoTieneElTeclado() {
            verify(campo().activeFocus)
        }

        function test_loEscritoLlegaAlPanel() {
            keyClick(Qt.Key_A)
            keyClick(Qt.Key_B)
            compare(panel.consulta, "ab")
            panel.escribirConsulta("")
            compare(campo().text, "")
        }

        function test_laFilaElegidaEstaSiempreALaVista() {
            llenar(10000)
            for (const cual of [9999, 0, 5000, 5001, 4990]) {
                panel.seleccion = cual
                const l = lista()
                tryVerify(() => l.itemAtIndex(cual) !== null)
                const y = l.itemAtIndex(cual).y - l.contentY
                verify(y >= -1 && y + 56 <= l.height + 1, cual + " at " + y)
            }
        }

        function test_diezMilFilasHacenPocosElementos() {
            llenar(10000)
            panel.seleccion = 5000
            tryVerify(() => lista().itemAtIndex(5000) !== null)
            verify(lista().contentItem.children.length < 40, lista().contentItem.children.length)
        }

        function test_quienRecorreLasFilasLasOyeYQuienEscribeVuelveAlCampo() {
            llenar(5)
            panel.seleccion = 0
            tryVerify(() => lista().itemAtIndex(2) !== null)
            wait(0)
            panel.leidas = []
            panel.seleccion = 1
            tryVerify(() => panel.leidas.length === 1)
            panel.seleccion = 2
            tryVerify(() => panel.leidas.length === 2)
            panel.escribirConsulta("x")
            panel.seleccion = 0
            tryVerify(() => panel.leidas.length === 3)
            compare(panel.leidas, ["Sesión 1", "Sesión 2", "campo"])
            panel.seleccion = 1
            tryVerify(() => panel.leidas.length === 4)
            compare(panel.leidas[3], "Sesión 1")
        }

        function test_sinAvisosLaBandaNoOcupaSitio() {
            llenar(3)
            const antes = lista().parent.y
            panel.banda = [{ texto: "uno", esError: true }]
            tryVerify(() => lista().parent.y > antes)
            panel.banda = []
            tryCompare(lista().parent, "y", antes)
        }

        function test_unDiluvioDeAvisosCorreDentroDeLaBanda() {
            const muchos = []
            for (let i = 0; i < 2000; i++) muchos.push({ texto: "history: line " + i + " is unreadable ".repeat(8), esError: true })
            panel.banda = muchos
            llenar(50)
            tryVerify(() => findChild(vista, "banda").contentHeight > 1000)
            verify(lista().height > 280, lista().height)
        }

        function test_bajoLaBandaHayUnaLineaSoloSiCortaUnaFila() {
            panel.banda = [{ texto: "uno", esError: true }]
            llenar(100)
            panel.seleccion = 0
            const banda = findChild(vista, "banda").parent
            tryCompare(banda, "conLinea", false)
            panel.seleccion = 50
            tryCompare(banda, "conLinea", true)
        }

        function test_sinFilasSeMuestraElMarcador() {
            panel.marcador = "no sessions"
            const marcador = findChild(vista, "marcador")
            tryVerify(() => marcador.visible)
            panel.marcador = ""
            tryVerify(() => !marcador.visible)
        }

        function test_unClicEnElEngranajePideLosAjustes() {
            panel.ajustesPedidos = 0
            waitForRendering(vista)
            mouseClick(findChild(vista, "engranaje"))
            compare(panel.ajustesPedidos, 1)
        }

        function test_unClicEnUnaFilaLaPide() {
            llenar(5)
            tryVerify(() => lista().itemAtIndex(2) !== null)
            waitForRendering(vista)
            const fila = lista().itemAtIndex(2)
            tryVerify(() => { mouseClick(fila); return panel.filaPedida === 2 })
        }
    }
}
