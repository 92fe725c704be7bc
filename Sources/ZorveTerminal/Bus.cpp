#include "ZorveTerminal/Bus.h"

#include <dbus/dbus.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTerminal/DatosDelMensaje.h"
#include "ZorveTerminal/NodosNumerados.h"

namespace zorve::ayudante {

namespace {

struct SoltarMensaje {
  void operator()(DBusMessage* mensaje) const { dbus_message_unref(mensaje); }
};
using Mensaje = std::unique_ptr<DBusMessage, SoltarMensaje>;

/// The bus's error, freed at the end.
struct Error {
  Error() { dbus_error_init(&error); }
  Error(Error const&) = delete;
  Error& operator=(Error const&) = delete;
  ~Error() { dbus_error_free(&error); }
  [[nodiscard]] bool es(char const* nombre) const { return dbus_error_has_name(&error, nombre) != 0; }
  DBusError error{};
};

std::string direccionDelBus() {
  if (auto escrita = variable("DBUS_SESSION_BUS_ADDRESS"); !escrita.empty()) return escrita;
  auto const carpeta = variable("XDG_RUNTIME_DIR");
  return carpeta.empty() ? std::string{} : "unix:path=" + carpeta + "/bus";
}

/// Text on the bus is UTF-8 without NUL; what is not goes as no text.
std::string textoDelBus(std::string const& texto) {
  auto const cabe = !texto.contains('\0') && dbus_validate_utf8(texto.c_str(), nullptr) != 0;
  return cabe ? texto : std::string{};
}

class Escritor {
 public:
  explicit Escritor(DBusMessage* mensaje) { dbus_message_iter_init_append(mensaje, &donde_); }

  void operator()(std::int32_t valor) { dbus_message_iter_append_basic(&donde_, DBUS_TYPE_INT32, &valor); }
  void operator()(std::uint32_t valor) { dbus_message_iter_append_basic(&donde_, DBUS_TYPE_UINT32, &valor); }
  void operator()(std::string const& valor) {
    auto const texto = textoDelBus(valor);
    char const* const letras = texto.c_str();
    dbus_message_iter_append_basic(&donde_, DBUS_TYPE_STRING, static_cast<void const*>(&letras));
  }
  void operator()(std::vector<std::string> const& valores) {
    dentro(DBUS_TYPE_ARRAY, DBUS_TYPE_STRING_AS_STRING, [&] {
      for (auto const& uno : valores) (*this)(uno);
    });
  }
  void operator()(std::vector<std::uint32_t> const& valores) {
    dentro(DBUS_TYPE_ARRAY, DBUS_TYPE_UINT32_AS_STRING, [&] {
      for (auto const uno : valores) (*this)(uno);
    });
  }
  void operator()(Variante const& variante) {
    dentro(DBUS_TYPE_VARIANT, firma(variante.valor), [&] { std::visit(*this, variante.valor); });
  }
  void operator()(Variantes const& variantes) {
    dentro(DBUS_TYPE_ARRAY, DBUS_TYPE_VARIANT_AS_STRING, [&] {
      for (auto const& uno : variantes.valores) (*this)(Variante{uno});
    });
  }
  void operator()(SinOpciones /*ninguna*/) {
    dentro(DBUS_TYPE_ARRAY, "{sv}", [] {});
  }
  void operator()(Opcion const& opcion) {
    dentro(DBUS_TYPE_ARRAY, "{sv}", [&] {
      dentro(DBUS_TYPE_DICT_ENTRY, nullptr, [&] {
        (*this)(opcion.nombre);
        (*this)(Variante{opcion.valor});
      });
    });
  }

 private:
  static char const* firma(DatoSimple const& dato) {
    if (std::holds_alternative<std::int32_t>(dato)) return DBUS_TYPE_INT32_AS_STRING;
    return std::holds_alternative<std::uint32_t>(dato) ? DBUS_TYPE_UINT32_AS_STRING
                                                       : DBUS_TYPE_STRING_AS_STRING;
  }
  template <class Contenido>
  void dentro(int tipo, char const* firma, Contenido const& contenido) {
    DBusMessageIter fuera = donde_;
    dbus_message_iter_open_container(&fuera, tipo, firma, &donde_);
    contenido();
    dbus_message_iter_close_container(&fuera, &donde_);
    donde_ = fuera;
  }

