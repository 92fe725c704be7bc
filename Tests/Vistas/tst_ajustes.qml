import QtQuick
import QtTest
import Zorve.Tipos
import Zorve.Vistas

Item {
    width: 620; height: 460

    // Stands for the settings.
    Connections {
        id: ajustes
        property var elegidas: []
        target: DatosDeAjustes
        function onSeccionPulsada(cual) {
            DatosDeAjustes.secciones = DatosDeAjustes.secciones.map((una, i) => ({ titulo: una.titulo, simbolo: una.simbolo, elegida: i === cual }))
        }
        function onOpcionPulsada(grupo, opcion) {
            elegidas.push(opcion)
            DatosDeAjustes.grupos = DatosDeAjustes.grupos.map(uno => ({ titulo: uno.titulo,
                                          opciones: uno.opciones.map((una, i) => Object.assign({}, una, { marcada: i === opcion })) }))
        }
    }

    Ajustes { id: vista; anchors.fill: parent }

    TestCase {
        name: "Ajustes"
        when: windowShown

        function initTestCase() {
            DatosDeAjustes.nombreYVersion = "Zorve 1.2"
            DatosDeAjustes.secciones = [{ titulo: "General", simbolo: Simbolo.Engranaje, elegida: true },
                                        { titulo: "Terminal", simbolo: Simbolo.Terminal, elegida: false },
                                        { titulo: "About", simbolo: Simbolo.AcercaDe, elegida: false }]
        }
        function opciones(cuantas) {
            const todas = []
            for (let i = 0; i < cuantas; i++) todas.push({ titulo: "Opción " + i, nota: "", marcada: i === 0, cuadro: false })
            return todas
        }
        function enfocado() { return vista.Window.activeFocusItem }
        // Tab from the first section to the first option.
        function alasOpciones() {
            findChild(vista, "seccion2").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Tab)
        }

        function init() {
            DatosDeAjustes.seccionPulsada(0)
            DatosDeAjustes.grupos = [{ titulo: "Uno", opciones: opciones(3) }]
            ajustes.elegidas = []
            waitForRendering(vista)
        }

        function test_elegirNoQuitaElTecladoALaOpcion() {
            alasOpciones()
            keyClick(Qt.Key_Tab)
            compare(enfocado().titulo, "Opción 1")
            keyClick(Qt.Key_Space)
            compare(ajustes.elegidas, [1])
            compare(enfocado().titulo, "Opción 1")
            verify(enfocado().marcada)
        }

        function test_lasFlechasVanDeOpcionEnOpcionYRetornoElige() {
            alasOpciones()
            for (const tecla of [Qt.Key_Down, Qt.Key_Down, Qt.Key_Down, Qt.Key_Up]) keyClick(tecla)
            keyClick(Qt.Key_Return)
            compare(ajustes.elegidas, [1])
        }

        function test_lasFlechasVanDeSeccionEnSeccion() {
            findChild(vista, "seccion0").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Down)
            verify(DatosDeAjustes.secciones[1].elegida)
            compare(enfocado().objectName, "seccion1")
        }

        function test_laOpcionConElTecladoEstaALaVista() {
            DatosDeAjustes.grupos = [{ titulo: "", opciones: opciones(40) }]
            waitForRendering(vista)
            alasOpciones()
            const area = findChild(vista, "area")
            for (let i = 0; i < 39; i++) {
                keyClick(Qt.Key_Tab)
                const y = enfocado().mapToItem(area, 0, 0).y
                verify(y >= 0 && y + enfocado().height <= area.height, enfocado().titulo + " at " + y)
            }
            compare(enfocado().titulo, "Opción 39")
        }

        function test_menosOpcionesQueAntesNoRompenNada() {
            failOnWarning(/Error/)
            DatosDeAjustes.grupos = [{ titulo: "A", opciones: opciones(9) }, { titulo: "B", opciones: opciones(2) }]
            waitForRendering(vista)
            DatosDeAjustes.grupos = [{ titulo: "A", opciones: opciones(1) }]
            waitForRendering(vista)
            DatosDeAjustes.grupos = []
            waitForRendering(vista)
        }

        function test_acercaDeQuedaBajoUnaBandaLarga() {
            DatosDeAjustes.grupos = []
            DatosDeAjustes.acercaDe = true
            DatosDeAjustes.banda = "launcher: could not write ".repeat(60)
            const area = findChild(vista, "area")
            const acercaDe = findChild(vista, "acercaDe")
            tryVerify(() => acercaDe.y > 200)
            verify(area.contentHeight >= acercaDe.y + acercaDe.implicitHeight, area.contentHeight)
            DatosDeAjustes.banda = ""
            tryVerify(() => acercaDe.y === 0 && area.contentHeight <= area.height)
            DatosDeAjustes.acercaDe = false
        }

        function test_unaBandaLargaSeVeEntera() {
            DatosDeAjustes.banda = "launcher: could not write ".repeat(20)
            tryVerify(() => findChild(vista, "area").contentHeight > 300)
            DatosDeAjustes.banda = ""
        }
    }
}
