#pragma once

#include <QPushButton>

#include "platform/forms/formulario.h"

class QLabel;

namespace veldix {

/// What follows the opening of a BINARY record: it goes on as it is, or is copied as an ASCII one first.
class poscamb : public Formulario {
    Q_OBJECT

public:
    poscamb();
    static Portador<poscamb> unica;

private:
    void CreaControles();
    void Dispone();

    void continuar_Click();
    void Convertir_continuar_Click();
    void Convertir_salir_Click();
    void cmdcancel_Click();
    void Convierte(bool sale);

    QLabel* Label1;
    QPushButton *continuar, *Convertir_continuar, *Convertir_salir, *cmdcancel;
};

}  // namespace veldix
