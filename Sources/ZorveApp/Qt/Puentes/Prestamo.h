#pragma once

#include <QQmlEngine>
#include <QVariant>

namespace zorve {

/// Lends `objeto` to the QML of `motor` as its singleton of type `T`. It outlives the engine, and remains its
/// owner's. Before the first view that names the type is loaded. A `T` has a static `create` that gives what
/// was lent, and no default constructor: the engine would rather make one of its own.
template <class T>
void prestar(QQmlEngine& motor, T& objeto) {
  QJSEngine::setObjectOwnership(&objeto, QJSEngine::CppOwnership);
  motor.setProperty(T::staticMetaObject.className(), QVariant::fromValue(&objeto));
}

/// What was lent to `motor`, null for nothing.
template <class T>
[[nodiscard]] T* prestado(QQmlEngine const& motor) {
  return motor.property(T::staticMetaObject.className()).template value<T*>();
}

}  // namespace zorve
