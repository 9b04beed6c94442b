#pragma once

#include <QGroupBox>
#include <QLineEdit>

#include <optional>

#include "platform/forms/FilasRanura.h"
#include "platform/forms/ListaCarpetas.h"
#include "platform/forms/formulario.h"
#include "record/record_store.h"
#include "templates/forms/BotonesPagina.h"
#include "templates/grupos_digitales.h"

namespace veldix {

/// The set-up page of the digital groups: the channels on offer, the rows of one group, the list of groups.
class frmDigital : public Formulario {
    Q_OBJECT

public:
    frmDigital();
    static Portador<frmDigital> unica;

    /// The page before this one is hidden: it comes back, or no page would be in sight.
    void TrasCierre() override;
    void TrasError() override;

private:
    void CreaControles();
    QGroupBox* CreaMarco(const char* nombre, int texto, const char* defecto,
                         std::initializer_list<QWidget*> controles);
    void Dispone();
    void ConectaTodo();
    void Form_Load();

    void List1_DblClick();
    void List2_Click();
    void grp_Click(int k);
    void grp_DblClick(int k);
    void grp_Change(int k);
    void lbl_Change(int k);
    void txtnbgrp_Change();
    void cmdAñadir_Click();
    void cmdEliminar_Click();
    void cmdOK_Click();
    void cmdvolver_Click();
    void cmdcancel_Click();

    void MuestraFilas();
    void MuestraPagina();
    void MuestraLista(int elegido);

    GruposDigitales grupos_{store};
    QListWidget* List1;
    ListaClic* List2;
    FilasRanura* filas_;
    QLabel* txtGrupos;
    QLineEdit* txtnbgrp;
    QPushButton *cmdAñadir, *cmdEliminar;
    std::optional<BotonesPagina> botones_;
};

}  // namespace veldix
