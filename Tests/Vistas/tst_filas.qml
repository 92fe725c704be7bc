import QtQuick
import QtTest
import Zorve.Vistas

Item {
    id: caso
    width: 440; height: 300

    property int pulsadas: 0

    Component {
        id: fila
        FilaDeSesion {
            width: 440
            index: 0; titulo: "Un título"; ayuda: ""; ruta: "~/src"; palabra: ""; tiempo: "5m"; conteo: "12 prompts"; estado: "dead"
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
            verify(titulo.x + titulo.width <= texto(una, "5m").x - 8)
        }

        function test_unaRutaLargaDejaSitioALaPalabra() {
            const una = createTemporaryObject(fila, caso, { ruta: "/r".repeat(200), palabra: "working", estado: "busy" })
            const palabra = texto(una, " · working")
            verify(palabra.visible)
            verify(palabra.x + palabra.width <= texto(una, "12 prompts").x)
        }

        function test_unaSesionAcabadaMuestraSoloLaRuta() {
            const una = createTemporaryObject(fila, caso)
            verify(!textos(una).some(t => t.visible && t.text.includes("·")))
        }

        function test_unClicPulsaLaFila() {
            const una = createTemporaryObject(fila, caso)
            caso.pulsadas = 0
            mouseClick(una, 200, 28)
            compare(caso.pulsadas, 1)
        }
    }
}
