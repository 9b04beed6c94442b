#pragma once

#include "digital/lugares_digital.h"
#include "digital/plot_digital.h"
#include "platform/forms/EtiquetasCorridas.h"
#include "waves/forms/VistaCursores.h"

namespace veldix {

/// Up to nineteen digital channels as bars of state, a row each, under one analog reference. Its zoom is made
/// between the cursors.
class frm19 : public VistaCursores {
    Q_OBJECT

public:
    /// Loads it, hidden, for what a chooser left in the store. A failure unloads it.
    frm19();
    static Portador<frm19> unica;
    /// Loads it anew and shows it in place of the menu and of the gauge. One that fails has unloaded itself.
    static void Abre();

protected:
    void Form_Unload() override;
    void Rehace() override;
    void PonNivel(const FilaZoom& nivel) override;
    void Repinta() override { PintaDigital(); }
    double XCursor(float cursor) const override;
    void PonTextos(int cursor) override;
    std::optional<HojaOndas> Hoja(Impresora& impresora) override;

private:
    void CreaControles();
    void Form_Load();
    void ColocaControles();
    void ColocaPlot(const LugaresDigital& l);
    void ColocaTextos(const LugaresDigital& l, bool ancha);
    /// Texts of sample 1, and the names of the rows.
    void LlenaEtiquetas();
    /// Axes, reference and rows of the stretch in view.
    void PintaDigital();
    void PintaEjes();
    void PintaReferencia();
    void PintaFilas();

    EtiquetasCorridas *label, *analogicas_;  ///< the latter `lblanalog`, `lblamar`, `lblcian`
    BarraCursor *HScroll_Nombres, *HScroll_Analog;
    QWidget* ventanilla_;  ///< what is seen of the plot: its margin, where the names stand, is cut away
    QLabel *lblizq, *lblder;

    std::vector<FilaDigital> filas_;
    TramoDigital tramo_;
};

}  // namespace veldix
