#pragma once

#include <QDBusVariant>
#include <QObject>
#include <array>

#include "ZorveApp/Qt/Dibujo/EstiloQt.h"

namespace zorve {

/// What the person asks of every program, as the desktop portal tells it. Where there is no portal the
/// defaults stand. Main thread only.
class GustosDelEscritorio final : public QObject {
  Q_OBJECT

 public:
  explicit GustosDelEscritorio(QObject* padre = nullptr);

  /// Asks without waiting, now and whenever the portal comes up; `cambio` tells of answers. Once.
  void preguntar();

  [[nodiscard]] bool claro() const { return claro_; }
  [[nodiscard]] GustosDePantalla const& dePantalla() const { return dePantalla_; }

 Q_SIGNALS:
  void cambio();

 private Q_SLOTS:
  void alCambiar(QString const& espacio, QString const& clave, QDBusVariant const& valor);

 private:
  void leerTodo();
  void leer(char const* espacio, char const* clave);
  void anotar(QString const& espacio, QString const& clave, QVariant const& valor);

  bool claro_ = false;
  /// What the portal's own setting says, and GNOME's: either is enough.
  std::array<bool, 2> contraste_{};
  std::array<bool, 2> quietud_{};
  GustosDePantalla dePantalla_;
};

}  // namespace zorve
