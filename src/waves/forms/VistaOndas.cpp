#include "waves/forms/VistaOndas.h"

#include <QFontMetrics>
#include <QStyle>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/iconos.h"
#include "platform/textos.h"
#include "record/forms/imprime_copias.h"
#include "record/record_store.h"
#include "waves/colores.h"
#include "waves/plot.h"

namespace veldix {

VistaOndas::VistaOndas(const Papel& papel) : Vista(papel.etiqueta), papel_(papel)
{
    setObjectName(papel_.nombre);
    plot_ = new Lienzo(this);
    plot_->setObjectName(papel_.plot);
    linea1_ = plot_->CreaLinea(kCursorAmarillo, papel_.linea1);
    linea2_ = plot_->CreaLinea(kCursorCian, papel_.linea2);
    HScroll1 = new BarraCursor("HScroll1", "Cursor 1", this);
    HScroll2 = new BarraCursor("HScroll2", "Cursor 2", this);
    lblms = CreaEtiqueta(this, papel_.tiempo);
    CreaBotones();
    lbl_PS = CreaEtiqueta(this, "lbl_PS");
    Conexiones();
}

void VistaOndas::CreaBotones()
{
    const auto crea = [this](const char* nombre, const QIcon& icono, const QString& ayuda) {
        auto* b = new QPushButton(icono, QString(), this);
        b->setObjectName(nombre);
        b->setToolTip(ayuda);
        b->setAccessibleName(ayuda);
        return b;
    };
    cmdzoom = crea("cmdzoom", IconoZoom(), Q(Rotulo(61, "Zoom")));
    cmdzoom->setText(Q(Rotulo(61, "Zoom")));
    anchoZoom_ = ATwips(cmdzoom->sizeHint().width());
    cmdadel = crea("cmdadel", IconoAdelante(), Q(Rotulo(51, "Zoom siguiente")));
    cmdatras = crea("cmdatras", IconoAtras(), Q(Rotulo(52, "Zoom anterior")));
    pctimpresora = crea("pctimpresora", IconoImprimir(), Q(Rotulo(57, "Imprimir")));
}

void VistaOndas::Conexiones()
{
    Conecta(HScroll1, &QScrollBar::valueChanged, this, &VistaOndas::HScroll1_Change);
    Conecta(HScroll2, &QScrollBar::valueChanged, this, &VistaOndas::HScroll2_Change);
    Conecta(cmdzoom, &QPushButton::clicked, this, &VistaOndas::cmdzoom_Click);
    Conecta(cmdadel, &QPushButton::clicked, this, &VistaOndas::cmdadel_Click);
    Conecta(cmdatras, &QPushButton::clicked, this, &VistaOndas::cmdatras_Click);
    Conecta(pctimpresora, &QPushButton::clicked, this, &VistaOndas::pctimpresora_Click);
    Conecta(plot_, &Lienzo::PideDibujo, this, &VistaOndas::Plot_PideDibujo);
}

double VistaOndas::AltoBajoPlot(double bajo) const
{
    const int marco = style()->pixelMetric(QStyle::PM_TitleBarHeight) +
                      2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return bajo - ATwips(marco);
}

MedidasControles VistaOndas::Medidas(double alto, bool unaFila) const
{
    const QFontMetrics letra(font());
    MedidasControles m;
    m.altoBarra = qMin(ATwips(HScroll1->sizeHint().height()), unaFila ? alto : alto / 2.0);
    m.altoEtiqueta = qMin(ATwips(letra.height()), unaFila ? alto : alto - m.altoBarra);
    m.anchoZoom = anchoZoom_;
    m.anchoMarco = AnchoVentana() - ATwips(Interior().width());
    m.anchoNumero = ATwips(letra.horizontalAdvance(Q(TextoMuestra(32767)) + " "));
    m.anchoTiempo = ATwips(letra.horizontalAdvance("00000.000 ms "));
    if (store.RevisionCfg == "1997")
        m.anchoReferencia = ATwips(qMax(letra.horizontalAdvance(Q(Rotulo(279, "PRIMARIO"))),
                                        letra.horizontalAdvance(Q(Rotulo(280, "SECUNDARIO")))));
    return m;
}

void VistaOndas::PreparaBarras()
{
    const int paso = PasoDeCursor(store);
    for (BarraCursor* b : {HScroll1, HScroll2}) {
        b->setSingleStep(1);
        b->setPageStep(paso);
    }
}

void VistaOndas::PonBarras(int minimo, int valor, int maximo)
{
    for (BarraCursor* b : {HScroll1, HScroll2}) {
        const QSignalBlocker calla(b);
        b->setRange(qMin(minimo, maximo), maximo);
        b->setValue(SujetaCursor(valor, minimo, maximo));
    }
}

void VistaOndas::PonLinea(LineaSobre* linea, double x)
{
    linea->Pon(x, 0.0, x, plot_->Alto());
    linea->setVisible(true);
}

void VistaOndas::PonReferencia(const Lugar& lugar)
{
    Pon(lbl_PS, lugar);
    const bool hay = store.RevisionCfg == "1997" && (store.EnPrimario || store.EnSecundario);
    lbl_PS->setFont(font());
    if (hay) PonTexto(lbl_PS, Q(store.EnPrimario ? Rotulo(279, "PRIMARIO") : Rotulo(280, "SECUNDARIO")));
    lbl_PS->setVisible(hay);
}

void VistaOndas::PonPlot(const Lugar& lugar)
{
    const QSignalBlocker calla(plot_);
    Pon(plot_, lugar);
}

void VistaOndas::PonBotones(const LugaresBotones& l)
{
    Pon(cmdzoom, l.cmdzoom);
    cmdzoom->setIcon(l.cmdzoom.ancho >= anchoZoom_ ? IconoZoom() : QIcon());
    Pon(cmdadel, l.cmdadel);
    Pon(cmdatras, l.cmdatras);
    Pon(pctimpresora, l.pctimpresora);
}

void VistaOndas::HScroll1_Change()
{
    CambiaCursor(1);
}
void VistaOndas::HScroll2_Change()
{
    CambiaCursor(2);
}

void VistaOndas::CambiaCursor(int cual)
{
    Cursor1 = static_cast<float>(HScroll1->value());
    Cursor2 = static_cast<float>(HScroll2->value());
    const float cursor = cual == 1 ? Cursor1 : Cursor2;
    PonLinea(cual == 1 ? linea1_ : linea2_, XCursor(cursor));
    if (cursor < 0.0F || cursor > static_cast<float>(ultima_)) return;
    PonTextos(cual);
}

void VistaOndas::Plot_PideDibujo()
{
    if (Activa) Repinta();
}

void VistaOndas::cmdadel_Click()
{
    if (Historia().HayAdelante()) {
        CambiaNivel(1);
        return;
    }
    PonPuntero(this, Puntero::Normal);
    Avisa(Textos(79), papel_.ultimoNivel);
}

void VistaOndas::cmdatras_Click()
{
    if (Historia().HayAtras())
        CambiaNivel(-1);
    else
        Avisa(Textos(84), papel_.primerNivel);
}

void VistaOndas::CambiaNivel(int paso)
{
    Historia().Mueve(paso);
    const PunteroEspera espera(*this);
    Redibuja();
}

void VistaOndas::pctimpresora_Click()
{
    ImprimeCopias(*this, [this](Impresora& impresora) {
        const auto hoja = Hoja(impresora);
        if (hoja) ImprimeHoja(impresora, *hoja);
        return hoja.has_value();
    });
}

void VistaOndas::Form_Resize()
{
    if (!Activa) return;
    PonPuntero(this, Puntero::Propio);
    Rehace();
    PonPuntero(this, Puntero::Normal);
}

void VistaOndas::Form_Minimiza()
{
    if (Activa) escena.ocultaMenu();
}

}  // namespace veldix
