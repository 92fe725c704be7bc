#include "ZorveCore/Lectura/Ensamblado.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace zorve {
namespace {

using Transcripciones = std::vector<Transcript>;

Fecha en(double segundos) { return Fecha{std::chrono::duration<double>{segundos}}; }

Transcript transcripcion(std::string id, double mtime, std::optional<std::string> titulo = {},
                         std::optional<std::string> cwd = "/t") {
  return {
      .sessionId = std::move(id), .mtime = en(mtime), .aiTitle = std::move(titulo), .cwd = std::move(cwd)};
}

EntradasDeHistoria historiaDe(std::vector<HistoryEntry> const& entradas) {
  EntradasDeHistoria mapa;
  for (auto const& una : entradas) mapa.emplace(una.sessionId, una);
  return mapa;
}

HistoryEntry entrada(std::string id, std::string primero, double ultimo = 50) {
  return {.sessionId = std::move(id),
          .cwd = "/h",
          .primerPrompt = std::move(primero),
          .ultimoPrompt = "el último",
          .conteo = 7,
          .primerTimestamp = en(1),
          .ultimoTimestamp = en(ultimo)};
}

Session unica(Transcripciones const& transcripciones, EntradasDeHistoria const& historia = {},
              SesionesVivas const& vivas = {}) {
  auto const resultado = SessionIndex::ensamblar(transcripciones, historia, vivas);
  EXPECT_EQ(resultado.sesiones.size(), 1);
  EXPECT_TRUE(resultado.errores.empty());
  return resultado.sesiones.empty() ? Session{} : resultado.sesiones.front();
}

std::string tituloDe(std::string const& primerPrompt) {
  return unica({transcripcion("a", 1)}, historiaDe({entrada("a", primerPrompt)})).titulo;
}

std::string tituloDeCwd(std::string const& cwd) { return unica({transcripcion("a", 1, {}, cwd)}).titulo; }

TEST(Ensamblado, deDosTranscripcionesConElMismoIdentificadorQuedaLaMasNueva) {
  EXPECT_EQ(unica({transcripcion("a", 1, "vieja"), transcripcion("a", 2, "nueva")}).titulo, "nueva");
  EXPECT_EQ(unica({transcripcion("a", 2, "nueva"), transcripcion("a", 1, "vieja")}).titulo, "nueva");
}

TEST(Ensamblado, conLaMismaFechaQuedaLaPrimeraQueSeEncontro) {
  EXPECT_EQ(unica({transcripcion("a", 2, "una"), transcripcion("a", 2, "otra")}).titulo, "una");
}

TEST(Ensamblado, elAiTitleMandaYElDirectorioYLaFechaVienenDeLaHistoria) {
  auto const sesion = unica({transcripcion("a", 99, "Título  propio ")}, historiaDe({entrada("a", "p", 50)}));
  EXPECT_EQ(sesion.titulo, "Título  propio ");
  EXPECT_EQ(sesion.tituloOrigen, TitleSource::aiTitle);
  EXPECT_EQ(sesion.cwd, "/h");
  EXPECT_EQ(sesion.ultimaActividad, en(50));
  EXPECT_EQ(sesion.conteoPrompts, 7);
  EXPECT_EQ(sesion.ultimoPrompt, "el último");
}

TEST(Ensamblado, unAiTitleVacioSigueSiendoElTitulo) {
  auto const sesion = unica({transcripcion("a", 1, "")}, historiaDe({entrada("a", "p")}));
  EXPECT_EQ(sesion.titulo, "");
  EXPECT_EQ(sesion.tituloOrigen, TitleSource::aiTitle);
}

TEST(Ensamblado, elTituloDerivadoUneLasPalabrasConUnEspacio) {
  EXPECT_EQ(tituloDe("  uno\n\ndos   tres"), "uno dos tres");
  EXPECT_EQ(tituloDe("uno\u2028\u00A0dos\t"), "uno dos");
  EXPECT_EQ(tituloDe(" \n "), "");
}

TEST(Ensamblado, ochentaCaracteresQuedanEnterosYOchentaYUnoSeCortan) {
  EXPECT_EQ(tituloDe(std::string(80, 'x')), std::string(80, 'x'));
  EXPECT_EQ(tituloDe(std::string(81, 'x')), std::string(80, 'x') + "…");
  EXPECT_EQ(tituloDe(std::string(79, 'x') + " y"), std::string(79, 'x') + " …");
  EXPECT_EQ(tituloDe(std::string(80, 'x') + " \n "), std::string(80, 'x'));
}

TEST(Ensamblado, losCaracteresDelTituloSonLosQueLaPersonaVe) {
  std::string ochenta;
  for (int i = 0; i < 80; ++i) ochenta += i % 2 == 0 ? "e\u0301" : "👩‍👩‍👧‍👦";
  EXPECT_EQ(tituloDe(ochenta), ochenta);
  EXPECT_EQ(tituloDe(ochenta + "z"), ochenta + "…");
  EXPECT_EQ(tituloDe(ochenta + "\u0301"), ochenta + "\u0301");
}

TEST(Ensamblado, sinHistoriaElTituloEsLaUltimaCarpeta) {
  EXPECT_EQ(tituloDeCwd("/uno/dos/tres"), "tres");
  EXPECT_EQ(tituloDeCwd("/uno/dos/"), "dos");
  EXPECT_EQ(tituloDeCwd("/"), "/");
  EXPECT_EQ(tituloDeCwd("//"), "//");
  EXPECT_EQ(tituloDeCwd(""), "");
}

TEST(Ensamblado, sinHistoriaSeUsanLaFechaYElDirectorioDeLaTranscripcion) {
  auto const sesion = unica({transcripcion("a", 33, {}, "/uno/dos")});
  EXPECT_EQ(sesion,
            (Session{.titulo = "dos", .cwd = "/uno/dos", .ultimaActividad = en(33), .sessionId = "a"}));
}

TEST(Ensamblado, laHistoriaGanaAunqueLaTranscripcionSeaMasNueva) {
  EXPECT_EQ(unica({transcripcion("a", 99)}, historiaDe({entrada("a", "p", 50)})).ultimaActividad, en(50));
  EXPECT_EQ(unica({transcripcion("a", 1, {}, std::nullopt)}, historiaDe({entrada("a", "p")})).cwd, "/h");
}

TEST(Ensamblado, unRegistroVivoDaEstadoYPidYNadaMas) {
  SesionesVivas const vivas{{"a", {.pid = 42, .estado = LiveState::busy, .cwd = "/v", .nombre = "nombre"}}};
  auto const sesion = unica({transcripcion("a", 1, {}, "/t")}, {}, vivas);
  EXPECT_EQ(sesion.liveState, LiveState::busy);
  EXPECT_EQ(sesion.pid, 42);
  EXPECT_EQ(sesion.cwd, "/t");
  EXPECT_EQ(sesion.titulo, "t");
}

TEST(Ensamblado, sinTranscripcionNoHaySesion) {
  auto const resultado = SessionIndex::ensamblar({}, historiaDe({entrada("a", "p")}), {{"b", {.pid = 1}}});
  EXPECT_EQ(resultado, IndexResult{});
}

TEST(Ensamblado, lasMasRecientesVanPrimeroYLosEmpatesPorIdentificador) {
  auto const resultado =
      SessionIndex::ensamblar(Transcripciones{transcripcion("c", 5), transcripcion("B", 5),
                                              transcripcion("a", 5), transcripcion("z", 6)},
                              {}, {});
  std::vector<std::string> orden;
  orden.reserve(resultado.sesiones.size());
  for (auto const& sesion : resultado.sesiones) orden.push_back(sesion.id());
  EXPECT_EQ(orden, (std::vector<std::string>{"claude:z", "claude:B", "claude:a", "claude:c"}));
}

TEST(Ensamblado, sinHistoriaNiDirectorioLaSesionSeCuentaEnElAviso) {
  auto const resultado = SessionIndex::ensamblar(
      Transcripciones{transcripcion("e", 1, {}, std::nullopt), transcripcion("b", 2, "t", std::nullopt),
                      transcripcion("d", 3, {}, std::nullopt), transcripcion("a", 4, {}, std::nullopt),
                      transcripcion("c", 5, {}, std::nullopt)},
      {}, {});
  EXPECT_TRUE(resultado.sesiones.empty());
  EXPECT_EQ(
      resultado.errores,
      (std::vector<IndexError>{
          {IndexSource::history,
           "5 session(s) have a transcript but no prompts in history.jsonl; without a cwd they cannot be "
           "reopened and were left out of the list: a, b, c"}}));
}

TEST(Ensamblado, unaSolaCaidaSeNombra) {
  auto const resultado =
      SessionIndex::ensamblar(Transcripciones{transcripcion("x", 1, {}, std::nullopt)}, {}, {});
  ASSERT_EQ(resultado.errores.size(), 1);
  EXPECT_TRUE(resultado.errores[0].mensaje.starts_with("1 session(s) have"));
  EXPECT_TRUE(resultado.errores[0].mensaje.ends_with("left out of the list: x"));
}

/// The merge as one would write it with no care for time.
IndexResult referencia(Transcripciones const& transcripciones, EntradasDeHistoria const& historia,
                       SesionesVivas const& vivas) {
  IndexResult resultado;
  std::vector<std::string> caidas;
  std::map<std::string, Transcript> porId;
  for (auto const& t : transcripciones) {
    if (!porId.contains(t.sessionId) || porId[t.sessionId].mtime < t.mtime) porId[t.sessionId] = t;
  }
  for (auto const& [id, t] : porId) {
    bool const conHistoria = historia.contains(id);
    if (!conHistoria && !t.cwd.has_value()) {
      caidas.push_back(id);
      continue;
    }
    Session s;
    s.sessionId = id;
    s.cwd = conHistoria ? historia.at(id).cwd : t.cwd.value();
    s.ultimaActividad = conHistoria ? historia.at(id).ultimoTimestamp : t.mtime;
    if (conHistoria) s.conteoPrompts = historia.at(id).conteo;
    if (conHistoria) s.ultimoPrompt = historia.at(id).ultimoPrompt;
    if (vivas.contains(id)) s.liveState = vivas.at(id).estado;
    if (vivas.contains(id)) s.pid = vivas.at(id).pid;
    if (t.aiTitle.has_value()) {
      s.titulo = t.aiTitle.value();
      s.tituloOrigen = TitleSource::aiTitle;
    } else if (conHistoria) {
      std::string unido;
      bool pendiente = false;
      for (char const c : historia.at(id).primerPrompt) {
        bool const blanco = c == ' ' || c == '\n';
        if (!blanco && pendiente && !unido.empty()) unido += ' ';
        if (!blanco) unido += c;
        pendiente = blanco;
      }
      s.titulo = unido.size() > 80 ? unido.substr(0, 80) + "…" : unido;
    } else {
      auto resto = s.cwd;
      while (resto.size() > 1 && resto.ends_with("/")) resto.pop_back();
      auto const nombre = resto.substr(resto.rfind('/') + 1);
      s.titulo = nombre.empty() ? s.cwd : nombre;
    }
    resultado.sesiones.push_back(s);
  }
  std::sort(resultado.sesiones.begin(), resultado.sesiones.end(), [](Session const& a, Session const& b) {
    return a.ultimaActividad > b.ultimaActividad ||
           (a.ultimaActividad == b.ultimaActividad && a.id() < b.id());
  });
  if (!caidas.empty()) {
    std::string mensaje = std::to_string(caidas.size()) +
                          " session(s) have a transcript but no prompts in history.jsonl; without a cwd they "
                          "cannot be reopened and were left out of the list: " +
                          caidas[0];
    if (caidas.size() > 1) mensaje += ", " + caidas[1];
    if (caidas.size() > 2) mensaje += ", " + caidas[2];
    resultado.errores.push_back({IndexSource::history, mensaje});
  }
  return resultado;
}

class Azar {
 public:
  int hasta(int tope) { return std::uniform_int_distribution{0, tope}(motor_); }
  std::string id() { return std::string(1, static_cast<char>('a' + hasta(7))) + (hasta(3) == 0 ? "" : "1"); }
  std::string prompt() {
    std::string texto;
    for (int n = hasta(50); n > 0; --n) texto += hasta(2) == 0 ? (hasta(1) == 0 ? " " : "\n") : "palabra";
    return texto.substr(0, static_cast<std::size_t>(hasta(120)));
  }
  std::string cwd() {
    std::string ruta = "/";
    for (int n = hasta(4); n > 0; --n) ruta += hasta(2) == 0 ? "/" : "ab";
    return ruta;
  }
  std::optional<std::string> quiza(std::string texto) {
    return hasta(1) == 0 ? std::nullopt : std::optional{std::move(texto)};
  }

