#include "platform/forms/Lienzo.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace veldix {
namespace {

// Far enough for any screen, and within the sizes a widget may have.
constexpr int kLejos = 1 << 20;

QRgb Opaco(QRgb color)
{
    return color | 0xff000000U;
}

}  // namespace

LineaSobre::LineaSobre(QRgb color, QWidget* lienzo) : QWidget(lienzo), color_(color)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void LineaSobre::Pon(double x1, double y1, double x2, double y2)
{
    if (std::abs(x2 - x1) > std::abs(y2 - y1)) {
        y2 = y1;
    } else {
        x2 = x1;
    }
    const auto pixel = [](double twips) { return std::clamp(APixeles(twips), -kLejos, kLejos); };
    const QPoint uno(pixel(std::min(x1, x2)), pixel(std::min(y1, y2)));
    const QPoint otro(pixel(std::max(x1, x2)), pixel(std::max(y1, y2)));
    setGeometry(QRect(uno, otro));
}

void LineaSobre::paintEvent(QPaintEvent* evento)
{
    QPainter(this).fillRect(evento->rect(), QColor(color_));
}

Lienzo::Lienzo(QWidget* padre) : QWidget(padre), fondo_(qRgb(255, 255, 255))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Lienzo"));
}

void Lienzo::Limpia(QRgb fondo)
{
    Graba(OperacionLienzo::Tipo::Limpia, {}, {}, fondo);
    fondo_ = Opaco(fondo);
    Rellena(Superficie(), fondo_);
    perdido_ = false;
    update();
}

void Lienzo::Linea(double x1, double y1, double x2, double y2, QRgb color)
{
    const std::array<double, 2> xs{x1, x2};
    const std::array<double, 2> ys{y1, y2};
    Graba(OperacionLienzo::Tipo::Linea, xs, ys, color);
    const Imagen32 superficie = Superficie();
    TrazaPoligonal(superficie, xs, ys, Escala(), Opaco(color), Grueso());
    update();
}

void Lienzo::Poligonal(std::span<const double> xs, std::span<const double> ys, QRgb color)
{
    Graba(OperacionLienzo::Tipo::Poligonal, xs, ys, color);
    const Imagen32 superficie = Superficie();
    TrazaPoligonal(superficie, xs, ys, Escala(), Opaco(color), Grueso());
    update();
}

void Lienzo::Cajas(std::span<const double> xs, double y1, double y2, QRgb color)
{
    Graba(OperacionLienzo::Tipo::Cajas, xs, std::array{y1, y2}, color);
    const Imagen32 superficie = Superficie();
    RellenaCajas(superficie, xs, y1, y2, Escala(), Opaco(color));
    update();
}

LineaSobre* Lienzo::CreaLinea(QRgb color, const QString& nombre)
{
    auto* linea = new LineaSobre(color, this);
    linea->setObjectName(nombre);
    return linea;
}

// Brings the picture to the present size and screen, at the cost of its contents.
void Lienzo::Ajusta()
{
    const qreal razon = devicePixelRatioF();
    const QSize medida(qCeil(width() * razon), qCeil(height() * razon));
    if (imagen_.size() == medida && qFuzzyCompare(imagen_.devicePixelRatio(), razon)) return;
    imagen_ = QImage(medida, QImage::Format_RGB32);
    imagen_.setDevicePixelRatio(razon);
    imagen_.fill(fondo_);
    perdido_ = true;
}

void Lienzo::AjustaYAvisa()
{
    Ajusta();
    if (!perdido_) return;
    perdido_ = false;
    update();
    Q_EMIT PideDibujo();
}

// A hidden widget learns of its size late, so the picture is brought up to date at each drawing.
Imagen32 Lienzo::Superficie()
{
    Ajusta();
    if (imagen_.isNull()) return {};
    return {reinterpret_cast<std::uint32_t*>(imagen_.bits()), imagen_.width(), imagen_.height(),
            static_cast<int>(imagen_.bytesPerLine() / qsizetype{sizeof(std::uint32_t)})};
}

void Lienzo::Graba(OperacionLienzo::Tipo tipo, std::span<const double> xs, std::span<const double> ys,
                   QRgb color)
{
    if (grabadora_ == nullptr) return;
    grabadora_->push_back({tipo, {xs.begin(), xs.end()}, {ys.begin(), ys.end()}, color});
}

bool Lienzo::event(QEvent* evento)
{
    const bool atendido = QWidget::event(evento);
    if (evento->type() == QEvent::ScreenChangeInternal) AjustaYAvisa();
    return atendido;
}

void Lienzo::paintEvent(QPaintEvent* evento)
{
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    pintor.drawImage(QPoint(0, 0), imagen_);
}

void Lienzo::resizeEvent(QResizeEvent*)
{
    AjustaYAvisa();
}

void Lienzo::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton) return QWidget::mousePressEvent(evento);
    Q_EMIT RatonBaja(evento->position().x() * kTwipsPorPixel, evento->position().y() * kTwipsPorPixel);
}

void Lienzo::mouseMoveEvent(QMouseEvent* evento)
{
    if (!evento->buttons().testFlag(Qt::LeftButton)) return QWidget::mouseMoveEvent(evento);
    Q_EMIT RatonMueve(evento->position().x() * kTwipsPorPixel, evento->position().y() * kTwipsPorPixel);
}

void Lienzo::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton) return QWidget::mouseReleaseEvent(evento);
    Q_EMIT RatonSube(evento->position().x() * kTwipsPorPixel, evento->position().y() * kTwipsPorPixel);
}

}  // namespace veldix
