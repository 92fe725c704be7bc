#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "Dobles/SinPrivilegios.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

std::string const propio = std::to_string(::getpid());

void conDosSesiones(Home const& home) {
  home.transcripcion(Home::uno, R"({"type":"user","cwd":"/t"})"
                                "\n" +
                                    aiTitle("Arreglar el menú"));
  home.transcripcion(Home::dos, "{}\n", "otro");
  home.historia(prompt(Home::uno, "primero", "/srv/uno", 1'700'000'000'000) +
                prompt(Home::uno, "el último", "/srv/uno", 1'700'000'000'250) +
                prompt(Home::dos, "  otra\\n cosa ", "/srv/dos", 1'600'000'000'000));
}

TEST(ZorvectlList, elJsonTieneLaFormaExacta) {
  Home const home;
  conDosSesiones(home);
  home.viva("1.json", R"({"pid":)" + propio + R"(,"sessionId":")" + std::string{Home::uno} +
                          R"(","cwd":"/v","status":"waiting","name":null,"tags":["a",{}],"peer":null})");
  auto const corrida = home.zorvectl({"list", "--json"});
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
  Home const home;
  home.transcripcion(Home::uno, "{}\n");
  home.historia(prompt(Home::uno, "\u009d0;x\u009c \x7f \u202e \u2066 \u200f ñ日\U0001F600", "/srv/uno",
                       1'700'000'000'000));
  auto const corrida = home.zorvectl({"list", "--json"});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_TRUE(
      corrida.salida.contains(R"("ultimoPrompt":"\u009d0;x\u009c \u007f \u202e \u2066 \u200f ñ日😀")"))
      << corrida.salida;
}

TEST(ZorvectlList, losAvisosVanEnElJsonSinTocarYEnTextoAlErrorConPalabrasDeAqui) {
  Home const home;
  auto const json = home.zorvectl({"list", "--json"});
  EXPECT_EQ(json.codigo, 0);
  EXPECT_EQ(
      json.salida,
      R"({"sesiones":[],"errores":[{"fuente":"transcripts","mensaje":"No Claude Code sessions on this Mac yet: )" +
          home.ruta() +
          R"(/.claude does not exist. Run `claude` once in a terminal and Zorve will list it here."}]})"
          "\n");
  auto const texto = home.zorvectl({"list"});
  EXPECT_EQ(texto.codigo, 0);
  EXPECT_EQ(texto.salida, "");
#if defined(__APPLE__)
  EXPECT_TRUE(texto.error.starts_with("transcripts: No Claude Code sessions on this Mac yet: "));
#else
  EXPECT_TRUE(texto.error.starts_with("transcripts: No Claude Code sessions on this computer yet: "));
#endif
}

