#pragma once

#include <QRadioButton>

#include <array>

#include "digital/eleccion.h"
#include "digital/forms/ElectorDigital.h"

namespace veldix {

/// The choice of a whole group of digital channels and of the analog channel it is to be shown under.
class frmElecdig : public ElectorDigital<Formulario> {
    Q_OBJECT

public:
    frmElecdig();
    static Portador<frmElecdig> unica;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();
    int GrupoElegido() const;
    void cmdOK_Click();

    QGroupBox* fmeDigital;
    std::array<QRadioButton*, EleccionManual::kGrupos> optdg;  ///< group g at g - 1
};

}  // namespace veldix