 private:
  std::mt19937 motor_{7};
};

TEST(Ensamblado, daLoMismoQueUnaReferenciaLentaEnMilesDeCasos) {
  Azar azar;
  std::size_t sesiones = 0;
  std::size_t avisos = 0;
  for (int caso = 0; caso < 8000; ++caso) {
    Transcripciones transcripciones;
    for (int n = azar.hasta(12); n > 0; --n) {
      transcripciones.push_back(
          transcripcion(azar.id(), azar.hasta(4), azar.quiza(azar.prompt()), azar.quiza(azar.cwd())));
    }
    EntradasDeHistoria historia;
    for (int n = azar.hasta(6); n > 0; --n) {
      auto una = entrada(azar.id(), azar.prompt(), azar.hasta(4));
      historia[una.sessionId] = una;
    }
    SesionesVivas vivas;
    for (int n = azar.hasta(4); n > 0; --n) {
      vivas[azar.id()] = {.pid = azar.hasta(99),
                          .estado = azar.hasta(1) == 0 ? LiveState::idle : LiveState::busy};
    }
    auto const esperado = referencia(transcripciones, historia, vivas);
    sesiones += esperado.sesiones.size();
    avisos += esperado.errores.size();
    ASSERT_EQ(SessionIndex::ensamblar(transcripciones, historia, vivas), esperado) << caso;
  }
  EXPECT_GT(sesiones, 10'000);
  EXPECT_GT(avisos, 1'000);
}

}  // namespace
}  // namespace zorve
