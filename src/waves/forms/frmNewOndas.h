#pragma once

#include "waves/forms/ElectorOndas.h"
#include "waves/lugares_onda.h"

namespace veldix {

/// The chooser of up to eight analog channels, to be shown each in a window of its own or all in one plot.
class frmNewOndas : public ElectorOndas {
    Q_OBJECT

public:
    frmNewOndas();
    static Portador<frmNewOndas> unica;

protected:
    void Deshace() override;

private:
    void CreaControles();
    void Dispone();

    void cmdOK_Click();
    void cmdtodo_Click();
    void cmdSalir_Click();

    int CuentaElegidos();
    void AbreVentanas(int cuenta);
    void ActivaVentanas(const std::vector<Lugar>& lugares);

    QGroupBox *Frame1, *Frame2;
    FilasRanura* filas_;
    QPushButton *cmdOK, *cmdtodo, *cmdSalir;
};

}  // namespace veldix
