#include "shell/forms/poscamb.h"

#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "shell/forms/Conversion.h"
#include "templates/forms/frmPlantilla.h"

namespace veldix {

Portador<poscamb> poscamb::unica;

poscamb::poscamb() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("poscamb");
    setWindowTitle(Q(Rotulo(157, "Conversión a ASCII")));
    CreaControles();
    Dispone();
    Conecta(continuar, &QPushButton::clicked, this, &poscamb::continuar_Click);
    Conecta(Convertir_continuar, &QPushButton::clicked, this, &poscamb::Convertir_continuar_Click);
    Conecta(Convertir_salir, &QPushButton::clicked, this, &poscamb::Convertir_salir_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &poscamb::cmdcancel_Click);
    Centra(*this);
}

void poscamb::CreaControles()
{
    Label1 = CreaEtiqueta(this, "Label1");
    Label1->setText(Q(Rotulo(
        154, "El registro está en formato BINARY. Puede convertirlo a ASCII o continuar sin convertirlo.")));
    Label1->setWordWrap(true);
    const QFontMetrics letra = fontMetrics();  // on one line, unless a translation is much longer
    Label1->setMinimumWidth(
        qMin(letra.horizontalAdvance(Label1->text()) + 4, letra.averageCharWidth() * 120));
    continuar = CreaBoton(this, "continuar", 151, "Continuar");
    Convertir_continuar = CreaBoton(this, "Convertir_continuar", 152, "Convertir y seguir");
    Convertir_salir = CreaBoton(this, "Convertir_salir", 153, "Convertir y salir");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "Cancelar");
    PonBotones(continuar, cmdcancel);
}

void poscamb::Dispone()
{
    auto* botones = new QHBoxLayout;
    for (QPushButton* b : {continuar, Convertir_continuar, Convertir_salir, cmdcancel})
        botones->addWidget(b);
    auto* todo = new QVBoxLayout(this);
    todo->setSpacing(12);
    todo->addWidget(Label1, 1);
    todo->addLayout(botones);
}

void poscamb::continuar_Click()
{
    frmPlantilla::unica.Muestra();
    Descarga();
}

void poscamb::Convierte(bool sale)
{
    store.ConvierteYSale = sale;
    Conversion::unica.Muestra();
    Descarga();
}

void poscamb::Convertir_continuar_Click()
{
    Convierte(false);
}

void poscamb::Convertir_salir_Click()
{
    Convierte(true);
}

void poscamb::cmdcancel_Click()
{
    Descarga();
}

}  // namespace veldix
