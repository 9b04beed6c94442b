#include "platform/forms/muestra_pintada.h"

#include <QElapsedTimer>
#include <QThread>
#include <QWindow>

#include "platform/forms/escena.h"

namespace veldix {

namespace {

constexpr int kEsperaMs = 200;

}  // namespace

void MuestraPintada(QWidget& ventana)
{
    ventana.show();
    if (!ventana.isWindow()) ventana.raise();
    PasaCola();
    QElapsedTimer reloj;
    reloj.start();
    const QWindow* marco = ventana.window()->windowHandle();
    while (marco && ventana.isVisible() && !marco->isExposed() && reloj.elapsed() < kEsperaMs) {
        QThread::msleep(2);
        PasaCola();
    }
    ventana.repaint();
}

}  // namespace veldix
