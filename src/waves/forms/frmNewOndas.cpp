#include "waves/forms/frmNewOndas.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/enteros.h"
#include "platform/forms/doble_clic.h"
#include "platform/forms/escena.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "waves/forms/frmVerOndas.h"

namespace veldix {

Portador<frmNewOndas> frmNewOndas::unica;

frmNewOndas::frmNewOndas() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmNewOndas");
    setWindowTitle(Q(Rotulo(60, "Visualización de Ondas")));
    CreaControles();
    Coloca();
    LlenaLista();
    ConectaDobleClic(List1, this, &frmNewOndas::List1_DblClick);
    Conecta(filas_, &FilasRanura::Click, this, &frmNewOndas::grp_Click);
    Conecta(filas_, &FilasRanura::DblClick, this, &frmNewOndas::grp_DblClick);
    Conecta(filas_, &FilasRanura::Change, this, &frmNewOndas::grp_Change);
    Conecta(cmdOK, &QPushButton::clicked, this, &frmNewOndas::cmdOK_Click);
    Conecta(cmdSalir, &QPushButton::clicked, this, &frmNewOndas::cmdSalir_Click);
    filas_->Muestra(ranuras_);
    List1->setFocus();
    Centra(*this);
}

void frmNewOndas::CreaControles()
{
    Frame1 = new QGroupBox(Q(Rotulo(14, "Canales analógicos individuales")), this);
    Frame1->setObjectName("Frame1");
    Frame2 = new QGroupBox(Q(Rotulo(256, "Canales elegidos")), this);
    Frame2->setObjectName("Frame2");
    List1 = new QListWidget(Frame1);
    List1->setObjectName("List1");
    List1->setAccessibleName(Frame1->title());
    filas_ = new FilasRanura(ranuras_.Cuantas(), Frame2);
    Frame3 = new MarcoReferencia("Frame3", this);
    const auto boton = [this](const char* nombre, int texto, const char* defecto) {
        auto* b = new QPushButton(Q(Rotulo(texto, defecto)), this);
        b->setObjectName(nombre);
        return b;
    };
    cmdOK = boton("cmdOK", 142, "individualmente");
    cmdtodo = boton("cmdtodo", 141, "conjuntamente");
    cmdSalir = boton("cmdSalir", 25, "Cancelar");
    // The view of all channels in one plot is not part of the program yet.
    cmdtodo->setEnabled(false);
    PonBotones(cmdOK, cmdSalir);
}

/// List, slots, and a column of the reference and the buttons, spread down the height of the frames.
void frmNewOndas::Coloca()
{
    (new QVBoxLayout(Frame1))->addWidget(List1);
    auto* ranuras = new QVBoxLayout(Frame2);
    ranuras->addWidget(filas_);
    ranuras->addStretch(1);
    auto* columna = new QVBoxLayout;
    if (store.RevisionCfg != "1997") columna->setSpacing(0);
    columna->addWidget(Frame3);
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

void frmNewOndas::LlenaLista()
{
    for (int r = 1; r <= store.NumCanalAnalog; ++r)
        List1->addItem(Q(NombreCanal(store, r)));
    if (List1->count() > 0) List1->setCurrentRow(0);
}

void frmNewOndas::List1_DblClick()
{
    const int indice = List1->currentRow();
    if (indice < 0) return;
    if (ranuras_.Pon(U(List1->item(indice)->text()), indice + 1) == Ranuras::Puesta::Llena) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(272), Icono::Critico);
        return;
    }
    filas_->Muestra(ranuras_);
}

void frmNewOndas::grp_Click(int k)
{
    ranuras_.Marca(k);
    filas_->Muestra(ranuras_);
}

void frmNewOndas::grp_DblClick(int k)
{
    ranuras_.Vacia(k);
    filas_->Muestra(ranuras_);
}

void frmNewOndas::grp_Change(int k)
{
    AvisaSeparadores(ranuras_(k).texto);
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
        abriendo_ = false;
        PonPunteros(this, Puntero::Normal);
        Avisa(Textos(82), Icono::Critico);
        return;
    }
    AbreVentanas(cuenta);
    DescargaGasolinoOndas();
    PonPunteros(this, Puntero::Normal);
    Descarga();
}

void frmNewOndas::AbreVentanas(int cuenta)
{
    PonPunteros(this, Puntero::Propio);
    hide();
    MuestraGasolinoOndas(Q(Textos(285)));
    PonGasolinoOndas(30);
    Frame3->Aplica();
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    store.NumVentanasOnda = static_cast<std::int16_t>(cuenta);
    const std::vector<Lugar> lugares = RejillaVentanas(cuenta, vista);
    PonGasolinoOndas(60);
    ActivaVentanas(lugares);
    PonGasolinoOndas(80);
    MuestraVentanas();
    PonGasolinoOndas(100);
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

/// A window that failed has closed itself, so that the menu goes only when one is left.
void frmNewOndas::MuestraVentanas()
{
    if (store.NumVentanasOnda == 0) return;
    OcultaMenu();
    for (frmVerOndas* ventana : store.VentanaOnda) {
        if (!ventana) continue;
        ventana->Ventana().showNormal();
        ventana->Plot()->setFocus();
    }
}

/// Only what was begun by opening is undone; after any other handler's error the dialog stays.
void frmNewOndas::TrasError()
{
    if (!abriendo_) return;
    DescargaGasolinoOndas();
    for (frmVerOndas* ventana : store.VentanaOnda)
        if (ventana) ventana->Descarga();
    store.NumVentanasOnda = 0;
    PonPunteros(this, Puntero::Normal);
    MuestraMenu();
    Descarga();
}

void frmNewOndas::cmdSalir_Click()
{
    Descarga();
}

void frmNewOndas::Form_Unload()
{
    PonPunteros(this, Puntero::Normal);
}

}  // namespace veldix
