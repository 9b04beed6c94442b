#pragma once

#include <QListWidget>
#include <QPushButton>

#include "platform/forms/FilasRanura.h"
#include "platform/forms/formulario.h"
#include "platform/ranuras.h"
#include "record/forms/MarcoReferencia.h"
#include "waves/lugares_onda.h"

namespace veldix {

/// The chooser of up to eight analog channels, each to be shown in a window of its own.
class frmNewOndas : public Formulario {
    Q_OBJECT

public:
    frmNewOndas();
    static Portador<frmNewOndas> unica;

    void TrasError() override;

protected:
    void Form_Unload() override;

private:
    void CreaControles();
    void Coloca();
    void LlenaLista();

    void List1_DblClick();
    void grp_Click(int k);
    void grp_DblClick(int k);
    void grp_Change(int k);
    void cmdOK_Click();
    void cmdSalir_Click();

    int CuentaElegidos();
    void AbreVentanas(int cuenta);
    void ActivaVentanas(const std::vector<Lugar>& lugares);
    void MuestraVentanas();

    QGroupBox *Frame1, *Frame2;
    MarcoReferencia* Frame3;
    QListWidget* List1;
    FilasRanura* filas_;
    QPushButton *cmdOK, *cmdtodo, *cmdSalir;

    Ranuras ranuras_{8};     ///< its active slot is the one that takes the next channel
    bool abriendo_ = false;  ///< cmdOK is at work
};

}  // namespace veldix
