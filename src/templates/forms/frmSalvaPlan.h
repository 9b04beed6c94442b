#pragma once

#include <QLineEdit>

#include <optional>

#include "platform/forms/ElectorFicheros.h"
#include "platform/forms/formulario.h"
#include "record/record_store.h"
#include "templates/forms/BotonesPagina.h"

namespace veldix {

/// The end of the template set-up: where and under which name the template is saved.
class frmSalvaPlan : public Formulario {
    Q_OBJECT

public:
    frmSalvaPlan();
    static Portador<frmSalvaPlan> unica;

    /// The page before this one is hidden: it comes back, or no page would be in sight.
    void TrasCierre() override;
    void TrasError() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();

    void File1_Click();
    void cmdOK_Click();
    void cmdvolver_Click();
    void cmdcancel_Click();

    ElectorFicheros* elector_;
    QLabel* Label1;
    QLineEdit* Text2;
    std::optional<BotonesPagina> botones_;
};

}  // namespace veldix
