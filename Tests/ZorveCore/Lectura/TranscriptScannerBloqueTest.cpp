#include <gtest/gtest.h>

#include <random>

#include "Dobles/LecturaIngenua.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"

namespace zorve {
namespace {

using TranscriptScanner::primerCwd;
using TranscriptScanner::sessionIdDeArchivo;
using TranscriptScanner::ultimoAITitle;

TEST(TranscriptScannerBloque, elUltimoTituloGana) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"uno"}
{"type":"user","message":"x"}
{"type":"ai-title","aiTitle":"dos"}
)"),
            "dos");
}

TEST(TranscriptScannerBloque, unTituloVacioSeGuardaTalCual) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"uno"}
{"type":"ai-title","aiTitle":""})"),
            "");
}

TEST(TranscriptScannerBloque, unTituloAusenteONoTextoDejaElAnterior) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"bueno"}
{"type":"ai-title","otra":"aiTitle"}
{"type":"ai-title","aiTitle":7}
{"type":"ai-title","aiTitle":null}
{"type":"ai-title","aiTitle":["x"]})"),
            "bueno");
}

TEST(TranscriptScannerBloque, elTipoHaDeSerExacto) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"AI-title","aiTitle":"a"}
{"type":"ai-title ","aiTitle":"b"}
{"aiTitle":"c"}
{"type":7,"aiTitle":"d"})"),
            std::nullopt);
}

TEST(TranscriptScannerBloque, laAgujaDentroDeUnMensajeNoCambiaNada) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"bueno"}
{"type":"user","message":"the key aiTitle in prose"}
{"type":"user","message":{"type":"ai-title","aiTitle":"inner"}}
aiTitle, not even JSON)"),
            "bueno");
}

TEST(TranscriptScannerBloque, lasLineasVaciasYLosRetornosNoEstorban) {
  EXPECT_EQ(ultimoAITitle("\n\n  {\"type\":\"ai-title\",\"aiTitle\":\"t\"} \t\r\n\n\n"), "t");
}

TEST(TranscriptScannerBloque, losEscapesDelTituloSeDeshacen) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"Ni\u00f1o \"x\" \ud83d\ude00"})"),
            "Niño \"x\" 😀");
}

TEST(TranscriptScannerBloque, unaLineaConUnSustitutoSueltoSePasaPorAlto) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"bueno"}
{"type":"ai-title","aiTitle":"\ud800"})"),
            "bueno");
}

TEST(TranscriptScannerBloque, unaLineaCortadaSePasaPorAlto) {
  EXPECT_EQ(ultimoAITitle(R"(le":"x","type":"ai-title","aiTitle":"cola de otra"}
{"type":"ai-title","aiTitle":"bueno"}
{"type":"ai-title","aiTitle":"cort)"),
            "bueno");
}

TEST(TranscriptScannerBloque, dosObjetosEnUnaLineaNoValen) {
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","aiTitle":"a"}{"type":"ai-title","aiTitle":"b"})"),
            std::nullopt);
  EXPECT_EQ(primerCwd(R"({"cwd":"/a"}{"cwd":"/b"})"), std::nullopt);
}

TEST(TranscriptScannerBloque, sinNadaNoHayNada) {
  EXPECT_EQ(ultimoAITitle(""), std::nullopt);
  EXPECT_EQ(primerCwd(""), std::nullopt);
  EXPECT_EQ(ultimoAITitle("\n\n"), std::nullopt);
  EXPECT_EQ(primerCwd(std::string(1000, '\0')), std::nullopt);
}

TEST(TranscriptScannerBloque, elPrimerDirectorioGana) {
  EXPECT_EQ(primerCwd("{\"cwd\":\"/a\"}\n{\"cwd\":\"/b\"}\n"), "/a");
}

TEST(TranscriptScannerBloque, elDirectorioSeRecortaPorAmbosLados) {
  EXPECT_EQ(primerCwd(R"({"cwd":"  /Users/x/p\n"})"), "/Users/x/p");
  EXPECT_EQ(primerCwd(R"({"cwd":"\u00a0\u2028\t/Users/x y\u3000"})"), "/Users/x y");
}

TEST(TranscriptScannerBloque, unDirectorioRelativoOVacioSePasaPorAlto) {
  EXPECT_EQ(primerCwd(R"({"cwd":"relative/path"}
{"cwd":""}
{"cwd":"   "}
{"cwd":3}
{"cwd":null}
{"cwd":"/bueno"})"),
            "/bueno");
}

