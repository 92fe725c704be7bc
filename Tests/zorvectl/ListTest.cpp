#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "Dobles/SinPrivilegios.h"
#include "zorvectl/Hogar.h"

namespace zorve::pruebas {
namespace {

std::string const propio = std::to_string(::getpid());

void conDosSesiones(Hogar const& hogar) {
  hogar.transcripcion(Hogar::uno, R"({"type":"user","cwd":"/t"})"
                                  "\n" +
                                      aiTitle("Arreglar el menú"));
  hogar.transcripcion(Hogar::dos, "{}\n", "otro");
  hogar.historia(prompt(Hogar::uno, "primero", "/srv/uno", 1'700'000'000'000) +
                 prompt(Hogar::uno, "el último", "/srv/uno", 1'700'000'000'250) +
                 prompt(Hogar::dos, "  otra\\n cosa ", "/srv/dos", 1'600'000'000'000));
}

TEST(ZorvectlList, elJsonTieneLaFormaExacta) {
  Hogar const hogar;
  conDosSesiones(hogar);
  hogar.viva("1.json", R"({"pid":)" + propio + R"(,"sessionId":")" + std::string{Hogar::uno} +
                           R"(","cwd":"/v","status":"waiting","name":null,"tags":["a",{}],"peer":null})");
  auto const corrida = hogar.zorvectl({"list", "--json"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.error, "");
  EXPECT_EQ(
      corrida.salida,
      R"({"sesiones":[{"id":"claude:11111111-aaaa-4bbb-8ccc-000000000001","titulo":"Arreglar el menú",)"
      R"("tituloOrigen":"aiTitle","cwd":"/srv/uno","kind":"claude","liveState":"busy",)"
      R"("ultimaActividad":1700000000.25,"conteoPrompts":2,"ultimoPrompt":"el último",)"
      R"("sessionId":"11111111-aaaa-4bbb-8ccc-000000000001","pid":)" +
          propio +
          R"(},{"id":"claude:22222222-aaaa-4bbb-8ccc-000000000002","titulo":"otra cosa",)"
          R"("tituloOrigen":"derivedFromFirstPrompt","cwd":"/srv/dos","kind":"claude","liveState":"dead",)"
          R"("ultimaActividad":1600000000.0,"conteoPrompts":1,"ultimoPrompt":"  otra\n cosa ",)"
          R"("sessionId":"22222222-aaaa-4bbb-8ccc-000000000002","pid":null}],"errores":[]})"
          "\n");
}

TEST(ZorvectlList, elJsonNoLlevaNingunByteQueGobierneElTerminal) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, "{}\n");
  hogar.historia(prompt(Hogar::uno, "\u009d0;x\u009c \x7f \u202e \u2066 \u200f ñ日\U0001F600", "/srv/uno",
                        1'700'000'000'000));
  auto const corrida = hogar.zorvectl({"list", "--json"});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_TRUE(
      corrida.salida.contains(R"("ultimoPrompt":"\u009d0;x\u009c \u007f \u202e \u2066 \u200f ñ日😀")"))
      << corrida.salida;
}

TEST(ZorvectlList, losAvisosVanEnElJsonSinTocarYEnTextoAlErrorConPalabrasDeAqui) {
  Hogar const hogar;
  auto const json = hogar.zorvectl({"list", "--json"});
  EXPECT_EQ(json.codigo, 0);
  EXPECT_EQ(
      json.salida,
      R"({"sesiones":[],"errores":[{"fuente":"transcripts","mensaje":"No Claude Code sessions on this Mac yet: )" +
          hogar.ruta() +
          R"(/.claude does not exist. Run `claude` once in a terminal and Zorve will list it here."}]})"
          "\n");
  auto const texto = hogar.zorvectl({"list"});
  EXPECT_EQ(texto.codigo, 0);
  EXPECT_EQ(texto.salida, "");
#if defined(__APPLE__)
  EXPECT_TRUE(texto.error.starts_with("transcripts: No Claude Code sessions on this Mac yet: "));
#else
  EXPECT_TRUE(texto.error.starts_with("transcripts: No Claude Code sessions on this computer yet: "));
#endif
}

