#pragma once

#include <QLineF>
#include <QWidget>

namespace veldix {

/// A line of any slant that lies above a canvas and moves without painting it again. It takes no clicks.
class LineaLibre : public QWidget {
    Q_OBJECT

public:
    /// Hidden until setVisible(true).
    LineaLibre(QRgb color, const QString& nombre, QWidget* lienzo);

    /// Ends in twips of the canvas; what lies outside it is not shown.
    void Pon(double x1, double y1, double x2, double y2);
    /// The ends as they were given.
    const QLineF& Puntos() const { return puntos_; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QColor color_;
    QLineF puntos_;
};

}  // namespace veldix
