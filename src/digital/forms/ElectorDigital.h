#pragma once

#include <QPushButton>

#include <concepts>

#include "digital/forms/MarcoCanalRef.h"
#include "digital/forms/frm19.h"
#include "platform/forms/escena.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"
#include "record/forms/MarcoReferencia.h"

namespace veldix {

/// What both choosers of digital channels share, one a view and one a dialog: the analog reference, the side
/// of a 1997 record, how the view is opened, and how they end.
template <std::derived_from<Formulario> Base>
class ElectorDigital : public Base {
public:
    /// Any error unloads the chooser.
    void TrasError() override
    {
        escena.descargaGasolinoOndas();
        this->Descarga();
    }

protected:
    using Base::Base;

    void Form_Unload() override
    {
        PonPunteros(this, Puntero::Normal);
        escena.muestraMenu();
    }
    /// The gauge, and behind it the choice applied, the chooser gone and the view in its place.
    template <class Entrega>
    void AbreVista(Entrega&& entrega)
    {
        escena.muestraGasolinoOndas(Q(Rotulo(286, "Preparando los canales digitales...")));
        escena.ponGasolinoOndas(10);
        entrega();
        Frame3->Aplica();
        this->Descarga();
        frm19::Abre();
    }
    void cmdcancel_Click() { this->Descarga(); }

    MarcoCanalRef* Frame1 = nullptr;
    MarcoReferencia* Frame3 = nullptr;
    QPushButton *cmdOK = nullptr, *cmdcancel = nullptr;
};

}  // namespace veldix