  DBusMessageIter donde_{};
};

bool esPara(Metodo const& metodo, std::string const& quien, DBusMessage* llamada) {
  return !quien.empty() && dbus_message_has_sender(llamada, quien.c_str()) != 0 &&
         dbus_message_is_method_call(llamada, metodo.interfaz.c_str(), metodo.nombre.c_str()) != 0 &&
         dbus_message_has_path(llamada, metodo.objeto.c_str()) != 0;
}

bool valido(Metodo const& metodo) {
  return dbus_validate_bus_name(metodo.servicio.c_str(), nullptr) != 0 &&
         dbus_validate_path(metodo.objeto.c_str(), nullptr) != 0;
}

}  // namespace

struct Bus::Conexion {
  Conexion() {
    auto const direccion = direccionDelBus();
    Error fallo;
    if (direccion.empty()) return;
    bus = dbus_connection_open_private(direccion.c_str(), &fallo.error);
    if (bus == nullptr) return;
    dbus_connection_set_exit_on_disconnect(bus, 0);
    if (dbus_bus_register(bus, &fallo.error) == 0) cerrar();
  }
  Conexion(Conexion const&) = delete;
  Conexion& operator=(Conexion const&) = delete;
  ~Conexion() {
    if (bus != nullptr) cerrar();
  }
  void cerrar() {
    dbus_connection_close(bus);
    dbus_connection_unref(bus);
    bus = nullptr;
  }
  DBusConnection* bus = nullptr;
};

Bus::Bus() : conexion_{std::make_unique<Conexion>()} {}

Bus::~Bus() = default;

bool Bus::abierto() const { return conexion_->bus != nullptr; }

Respuesta Bus::llamar(Metodo const& metodo, std::span<Argumento const> argumentos,
                      std::chrono::milliseconds plazo) const {
  if (!abierto() || !valido(metodo)) return std::unexpected{FalloDeBus::rechaza};
  Mensaje const pregunta{dbus_message_new_method_call(metodo.servicio.c_str(), metodo.objeto.c_str(),
                                                      metodo.interfaz.c_str(), metodo.nombre.c_str())};
  if (!pregunta) return std::unexpected{FalloDeBus::rechaza};
  dbus_message_set_auto_start(pregunta.get(), 0);
  Escritor escritor{pregunta.get()};
  for (auto const& argumento : argumentos) std::visit(escritor, argumento);
  Error fallo;
  Mensaje const respuesta{dbus_connection_send_with_reply_and_block(
      conexion_->bus, pregunta.get(), static_cast<int>(plazo.count()), &fallo.error)};
  if (!respuesta) {
    auto const callo = fallo.es(DBUS_ERROR_NO_REPLY) || fallo.es(DBUS_ERROR_TIMEOUT);
    return std::unexpected{callo ? FalloDeBus::calla : FalloDeBus::rechaza};
  }
  return datosDelMensaje(respuesta.get());
}

std::string Bus::nombre() const {
  char const* const suyo = abierto() ? dbus_bus_get_unique_name(conexion_->bus) : nullptr;
  return suyo != nullptr ? suyo : "";
}

std::optional<std::string> Bus::recibir(Metodo const& nuestro, std::chrono::milliseconds plazo,
                                        std::string const& quien) const {
  using Reloj = std::chrono::steady_clock;
  auto const limite = Reloj::now() + plazo;
  while (abierto()) {
    for (Mensaje mensaje{dbus_connection_pop_message(conexion_->bus)}; mensaje;
         mensaje.reset(dbus_connection_pop_message(conexion_->bus))) {
      if (!esPara(nuestro, quien, mensaje.get())) continue;
      auto datos = datosDelMensaje(mensaje.get());
      auto* const texto = datos.empty() ? nullptr : std::get_if<std::string>(&datos.front());
      if (texto != nullptr) return std::move(*texto);
    }
    auto const resto = std::chrono::ceil<std::chrono::milliseconds>(limite - Reloj::now()).count();
    if (resto <= 0 || dbus_connection_read_write(conexion_->bus, static_cast<int>(resto)) == 0) break;
  }
  return std::nullopt;
}

std::string Bus::duenoDe(std::string const& servicio) const {
  if (dbus_validate_bus_name(servicio.c_str(), nullptr) == 0) return {};
  std::vector<Argumento> const argumentos{servicio};
  auto const respuesta =
      llamar({DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "GetNameOwner"}, argumentos);
  auto const* const dueno =
      respuesta && !respuesta->empty() ? std::get_if<std::string>(&respuesta->front()) : nullptr;
  return dueno != nullptr ? *dueno : std::string{};
}

pid_t Bus::procesoDe(std::string const& servicio) const {
  if (dbus_validate_bus_name(servicio.c_str(), nullptr) == 0) return 0;
  std::vector<Argumento> const argumentos{servicio};
  auto const respuesta = llamar(
      {DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "GetConnectionUnixProcessID"}, argumentos);
  if (!respuesta || respuesta->empty()) return 0;
  auto const* const pid = std::get_if<std::int64_t>(&respuesta->front());
  return pid != nullptr ? static_cast<pid_t>(*pid) : 0;
}

std::expected<std::vector<std::uint32_t>, FalloDeBus> Bus::numerados(std::string const& servicio,
                                                                     std::string const& objeto,
                                                                     std::string_view prefijo) const {
  auto const respuesta = llamar({servicio, objeto, DBUS_INTERFACE_INTROSPECTABLE, "Introspect"});
  if (!respuesta) return std::unexpected{respuesta.error()};
  auto const* const texto = respuesta->empty() ? nullptr : std::get_if<std::string>(&respuesta->front());
  return texto != nullptr ? nodosNumerados(*texto, prefijo) : std::vector<std::uint32_t>{};
}

}  // namespace zorve::ayudante
