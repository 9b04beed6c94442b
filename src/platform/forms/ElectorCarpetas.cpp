#include "platform/forms/ElectorCarpetas.h"

#include <QVBoxLayout>

#include "platform/forms/etiquetas.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"

namespace veldix {

ElectorCarpetas::ElectorCarpetas(QWidget* padre)
    : QWidget(padre), Dir1(new ListaCarpetas(this)), Drive1(new ListaUnidades(this))
{
    Dir1->setObjectName("Dir1");
    Drive1->setObjectName("Drive1");
    auto* unidades = new QHBoxLayout;
    QLabel* rotuloUnidades = CreaRotulo(Drive1, "Label5", Rotulo(22, "Unidades:"));
    rotuloUnidades->setVisible(Drive1->count() > 0);
    unidades->addWidget(rotuloUnidades);
    unidades->addWidget(Drive1, 1);
    constexpr int kEntreLineas = 6;
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(kEntreLineas);
    todo->addWidget(CreaRotulo(Dir1, "Label4", Rotulo(21, "Directorios:")));
    todo->addWidget(Dir1, 1);
    todo->addLayout(unidades);
    connect(Drive1, &ListaUnidades::Cambio, this,
            [this] { Atrapa(FormularioDe(this), [this] { SigueUnidad(*Drive1, *Dir1); }); });
}

void ElectorCarpetas::Pon(const std::string& carpeta)
{
    Dir1->Pon(carpeta);
    Drive1->Pon(carpeta);
}

}  // namespace veldix
