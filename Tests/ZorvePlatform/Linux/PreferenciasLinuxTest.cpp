#include "ZorvePlatform/Linux/PreferenciasLinux.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorvePlatform/Posix/ReemplazarArchivo.h"

namespace zorve {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Valor = Preferencias::Valor;

std::string contenido(std::string const& ruta) {
  std::ifstream entrada{ruta, std::ios::binary};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

mode_t modo(std::string const& ruta) {
  struct stat estado{};
  return ::stat(ruta.c_str(), &estado) == 0 ? estado.st_mode & 07777U : 0U;
}

std::vector<std::string> nombresEn(std::string const& carpeta) {
  std::vector<std::string> nombres;
  for (auto const& entrada : std::filesystem::directory_iterator{carpeta}) {
    nombres.push_back(entrada.path().filename().string());
  }
  std::ranges::sort(nombres);
  return nombres;
}

class PreferenciasLinuxTest : public testing::Test {
 protected:
  void conArchivo(std::string_view texto) { carpeta.escribir("c/p.json", texto); }
  std::string mensajeAlEscribir() {
    auto const resultado = preferencias.escribir("a", true);
    if (resultado) return "written";
    EXPECT_EQ(resultado.error().fuente, IndexSource::launcher);
    EXPECT_FALSE(resultado.error().mensaje.contains('\n'));
    return resultado.error().mensaje;
  }

  dobles::CarpetaTemporal carpeta;
  std::string archivo = carpeta.dentro("c/p.json");
  PreferenciasLinux preferencias{archivo};
};

TEST_F(PreferenciasLinuxTest, elArchivoEstaBajoLaCarpetaDeConfiguracion) {
  EXPECT_EQ(PreferenciasLinux::archivoPorDefecto({.configHome = "/h/.config"}),
            "/h/.config/com.sarnol.zorve/preferences.json");
}

TEST_F(PreferenciasLinuxTest, leerNoCreaNada) {
  EXPECT_EQ(preferencias.leer("a").value(), std::nullopt);
  ASSERT_TRUE(preferencias.quitar("a").has_value());
  EXPECT_FALSE(std::filesystem::exists(carpeta.dentro("c")));
}

TEST_F(PreferenciasLinuxTest, loEscritoEsJsonLegibleYSoloDelUsuario) {
  ASSERT_TRUE(preferencias.escribir("zorve.terminalElegida", std::string{"xterm"}).has_value());
  EXPECT_EQ(contenido(archivo), "{\n  \"zorve.terminalElegida\": \"xterm\"\n}\n");
  EXPECT_EQ(modo(archivo), 0600U);
  EXPECT_EQ(modo(carpeta.dentro("c")), 0700U);
  EXPECT_THAT(nombresEn(carpeta.dentro("c")), ElementsAre("p.json", "preferences.lock"));
}

TEST_F(PreferenciasLinuxTest, loDesconocidoSobreviveLetraPorLetra) {
  conArchivo(R"({"otra":{"a":[1,2.50,-0,12345678901234567890123,null],"x":true},"a":"vieja","z":1e5})");
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_EQ(contenido(archivo), R"({
  "otra": {
    "a": [
      1,
      2.50,
      -0,
      12345678901234567890123,
      null
    ],
    "x": true
  },
  "a": true,
  "z": 1e5
}
)");
}

TEST_F(PreferenciasLinuxTest, soloCuentanLasClavesDelPrimerNivel) {
  conArchivo(R"({"otra":{"a":"dentro"},"lista":[{"a":true}]})");
  EXPECT_EQ(preferencias.leer("a").value(), std::nullopt);
  ASSERT_TRUE(preferencias.quitar("a").has_value());
  EXPECT_THAT(contenido(archivo), HasSubstr("\"a\": \"dentro\""));
}

TEST_F(PreferenciasLinuxTest, deClavesIgualesCuentaLaPrimeraYEscribirDejaUna) {
  conArchivo(R"({"a":"uno","a":"dos"})");
  EXPECT_EQ(preferencias.leer("a").value(), Valor{std::string{"uno"}});
  ASSERT_TRUE(preferencias.escribir("a", std::string{"tres"}).has_value());
  EXPECT_EQ(contenido(archivo), "{\n  \"a\": \"tres\"\n}\n");
}

TEST_F(PreferenciasLinuxTest, unaClaveEscapadaEsLaMisma) {
  conArchivo(R"({"\u0061":"x"})");
  EXPECT_EQ(preferencias.leer("a").value(), Valor{std::string{"x"}});
}

TEST_F(PreferenciasLinuxTest, unValorDeOtroTipoEsComoNinguno) {
  conArchivo(R"({"a":1,"b":null,"c":[true],"d":{"x":"y"}})");
  for (auto const* clave : {"a", "b", "c", "d"}) {
    EXPECT_EQ(preferencias.leer(clave).value(), std::nullopt) << clave;
  }
}

TEST_F(PreferenciasLinuxTest, loQueOtroEscribeSeVeEnSeguida) {
  PreferenciasLinux otra{archivo};
  ASSERT_TRUE(otra.escribir("a", true).has_value());
  EXPECT_EQ(preferencias.leer("a").value(), Valor{true});
  ASSERT_TRUE(otra.quitar("a").has_value());
  EXPECT_EQ(preferencias.leer("a").value(), std::nullopt);
}

class ArchivoDanado : public PreferenciasLinuxTest, public testing::WithParamInterface<std::string> {};

TEST_P(ArchivoDanado, seDiceYSeDejaComoEsta) {
  conArchivo(GetParam());
  auto const esperado =
      "Zorve cannot use its settings in " + archivo +
      ": the file is not a JSON object. Correct or delete it; until then the defaults apply.";
  EXPECT_EQ(preferencias.leer("a"), (std::unexpected{IndexError{IndexSource::launcher, esperado}}));
  EXPECT_EQ(mensajeAlEscribir(), esperado);
  EXPECT_FALSE(preferencias.quitar("a").has_value());
  EXPECT_EQ(contenido(archivo), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Linux, ArchivoDanado,
                         testing::Values("", "[]", "true", "{\"a\":", "{} {}", "{\"a\":\"\xFF\"}", "{'a':1}",
                                         std::string{"{}\0", 3}, std::string{"{}\0{}", 5},
                                         std::string(100000, '[')));

TEST_F(PreferenciasLinuxTest, unArchivoHondisimoNoAgotaLaPila) {
  conArchivo("{\"x\":" + std::string(200000, '[') + std::string(200000, ']') + ",\"a\":true}");
  EXPECT_EQ(preferencias.leer("a").value(), Valor{true});
}

TEST_F(PreferenciasLinuxTest, unArchivoEnormeNoSeLee) {
  conArchivo("{\"x\":\"" + std::string(2U << 20U, 'x') + "\"}");
  EXPECT_THAT(mensajeAlEscribir(), HasSubstr("File too large"));
}

TEST_F(PreferenciasLinuxTest, unNumeroSinMedidaSeConservaYNoEstorba) {
  conArchivo(R"({"x":1e999,"y":[-1E+4000,2.50,")"
             "1e999"
             R"("],"z":)" +
             std::string(400, '7') + R"(,"a":"vieja"})");
  EXPECT_EQ(preferencias.leer("a").value(), Valor{std::string{"vieja"}});
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_EQ(contenido(archivo),
            "{\n  \"x\": 1e999,\n  \"y\": [\n    -1E+4000,\n    2.50,\n    \"1e999\"\n  ],\n  \"z\": " +
                std::string(400, '7') + ",\n  \"a\": true\n}\n");
  EXPECT_EQ(preferencias.leer("a").value(), Valor{true});
}

