#include "templates/forms/frmPlantilla.h"

#include <QVBoxLayout>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "record/avance.h"
#include "record/leer_cfg.h"
#include "templates/forms/cadena.h"
#include "templates/plantilla.h"

namespace veldix {

Portador<frmPlantilla> frmPlantilla::unica;

frmPlantilla::frmPlantilla() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmPlantilla");
    setWindowTitle(Q(Rotulo(30, "Buscando plantilla adecuada")));
    CreaControles();
    Dispone();
    Conecta(elector_->File1, &ListaFicheros::Click, this, &frmPlantilla::File1_Click);
    Conecta(elector_->File1, &ListaFicheros::DblClick, this, &frmPlantilla::cmdBuscar_Click);
    Conecta(Combo1, &QComboBox::editTextChanged, this, &frmPlantilla::Combo1_Change);
    Conecta(cmdBuscar, &QPushButton::clicked, this, &frmPlantilla::cmdBuscar_Click);
    Conecta(cmdModif, &QPushButton::clicked, this, &frmPlantilla::cmdModif_Click);
    Conecta(cmdNueva, &QPushButton::clicked, this, &frmPlantilla::cmdNueva_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmPlantilla::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmPlantilla::CreaControles()
{
    elector_ = new ElectorFicheros("Label1", "lblPath", this);
    lbltext = new EtiquetaRuta(elector_);
    lbltext->setObjectName("lbltext");
    Combo1 = new QComboBox(elector_);
    Combo1->setObjectName("Combo1");
    Combo1->setEditable(true);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Combo1->setCompleter(nullptr);
    Combo1->addItem("*.CNF");
    Label6 = CreaRotulo(Combo1, "Label6", Rotulo(23, "Tipos:"));
    cmdBuscar = CreaBoton(this, "cmdBuscar", 27, "Abrir");
    cmdModif = CreaBoton(this, "cmdModif", 28, "modificar");
    cmdNueva = CreaBoton(this, "cmdNueva", 29, "nueva");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "cancelar");
    PonBotones(cmdBuscar, cmdcancel);
}

void frmPlantilla::Dispone()
{
    elector_->cabecera->addWidget(lbltext, 1);
    elector_->pie->addWidget(Label6);
    elector_->pie->addWidget(Combo1, 1);
    setTabOrder(elector_->File1, Combo1);
    setTabOrder(Combo1, elector_->carpetas->Dir1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    for (QPushButton* b : {cmdBuscar, cmdModif, cmdNueva, cmdcancel})
        botones->addWidget(b);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(elector_, 1);
    todo->addSpacing(6);
    todo->addLayout(botones);
}

void frmPlantilla::Form_Load()
{
    escena.leeDirectorios();
    elector_->Pon(store.DirPlantillas);
    elector_->PonPatron(U(Combo1->currentText()));
    Centra(*this);
}

void frmPlantilla::Form_Activate()
{
    escena.leeDirectorios();
    elector_->Pon(store.DirPlantillas);
}

void frmPlantilla::File1_Click()
{
    FicheroElegido = true;
    lbltext->PonRuta(Q(elector_->File1->Fichero()));
    store.FicheroCnf = UneRuta(elector_->Carpeta(), elector_->File1->Fichero());
}

void frmPlantilla::Combo1_Change()
{
    elector_->PonPatron(U(Combo1->currentText()));
}

bool frmPlantilla::HayFichero() const
{
    if (!FicheroElegido) Avisa(Textos(242), Icono::Critico);
    return FicheroElegido;
}

bool frmPlantilla::EsPlantilla()
{
    if (EsExtensionPlantilla(store.FicheroCnf)) return true;
    PonPuntero(this, Puntero::Normal);
    Avisa(Textos(147), Icono::Critico);
    return false;
}

/// Pages of a set-up that stands go first: the flags they were opened under change here whatever follows.
/// The template counts as applied, and three tables of the set are gone, before the file is looked at: one
/// that is refused by its ending or its version leaves it so.
void frmPlantilla::cmdBuscar_Click()
{
    AbandonaPaginas();
    store.PlantillaModifica = store.VuelveAnalog = false;
    if (!HayFichero()) return;
    store.PlantillaAplicada = true;
    PonPuntero(this, Puntero::Espera);
    store.CanalesPlan = {};
    store.CanalesDigPlan = {};
    store.TrifasicPlan = {};
    const std::string estacion = store.NombreEstacion;
    if (!EsPlantilla()) return;
    LeerPlantilla(store);
    if (store.RegistroAbierto && store.PlantillaAplicada && store.PlantillaNoValida) {
        Rechaza(estacion);
        return;
    }
    if (EsVersionVieja(store.VersionPlan)) {
        PonPuntero(this, Puntero::Normal);
        return;
    }
    AplicaPlantilla(store);
    ganchosRegistro.EscribeSesion();
    escena.activaPlantilla();
    Descarga();
    PonPuntero(this, Puntero::Normal);
}

/// A template that does not fit the record, whose own channels are read again: choosers that list those of
/// the template before go.
void frmPlantilla::Rechaza(const std::string& estacion)
{
    store.EstacionPlan = estacion;
    Avisa(Textos(253), Icono::Critico);
    PonPuntero(this, Puntero::Normal);
    escena.descargaSelectores();
    LeerCfg(store);
}

void frmPlantilla::cmdModif_Click()
{
    AbandonaPaginas();
    store.PlantillaModifica = true;
    store.VuelveAnalog = false;
    if (!HayFichero() || !EsPlantilla()) return;
    store.EstacionAnterior = store.NombreEstacion;
    LeerPlantilla(store);
    if (EsVersionVieja(store.VersionPlan)) {
        PonPuntero(this, Puntero::Normal);
        return;
    }
    store.PlantillaNueva = store.VueltaDigital = false;
    Descarga();
    EmpiezaPaginas();
}

void frmPlantilla::cmdNueva_Click()
{
    store.PlantillaModifica = store.VuelveAnalog = store.VueltaDigital = false;
    store.PlantillaNueva = true;
    Descarga();
    EmpiezaPaginas();
}

void frmPlantilla::cmdcancel_Click()
{
    store.VuelveAnalog = false;
    Descarga();
}

}  // namespace veldix