TEST(ZorvectlList, laTablaAlineaSusColumnas) {
  Home const home;
  home.transcripcion(Home::uno, aiTitle("漢字 y más"));
  home.transcripcion(Home::dos, aiTitle("Corto"));
  home.historia(prompt(Home::uno, "x", home.ruta() + "/src", haceMilisegundos(90'000)) +
                prompt(Home::dos, "x", "/srv/dos", haceMilisegundos(3LL * 86'400'000)));
  home.viva("1.json",
            R"({"pid":)" + propio + R"(,"sessionId":")" + std::string{Home::uno} + R"(","cwd":"/v"})");
  auto const corrida = home.zorvectl({"list"});
  EXPECT_EQ(corrida.error, "");
  EXPECT_EQ(corrida.salida,
            "1111  漢字 y más  ~/src     active  1m  1 prompts\n"
            "2222  Corto       /srv/dos          3d  1 prompts\n");
}

TEST(ZorvectlList, laTablaCabeEnLasColumnasQueSeDen) {
  Home const home;
  home.transcripcion(Home::uno, aiTitle("Un título que es bastante más largo que la pantalla de la persona"));
  home.historia(
      prompt(Home::uno, "x", "/srv/una/carpeta/muy/honda/de/verdad/componente", haceMilisegundos(3'700'000)));
  EXPECT_EQ(home.zorvectl({"list"}, {{"COLUMNS", "60"}}).salida,
            "1111  Un título que es bast…  …dad/componente  1h  1 prompts\n");
  EXPECT_EQ(home.zorvectl({"list"}, {{"COLUMNS", "20"}}).salida, "Un título que e…  1h\n");
  EXPECT_EQ(home.zorvectl({"list"}, {{"COLUMNS", "x"}}).salida,
            "1111  Un título que es bastante más largo que la pantalla de la persona  "
            "/srv/una/carpeta/muy/honda/de/verdad/componente  1h  1 prompts\n");
}

TEST(ZorvectlList, lasClavesSeAlarganHastaDistinguirse) {
  Home const home;
  home.transcripcion("11111111-aaaa-4bbb-8ccc-000000000001", R"({"cwd":"/a"})"
                                                             "\n");
  home.transcripcion("11111122-aaaa-4bbb-8ccc-000000000001", R"({"cwd":"/b"})"
                                                             "\n");
  EXPECT_EQ(home.zorvectl({"list", "--filter", "/a"}).salida, "1111111  a  /a  now\n");
}

TEST(ZorvectlList, nadaPeligrosoLlegaAlTerminal) {
  Home const home;
  home.transcripcion(Home::uno, aiTitle(R"(a\u001b]0;x\u0007\u202eb\u0000\nc)"));
  home.historia(prompt(Home::uno, "x", R"(/d\u009b31m\r)", haceMilisegundos(0)));
  home.viva("malo\x1B[2J.json", "no");
  auto const corrida = home.zorvectl({"list"});
  EXPECT_EQ(corrida.salida, "1111  a␛]0;x␇<U+202E>b␀␊c  /d<U+009B>31m␍  now  1 prompts\n");
  EXPECT_TRUE(corrida.error.starts_with("sessions: Invalid JSON in malo␛[2J.json: ")) << corrida.error;
  EXPECT_EQ(corrida.error.find('\x1B'), std::string::npos);
}

TEST(ZorvectlList, elFiltroPideTodasLasPalabras) {
  Home const home;
  conDosSesiones(home);
  EXPECT_NE(home.zorvectl({"list", "--filter", "MENU uno"}).salida.find("Arreglar"), std::string::npos);
  auto const nada = home.zorvectl({"list", "--filter", "menu dos"});
  EXPECT_EQ(nada.codigo, 0);
  EXPECT_EQ(nada.salida, "");
  EXPECT_EQ(nada.error, "no matches\n");
  EXPECT_EQ(home.zorvectl({"list", "--json", "--filter", "nada"}).salida,
            "{\"sesiones\":[],\"errores\":[]}\n");
  EXPECT_EQ(home.zorvectl({"list", "--filter", ""}).salida, home.zorvectl({"list"}).salida);
}

TEST(ZorvectlList, elFiltroSigueElIdiomaDeLaPersona) {
  Home const home;
  home.transcripcion(Home::uno, aiTitle("ISTANBUL"));
  home.historia(prompt(Home::uno, "x", "/a", 1));
  auto const quedan = [&](std::map<std::string, std::string> const& entorno) {
    return !home.zorvectl({"list", "--filter", "istanbul"}, entorno).salida.empty();
  };
  EXPECT_TRUE(quedan({{"LANG", "es_ES.UTF-8"}}));
  EXPECT_FALSE(quedan({{"LANG", "tr_TR.UTF-8"}}));
  EXPECT_TRUE(quedan({{"LANG", "tr_TR.UTF-8"}, {"LC_ALL", "C"}}));
  EXPECT_FALSE(quedan({{"LANG", "C"}, {"LC_CTYPE", "az_AZ"}}));
}

TEST(ZorvectlList, homeSeNombraConLaOpcionOConLaVariable) {
  Home const home;
  conDosSesiones(home);
  Home const otro;
  auto const esperado = home.zorvectl({"list", "--json"}).salida;
  EXPECT_EQ(otro.zorvectl({"list", "--json", "--home", home.ruta()}).salida, esperado);
  EXPECT_EQ(otro.zorvectl({"list", "--json", "--home", home.ruta() + "//"}).salida, esperado);
  EXPECT_EQ(otro.zorvectl({"list", "--json"}, {{"HOME", home.ruta() + "/"}}).salida, esperado);
}

TEST(ZorvectlList, sinHomeValeElDeLaCuenta) {
  Home const home;
  auto const sin = home.zorvectl({"list", "--json"}, {{"HOME", ""}});
  EXPECT_EQ(sin.codigo, 0);
  EXPECT_EQ(home.zorvectl({"list", "--json"}, {{"HOME", "relativo"}}).salida, sin.salida);
}

TEST(ZorvectlList, bytesQueNoSonUtf8SeReparanEnElJson) {
  Home const home;
  home.transcripcion(Home::uno, R"({"cwd":"/a"})"
                                "\n");
  home.viva("malo\xFF.json", "no");
  auto const corrida = home.zorvectl({"list", "--json"});
  EXPECT_NE(corrida.salida.find("Invalid JSON in malo\uFFFD.json: "), std::string::npos) << corrida.salida;
}

TEST(ZorvectlList, elDirectorioCercaDelFinalDeUnaLineaLargaSeEncuentra) {
  Home const home;
  std::string const relleno(400'000, 'x');
  home.transcripcion(Home::uno, R"({"message":{"content":[{"type":"text","text":")" + relleno +
                                    R"("}]},"parentUuid":null,"cwd":"/srv/larga","version":"2"})"
                                    "\n" +
                                    aiTitle("Larga"));
  home.transcripcion(Home::dos,
                     R"({"type":"user","isMeta":null,"toolUseResult":{"a":[1,2]},"cwd":"/srv/corta"})"
                     "\n"
                     R"({"message":")" +
                         relleno + "\"}\n");
  auto const salida = home.zorvectl({"list"}).salida;
  EXPECT_NE(salida.find("/srv/corta"), std::string::npos) << salida;
  EXPECT_EQ(salida.find("Larga"), std::string::npos) << salida;
}

