#pragma once

#include <QObject>
#include <QVariantMap>

#include "ZorveApp/InterruptorDeVentanas.h"

class QDBusMessage;

namespace zorve {

/// The switch of our extension of GNOME Shell, by org.gnome.Shell.Extensions on the session bus: asked, and
/// told when it changes. Where the shell does not know the extension, its files tell whether it will at the
/// next login. Main thread only.
class InterruptorDeGnome final : public QObject, public InterruptorDeVentanas {
  Q_OBJECT

 public:
  explicit InterruptorDeGnome(QObject* padre = nullptr);

  void mirar() override;
  void alternar() override;

 private Q_SLOTS:
  void alCambiar(QString const& uuid);

 private:
  void preguntar();
  void anotar(QVariantMap const& datos);
  void encender();
  void pedir(QString const& metodo);
  void rehusar(Rechazo rechazo) { rechazo_.escribir(std::move(rechazo)); }
};

}  // namespace zorve
