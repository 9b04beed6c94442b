#pragma once

#include <QLabel>
#include <QPushButton>

#include <optional>
#include <utility>
#include <vector>

#include "digital/eleccion.h"
#include "digital/forms/GrupoEtiquetas.h"
#include "digital/forms/MarcoCanalRef.h"
#include "platform/forms/formulario.h"
#include "record/forms/MarcoReferencia.h"

namespace veldix {

/// The choice by hand: every digital channel of the template, group by group, those that change state
/// standing out, and the analog channel they are to be shown under.
class frmGrid : public Vista {
    Q_OBJECT

public:
    /// Loads it, hidden. A failure unloads it.
    frmGrid();
    static Portador<frmGrid> unica;

    QWidget* Foco() const { return Frame1; }
    void TrasError() override;

protected:
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void Form_Load();
    void CreaPanel();
    void ColocaEtiquetas();
    void grp_Click(int k, int j);
    void grp_DblClick(int k, int j);
    void grp_Quita(int k, int j);
    void grp_Sale(int k, int paso, int j);
    void MuestraCanal(int k, int j);
    void Rechaza();
    void cmdOK_Click();
    void cmdcancel_Click();

    std::optional<EleccionManual> eleccion_;
    std::vector<GrupoEtiquetas*> grupos_;  ///< group k at k - 1
    std::pair<int, int> pulsada_;          ///< group and channel of the last click
    QWidget* panel_;
    MarcoCanalRef* Frame1;
    MarcoReferencia* Frame3;
    QLabel *Label99, *Label101, *Label102;
    QPushButton *cmdOK, *cmdcancel;
};

}  // namespace veldix
