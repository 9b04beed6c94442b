#pragma once

#include <QPushButton>
#include <QRadioButton>

#include <array>

#include "digital/eleccion.h"
#include "digital/forms/MarcoCanalRef.h"
#include "platform/forms/formulario.h"
#include "record/forms/MarcoReferencia.h"

namespace veldix {

/// The choice of a whole group of digital channels and of the analog channel it is to be shown under.
class frmElecdig : public Formulario {
    Q_OBJECT

public:
    frmElecdig();
    static Portador<frmElecdig> unica;

    void TrasError() override;

protected:
    void Form_Unload() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();
    int GrupoElegido() const;
    void cmdOK_Click();
    void cmdcancel_Click();

    MarcoCanalRef* Frame1;
    MarcoReferencia* Frame3;
    QGroupBox* fmeDigital;
    std::array<QRadioButton*, EleccionManual::kGrupos> optdg;  ///< group g at g - 1
    QPushButton *cmdOK, *cmdcancel;
};

}  // namespace veldix
