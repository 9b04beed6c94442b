#pragma once

#include <QWidget>

#include <initializer_list>

namespace veldix {

/// Room that a window manager's frame and title take of a screen, in logical pixels.
inline constexpr QSize kMarcoVentana(8, 40);

/// The order in which the tab key goes through a form: block after block, within a block the controls as they
/// were made.
void OrdenaTeclas(std::initializer_list<QWidget*> bloques);

/// A form that is larger than its screen, as on a small one with large letters, becomes scrolled. Returns
/// whether it had to; its layout then is that of a widget inside.
bool CabeEnPantalla(QWidget& ventana);

}  // namespace veldix
