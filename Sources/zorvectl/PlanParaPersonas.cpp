#include "zorvectl/PlanParaPersonas.h"

#include <algorithm>

#include "ZorveApp/Apertura.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "zorvectl/EscritorJson.h"

namespace zorve::ctl {

namespace {

constexpr std::string_view tenue = "\x1B[2m";
constexpr std::string_view normal = "\x1B[0m";

/// `texto` safe to print, its lines kept and set under each other.
std::string sangrado(std::string_view texto, std::size_t columnas) {
  std::string resultado;
  for (;;) {
    auto const fin = std::min(texto.find('\n'), texto.size());
    resultado += textoVisible(texto.substr(0, fin)) + "\n";
    if (fin == texto.size()) return resultado;
    texto.remove_prefix(fin + 1);
    if (!texto.empty() && texto.front() != '\n') resultado.append(columnas, ' ');
  }
}

std::string comandoParaPersonas(ComandoDeApertura const& comando, bool color) {
  auto const ancho = std::to_string(comando.args.size()).size();
  std::string texto = textoVisible(comando.ejecutable) + "\n";
  for (std::size_t i = 0; i < comando.args.size(); ++i) {
    auto const numero = std::to_string(i + 1);
    texto.append(2 + ancho - numero.size(), ' ');
    texto.append(color ? tenue : "").append(numero).append(color ? normal : "").append("  ");
    texto += sangrado(comando.args[i], ancho + 4);
  }
  return texto;
}

}  // namespace

std::string planParaPersonas(PlanDeApertura const& plan, Terminal const& terminal, Pantalla const& pantalla) {
  if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&plan)) {
    return textoVisible(razonDe(*sinEnfoque, terminal, Textos{Idioma::en})) + "\n";
  }
  std::string texto;
  for (auto const& comando : std::get<std::vector<ComandoDeApertura>>(plan)) {
    texto += comandoParaPersonas(comando, pantalla.color);
  }
  return texto;
}

std::string planJson(PlanDeApertura const& plan) {
  EscritorJson json;
  auto const comando = [&](ComandoDeApertura const& uno) {
    json.objeto([&] {
      json.campo("ejecutable", uno.ejecutable);
      json.lista("args", [&] {
        for (auto const& arg : uno.args) json.valor(arg);
      });
    });
  };
  json.objeto([&] {
    if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&plan)) {
      json.campo("noSePuedeEnfocar", sinEnfoque->tty);
      return;
    }
    json.lista("comandos", [&] {
      for (auto const& uno : std::get<std::vector<ComandoDeApertura>>(plan)) comando(uno);
    });
  });
  return json.hecho();
}

}  // namespace zorve::ctl
