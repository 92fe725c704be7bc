#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <cstdint>

namespace zorve {

/// Knows the hosts of tray icons: a StatusNotifierWatcher with a host on the session bus, an XEmbed tray on
/// the X server (its MANAGER message tells of a new one). Nothing is polled. Main thread only.
class VigiaDeBandejas final : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  explicit VigiaDeBandejas(QObject* padre = nullptr);
  ~VigiaDeBandejas() override;

  /// Whether a host of either kind runs.
  [[nodiscard]] static bool hay();
  /// Whether the StatusNotifier host in use answers a single click with the menu: it is told by the name of
  /// the process that has the watcher's name.
  [[nodiscard]] static bool soloMuestraMenus();

  bool nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* resultado) override;

 Q_SIGNALS:
  /// A host has come up, the first or another one.
  void llego();

 private:
  /// A host that is too busy to answer at once, as a desktop's shell is at login, counts when it does.
  void preguntarSinEsperar();

  std::uint32_t deGerente_ = 0;
  std::uint32_t deBandeja_ = 0;
};

/// Whether a host whose process has this name (at most 15 bytes, as the kernel keeps it) opens menus on a
/// single click.
[[nodiscard]] bool esDeMenus(QByteArray const& proceso);

}  // namespace zorve
