#include "shell/forms/gasolino2.h"

#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/forms/muestra_pintada.h"
#include "platform/textos.h"

namespace veldix {

Portador<gasolino2> gasolino2::unica;

gasolino2::gasolino2(QWidget* sobre)
    : Formulario(escena.principal, Qt::Dialog), ProgressBar1(new QProgressBar(this))
{
    setObjectName(QStringLiteral("gasolino2"));
    setWindowTitle(Q(Rotulo(268, "Convirtiendo a ASCII...")));
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setAccessibleName(windowTitle());
    ProgressBar1->setTextVisible(false);
    ProgressBar1->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(ProgressBar1);
    const QWidget* bajo = sobre ? sobre : escena.principal;
    if (bajo)
        CentraSobre(*this, *bajo);
    else
        Centra(*this);
    MuestraPintada(*this);
}

}  // namespace veldix
