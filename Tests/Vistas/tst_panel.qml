import QtQuick
import QtTest
import Zorve.Tipos
import Zorve.Vistas

Item {
    width: 440; height: 560

    ListModel { id: filasDePrueba }

    // Stands for the panel.
    Connections {
        id: panel
        property int ajustesPedidos: 0
        property int filaPedida: -1
        property var leidas: []
        target: DatosDelPanel
        function onConsultaEscrita(texto) { DatosDelPanel.consulta = texto }
        function onLecturaPedida(que) { leidas.push(que.titulo ?? "campo") }
        function onFilaPulsada(fila) { filaPedida = fila }
        function onAjustesPedidos() { ajustesPedidos++ }
    }

    Panel { id: vista; anchors.fill: parent }

    TestCase {
        name: "Panel"
        when: windowShown

        function initTestCase() {
            DatosDelPanel.filas = filasDePrueba
            DatosDelPanel.terminal = "xterm"
            DatosDelPanel.leyenda = [{ simbolo: Simbolo.Flechas, tecla: "", palabra: "move" },
                                     { simbolo: Simbolo.Ninguna, tecla: "Ctrl+R", palabra: "refresh" }]
            DatosDelPanel.ayudaAjustes = "Settings (Ctrl+,)"
            DatosDelPanel.nombreAjustes = "Settings"
            DatosDelPanel.nombreDelCampo = "Search"
            DatosDelPanel.nombreDeLaLista = "Sessions"
        }
        function llenar(cuantas) {
            filasDePrueba.clear()
            for (let i = 0; i < cuantas; i++) {
                filasDePrueba.append({ titulo: "Sesión " + i, ayuda: "", perdida: "", ruta: "~/r", palabra: "", tiempo: "1h", conteo: "", estado: DatosDelPanel.Acabada, marcasDeTitulo: 0, marcasDeRuta: 0 })
            }
        }
        function lista() { return findChild(vista, "filas") }
        function campo() { return findChild(vista, "campo") }

        function init() {
            DatosDelPanel.banda = []
            DatosDelPanel.seleccion = -1
            DatosDelPanel.consulta = ""
            DatosDelPanel.marcador = ""
            DatosDelPanel.vacio = false
            panel.filaPedida = -1
            llenar(0)
        }

        function letreros(de) {
            let todos = []
            for (let i = 0; i < de.children.length; i++) {
                if (de.children[i].text !== undefined && de.children[i].font !== undefined) todos.push(de.children[i])
                todos = todos.concat(letreros(de.children[i]))
            }
            return todos
        }

        function test_ningunTextoEsDelColorMasDebil() {
            llenar(20)
            DatosDelPanel.seleccion = 1
            DatosDelPanel.banda = [{ texto: "un aviso", esError: false }]
            tryVerify(() => letreros(vista).length > 20)
            for (const cada of letreros(vista)) verify(!Qt.colorEqual(cada.color, Estilo.textoDebil), cada.text)
        }

        function lugarEn(de, cual) { return cual.mapToItem(de, 0, 0).x }

        function test_marcasTextosYBordesEstanEnUnaRejilla() {
            llenar(3)
            DatosDelPanel.seleccion = 0
            DatosDelPanel.consulta = "a"
            DatosDelPanel.banda = [{ texto: "un aviso", esError: false }]
            tryVerify(() => lista().itemAtIndex(0) !== null)
            const titulo = letreros(lista().itemAtIndex(0)).find(t => t.text === "Sesión 0")
            compare(lugarEn(vista, titulo), 44)
            compare(lugarEn(vista, campo()), 44)
            compare(lugarEn(vista, letreros(findChild(vista, "banda")).find(t => t.text === "un aviso")), 44)
            const tiempo = letreros(lista().itemAtIndex(0)).find(t => t.text === "1h")
            fuzzyCompare(lugarEn(vista, tiempo) + tiempo.width, 420, 0.5)
            compare(lugarEn(vista, findChild(vista, "engranaje")) + 20, 420)
            compare(lugarEn(vista, findChild(lista().itemAtIndex(0), "tarjeta")), 8)
        }

        function test_laUltimaFilaConservaElMargenDelPieDeLaLista() {
            llenar(30)
            for (let cual = 0; cual < 30; cual++) DatosDelPanel.seleccion = cual
            const l = lista()
            tryVerify(() => l.itemAtIndex(29) !== null && l.atYEnd)
            const ultima = l.itemAtIndex(29)
            fuzzyCompare(l.height - (ultima.y + ultima.height - l.contentY), 6, 0.5)
            for (let cual = 29; cual >= 0; cual--) DatosDelPanel.seleccion = cual
            tryVerify(() => l.itemAtIndex(0) !== null && l.atYBeginning)
            fuzzyCompare(l.itemAtIndex(0).y - l.contentY, 6, 0.5)
        }

        function test_laFilaElegidaNoSeDesvaneceAlPieDeLaLista() {
            llenar(30)
            const l = lista()
            for (let cual = 0; cual < 20; cual++) DatosDelPanel.seleccion = cual
            tryVerify(() => l.itemAtIndex(19) !== null)
            const elegida = l.itemAtIndex(19)
            verify(elegida.y + elegida.height - l.contentY <= l.height - findChild(vista, "fundidoDeLaLista").height + 0.5)
            verify(findChild(vista, "fundidoDeLaLista").visible)
            llenar(3)
            tryVerify(() => !findChild(vista, "fundidoDeLaLista").visible)
        }

        function test_sinNingunaSesionElAvisoEstaBajoLaMarca() {
            DatosDelPanel.vacio = true
            DatosDelPanel.marcador = "no sessions"
            DatosDelPanel.banda = [{ texto: "history: nothing there", esError: true }]
            compare(findChild(vista, "banda").parent.visible, false)
            tryVerify(() => letreros(findChild(vista, "marcador")).some(t => t.text === "history: nothing there"))
            DatosDelPanel.vacio = false
            DatosDelPanel.marcador = ""
            compare(findChild(vista, "banda").parent.visible, true)
        }

        function test_sinCoincidenciasLoBuscadoQuedaEscogidoParaOtraBusqueda() {
            DatosDelPanel.consulta = "nada"
            compare(campo().selectedText, "")
            DatosDelPanel.otraBusqueda()
            compare(campo().selectedText, "nada")
            DatosDelPanel.cambio()
            compare(campo().selectedText, "nada")
        }

        function test_elCampoTieneElTeclado() {
            verify(campo().activeFocus)
        }

        function test_loEscritoLlegaAlPanel() {
            keyClick(Qt.Key_A)
            keyClick(Qt.Key_B)
            compare(DatosDelPanel.consulta, "ab")
            DatosDelPanel.consultaEscrita("")
            compare(campo().text, "")
        }

        function test_laFilaElegidaEstaSiempreALaVista() {
            llenar(10000)
            for (const cual of [9999, 0, 5000, 5001, 4990]) {
                DatosDelPanel.seleccion = cual
                const l = lista()
                tryVerify(() => l.itemAtIndex(cual) !== null)
                const y = l.itemAtIndex(cual).y - l.contentY
                verify(y >= -1 && y + 56 <= l.height + 1, cual + " at " + y)
            }
        }

        function test_diezMilFilasHacenPocosElementos() {
            llenar(10000)
            DatosDelPanel.seleccion = 5000
            tryVerify(() => lista().itemAtIndex(5000) !== null)
            verify(lista().contentItem.children.length < 40, lista().contentItem.children.length)
        }

        function test_quienRecorreLasFilasLasOyeYQuienEscribeVuelveAlCampo() {
            llenar(5)
            DatosDelPanel.seleccion = 0
            tryVerify(() => lista().itemAtIndex(2) !== null)
            wait(0)
            panel.leidas = []
            DatosDelPanel.seleccion = 1
            tryVerify(() => panel.leidas.length === 1)
            DatosDelPanel.seleccion = 2
            tryVerify(() => panel.leidas.length === 2)
            DatosDelPanel.consultaEscrita("x")
            DatosDelPanel.seleccion = 0
            tryVerify(() => panel.leidas.length === 3)
            compare(panel.leidas, ["Sesión 1", "Sesión 2", "campo"])
            DatosDelPanel.seleccion = 1
            tryVerify(() => panel.leidas.length === 4)
            compare(panel.leidas[3], "Sesión 1")
        }

        function test_sinAvisosLaBandaNoOcupaSitio() {
            llenar(3)
            const antes = lista().parent.y
            DatosDelPanel.banda = [{ texto: "uno", esError: true }]
            tryVerify(() => lista().parent.y > antes)
            DatosDelPanel.banda = []
            tryCompare(lista().parent, "y", antes)
        }

        function test_unDiluvioDeAvisosCorreDentroDeLaBanda() {
            const muchos = []
            for (let i = 0; i < 2000; i++) muchos.push({ texto: "history: line " + i + " is unreadable ".repeat(8), esError: true })
            DatosDelPanel.banda = muchos
            llenar(50)
            tryVerify(() => findChild(vista, "banda").contentHeight > 1000)
            verify(lista().height > 280, lista().height)
        }

        function avisos(cuantos) {
            const todos = []
            for (let i = 0; i < cuantos; i++) todos.push({ texto: "history: line " + i + " is unreadable ".repeat(8), esError: true })
            return todos
        }
        function banda() { return findChild(vista, "banda") }

        function test_unaBandaLargaEmpiezaPorSuPrimerAviso() {
            DatosDelPanel.banda = avisos(30)
            tryVerify(() => banda().contentHeight > 1000)
            waitForRendering(vista)
            verify(banda().atYBeginning, banda().contentY)
            verify(!findChild(vista, "fundidoDeArriba").visible)
            verify(findChild(vista, "fundidoDeAbajo").visible)
        }

        function test_siSoloElUltimoAvisoEsNuevoSeVeElUltimo() {
            DatosDelPanel.banda = avisos(30)
            tryVerify(() => banda().contentHeight > 1000)
            DatosDelPanel.banda = avisos(30).concat([{ texto: "copied: 1", esError: false }])
            tryVerify(() => banda().atYEnd)
            verify(findChild(vista, "fundidoDeArriba").visible)
            verify(!findChild(vista, "fundidoDeAbajo").visible)
            DatosDelPanel.banda = avisos(30).concat([{ texto: "copied: 2", esError: false }])
            tryVerify(() => banda().atYEnd)
        }

        function test_avisosDeOtraCargaEmpiezanPorElPrimero() {
            DatosDelPanel.banda = avisos(30)
            DatosDelPanel.banda = avisos(30).concat([{ texto: "copied", esError: false }])
            tryVerify(() => banda().atYEnd)
            DatosDelPanel.banda = avisos(40).reverse()
            tryVerify(() => banda().atYBeginning)
        }

        function test_paginaAbajoCorrePrimeroLaBandaYLuegoLaLista() {
            DatosDelPanel.banda = avisos(4)
            llenar(50)
            tryVerify(() => banda().interactive && lista().itemAtIndex(2) !== null)
            waitForRendering(vista)
            keyClick(Qt.Key_PageDown)
            verify(banda().contentY > 20, banda().contentY)
            verify(lista().atYBeginning)
            for (let i = 0; i < 10; i++) keyClick(Qt.Key_PageDown)
            verify(banda().atYEnd)
            verify(lista().contentY > 200, lista().contentY)
            for (let i = 0; i < 20; i++) keyClick(Qt.Key_PageUp)
            verify(banda().atYBeginning && lista().atYBeginning)
        }

        function test_todaTerminalCabeEnElPie() {
            const antes = DatosDelPanel.leyenda
            let idioma = ""
            for (const pie of Pies.todos) {
                DatosDelPanel.terminal = pie.terminal
                if (pie.leyenda[0].palabra !== idioma) {
                    idioma = pie.leyenda[0].palabra
                    DatosDelPanel.leyenda = pie.leyenda
                    waitForRendering(vista)
                }
                const texto = findChild(vista, "terminal")
                verify(!texto.truncated, pie.terminal + " in " + texto.width)
                verify(texto.paintedHeight <= 38, pie.terminal)
            }
            DatosDelPanel.leyenda = antes
            DatosDelPanel.terminal = "xterm"
        }

        function test_elBotonDeLimpiarTieneNombreYLimpia() {
            DatosDelPanel.nombreDeLimpiar = "Clear search"
            keyClick(Qt.Key_A)
            const boton = findChild(vista, "limpiar")
            verify(boton.visible)
            compare(boton.Accessible.role, Accessible.Button)
            compare(boton.Accessible.name, "Clear search")
            mouseClick(boton)
            compare(DatosDelPanel.consulta, "")
        }

        function test_loBuscadoQuedaEscogidoAlAparecerElPanel() {
            for (const tecla of [Qt.Key_A, Qt.Key_B]) keyClick(tecla)
            DatosDelPanel.aparecio()
            compare(campo().selectedText, "ab")
            keyClick(Qt.Key_Right)
            compare(campo().text, "ab")
            DatosDelPanel.aparecio()
            keyClick(Qt.Key_C)
            compare(DatosDelPanel.consulta, "c")
        }

        function test_bajoLaBandaHayUnaLineaSoloSiCortaUnaFila() {
            DatosDelPanel.banda = [{ texto: "uno", esError: true }]
            llenar(100)
            DatosDelPanel.seleccion = 0
            const banda = findChild(vista, "banda").parent
            tryCompare(banda, "conLinea", false)
            DatosDelPanel.seleccion = 50
            tryCompare(banda, "conLinea", true)
        }

        function test_sinFilasSeMuestraElMarcador() {
            DatosDelPanel.marcador = "no sessions"
            const marcador = findChild(vista, "marcador")
            tryVerify(() => marcador.visible)
            DatosDelPanel.marcador = ""
            tryVerify(() => !marcador.visible)
        }

        // The pointer comes to `de`, then to `a`: the help text is that of `a`.
        function ayudaAlPasar(de, a, texto) {
            const ayuda = findChild(vista, "ayuda")
            mouseMove(vista, 200, 20)
            for (const cada of [de, a]) mouseMove(cada, cada.width / 2, cada.height / 2)
            tryVerify(() => ayuda.visible && ayuda.texto === texto, 3000, "the help is: " + ayuda.texto)
        }
        function conAyudas() {
            llenar(20)
            for (let i = 0; i < 20; i++) filasDePrueba.setProperty(i, "ayuda", "ayuda " + i)
            tryVerify(() => lista().itemAtIndex(8) !== null)
            waitForRendering(vista)
        }
        function test_laAyudaSigueAlPunteroDeArribaAbajo() {
            conAyudas()
            ayudaAlPasar(lista().itemAtIndex(1), lista().itemAtIndex(2), "ayuda 2")
        }
        function test_laAyudaSigueAlPunteroDeAbajoArriba() {
            conAyudas()
            ayudaAlPasar(lista().itemAtIndex(2), lista().itemAtIndex(1), "ayuda 1")
        }
        function test_laAyudaSigueAlPunteroDeUnaFilaAlEngranaje() {
            conAyudas()
            ayudaAlPasar(lista().itemAtIndex(6), findChild(vista, "engranaje"), "Settings (Ctrl+,)")
        }
        function test_laAyudaSigueAlPunteroDelEngranajeAUnaFila() {
            conAyudas()
            ayudaAlPasar(findChild(vista, "engranaje"), lista().itemAtIndex(6), "ayuda 6")
        }
        function test_dondeNoHayAyudaNoQuedaLaAnterior() {
            conAyudas()
            filasDePrueba.setProperty(2, "ayuda", "")
            ayudaAlPasar(lista().itemAtIndex(0), lista().itemAtIndex(1), "ayuda 1")
            mouseMove(lista().itemAtIndex(2), 200, 28)
            tryVerify(() => !findChild(vista, "ayuda").visible)
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
