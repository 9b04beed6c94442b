#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/ElectorCarpetas.h"
#include "platform/forms/EtiquetaRuta.h"
#include "platform/forms/formulario.h"

namespace veldix {

/// Where the ASCII copy of the open record goes, and under which name.
class Conversion : public Formulario {
    Q_OBJECT

public:
    Conversion();
    static Portador<Conversion> unica;

protected:
    /// The help note goes with the form that it is about.
    void Form_Unload() override;

private:
    void CreaControles();
    void Dispone();
    void Form_Load();

    void Dir1_Change();
    void Aceptar_Click();
    void Cancelar_Click();
    void Ayuda_Click();
    void Convierte();

    ElectorCarpetas* carpetas_;
    EtiquetaRuta* camin;
    QLabel* Label1;
    QLineEdit* Senda;
    QPushButton *Aceptar, *Cancelar, *Ayuda;
};

}  // namespace veldix
