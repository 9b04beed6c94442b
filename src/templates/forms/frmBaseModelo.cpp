#include "templates/forms/frmBaseModelo.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/doble_clic.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "templates/forms/cadena.h"
#include "templates/modelos.h"

namespace veldix {

Portador<frmBaseModelo> frmBaseModelo::unica;

namespace {

/// Runs a reading of the databases, whose missing folder has a message of its own.
template <class Cuerpo>
void AvisaCarpeta(Cuerpo&& cuerpo)
{
    try {
        cuerpo();
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kRutaNoValida) throw;
        PunteroNormal();
        Avisa(Textos(245), Icono::Critico);
    }
}

}  // namespace

frmBaseModelo::frmBaseModelo() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmBaseModelo");
    setWindowTitle(Q(Rotulo(257, "Base de datos de modelos")));
    CreaControles();
    Dispone();
    ConectaDobleClic(List1, this, &frmBaseModelo::List1_DblClick);
    Conecta(cmdOK, &QPushButton::clicked, this, &frmBaseModelo::cmdOK_Click);
    Conecta(cmdCancelar, &QPushButton::clicked, this, &frmBaseModelo::cmdCancelar_Click);
    Centra(*this);
    Atrapa(this, [this] { Form_Load(); });
}

void frmBaseModelo::CreaControles()
{
    List1 = new QListWidget(this);
    List1->setObjectName("List1");
    List1->setMinimumWidth(List1->fontMetrics().averageCharWidth() * 40);
    lblNomModelo = new QLineEdit(this);
    lblNomModelo->setObjectName("lblNomModelo");
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdCancelar = CreaBoton(this, "cmdCancelar", 25, "Cancelar");
    PonBotones(cmdOK, cmdCancelar);
}

void frmBaseModelo::Dispone()
{
    auto* marco = new QGroupBox(Q(Rotulo(258, "Modelo de relé")), this);
    marco->setObjectName("Frame1");
    List1->setAccessibleName(marco->title());
    lblNomModelo->setAccessibleName(marco->title());
    auto* dentro = new QVBoxLayout(marco);
    dentro->addWidget(List1, 1);
    dentro->addWidget(lblNomModelo);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmdOK);
    botones->addWidget(cmdCancelar);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(marco, 1);
    todo->addSpacing(6);
    todo->addLayout(botones);
}

void frmBaseModelo::Form_Load()
{
    AvisaCarpeta([this] {
        for (const std::string& nombre : ListaModelos(store))
            List1->addItem(Q(nombre));
    });
}

void frmBaseModelo::List1_DblClick()
{
    if (const QListWidgetItem* modelo = List1->currentItem()) lblNomModelo->setText(modelo->text());
}

void frmBaseModelo::cmdOK_Click()
{
    AvisaCarpeta([this] {
        const std::string nombre = U(lblNomModelo->text());
        LeeModeloAnalog(store, nombre);
        if (store.NumAnalogPlan == 0) return;
        store.EstacionPlan = nombre;
        VuelveDeModelos();
    });
}

void frmBaseModelo::cmdCancelar_Click()
{
    VuelveDeModelos();
}

void frmBaseModelo::TrasCierre()
{
    VuelveDeModelos();
}

}  // namespace veldix
