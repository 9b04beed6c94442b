#include "platform/forms/iconos.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veldix {
namespace {

const QColor kRojo(0xff, 0x6b, 0x5c), kVerde(0x58, 0xd6, 0x8d), kAzul(0x5a, 0xa8, 0xff);
const QColor kAmarillo(0xff, 0xd5, 0x3e), kCian(0x35, 0xe0, 0xea);
const QColor kFondo(0x0c, 0x18, 0x22), kFondoAlto(0x16, 0x2a, 0x38);

QColor Transparente(QColor color, qreal opacidad)
{
    color.setAlphaF(color.alphaF() * static_cast<float>(opacidad));
    return color;
}

// Colours of a toolbar picture, as the palette has them now.
struct Tinta {
    QColor trazo, acento;
};

Tinta TintaPara(QIcon::Mode modo)
{
    const QPalette paleta = QGuiApplication::palette();
    if (modo == QIcon::Disabled) {
        const QColor gris = paleta.color(QPalette::Disabled, QPalette::ButtonText);
        return {gris, gris};
    }
    if (modo == QIcon::Selected) {
        const QColor texto = paleta.color(QPalette::Active, QPalette::HighlightedText);
        return {texto, texto};
    }
    return {paleta.color(QPalette::Active, QPalette::ButtonText),
            paleta.color(QPalette::Active, QPalette::Highlight)};
}

QPen Pluma(const QColor& color, qreal grosor)
{
    return QPen(color, grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// The toolbar pictures are drawn on a square of 16 units.

void DibujaZoom(QPainter& p, const Tinta& tinta)
{
    const QPointF centro(9, 8.5);
    QPainterPath lente;
    lente.addEllipse(centro, 4, 4);
    QPainterPath visible;
    visible.addRect(0, 0, 16, 16);
    QPainterPath hueco;
    hueco.addEllipse(centro, 5.4, 5.4);

    p.save();
    p.setClipPath(visible - hueco);
    p.setBrush(Transparente(tinta.acento, 0.22));
    p.setPen(Pluma(tinta.acento, 1));
    p.drawRect(QRectF(1.5, 1.5, 10, 9));
    p.restore();

    p.setBrush(Transparente(tinta.acento, 0.3));
    p.setPen(Pluma(tinta.trazo, 1.4));
    p.drawPath(lente);
    p.setPen(Pluma(tinta.trazo, 2));
    p.drawLine(QPointF(12.2, 11.7), QPointF(14.7, 14.2));
}

void DibujaAdelante(QPainter& p, const Tinta& tinta)
{
    const QPolygonF flecha(
        {{1.5, 5.5}, {7.5, 5.5}, {7.5, 1.5}, {14.5, 8}, {7.5, 14.5}, {7.5, 10.5}, {1.5, 10.5}});
    p.setBrush(Transparente(tinta.acento, 0.45));
    p.setPen(Pluma(tinta.trazo, 1));
    p.drawPolygon(flecha);
}

void DibujaAtras(QPainter& p, const Tinta& tinta)
{
    p.translate(16, 0);
    p.scale(-1, 1);
    DibujaAdelante(p, tinta);
}

void DibujaImprimir(QPainter& p, const Tinta& tinta)
{
    p.setPen(Pluma(tinta.trazo, 1));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({{4.5, 5.5}, {4.5, 1.5}, {11.5, 1.5}, {11.5, 5.5}}));

    QPainterPath cuerpo;
    cuerpo.addRoundedRect(QRectF(1, 5, 14, 7.5), 1.3, 1.3);
    QPainterPath hueco;
    hueco.addRect(3.5, 8.5, 9, 6);
    p.fillPath(cuerpo - hueco, tinta.trazo);

    p.drawRect(QRectF(4.5, 9.5, 7, 5));
    p.setPen(QPen(tinta.acento, 1, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF(6, 11.5), QPointF(10, 11.5));
    p.drawLine(QPointF(6, 13.2), QPointF(9, 13.2));
}

// The emblem. Its curves run over x in [0, 1], with the fault between kFalla and kDespeje.

constexpr double kFalla = 0.34, kDespeje = 0.70;

double Fase(double x, int fase)
{
    constexpr double kCiclos = 9;
    return std::sin(2 * std::numbers::pi * (kCiclos * (x - kFalla) - fase / 3.0) + 0.5);
}

// In [-1, 1]: load, fault with a decaying offset, and the breaker putting the arc out.
double Corriente(double x, int fase)
{
    constexpr double kCarga = 0.16;
    constexpr double kPico[] = {0.72, 0.66, 0.20};
    if (x < kFalla) return kCarga * Fase(x, fase);
    const double continua = (kCarga - kPico[fase]) * Fase(kFalla, fase);
    const double arco = std::clamp(1 - (x - kDespeje) / 0.05, 0.0, 1.0);
    return arco * (kPico[fase] * Fase(x, fase) + continua * std::exp(-9 * (x - kFalla)));
}

// In [-1, 1]: the faulted phases sag, and rise again with a short transient.
double Tension(double x, int fase)
{
    constexpr double kHueco[] = {0.34, 0.42, 0.80};
    if (x >= kFalla && x <= kDespeje) return kHueco[fase] * Fase(x, fase);
    const double desde = x - kDespeje;
    const double transitorio =
        desde > 0 && fase < 2 ? 0.32 * std::exp(-38 * desde) * std::sin(420 * desde + fase) : 0;
    return 0.80 * Fase(x, fase) + transitorio;
}

template <class Curva>
QPolygonF Muestrea(const QRectF& banda, Curva curva)
{
    const int puntos = std::clamp(static_cast<int>(banda.width() * 2), 64, 4096);
    QPolygonF linea;
    linea.reserve(puntos + 1);
    for (int i = 0; i <= puntos; ++i) {
        const double x = static_cast<double>(i) / puntos;
        linea << QPointF(banda.left() + x * banda.width(),
                         banda.center().y() - curva(x) * banda.height() / 2);
    }
    return linea;
}

void TrazaConBrillo(QPainter& p, const QPolygonF& linea, const QColor& color, qreal grosor)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(Pluma(Transparente(color, 0.13), grosor * 4));
    p.drawPolyline(linea);
    p.setPen(Pluma(color, grosor));
    p.drawPolyline(linea);
}

void PintaRejilla(QPainter& p, const QRectF& r, qreal unidad)
{
    constexpr int kColumnas = 16, kFilas = 10;
    const QColor fina(120, 170, 190, 34), gruesa(120, 170, 190, 72);
    for (int i = 1; i < kColumnas; ++i) {
        const qreal x = r.left() + r.width() * i / kColumnas;
        p.setPen(QPen(i % 4 ? fina : gruesa, unidad * 0.7));
        p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
    }
    for (int i = 1; i < kFilas; ++i) {
        const qreal y = r.top() + r.height() * i / kFilas;
        p.setPen(QPen(i % 5 ? fina : gruesa, unidad * 0.7));
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
    }
}

void PintaAnalogicas(QPainter& p, const QRectF& r, qreal unidad)
{
    const QRectF tensiones(r.left(), r.top() + r.height() * 0.06, r.width(), r.height() * 0.34);
    const QRectF corrientes(r.left(), r.top() + r.height() * 0.41, r.width(), r.height() * 0.42);
    const QColor colores[] = {kRojo, kVerde, kAzul};
    for (int fase = 2; fase >= 0; --fase) {
        TrazaConBrillo(p, Muestrea(tensiones, [fase](double x) { return Tension(x, fase); }), colores[fase],
                       unidad * 1.1);
        TrazaConBrillo(p, Muestrea(corrientes, [fase](double x) { return Corriente(x, fase); }),
                       colores[fase], unidad * 1.3);
    }
}

// Start, trip and breaker signals: a thin line while off, a bar while on.
void PintaDigitales(QPainter& p, const QRectF& r, qreal unidad)
{
    constexpr double kInicio[] = {kFalla + 0.015, kFalla + 0.09, kDespeje};
    constexpr double kFin[] = {kDespeje + 0.03, kDespeje + 0.07, 1.0};
    const QColor colores[] = {kAmarillo, kRojo, kCian};
    for (int i = 0; i < 3; ++i) {
        const qreal y = r.top() + r.height() * (0.868 + 0.045 * i), alto = r.height() * 0.022;
        p.setPen(QPen(Transparente(colores[i], 0.45), unidad * 0.8));
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
        p.fillRect(
            QRectF(r.left() + r.width() * kInicio[i], y - alto / 2, r.width() * (kFin[i] - kInicio[i]), alto),
            Transparente(colores[i], 0.9));
    }
}

void PintaCursor(QPainter& p, const QRectF& r, double x, const QColor& color, qreal unidad)
{
    const qreal px = r.left() + r.width() * x, lado = unidad * 4.5;
    p.setPen(QPen(Transparente(color, 0.16), unidad * 4));
    p.drawLine(QPointF(px, r.top()), QPointF(px, r.bottom()));
    p.setPen(QPen(color, unidad));
    p.drawLine(QPointF(px, r.top()), QPointF(px, r.bottom()));
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPolygon(QPolygonF({{px - lado, r.top()}, {px + lado, r.top()}, {px, r.top() + lado * 1.5}}));
}

void PintaPanel(QPainter& p, const QRectF& r, qreal radio)
{
    QLinearGradient fondo(r.topLeft(), r.bottomLeft());
    fondo.setColorAt(0, kFondoAlto);
    fondo.setColorAt(1, kFondo);
    p.setPen(Qt::NoPen);
    p.setBrush(fondo);
    p.drawRoundedRect(r, radio, radio);
}

void PintaMarco(QPainter& p, const QRectF& r, qreal radio, qreal grosor)
{
    QLinearGradient metal(r.topLeft(), r.bottomLeft());
    metal.setColorAt(0, QColor(0x9a, 0xb2, 0xbf));
    metal.setColorAt(0.5, QColor(0x4d, 0x66, 0x74));
    metal.setColorAt(1, QColor(0x6e, 0x87, 0x95));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QBrush(metal), grosor));
    p.drawRoundedRect(r.adjusted(grosor / 2, grosor / 2, -grosor / 2, -grosor / 2), radio, radio);
}

