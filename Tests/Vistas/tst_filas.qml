import QtQuick
import QtTest
import Zorve.Tipos
import Zorve.Vistas

Item {
    id: caso
    width: 440; height: 300

    property int pulsadas: 0

    Component {
        id: fila
        FilaDeSesion {
            width: 440
            index: 0; titulo: "Un título"; ayuda: ""; perdida: ""; ruta: "~/src"; palabra: ""; tiempo: "5m"; conteo: "12 prompts"; estado: DatosDelPanel.Acabada; marcasDeTitulo: []; marcasDeRuta: []
            onPulsada: caso.pulsadas++
        }
    }

    TestCase {
        name: "FilaDeSesion"
        when: windowShown

        function textos(de) {
            let todos = []
            for (let i = 0; i < de.children.length; i++) {
                if (de.children[i].text !== undefined) todos.push(de.children[i])
                todos = todos.concat(textos(de.children[i]))
            }
            return todos
        }
        function texto(de, cual) { return textos(de).find(t => t.text === cual) }

        function test_todoTextoEsLlanoYDeUnaLinea() {
            const una = createTemporaryObject(fila, caso, { titulo: "<b>no</b> &amp;" })
            verify(texto(una, "<b>no</b> &amp;"))
            for (const cada of textos(una)) compare(cada.textFormat, Text.PlainText)
        }

        function test_unTituloLargoSeCortaAntesDelTiempo() {
            const una = createTemporaryObject(fila, caso, { titulo: "m".repeat(500) })
            const titulo = texto(una, "m".repeat(500))
            verify(titulo.truncated)
            compare(titulo.lineCount, 1)
            verify(titulo.mapToItem(una, titulo.width, 0).x <= texto(una, "5m").x - 8)
        }

        function test_glifosDeOtrasLetrasNoMuevenElRenglon() {
            const normal = createTemporaryObject(fila, caso)
            const con = createTemporaryObject(fila, caso, { titulo: "🧪 中文 हि", ruta: "/🧪" })
            const renglon = (de, cual) => texto(de, cual).mapToItem(de, 0, texto(de, cual).baselineOffset).y
            fuzzyCompare(renglon(con, "🧪 中文 हि"), renglon(normal, "Un título"), 0.6)
            fuzzyCompare(renglon(con, "/🧪"), renglon(normal, "~/src"), 0.6)
            fuzzyCompare(renglon(con, "🧪 中文 हि"), renglon(con, "5m"), 0.6)
        }

        function test_laPalabraSigueALaRutaCortada() {
            const una = createTemporaryObject(fila, caso, { ruta: "/r".repeat(200), palabra: "working", estado: DatosDelPanel.Ocupada })
            const ruta = texto(una, "/r".repeat(200))
            verify(ruta.truncated)
            fuzzyCompare(texto(una, " · working").x, ruta.x + ruta.contentWidth, 1)
        }

        function test_unaRutaLargaDejaSitioALaPalabra() {
            const una = createTemporaryObject(fila, caso, { ruta: "/r".repeat(200), palabra: "working", estado: DatosDelPanel.Ocupada })
            const palabra = texto(una, " · working")
            verify(palabra.visible)
            verify(palabra.x + palabra.width <= texto(una, "12 prompts").x)
        }

        function test_unaSesionAcabadaMuestraSoloLaRuta() {
            const una = createTemporaryObject(fila, caso)
            verify(!textos(una).some(t => t.visible && t.text.includes("·")))
        }

        function test_laRutaDeUnDirectorioPerdidoVaTachada() {
            const una = createTemporaryObject(fila, caso, { perdida: "The directory no longer exists." })
            verify(texto(una, "~/src").font.strikeout)
            verify(una.ayudaEntera().includes("no longer exists"))
            verify(!texto(createTemporaryObject(fila, caso), "~/src").font.strikeout)
        }

        function test_laAyudaDiceEnteroLoQueNoCabe() {
            const largo = "m".repeat(200)
            const una = createTemporaryObject(fila, caso, { titulo: largo, ruta: "/r".repeat(200), ayuda: "otra cosa" })
            compare(una.ayudaEntera(), largo + "\n" + "/r".repeat(200) + "\notra cosa")
            compare(createTemporaryObject(fila, caso).ayudaEntera(), "")
        }

        function test_elBotonSecundarioPideElMenuYNoPulsa() {
            const una = createTemporaryObject(fila, caso)
            const donde = createTemporaryQmlObject("import QtTest; SignalSpy { signalName: 'menuPedido' }", caso)
            donde.target = una
            caso.pulsadas = 0
            mouseClick(una, 200, 28, Qt.RightButton)
            compare(caso.pulsadas, 0)
            compare(donde.count, 1)
        }

        function test_loQueSeBuscaSePintaDelAcentoYElRestoDelSuyo() {
            const una = createTemporaryObject(fila, caso, { titulo: "un parser", marcasDeTitulo: [3, 9] })
            const pintados = textos(una).filter(t => t.text === "un parser")
            verify(pintados.some(t => Qt.colorEqual(t.color, Estilo.acento)))
            verify(pintados.some(t => Qt.colorEqual(t.color, Estilo.textoAlto)))
            for (const cada of textos(una)) compare(cada.textFormat, Text.PlainText)
        }

        function test_lasPiezasMidenLoQueElLetrero() {
            for (const ruta of ["~/src/bench/parser", "/srv/señales/中文"]) {
                const una = createTemporaryObject(fila, caso, { ruta: ruta })
                const entera = Piezas.de(ruta, texto(una, ruta).font, 400, Text.ElideNone, [0, ruta.length])
                const marcada = entera.piezas.find(p => p.marcada)
                fuzzyCompare(marcada.x + marcada.ancho, texto(una, ruta).contentWidth, 1)
            }
        }

        function test_sinBusquedaElTituloEsUnSoloLetrero() {
            const una = createTemporaryObject(fila, caso, { titulo: "un parser" })
            compare(textos(una).filter(t => t.text === "un parser").length, 1)
        }

        function test_laMarcaNoMueveLasLetras() {
            const normal = createTemporaryObject(fila, caso, { titulo: "un parser" })
            const una = createTemporaryObject(fila, caso, { titulo: "un parser", marcasDeTitulo: [3, 9] })
            const sitio = (de, t) => t.mapToItem(de, 0, t.baselineOffset)
            const esperado = sitio(normal, texto(normal, "un parser"))
            for (const cada of textos(una).filter(t => t.text === "un parser")) compare(sitio(una, cada), esperado)
        }

        function test_unDobleClicPulsaUnaVez() {
            const una = createTemporaryObject(fila, caso)
            caso.pulsadas = 0
            mouseDoubleClickSequence(una, 200, 28)
            compare(caso.pulsadas, 1)
        }

        function test_unClicPulsaLaFila() {
            const una = createTemporaryObject(fila, caso)
            caso.pulsadas = 0
            mouseClick(una, 200, 28)
            compare(caso.pulsadas, 1)
        }
    }
}
