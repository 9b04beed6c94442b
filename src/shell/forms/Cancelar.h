#pragma once

#include <QPushButton>

#include "platform/forms/formulario.h"

namespace veldix {

/// Stops a print run: any unload of it, the program's own included, sets `CancelaImpresion`.
class Cancelar : public Formulario {
    Q_OBJECT

public:
    static Portador<Cancelar> unica;

    Cancelar();

protected:
    void Form_Unload() override;

private:
    void cdmCancelar_Click();

    QPushButton* cdmCancelar;
};

}  // namespace veldix
