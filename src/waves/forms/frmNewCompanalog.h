#pragma once

#include "waves/forms/ElectorOndas.h"

namespace veldix {

/// The chooser of compositions: up to three windows of up to six analog channels each, on one scale a window.
class frmNewCompanalog : public ElectorOndas {
    Q_OBJECT

public:
    frmNewCompanalog();
    static Portador<frmNewCompanalog> unica;

protected:
    void Deshace() override;

private:
    void Dispone();
    void cmdOK_Click();
    void cmdcancel_Click();
    void AbreVentanas();

    QPushButton *cmdOK, *cmdcancel;
};

}  // namespace veldix
