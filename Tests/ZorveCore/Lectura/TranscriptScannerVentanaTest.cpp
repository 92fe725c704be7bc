#include <gtest/gtest.h>

#include <random>

#include "Dobles/LecturaIngenua.h"
#include "Dobles/UnSoloArchivo.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"

namespace zorve {
namespace {

using dobles::LecturaIngenua;
using dobles::UnSoloArchivo;
using TranscriptScanner::Cabecera;

constexpr auto ventana = static_cast<std::size_t>(TranscriptScanner::ventanaBytes);

std::expected<Cabecera, FalloDelSistema> leer(UnSoloArchivo& archivo, std::size_t tamanoListado) {
  return TranscriptScanner::leerCabecera(archivo, "/x", static_cast<std::int64_t>(tamanoListado));
}

Cabecera cabeceraDe(UnSoloArchivo& archivo) { return leer(archivo, archivo.contenido.size()).value(); }

Cabecera cabeceraDe(std::string const& contenido) {
  UnSoloArchivo archivo{contenido};
  return cabeceraDe(archivo);
}

std::string titulo(std::string const& texto) { return R"({"type":"ai-title","aiTitle":")" + texto + "\"}\n"; }
std::string directorio(std::string const& texto) { return R"({"type":"user","cwd":")" + texto + "\"}\n"; }

/// Lines without title or directory, `cuantos` bytes in all, each at most `linea` bytes.
std::string relleno(std::size_t cuantos, std::size_t linea = 1'000) {
  std::string const vacia = "{\"m\":\"\"}\n";
  std::string lineas;
  while (lineas.size() < cuantos) {
    auto const largo = std::min(linea, cuantos - lineas.size());
    lineas += largo <= vacia.size() ? std::string(largo, '\n')
                                    : "{\"m\":\"" + std::string(largo - vacia.size(), 'x') + "\"}\n";
  }
  return lineas;
}

/// `inicio`, filling and `fin`, `cuantos` bytes in all.
std::string deLargo(std::size_t cuantos, std::string const& inicio, std::string const& fin) {
  return inicio + relleno(cuantos - inicio.size() - fin.size()) + fin;
}

TEST(TranscriptScannerVentana, unArchivoDeCienBytesSeLeeUnaVez) {
  UnSoloArchivo archivo{deLargo(100, directorio("/p"), titulo("t"))};
  EXPECT_EQ(cabeceraDe(archivo), (Cabecera{"t", "/p"}));
  EXPECT_EQ(archivo.lecturas, (std::vector<UnSoloArchivo::Lectura>{{0, 100}}));
}

