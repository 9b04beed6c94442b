#pragma once

#include "waves/forms/VistaCaja.h"

namespace veldix {

/// One analog channel in a window of its own: plot, two cursors, box zoom with its history.
class frmVerOndas : public VistaCaja {
    Q_OBJECT

public:
    explicit frmVerOndas(int canal);

    /// Lays the window out and draws it, hidden. Twips.
    void Form_activo(double alto, double ancho, double arriba, double izquierda);

    int Canal() const { return Canal_; }

protected:
    void Form_Unload() override;
    void Rehace() override;
    void Curvas(int s, int e) override;
    float& FactorZoomY() override { return store.FactorZoomY; }
    void PonTextos(int cursor) override;
    std::optional<HojaOndas> Hoja(Impresora& impresora) override;

private:
    void ColocaControles();
    void ColocaBarras(const LugaresOnda& l);
    void ColocaEtiquetas(const LugaresOnda& l);
    void PintaOndas();

    QLabel *lblizq, *lblder, *lblamar, *lblcian, *lblDif;

    int Canal_;
    int columna_ = 0;  ///< of `Muestras`
};

}  // namespace veldix
