#include "platform/forms/ImpresoraQt.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

#include "platform/errores.h"
#include "platform/forms/escena.h"

namespace veldix {

namespace {

constexpr double kTwipsPorPulgada = 1440.0, kTwipsPorPunto = 20.0, kGruesosPorPulgada = 300.0;
constexpr double kMilimetrosPorPulgada = 25.4;

/// Whole twips: a paper of 210 mm is 11906 wide.
double DeMilimetros(double mm)
{
    return std::round(mm * kTwipsPorPulgada / kMilimetrosPorPulgada);
}

/// Farther off the page, in twips, the toolkit's whole numbers of a PDF overflow.
constexpr double kLejos = 1e6;

bool EstaLejos(const QPointF& p)
{
    return std::abs(p.x()) > kLejos || std::abs(p.y()) > kLejos;
}

/// Cuts a segment to where it can be drawn (Liang and Barsky); false where nothing is left.
bool TraeCerca(QLineF& linea)
{
    const QPointF a = linea.p1(), d = linea.p2() - a;
    double desde = 0.0, hasta = 1.0;
    const double lados[4][2] = {
        {-d.x(), a.x() + kLejos}, {d.x(), kLejos - a.x()}, {-d.y(), a.y() + kLejos}, {d.y(), kLejos - a.y()}};
    for (const auto& [avance, espacio] : lados) {
        if (avance == 0.0 && espacio < 0.0) return false;
        if (avance < 0.0) desde = std::max(desde, espacio / avance);
        if (avance > 0.0) hasta = std::min(hasta, espacio / avance);
    }
    if (desde > hasta) return false;
    linea = {a + desde * d, a + hasta * d};
    return true;
}

}  // namespace

ImpresoraQt::ImpresoraQt(QPagedPaintDevice& dispositivo, ModoColor color, std::function<void()> anula)
    : dispositivo_(dispositivo),
      color_(color),
      anula_(std::move(anula)),
      margenes_(dispositivo.pageLayout().minimumMargins())
{
    PonSentido(Sentido());
    const double puntos = QGuiApplication::font().pointSizeF();
    if (puntos > 0.0) Letra.puntos = puntos;
}

ImpresoraQt::~ImpresoraQt()
{
    if (pintor_.isActive()) pintor_.end();
}

Orientacion ImpresoraQt::Sentido() const
{
    const bool ancho = dispositivo_.pageLayout().orientation() == QPageLayout::Landscape;
    return ancho ? Orientacion::Horizontal : Orientacion::Vertical;
}

/// The least margins that the paper allows put the origin at the printable corner. The toolkit does not turn
/// them with the paper, and which way a printer turns it is not told: each edge takes the larger of the two
/// that may lie there.
void ImpresoraQt::PonSentido(Orientacion o)
{
    const bool girado = o == Orientacion::Horizontal;
    const double x = std::max(margenes_.top(), margenes_.bottom()),
                 y = std::max(margenes_.left(), margenes_.right());
    const QMarginsF margenes = girado ? QMarginsF(x, y, x, y) : margenes_;
    QPageLayout hoja = dispositivo_.pageLayout();
    hoja.setOrientation(girado ? QPageLayout::Landscape : QPageLayout::Portrait);
    hoja.setMinimumMargins(margenes);
    hoja.setMargins(margenes);
    if (dispositivo_.setPageLayout(hoja)) return;
    dispositivo_.setPageOrientation(hoja.orientation());
    dispositivo_.setPageMargins(dispositivo_.pageLayout().minimumMargins(), hoja.units());
}

double ImpresoraQt::Ancho() const
{
    return DeMilimetros(dispositivo_.pageLayout().fullRect(QPageLayout::Millimeter).width());
}

double ImpresoraQt::Alto() const
{
    return DeMilimetros(dispositivo_.pageLayout().fullRect(QPageLayout::Millimeter).height());
}

QFont ImpresoraQt::Fuente() const
{
    QFont f = Letra.fija ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QGuiApplication::font();
    f.setPixelSize(std::max(1, qRound(Letra.puntos * kTwipsPorPunto)));  // a pixel of the page is a twip
    f.setBold(Letra.negrita);
    return f;
}

double ImpresoraQt::AnchoTexto(const std::string& texto) const
{
    return QFontMetricsF(Fuente()).horizontalAdvance(Q(texto));
}

double ImpresoraQt::AltoTexto() const
{
    return QFontMetricsF(Fuente()).height();
}

QPainter& ImpresoraQt::Pintor()
{
    if (!pintor_.isActive()) {
        if (!pintor_.begin(&dispositivo_)) Lanza(error::kEntradaSalida);
        // The device keeps the pen of its last document, and is told of a change alone.
        pintor_.setPen(Qt::NoPen);
        pintor_.setPen(Qt::black);
        pintor_.scale(dispositivo_.logicalDpiX() / kTwipsPorPulgada,
                      dispositivo_.logicalDpiY() / kTwipsPorPulgada);
    }
    return pintor_;
}

void ImpresoraQt::Poligonal(std::span<const double> xs, std::span<const double> ys, std::uint32_t color)
{
    QPolygonF puntos;
    const std::size_t total = std::min(xs.size(), ys.size());
    puntos.reserve(static_cast<qsizetype>(total));
    for (std::size_t i = 0; i < total; ++i)
        puntos << QPointF(xs[i], ys[i]);
    QPen pluma{QColor::fromRgb(color)};
    pluma.setWidthF(Grosor * kTwipsPorPulgada / kGruesosPorPulgada);
    pluma.setJoinStyle(Qt::RoundJoin);
    Pintor().setPen(pluma);
    if (std::none_of(puntos.begin(), puntos.end(), EstaLejos)) {
        Pintor().drawPolyline(puntos);
        return;
    }
    for (qsizetype i = 0; i + 1 < puntos.size(); ++i)
        if (QLineF linea(puntos[i], puntos[i + 1]); TraeCerca(linea)) Pintor().drawLine(linea);
}

void ImpresoraQt::Caja(double x1, double y1, double x2, double y2, std::uint32_t color)
{
    // As wide as a line at least, so that a state of one sample among thousands is seen.
    const double ancho = std::max(std::abs(x2 - x1), Grosor * kTwipsPorPulgada / kGruesosPorPulgada);
    const QRectF caja((x1 + x2 - ancho) / 2.0, std::min(y1, y2), ancho, std::abs(y2 - y1));
    Pintor().fillRect(caja, QColor::fromRgb(color));
}

void ImpresoraQt::Escribe(double x, double y, const std::string& texto)
{
    const QFont fuente = Fuente();
    Pintor().setFont(fuente);
    Pintor().setPen(Qt::black);
    Pintor().drawText(QPointF(x, y + QFontMetricsF(fuente).ascent()), Q(texto));
}

void ImpresoraQt::PonRecorte(double izquierda, double arriba, double derecha, double abajo)
{
    Pintor().setClipRect(QRectF(QPointF(izquierda, arriba), QPointF(derecha, abajo)));
}

void ImpresoraQt::QuitaRecorte()
{
    Pintor().setClipping(false);
}

void ImpresoraQt::PaginaNueva()
{
    static_cast<void>(Pintor());
    if (!dispositivo_.newPage()) Lanza(error::kEntradaSalida);
}

void ImpresoraQt::Termina()
{
    if (pintor_.isActive() && !pintor_.end()) Lanza(error::kEntradaSalida);
}

void ImpresoraQt::Anula()
{
    if (!pintor_.isActive()) return;
    if (anula_) anula_();
    pintor_.end();
}

}  // namespace veldix