TEST(TranscriptScannerVentana, ningunByteDeUnArchivoQueCabeEnUnaVentanaSeLeeDosVeces) {
  for (auto const largo : {65'536UZ, 65'537UZ, 100'000UZ, ventana - 1, ventana}) {
    UnSoloArchivo archivo{relleno(largo)};
    EXPECT_EQ(cabeceraDe(archivo), Cabecera{});
    EXPECT_EQ(archivo.bytesLeidos(), largo) << largo;
  }
}

TEST(TranscriptScannerVentana, unArchivoDeUnaVentanaJustaNoTieneCabeza) {
  UnSoloArchivo archivo{deLargo(ventana, directorio("/p"), "")};
  EXPECT_EQ(cabeceraDe(archivo), (Cabecera{std::nullopt, "/p"}));
  EXPECT_EQ(archivo.bytesLeidos(), ventana);
}

TEST(TranscriptScannerVentana, conUnByteMasLaCabezaDaElDirectorioYElTituloDeLaColaQueda) {
  EXPECT_EQ(cabeceraDe(deLargo(ventana + 1, directorio("/p"), titulo("cola"))), (Cabecera{"cola", "/p"}));
  EXPECT_EQ(cabeceraDe(deLargo(ventana + 1, directorio("/p") + titulo("cabeza"), titulo("cola"))),
            (Cabecera{"cola", "/p"}));
}

TEST(TranscriptScannerVentana, elTituloDeLaColaGanaAlDeLaCabeza) {
  EXPECT_EQ(cabeceraDe(deLargo(900'000, titulo("cabeza"), titulo("cola"))).aiTitle, "cola");
}

TEST(TranscriptScannerVentana, elDirectorioDeLaColaGanaAlDeLaCabeza) {
  EXPECT_EQ(cabeceraDe(deLargo(900'000, directorio("/cabeza"), directorio("/cola"))).cwd, "/cola");
}

TEST(TranscriptScannerVentana, loQueSoloEstaEnLaCabezaSeHallaAlli) {
  EXPECT_EQ(cabeceraDe(deLargo(900'000, titulo("t") + directorio("/p"), "")), (Cabecera{"t", "/p"}));
}

TEST(TranscriptScannerVentana, loQueNoEstaEnNingunaVentanaNoSeHalla) {
  EXPECT_EQ(cabeceraDe(relleno(300'000) + titulo("t") + directorio("/p") + relleno(300'000)), Cabecera{});
}

TEST(TranscriptScannerVentana, enLaCabezaElUltimoTituloGana) {
  auto const inicio = titulo("uno") + relleno(100'000) + titulo("dos") + relleno(200'000) + titulo("tres");
  EXPECT_EQ(cabeceraDe(deLargo(900'000, inicio, "")).aiTitle, "dos");
}

TEST(TranscriptScannerVentana, unaLineaDeCuatrocientosKilobytesNoEstorba) {
  auto const larga = "{\"m\":\"" + std::string(400'000, 'x') + "\"}\n";
  EXPECT_EQ(cabeceraDe(titulo("t") + directorio("/p") + larga), (Cabecera{"t", "/p"}));
  EXPECT_EQ(cabeceraDe(larga + titulo("t") + directorio("/p")), (Cabecera{"t", "/p"}));
  EXPECT_EQ(cabeceraDe(directorio("/p") + larga + larga + titulo("t")), (Cabecera{"t", "/p"}));
}

TEST(TranscriptScannerVentana, unaLineaQueNoCabeEnNingunaVentanaNoDaNada) {
  auto const larga =
      R"({"type":"ai-title","aiTitle":"t","cwd":"/p","m":")" + std::string(400'000, 'x') + "\"}";
  EXPECT_EQ(cabeceraDe(larga), Cabecera{});
}

TEST(TranscriptScannerVentana, unaLineaLargaQueCabeSeDecodificaEntera) {
  auto const larga =
      R"({"type":"ai-title","aiTitle":"t","m":")" + std::string(200'000, 'x') + R"(","cwd":"/p"})";
  EXPECT_EQ(cabeceraDe(larga), (Cabecera{"t", "/p"}));
  EXPECT_EQ(cabeceraDe(relleno(400'000) + larga), (Cabecera{"t", "/p"}));
}

TEST(TranscriptScannerVentana, enCadaLargoAlrededorDeLaVentanaEsIgualALaLecturaIngenua) {
  LecturaIngenua ingenua;
  for (auto const largo : {65'535UZ, 65'536UZ, 65'537UZ, 262'143UZ, 262'144UZ, 262'145UZ, 262'146UZ,
                           524'287UZ, 524'288UZ, 524'289UZ}) {
    for (auto const& [inicio, fin] : std::initializer_list<std::pair<std::string, std::string>>{
             {"", ""},
             {titulo("a"), ""},
             {directorio("/a"), ""},
             {titulo("a") + directorio("/a"), ""},
             {directorio("/a"), titulo("b")},
             {titulo("a"), directorio("/b")},
             {titulo("a") + directorio("/a"), directorio("/b") + titulo("b")}}) {
      auto const contenido = deLargo(largo, inicio, fin);
      EXPECT_EQ(cabeceraDe(contenido), ingenua.cabecera(contenido, largo)) << largo << inicio << fin;
    }
  }
}

TEST(TranscriptScannerVentana, conUnTituloSobreElBordeDeCadaVentanaEsIgualALaLecturaIngenua) {
  LecturaIngenua ingenua;
  std::string const registro = R"({"cwd":"/p","type":"ai-title","aiTitle":"t"})"
                               "\n";
  for (std::size_t corrimiento = 0; corrimiento <= registro.size() + 60; ++corrimiento) {
    for (auto const borde : {ventana, 700'000 - ventana}) {
      auto contenido = relleno(borde - 60 + corrimiento) + registro;
      contenido += relleno(700'000 - contenido.size());
      ASSERT_EQ(cabeceraDe(contenido), ingenua.cabecera(contenido, contenido.size()))
          << borde << "+" << corrimiento;
    }
  }
}

TEST(TranscriptScannerVentana, enTodoLugarDeUnTrozoEsIgualALaLecturaIngenua) {
  LecturaIngenua ingenua;
  std::string const registro = R"({"type":"ai-title","aiTitle":"t","cwd":"/p"})"
                               "\n";
  for (std::size_t lugar = 65'500; lugar < 82'000; lugar += 37) {
    auto const contenido = relleno(lugar, 5'000) + registro + relleno(100'000 - lugar, 5'000);
    ASSERT_EQ(cabeceraDe(contenido), ingenua.cabecera(contenido, contenido.size())) << lugar;
  }
}

TEST(TranscriptScannerVentana, losArchivosDeHoyCuestanPocasLecturas) {
  std::string contenido = titulo("viejo");
  while (contenido.size() < 2'000'000) contenido += directorio("/p") + relleno(1'000);
  contenido += titulo("nuevo");
  while (contenido.size() < 2'020'000) contenido += directorio("/p") + relleno(1'000);
  UnSoloArchivo archivo{contenido};
  EXPECT_EQ(cabeceraDe(archivo), (Cabecera{"nuevo", "/p"}));
  EXPECT_LE(archivo.bytesLeidos(), 33'000U);
}

TEST(TranscriptScannerVentana, nuncaSeLeeMasQueDosVentanas) {
  UnSoloArchivo archivo{relleno(5'000'000)};
  EXPECT_EQ(cabeceraDe(archivo), Cabecera{});
  EXPECT_EQ(archivo.bytesLeidos(), 2 * ventana);
}

std::string archivoAlAzar(std::mt19937& azar) {
  std::string contenido;
  auto const tope = azar() % 8 == 0 ? 700'000UZ : 1UZ << (azar() % 20);
  auto const linea = 1UZ << (azar() % 18);
  while (contenido.size() < tope) {
    switch (azar() % 12) {
      case 0:
        contenido += titulo("t" + std::to_string(azar() % 100));
        break;
      case 1:
        contenido += directorio("/d" + std::to_string(azar() % 100));
        break;
      case 2:
        contenido += "{\"m\":\"aiTitle \\\"cwd\\\" \"cwd\"\n";
        break;
      case 3:
        contenido += "aiTitle\"cwd\"";
        break;
      default:
        contenido += relleno(1 + azar() % (2 * linea), linea);
        break;
    }
  }
  return contenido;
}

/// Files in which titles and directories are rare, so that both windows are needed.
std::string archivoAlAzarYRalo(std::mt19937& azar) {
  auto const largo = 200'000 + azar() % 500'000;
  auto contenido = relleno(largo, 1UZ << (6 + azar() % 12));
  for (auto i = azar() % 4; i > 0; --i) {
    auto const registro = azar() % 2 == 0 ? titulo(std::to_string(i)) : directorio("/" + std::to_string(i));
    contenido.insert(contenido.rfind('\n', azar() % largo) + 1, registro);
  }
  return contenido;
}

TEST(TranscriptScannerVentana, enArchivosAlAzarEsIgualALaLecturaIngenua) {
  LecturaIngenua ingenua;
  std::mt19937 azar{23};
  for (int vez = 0; vez < 600; ++vez) {
    auto const contenido = vez % 2 == 0 ? archivoAlAzar(azar) : archivoAlAzarYRalo(azar);
    ASSERT_EQ(cabeceraDe(contenido), ingenua.cabecera(contenido, contenido.size())) << "round " << vez;
  }
}

TEST(TranscriptScannerVentana, unArchivoQueCrecioDesdeElListadoSeLeeHastaSuFin) {
  auto const listado = deLargo(300'000, titulo("cabeza") + directorio("/cabeza"), "");
  UnSoloArchivo archivo{listado + relleno(400'000) + titulo("nuevo") + directorio("/nuevo")};
  EXPECT_EQ(leer(archivo, listado.size()), (Cabecera{"nuevo", "/nuevo"}));
}

TEST(TranscriptScannerVentana, unArchivoCortoQueCrecioSeLeeHastaSuFin) {
  for (auto const crecido : {200UZ, 65'536UZ, 65'537UZ, 400'000UZ}) {
    UnSoloArchivo archivo{deLargo(crecido, directorio("/p"), titulo("nuevo"))};
    EXPECT_EQ(leer(archivo, 100), (Cabecera{"nuevo", "/p"})) << crecido;
  }
}

constexpr auto extremo = static_cast<std::size_t>(TranscriptScanner::colaMaxima);

TEST(TranscriptScannerVentana, unArchivoEnlazadoDeVeinteMegasDaElTituloMasNuevoYElPrimerDirectorio) {
  UnSoloArchivo archivo{deLargo(extremo, titulo("viejo") + directorio("/primero"), "") +
                        deLargo(4U << 20U, "", titulo("nuevo") + directorio("/segundo"))};
  EXPECT_EQ(leer(archivo, 100), (Cabecera{"nuevo", "/primero"}));
}

TEST(TranscriptScannerVentana, deUnArchivoEnlazadoMuyLargoSeMiranDieciseisMegasDesdeCadaExtremo) {
  auto const medio = relleno(1000) + titulo("medio") + directorio("/medio");
  auto const extremoSin = deLargo(extremo, "", "");
  UnSoloArchivo ambos{deLargo(extremo, titulo("viejo"), directorio("/primero")) + medio +
                      deLargo(extremo, titulo("nuevo") + directorio("/segundo"), "")};
  EXPECT_EQ(leer(ambos, 100), (Cabecera{"nuevo", "/primero"}));
  UnSoloArchivo cruzados{deLargo(extremo, titulo("viejo"), "") + medio +
                         deLargo(extremo, directorio("/segundo"), "")};
  EXPECT_EQ(leer(cruzados, 100), (Cabecera{"viejo", "/segundo"}));
  UnSoloArchivo lejos{extremoSin + medio + extremoSin};
  EXPECT_EQ(leer(lejos, 100), (Cabecera{}));
  EXPECT_LE(lejos.bytesLeidos(), 4 * extremo + 65'537);
}

TEST(TranscriptScannerVentana, unaLineaDeVariosMegasNoSeDescifra) {
  auto const larga = R"({"type":"ai-title","aiTitle":"larga","cwd":"/larga","m":")" +
                     std::string(TranscriptScanner::registroMaximo, 'x') + "\"}\n";
  UnSoloArchivo archivo{directorio("/p") + titulo("t") + larga};
  EXPECT_EQ(leer(archivo, 100), (Cabecera{"t", "/p"}));
}

TEST(TranscriptScannerVentana, unArchivoQueEncogioDesdeElListadoDaLoQueQueda) {
  LecturaIngenua ingenua;
  for (auto const queda : {0UZ, 100UZ, 200'000UZ, ventana, 700'000UZ, 800'000UZ}) {
    UnSoloArchivo archivo{queda == 0 ? "" : deLargo(queda, directorio("/p"), titulo("t"))};
    EXPECT_EQ(leer(archivo, 900'000), ingenua.cabecera(archivo.contenido, 900'000)) << queda;
  }
}

TEST(TranscriptScannerVentana, unArchivoQueEncogeBajoLaLecturaDaLoQueQueda) {
  auto const entero = deLargo(900'000, titulo("t") + directorio("/p"), directorio("/cola"));
  for (std::size_t lectura = 0; lectura < 20; ++lectura) {
    for (auto const queda : {0UZ, 5'000UZ, 640'000UZ, 800'000UZ}) {
      UnSoloArchivo archivo{entero};
      archivo.alLeer = [&](std::size_t cuantas) {
        if (cuantas == lectura) archivo.contenido.resize(queda);
      };
      auto const hallada = leer(archivo, entero.size());
      ASSERT_TRUE(hallada);
      if (lectura == 0) {
        EXPECT_EQ(*hallada, LecturaIngenua{}.cabecera(archivo.contenido, entero.size()));
      }
      EXPECT_EQ(hallada->aiTitle.value_or("t"), "t");
      if (queda == 0) continue;
      EXPECT_EQ(hallada->aiTitle, "t") << lectura << ", " << queda;
      EXPECT_TRUE(hallada->cwd == "/p" || hallada->cwd == "/cola") << lectura << ", " << queda;
    }
  }
}

TEST(TranscriptScannerVentana, unArchivoQueEncogeYVuelveACrecerSeLee) {
  auto const entero = deLargo(900'000, titulo("t") + directorio("/p"), "");
  UnSoloArchivo archivo{entero};
  archivo.alLeer = [&](std::size_t cuantas) { archivo.contenido = cuantas == 1 ? "" : entero; };
  EXPECT_EQ(leer(archivo, entero.size()), (Cabecera{"t", "/p"}));
}

TEST(TranscriptScannerVentana, unFalloAlAbrirEsElFallo) {
  UnSoloArchivo archivo{"x"};
  archivo.falloAlAbrir = EACCES;
  EXPECT_EQ(leer(archivo, 1).error(), FalloDelSistema::deErrno(EACCES));
}

TEST(TranscriptScannerVentana, unFalloEnCualquierLecturaEsElFallo) {
  for (std::size_t lectura = 0; lectura < 12; ++lectura) {
    UnSoloArchivo archivo{relleno(900'000)};
    archivo.alLeer = [&](std::size_t cuantas) { archivo.falloAlLeer = cuantas == lectura ? EIO : 0; };
    auto const hallada = leer(archivo, 900'000);
    ASSERT_FALSE(hallada) << lectura;
    EXPECT_EQ(hallada.error(), FalloDelSistema::deErrno(EIO));
  }
}

TEST(TranscriptScannerVentana, unFalloAlLeerUnArchivoCortoEsElFallo) {
  UnSoloArchivo archivo{"x"};
  archivo.falloAlLeer = EIO;
  EXPECT_EQ(leer(archivo, 1).error(), FalloDelSistema::deErrno(EIO));
}

TEST(TranscriptScannerVentana, unFalloAlPedirElFinEsElFallo) {
  UnSoloArchivo archivo{relleno(900'000)};
  archivo.falloDelTamano = EIO;
  EXPECT_EQ(leer(archivo, 900'000).error(), FalloDelSistema::deErrno(EIO));
}

TEST(TranscriptScannerVentana, losNulosYLaUltimaLineaCortadaNoEstorban) {
  auto contenido =
      titulo("t") + directorio("/p") + std::string(100'000, '\0') + "\n" + R"({"type":"ai-title","aiTit)";
  EXPECT_EQ(cabeceraDe(contenido), (Cabecera{"t", "/p"}));
}

/// A transcript of `cuantos` bytes in one of whose lines the needle of `linea` stands at `lugar`.
std::string conAgujaEn(std::size_t lugar, std::string_view aguja, std::string const& linea,
                       std::size_t cuantos) {
  auto const antes = relleno(lugar - linea.find(aguja));
  return antes + linea + relleno(cuantos - antes.size() - linea.size());
}

TEST(TranscriptScannerVentana, unaAgujaCortadaPorDosLecturasSeHalla) {
  constexpr std::size_t pagina = 4'096;
  for (auto const cuantos : {200'000UZ, ventana + pagina + 3}) {
    auto const inicio = cuantos > ventana ? cuantos - ventana : 0;
    for (std::size_t multiplo = 1; multiplo <= 4; ++multiplo) {
      auto const delante = (inicio / pagina + multiplo) * pagina;
      auto const detras = (cuantos / pagina - multiplo) * pagina;
      for (std::size_t paso = 0; paso < 16; ++paso) {
        ASSERT_EQ(cabeceraDe(conAgujaEn(detras - 8 + paso, "aiTitle", titulo("t"), cuantos)).aiTitle, "t")
            << cuantos << ": " << multiplo << ", " << paso;
        ASSERT_EQ(cabeceraDe(conAgujaEn(delante - 8 + paso, "\"cwd\"", directorio("/p"), cuantos)).cwd, "/p")
            << cuantos << ": " << multiplo << ", " << paso;
      }
    }
  }
}

}  // namespace
}  // namespace zorve