TEST(TranscriptScannerBloque, laClaveEscapadaNoLlevaLaAguja) {
  EXPECT_EQ(primerCwd(R"({"\u0063wd":"/a"})"), std::nullopt);
  EXPECT_EQ(ultimoAITitle(R"({"type":"ai-title","\u0061iTitle":"a"})"), std::nullopt);
}

TEST(TranscriptScannerBloque, laAgujaDelDirectorioLlevaSusComillas) {
  EXPECT_EQ(primerCwd(R"({"message":"cwd","x":1})"), std::nullopt);
  EXPECT_EQ(primerCwd(R"({"x":"\"cwd\"","\u0063wd":"/a"})"), std::nullopt);
  EXPECT_EQ(primerCwd(R"({"x":["cwd"],"\u0063wd":"/a"})"), "/a");
}

TEST(TranscriptScannerBloque, unDirectorioDeOtroObjetoNoCuenta) {
  EXPECT_EQ(primerCwd(R"({"message":{"cwd":"/inner"}}
{"message":{"cwd":"/inner"},"cwd":"/outer"})"),
            "/outer");
}

TEST(TranscriptScannerBloque, unBloqueQueAcabaEnElLimiteDeSuMemoriaSeLeeEntero) {
  std::string_view constexpr linea = R"({"type":"ai-title","aiTitle":"x","cwd":"/p"})";
  std::vector<char> const justo(linea.begin(), linea.end());
  EXPECT_EQ(ultimoAITitle({justo.data(), justo.size()}), "x");
  EXPECT_EQ(primerCwd({justo.data(), justo.size()}), "/p");
}

TEST(TranscriptScannerBloque, enBloquesAlAzarHallaLoMismoQueLaLecturaIngenua) {
  std::mt19937 azar{11};
  std::string_view const trozos[] = {
      R"({"type":"ai-title","aiTitle":"a"})",
      R"({"cwd":" /x ","type":"user"})",
      R"({"cwd":"rel"})",
      R"({"type":"user","aiTitle":"b"})",
      "\n",
      "\n",
      "\n",
      "\r\n",
      " ",
      "{",
      "}",
      "aiTitle",
      "\"cwd\"",
      R"({"type":"ai-title","aiTitle":"Z","cwd":"/z"})",
      R"({"type":"assistant","message":"long enough to be a line of its own"})"};
  dobles::LecturaIngenua ingenua;
  for (int vez = 0; vez < 5'000; ++vez) {
    std::string bloque;
    for (auto i = azar() % 30; i > 0; --i) bloque += trozos[azar() % std::size(trozos)];
    auto const esperada = ingenua.deBloque(bloque);
    ASSERT_FALSE(ingenua.noSabe) << bloque;
    ASSERT_EQ(ultimoAITitle(bloque), esperada.aiTitle) << bloque;
    ASSERT_EQ(primerCwd(bloque), esperada.cwd) << bloque;
  }
}

TEST(TranscriptScannerNombre, unIdentificadorConSuExtensionVale) {
  EXPECT_EQ(sessionIdDeArchivo("/r/p/0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl"),
            "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d");
  EXPECT_EQ(sessionIdDeArchivo("00000000-0000-0000-0000-000000000000.jsonl"),
            "00000000-0000-0000-0000-000000000000");
}

TEST(TranscriptScannerNombre, lasMayusculasSeConservan) {
  EXPECT_EQ(sessionIdDeArchivo("/p/0B5C7A1E-9F3D-4C2B-8A6E-1D2F3A4b5c6d.jsonl"),
            "0B5C7A1E-9F3D-4C2B-8A6E-1D2F3A4b5c6d");
}

TEST(TranscriptScannerNombre, todoLoDemasNoVale) {
  for (auto const* nombre :
       {"notes.jsonl", "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.json",
        "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.JSONL", "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d",
        "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6.jsonl", "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d0.jsonl",
        "0b5c7a1e9-f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl", "0g5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl",
        "0b5c7a1e 9f3d 4c2b 8a6e 1d2f3a4b5c6d.jsonl", "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl.jsonl",
        "{b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6}.jsonl", ".jsonl", "", "/",
        "0b5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl/x", "abcdefabcdefabcdefabcdefabcdefabcdef.jsonl",
        "\xc3\xb1-5c7a1e-9f3d-4c2b-8a6e-1d2f3a4b5c6d.jsonl", "\xff\xfe\xff\xfe\xff\xfe\xff\xfe-\xff.jsonl"}) {
    EXPECT_EQ(sessionIdDeArchivo(nombre), std::nullopt) << nombre;
  }
}

}  // namespace
}  // namespace zorve
