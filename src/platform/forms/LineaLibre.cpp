#include "platform/forms/LineaLibre.h"

#include <QPainter>

#include "platform/pantalla.h"

namespace veldix {

namespace {

constexpr int kGrueso = 2;  // pixels, so that dark colours are told apart

}  // namespace

LineaLibre::LineaLibre(QRgb color, const QString& nombre, QWidget* lienzo) : QWidget(lienzo), color_(color)
{
    setObjectName(nombre);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

/// The widget covers what of the line is on the canvas, so that a move repaints no more than both places.
void LineaLibre::Pon(double x1, double y1, double x2, double y2)
{
    puntos_ = QLineF(x1, y1, x2, y2);
    const QRectF caja = QRectF(puntos_.p1() / kTwipsPorPixel, puntos_.p2() / kTwipsPorPixel).normalized();
    const QRectF visible = caja.adjusted(-kGrueso, -kGrueso, kGrueso, kGrueso) & parentWidget()->rect();
    const QRect nueva = visible.toAlignedRect();
    if (nueva == geometry())
        update();
    else
        setGeometry(nueva);
}

void LineaLibre::paintEvent(QPaintEvent*)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.translate(-pos());
    pintor.setPen(QPen(color_, kGrueso));
    pintor.drawLine(QLineF(puntos_.p1() / kTwipsPorPixel, puntos_.p2() / kTwipsPorPixel));
}

}  // namespace veldix
