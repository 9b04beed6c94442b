#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include <optional>

#include "platform/forms/formulario.h"
#include "record/record_store.h"
#include "templates/forms/BotonesPagina.h"
#include "templates/forms/Rejilla.h"

namespace veldix {

/// The set-up page of the template's identification and its analog channels.
class frmAnalog : public Formulario {
    Q_OBJECT

public:
    frmAnalog();
    static Portador<frmAnalog> unica;

    void TrasCierre() override;
    void TrasError() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();

    void txtIdentif_Change();
    void txtnumAnalog_Change();
    std::string Identificacion() const;
    void cmdOK_Click();
    void cmdvolver_Click();
    void cmdcancel_Click();
    void cmdmodelos_Click();

    std::int16_t Cuenta() const;
    void PonTitulos();
    void MuestraFilas(int filas);
    Tabla1<FilaCanal> LeeFilas(int filas);

    QPlainTextEdit* txtIdentif;
    QLineEdit* txtnumAnalog;
    QLabel *lblIdentif, *lblnumAnalog;
    Rejilla* vaSpread1;
    QPushButton* cmdmodelos;
    std::optional<BotonesPagina> botones_;
};

}  // namespace veldix
