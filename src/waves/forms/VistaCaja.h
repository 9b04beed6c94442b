#pragma once

#include <optional>

#include "waves/caja_zoom.h"
#include "waves/forms/VistaOndas.h"
#include "waves/plot.h"

namespace veldix {

/// The views whose zoom is a box, drawn with the mouse or taken between the cursors by Enter.
class VistaCaja : public VistaOndas {
    Q_OBJECT

public:
    const ZoomCaja& Zoom() const { return zoom_; }

protected:
    /// `cajaEstrecha` is the icon of the answer to a box that is no step wide.
    VistaCaja(const Papel& papel, Icono cajaEstrecha);

    /// Draws the curves over samples `s` to `e` on the plot.
    virtual void Curvas(int s, int e) = 0;
    /// The vertical zoom, a window's own or shared.
    virtual float& FactorZoomY() = 0;

    HistoriaZoom& Historia() override { return zoom_; }
    void Redibuja() override;
    void Repinta() override;
    double XCursor(float cursor) const override;
    void cmdzoom_Click() override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

    /// The history, the bars and the cursors of the whole record, for the plot's size.
    void Reinicia();
    void PintaEjes();
    /// The whole record at factor 1, with `EscalaY` as it was set.
    void PintaRegistro();
    /// Where a curve of this view lies at the present zoom.
    EscalaPlot Escala() const;

    ZoomCaja zoom_;
    float MargenX = 0.0F, EscalaY = 0.0F;

private:
    void Plot_MouseDown(double x, double y);
    void Plot_MouseMove(double x, double y);
    void Plot_MouseUp(double x, double y);
    bool TeclaPlot(int tecla);
    void MuestraCaja(bool visible);
    void PonCaja(double x, double y);
    void PintaTramo();

    LineaSobre *Line2, *Line3, *Line4, *Line5;  ///< top, left, bottom and right edge of the zoom box
    Icono cajaEstrecha_;
    std::optional<Tramo> tramo_;        ///< that a zoom shows, none at 1:1
    float factor_ = 1.0F;               ///< vertical factor of what is drawn
    bool punteroPropio_ = false;        ///< the plot's pointer is that of an armed zoom
    double cajaX_ = 0.0, cajaY_ = 0.0;  ///< where the mouse went down, as the event had it
};

}  // namespace veldix