QPainterPath Redondeado(const QRectF& r, qreal radio)
{
    QPainterPath camino;
    camino.addRoundedRect(r, radio, radio);
    return camino;
}

// On a square of 16 units, like the toolbar pictures.
void DibujaPrograma(QPainter& p, const Tinta&)
{
    const QRectF panel(0.5, 0.5, 15, 15), pantalla(1.2, 1.2, 13.6, 13.6);
    PintaPanel(p, panel, 2.6);
    p.setPen(QPen(QColor(120, 170, 190, 70), 0.4));
    p.drawLine(QPointF(1, 8), QPointF(15, 8));
    p.drawLine(QPointF(11, 1), QPointF(11, 15));
    p.setPen(QPen(kAmarillo, 1));
    p.drawLine(QPointF(5.5, 1), QPointF(5.5, 15));
    constexpr double kInicio = 4.3 / 13.6;
    const auto onda = [](double x) {
        const double seno = std::sin(2 * std::numbers::pi * 3.2 * (x - kInicio));
        return x < kInicio ? 0.22 * seno : 0.95 * std::exp(-2.1 * (x - kInicio)) * seno;
    };
    p.setBrush(Qt::NoBrush);
    p.setPen(Pluma(kCian, 1.2));
    p.drawPolyline(Muestrea(pantalla.adjusted(0, 0.6, 0, -0.6), onda));
    PintaMarco(p, panel, 2.6, 0.7);
}

