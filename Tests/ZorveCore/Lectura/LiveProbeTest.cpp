#include "ZorveCore/Lectura/LiveProbe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <span>
#include <string>
#include <string_view>

#include "Dobles/ArchivosDeMemoria.h"
#include "Dobles/ProcesosFijos.h"

namespace zorve {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::string const directorio = "/h/.claude/sessions";

class LiveProbeTest : public ::testing::Test {
 protected:
  dobles::ArchivosDeMemoria archivos;
  dobles::ProcesosFijos procesos{7, 8, 9};

  void registro(std::string const& nombre, std::string_view json) {
    archivos.escribir(directorio + "/" + nombre, json);
  }
  LiveProbeResult sondear() { return LiveProbe::sondear(archivos, procesos, directorio); }
  LiveInfo conStatus(std::string const& status) {
    registro("a.json", R"({"pid":7,"sessionId":"s","cwd":"/p")" + status + "}");
    return sondear().vivas.at("s");
  }
  std::string unAviso() {
    auto const resultado = sondear();
    EXPECT_THAT(resultado.errores, SizeIs(1));
    if (resultado.errores.empty()) return {};
    EXPECT_EQ(resultado.errores[0].fuente, IndexSource::sessions);
    return resultado.errores[0].mensaje;
  }
};

TEST_F(LiveProbeTest, elDirectorioPorOmisionEstaBajoLaCarpetaPersonal) {
  EXPECT_EQ(LiveProbe::directorioPorOmision("/h"), directorio);
}

TEST_F(LiveProbeTest, unRegistroDeUnProcesoVivoDaSusDatos) {
  registro("7.json", R"({"pid":7,"sessionId":"s","cwd":"/p","status":"busy","name":"nombre"})");
  LiveInfo const esperada{.pid = 7, .estado = LiveState::busy, .cwd = "/p", .nombre = "nombre"};
  EXPECT_EQ(sondear(), (LiveProbeResult{.vivas = {{"s", esperada}}}));
}

TEST_F(LiveProbeTest, busyShellYWaitingSonOcupadas) {
  for (auto const* const status : {"busy", "shell", "waiting"}) {
    EXPECT_EQ(conStatus(std::string{R"(,"status":")"} + status + "\"").estado, LiveState::busy) << status;
  }
}

TEST_F(LiveProbeTest, cualquierOtroStatusONingunoEsOciosa) {
  for (auto const* const status : {R"(,"status":"idle")", R"(,"status":"Busy")", R"(,"status":"")",
                                   R"(,"status":"otro")", R"(,"status":null)", ""}) {
    EXPECT_EQ(conStatus(status).estado, LiveState::idle) << status;
  }
}

TEST_F(LiveProbeTest, unNombreAusenteONuloNoEsta) {
  EXPECT_EQ(conStatus("").nombre, std::nullopt);
  EXPECT_EQ(conStatus(R"(,"name":null)").nombre, std::nullopt);
  EXPECT_EQ(conStatus(R"(,"name":"")").nombre, "");
}

TEST_F(LiveProbeTest, unProcesoTerminadoSeOmiteSinAviso) {
  registro("a.json", R"({"pid":6,"sessionId":"s","cwd":"/p"})");
  EXPECT_EQ(sondear(), LiveProbeResult{});
}

TEST_F(LiveProbeTest, unPidCeroONegativoNuncaViveNiSePregunta) {
  procesos.nace(0);
  procesos.nace(-7);
  registro("a.json", R"({"pid":0,"sessionId":"s","cwd":"/p"})");
  registro("b.json", R"({"pid":-7,"sessionId":"t","cwd":"/p"})");
  EXPECT_EQ(sondear(), LiveProbeResult{});
  EXPECT_THAT(procesos.preguntados(), IsEmpty());
}

TEST_F(LiveProbeTest, deDosRegistrosDeUnaSesionQuedaElUltimoPorNombre) {
  registro("10.json", R"({"pid":7,"sessionId":"s","cwd":"/diez"})");
  registro("9.json", R"({"pid":8,"sessionId":"s","cwd":"/nueve"})");
  registro("B.json", R"({"pid":6,"sessionId":"s","cwd":"/muerta"})");
  EXPECT_EQ(sondear().vivas.at("s").cwd, "/nueve");
  registro("a.json", R"({"pid":9,"sessionId":"s","cwd":"/a"})");
  EXPECT_EQ(sondear().vivas.at("s"), (LiveInfo{.pid = 9, .cwd = "/a"}));
}

TEST_F(LiveProbeTest, unRegistroSinCwdEsInvalidoYSeNombraElArchivoYLaClave) {
  registro("mal.json", R"({"pid":7,"sessionId":"s"})");
  EXPECT_EQ(unAviso(), "Invalid JSON in mal.json: key \"cwd\" is missing");
}

TEST_F(LiveProbeTest, unPidFueraDe32BitsEsInvalido) {
  registro("mal.json", R"({"pid":4294967303,"sessionId":"s","cwd":"/p"})");
  EXPECT_THAT(unAviso(), StartsWith("Invalid JSON in mal.json: key \"pid\""));
}

TEST_F(LiveProbeTest, loQueNoEsUnRegistroEsInvalidoYLosDemasSeLeen) {
  for (auto const* const malo :
       {"", "   ", "{", "[]", "mal", R"({"pid":"7","sessionId":"s","cwd":"/p"})",
        R"({"pid":7.0,"sessionId":"s","cwd":"/p"})", R"({"pid":7,"sessionId":"s","cwd":null})",
        R"({"pid":7,"sessionId":["s"],"cwd":"/p"})", R"({"pid":7,"sessionId":"s","cwd":"/p","status":1})",
        R"({"pid":7,"sessionId":"s","cwd":"/p","name":[]})",
        R"({"pid":7,"sessionId":"s","cwd":"/p"}{"pid":7,"sessionId":"s","cwd":"/p"})"}) {
    registro("a.json", malo);
    registro("b.json", R"({"pid":8,"sessionId":"t","cwd":"/q"})");
    EXPECT_THAT(unAviso(), StartsWith("Invalid JSON in a.json: ")) << malo;
    EXPECT_THAT(sondear().vivas, SizeIs(1)) << malo;
  }
}

TEST_F(LiveProbeTest, arreglosNulosNumerosEnormesYClavesDesconocidasNoEstorban) {
  registro(
      "a.json",
      "\n{\"otros\":[1,null,{\"pid\":1}],\"nada\":null,\"n\":1e999,\"pid\":7,\"version\":\"2\",\n"
      "\"cwd\":\"/p\",\"sessionId\":\"s\",\"status\":\"waiting\",\"updatedAt\":99999999999999999999999}\n");
  EXPECT_EQ(sondear().vivas.at("s"), (LiveInfo{.pid = 7, .estado = LiveState::busy, .cwd = "/p"}));
}

TEST_F(LiveProbeTest, unDirectorioQueFaltaNoEsProblema) { EXPECT_EQ(sondear(), LiveProbeResult{}); }

TEST_F(LiveProbeTest, unDirectorioVacioNoEsProblema) {
  archivos.carpeta(directorio);
  EXPECT_EQ(sondear(), LiveProbeResult{});
}

TEST_F(LiveProbeTest, unDirectorioQueNoSePuedeListarDaUnAviso) {
  archivos.carpeta(directorio);
  archivos.fallarAlListar(directorio, EACCES);
  EXPECT_EQ(unAviso(), "Could not list " + directorio + ": " + FalloDelSistema::deErrno(EACCES).descripcion);
}

TEST_F(LiveProbeTest, unArchivoEnLugarDelDirectorioDaUnAviso) {
  archivos.escribir(directorio, "");
  EXPECT_THAT(unAviso(), StartsWith("Could not list " + directorio + ": "));
}

TEST_F(LiveProbeTest, soloLaExtensionJsonExactaSeAbre) {
  auto const bueno = R"({"pid":7,"sessionId":"s","cwd":"/p"})";
  for (auto const* const nombre : {"a.JSON", "a.json.bak", "a", "json", ".json", "a.jsonl", "a.key",
                                   "secreto.json.key", "a.json~", "a.json "}) {
    registro(nombre, bueno);
  }
  EXPECT_EQ(sondear(), LiveProbeResult{});
  EXPECT_THAT(archivos.abiertos(), IsEmpty());
}

TEST_F(LiveProbeTest, losNombresOcultosTambienSonRegistros) {
  registro(".a.json", R"({"pid":7,"sessionId":"s","cwd":"/p"})");
  EXPECT_THAT(sondear().vivas, SizeIs(1));
}

TEST_F(LiveProbeTest, losAvisosVanPorOrdenDeNombre) {
  registro("b.json", "mal");
  registro("a.json", "{}");
  archivos.carpeta(directorio + "/aa.json");
  archivos.especial(directorio + "/c.json");
  archivos.enlazar(directorio + "/d.json", "nada");
  registro("e.json", R"({"pid":7,"sessionId":"s","cwd":"/p"})");
  auto const resultado = sondear();
  ASSERT_THAT(resultado.errores, SizeIs(5));
  EXPECT_THAT(resultado.errores[0].mensaje, StartsWith("Invalid JSON in a.json: "));
  EXPECT_EQ(resultado.errores[1].mensaje,
            "Could not read aa.json: " + FalloDelSistema::deErrno(EISDIR).descripcion);
  EXPECT_THAT(resultado.errores[2].mensaje, StartsWith("Invalid JSON in b.json: "));
  EXPECT_EQ(resultado.errores[3].mensaje, "Could not read c.json: Not a regular file");
  EXPECT_EQ(resultado.errores[4].mensaje,
            "Could not read d.json: " + FalloDelSistema::deErrno(ENOENT).descripcion);
  EXPECT_THAT(resultado.vivas, SizeIs(1));
}

TEST_F(LiveProbeTest, unaLecturaQueFallaDaUnAvisoYLosDemasSeLeen) {
  registro("a.json", R"({"pid":7,"sessionId":"s","cwd":"/p"})");
  registro("b.json", R"({"pid":8,"sessionId":"t","cwd":"/p"})");
  archivos.fallarLectura(directorio + "/a.json", 1, EIO);
  EXPECT_EQ(unAviso(), "Could not read a.json: " + FalloDelSistema::deErrno(EIO).descripcion);
  EXPECT_TRUE(sondear().vivas.contains("t"));
}

TEST_F(LiveProbeTest, unRegistroLeidoDeByteEnByteEsElMismo) {
  registro("a.json", R"({"pid":7,"sessionId":"s","cwd":"/p"})");
  auto const entero = sondear();
  archivos.lecturasDeHasta(1);
  EXPECT_EQ(sondear(), entero);
}

std::string registroDe(std::size_t bytes) {
  std::string json = R"({"pid":7,"sessionId":"s","cwd":"/p","x":")";
  json.append(bytes - json.size() - 2, 'x').append("\"}");
  return json;
}

