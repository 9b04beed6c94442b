#include "record/forms/MarcoReferencia.h"

#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/textos.h"

namespace veldix {

MarcoReferencia::MarcoReferencia(const QString& nombre, QWidget* padre)
    : QGroupBox(Q(Rotulo(278, "Referencia:")), padre),
      CmdPrimario(new QRadioButton(Q(Rotulo(279, "PRIMARIO")), this)),
      CmdSecundario(new QRadioButton(Q(Rotulo(280, "SECUNDARIO")), this))
{
    setObjectName(nombre);
    CmdPrimario->setObjectName("CmdPrimario");
    CmdSecundario->setObjectName("CmdSecundario");
    CmdPrimario->setChecked(true);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(CmdPrimario);
    columna->addWidget(CmdSecundario);
    setVisible(store.RevisionCfg == "1997");
}

void MarcoReferencia::Aplica() const
{
    if (CmdPrimario->isChecked())
        AplicaReferencia(store, Lado::Primario);
    else if (CmdSecundario->isChecked())
        AplicaReferencia(store, Lado::Secundario);
}

}  // namespace veldix
