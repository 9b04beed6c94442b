#include "templates/forms/frmSalvaPlan.h"

#include <QVBoxLayout>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "templates/forms/cadena.h"
#include "templates/forms/frmPlantilla.h"
#include "templates/plantilla.h"

namespace veldix {

Portador<frmSalvaPlan> frmSalvaPlan::unica;

frmSalvaPlan::frmSalvaPlan() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmSalvaPlan");
    setWindowTitle(Q(Rotulo(93, "Guardar plantilla")));
    CreaControles();
    Dispone();
    Conecta(elector_->File1, &ListaFicheros::Click, this, &frmSalvaPlan::File1_Click);
    botones_->ConectaA(this, &frmSalvaPlan::cmdvolver_Click, &frmSalvaPlan::cmdOK_Click,
                       &frmSalvaPlan::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmSalvaPlan::CreaControles()
{
    Text2 = new QLineEdit(this);
    Text2->setObjectName("Text2");
    Label1 = CreaRotulo(Text2, "Label1", Rotulo(155, "Introduce el nombre del fichero sin extensión:"));
    elector_ = new ElectorFicheros("Label2", "Text1", this);
    botones_.emplace(this, 24, "Aceptar");
}

void frmSalvaPlan::Dispone()
{
    auto* nombre = new QHBoxLayout;
    nombre->addWidget(Label1);
    nombre->addWidget(Text2, 1);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(nombre);
    todo->addSpacing(6);
    todo->addWidget(elector_, 1);
    todo->addSpacing(6);
    todo->addLayout(botones_->linea);
}

void frmSalvaPlan::Form_Load()
{
    elector_->Pon(store.DirPlantillas);
    elector_->PonPatron("*.CNF");
    Centra(*this);
}

void frmSalvaPlan::File1_Click()
{
    constexpr std::size_t kExtension = 4;  // with its point
    Text2->setText(Q(std::string(SinFinal(elector_->File1->Fichero(), kExtension))));
}

/// The pages go before the file is written: after a failure only the tables are left.
void frmSalvaPlan::cmdOK_Click()
{
    const std::string nombre = U(Text2->text());
    if (nombre.empty()) {
        Avisa(Textos(243));
        return;
    }
    const std::string ruta = UneRuta(elector_->Carpeta(), nombre) + ".cnf";
    if (ExisteFichero(ruta) && !Pregunta(Textos(138))) return;
    DescargaPaginas();
    GrabarPlantilla(store, ruta);
    Descarga();
    frmPlantilla::unica.Muestra();
}

void frmSalvaPlan::cmdvolver_Click()
{
    Descarga();
    MuestraDigital();
}

void frmSalvaPlan::cmdcancel_Click()
{
    CancelaPaginas();
    Descarga();
}

void frmSalvaPlan::TrasCierre()
{
    MuestraDigital();
}

void frmSalvaPlan::TrasError()
{
    Descarga();
    TrasCierre();
}

}  // namespace veldix
