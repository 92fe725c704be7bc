#pragma once

#include <QDBusContext>
#include <QObject>
#include <QString>

namespace zorve::medir {

/// A host of StatusNotifier items on the session bus, with just what a program needs to put its icon up.
class Anfitrion final : public QObject, public QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hayAnfitrion CONSTANT)
  Q_PROPERTY(int ProtocolVersion READ version CONSTANT)

 public:
  /// Takes the name and the object. Gives whether both could be had.
  bool ocupar();

  [[nodiscard]] static bool hayAnfitrion() { return true; }
  [[nodiscard]] static int version() { return 0; }
  [[nodiscard]] bool hayIcono() const { return !servicio_.isEmpty(); }

  /// A left click on the icon.
  void pulsarIcono() const;

 public Q_SLOTS:
  // The method that programs call.
  Q_SCRIPTABLE void RegisterStatusNotifierItem(QString const& servicio);

 private:
  QString servicio_;
};

}  // namespace zorve::medir
