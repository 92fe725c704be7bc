#include "ZorveApp/Qt/Ventanas/Barras.h"

#include <algorithm>

#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

/// A bar takes less than this share of a screen's height or width; what takes more reserves no edge of it.
constexpr int partes = 2;

QRect nativo(QScreen const& pantalla) {
  auto const g = pantalla.geometry();
  return {g.topLeft(), QSizeF{QSizeF{g.size()} * pantalla.devicePixelRatio()}.toSize()};
}

bool esHorizontal(QRect const& trozo, QRect const& marco) {
  return trozo.height() * partes <= marco.height() &&
         (trozo.width() >= trozo.height() || trozo.width() * partes > marco.width());
}

void recortarPor(QRect& libre, QRect const& trozo, QRect const& marco) {
  if (esHorizontal(trozo, marco)) {
    if (trozo.top() <= marco.top())
      libre.setTop(std::max(libre.top(), trozo.bottom() + 1));
    else if (trozo.bottom() >= marco.bottom())
      libre.setBottom(std::min(libre.bottom(), trozo.top() - 1));
  } else if (trozo.width() * partes <= marco.width()) {
    if (trozo.left() <= marco.left())
      libre.setLeft(std::max(libre.left(), trozo.right() + 1));
    else if (trozo.right() >= marco.right())
      libre.setRight(std::min(libre.right(), trozo.left() - 1));
  }
}

}  // namespace

std::vector<QRect> barrasDePuntal(std::vector<std::uint32_t> const& puntal, QSize total) {
  if (puntal.size() < 12) return {};
  auto const n = [&](std::size_t i) {
    return static_cast<int>(std::min<std::uint32_t>(puntal[i], 1U << 20U));
  };
  std::vector<QRect> barras;
  auto const anadir = [&](std::size_t cual, QPoint desde, QPoint hasta) {
    if (n(cual) > 0) barras.emplace_back(desde, hasta);
  };
  anadir(0, {0, n(4)}, {n(0) - 1, n(5)});
  anadir(1, {total.width() - n(1), n(6)}, {total.width() - 1, n(7)});
  anadir(2, {n(8), 0}, {n(9), n(2) - 1});
  anadir(3, {n(10), total.height() - n(3)}, {n(11), total.height() - 1});
  return barras;
}

std::vector<QRect> barrasDelEscritorio(xcb_connection_t* conexion, std::uint32_t raiz) {
  X11::Respuesta<xcb_get_geometry_reply_t> const medida{
      xcb_get_geometry_reply(conexion, xcb_get_geometry(conexion, raiz), nullptr)};
  if (!medida) return {};
  std::vector<QRect> barras;
  for (auto const ventana : X11::numeros(conexion, raiz, X11::atomo(conexion, "_NET_CLIENT_LIST"))) {
    auto const suyas =
        barrasDePuntal(X11::numeros(conexion, ventana, X11::atomo(conexion, "_NET_WM_STRUT_PARTIAL")),
                       {medida->width, medida->height});
    barras.insert(barras.end(), suyas.begin(), suyas.end());
  }
  return barras;
}

QRect sinBarras(QRect marco, std::vector<QRect> const& barras) {
  auto libre = marco;
  for (auto const& barra : barras) {
    auto const trozo = barra.intersected(marco);
    if (!trozo.isEmpty()) recortarPor(libre, trozo, marco);
  }
  return libre.isValid() ? libre : marco;
}

QRect sinBarras(QScreen const& pantalla, std::vector<QRect> const& barras) {
  auto const marco = nativo(pantalla);
  auto const libre = sinBarras(marco, barras);
  auto const escala = pantalla.devicePixelRatio();
  auto const propio = [&](int valor, int origen) {
    return static_cast<int>((valor - origen) / escala) + origen;
  };
  QRect const nuestra{QPoint{propio(libre.left(), marco.left()), propio(libre.top(), marco.top())},
                      QPoint{propio(libre.right(), marco.left()), propio(libre.bottom(), marco.top())}};
  auto const comun = nuestra.intersected(pantalla.availableGeometry());
  return comun.isValid() ? comun : pantalla.availableGeometry();
}

}  // namespace zorve
