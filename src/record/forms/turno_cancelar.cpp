#include "record/forms/turno_cancelar.h"

#include <QCoreApplication>

#include "platform/forms/escena.h"
#include "record/record_store.h"

namespace veldix {

TurnoCancelar::~TurnoCancelar()
{
    Descansa();
    escena.descargaCancelar();
}

bool TurnoCancelar::Cancelada()
{
    Activa(false);
    escena.muestraCancelar();
    QCoreApplication::processEvents();
    return store.CancelaImpresion || !vista_ || vista_->Descargado();
}

void TurnoCancelar::Activa(bool activa)
{
    if (vista_ && !activa && vista_->isEnabled()) foco_ = vista_->focusWidget();
    if (vista_) vista_->setEnabled(activa);
    escena.activaSalir(activa);
    if (vista_ && activa && foco_) foco_->setFocus();
}

}  // namespace veldix
