#include "ZorveTui/DespachadorDeConsola.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <thread>
#include <utility>

namespace zorve::tui {

DespachadorDeConsola::DespachadorDeConsola() {
  std::array<int, 2> extremos{-1, -1};
  (void)!::pipe(extremos.data());
  lectura_ = Descriptor{extremos[0]};
  escritura_ = Descriptor{extremos[1]};
  for (int const uno : extremos) {
    ::fcntl(uno, F_SETFD, FD_CLOEXEC);
    ::fcntl(uno, F_SETFL, O_NONBLOCK);
  }
}

void DespachadorDeConsola::despertar() const { (void)!::write(escritura_.numero(), "", 1); }

void DespachadorDeConsola::enPrincipal(Tarea tarea) {
  std::scoped_lock const turno{cerrojo_};
  principal_.push_back(std::move(tarea));
  despertar();
}

void DespachadorDeConsola::enSegundoPlano(Tarea tarea) { std::thread{std::move(tarea)}.detach(); }

void DespachadorDeConsola::enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) {
  std::scoped_lock const turno{cerrojo_};
  Aplazada nueva{Reloj::now() + espera, std::move(tarea)};
  auto const lugar = std::ranges::upper_bound(aplazadas_, nueva.cuando, {}, &Aplazada::cuando);
  aplazadas_.insert(lugar, std::move(nueva));
  despertar();
}

std::optional<std::chrono::milliseconds> DespachadorDeConsola::hastaLaProxima() {
  std::scoped_lock const turno{cerrojo_};
  if (aplazadas_.empty()) return std::nullopt;
  auto const falta = std::chrono::ceil<std::chrono::milliseconds>(aplazadas_.front().cuando - Reloj::now());
  return std::max(falta, std::chrono::milliseconds{0});
}

Despachador::Tarea DespachadorDeConsola::siguiente() {
  std::scoped_lock const turno{cerrojo_};
  while (!aplazadas_.empty() && aplazadas_.front().cuando <= Reloj::now()) {
    principal_.push_back(std::move(aplazadas_.front().tarea));
    aplazadas_.erase(aplazadas_.begin());
  }
  if (principal_.empty()) return {};
  auto tarea = std::move(principal_.front());
  principal_.pop_front();
  return tarea;
}

void DespachadorDeConsola::correrPendientes() {
  std::array<char, 64> avisos{};
  while (::read(lectura_.numero(), avisos.data(), avisos.size()) > 0) {
  }
  while (auto const tarea = siguiente()) tarea();
}

}  // namespace zorve::tui
