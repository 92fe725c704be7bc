import QtQuick
import QtTest
import Zorve.Vistas

Item {
    width: 620; height: 460

    // Stands for the settings' values.
    QtObject {
        id: ajustes
        property var secciones: [{ titulo: "General", simbolo: "general", elegida: true },
                                 { titulo: "Terminal", simbolo: "terminal", elegida: false },
                                 { titulo: "About", simbolo: "acercaDe", elegida: false }]
        property string seccion: "general"
        property string banda: ""
        property var grupos: []
        property string texto: ""
        property string pie: ""
        property string nombreYVersion: "Zorve 1.2"
        property string paraCerrar: ""
        property var elegidas: []
        function clicEnSeccion(cual) {
            secciones = secciones.map((una, i) => ({ titulo: una.titulo, simbolo: una.simbolo, elegida: i === cual }))
        }
        function clicEnOpcion(grupo, opcion) {
            elegidas.push(opcion)
            grupos = grupos.map(uno => ({ titulo: uno.titulo,
                                          opciones: uno.opciones.map((una, i) => Object.assign({}, una, { marcada: i === opcion })) }))
        }
    }

    Ajustes { id: vista; anchors.fill: parent }

    TestCase {
        name: "Ajustes"
        when: windowShown

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
            ajustes.clicEnSeccion(0)
            ajustes.grupos = [{ titulo: "Uno", opciones: opciones(3) }]
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
            verify(ajustes.secciones[1].elegida)
            compare(enfocado().objectName, "seccion1")
        }

        function test_laOpcionConElTecladoEstaALaVista() {
            ajustes.grupos = [{ titulo: "", opciones: opciones(40) }]
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
            ajustes.grupos = [{ titulo: "A", opciones: opciones(9) }, { titulo: "B", opciones: opciones(2) }]
            waitForRendering(vista)
            ajustes.grupos = [{ titulo: "A", opciones: opciones(1) }]
            waitForRendering(vista)
            ajustes.grupos = []
            waitForRendering(vista)
        }

        function test_unaBandaLargaSeVeEntera() {
            ajustes.banda = "launcher: could not write ".repeat(20)
            tryVerify(() => findChild(vista, "area").contentHeight > 300)
            ajustes.banda = ""
        }
    }
}
