#include "ZorveCore/Lectura/Lineas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <random>
#include <string>
#include <vector>

#include "Dobles/ArchivosDeMemoria.h"

namespace zorve {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t sinTope = 1UZ << 30U;

/// Each line as text; "#" before a blank one, "!" for one that is too long, and the failure at the end.
std::vector<std::string> todas(Archivos& archivos, std::string const& ruta, std::size_t tope = sinTope) {
  auto const archivo = archivos.abrir(ruta).value();
  Lineas lineas{*archivo, tope};
  std::vector<std::string> vistas;
  for (Lineas::Linea linea;;) {
    auto const hay = lineas.siguiente(linea);
    if (!hay) vistas.push_back("fallo: " + hay.error().descripcion);
    if (!hay || !*hay) return vistas;
    vistas.emplace_back(linea.enBlanco ? "#" : "");
    if (linea.demasiadoLarga) vistas.back() += '!';
    vistas.back() += linea.bytes.texto();
  }
}

std::vector<std::string> partir(std::string_view contenido, std::size_t tope = sinTope) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", contenido);
  return todas(archivos, "/a", tope);
}

TEST(Lineas, cadaLineaVaSinSuSalto) { EXPECT_THAT(partir("uno\ndos\n"), ElementsAre("uno", "dos")); }

TEST(Lineas, laUltimaLineaNoNecesitaSalto) { EXPECT_THAT(partir("uno\ndos"), ElementsAre("uno", "dos")); }

TEST(Lineas, unArchivoVacioNoTieneLineas) { EXPECT_THAT(partir(""), IsEmpty()); }

TEST(Lineas, lasLineasVaciasCuentan) {
  EXPECT_THAT(partir("\n\nuno\n\n"), ElementsAre("#", "#", "uno", "#"));
}

TEST(Lineas, soloBlancosTabuladoresYRetornosEsEnBlanco) {
  EXPECT_THAT(partir(" \t\r\n\v\n\f\n\xc2\xa0\n"), ElementsAre("# \t\r", "\v", "\f", "\xc2\xa0"));
  EXPECT_THAT(partir(std::string{"\0\n", 2}), ElementsAre(std::string{"\0", 1}));
}

TEST(Lineas, elRetornoQuedaEnLaLinea) { EXPECT_THAT(partir("uno\r\n"), ElementsAre("uno\r")); }

TEST(Lineas, seLeeDe64EnKiBHastaQueNadaLlega) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", std::string(100'000, 'x'));
  ASSERT_EQ(todas(archivos, "/a").size(), 1U);
  using Lectura = dobles::ArchivosDeMemoria::Lectura;
  EXPECT_THAT(archivos.lecturas(), ElementsAre(Lectura{"/a", 0, 65'536}, Lectura{"/a", 65'536, 65'536},
                                               Lectura{"/a", 100'000, 65'536}));
}

TEST(Lineas, unaLineaPartidaEntreLecturasSeDaEntera) {
  for (std::size_t const largo : {65'535UL, 65'536UL, 65'537UL, 131'072UL, 400'000UL}) {
    std::string const larga(largo, 'x');
    EXPECT_THAT(partir(std::string{"a\n"}.append(larga).append("\nb")), ElementsAre("a", larga, "b"))
        << largo;
    EXPECT_THAT(partir(std::string{larga}.append("\n").append(larga)), ElementsAre(larga, larga)) << largo;
  }
}

std::string alAzar(std::mt19937& azar) {
  std::string contenido;
  std::uniform_int_distribution<int> trozo{0, 9};
  for (int i = 0; i < 60; ++i) {
    auto const cual = trozo(azar);
    if (cual < 4) contenido += '\n';
    if (cual == 4) contenido += " \t\r";
    if (cual > 4) contenido.append(static_cast<std::size_t>(cual) * 3U, static_cast<char>('a' + cual));
  }
  return contenido;
}

TEST(Lineas, deByteEnByteEsLoMismoQueEntero) {
  std::mt19937 azar{7};
  for (int vez = 0; vez < 60; ++vez) {
    auto const contenido = alAzar(azar);
    for (std::size_t const tope : {sinTope, 20UZ, 0UZ}) {
      dobles::ArchivosDeMemoria archivos;
      archivos.escribir("/a", contenido);
      archivos.lecturasDeHasta(1);
      EXPECT_EQ(todas(archivos, "/a", tope), partir(contenido, tope)) << contenido;
    }
  }
}

TEST(Lineas, elTopeEsLaLineaMasLargaQueSeDa) {
  EXPECT_THAT(partir("12345\n123456\n12345", 5), ElementsAre("12345", "!", "12345"));
  EXPECT_THAT(partir("123456", 5), ElementsAre("!"));
}

TEST(Lineas, unaLineaDemasiadoLargaCuentaUnaVezYNoTocaALasDemas) {
  std::string const larga(1'000'000, 'x');
  EXPECT_THAT(partir("uno\n" + larga + "\ndos\n" + larga, 200'000), ElementsAre("uno", "!", "dos", "!"));
}

TEST(Lineas, unaLineaDemasiadoLargaEnBlancoSigueEnBlanco) {
  std::string const blanca(1'000'000, ' ');
  EXPECT_THAT(partir(blanca + "\nuno\n" + blanca, 200'000), ElementsAre("#!", "uno", "#!"));
  EXPECT_THAT(partir(blanca + "x\n" + blanca + "\n", 200'000), ElementsAre("!", "#!"));
  EXPECT_THAT(partir("x" + blanca + "\n", 200'000), ElementsAre("!"));
}

TEST(Lineas, unaLecturaQueFallaTerminaConSuFallo) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", "uno\n" + std::string(100'000, 'x'));
  archivos.fallarLectura("/a", 2, EIO);
  EXPECT_THAT(todas(archivos, "/a"),
              ElementsAre("uno", "fallo: " + FalloDelSistema::deErrno(EIO).descripcion));
}

TEST(Lineas, unArchivoQueEncogeTerminaDondeTermina) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", std::string(65'536, 'x') + "\nuno\n");
  archivos.antesDeLeer("/a", [&](std::size_t cual) {
    if (cual == 2) archivos.escribir("/a", "");
  });
  EXPECT_THAT(todas(archivos, "/a"), ElementsAre(std::string(65'536, 'x')));
}

TEST(Lineas, loQueCreceMientrasSeLeeSeLee) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", "uno\nd");
  archivos.antesDeLeer("/a", [&](std::size_t cual) {
    if (cual == 2) archivos.escribir("/a", "uno\ndos\ntres");
  });
  EXPECT_THAT(todas(archivos, "/a"), ElementsAre("uno", "dos", "tres"));
}

}  // namespace
}  // namespace zorve
