#pragma once

class QWidget;

namespace veldix {

/// Shows a window and serves the queue, the user's input left out, until it has been painted, a fifth of a
/// second at most: for work that follows at once in the thread of the windows.
void MuestraPintada(QWidget& ventana);

}  // namespace veldix
