#include "record/forms/turno_cancelar.h"

#include <QCoreApplication>

#include "platform/forms/escena.h"
#include "record/record_store.h"

namespace veldix {

TurnoCancelar::~TurnoCancelar()
{
    Descansa();
    DescargaCancelar();
}

bool TurnoCancelar::Cancelada()
{
    Activa(false);
    MuestraCancelar();
    QCoreApplication::processEvents();
    return store.CancelaImpresion || !vista_ || vista_->Descargado();
}

void TurnoCancelar::Activa(bool activa)
{
    if (vista_) vista_->setEnabled(activa);
    ActivaSalir(activa);
}

}  // namespace veldix
