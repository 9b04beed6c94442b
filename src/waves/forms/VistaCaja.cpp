#include "waves/forms/VistaCaja.h"

#include <QKeyEvent>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "waves/colores.h"

namespace veldix {

VistaCaja::VistaCaja(const Papel& papel, Icono cajaEstrecha) : VistaOndas(papel), cajaEstrecha_(cajaEstrecha)
{
    Line2 = plot_->CreaLinea(kCajaZoom, "Line2");
    Line3 = plot_->CreaLinea(kCajaZoom, "Line3");
    Line4 = plot_->CreaLinea(kCajaZoom, "Line4");
    Line5 = plot_->CreaLinea(kCajaZoom, "Line5");
    Conecta(plot_, &Lienzo::RatonBaja, this, &VistaCaja::Plot_MouseDown);
    Conecta(plot_, &Lienzo::RatonMueve, this, &VistaCaja::Plot_MouseMove);
    Conecta(plot_, &Lienzo::RatonSube, this, &VistaCaja::Plot_MouseUp);
    plot_->installEventFilter(this);
}

void VistaCaja::Reinicia()
{
    zoom_.Reinicia(static_cast<float>(plot_->Ancho()), static_cast<float>(plot_->Alto()), ultima_);
    tramo_.reset();
    PonBarras(1, 1, ultima_);
    Cursor1 = Cursor2 = 1.0F;
}

void VistaCaja::PintaEjes()
{
    const double w = plot_->Ancho(), h = plot_->Alto();
    plot_->Limpia(kFondoPlot);
    const QRgb color = ColorPaleta(kColorEjes);
    plot_->Linea(w / 50.0, h / 2.0, 49.0 * w / 50.0, h / 2.0, color);
    plot_->Linea(w / 50.0, h / 50.0, w / 50.0, 49.0 * h / 50.0, color);
    MargenX = static_cast<float>(w / 50.0);
    zoom_.OrigenY = static_cast<float>(h / 2.0);
}

void VistaCaja::PintaRegistro()
{
    FactorZoomY() = factor_ = 1.0F;
    zoom_.FactorZoomYAnt = 1.0F;
    Curvas(1, ultima_);
}

EscalaPlot VistaCaja::Escala() const
{
    return {zoom_.EscalaX, MargenX, zoom_.OrigenY, EscalaY, factor_};
}

/// The zero line runs to the plot's edge once zoomed, and the vertical axis is gone.
void VistaCaja::PintaTramo()
{
    plot_->Limpia(kFondoPlot);
    if (zoom_.OrigenY < plot_->Alto())
        plot_->Linea(MargenX, zoom_.OrigenY, plot_->Ancho(), zoom_.OrigenY, ColorPaleta(kColorEjes));
    Curvas(tramo_->s, tramo_->e);
}

/// With the factor that it was drawn with.
void VistaCaja::Repinta()
{
    if (tramo_) {
        PintaTramo();
    } else {
        PintaEjes();
        Curvas(1, ultima_);
    }
}

void VistaCaja::Redibuja()
{
    const auto w = static_cast<float>(plot_->Ancho()), h = static_cast<float>(plot_->Alto());
    auto estrecha = ZoomCaja::Estrecha::No;
    const auto tramo = zoom_.Calcula(w, h, ultima_, FactorZoomY(), estrecha);
    if (!tramo) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(80), estrecha == ZoomCaja::Estrecha::CajaNueva ? cajaEstrecha_ : Icono::Ninguno);
        return;
    }
    tramo_ = tramo;
    factor_ = FactorZoomY();
    PintaTramo();
    PonBarras(tramo->s, tramo->s, tramo->e);
    HScroll1_Change();
    HScroll2_Change();
    zoom_.Guarda(w, h, FactorZoomY());
}

double VistaCaja::XCursor(float cursor) const
{
    return LugarCursor(cursor, zoom_.MuestraInicial, zoom_.EscalaX, MargenX);
}

void VistaCaja::cmdzoom_Click()
{
    PonPuntero(plot_, Puntero::Propio);
    punteroPropio_ = true;
    zoom_.ArrastrandoCaja = false;
    zoom_.ZoomPendiente = true;
    plot_->setFocus();
}

bool VistaCaja::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == plot_ && evento->type() == QEvent::KeyPress) {
        bool tomada = false;
        Atrapa(this, [&] { tomada = TeclaPlot(static_cast<QKeyEvent*>(evento)->key()); });
        if (tomada) return true;
    }
    return VistaOndas::eventFilter(objeto, evento);
}

/// On an armed plot Enter draws the box from cursor to cursor over the plot's height, and Escape disarms it.
bool VistaCaja::TeclaPlot(int tecla)
{
    const bool entra = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
    if (!punteroPropio_ || zoom_.ArrastrandoCaja || (!entra && tecla != Qt::Key_Escape)) return false;
    if (entra) {
        const double x = XCursor(Cursor2), y = plot_->Alto();
        Plot_MouseDown(XCursor(Cursor1), 0.0);
        Plot_MouseMove(x, y);
        Plot_MouseUp(x, y);
    } else {
        PonPuntero(plot_, Puntero::Normal);
        punteroPropio_ = false;
    }
    return true;
}

void VistaCaja::Plot_MouseDown(double x, double y)
{
    zoom_.CajaX1 = SujetaCaja(x, plot_->Ancho());
    zoom_.CajaY1 = SujetaCaja(y, plot_->Alto());
    if (!punteroPropio_) return;
    cajaX_ = x;
    cajaY_ = y;
    PonCaja(x, y);
    MuestraCaja(true);
    zoom_.ArrastrandoCaja = true;
}

void VistaCaja::Plot_MouseMove(double x, double y)
{
    if (zoom_.ArrastrandoCaja) PonCaja(x, y);
}

void VistaCaja::Plot_MouseUp(double x, double y)
{
    zoom_.CajaX2 = SujetaCaja(x, plot_->Ancho());
    zoom_.CajaY2 = SujetaCaja(y, plot_->Alto());
    if (!zoom_.ArrastrandoCaja) return;
    zoom_.ArrastrandoCaja = false;
    const QPointer<VistaCaja> vivo(this);
    const bool acepta = Pregunta(Textos(85));
    if (!vivo || Descargado()) return;
    if (acepta) {
        const PunteroEspera espera(*this);
        Redibuja();
    }
    if (!vivo || Descargado()) return;
    PonPuntero(this, Puntero::Normal);
    MuestraCaja(false);
    PonPuntero(plot_, Puntero::Normal);
    punteroPropio_ = false;
}

void VistaCaja::MuestraCaja(bool visible)
{
    for (LineaSobre* linea : {Line2, Line3, Line4, Line5})
        linea->setVisible(visible);
}

/// The box from where the mouse went down to (x, y).
void VistaCaja::PonCaja(double x, double y)
{
    Line2->Pon(cajaX_, cajaY_, x, cajaY_);
    Line3->Pon(cajaX_, cajaY_, cajaX_, y);
    Line4->Pon(cajaX_, y, x, y);
    Line5->Pon(x, cajaY_, x, y);
}

}  // namespace veldix
