#pragma once

#include <QLabel>

#include <optional>
#include <utility>
#include <vector>

#include "digital/eleccion.h"
#include "digital/forms/ElectorDigital.h"
#include "digital/forms/GrupoEtiquetas.h"

namespace veldix {

/// The choice by hand: every digital channel of the template, group by group, those that change state
/// standing out, and the analog channel they are to be shown under.
class frmGrid : public ElectorDigital<Vista> {
    Q_OBJECT

public:
    /// Loads it, hidden. A failure unloads it.
    frmGrid();
    static Portador<frmGrid> unica;

    /// Loads it anew and shows it in place of the menu. One that fails has unloaded itself.
    static void Abre();

protected:
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

    std::optional<EleccionManual> eleccion_;
    std::vector<GrupoEtiquetas*> grupos_;  ///< group k at k - 1
    std::pair<int, int> pulsada_;          ///< group and channel of the last click
    QWidget* panel_;
    QLabel *Label99, *Label101, *Label102;
};

}  // namespace veldix
