#include <dispatch/dispatch.h>

#include <chrono>
#include <deque>
#include <mutex>
#include <thread>

#import "MacOS/Tramoya/Interior.h"

// The main queue, which runs when a test turns it; the background, where work has threads of its own; the
// time of what is put off.

namespace tramoya {

namespace {

struct Aplazada {
  double cuando;
  std::function<void()> tarea;
};

struct Cola {
  std::mutex cerrojo;
  std::deque<std::function<void()>> tareas;
  std::deque<Aplazada> aplazadas;
  double ahora = 0;
};

/// Left to the program's end: threads may hand work over until then.
Cola& cola() {
  static auto* const unica = new Cola;
  return *unica;
}

std::function<void()> siguiente() {
  std::lock_guard const guarda{cola().cerrojo};
  if (cola().tareas.empty()) return {};
  auto tarea = std::move(cola().tareas.front());
  cola().tareas.pop_front();
  return tarea;
}

}  // namespace

void encola(std::function<void()> tarea) {
  std::lock_guard const guarda{cola().cerrojo};
  cola().tareas.push_back(std::move(tarea));
}

void girar() {
  @autoreleasepool {
    while (auto const tarea = siguiente()) {
      @autoreleasepool {
        tarea();
      }
    }
    acomodar();
  }
}

bool girarHasta(std::function<bool()> const& listo) {
  auto const limite = std::chrono::steady_clock::now() + std::chrono::seconds{10};
  for (girar(); !listo(); girar()) {
    if (std::chrono::steady_clock::now() > limite) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds{1});
  }
  return true;
}

void avanzar(double segundos) {
  std::lock_guard const guarda{cola().cerrojo};
  auto& c = cola();
  c.ahora += segundos;
  while (!c.aplazadas.empty() && c.aplazadas.front().cuando <= c.ahora) {
    c.tareas.push_back(std::move(c.aplazadas.front().tarea));
    c.aplazadas.pop_front();
  }
}

double ahora() {
  std::lock_guard const guarda{cola().cerrojo};
  return cola().ahora;
}

void reponerDespacho() {
  std::lock_guard const guarda{cola().cerrojo};
  cola().tareas.clear();
  cola().aplazadas.clear();
  cola().ahora = 1000;
}

}  // namespace tramoya

extern "C" {

dispatch_queue_t dispatch_get_main_queue(void) {
  static NSObject* const principal = [[NSObject alloc] init];
  return principal;
}

dispatch_queue_t dispatch_get_global_queue(intptr_t, uintptr_t) {
  static NSObject* const fondo = [[NSObject alloc] init];
  return fondo;
}

void dispatch_async(dispatch_queue_t, void (^bloque)(void)) {
  tramoya::encola([bloque] { bloque(); });
}

void dispatch_async_f(dispatch_queue_t cola, void* con, dispatch_function_t tarea) {
  if (cola == dispatch_get_main_queue())
    tramoya::encola([tarea, con] { tarea(con); });
  else
    std::thread{[tarea, con] { tarea(con); }}.detach();
}

dispatch_time_t dispatch_time(dispatch_time_t, int64_t nanos) { return static_cast<dispatch_time_t>(nanos); }

void dispatch_after_f(dispatch_time_t cuando, dispatch_queue_t, void* con, dispatch_function_t tarea) {
  using namespace tramoya;
  std::lock_guard const guarda{cola().cerrojo};
  double const hora = cola().ahora + static_cast<double>(cuando) / 1e9;
  auto lugar = cola().aplazadas.begin();
  while (lugar != cola().aplazadas.end() && lugar->cuando <= hora) ++lugar;
  cola().aplazadas.insert(lugar, {hora, [tarea, con] { tarea(con); }});
}
}

@implementation NSDate {
  std::chrono::steady_clock::time_point _cuando;
}
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)segundos {
  NSDate* const nueva = [[self alloc] init];
  nueva->_cuando =
      std::chrono::steady_clock::now() + std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                                             std::chrono::duration<double>{segundos});
  return nueva;
}
- (NSTimeInterval)timeIntervalSinceNow {
  return std::chrono::duration<double>{_cuando - std::chrono::steady_clock::now()}.count();
}
@end

NSString* const NSDefaultRunLoopMode = @"kCFRunLoopDefaultMode";

@implementation NSRunLoop
+ (NSRunLoop*)mainRunLoop {
  static NSRunLoop* const unico = [[NSRunLoop alloc] init];
  return unico;
}
/// Until `limite`, with the time of what is put off going on as the clock does.
- (BOOL)runMode:(NSString*)modo beforeDate:(NSDate*)limite {
  double const falta = limite.timeIntervalSinceNow;
  std::this_thread::sleep_for(std::chrono::duration<double>{falta});
  tramoya::avanzar(falta);
  tramoya::girar();
  return YES;
}
@end
