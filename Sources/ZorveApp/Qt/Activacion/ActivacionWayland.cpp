#include "ZorveApp/Qt/Activacion/ActivacionWayland.h"

#include <qpa/qplatformnativeinterface.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xdg-activation-v1-client-protocol.h>

#include <QGuiApplication>
#include <QtGlobal>
#include <string_view>
#include <utility>

namespace zorve {

namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

template <class T>
T* recurso(QByteArray const& nombre) {
  return static_cast<T*>(QGuiApplication::platformNativeInterface()->nativeResourceForIntegration(nombre));
}

wl_surface* superficieConTeclado() {
  auto* const ventana = QGuiApplication::focusWindow();
  if (!ventana) return nullptr;
  return static_cast<wl_surface*>(
      QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", ventana));
}

/// One question to the compositor; it deletes itself with its answer.
struct Pregunta {
  std::function<void(Testigo)> alTener;

  static void hecha(void* datos, xdg_activation_token_v1* pregunta, char const* testigo) {
    std::unique_ptr<Pregunta> const esta{static_cast<Pregunta*>(datos)};
    xdg_activation_token_v1_destroy(pregunta);
    auto const texto = QString::fromUtf8(testigo);
    esta->alTener({texto, texto});
  }
};

constexpr xdg_activation_token_v1_listener oyenteDePregunta{.done = &Pregunta::hecha};

}  // namespace

/// What the compositor tells: its globals, the seat's devices, and the serials of key presses and clicks.
struct ActivacionWayland::Oyentes {
  static ActivacionWayland& de(void* datos) { return *static_cast<ActivacionWayland*>(datos); }

  static void global(void* datos, wl_registry* registro, std::uint32_t nombre, char const* interfaz,
                     std::uint32_t /*version*/) {
    std::string_view const cual{interfaz};
    if (cual == wl_seat_interface.name && !de(datos).asiento_) {
      de(datos).asiento_ = static_cast<wl_seat*>(wl_registry_bind(registro, nombre, &wl_seat_interface, 1));
      wl_seat_add_listener(de(datos).asiento_, &delAsiento, datos);
    }
    if (cual == xdg_activation_v1_interface.name) {
      de(datos).activacion_ = static_cast<xdg_activation_v1*>(
          wl_registry_bind(registro, nombre, &xdg_activation_v1_interface, 1));
    }
  }
  static void sinGlobal(void* /*datos*/, wl_registry* /*registro*/, std::uint32_t /*nombre*/) {}

  /// Devices come and go.
  static void capacidades(void* datos, wl_seat* asiento, std::uint32_t cuales) {
    auto& estas = de(datos);
    bool const conTeclado = (cuales & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
    bool const conPuntero = (cuales & WL_SEAT_CAPABILITY_POINTER) != 0;
    if (conTeclado && !estas.teclado_) {
      estas.teclado_ = wl_seat_get_keyboard(asiento);
      wl_keyboard_add_listener(estas.teclado_, &delTeclado, datos);
    }
    if (conPuntero && !estas.puntero_) {
      estas.puntero_ = wl_seat_get_pointer(asiento);
      wl_pointer_add_listener(estas.puntero_, &delPuntero, datos);
    }
    if (!conTeclado && estas.teclado_) wl_keyboard_destroy(std::exchange(estas.teclado_, nullptr));
    if (!conPuntero && estas.puntero_) wl_pointer_destroy(std::exchange(estas.puntero_, nullptr));
  }

  static void tecla(void* datos, wl_keyboard* /*teclado*/, std::uint32_t serie, std::uint32_t /*momento*/,
                    std::uint32_t /*tecla*/, std::uint32_t estado) {
    if (estado == WL_KEYBOARD_KEY_STATE_PRESSED) de(datos).ultimoGesto_ = serie;
  }
  static void boton(void* datos, wl_pointer* /*puntero*/, std::uint32_t serie, std::uint32_t /*momento*/,
                    std::uint32_t /*boton*/, std::uint32_t estado) {
    if (estado == WL_POINTER_BUTTON_STATE_PRESSED) de(datos).ultimoGesto_ = serie;
  }

  // Bound at version 1, whose events these are.
  static constexpr wl_registry_listener delRegistro{.global = &global, .global_remove = &sinGlobal};
  static constexpr wl_seat_listener delAsiento{.capabilities = &capacidades,
                                               .name = [](void*, wl_seat*, char const*) {}};
  static constexpr wl_keyboard_listener delTeclado{
      .keymap = [](void*, wl_keyboard*, std::uint32_t, int descriptor,
                   std::uint32_t) { ::close(descriptor); },
      .enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
      .leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
      .key = &tecla,
      .modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                      std::uint32_t) {}};
  static constexpr wl_pointer_listener delPuntero{
      .enter = [](void*, wl_pointer*, std::uint32_t, wl_surface*, wl_fixed_t, wl_fixed_t) {},
      .leave = [](void*, wl_pointer*, std::uint32_t, wl_surface*) {},
      .motion = [](void*, wl_pointer*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
      .button = &boton,
      .axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {}};
};

bool ActivacionWayland::hay() { return QGuiApplication::platformName().startsWith(u"wayland"); }

ActivacionWayland::ActivacionWayland() {
  auto* const pantalla = recurso<wl_display>("wl_display");
  if (!pantalla) return;
  registro_ = wl_display_get_registry(pantalla);
  wl_registry_add_listener(registro_, &Oyentes::delRegistro, this);
}

ActivacionWayland::~ActivacionWayland() {
  if (activacion_) xdg_activation_v1_destroy(activacion_);
  if (puntero_) wl_pointer_destroy(puntero_);
  if (teclado_) wl_keyboard_destroy(teclado_);
  if (asiento_) wl_seat_destroy(asiento_);
  if (registro_) wl_registry_destroy(registro_);
}

void ActivacionWayland::recibir(Testigo testigo) {
  auto const& cual = testigo.activacion.isEmpty() ? testigo.arranque : testigo.activacion;
  if (!cual.isEmpty()) qputenv(variable, cual.toUtf8());
}

void ActivacionWayland::alFrente(QWindow& ventana) {
  ventana.raise();
  ventana.requestActivate();
  agotar();
}

void ActivacionWayland::agotar() { qunsetenv(variable); }

void ActivacionWayland::pedir(std::function<void(Testigo)> alTener) {
  auto* const superficie = superficieConTeclado();
  if (!activacion_ || !asiento_ || !superficie || ultimoGesto_ == 0) return alTener({});
  auto* const pregunta = xdg_activation_v1_get_activation_token(activacion_);
  xdg_activation_token_v1_add_listener(pregunta, &oyenteDePregunta, new Pregunta{std::move(alTener)});
  xdg_activation_token_v1_set_serial(pregunta, ultimoGesto_, asiento_);
  xdg_activation_token_v1_set_surface(pregunta, superficie);
  xdg_activation_token_v1_commit(pregunta);
  wl_display_flush(recurso<wl_display>("wl_display"));
}

}  // namespace zorve