TEST(ZorvectlList, lasCarpetasDeSubagentesNoSonSesiones) {
  Home const home;
  home.transcripcion(Home::uno, R"({"cwd":"/a"})"
                                "\n");
  home.carpeta().escribir(".claude/projects/-home-ana-src/" + std::string{Home::uno} + "/subagents/" +
                              std::string{Home::dos} + ".jsonl",
                          R"({"cwd":"/b"})"
                          "\n");
  home.carpeta().escribir(
      ".claude/projects/-home-ana-src/" + std::string{Home::uno} + "/subagents/agent-ab96d3b1409a51c99.jsonl",
      "{}\n");
  auto const salida = home.zorvectl({"list"}).salida;
  EXPECT_EQ(salida, "1111  a  /a  now\n");
}

TEST(ZorvectlList, losSecretosNoSeAbren) {
  Home const home;
  home.transcripcion(Home::uno, R"({"cwd":"/a"})"
                                "\n");
  home.historia("");
  home.viva("7.json", R"({"pid":0,"sessionId":"x","cwd":"/"})");
  for (auto const* nombre : {".claude/sessions/7.1ac6.key", ".claude/projects/-home-ana-src/7.key"}) {
    ::chmod(home.carpeta().escribir(nombre, "secreto").c_str(), 0);
  }
  auto const corrida = [&] {
    dobles::SinPrivilegios const sin;
    return home.zorvectl({"list", "--json"});
  }();
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_TRUE(corrida.salida.ends_with("\"errores\":[]}\n")) << corrida.salida;
}

TEST(Zorvectl, laAyudaYLaVersionSalenBien) {
  Home const home;
  for (auto const& palabras : {std::vector<std::string>{"--help"}, {"list", "--help"}, {"--version"}}) {
    auto const corrida = home.zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 0);
    EXPECT_EQ(corrida.error, "");
    EXPECT_FALSE(corrida.salida.empty());
  }
  EXPECT_TRUE(home.zorvectl({"--version"}).salida.starts_with("zorvectl "));
  EXPECT_NE(home.zorvectl({"list", "--help"}).salida.find("--filter"), std::string::npos);
}

TEST(Zorvectl, elMalUsoSaleConDosYUnaLinea) {
  Home const home;
  for (auto const& palabras : {std::vector<std::string>{},
                               {"nada"},
                               {"list", "sobra"},
                               {"list", "--nada"},
                               {"list", "--home"},
                               {"list", "--home="},
                               {"list", "--filter"},
                               {"list", "-\n\x1B"}}) {
    auto const corrida = home.zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 2);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1) << corrida.error;
    EXPECT_EQ(corrida.error.find('\x1B'), std::string::npos);
  }
}

}  // namespace
}  // namespace zorve::pruebas
