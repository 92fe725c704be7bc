#include "ZorveCore/Lectura/HistoryStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "Dobles/ArchivosDeMemoria.h"

namespace zorve {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::string const ruta = "/Users/u/.claude/history.jsonl";

std::string linea(std::string const& sesion, std::string const& milisegundos, std::string const& prompt,
                  std::string const& carpeta = "/p") {
  return R"({"display":")" + prompt + R"(","pastedContents":{},"timestamp":)" + milisegundos +
         R"(,"project":")" + carpeta + R"(","sessionId":")" + sesion + "\"}\n";
}

Fecha segundos(double cuantos) { return Fecha{std::chrono::duration<double>{cuantos}}; }

class HistoryStoreTest : public ::testing::Test {
 protected:
  dobles::ArchivosDeMemoria archivos;

  HistoryResult cargar(std::string_view contenido) {
    archivos.escribir(ruta, contenido);
    return HistoryStore::cargar(archivos, ruta).value();
  }
  std::string unError(std::string_view contenido) {
    auto const resultado = cargar(contenido);
    EXPECT_THAT(resultado.errores, SizeIs(1));
    return resultado.errores.empty() ? "" : resultado.errores[0].mensaje;
  }
  std::string fallo() {
    auto const resultado = HistoryStore::cargar(archivos, ruta);
    EXPECT_FALSE(resultado);
    if (resultado) return {};
    EXPECT_EQ(resultado.error().fuente, IndexSource::history);
    return resultado.error().mensaje;
  }
};

TEST_F(HistoryStoreTest, unArchivoDeLineasEnBlancoNoTieneEntradasNiErrores) {
  EXPECT_EQ(cargar("\n  \n\t\r\n\r\n   "), HistoryResult{});
}

TEST_F(HistoryStoreTest, unArchivoVacioNoTieneEntradasNiErrores) { EXPECT_EQ(cargar(""), HistoryResult{}); }

