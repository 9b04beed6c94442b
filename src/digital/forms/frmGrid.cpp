#include "digital/forms/frmGrid.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/pantalla.h"
#include "platform/textos.h"

namespace veldix {

Portador<frmGrid> frmGrid::unica;

frmGrid::frmGrid() : ElectorDigital(etiqueta::kGrid)
{
    setObjectName("frmGrid");
    setWindowTitle(Q(Rotulo(72, "Elección de Canales Digitales")));
    for (int k = 1; k <= EleccionManual::kGrupos; ++k) {
        auto* grupo = new GrupoEtiquetas(k, this);
        Conecta(grupo, &GrupoEtiquetas::Click, this, [k](frmGrid* f, int j) { f->grp_Click(k, j); });
        Conecta(grupo, &GrupoEtiquetas::DblClick, this, [k](frmGrid* f, int j) { f->grp_DblClick(k, j); });
        Conecta(grupo, &GrupoEtiquetas::Quita, this, [k](frmGrid* f, int j) { f->grp_Quita(k, j); });
        Conecta(grupo, &GrupoEtiquetas::Sale, this,
                [k](frmGrid* f, int paso, int j) { f->grp_Sale(k, paso, j); });
        grupos_.push_back(grupo);
    }
    CreaPanel();
    Conecta(cmdOK, &QPushButton::clicked, this, &frmGrid::cmdOK_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmGrid::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmGrid::Abre()
{
    PonPuntero(escena.principal, Puntero::Espera);  // channels are looked through meanwhile
    unica.CargaNueva();
    if (frmGrid* form = unica.Cargado()) {
        form->Presenta(form->Frame1);
        static_cast<void>(std::any_of(form->grupos_.begin(), form->grupos_.end(),
                                      [](GrupoEtiquetas* grupo) { return grupo->Enfoca(1); }));
    }
    PonPuntero(escena.principal, Puntero::Normal);
}

/// Hint, reference, count and buttons, from the top.
void frmGrid::CreaPanel()
{
    panel_ = new QWidget(this);
    Frame1 = new MarcoCanalRef(Rotulo(74, "Canales Analógicos "), panel_);
    Frame3 = new MarcoReferencia("Frame3", panel_);
    Label99 = CreaEtiqueta(panel_, "Label99");
    Label99->setText(Q(Rotulo(
        75, "En azul, los canales que cambian de estado. Un clic elige el canal y un doble clic lo quita.")));
    Label99->setWordWrap(true);
    Label101 = CreaEtiqueta(panel_, "Label101");
    Label101->setText(Q(Rotulo(73, "Canales elegidos:")));
    Label102 = CreaEtiqueta(panel_, "Label102");
    cmdOK = CreaBoton(panel_, "cmdOK", 24, "Aceptar");
    cmdcancel = CreaBoton(panel_, "cmdcancel", 25, "Cancelar");
    PonBotones(cmdOK, cmdcancel);
    auto* cuenta = new QHBoxLayout;
    cuenta->addWidget(Label101);
    cuenta->addWidget(Label102);
    cuenta->addStretch(1);
    auto* columna = new QVBoxLayout(panel_);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(Label99);
    columna->addWidget(Frame1);
    columna->addWidget(Frame3);
    columna->addLayout(cuenta);
    columna->addStretch(1);
    columna->addWidget(cmdOK);
    columna->addWidget(cmdcancel);
}

void frmGrid::Form_Load()
{
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    Coloca(0.0, 0.0, vista.ancho, vista.alto);
    static_cast<void>(EtiquetaCanal(store, 1));  // raises 9 where there is no analog channel
    eleccion_.emplace(store);
    for (GrupoEtiquetas* grupo : grupos_)
        grupo->Llena(*eleccion_);
    Label102->setText("0");
    ColocaEtiquetas();
}

void frmGrid::ColocaEtiquetas()
{
    const QSize dentro = Interior();
    const LugaresGrid l =
        ColocaGrid({AnchoVentana(), AltoVentana(), ATwips(dentro.width()), ATwips(dentro.height())});
    for (GrupoEtiquetas* grupo : grupos_)
        grupo->Coloca(l);
    Pon(panel_, l.resto);
}

void frmGrid::Form_Resize()
{
    ColocaEtiquetas();
}

void frmGrid::MuestraCanal(int k, int j)
{
    grupos_[static_cast<std::size_t>(k - 1)]->Pinta(j, eleccion_->FondoDe(k, j));
    Label102->setText(Q(FormaDelimitada(eleccion_->NumElegidos())));
}

void frmGrid::Rechaza()
{
    PonPunteros(this, Puntero::Normal);
    Avisa(Textos(78), Icono::Critico);
}

void frmGrid::grp_Click(int k, int j)
{
    pulsada_ = {k, j};
    if (eleccion_->Click(k, j))
        MuestraCanal(k, j);
    else
        Rechaza();
}

/// A second press on another channel than the first is a click. The message of the limit also answers a
/// double click on a channel that the click before could not choose.
void frmGrid::grp_DblClick(int k, int j)
{
    if (pulsada_ != std::pair{k, j})
        grp_Click(k, j);
    else if (eleccion_->DblClick(k, j))
        MuestraCanal(k, j);
    else
        Rechaza();
}

void frmGrid::grp_Quita(int k, int j)
{
    if (eleccion_->DblClick(k, j)) MuestraCanal(k, j);
}

/// The next group in that direction that has channels.
void frmGrid::grp_Sale(int k, int paso, int j)
{
    for (int otro = k + paso; otro >= 1 && otro <= EleccionManual::kGrupos; otro += paso)
        if (grupos_[static_cast<std::size_t>(otro - 1)]->Enfoca(j)) return;
}

void frmGrid::cmdOK_Click()
{
    escena.muestraMenu();
    Ventana().hide();
    PonPunteros(this, Puntero::Propio);
    store.CanalRef = static_cast<std::int16_t>(Frame1->CanalRef());
    store.NumDigVista = static_cast<std::int16_t>(eleccion_->NumElegidos());
    AbreVista([this] { eleccion_->Entrega(); });
}

}  // namespace veldix
