#include "ZorveTerminal/Sway.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTerminal/EnchufeLocal.h"

namespace zorve::ayudante {

namespace {

constexpr std::string_view magia = "i3-ipc";
constexpr std::size_t largoDeCabecera = 14;
constexpr std::uint32_t maximoDeRespuesta = 64U << 20U;
constexpr std::uint32_t correrOrden = 0;
constexpr std::uint32_t darArbol = 4;

using Nodo = simdjson::dom::element;

std::int64_t numero(Nodo const& nodo, std::string_view clave) {
  std::int64_t valor = 0;
  return nodo[clave].get(valor) == simdjson::SUCCESS ? valor : 0;
}

std::string texto(Nodo const& nodo, std::string_view clave) {
  std::string_view valor;
  return nodo[clave].get(valor) == simdjson::SUCCESS ? std::string{valor} : std::string{};
}

bool cierto(Nodo const& nodo, std::string_view clave) {
  bool valor = false;
  return nodo[clave].get(valor) == simdjson::SUCCESS && valor;
}

void agregarHijos(Nodo const& nodo, std::string_view clave, std::vector<Nodo>& pendientes) {
  simdjson::dom::array hijos;
  if (nodo[clave].get(hijos) != simdjson::SUCCESS) return;
  auto const desde = static_cast<std::ptrdiff_t>(pendientes.size());
  for (auto const hijo : hijos) pendientes.push_back(hijo);
  std::reverse(pendientes.begin() + desde, pendientes.end());
}

std::vector<Ventana> recoger(Nodo const& raiz) {
  std::vector<Ventana> ventanas;
  std::vector<Nodo> pendientes{raiz};
  while (!pendientes.empty()) {
    Nodo const nodo = pendientes.back();
    pendientes.pop_back();
    auto const id = numero(nodo, "id");
    // A window of X says itself whose it is.
    auto const pid = texto(nodo, "shell") == "xwayland" ? 0 : numero(nodo, "pid");
    if (id > 0 && pid > 0 && std::in_range<pid_t>(pid)) {
      ventanas.push_back({static_cast<std::uint64_t>(id), static_cast<pid_t>(pid), texto(nodo, "name"),
                          cierto(nodo, "focused")});
    }
    agregarHijos(nodo, "floating_nodes", pendientes);
    agregarHijos(nodo, "nodes", pendientes);
  }
  return ventanas;
}

}  // namespace

std::vector<Ventana> ventanasDelArbol(std::string_view arbol) {
  simdjson::dom::parser lector;
  simdjson::dom::element raiz;
  // A title is whatever a program wrote: sway passes its bytes on.
  if (lector.parse(conUtf8Valido(arbol)).get(raiz) != simdjson::SUCCESS) return {};
  return recoger(raiz);
}

Sway::Sway() : enchufe_{conectarA(variable("SWAYSOCK"))} {}

bool Sway::abierta() const { return static_cast<bool>(enchufe_); }

std::vector<Ventana> Sway::todas() const { return ventanasDelArbol(preguntar(darArbol, "").value_or("")); }

bool Sway::activar(std::uint64_t id, std::chrono::milliseconds /*plazo*/) const {
  if (!preguntar(correrOrden, "[con_id=" + std::to_string(id) + "] focus")) return false;
  return std::ranges::any_of(todas(), [id](auto const& una) { return una.id == id && una.enfocada; });
}

std::optional<std::string> Sway::preguntar(std::uint32_t tipo, std::string_view texto) const {
  auto const largo = static_cast<std::uint32_t>(texto.size());
  std::string mensaje{magia};
  mensaje.append(reinterpret_cast<char const*>(&largo), sizeof largo);
  mensaje.append(reinterpret_cast<char const*>(&tipo), sizeof tipo);
  mensaje += texto;
  std::array<char, largoDeCabecera> cabecera{};
  if (!escribirTodo(enchufe_, mensaje) || !leerTodo(enchufe_, cabecera)) return std::nullopt;
  std::uint32_t cuantos = 0;
  std::memcpy(&cuantos, &cabecera[magia.size()], sizeof cuantos);
  if (cuantos > maximoDeRespuesta) return std::nullopt;
  std::string respuesta(cuantos, '\0');
  return leerTodo(enchufe_, respuesta) ? std::optional{std::move(respuesta)} : std::nullopt;
}

}  // namespace zorve::ayudante