TEST_F(LiveProbeTest, unRegistroEnElTopeSeLeeYUnoMayorEsIlegible) {
  registro("a.json", registroDe(LiveProbe::registroMaximo));
  EXPECT_THAT(sondear().vivas, SizeIs(1));
  registro("a.json", registroDe(LiveProbe::registroMaximo + 1));
  EXPECT_EQ(unAviso(), "Could not read a.json: larger than 1048576 bytes");
  EXPECT_THAT(sondear().vivas, IsEmpty());
}

TEST_F(LiveProbeTest, deUnRegistroSinFinSoloSeLeeHastaElTope) {
  archivos.generar(directorio + "/a.json", 1LL << 40U,
                   [](std::int64_t, std::span<char> destino) { std::ranges::fill(destino, ' '); });
  EXPECT_EQ(unAviso(), "Could not read a.json: larger than 1048576 bytes");
  EXPECT_THAT(archivos.lecturas().size(), ::testing::Le(66U));
}

TEST_F(LiveProbeTest, unRegistroQueEncogeMientrasSeLeeNoRevienta) {
  registro("a.json", registroDe(100'000));
  archivos.antesDeLeer(directorio + "/a.json", [&](std::size_t cual) {
    if (cual == 2) registro("a.json", "");
  });
  EXPECT_THAT(unAviso(), StartsWith("Invalid JSON in a.json: "));
}

TEST_F(LiveProbeTest, unNombreQueNoEsUtf8SeLeeIgual) {
  registro("\xff.json", R"({"pid":7,"sessionId":"s","cwd":"/p"})");
  EXPECT_THAT(sondear().vivas, SizeIs(1));
}

}  // namespace
}  // namespace zorve
