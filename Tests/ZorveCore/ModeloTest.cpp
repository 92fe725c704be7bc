#include "ZorveCore/Modelo.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

TEST(Modelo, unaSesionConIdentificadorSeIdentificaPorElSeaCualSeaSuCwd) {
  EXPECT_EQ((Session{.cwd = "/a", .sessionId = "abc"}).id(), "claude:abc");
  EXPECT_EQ((Session{.cwd = "/b", .sessionId = "abc"}).id(), "claude:abc");
}

TEST(Modelo, unaSesionSinIdentificadorSeIdentificaPorSuCwd) {
  EXPECT_EQ((Session{.cwd = "/Users/x/p"}).id(), "claude:/Users/x/p");
  EXPECT_EQ(Session{}.id(), "claude:");
}

TEST(Modelo, unIdentificadorVacioPeroPresenteDecide) {
  EXPECT_EQ((Session{.cwd = "/Users/x/p", .sessionId = ""}).id(), "claude:");
}

TEST(Modelo, losTextosCrudosSonExactos) {
  EXPECT_EQ(desdeTextoCrudo<SessionKind>("Claude"), std::nullopt);
  EXPECT_EQ(desdeTextoCrudo<LiveState>("IDLE"), std::nullopt);
  EXPECT_EQ(desdeTextoCrudo<TitleSource>("ai-title"), std::nullopt);
  EXPECT_EQ(desdeTextoCrudo<SessionKind>("claude"), SessionKind::claude);
}

TEST(Modelo, cadaTextoCrudoEsElNombreDeSuCaso) {
  EXPECT_EQ(textoCrudo(SessionKind::claude), "claude");
  EXPECT_EQ(textoCrudo(LiveState::dead), "dead");
  EXPECT_EQ(textoCrudo(LiveState::idle), "idle");
  EXPECT_EQ(textoCrudo(LiveState::busy), "busy");
  EXPECT_EQ(textoCrudo(TitleSource::aiTitle), "aiTitle");
  EXPECT_EQ(textoCrudo(TitleSource::derivedFromFirstPrompt), "derivedFromFirstPrompt");
  EXPECT_EQ(textoCrudo(IndexSource::history), "history");
  EXPECT_EQ(textoCrudo(IndexSource::transcripts), "transcripts");
  EXPECT_EQ(textoCrudo(IndexSource::sessions), "sessions");
  EXPECT_EQ(textoCrudo(IndexSource::launcher), "launcher");
}

template <class E>
void elTextoCrudoVaYVuelve() {
  for (auto const caso : todosLosCasos<E>()) EXPECT_EQ(desdeTextoCrudo<E>(textoCrudo(caso)), caso);
}

TEST(Modelo, cadaCasoVuelveDeSuTextoCrudo) {
  elTextoCrudoVaYVuelve<SessionKind>();
  elTextoCrudoVaYVuelve<LiveState>();
  elTextoCrudoVaYVuelve<TitleSource>();
  elTextoCrudoVaYVuelve<IndexSource>();
}

TEST(Modelo, losCasosEstanEnSuOrden) {
  EXPECT_EQ(todosLosCasos<LiveState>(), (std::array{LiveState::dead, LiveState::idle, LiveState::busy}));
  EXPECT_EQ(todosLosCasos<IndexSource>(), (std::array{IndexSource::history, IndexSource::transcripts,
                                                      IndexSource::sessions, IndexSource::launcher}));
  EXPECT_EQ(todosLosCasos<TitleSource>(),
            (std::array{TitleSource::aiTitle, TitleSource::derivedFromFirstPrompt}));
}

TEST(Modelo, unErrorSeIdentificaPorFuenteYMensaje) {
  EXPECT_EQ((IndexError{IndexSource::transcripts, "x"}).id(), "transcripts|x");
}

TEST(Modelo, dosSesionesQueSoloDifierenEnElPidSonDistintas) {
  Session const una{.titulo = "t", .sessionId = "a", .pid = 1};
  Session otra = una;
  EXPECT_EQ(una, otra);
  otra.pid = 2;
  EXPECT_NE(una, otra);
  otra.pid = std::nullopt;
  EXPECT_NE(una, otra);
}

}  // namespace
}  // namespace zorve
