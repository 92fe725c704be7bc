#pragma once

#include <chrono>
#include <span>
#include <string_view>

#include <sys/types.h>

#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve::ayudante {

/// Connects to the local socket of that name, a path or, after "@", an abstract name; nothing if nobody
/// listens there. Reads and writes fail after `plazo`, if one is given.
[[nodiscard]] Descriptor conectarA(std::string_view nombre, std::chrono::milliseconds plazo = {});

/// The process of this user's that listens at the other end, or 0.
[[nodiscard]] pid_t quienEscucha(Descriptor const& enchufe);

/// False when not everything was taken.
[[nodiscard]] bool escribirTodo(Descriptor const& enchufe, std::string_view texto);

/// False when fewer bytes came.
[[nodiscard]] bool leerTodo(Descriptor const& enchufe, std::span<char> destino);

}  // namespace zorve::ayudante
