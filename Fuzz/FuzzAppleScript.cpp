#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Dobles/AplicacionesFijas.h"
#include "Exigir.h"
#include "ZorveCore/Terminales/Tecleado.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"

namespace zorve::fuzz {
namespace {

/// A script taken apart: its text literals as AppleScript reads them (The AppleScript Language Guide,
/// "text"), and what stands around them, each literal a "$" in it.
struct Guion {
  std::string armazon;
  std::vector<std::string> literales;
};

Guion desarmar(std::string_view texto) {
  Guion guion;
  while (!texto.empty()) {
    char const letra = texto.front();
    texto.remove_prefix(1);
    if (letra != '"') {
      guion.armazon += letra;
      continue;
    }
    std::string literal;
    while (exigir(!texto.empty()), texto.front() != '"') {
      if (texto.front() == '\\') texto.remove_prefix(1);
      exigir(!texto.empty());
      literal += texto.front();
      texto.remove_prefix(1);
    }
    texto.remove_prefix(1);
    guion.armazon += '$';
    guion.literales.push_back(std::move(literal));
  }
  return guion;
}

/// The only command's script; the command is osascript's.
std::string guionDe(PlanDeApertura const& plan) {
  auto const& comandos = std::get<std::vector<ComandoDeApertura>>(plan);
  exigir(comandos.size() == 1 && comandos[0].ejecutable == "/usr/bin/osascript");
  exigir(comandos[0].args.size() == 2 && comandos[0].args[0] == "-e");
  return comandos[0].args[1];
}

/// Whether `linea` is "cd ", a word that a POSIX shell reads as `cwd`, " && " and `comando`.
bool vaYCorre(std::string_view linea, std::string_view cwd, std::string_view comando) {
  if (!linea.starts_with("cd '")) return false;
  linea.remove_prefix(3);
  std::string palabra;
  while (!linea.starts_with(' ')) {
    if (linea.starts_with("\\'")) {
      palabra += '\'';
      linea.remove_prefix(2);
      continue;
    }
    auto const fin = linea.find('\'', 1);
    if (!linea.starts_with('\'') || fin == std::string_view::npos) return false;
    palabra += linea.substr(1, fin - 1);
    linea.remove_prefix(fin + 1);
    if (linea.empty()) return false;
  }
  return palabra == cwd && linea == " && " + std::string{comando};
}

/// Whether a shell that is typed this would act on some byte of it: decoded as UTF-8 where it is that, else
/// byte by byte.
bool gobierna(std::string_view texto) {
  for (std::size_t i = 0; i < texto.size();) {
    auto const en = [&](std::size_t j) { return static_cast<unsigned char>(texto[j]); };
    auto const sigue = [&](std::size_t j, unsigned menor, unsigned mayor) {
      return j < texto.size() && en(j) >= menor && en(j) <= mayor;
    };
    unsigned const a = en(i);
    if (a < 0x80) {
      if ((a < 0x20 && a != '\t' && a != '\n') || a == 0x7F) return true;
      ++i;
    } else if (a >= 0xC2 && a <= 0xDF && sigue(i + 1, 0x80, 0xBF)) {
      if (a == 0xC2 && en(i + 1) <= 0x9F) return true;
      i += 2;
    } else if (a >= 0xE0 && a <= 0xEF && sigue(i + 1, a == 0xE0 ? 0xA0 : 0x80, a == 0xED ? 0x9F : 0xBF) &&
               sigue(i + 2, 0x80, 0xBF)) {
      i += 3;
    } else if (a >= 0xF0 && a <= 0xF4 && sigue(i + 1, a == 0xF0 ? 0x90 : 0x80, a == 0xF4 ? 0x8F : 0xBF) &&
               sigue(i + 2, 0x80, 0xBF) && sigue(i + 3, 0x80, 0xBF)) {
      i += 4;
    } else {
      if (a <= 0x9F) return true;
      ++i;
    }
  }
  return false;
}

std::string_view hastaElNulo(std::string_view& bytes) {
  auto const trozo = bytes.substr(0, bytes.find('\0'));
  bytes.remove_prefix(std::min(trozo.size() + 1, bytes.size()));
  return trozo;
}

void abrir(Terminal const& terminal, std::string const& cwd, std::string const& comando) {
  auto const plan = terminal.planParaAbrir(cwd, comando);
  auto const guion = desarmar(guionDe(plan));
  exigir(guion.armazon == desarmar(guionDe(terminal.planParaAbrir("/a", "b"))).armazon);
  exigir(guion.literales.at(0) == terminal.nombre());
  if (terminal.nombre() == "Ghostty") {
    exigir(guion.literales.size() == 3 && guion.literales[1] == cwd && guion.literales[2] == comando);
  } else {
    exigir(guion.literales.size() == 2 && vaYCorre(guion.literales[1], cwd, comando));
  }
  auto const& comandos = std::get<std::vector<ComandoDeApertura>>(plan);
  exigir(loQueNoSeTeclea(comandos).has_value() == (gobierna(cwd) || gobierna(comando)));
}

void enfocar(Terminal const& terminal, std::string const& tty) {
  std::string const corto = tty.starts_with("/dev/") ? tty.substr(5) : tty;
  auto const plan = terminal.planParaEnfocar(tty);
  if (terminal.nombre() == "Ghostty") return exigir(*plan == PlanDeApertura{NoSePuedeEnfocar{corto}});
  auto const guion = desarmar(guionDe(*plan));
  exigir(guion.armazon == desarmar(guionDe(*terminal.planParaEnfocar("a"))).armazon);
  exigir(guion.literales.size() == 4 && guion.literales[0] == terminal.nombre());
  exigir(guion.literales[1] == "/dev/" + corto && guion.literales[2] == corto);
  exigir(guion.literales[3].contains(" session on " + corto + "."));
}

void probar(std::string_view bytes) {
  static dobles::AplicacionesFijas const aplicaciones;
  static auto const terminales = todas(aplicaciones);
  std::string const cwd{hastaElNulo(bytes)};
  std::string const comando{hastaElNulo(bytes)};
  for (auto const& terminal : terminales) {
    abrir(*terminal, cwd, comando);
    enfocar(*terminal, cwd);
  }
}

}  // namespace
}  // namespace zorve::fuzz

/// Whatever a directory, a command line or a device is called, the scripts keep their shape and hold it whole
/// in one literal; those whose typing would govern a shell are told.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