TEST(ZorvectlList, laTablaAlineaSusColumnas) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, aiTitle("漢字 y más"));
  hogar.transcripcion(Hogar::dos, aiTitle("Corto"));
  hogar.historia(prompt(Hogar::uno, "x", hogar.ruta() + "/src", haceMilisegundos(90'000)) +
                 prompt(Hogar::dos, "x", "/srv/dos", haceMilisegundos(3LL * 86'400'000)));
  hogar.viva("1.json",
             R"({"pid":)" + propio + R"(,"sessionId":")" + std::string{Hogar::uno} + R"(","cwd":"/v"})");
  auto const corrida = hogar.zorvectl({"list"});
  EXPECT_EQ(corrida.error, "");
  EXPECT_EQ(corrida.salida,
            "1111  漢字 y más  ~/src     active  1m  1 prompts\n"
            "2222  Corto       /srv/dos          3d  1 prompts\n");
}

TEST(ZorvectlList, laTablaCabeEnLasColumnasQueSeDen) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno,
                      aiTitle("Un título que es bastante más largo que la pantalla de la persona"));
  hogar.historia(prompt(Hogar::uno, "x", "/srv/una/carpeta/muy/honda/de/verdad/componente",
                        haceMilisegundos(3'700'000)));
  EXPECT_EQ(hogar.zorvectl({"list"}, {{"COLUMNS", "60"}}).salida,
            "1111  Un título que es bast…  …dad/componente  1h  1 prompts\n");
  EXPECT_EQ(hogar.zorvectl({"list"}, {{"COLUMNS", "20"}}).salida, "Un título que e…  1h\n");
  EXPECT_EQ(hogar.zorvectl({"list"}, {{"COLUMNS", "x"}}).salida,
            "1111  Un título que es bastante más largo que la pantalla de la persona  "
            "/srv/una/carpeta/muy/honda/de/verdad/componente  1h  1 prompts\n");
}

TEST(ZorvectlList, lasClavesSeAlarganHastaDistinguirse) {
  Hogar const hogar;
  hogar.transcripcion("11111111-aaaa-4bbb-8ccc-000000000001", R"({"cwd":"/a"})"
                                                              "\n");
  hogar.transcripcion("11111122-aaaa-4bbb-8ccc-000000000001", R"({"cwd":"/b"})"
                                                              "\n");
  EXPECT_EQ(hogar.zorvectl({"list", "--filter", "/a"}).salida, "1111111  a  /a  now\n");
}

TEST(ZorvectlList, nadaPeligrosoLlegaAlTerminal) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, aiTitle(R"(a\u001b]0;x\u0007\u202eb\u0000\nc)"));
  hogar.historia(prompt(Hogar::uno, "x", R"(/d\u009b31m\r)", haceMilisegundos(0)));
  hogar.viva("malo\x1B[2J.json", "no");
  auto const corrida = hogar.zorvectl({"list"});
  EXPECT_EQ(corrida.salida, "1111  a␛]0;x␇<U+202E>b␀␊c  /d<U+009B>31m␍  now  1 prompts\n");
  EXPECT_TRUE(corrida.error.starts_with("sessions: Invalid JSON in malo␛[2J.json: ")) << corrida.error;
  EXPECT_EQ(corrida.error.find('\x1B'), std::string::npos);
}

TEST(ZorvectlList, elFiltroPideTodasLasPalabras) {
  Hogar const hogar;
  conDosSesiones(hogar);
  EXPECT_NE(hogar.zorvectl({"list", "--filter", "MENU uno"}).salida.find("Arreglar"), std::string::npos);
  auto const nada = hogar.zorvectl({"list", "--filter", "menu dos"});
  EXPECT_EQ(nada.codigo, 0);
  EXPECT_EQ(nada.salida, "");
  EXPECT_EQ(nada.error, "no matches\n");
  EXPECT_EQ(hogar.zorvectl({"list", "--json", "--filter", "nada"}).salida,
            "{\"sesiones\":[],\"errores\":[]}\n");
  EXPECT_EQ(hogar.zorvectl({"list", "--filter", ""}).salida, hogar.zorvectl({"list"}).salida);
}

TEST(ZorvectlList, elFiltroSigueElIdiomaDeLaPersona) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, aiTitle("ISTANBUL"));
  hogar.historia(prompt(Hogar::uno, "x", "/a", 1));
  auto const quedan = [&](std::map<std::string, std::string> const& entorno) {
    return !hogar.zorvectl({"list", "--filter", "istanbul"}, entorno).salida.empty();
  };
  EXPECT_TRUE(quedan({{"LANG", "es_ES.UTF-8"}}));
  EXPECT_FALSE(quedan({{"LANG", "tr_TR.UTF-8"}}));
  EXPECT_TRUE(quedan({{"LANG", "tr_TR.UTF-8"}, {"LC_ALL", "C"}}));
  EXPECT_FALSE(quedan({{"LANG", "C"}, {"LC_CTYPE", "az_AZ"}}));
}

TEST(ZorvectlList, homeSeNombraConLaOpcionOConLaVariable) {
  Hogar const hogar;
  conDosSesiones(hogar);
  Hogar const otro;
  auto const esperado = hogar.zorvectl({"list", "--json"}).salida;
  EXPECT_EQ(otro.zorvectl({"list", "--json", "--home", hogar.ruta()}).salida, esperado);
  EXPECT_EQ(otro.zorvectl({"list", "--json", "--home", hogar.ruta() + "//"}).salida, esperado);
  EXPECT_EQ(otro.zorvectl({"list", "--json"}, {{"HOME", hogar.ruta() + "/"}}).salida, esperado);
}