class Motor : public QIconEngine {
public:
    using Dibujo = void (*)(QPainter&, const Tinta&);
    explicit Motor(Dibujo dibujo) : dibujo_(dibujo) {}

    void paint(QPainter* p, const QRect& rect, QIcon::Mode modo, QIcon::State) override
    {
        const qreal lado = std::min(rect.width(), rect.height());
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        p->translate(rect.x() + (rect.width() - lado) / 2, rect.y() + (rect.height() - lado) / 2);
        p->scale(lado / 16, lado / 16);
        dibujo_(*p, TintaPara(modo));
        p->restore();
    }

    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override
    {
        QPixmap imagen(tamano);
        imagen.fill(Qt::transparent);
        QPainter p(&imagen);
        paint(&p, QRect(QPoint(0, 0), tamano), modo, estado);
        return imagen;
    }

    QIconEngine* clone() const override { return new Motor(dibujo_); }

private:
    Dibujo dibujo_;
};

}  // namespace

QIcon IconoZoom()
{
    return QIcon(new Motor(DibujaZoom));
}
QIcon IconoAdelante()
{
    return QIcon(new Motor(DibujaAdelante));
}
QIcon IconoAtras()
{
    return QIcon(new Motor(DibujaAtras));
}
QIcon IconoImprimir()
{
    return QIcon(new Motor(DibujaImprimir));
}
QIcon IconoPrograma()
{
    return QIcon(new Motor(DibujaPrograma));
}

void PintaEmblema(QPainter& p, const QRectF& rect)
{
    if (rect.width() < 8 || rect.height() < 8) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const qreal unidad = std::max(0.75, std::min(rect.width() / 480, rect.height() / 300));
    const qreal radio = 9 * unidad, marco = 2 * unidad;
    const QRectF panel = rect.adjusted(marco / 2, marco / 2, -marco / 2, -marco / 2);
    const QRectF pantalla = panel.adjusted(marco, marco, -marco, -marco);
    PintaPanel(p, panel, radio);

    p.setClipPath(Redondeado(panel, radio), Qt::IntersectClip);
    QRadialGradient luz(panel.center() - QPointF(0, panel.height() * 0.15), panel.width() * 0.6);
    luz.setColorAt(0, QColor(90, 170, 210, 34));
    luz.setColorAt(1, QColor(0, 0, 0, 60));
    p.fillRect(panel, luz);
    PintaRejilla(p, pantalla, unidad);
    PintaAnalogicas(p, pantalla, unidad);
    PintaDigitales(p, pantalla, unidad);
    PintaCursor(p, pantalla, kFalla, kAmarillo, unidad);
    PintaCursor(p, pantalla, kDespeje, kCian, unidad);
    p.restore();

    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    PintaMarco(p, rect, radio, marco);
    p.restore();
}

Emblema::Emblema(QWidget* padre) : QWidget(padre) {}

QSize Emblema::sizeHint() const
{
    return {480, 300};
}

void Emblema::paintEvent(QPaintEvent*)
{
    QPainter pintor(this);
    QRectF lugar(QPointF(0, 0), QSizeF(sizeHint()).scaled(size(), Qt::KeepAspectRatio));
    lugar.moveCenter(QRectF(rect()).center());
    PintaEmblema(pintor, lugar);
}

}  // namespace veldix
