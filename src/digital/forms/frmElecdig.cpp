#include "digital/forms/frmElecdig.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "platform/forms/disposicion.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"

namespace veldix {

namespace {

/// A name too long for the dialog is told by the hint.
void PonNombre(QRadioButton* opcion, const QString& nombre)
{
    constexpr int kLetras = 40;
    const QFontMetrics letra(opcion->font());
    opcion->setText(
        letra.elidedText(nombre, Qt::ElideRight, kLetras * letra.averageCharWidth()).replace("&", "&&"));
    opcion->setAccessibleName(nombre);
    opcion->setToolTip(Ayuda(nombre));
}

}  // namespace

Portador<frmElecdig> frmElecdig::unica;

frmElecdig::frmElecdig() : ElectorDigital(escena.principal, Qt::Dialog)
{
    setObjectName("frmElecdig");
    setWindowTitle(Q(Rotulo(71, "Elección de grupo de canales digitales")));
    CreaControles();
    Dispone();
    Conecta(cmdOK, &QPushButton::clicked, this, &frmElecdig::cmdOK_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmElecdig::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmElecdig::CreaControles()
{
    Frame1 = new MarcoCanalRef(Rotulo(31, "Canales Analógicos"), this);
    fmeDigital = new QGroupBox(Q(Rotulo(47, "Canales Digitales ")), this);
    fmeDigital->setObjectName("fmeDigital");
    for (std::size_t g = 0; g < optdg.size(); ++g) {
        optdg[g] = new QRadioButton(fmeDigital);
        optdg[g]->setObjectName(QString("optdg%1").arg(g + 1));
    }
    Frame3 = new MarcoReferencia("Frame3", this);
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "Cancelar");
    PonBotones(cmdOK, cmdcancel);
}

/// The groups in two columns, and a column of the rest.
void frmElecdig::Dispone()
{
    constexpr int kFilas = EleccionManual::kGrupos / 2;
    auto* opciones = new QGridLayout(fmeDigital);
    for (int g = 0; g < EleccionManual::kGrupos; ++g)
        opciones->addWidget(optdg[static_cast<std::size_t>(g)], g % kFilas, g / kFilas);
    auto* columna = new QVBoxLayout;
    columna->addWidget(Frame1);
    columna->addWidget(Frame3);
    columna->addStretch(1);
    columna->addWidget(cmdOK);
    columna->addWidget(cmdcancel);
    auto* fila = new QHBoxLayout(this);
    fila->addWidget(fmeDigital, 1);
    fila->addLayout(columna);
}

/// Raises 9 for a template of more groups than there are options.
void frmElecdig::Form_Load()
{
    const int grupos = store.NumGruposDig;
    if (grupos > EleccionManual::kGrupos) Lanza(error::kSubindice);
    for (int g = 1; g <= EleccionManual::kGrupos; ++g) {
        QRadioButton* opcion = optdg[static_cast<std::size_t>(g - 1)];
        opcion->setEnabled(g <= grupos);
        opcion->setText(" ");  // keeps the height of the options alike
        if (g <= grupos) PonNombre(opcion, Q(store.GruposDig(g).Nombre));
    }
    (grupos > 0 ? static_cast<QWidget*>(optdg[0]) : cmdOK)->setFocus();
    OrdenaTeclas({fmeDigital, Frame1, Frame3, cmdOK, cmdcancel});
    CentraSobre(*this, *escena.principal);
}

/// The last option that is set, 0 where none is.
int frmElecdig::GrupoElegido() const
{
    int elegido = 0;
    for (int g = 1; g <= store.NumGruposDig; ++g)
        if (optdg.at(static_cast<std::size_t>(g - 1))->isChecked()) elegido = g;
    return elegido;
}

void frmElecdig::cmdOK_Click()
{
    hide();
    PonPunteros(this, Puntero::Propio);
    store.CanalRef = static_cast<std::int16_t>(Frame1->CanalRef());
    const int g = GrupoElegido();
    if (g == 0) {
        PonPunteros(this, Puntero::Normal);
        Avisa(Textos(92));
        Descarga();
        return;
    }
    AbreVista([g] { EligeGrupo(store, g); });
}

}  // namespace veldix
