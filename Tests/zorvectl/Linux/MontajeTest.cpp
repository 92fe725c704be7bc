#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "Dobles/DespachadorInmediato.h"
#include "Dobles/EjecutorGuionado.h"
#include "Dobles/InicioDePrueba.h"
#include "Dobles/PortapapelesDePrueba.h"
#include "ZorveApp/Interfaz.h"
#include "ZorvePlatform/Linux/RutaDelAyudante.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;

/// The variables of this process that a main looks at, as they were, come back at the end.
class EntornoPrestado {
 public:
  explicit EntornoPrestado(std::map<std::string, std::string> const& nuevo) {
    for (auto const& [nombre, valor] : nuevo) {
      char const* const suyo = std::getenv(nombre.c_str());
      antes_[nombre] = suyo == nullptr ? std::nullopt : std::optional<std::string>{suyo};
      ::setenv(nombre.c_str(), valor.c_str(), 1);
    }
  }
  EntornoPrestado(EntornoPrestado const&) = delete;
  EntornoPrestado& operator=(EntornoPrestado const&) = delete;
  ~EntornoPrestado() {
    for (auto const& [nombre, valor] : antes_) {
      if (valor) {
        ::setenv(nombre.c_str(), valor->c_str(), 1);
      } else {
        ::unsetenv(nombre.c_str());
      }
    }
  }

 private:
  std::map<std::string, std::optional<std::string>> antes_;
};

/// The programs with a face and zorvectl over the same home, where xterm alone is installed.
class Montaje : public testing::Test {
 protected:
  Montaje() {
    std::filesystem::permissions(home.carpeta().escribir("bin/xterm", "#!/bin/sh\n"),
                                 std::filesystem::perms{0755});
    home.transcripcion(Home::uno, R"({"type":"user","cwd":"/srv/uno"})"
                                  "\n" +
                                      aiTitle("Una"));
  }

  [[nodiscard]] std::string deZorvectl(std::vector<std::string> const& palabras) const {
    auto const corrida = home.zorvectl(palabras, entorno);
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    return corrida.salida;
  }

  Home home;
  std::map<std::string, std::string> entorno{{"XDG_CONFIG_HOME", home.ruta() + "/config"},
                                             {"XDG_DATA_HOME", home.ruta() + "/datos"},
                                             {"XDG_DATA_DIRS", home.ruta() + "/comunes"},
                                             {"PATH", home.ruta() + "/bin"}};
  EntornoPrestado const prestado{entorno};
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  dobles::EjecutorGuionado ejecutor;
  dobles::PortapapelesDePrueba portapapeles;
  dobles::InicioDePrueba inicio;
  dobles::DespachadorInmediato despachador;
  ServiciosDeTerminal servicios = serviciosDeTerminal(home.ruta());
  Interfaz interfaz{{.home = home.ruta(),
                     .archivos = archivos,
                     .procesos = procesos,
                     .servicios = servicios.apertura,
                     .preferencias = *servicios.preferencias,
                     .ejecutor = ejecutor,
                     .portapapeles = portapapeles,
                     .inicio = inicio,
                     .despachador = despachador}};
};

TEST_F(Montaje, elPanelCorreLoQueZorvectlPlanea) {
  interfaz.panel.aparecer();
  ASSERT_EQ(interfaz.panel.cantidadDeFilas(), 1U);
  interfaz.panel.clicEnFila(0);
  auto const llamadas = ejecutor.llamadas();
  ASSERT_EQ(llamadas.size(), 1U);
  EXPECT_EQ(llamadas[0][0], rutaDelAyudante());
  auto const plan = deZorvectl({"plan", std::string{Home::uno}, "--json"});
  std::string esperado = R"({"comandos":[{"ejecutable":")" + llamadas[0][0] + R"(","args":[)";
  for (std::size_t i = 1; i < llamadas[0].size(); ++i) {
    esperado += (i == 1 ? "\"" : ",\"") + llamadas[0][i] + "\"";
  }
  EXPECT_EQ(plan, esperado + "]}]}\n");
}

TEST_F(Montaje, losAjustesMarcanLaQueZorvectlElige) {
  (void)deZorvectl({"choose", "xterm"});
  interfaz.ajustes.aparecer();
  auto const opciones = interfaz.ajustes.terminal().grupos.at(0).opciones;
  ASSERT_EQ(opciones.size(), 2U);
  EXPECT_TRUE(opciones[1].marcada);
  EXPECT_EQ(opciones[1].titulo, "xterm");
  EXPECT_THAT(deZorvectl({"terminals", "--json"}),
              HasSubstr(R"("resuelta":{"identificador":"xterm","origen":"eleccionDeLaPersona"})"));
}

TEST_F(Montaje, ambosHablanConLasVocesDeAqui) {
  std::filesystem::remove_all(home.ruta() + "/.claude");
  interfaz.panel.aparecer();
  auto const banda = interfaz.panel.banda();
  ASSERT_FALSE(banda.empty());
  auto const lista = home.zorvectl({"list"}, entorno);
  EXPECT_EQ(lista.error, banda[0].texto + "\n");
}

}  // namespace
}  // namespace zorve::pruebas
