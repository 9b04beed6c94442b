#pragma once

#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace veldix {

/// Pictures drawn as vectors at any size, in the colours the palette has when they are painted.
QIcon IconoZoom();      ///< a magnifier over a box
QIcon IconoAdelante();  ///< an arrow to the right
QIcon IconoAtras();     ///< an arrow to the left
QIcon IconoImprimir();  ///< a printer

/// The program's own icon: the emblem reduced to one trace and one cursor. Colours do not follow the palette.
QIcon IconoPrograma();

/// Paints a fault record on the panel of an oscillograph, filling the rectangle; the painter's state is
/// restored. Meant for 160 x 100 and above.
void PintaEmblema(QPainter& pintor, const QRectF& rect);

/// The emblem at the proportion 8:5, centred in the widget.
class Emblema : public QWidget {
    Q_OBJECT

public:
    explicit Emblema(QWidget* padre = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
};

}  // namespace veldix
