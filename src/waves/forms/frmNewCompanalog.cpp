#include "waves/forms/frmNewCompanalog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/disposicion.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "record/record_store.h"
#include "waves/composicion.h"
#include "waves/forms/frmVerCmpang.h"

namespace veldix {

Portador<frmNewCompanalog> frmNewCompanalog::unica;

frmNewCompanalog::frmNewCompanalog()
    : ElectorOndas("frmNewCompanalog", "Frame5",
                   Ranuras(kVentanasComp * kCanalesComp, Ranuras::Repetida::AntesPorTexto, kCanalesComp))
{
    setWindowTitle(Q(Rotulo(64, "Composición de Canales Analógicos")));
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "Cancelar");
    PonBotones(cmdOK, cmdcancel);
    Dispone();
    LlenaLista();
    Conecta(cmdOK, &QPushButton::clicked, this, &frmNewCompanalog::cmdOK_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmNewCompanalog::cmdcancel_Click);
    OrdenaTeclas({List1, findChild<QWidget*>("Frame1"), findChild<QWidget*>("Frame2"),
                  findChild<QWidget*>("Frame3"), referencia_, cmdOK, cmdcancel});
    Centra(*this);
}

/// The list, then a frame a window, and below them the reference and the buttons.
void frmNewCompanalog::Dispone()
{
    constexpr const char* kTitulos[] = {"Ventana 1", "Ventana 2", "Ventana 3"};
    auto* canales = new QGroupBox(Q(Rotulo(31, "Canales Analógicos")), this);
    List1->setParent(canales);
    List1->setAccessibleName(canales->title());
    (new QVBoxLayout(canales))->addWidget(List1);
    auto* rejilla = new QGridLayout(this);
    rejilla->addWidget(canales, 0, 0);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(1, 1);
    for (int j = 1; j <= kVentanasComp; ++j) {
        auto* marco = new QGroupBox(Q(Rotulo(64 + j, kTitulos[j - 1])), this);
        marco->setObjectName(QString("Frame%1").arg(j));
        auto* columna = new QVBoxLayout(marco);
        columna->addWidget(CreaFilas(kCanalesComp, marco, (j - 1) * kCanalesComp + 1));
        columna->addStretch(1);
        rejilla->addWidget(marco, j / 2, j % 2 == 1 ? 1 : 0);
    }
    auto* pie = new QHBoxLayout;
    pie->addWidget(referencia_);
    pie->addStretch(1);
    pie->addWidget(cmdOK, 0, Qt::AlignBottom);
    pie->addWidget(cmdcancel, 0, Qt::AlignBottom);
    rejilla->addLayout(pie, 2, 0, 1, 2);
}

void frmNewCompanalog::cmdOK_Click()
{
    abriendo_ = true;
    PonPunteros(this, Puntero::Propio);
    store.VentanaComp = Tabla1<frmVerCmpang*>(kVentanasComp);
    if (!LlenaMatriz(store, ranuras_)) {
        Rechaza(83, Icono::Ninguno);
    } else if (store.NumVentanasComp == 0) {
        Rechaza(82, Icono::Critico);
    } else {
        EmpiezaApertura(30);
        referencia_->Aplica();
        AbreVentanas();
        MuestraVentanas(store.VentanaComp, store.NumVentanasComp);
        store.CompAbierta = store.NumVentanasComp > 0;
        AcabaApertura();
    }
}

/// All are laid out before the first is drawn. One that fails closes itself and leaves its place empty.
void frmNewCompanalog::AbreVentanas()
{
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    const std::vector<int> usadas = VentanasEnUso(store);
    const std::vector<Lugar> lugares = RejillaComposicion(static_cast<int>(usadas.size()), vista);
    for (std::size_t n = 0; n < usadas.size(); ++n) {
        const int j = usadas[n];
        store.VentanaComp(j) = new frmVerCmpang;
        store.VentanaComp(j)->Form_activo(lugares[n], j, static_cast<int>(n) + 1);
    }
    escena.ponGasolinoOndas(80);
    for (const int j : usadas)
        if (frmVerCmpang* ventana = store.VentanaComp(j)) ventana->Composicion(j);
    escena.ponGasolinoOndas(100);
}

void frmNewCompanalog::Deshace()
{
    DescargaVentanas(store.VentanaComp);
    store.NumVentanasComp = 0;
}

void frmNewCompanalog::cmdcancel_Click()
{
    Descarga();
}

}  // namespace veldix
