#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "platform/forms/formulario.h"
#include "record/record_store.h"

namespace veldix {

/// The choice of a relay model, whose measurements become the analog channels of the template. An error
/// leaves it open.
class frmBaseModelo : public Formulario {
    Q_OBJECT

public:
    frmBaseModelo();
    static Portador<frmBaseModelo> unica;

    /// Leads back to the analog page, which went when this one was opened.
    void TrasCierre() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();

    void List1_DblClick();
    void cmdOK_Click();
    void cmdCancelar_Click();

    QListWidget* List1;
    QLineEdit* lblNomModelo;
    QPushButton *cmdOK, *cmdCancelar;
};

}  // namespace veldix
