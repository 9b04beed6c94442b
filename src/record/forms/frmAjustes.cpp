#include "record/forms/frmAjustes.h"

#include <QFontDatabase>

#include "platform/enteros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/iconos.h"
#include "platform/forms/impresion.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "record/cabecera.h"
#include "record/forms/turno_cancelar.h"
#include "record/record_store.h"

namespace veldix {

namespace {

constexpr double kIzquierda = 240.0, kArriba = 60.0;  // of the list, twips

}  // namespace

Portador<frmAjustes> frmAjustes::unica;

frmAjustes::frmAjustes() : Vista(etiqueta::kAjustes)
{
    setObjectName("frmAjustes");
    setWindowTitle(Q(Rotulo(236, "Cabecera y ajustes del registro")));
    Lista1 = new QListWidget(this);
    Lista1->setObjectName("Lista1");
    Lista1->setAccessibleName(windowTitle());
    Lista1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));  // headers are set in columns
    Lista1->setTextElideMode(Qt::ElideNone);
    Lista1->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    cmdImprimir = CreaBoton(this, "cmdImprimir", 57, "Imprimir");
    cmdImprimir->setIcon(IconoImprimir());
    Conecta(cmdImprimir, &QPushButton::clicked, this, &frmAjustes::cmdImprimir_Click);
    Atrapa(this, [this] { Form_Load(); });
}

void frmAjustes::Abre()
{
    unica.CargaNueva();
    frmAjustes* form = unica.Cargado();
    if (!form) return;
    form->Presenta(form->Lista1);
    form->Form_Activate();
}

void frmAjustes::Form_Load()
{
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    Coloca(0.0, 0.0, vista.ancho, vista.alto);
    ColocaControles();
    if (store.FicheroHdr.empty()) {
        Avisa(Textos(161), Icono::Critico);
        fallo_ = true;
        return;
    }
    lineas_ = LeeCabecera(store.FicheroHdr);
    for (const std::string& linea : lineas_)
        Lista1->addItem(Q(linea));
}

/// The view's size is the screen's until the user gives the window another.
void frmAjustes::ColocaControles()
{
    const double alto = Entero32(AltoVentana() * 0.88), ancho = Entero32(AnchoVentana() * 0.96);
    Pon(Lista1, {kIzquierda, kArriba, ancho, alto});
    const double anchoBoton = Entero32(AnchoVentana() / 5.0);
    const double izquierda = std::min(Entero32(store.AnchoPantalla * 2.0 / 5.0 + 50.0) + 0.0,
                                      std::max(0.0, AnchoVentana() - anchoBoton));
    Pon(cmdImprimir,
        {izquierda, alto + 120.0, anchoBoton, static_cast<double>(Entero32(AltoVentana() / 19.0))});
}

void frmAjustes::Form_Resize()
{
    ColocaControles();
}

void frmAjustes::Form_Activate()
{
    if (fallo_) Descarga();
}

/// On the default printer. What was printed of a cancelled document is dropped with it.
void frmAjustes::cmdImprimir_Click()
{
    store.CancelaImpresion = false;
    const QPointer<frmAjustes> viva(this);
    ConImpresoraPredeterminada(size(), [&](const PeticionImpresion& p) {
        if (!viva) return;
        const std::vector<std::string> lineas = lineas_;  // the view may go meanwhile
        const std::string fecha = FechaImpresion();
        TurnoCancelar turno(*this);
        for (int copia = 1; copia <= p.copias; ++copia) {
            if (copia > 1) p.impresora->PaginaNueva();
            if (!ImprimeCabecera(*p.impresora, lineas, fecha, [&turno] { return turno.Cancelada(); })) return;
        }
    });
}

void frmAjustes::Form_Unload()
{
    escena.muestraMenu();
}

}  // namespace veldix
