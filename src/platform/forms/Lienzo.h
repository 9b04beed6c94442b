#pragma once

#include <QImage>
#include <QWidget>

#include <span>
#include <vector>

#include "platform/pantalla.h"
#include "platform/raster.h"

namespace veldix {

/// One drawing call as it was made, in twips. A line holds two points, a row of boxes
/// two x a box and two y, a clearing none.
struct OperacionLienzo {
    enum class Tipo { Limpia, Linea, Poligonal, Cajas };
    Tipo tipo = Tipo::Limpia;
    std::vector<double> xs;
    std::vector<double> ys;
    QRgb color = 0;
};

/// A horizontal or vertical line that lies above the picture and moves without painting it again.
class LineaSobre : public QWidget {
    Q_OBJECT

public:
    LineaSobre(QRgb color, QWidget* lienzo);

    /// Twips, both ends included. A slanted line is taken as straight along its longer side from (x1, y1).
    void Pon(double x1, double y1, double x2, double y2);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QRgb color_;
};

/// A plot surface: a picture kept in memory for what is painted once. All coordinates are in twips.
class Lienzo : public QWidget {
    Q_OBJECT

public:
    explicit Lienzo(QWidget* padre = nullptr);

    /// Clears the picture; a change of size leaves it cleared with the same background.
    void Limpia(QRgb fondo);
    void Linea(double x1, double y1, double x2, double y2, QRgb color);
    void Poligonal(std::span<const double> xs, std::span<const double> ys, QRgb color);

    /// A row of filled boxes of one height, from xs[2k] to xs[2k + 1], both ends included.
    void Cajas(std::span<const double> xs, double y1, double y2, QRgb color);

    double Ancho() const { return ATwips(width()); }
    double Alto() const { return ATwips(height()); }

    /// The line belongs to the canvas and is hidden until setVisible(true).
    LineaSobre* CreaLinea(QRgb color, const QString& nombre);

    /// Device pixels, at the device pixel ratio of the screen.
    const QImage& Imagen() const { return imagen_; }

    /// Every drawing call is also appended to `operaciones`, which must outlive its use; null ends it.
    void PonGrabadora(std::vector<OperacionLienzo>* operaciones) { grabadora_ = operaciones; }

Q_SIGNALS:
    /// The left button, in twips; while it is held the point may lie outside the canvas.
    void RatonBaja(double x, double y);
    void RatonMueve(double x, double y);
    void RatonSube(double x, double y);
    /// The picture was lost to a change of size or of screen, and is to be drawn again.
    void PideDibujo();

protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void Ajusta();
    void AjustaYAvisa();
    Imagen32 Superficie();
    void Graba(OperacionLienzo::Tipo tipo, std::span<const double> xs, std::span<const double> ys,
               QRgb color);
    double Escala() const { return imagen_.devicePixelRatio() / kTwipsPorPixel; }
    int Grueso() const { return qMax(1, qRound(imagen_.devicePixelRatio())); }

    QImage imagen_;
    QRgb fondo_;
    bool perdido_ = false;
    std::vector<OperacionLienzo>* grabadora_ = nullptr;
};

}  // namespace veldix
