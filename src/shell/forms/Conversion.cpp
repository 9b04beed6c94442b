#include "shell/forms/Conversion.h"

#include <QVBoxLayout>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "record/copia_ascii.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/poscamb.h"
#include "templates/forms/frmPlantilla.h"

namespace veldix {

Portador<Conversion> Conversion::unica;

Conversion::Conversion() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("Conversion");
    setWindowTitle(Q(Rotulo(157, "Conversión a ASCII")));
    CreaControles();
    Dispone();
    Conecta(carpetas_->Dir1, &ListaCarpetas::Cambio, this, &Conversion::Dir1_Change);
    Conecta(Aceptar, &QPushButton::clicked, this, &Conversion::Aceptar_Click);
    Conecta(Cancelar, &QPushButton::clicked, this, &Conversion::Cancelar_Click);
    Conecta(Ayuda, &QPushButton::clicked, this, &Conversion::Ayuda_Click);
    Form_Load();
}

void Conversion::CreaControles()
{
    Senda = new QLineEdit(this);
    Senda->setObjectName("Senda");
    Senda->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    Label1 = CreaRotulo(Senda, "Label1", Rotulo(155, "Introduce el nombre del fichero sin extensión:"));
    carpetas_ = new ElectorCarpetas(this);
    camin = new EtiquetaRuta(this);
    camin->setObjectName("camin");
    Aceptar = CreaBoton(this, "Aceptar", 24, "Aceptar");
    Cancelar = CreaBoton(this, "Cancelar", 25, "Cancelar");
    Ayuda = CreaBoton(this, "Ayuda", 156, "Ayuda");
    PonBotones(Aceptar, Cancelar);
}

void Conversion::Dispone()
{
    auto* nombre = new QHBoxLayout;
    nombre->addWidget(Label1);
    nombre->addWidget(Senda, 1);
    auto* camino = new QHBoxLayout;
    camino->addWidget(CreaRotulo(camin, "Label2", Rotulo(20, "Path:")));
    camino->addWidget(camin, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    for (QPushButton* b : {Aceptar, Cancelar, Ayuda})
        botones->addWidget(b);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(nombre);
    todo->addLayout(camino);
    todo->addSpacing(6);
    todo->addWidget(carpetas_, 1);
    todo->addSpacing(6);
    todo->addLayout(botones);
}

/// Beside the record, not beside a link to it; where its folder has gone, where the program stands.
void Conversion::Form_Load()
{
    Intenta([this] { carpetas_->Pon(CarpetaDe(SinEnlaces(store.FicheroDat))); });
    Dir1_Change();
    Centra(*this);
}

void Conversion::Form_Unload()
{
    Mensaje::unica.Descarga();
}

void Conversion::Dir1_Change()
{
    camin->PonRuta(Q(carpetas_->Carpeta()));
}

/// The path with the name stands in the label while the copy is written.
void Conversion::Aceptar_Click()
{
    const std::string nombre = U(Senda->text());
    if (nombre.empty()) return;
    store.FicheroAscii = UneRuta(carpetas_->Carpeta(), nombre);
    camin->PonRuta(Q(store.FicheroAscii));
    if (ExisteCopia(store) && !Pregunta(Textos(167))) {
        Senda->clear();
        Dir1_Change();
        return;
    }
    Convierte();
}

/// However it ends, the choice is over.
void Conversion::Convierte()
{
    Atrapa(nullptr, [this] {
        const PunteroEspera espera(*this);
        try {
            ConvierteAscii(store);
        } catch (const ErrorEjecucion& e) {
            if (e.numero != error::kRutaNoEncontrada) throw;
            PunteroNormal();
            Pregunta(Textos(168), Icono::Ninguno);  // either button will do
            return;
        }
        if (!store.ConvierteYSale) frmPlantilla::unica.Muestra();
    });
    Descarga();
    poscamb::unica.Descarga();
}

void Conversion::Cancelar_Click()
{
    Descarga();
}

void Conversion::Ayuda_Click()
{
    Mensaje::unica.Muestra([] { unica.Muestra(); });
}

}  // namespace veldix