TEST_F(PreferenciasLinuxTest, unNumeroMalEscritoEsUnArchivoDanado) {
  for (auto const* const malo : {"01", "1.", "+1", "1e", "-", "1e999x", "0x1", "1 2"}) {
    conArchivo(std::string{R"({"a":true,"x":)"} + malo + "}");
    EXPECT_FALSE(preferencias.leer("a").has_value()) << malo;
  }
}

TEST_F(PreferenciasLinuxTest, loQueConSangriaNoCabriaSeEscribeSinElla) {
  std::string lista = "{\"x\":[0";
  while (lista.size() < 400'000) lista += ",0";
  conArchivo(lista + "]}");
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_LT(contenido(archivo).size(), 410'000);
  EXPECT_EQ(preferencias.leer("a").value(), Valor{true});
}

TEST_F(PreferenciasLinuxTest, loMuyHondoNoCreceAlEscribirse) {
  conArchivo("{\"x\":" + std::string(10'000, '[') + std::string(10'000, ']') + "}");
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_LT(contenido(archivo).size(), 22'000);
  EXPECT_EQ(preferencias.leer("a").value(), Valor{true});
}

TEST_F(PreferenciasLinuxTest, nuncaEscribeLoQueNoLeeria) {
  auto const casiLleno = "{\"x\":\"" + std::string((1U << 20U) - 12, 'x') + "\"}";
  conArchivo(casiLleno);
  ASSERT_TRUE(preferencias.leer("a").has_value());
  EXPECT_EQ(mensajeAlEscribir(), "Zorve could not save its settings in " + archivo +
                                     ": the file would be longer than 1048576 bytes. Take out of it what is "
                                     "not Zorve's, then try again.");
  EXPECT_EQ(contenido(archivo), casiLleno);
}

/// Somebody else's hold on the settings' lock.
class CerrojoAjeno {
 public:
  explicit CerrojoAjeno(std::string const& ruta)
      : descriptor_{::open(ruta.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)} {
    if (::flock(descriptor_, LOCK_EX) != 0) throw std::runtime_error("flock");
  }
  CerrojoAjeno(CerrojoAjeno const&) = delete;
  CerrojoAjeno& operator=(CerrojoAjeno const&) = delete;
  ~CerrojoAjeno() { ::close(descriptor_); }

 private:
  int descriptor_;
};

TEST_F(PreferenciasLinuxTest, unCerrojoQueNadieSueltaSeDiceYNoSeEsperaMas) {
  conArchivo("{}");
  CerrojoAjeno const ajeno{carpeta.dentro("c/preferences.lock")};
  PreferenciasLinux impacientes{archivo, std::chrono::milliseconds{60}};
  auto const resultado = impacientes.escribir("a", true);
  EXPECT_EQ(resultado.error().mensaje,
            "Zorve could not save its settings in " + archivo + ": another program holds the lock " +
                carpeta.dentro("c/preferences.lock") + ". Close it, then try again.");
  EXPECT_EQ(contenido(archivo), "{}");
  EXPECT_TRUE(impacientes.leer("a").has_value());
}

TEST_F(PreferenciasLinuxTest, unCerrojoQueSeSueltaATiempoSeEspera) {
  conArchivo("{}");
  auto ajeno = std::make_unique<CerrojoAjeno>(carpeta.dentro("c/preferences.lock"));
  std::thread quien{[&] {
    std::this_thread::sleep_for(std::chrono::milliseconds{100});
    ajeno.reset();
  }};
  EXPECT_TRUE(PreferenciasLinux(archivo, std::chrono::seconds{60}).escribir("a", true).has_value());
  quien.join();
}

TEST_F(PreferenciasLinuxTest, elCerrojoNoSigueEnlaces) {
  conArchivo("{}");
  std::filesystem::create_symlink(carpeta.dentro("ajeno"), carpeta.dentro("c/preferences.lock"));
  EXPECT_THAT(mensajeAlEscribir(), HasSubstr("Too many levels of symbolic links"));
  EXPECT_FALSE(std::filesystem::exists(carpeta.dentro("ajeno")));
}

TEST_F(PreferenciasLinuxTest, trasUnGuardadoFallidoNoQuedaElArchivoDePaso) {
  carpeta.carpeta("c/p.json/ocupada");
  EXPECT_FALSE(preferencias.quitar("a").has_value());
  EXPECT_FALSE(reemplazarArchivo(carpeta.dentro("c/p.json"), "x").has_value());
  EXPECT_THAT(nombresEn(carpeta.dentro("c")), ElementsAre("p.json", "preferences.lock"));
}

TEST_F(PreferenciasLinuxTest, loQueDejoUnGuardadoQueMurioSeQuitaEnElSiguienteYLoAjenoQueda) {
  conArchivo("{}");
  carpeta.escribir("c/p.json.zorve-Ab3dEf", "{");
  carpeta.escribir("c/p.json.backup", "{}");
  carpeta.escribir("c/otra.json.zorve-Ab3dEf", "{}");
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_THAT(nombresEn(carpeta.dentro("c")),
              ElementsAre("otra.json.zorve-Ab3dEf", "p.json", "p.json.backup", "preferences.lock"));
}

TEST_F(PreferenciasLinuxTest, unaColaEnSuLugarNoBloquea) {
  carpeta.carpeta("c");
  ASSERT_EQ(::mkfifo(archivo.c_str(), 0600), 0);
  EXPECT_FALSE(preferencias.leer("a").has_value());
  EXPECT_FALSE(preferencias.escribir("a", true).has_value());
}

TEST_F(PreferenciasLinuxTest, unTextoQueNoEsUtf8SeGuardaReemplazado) {
  ASSERT_TRUE(preferencias.escribir("a", std::string{"x\xFF"}).has_value());
  EXPECT_EQ(preferencias.leer("a").value(), Valor{std::string{"x\xEF\xBF\xBD"}});
}

TEST_F(PreferenciasLinuxTest, unEnlaceSigueSiendoloYCambiaSuDestino) {
  auto const real = carpeta.escribir("dotfiles/real.json", "{\"otra\":true}");
  carpeta.carpeta("c");
  std::filesystem::create_symlink("../dotfiles/real.json", archivo);
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_TRUE(std::filesystem::is_symlink(archivo));
  EXPECT_EQ(contenido(real), "{\n  \"otra\": true,\n  \"a\": true\n}\n");
}

TEST_F(PreferenciasLinuxTest, unEnlaceSinDestinoLoCrea) {
  carpeta.carpeta("c");
  carpeta.carpeta("dotfiles");
  std::filesystem::create_symlink(carpeta.dentro("dotfiles/nuevo.json"), archivo);
  ASSERT_TRUE(preferencias.escribir("a", true).has_value());
  EXPECT_TRUE(std::filesystem::is_symlink(archivo));
  EXPECT_EQ(contenido(carpeta.dentro("dotfiles/nuevo.json")), "{\n  \"a\": true\n}\n");
}

TEST_F(PreferenciasLinuxTest, unEnlaceASiMismoEsUnFallo) {
  carpeta.carpeta("c");
  std::filesystem::create_symlink("p.json", archivo);
  EXPECT_THAT(mensajeAlEscribir(), HasSubstr(archivo));
}

TEST_F(PreferenciasLinuxTest, enUnaCarpetaDeSoloLecturaDiceQueHacer) {
  carpeta.carpeta("c");
  ASSERT_EQ(::chmod(carpeta.dentro("c").c_str(), 0555), 0);
  dobles::SinPrivilegios const comoCualquiera;
  EXPECT_EQ(mensajeAlEscribir(), "Zorve could not save its settings in " + archivo +
                                     ": Permission denied. Make sure that you may write to that folder and "
                                     "that the disk has room, then try again.");
}

TEST_F(PreferenciasLinuxTest, conUnArchivoEnElLugarDeLaCarpetaDiceQueHacer) {
  carpeta.escribir("c", "");
  EXPECT_THAT(mensajeAlEscribir(), HasSubstr("Not a directory"));
}

TEST_F(PreferenciasLinuxTest, unArchivoIlegibleSeDice) {
  conArchivo("{}");
  ASSERT_EQ(::chmod(archivo.c_str(), 0), 0);
  ASSERT_EQ(::chmod(carpeta.dentro("c").c_str(), 0777), 0);
  dobles::SinPrivilegios const comoCualquiera;
  EXPECT_EQ(mensajeAlEscribir(),
            "Zorve could not read its settings in " + archivo +
                ": Permission denied. Make the file readable or delete it; until then the defaults apply.");
}

TEST_F(PreferenciasLinuxTest, escritoresALaVezNoPierdenClaves) {
  constexpr int hilos = 6;
  constexpr int claves = 5;
  auto const escribirLasDe = [this](int hilo) {
    PreferenciasLinux propias{archivo};
    for (int i = 0; i < claves; ++i) {
      auto const clave = std::to_string(hilo) + "." + std::to_string(i);
      EXPECT_TRUE(propias.escribir(clave, clave).has_value());
    }
  };
  std::vector<std::thread> trabajos;
  trabajos.reserve(hilos);
  for (int hilo = 0; hilo < hilos; ++hilo) trabajos.emplace_back(escribirLasDe, hilo);
  for (auto& trabajo : trabajos) trabajo.join();
  for (int hilo = 0; hilo < hilos; ++hilo) {
    for (int i = 0; i < claves; ++i) {
      auto const clave = std::to_string(hilo) + "." + std::to_string(i);
      EXPECT_EQ(preferencias.leer(clave).value(), Valor{clave});
    }
  }
}

TEST_F(PreferenciasLinuxTest, quienLeeMientrasSeEscribeVeSiempreUnArchivoEntero) {
  ASSERT_TRUE(preferencias.escribir("a", std::string{"x"}).has_value());
  std::thread escritor{[this] {
    PreferenciasLinux propias{archivo};
    for (std::size_t i = 0; i < 30; ++i) {
      EXPECT_TRUE(propias.escribir("a", std::string(i * 1400, 'x')).has_value());
    }
  }};
  for (int i = 0; i < 150; ++i) EXPECT_TRUE(preferencias.leer("a").value().has_value());
  escritor.join();
}

}  // namespace
}  // namespace zorve
