#include "waves/forms/frmNewOndas.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/enteros.h"
#include "platform/forms/disposicion.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "waves/forms/frmTodoanalog.h"
#include "waves/forms/frmVerOndas.h"

namespace veldix {

namespace {

constexpr int kRanuras = 8;

}  // namespace

Portador<frmNewOndas> frmNewOndas::unica;

frmNewOndas::frmNewOndas() : ElectorOndas("frmNewOndas", "Frame3", Ranuras(kRanuras))
{
    setWindowTitle(Q(Rotulo(60, "Visualización de Ondas")));
    CreaControles();
    Dispone();
    LlenaLista();
    Conecta(cmdOK, &QPushButton::clicked, this, &frmNewOndas::cmdOK_Click);
    Conecta(cmdtodo, &QPushButton::clicked, this, &frmNewOndas::cmdtodo_Click);
    Conecta(cmdSalir, &QPushButton::clicked, this, &frmNewOndas::cmdSalir_Click);
    OrdenaTeclas({List1, Frame2, referencia_, cmdOK, cmdtodo, cmdSalir});
    Centra(*this);
}

void frmNewOndas::CreaControles()
{
    Frame1 = new QGroupBox(Q(Rotulo(14, "Canales analógicos individuales")), this);
    Frame1->setObjectName("Frame1");
    Frame2 = new QGroupBox(Q(Rotulo(256, "Canales elegidos")), this);
    Frame2->setObjectName("Frame2");
    List1->setParent(Frame1);
    List1->setAccessibleName(Frame1->title());
    filas_ = CreaFilas(kRanuras, Frame2);
    cmdOK = CreaBoton(this, "cmdOK", 142, "individualmente");
    cmdtodo = CreaBoton(this, "cmdtodo", 141, "conjuntamente");
    cmdSalir = CreaBoton(this, "cmdSalir", 25, "Cancelar");
    PonBotones(cmdOK, cmdSalir);
}

/// List, slots, and a column of the reference and the buttons, spread down the height of the frames.
void frmNewOndas::Dispone()
{
    (new QVBoxLayout(Frame1))->addWidget(List1);
    auto* ranuras = new QVBoxLayout(Frame2);
    ranuras->addWidget(filas_);
    ranuras->addStretch(1);
    auto* columna = new QVBoxLayout;
    if (store.RevisionCfg != "1997") columna->setSpacing(0);
    columna->addWidget(referencia_);
    for (QPushButton* b : {cmdOK, cmdtodo, cmdSalir}) {
        columna->addStretch(1);
        columna->addWidget(b);
    }
    columna->addStretch(1);
    auto* fila = new QHBoxLayout(this);
    fila->addWidget(Frame1, 1);
    fila->addWidget(Frame2, 1);
    fila->addLayout(columna);
}

/// Marks the channels of the slots in `OndaCanal` and counts the slots. Raises 9 for a channel that the
/// record lacks.
int frmNewOndas::CuentaElegidos()
{
    store.OndaCanal = Tabla1<std::int16_t>(store.NumAnalog);
    int cuenta = 0;
    for (int k = 1; k <= ranuras_.Cuantas(); ++k) {
        if (Recorta(ranuras_(k).texto).empty()) continue;
        store.OndaCanal(Entero16(Val(ranuras_(k).numero))) = 1;
        ++cuenta;
    }
    return cuenta;
}

void frmNewOndas::cmdOK_Click()
{
    abriendo_ = true;
    PonPuntero(this, Puntero::Espera);
    store.VentanaOnda = Tabla1<frmVerOndas*>(store.NumAnalog);
    const int cuenta = CuentaElegidos();
    if (cuenta == 0) {
        Rechaza(82, Icono::Critico);
        return;
    }
    AbreVentanas(cuenta);
    AcabaApertura();
}

void frmNewOndas::AbreVentanas(int cuenta)
{
    EmpiezaApertura(30);
    referencia_->Aplica();
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    store.NumVentanasOnda = static_cast<std::int16_t>(cuenta);
    const std::vector<Lugar> lugares = RejillaVentanas(cuenta, vista);
    escena.ponGasolinoOndas(60);
    ActivaVentanas(lugares);
    escena.ponGasolinoOndas(80);
    MuestraVentanas(store.VentanaOnda, store.NumVentanasOnda);
    escena.ponGasolinoOndas(100);
}

/// A window for each chosen channel, in rising number. Where two slots named one channel the search runs
/// past the last one: error 9.
void frmNewOndas::ActivaVentanas(const std::vector<Lugar>& lugares)
{
    int r = 0;
    for (const Lugar& l : lugares) {
        do
            ++r;
        while (store.OndaCanal(r) != 1);
        store.VentanaOnda(r) = new frmVerOndas(r);
        store.VentanaOnda(r)->Form_activo(l.alto, l.ancho, l.arriba, l.izquierda);
    }
}

/// The dialog is gone from the screen while the slots are counted.
void frmNewOndas::cmdtodo_Click()
{
    abriendo_ = true;
    hide();
    PonPunteros(this, Puntero::Propio);
    const int cuenta = CuentaElegidos();
    if (cuenta == 0 || cuenta > kRanuras) {
        show();
        Rechaza(cuenta == 0 ? 82 : 146, cuenta == 0 ? Icono::Informacion : Icono::Ninguno);
        activateWindow();  // the box was that of the main window
        return;
    }
    EmpiezaApertura(5);
    referencia_->Aplica();
    frmTodoanalog::unica.CargaNueva();
    if (frmTodoanalog* vista = frmTodoanalog::unica.Cargado()) vista->Presenta(vista->Plot());
    AcabaApertura();
}

void frmNewOndas::Deshace()
{
    DescargaVentanas(store.VentanaOnda);
    store.NumVentanasOnda = 0;
}

void frmNewOndas::cmdSalir_Click()
{
    Descarga();
}

}  // namespace veldix
