import QtQuick
import QtTest
import Zorve.Vistas

Item {
    width: 440; height: 400

    ListView {
        id: lista
        anchors.fill: parent
        topMargin: 4; bottomMargin: 4
        model: 10000
        delegate: Item { required property int index; width: 440; height: 56 }
    }
    Desplazamiento { id: marca; lista: lista }

    TestCase {
        name: "Desplazamiento"
        when: windowShown

        function init() {
            lista.model = 10000
            lista.positionViewAtBeginning()
        }
        function alFinal() { return Math.abs(lista.contentY - (lista.originY + lista.contentHeight + 4 - lista.height)) < 1 }

        function test_arrastrarLaMarcaLlevaAlFinal() {
            mousePress(marca, 8, 10)
            mouseMove(marca, 8, 200)
            mouseMove(marca, 8, 399)
            mouseRelease(marca, 8, 399)
            verify(alFinal(), lista.contentY)
            tryVerify(() => lista.itemAtIndex(9999) !== null)
        }

        function test_unClicEnMedioLlevaALaMitad() {
            mouseClick(marca, 8, 200)
            tryVerify(() => Math.abs(lista.indexAt(10, lista.contentY + 100) - 5000) < 120)
        }

        function test_laRuedaCorrePocasFilas() {
            mouseWheel(lista, 100, 100, 0, -120)
            tryVerify(() => lista.contentY > 10)
            tryVerify(() => !lista.moving)
            verify(lista.contentY < 56 * 8, lista.contentY)
        }

        function test_loQueCabeNoTieneMarca() {
            lista.model = 3
            tryVerify(() => !marca.visible)
        }
    }
}
