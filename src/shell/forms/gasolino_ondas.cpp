#include "shell/forms/gasolino_ondas.h"

#include <QMdiArea>
#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/forms/muestra_pintada.h"
#include "platform/rutas.h"
#include "record/record_store.h"

namespace veldix {

Portador<gasolino_ondas> gasolino_ondas::unica;

gasolino_ondas::gasolino_ondas(const QString& titulo)
    : Formulario(escena.principal, Qt::Dialog),
      ProgressBar1(new QProgressBar(this)),
      Animation1(new Animacion(this))
{
    setObjectName(QStringLiteral("gasolino_ondas"));
    setWindowTitle(titulo);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setAccessibleName(titulo);
    ProgressBar1->setTextVisible(false);
    ProgressBar1->setValue(10);
    Animation1->setObjectName(QStringLiteral("Animation1"));
    if (Animation1->Abre(RutaIconos(store.RutaPrograma, "onda.avi"))) Animation1->Reproduce();
    Dispone();
    MuestraPintada(*this);
}

void gasolino_ondas::Dispone()
{
    ProgressBar1->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(Animation1);
    todo->addWidget(ProgressBar1);
    const QWidget* bajo = escena.area ? escena.area : escena.principal;
    if (bajo)
        CentraSobre(*this, *bajo);
    else
        Centra(*this);
}

void gasolino_ondas::Pon(int valor)
{
    ProgressBar1->setValue(valor);
    Animation1->Avanza();
    repaint();
}

}  // namespace veldix
