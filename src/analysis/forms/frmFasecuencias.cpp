#include "analysis/forms/frmFasecuencias.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "analysis/forms/frmFases.h"
#include "analysis/forms/frmSecuencias.h"
#include "platform/errores.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"

namespace veldix {

Portador<frmFasecuencias> frmFasecuencias::unica;

frmFasecuencias::frmFasecuencias() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmFasecuencias");
    CreaControles();
    Dispone();
    Conecta(cmdOK, &QPushButton::clicked, this, &frmFasecuencias::cmdOK_Click);
    Conecta(cmdSalir, &QPushButton::clicked, this, &frmFasecuencias::cmdSalir_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmFasecuencias::CreaControles()
{
    setWindowTitle(Q(Rotulo(68, "Fases y Secuencias")));
    Frame1 = new QGroupBox(Q(Rotulo(69, "Fases")), this);
    Frame1->setObjectName("Frame1");
    Frame2 = new QGroupBox(Q(Rotulo(70, "Secuencias")), this);
    Frame2->setObjectName("Frame2");
    CreaCajas(Frame1, "fas", fas);
    CreaCajas(Frame2, "sec", sec);
    Frame3 = new MarcoReferencia("Frame3", this);
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdSalir = CreaBoton(this, "cmdSalir", 25, "Cancelar");
    PonBotones(cmdOK, cmdSalir);
}

void frmFasecuencias::CreaCajas(QGroupBox* marco, const char* nombre, Cajas& cajas)
{
    auto* columna = new QVBoxLayout(marco);
    for (std::size_t i = 0; i < cajas.size(); ++i) {
        cajas[i] = new QCheckBox(marco);
        cajas[i]->setObjectName(QString("%1%2").arg(nombre).arg(i + 1));
        cajas[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
        columna->addWidget(cajas[i]);
    }
}

/// The buttons stand under the reference where there is one, else each under its frame.
void frmFasecuencias::Dispone()
{
    auto* rejilla = new QGridLayout(this);
    rejilla->addWidget(Frame1, 0, 0);
    rejilla->addWidget(Frame2, 0, 1);
    if (store.RevisionCfg == "1997") {
        auto* columna = new QVBoxLayout;
        columna->addWidget(Frame3);
        columna->addStretch(1);
        columna->addWidget(cmdOK);
        columna->addWidget(cmdSalir);
        rejilla->addLayout(columna, 0, 2);
        return;
    }
    rejilla->setVerticalSpacing(cmdOK->sizeHint().height() / 2);
    rejilla->addWidget(cmdOK, 1, 0, Qt::AlignHCenter);
    rejilla->addWidget(cmdSalir, 1, 1, Qt::AlignHCenter);
}

/// Raises 9 for a template of more groups than there are boxes.
void frmFasecuencias::Form_Load()
{
    const int grupos = store.NumTrifasic;
    if (grupos > static_cast<int>(fas.size())) Lanza(error::kSubindice);
    for (int g = 1; g <= static_cast<int>(fas.size()); ++g)
        for (QCheckBox* caja : {fas[static_cast<std::size_t>(g - 1)], sec[static_cast<std::size_t>(g - 1)]}) {
            caja->setEnabled(g <= grupos);
            // A blank keeps the height of the boxes alike.
            caja->setText(g <= grupos ? Q(store.Trifasic(g).Nombre).replace("&", "&&") : QString(" "));
        }
    (grupos > 0 ? static_cast<QWidget*>(fas[0]) : cmdOK)->setFocus();
    Centra(*this);
}

Marcas frmFasecuencias::MarcasDe(const Cajas& cajas)
{
    if (store.NumTrifasic < 0) Lanza(error::kSubindice);
    Marcas marcas;
    for (int g = 1; g <= store.NumTrifasic; ++g) {
        if (g > static_cast<int>(cajas.size())) Lanza(error::kSubindice);
        marcas.push_back(cajas[static_cast<std::size_t>(g - 1)]->isChecked());
    }
    return marcas;
}

void frmFasecuencias::cmdOK_Click()
{
    store.GruposFases = CuentaMarcas(MarcasDe(fas));
    store.GruposSecuencias = CuentaMarcas(MarcasDe(sec));
    const int fases = store.GruposFases(0), secuencias = store.GruposSecuencias(0);
    if (fases > 2 || secuencias > 2) {
        PonPunteros(this, Puntero::Normal);
        Avisa(Textos(81), Icono::Critico);
    } else if (store.NumTrifasic == 0) {
        PonPunteros(this, Puntero::Normal);
        Avisa(Textos(247), Icono::Critico);
        Descarga();
    } else if (fases == 0 && secuencias == 0) {
        PonPunteros(this, Puntero::Normal);
        Avisa(Textos(82), Icono::Critico);
    } else {
        AbreVistas(fases > 0, secuencias > 0);
    }
}

/// Views are loaded hidden, and shown when the menu has gone: beside a maximised window they would be
/// maximised too. One that failed has closed itself, so that the menu goes only when another is left.
void frmFasecuencias::AbreVistas(bool fases, bool secuencias)
{
    PonPunteros(this, Puntero::Propio);
    hide();
    // Views that another chooser's opening left standing go by the mode they were opened in.
    frmFases::unica.Descarga();
    frmSecuencias::unica.Descarga();
    store.FasesCerrando = store.SecuenciasCerrando = false;
    store.ModoFasecuencia = fases && secuencias ? 2 : 1;
    if (fases) frmFases::unica.CargaNueva();
    if (secuencias) frmSecuencias::unica.CargaNueva();
    VistaFasores* const vistas[] = {fases ? frmFases::unica.Cargado() : nullptr,
                                    secuencias ? frmSecuencias::unica.Cargado() : nullptr};
    if (vistas[0] || vistas[1]) escena.ocultaMenu();
    for (VistaFasores* vista : vistas) {
        if (!vista) continue;
        vista->Ventana().showNormal();
        vista->Barra()->setFocus();
    }
    PonPunteros(this, Puntero::Normal);
    Descarga();
}

void frmFasecuencias::TrasError()
{
    PonPunteros(this, Puntero::Normal);
    Descarga();
    escena.muestraMenu();
}

void frmFasecuencias::cmdSalir_Click()
{
    Descarga();
}

void frmFasecuencias::Form_Unload()
{
    PonPunteros(this, Puntero::Normal);
}

}  // namespace veldix
