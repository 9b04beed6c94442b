#pragma once

#include <QComboBox>
#include <QPushButton>

#include "platform/forms/ElectorFicheros.h"
#include "platform/forms/formulario.h"
#include "record/record_store.h"

namespace veldix {

/// The selection of a template file: to apply it to the record, to modify it, or to start a new one.
class frmPlantilla : public Formulario {
    Q_OBJECT

public:
    frmPlantilla();
    static Portador<frmPlantilla> unica;

    void TrasError() override { Descarga(); }
    /// Goes to the default folder again, so that a change of it made elsewhere shows.
    void Form_Activate() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();

    void File1_Click();
    void Combo1_Change();
    void cmdBuscar_Click();
    void cmdModif_Click();
    void cmdNueva_Click();
    void cmdcancel_Click();

    bool HayFichero() const;
    bool EsPlantilla();
    void Rechaza(const std::string& estacion);

    ElectorFicheros* elector_;
    EtiquetaRuta* lbltext;
    QLabel* Label6;
    QComboBox* Combo1;
    QPushButton *cmdBuscar, *cmdModif, *cmdNueva, *cmdcancel;

    bool FicheroElegido = false;  ///< a file of the list was clicked
};

}  // namespace veldix
