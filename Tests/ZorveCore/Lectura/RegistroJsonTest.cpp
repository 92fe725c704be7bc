#include "ZorveCore/Lectura/RegistroJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/FalloDeNumero.h"

namespace zorve {
namespace {

using Tipo = RegistroJson::Tipo;
using Valor = RegistroJson::Valor;
using ::testing::HasSubstr;
using ::testing::Not;

/// What a record gave: the values as text, or the failure after "!".
std::string leer(std::string json, std::vector<RegistroJson::Campo> const& campos, char relleno = ' ') {
  RegistroJson registro;
  auto const largo = json.size();
  json.append(RegistroJson::margen, relleno);
  std::vector<Valor> valores(campos.size());
  auto const leido = registro.leer({json.data(), largo}, campos, valores);
  if (!leido) return "!" + leido.error();
  std::string todo;
  for (auto const& valor : valores) {
    if (!todo.empty()) todo += '|';
    if (auto const* texto = std::get_if<std::string_view>(&valor)) todo += *texto;
    if (auto const* numero = std::get_if<double>(&valor)) todo += std::to_string(*numero);
    if (auto const* entero = std::get_if<std::int32_t>(&valor)) todo += std::to_string(*entero);
    if (std::holds_alternative<std::monostate>(valor)) todo += '-';
  }
  return todo;
}

std::string texto(std::string const& json) { return leer(json, {{"a"}}); }
std::string opcional(std::string const& json) { return leer(json, {{"a", Tipo::texto, false}}); }
std::string numero(std::string const& json) { return leer(json, {{"n", Tipo::numero}}); }
std::string entero(std::string const& json) { return leer(json, {{"pid", Tipo::entero32}}); }

auto ilegible() { return ::testing::StartsWith("!"); }

TEST(RegistroJson, daLosValoresEnElOrdenPedido) {
  EXPECT_EQ(leer(R"({"b":"dos","a":"uno","n":1.5,"pid":7})",
                 {{"a"}, {"b"}, {"pid", Tipo::entero32}, {"n", Tipo::numero}}),
            "uno|dos|7|1.500000");
}

TEST(RegistroJson, otrasClavesNoCuentan) {
  EXPECT_EQ(texto(R"({"x":[1,{"a":"dentro"}],"y":null,"a":"fuera","z":true})"), "fuera");
}

TEST(RegistroJson, deClavesIgualesCuentaLaPrimera) {
  EXPECT_EQ(texto(R"({"a":"uno","a":"dos"})"), "uno");
  EXPECT_EQ(texto(R"({"a":"uno","a":3})"), "uno");
  EXPECT_THAT(texto(R"({"a":3,"a":"dos"})"), ilegible());
  EXPECT_EQ(opcional(R"({"a":null,"a":"dos"})"), "-");
}

TEST(RegistroJson, lasClavesSeComparanSinSusEscapes) {
  EXPECT_EQ(texto(R"({"\u0061":"uno"})"), "uno");
  EXPECT_EQ(texto(R"({"\u0061":"uno","a":"dos"})"), "uno");
}

TEST(RegistroJson, unNuloEnUnaClaveOpcionalEsAusencia) { EXPECT_EQ(opcional(R"({"a":null})"), "-"); }

TEST(RegistroJson, unNuloEnUnaClaveRequeridaEsUnErrorQueLaNombra) {
  EXPECT_THAT(texto(R"({"a":null})"), HasSubstr("\"a\""));
}

TEST(RegistroJson, unaClaveRequeridaQueFaltaSeNombra) {
  EXPECT_EQ(texto(R"({"b":"x"})"), "!key \"a\" is missing");
  EXPECT_EQ(texto("{}"), "!key \"a\" is missing");
}

TEST(RegistroJson, unTipoEquivocadoEsUnErrorTambienEnUnaOpcional) {
  for (auto const* const json : {R"({"a":1})", R"({"a":true})", R"({"a":[]})", R"({"a":{}})"}) {
    EXPECT_EQ(texto(json), "!key \"a\" is not a string");
    EXPECT_EQ(opcional(json), "!key \"a\" is not a string");
  }
}

TEST(RegistroJson, unSustitutoSinParejaHaceIlegibleElRegistro) {
  for (auto const* const json :
       {R"({"a":"\ud800"})", R"({"a":"\udc00"})", R"({"a":"\ud800x"})", R"({"a":"\ud800\u0041"})",
        R"({"a":"\ud800\ud800"})", R"({"a":"\udc00\ud800"})", R"({"a":"\uD83D\\ude00"})",
        R"({"a":"x","b":"\uDFFF"})", R"({"a":"x","\udbff":1})", R"({"a":"x","b":["\ud83d"]})"}) {
    EXPECT_THAT(texto(json), ilegible()) << json;
  }
}

TEST(RegistroJson, unaParejaDeSustitutosEsUnCaracter) {
  EXPECT_EQ(texto(R"({"a":"\ud83d\uDE00\\ud800"})"), "\U0001F600\\ud800");
}

TEST(RegistroJson, losEscapesSeResuelven) {
  EXPECT_EQ(texto(R"({"a":"\"\\\/\b\f\n\r\t\u00e9"})"), "\"\\/\b\f\n\r\t\u00e9");
}

TEST(RegistroJson, unNulEscapadoQuedaEnElTexto) {
  EXPECT_EQ(texto(R"({"a":"x\u0000y"})"), (std::string{"x\0y", 3}));
}

TEST(RegistroJson, elUtf8InvalidoHaceIlegibleElRegistro) {
  for (auto const* const malo :
       {"\xff", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x82", "\x80"}) {
    EXPECT_THAT(texto(std::string{R"({"a":")"} + malo + "\"}"), ilegible());
    EXPECT_THAT(texto(std::string{R"({"a":"x","b":")"} + malo + "\"}"), ilegible());
  }
}

TEST(RegistroJson, loQueNoEsJsonEsIlegible) {
  for (auto const* const json : {"",
                                 " ",
                                 "{",
                                 "}",
                                 "{\"a\"",
                                 R"({"a":"x)",
                                 R"({"a":"x",})",
                                 R"({'a':'x'})",
                                 R"({a:"x"})",
                                 R"({"a":"x" "b":1})",
                                 R"({"a":"x","n":NaN})",
                                 R"({"a":"x","n":Infinity})",
                                 R"({"a":"x","n":-Infinity})",
                                 R"({"a":"x","n":01})",
                                 R"({"a":"x","n":1.})",
                                 R"({"a":"x","n":.5})",
                                 R"({"a":"x","n":+1})",
                                 R"({"a":"x","n":-})",
                                 R"({"a":"x","n":1e})",
                                 R"({"a":"x","n":0x10})",
                                 R"({"a":"\x41"})",
                                 "{\"a\":\"x\ty\"}",
                                 R"({"a":"\u00g0"})",
                                 "// c\n{\"a\":\"x\"}",
                                 "\xef\xbb\xbf{\"a\":\"x\"}"}) {
    EXPECT_THAT(texto(json), ilegible()) << json;
  }
}

TEST(RegistroJson, elFalloSeDiceIgualConCadaVersionDeLaBiblioteca) {
  EXPECT_EQ(texto("nada"), "!not valid JSON: Problem while parsing an atom starting with the letter 'n'");
}

TEST(RegistroJson, soloUnObjetoEsUnRegistro) {
  for (auto const* const json : {"[]", "\"a\"", "1", "null", "true", R"([{"a":"x"}])"}) {
    EXPECT_EQ(texto(json), "!not a JSON object") << json;
  }
}

TEST(RegistroJson, textoTrasElObjetoLoHaceIlegible) {
  for (auto const* const cola : {"x", "{}", ",", "}", R"({"a":"y"})", " 1"}) {
    EXPECT_THAT(texto(std::string{R"({"a":"x"})"} + cola), ilegible()) << cola;
    EXPECT_THAT(texto(std::string{R"({"a":"x","b":1e999})"} + cola), ilegible()) << cola;
  }
}

TEST(RegistroJson, losNulAlrededorLoHacenIlegible) {
  EXPECT_THAT(texto(std::string{R"({"a":"x"})"} + '\0'), ilegible());
  EXPECT_THAT(texto(std::string{R"({"a":"x","b":1e999})"} + '\0'), ilegible());
  EXPECT_THAT(texto('\0' + std::string{R"({"a":"x"})"}), ilegible());
  EXPECT_THAT(texto(std::string(5000, '\0')), ilegible());
}

TEST(RegistroJson, losBlancosAlrededorNoCuentan) { EXPECT_EQ(texto(" \t\n{ \"a\" : \"x\" } \r\n"), "x"); }

TEST(RegistroJson, elMargenNoSeMira) {
  for (char const relleno : {'\0', '}', '"', 'x', '\xff', '9'}) {
    EXPECT_EQ(leer(R"({"a":"x"})", {{"a"}}, relleno), "x");
    EXPECT_THAT(leer(R"({"a":"x")", {{"a"}}, relleno), ilegible());
    EXPECT_THAT(leer(R"({"a":"x)", {{"a"}}, relleno), ilegible());
  }
}

TEST(RegistroJson, numerosSinMedidaEnClavesQueNadieLeeNoEstorban) {
  for (auto const& grande : {std::string{"1e999"}, std::string{"-1e999"}, std::string(400, '7'),
                             "-" + std::string(400, '7'), std::string{"18446744073709551616"},
                             "1." + std::string(5000, '3') + "e+400", std::string(400, '7') + ".5"}) {
    std::string registro = R"({"x":)";
    registro.append(grande).append(R"(,"a":"1e999 \" 1e999","y":[)");
    registro.append(grande).append(",").append(grande).append("]}");
    EXPECT_EQ(texto(registro), "1e999 \" 1e999") << grande;
  }
}

enum class CodigoDeAntes : std::uint8_t { SUCCESS, NUMBER_ERROR, STRING_ERROR };
enum class CodigoDeHoy : std::uint8_t { SUCCESS, NUMBER_ERROR, BIGINT_ERROR, STRING_ERROR };

TEST(RegistroJson, cadaVersionDeLaBibliotecaDiceASuModoQueElFalloEsDeUnNumero) {
  EXPECT_TRUE(esFalloDeNumero(CodigoDeAntes::NUMBER_ERROR));
  EXPECT_FALSE(esFalloDeNumero(CodigoDeAntes::STRING_ERROR));
  EXPECT_TRUE(esFalloDeNumero(CodigoDeHoy::NUMBER_ERROR));
  EXPECT_TRUE(esFalloDeNumero(CodigoDeHoy::BIGINT_ERROR));
  EXPECT_FALSE(esFalloDeNumero(CodigoDeHoy::SUCCESS));
  EXPECT_FALSE(esFalloDeNumero(CodigoDeHoy::STRING_ERROR));
}

TEST(RegistroJson, laMarcaDeOrdenDeBytesLoHaceIlegibleTambienConUnNumeroSinMedida) {
  EXPECT_THAT(texto("\xef\xbb\xbf{\"a\":\"x\",\"n\":1e999}"), ilegible());
  EXPECT_THAT(texto("\xef\xbb\xbf{\"a\":\"x\",\"n\":18446744073709551616}"), ilegible());
  EXPECT_EQ(texto("{\"a\":\"\xef\xbb\xbfx\"}"), "\xef\xbb\xbfx");
}

TEST(RegistroJson, unNumeroMalEscritoJuntoAUnoSinMedidaEsIlegible) {
  for (auto const* const malo :
       {"01e999", "1e999x", "1e999.5", "-", "1e9e9", "00", "1.e5", "tru1e999", "1e999true"}) {
    EXPECT_THAT(texto(std::string{R"({"x":1e999,"y":)"} + malo + R"(,"a":"x"})"), ilegible()) << malo;
  }
}

TEST(RegistroJson, unNumeroPedidoFueraDeMedidaEsUnErrorQueLoNombra) {
  EXPECT_EQ(numero(R"({"n":1e999})"), "!key \"n\" is not a number in range");
  EXPECT_EQ(numero(R"({"n":)" + std::string(400, '9') + "}"), "!key \"n\" is not a number in range");
}

TEST(RegistroJson, unNumeroPedidoPuedeSerCualquierNumeroDeJson) {
  EXPECT_EQ(numero(R"({"n":5})"), "5.000000");
  EXPECT_EQ(numero(R"({"n":-0.5})"), "-0.500000");
  EXPECT_EQ(numero(R"({"n":1.5E3})"), "1500.000000");
  EXPECT_EQ(numero(R"({"n":1e-999})"), "0.000000");
  EXPECT_EQ(numero(R"({"n":18446744073709551615})"), "18446744073709551616.000000");
  EXPECT_EQ(numero(R"({"n":100000000000000000000})"), "100000000000000000000.000000");
  EXPECT_EQ(numero(R"({"x":1e999,"n":100000000000000000000})"), "100000000000000000000.000000");
  EXPECT_EQ(numero(R"({"x":1e999,"n":0.1})"), "0.100000");
}

TEST(RegistroJson, unNumeroPedidoComoTextoEsUnError) {
  EXPECT_EQ(numero(R"({"n":"5"})"), "!key \"n\" is not a number in range");
}

TEST(RegistroJson, elPidCabeEn32Bits) {
  EXPECT_EQ(entero(R"({"pid":2147483647})"), "2147483647");
  EXPECT_EQ(entero(R"({"pid":-2147483648})"), "-2147483648");
  for (auto const* const malo : {"2147483648", "-2147483649", "9223372036854775808", "1e999",
                                 "123456789012345678901234567890", "18446744073709551616"}) {
    EXPECT_EQ(entero(std::string{R"({"pid":)"} + malo + "}"), "!key \"pid\" is not an integer of 32 bits");
  }
}

TEST(RegistroJson, elPidSeEscribeComoEntero) {
  for (auto const* const malo : {"7.0", "7e0", "\"7\"", "true", "[7]"}) {
    EXPECT_EQ(entero(std::string{R"({"pid":)"} + malo + "}"), "!key \"pid\" is not an integer of 32 bits");
  }
}

TEST(RegistroJson, unAnidamientoSinMedidaEsIlegibleYNoRevienta) {
  for (std::size_t const hondo : {2'000UL, 1'000'000UL}) {
    EXPECT_THAT(texto(R"({"a":"x","b":)" + std::string(hondo, '[') + std::string(hondo, ']') + "}"),
                ilegible());
    EXPECT_THAT(texto(R"({"b":1e999,"a":"x","c":)" + std::string(hondo, '[')), ilegible());
  }
}

TEST(RegistroJson, unAnidamientoHondoPeroRazonableSeLee) {
  EXPECT_EQ(texto(R"({"a":"x","b":)" + std::string(1000, '[') + std::string(1000, ']') + "}"), "x");
}

TEST(RegistroJson, unMismoLectorSirveTrasUnFalloYTrasUnRegistroLargo) {
  RegistroJson registro;
  std::array<RegistroJson::Campo, 1> const campos{{{"a"}}};
  std::array<Valor, 1> valores;
  for (std::size_t const largo : {10UL, 3'000'000UL, 70'000UL, 1UL}) {
    auto json = R"({"a":")" + std::string(largo, 'x') + "\"}";
    auto const bytes = json.size();
    json.append(RegistroJson::margen, '\0');
    EXPECT_FALSE(registro.leer({json.data(), bytes - 1}, campos, valores));
    ASSERT_TRUE(registro.leer({json.data(), bytes}, campos, valores));
    EXPECT_EQ(std::get<std::string_view>(valores[0]).size(), largo);
  }
}

TEST(RegistroJson, lasDescripcionesSonDeUnaSolaLinea) {
  for (auto const* const json : {"", "{", "[1", R"({"a":"\ud800"})", R"({"a":1})", "\xff", R"({"n":01})"}) {
    EXPECT_THAT(texto(json), Not(HasSubstr("\n"))) << json;
    EXPECT_GT(texto(json).size(), 10U) << json;
  }
}

}  // namespace
}  // namespace zorve