TEST_F(HistoryStoreTest, unPromptHaceUnaEntrada) {
  auto const resultado = cargar(linea("s", "1700000000000", "hola", "/Users/u/p"));
  HistoryEntry const esperada{.sessionId = "s",
                              .cwd = "/Users/u/p",
                              .primerPrompt = "hola",
                              .ultimoPrompt = "hola",
                              .conteo = 1,
                              .primerTimestamp = segundos(1'700'000'000),
                              .ultimoTimestamp = segundos(1'700'000'000)};
  EXPECT_EQ(resultado, (HistoryResult{.entradas = {{"s", esperada}}}));
}

TEST_F(HistoryStoreTest, laUltimaLineaSinSaltoSeLeeComoLasOtras) {
  auto contenido = linea("a", "1", "x") + linea("b", "2", "y");
  contenido.pop_back();
  EXPECT_THAT(cargar(contenido).entradas, SizeIs(2));
}

TEST_F(HistoryStoreTest, unaLineaPartidaEntreDosLecturasSeDecodificaEntera) {
  std::string contenido;
  while (contenido.size() < 200'000) {
    contenido += linea("s" + std::to_string(contenido.size()), "1", std::string(contenido.size() % 997, 'x'));
  }
  auto const resultado = cargar(contenido);
  EXPECT_EQ(resultado.lineasIlegibles, 0);
  EXPECT_EQ(resultado.entradas.size(), static_cast<std::size_t>(std::ranges::count(contenido, '\n')));
}

TEST_F(HistoryStoreTest, leidoDeByteEnByteDaLoMismo) {
  auto const contenido = linea("a", "3", "x") + "\n" + linea("b", "2", "y") + "mal\n" + linea("a", "1", "z");
  auto const entero = cargar(contenido);
  archivos.lecturasDeHasta(1);
  EXPECT_EQ(cargar(contenido), entero);
}

TEST_F(HistoryStoreTest, unPromptDe3000CaracteresQuedaEntero) {
  std::string const largo(3000, 'x');
  EXPECT_EQ(cargar(linea("s", "1", largo)).entradas.at("s").primerPrompt, largo);
}

TEST_F(HistoryStoreTest, aIgualTiempoElPrimeroEsElPrimeroYElUltimoElUltimo) {
  auto const entrada =
      cargar(linea("s", "5", "uno", "/a") + linea("s", "5", "dos", "/b") + linea("s", "5", "tres", "/c"))
          .entradas.at("s");
  EXPECT_EQ(entrada.primerPrompt, "uno");
  EXPECT_EQ(entrada.ultimoPrompt, "tres");
  EXPECT_EQ(entrada.cwd, "/c");
  EXPECT_EQ(entrada.conteo, 3);
}

TEST_F(HistoryStoreTest, losExtremosSonPorTiempoYNoPorLugar) {
  auto const entrada =
      cargar(linea("s", "20", "medio") + linea("s", "30", "final") + linea("s", "10", "inicio"))
          .entradas.at("s");
  EXPECT_EQ(entrada.primerPrompt, "inicio");
  EXPECT_EQ(entrada.primerTimestamp, segundos(0.01));
  EXPECT_EQ(entrada.ultimoPrompt, "final");
  EXPECT_EQ(entrada.ultimoTimestamp, segundos(0.03));
}

TEST_F(HistoryStoreTest, laCarpetaEsLaDelUltimoPromptPorTiempo) {
  EXPECT_EQ(cargar(linea("s", "1", "x", "/a") + linea("s", "2", "y", "/b")).entradas.at("s").cwd, "/b");
  EXPECT_EQ(cargar(linea("s", "2", "x", "/a") + linea("s", "1", "y", "/b")).entradas.at("s").cwd, "/a");
}

TEST_F(HistoryStoreTest, lasSesionesEntremezcladasNoSeMezclan) {
  auto const entradas = cargar(linea("a", "1", "a1") + linea("b", "2", "b1") + linea("a", "3", "a2") +
                               linea("b", "1", "b0") + linea("a", "2", "a3"))
                            .entradas;
  EXPECT_EQ(entradas.at("a").conteo, 3);
  EXPECT_EQ(entradas.at("a").ultimoPrompt, "a2");
  EXPECT_EQ(entradas.at("b").conteo, 2);
  EXPECT_EQ(entradas.at("b").primerPrompt, "b0");
  EXPECT_EQ(entradas.at("b").sessionId, "b");
}

TEST_F(HistoryStoreTest, losMilisegundosSonSegundosConFraccion) {
  EXPECT_EQ(cargar(linea("s", "1700000000000", "x")).entradas.at("s").primerTimestamp,
            segundos(1'700'000'000));
  EXPECT_EQ(cargar(linea("s", "1700000000123.5", "x")).entradas.at("s").primerTimestamp,
            segundos(1'700'000'000'123.5 / 1000.0));
  EXPECT_EQ(cargar(linea("s", "-1500", "x")).entradas.at("s").primerTimestamp, segundos(-1.5));
}

TEST_F(HistoryStoreTest, cuatroLineasIlegiblesDanCuatroYTresMuestras) {
  auto const resultado = cargar("mal\n" + linea("s", "1", "x") + "\n[]\n{}\n" + linea("", "1", "x"));
  EXPECT_EQ(resultado.lineasIlegibles, 4);
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_EQ(resultado.errores[0].fuente, IndexSource::history);
  auto const& mensaje = resultado.errores[0].mensaje;
  EXPECT_THAT(mensaje, StartsWith("4 of 6 lines are unreadable in " + ruta + ". line 1: "));
  EXPECT_THAT(mensaje,
              HasSubstr(" \u00b7 line 4: not a JSON object \u00b7 line 5: key \"display\" is missing"));
  EXPECT_THAT(mensaje, Not(HasSubstr("line 6")));
}

TEST_F(HistoryStoreTest, unaSolaLineaIlegibleDaUnaMuestraSinSeparador) {
  EXPECT_EQ(unError("\n" + linea("", "1", "x")),
            "1 of 2 lines are unreadable in " + ruta + ". line 2: empty sessionId or project");
}

TEST_F(HistoryStoreTest, unaSesionOCarpetaVaciaEsIlegiblePeroUnPromptVacioNo) {
  auto const resultado = cargar(linea("", "1", "x") + linea("s", "1", "x", "") + linea("s", "1", ""));
  EXPECT_EQ(resultado.lineasIlegibles, 2);
  EXPECT_EQ(resultado.entradas.at("s").conteo, 1);
  EXPECT_EQ(resultado.entradas.at("s").ultimoPrompt, "");
}

TEST_F(HistoryStoreTest, unTipoEquivocadoOUnaClaveQueFaltaHaceIlegibleLaLinea) {
  for (auto const* const mala :
       {R"({"display":"x","timestamp":"1","project":"/p","sessionId":"s"})",
        R"({"display":1,"timestamp":1,"project":"/p","sessionId":"s"})",
        R"({"display":"x","timestamp":1,"project":null,"sessionId":"s"})",
        R"({"display":"x","timestamp":1,"project":"/p","sessionId":["s"]})",
        R"({"timestamp":1,"project":"/p","sessionId":"s"})",
        R"({"display":"x","project":"/p","sessionId":"s"})",
        R"({"display":"x","timestamp":1,"sessionId":"s"})", R"({"display":"x","timestamp":1,"project":"/p"})",
        R"({"display":"x","timestamp":1e999,"project":"/p","sessionId":"s"})"}) {
    auto const resultado = cargar(mala);
    EXPECT_EQ(resultado.lineasIlegibles, 1) << mala;
    EXPECT_THAT(resultado.entradas, IsEmpty()) << mala;
  }
}

TEST_F(HistoryStoreTest, numerosSinMedidaEnOtrasClavesNoCuestanLaLinea) {
  auto const grande = std::string(400, '9');
  auto const resultado = cargar(R"({"x":1e999,"y":)" + grande +
                                R"(,"display":"x","timestamp":1,"project":"/p","sessionId":"s"})");
  EXPECT_EQ(resultado.lineasIlegibles, 0);
  EXPECT_THAT(resultado.entradas, SizeIs(1));
}

TEST_F(HistoryStoreTest, dosObjetosEnUnaLineaYUnaLineaCortadaSonIlegibles) {
  auto buena = linea("s", "1", "x");
  buena.pop_back();
  EXPECT_EQ(cargar(buena + buena).lineasIlegibles, 1);
  for (std::size_t largo = 1; largo < buena.size(); ++largo) {
    EXPECT_EQ(cargar(buena.substr(0, largo)).lineasIlegibles, 1) << largo;
  }
}

TEST_F(HistoryStoreTest, unaFilaDeNulEsUnaLineaIlegible) {
  auto const resultado =
      cargar(linea("a", "1", "x") + std::string(100'000, '\0') + "\n" + linea("b", "1", "y"));
  EXPECT_EQ(resultado.lineasIlegibles, 1);
  EXPECT_THAT(resultado.entradas, SizeIs(2));
}

TEST_F(HistoryStoreTest, elRetornoAlFinalDeLaLineaNoEstorba) {
  auto contenido = linea("s", "1", "x");
  contenido.insert(contenido.size() - 1, "\r");
  EXPECT_EQ(cargar(contenido + contenido).entradas.at("s").conteo, 2);
}

TEST_F(HistoryStoreTest, unArchivoQueFaltaEsUnFallo) {
  EXPECT_EQ(fallo(), ruta +
                         " does not exist. Without that file there is no reliable way to know the cwd of "
                         "Claude Code sessions.");
}

TEST_F(HistoryStoreTest, unEnlaceRotoEsUnArchivoQueFalta) {
  archivos.enlazar(ruta, "nada");
  EXPECT_THAT(fallo(), StartsWith(ruta + " does not exist. "));
}

TEST_F(HistoryStoreTest, loQueNoSePuedeAbrirEsUnFalloConSuCausa) {
  archivos.escribir(ruta, "");
  archivos.fallarAlAbrir(ruta, EACCES);
  EXPECT_EQ(fallo(), "Could not open " + ruta + ": " + FalloDelSistema::deErrno(EACCES).descripcion);
}

TEST_F(HistoryStoreTest, unaCarpetaOUnFifoEnSuLugarEsUnFalloAlAbrir) {
  archivos.carpeta(ruta);
  EXPECT_EQ(fallo(), "Could not open " + ruta + ": " + FalloDelSistema::deErrno(EISDIR).descripcion);
  archivos.especial(ruta);
  EXPECT_EQ(fallo(), "Could not open " + ruta + ": Not a regular file");
}

TEST_F(HistoryStoreTest, unaLecturaQueFallaDescartaTodoYDiceTrasQueLinea) {
  std::string contenido;
  std::int64_t enLaPrimeraLectura = 0;
  while (contenido.size() < 100'000) {
    contenido += linea("s", "1", "x");
    if (contenido.size() <= 65'536) ++enLaPrimeraLectura;
  }
  archivos.escribir(ruta, contenido);
  archivos.fallarLectura(ruta, 2, EIO);
  EXPECT_EQ(fallo(), "Failed to read " + ruta + " after line " + std::to_string(enLaPrimeraLectura) + ": " +
                         FalloDelSistema::deErrno(EIO).descripcion);
}

TEST_F(HistoryStoreTest, unFalloEnLaPrimeraLecturaEsTrasLaLineaCero) {
  archivos.escribir(ruta, linea("s", "1", "x"));
  archivos.fallarLectura(ruta, 1, EIO);
  EXPECT_THAT(fallo(), HasSubstr(" after line 0: "));
}

TEST_F(HistoryStoreTest, unArchivoQueEncogeODesapareceConservaLoLeido) {
  archivos.escribir(ruta, linea("a", "1", "x") + linea("b", "1", std::string(100'000, 'x')));
  archivos.antesDeLeer(ruta, [&](std::size_t cual) {
    if (cual == 2) archivos.escribir(ruta, "");
    if (cual == 2) archivos.quitar(ruta);
  });
  auto const resultado = HistoryStore::cargar(archivos, ruta).value();
  EXPECT_TRUE(resultado.entradas.contains("a"));
  EXPECT_EQ(resultado.lineasIlegibles, 1);
}

/// Copies the part of `texto`, which stands at `lugar` in a file, that falls into the window `destino`.
void calcar(std::string_view texto, std::int64_t lugar, std::int64_t desde, std::span<char> destino) {
  auto const primero = std::max(lugar, desde);
  auto const ultimo = std::min(lugar + std::ssize(texto), desde + std::ssize(destino));
  if (primero >= ultimo) return;
  texto.copy(destino.data() + (primero - desde), static_cast<std::size_t>(ultimo - primero),
             static_cast<std::size_t>(primero - lugar));
}

/// A line of `largo` bytes made as it is read, `cola` behind them: good JSON but for its length.
void generarLinea(dobles::ArchivosDeMemoria& archivos, std::int64_t largo, std::string const& cola) {
  archivos.generar(ruta, largo + std::ssize(cola),
                   [largo, cola](std::int64_t desde, std::span<char> destino) {
                     std::memset(destino.data(), 'x', destino.size());
                     calcar(R"({"display":")", 0, desde, destino);
                     calcar(cola, largo, desde, destino);
                   });
}

TEST_F(HistoryStoreTest, unaLineaEnElTopeSeLee) {
  std::string const cola = R"(","timestamp":1,"project":"/p","sessionId":"s"})";
  auto const tope = static_cast<std::int64_t>(HistoryStore::largoMaximoDeLinea);
  generarLinea(archivos, tope - static_cast<std::int64_t>(cola.size()), cola);
  auto const resultado = HistoryStore::cargar(archivos, ruta).value();
  EXPECT_EQ(resultado.lineasIlegibles, 0);
  ASSERT_TRUE(resultado.entradas.contains("s"));
  EXPECT_EQ(resultado.entradas.at("s").primerPrompt.size(),
            HistoryStore::largoMaximoDeLinea - cola.size() - 12);
}

TEST_F(HistoryStoreTest, LargoUnaLineaDeUnGibEsIlegibleYLasDemasSeLeen) {
  generarLinea(archivos, 1LL << 30U,
               R"(","timestamp":1,"project":"/p","sessionId":"s"})"
               "\n" +
                   linea("t", "1", "y"));
  auto const resultado = HistoryStore::cargar(archivos, ruta).value();
  EXPECT_EQ(resultado.lineasIlegibles, 1);
  EXPECT_THAT(resultado.errores.at(0).mensaje, EndsWith("line 1: longer than 4194304 bytes"));
  EXPECT_FALSE(resultado.entradas.contains("s"));
  EXPECT_TRUE(resultado.entradas.contains("t"));
}

TEST_F(HistoryStoreTest, unaLineaPasadaDelTopeEsIlegiblePorSuLargo) {
  generarLinea(archivos, static_cast<std::int64_t>(HistoryStore::largoMaximoDeLinea) + 1, "");
  auto const resultado = HistoryStore::cargar(archivos, ruta).value();
  EXPECT_EQ(resultado.lineasIlegibles, 1);
  EXPECT_THAT(resultado.errores.at(0).mensaje, EndsWith("line 1: longer than 4194304 bytes"));
}

TEST_F(HistoryStoreTest, soloLasSesionesQueInteresanTienenEntrada) {
  archivos.escribir(ruta, linea("a", "1", "x") + linea("b", "2", "y") + linea("a", "3", "z") + "no\n");
  auto const resultado =
      HistoryStore::cargar(archivos, ruta, {.interesa = [](auto const& id) { return id == "a"; }}).value();
  EXPECT_THAT(resultado.entradas, SizeIs(1));
  EXPECT_EQ(resultado.entradas.at("a").conteo, 2);
  EXPECT_THAT(resultado.errores.at(0).mensaje, StartsWith("1 of 4 lines are unreadable in "));
}

TEST_F(HistoryStoreTest, unaHistoriaPasadaDelTopeDaLoLeidoYUnAviso) {
  auto const primeras = linea("a", "1", "x") + linea("b", "1", "y");
  archivos.generar(ruta, 100LL << 30U, [primeras](std::int64_t desde, std::span<char> destino) {
    std::memset(destino.data(), 0, destino.size());
    calcar(primeras, 0, desde, destino);
  });
  auto const resultado = HistoryStore::cargar(archivos, ruta, {.bytes = 10'000'000}).value();
  EXPECT_THAT(resultado.entradas, SizeIs(2));
  EXPECT_EQ(resultado.lineasIlegibles, 0);
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_EQ(resultado.errores[0],
            (IndexError{IndexSource::history,
                        "Stopped reading " + ruta +
                            " after line 2: it is longer than 10000000 bytes. What follows there is missing "
                            "from the list; shorten that file."}));
}

TEST_F(HistoryStoreTest, unaHistoriaDeJustoElTopeSeLeeEntera) {
  auto const todo = linea("a", "1", "x") + linea("b", "1", "y");
  archivos.escribir(ruta, todo);
  EXPECT_THAT(HistoryStore::cargar(archivos, ruta, {.bytes = std::ssize(todo)}).value().errores, IsEmpty());
  EXPECT_THAT(HistoryStore::cargar(archivos, ruta, {.bytes = std::ssize(todo) - 1}).value().errores,
              SizeIs(1));
}

TEST_F(HistoryStoreTest, unaHistoriaQueNoAcabaDeLeerseDaLoLeidoYUnAviso) {
  std::string todo;
  for (int i = 0; i < 4000; ++i) todo += linea("s" + std::to_string(i), "1", "x");
  archivos.escribir(ruta, todo);
  HistoryStore::Encargo::Reloj::time_point ahora{};
  archivos.antesDeLeer(ruta, [&](std::size_t) { ahora += std::chrono::seconds{11}; });
  auto const resultado = HistoryStore::cargar(archivos, ruta, {.ahora = [&] { return ahora; }}).value();
  EXPECT_GT(resultado.entradas.size(), 100);
  EXPECT_LT(resultado.entradas.size(), 4000);
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_THAT(resultado.errores[0].mensaje, HasSubstr(": reading it takes longer than 30 s. "));
}

}  // namespace
}  // namespace zorve
