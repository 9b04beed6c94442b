#pragma once

#include "platform/forms/EtiquetasCorridas.h"
#include "waves/composicion.h"
#include "waves/forms/VistaCaja.h"
#include "waves/lugares_comp.h"

namespace veldix {

/// The channels of one composition, up to six, in one plot on a single scale.
class frmVerCmpang : public VistaCaja {
    Q_OBJECT

public:
    frmVerCmpang();

    /// Lays the window of row `ventana` of `MatrizComp` out, hidden, as the `posicion`-th of those in use,
    /// from 1. Twips.
    void Form_activo(const Lugar& lugar, int ventana, int posicion);
    /// Draws row `ventana` of `MatrizComp`.
    void Composicion(int ventana);

    /// Rows of `Canales` of the curves, in their order.
    const std::vector<int>& Canales() const { return canales_; }
    /// Console colour of position `n`, 0 beyond the last: those of `Colores`, cursors included. The
    /// curves, on screen and paper, have ColorComposicion instead.
    int color(int n) const { return ColorLeyenda(n); }

protected:
    void Form_Unload() override;
    void Rehace() override;
    void Curvas(int s, int e) override;
    float& FactorZoomY() override { return factorZoomY_; }
    void PonTextos(int cursor) override;
    std::optional<HojaOndas> Hoja(Impresora& impresora) override;

private:
    void CreaControles();
    EtiquetasCorridas* CreaColumna(const char* nombre, BarraCursor* barra);
    void ColocaControles();
    void ColocaColumna(const ColumnaComp& c, QLabel* marca, EtiquetasCorridas* textos, BarraCursor* barra);
    void Dibuja();
    void PonEtiquetas(EtiquetasCorridas* textos, int muestra);

    QLabel *marcamar, *marcaci, *Label1, *Label2;
    BarraCursor *HScroll_Amar, *HScroll_Cian;
    EtiquetasCorridas *lblam, *lblci;

    int fila_ = 0;               ///< row of `MatrizComp`
    bool gris_ = false;          ///< laid out as one of three, with plain buttons
    std::vector<int> canales_;   ///< rows of `Canales`, a curve each
    std::vector<int> columnas_;  ///< of `Muestras`
    float factorZoomY_ = 1.0F;
};

}  // namespace veldix
