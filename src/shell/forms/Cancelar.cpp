#include "shell/forms/Cancelar.h"

#include <QHBoxLayout>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"

namespace veldix {

Portador<Cancelar> Cancelar::unica;

Cancelar::Cancelar()
    : Formulario(escena.principal, Qt::Dialog), cdmCancelar(new QPushButton(Q(Rotulo(25, "Cancelar")), this))
{
    setObjectName(QStringLiteral("Cancelar"));
    setWindowTitle(QStringLiteral("VELDIX"));
    cdmCancelar->setObjectName(QStringLiteral("cdmCancelar"));
    const int letra = fontMetrics().averageCharWidth();
    auto* todo = new QHBoxLayout(this);
    todo->setContentsMargins(8 * letra, 3 * letra, 8 * letra, 3 * letra);
    todo->addWidget(cdmCancelar);
    PonBotones(cdmCancelar, cdmCancelar);
    setWindowModality(Qt::ApplicationModal);  // nothing else takes input while a print may be stopped
    Centra(*this);
    Conecta(cdmCancelar, &QPushButton::clicked, this, &Cancelar::cdmCancelar_Click);
}

void Cancelar::cdmCancelar_Click()
{
    Descarga();
}

void Cancelar::Form_Unload()
{
    store.CancelaImpresion = true;
}

}  // namespace veldix