TEST(ZorvectlList, sinHomeValeElDeLaCuenta) {
  Hogar const hogar;
  auto const sin = hogar.zorvectl({"list", "--json"}, {{"HOME", ""}});
  EXPECT_EQ(sin.codigo, 0);
  EXPECT_EQ(hogar.zorvectl({"list", "--json"}, {{"HOME", "relativo"}}).salida, sin.salida);
}

TEST(ZorvectlList, bytesQueNoSonUtf8SeReparanEnElJson) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, R"({"cwd":"/a"})"
                                  "\n");
  hogar.viva("malo\xFF.json", "no");
  auto const corrida = hogar.zorvectl({"list", "--json"});
  EXPECT_NE(corrida.salida.find("Invalid JSON in malo\uFFFD.json: "), std::string::npos) << corrida.salida;
}

TEST(ZorvectlList, elDirectorioCercaDelFinalDeUnaLineaLargaSeEncuentra) {
  Hogar const hogar;
  std::string const relleno(400'000, 'x');
  hogar.transcripcion(Hogar::uno, R"({"message":{"content":[{"type":"text","text":")" + relleno +
                                      R"("}]},"parentUuid":null,"cwd":"/srv/larga","version":"2"})"
                                      "\n" +
                                      aiTitle("Larga"));
  hogar.transcripcion(Hogar::dos,
                      R"({"type":"user","isMeta":null,"toolUseResult":{"a":[1,2]},"cwd":"/srv/corta"})"
                      "\n"
                      R"({"message":")" +
                          relleno + "\"}\n");
  auto const salida = hogar.zorvectl({"list"}).salida;
  EXPECT_NE(salida.find("/srv/corta"), std::string::npos) << salida;
  EXPECT_EQ(salida.find("Larga"), std::string::npos) << salida;
}

TEST(ZorvectlList, lasCarpetasDeSubagentesNoSonSesiones) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, R"({"cwd":"/a"})"
                                  "\n");
  hogar.carpeta().escribir(".claude/projects/-home-ana-src/" + std::string{Hogar::uno} + "/subagents/" +
                               std::string{Hogar::dos} + ".jsonl",
                           R"({"cwd":"/b"})"
                           "\n");
  hogar.carpeta().escribir(".claude/projects/-home-ana-src/" + std::string{Hogar::uno} +
                               "/subagents/agent-ab96d3b1409a51c99.jsonl",
                           "{}\n");
  auto const salida = hogar.zorvectl({"list"}).salida;
  EXPECT_EQ(salida, "1111  a  /a  now\n");
}

TEST(ZorvectlList, losSecretosNoSeAbren) {
  Hogar const hogar;
  hogar.transcripcion(Hogar::uno, R"({"cwd":"/a"})"
                                  "\n");
  hogar.historia("");
  hogar.viva("7.json", R"({"pid":0,"sessionId":"x","cwd":"/"})");
  for (auto const* nombre : {".claude/sessions/7.1ac6.key", ".claude/projects/-home-ana-src/7.key"}) {
    ::chmod(hogar.carpeta().escribir(nombre, "secreto").c_str(), 0);
  }
  auto const corrida = [&] {
    dobles::SinPrivilegios const sin;
    return hogar.zorvectl({"list", "--json"});
  }();
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_TRUE(corrida.salida.ends_with("\"errores\":[]}\n")) << corrida.salida;
}

TEST(Zorvectl, laAyudaYLaVersionSalenBien) {
  Hogar const hogar;
  for (auto const& palabras : {std::vector<std::string>{"--help"}, {"list", "--help"}, {"--version"}}) {
    auto const corrida = hogar.zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 0);
    EXPECT_EQ(corrida.error, "");
    EXPECT_FALSE(corrida.salida.empty());
  }
  EXPECT_TRUE(hogar.zorvectl({"--version"}).salida.starts_with("zorvectl "));
  EXPECT_NE(hogar.zorvectl({"list", "--help"}).salida.find("--filter"), std::string::npos);
}

TEST(Zorvectl, elMalUsoSaleConDosYUnaLinea) {
  Hogar const hogar;
  for (auto const& palabras : {std::vector<std::string>{},
                               {"nada"},
                               {"list", "sobra"},
                               {"list", "--nada"},
                               {"list", "--home"},
                               {"list", "--home="},
                               {"list", "--filter"},
                               {"list", "-\n\x1B"}}) {
    auto const corrida = hogar.zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 2);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1) << corrida.error;
    EXPECT_EQ(corrida.error.find('\x1B'), std::string::npos);
  }
}

}  // namespace
}  // namespace zorve::pruebas
