pragma Singleton
import Zorve.Tipos

// The sizes that all front ends share, and those that this one draws by.
MedidasComunes {
    readonly property double borde: 1
    readonly property double grosorDeFoco: 2

    readonly property double ladoDeLupa: 16
    readonly property double trazoDeLupa: 1.6
    readonly property double ladoDeEquis: 16
    readonly property double alcanceDeEquis: 8
    readonly property double margenDeEquis: 16
    readonly property double huecoDeBusqueda: 8
    readonly property double anchoDelCursor: 2

    readonly property double altoDeBanda: 140
    readonly property double altoDeUnAviso: 30
    readonly property double margenSobreBanda: 10
    readonly property double margenBajoBanda: 8
    readonly property double huecoEntreAvisos: 6
    readonly property double fundido: 18
    readonly property double margenDeAviso: 7
    readonly property double xDePuntoDeAviso: 13
    readonly property double ladoDePuntoDeAviso: 6
    readonly property double xDeAviso: 36
    readonly property double margenDerechoDeAviso: 12

    readonly property double margenDeLista: 6
    readonly property double fundidoDeLista: 28
    readonly property double ladoDeEstado: 14
    readonly property double ladoDePunto: 8
    readonly property double trazoVivo: 2
    readonly property double trazoAcabado: 1.25
    readonly property double yDeTitulo: 6
    readonly property double altoDeTitulo: 25
    readonly property double yDeTiempo: 12
    readonly property double yDeConteo: 30
    readonly property double huecoDeFila: 14

    readonly property double carril: 12
    readonly property double bordeDeCarril: 2
    readonly property double margenDeAsidero: 3
    readonly property double asidero: 3
    readonly property double asideroTomado: 6
    readonly property double largoDeAsidero: 24

    readonly property double ladoDeMarcador: 44
    readonly property double subidaDelMarcador: 12
    readonly property double huecoDelMarcador: 16

    readonly property double margenDelPie: 14
    readonly property double huecoDeLeyenda: 10
    readonly property double huecoDeTecla: 5
    readonly property double huecoDeTerminal: 8
    readonly property double huecoDeBoton: 4
    readonly property double altoDeTecla: 18
    readonly property double margenDeTecla: 4
    readonly property double ladoDeFlechas: 12
    readonly property double ladoDeRetorno: 12
    readonly property double trazoDeTecla: 1.4
    readonly property double margenDeBoton: 15
    readonly property double ladoDeBoton: 25
    readonly property double radioDeBoton: 6
    readonly property double ladoDeEngranaje: 15
    readonly property double trazoDeEngranaje: 1.2

    readonly property double margenDeAyuda: 12
    readonly property double huecoDeAyuda: 80
    readonly property double xDeAyuda: 9
    readonly property double yDeAyuda: 5
    readonly property double radioDeAyuda: 6
    readonly property double ayudaBajoFila: 6
    readonly property double ayudaSobreFila: 2

    readonly property double margenDeBarraLateral: 10
    readonly property double margenSobreSecciones: 20
    readonly property double huecoEntreSecciones: 2
    readonly property double radioDeSeccion: 7
    readonly property double xDeSimbolo: 10
    readonly property double ladoDeSimbolo: 15
    readonly property double trazoDeSimbolo: 1.3
    readonly property double xDeSeccion: 34

    readonly property double margenDeAjustes: 24
    readonly property double margenSobreAjustes: 20
    readonly property double huecoDeAjustes: 18
    readonly property double huecoDeOpciones: 6
    readonly property double bajoRotulo: 2
    readonly property double espacioDeRotulo: 0.8
    readonly property double margenDeOpcion: 14
    readonly property double huecoDeOpcion: 12
    readonly property double huecoDeNota: 2
    readonly property double radioDeCasilla: 4
    readonly property double ladoDeVisto: 12
    readonly property double trazoDeVisto: 1.8

    readonly property double ladoDeEmblema: 72
    readonly property double subidaDeEmblema: 16
    readonly property double huecoDeEmblema: 8
    readonly property double bajoEmblema: 6

    readonly property double sombraDelMarco: 18
    readonly property double altoDelTitulo: 38
    readonly property double margenDeCierre: 9
    readonly property double ladoDeCierre: 22
    readonly property double ladoDeEquisDeCierre: 10
    readonly property double trazoDeCierre: 2
}
