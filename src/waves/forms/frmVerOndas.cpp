#include "waves/forms/frmVerOndas.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionTitleBar>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/iconos.h"
#include "platform/textos.h"
#include "waves/colores.h"

namespace veldix {

frmVerOndas::frmVerOndas(int canal) : Vista(etiqueta::kVerOndas), Canal_(canal)
{
    setObjectName("frmVerOndas");
    CreaControles();
    CreaBotones();
    ConectaControles();
}

void frmVerOndas::CreaControles()
{
    picbox = new Lienzo(this);
    picbox->setObjectName("picbox");
    Lineizq = picbox->CreaLinea(kCursorAmarillo, "Lineizq");
    Lineder = picbox->CreaLinea(kCursorCian, "Lineder");
    Line2 = picbox->CreaLinea(kCajaZoom, "Line2");
    Line3 = picbox->CreaLinea(kCajaZoom, "Line3");
    Line4 = picbox->CreaLinea(kCajaZoom, "Line4");
    Line5 = picbox->CreaLinea(kCajaZoom, "Line5");
    HScroll1 = new BarraCursor("HScroll1", "Cursor 1", this);
    HScroll2 = new BarraCursor("HScroll2", "Cursor 2", this);
    lblizq = CreaEtiqueta(this, "lblizq");
    lblamar = CreaEtiqueta(this, "lblamar");
    lblder = CreaEtiqueta(this, "lblder");
    lblcian = CreaEtiqueta(this, "lblcian");
    lblms = CreaEtiqueta(this, "lblms");
    lblDif = CreaEtiqueta(this, "lblDif");
    lbl_PS = CreaEtiqueta(this, "lbl_PS");
}

void frmVerOndas::CreaBotones()
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
    pctimpresora->setEnabled(false);
}

void frmVerOndas::ConectaControles()
{
    Conecta(HScroll1, &QScrollBar::valueChanged, this, &frmVerOndas::HScroll1_Change);
    Conecta(HScroll2, &QScrollBar::valueChanged, this, &frmVerOndas::HScroll2_Change);
    Conecta(cmdzoom, &QPushButton::clicked, this, &frmVerOndas::cmdzoom_Click);
    Conecta(cmdadel, &QPushButton::clicked, this, &frmVerOndas::cmdadel_Click);
    Conecta(cmdatras, &QPushButton::clicked, this, &frmVerOndas::cmdatras_Click);
    Conecta(picbox, &Lienzo::RatonBaja, this, &frmVerOndas::picbox_MouseDown);
    Conecta(picbox, &Lienzo::RatonMueve, this, &frmVerOndas::picbox_MouseMove);
    Conecta(picbox, &Lienzo::RatonSube, this, &frmVerOndas::picbox_MouseUp);
    Conecta(picbox, &Lienzo::PideDibujo, this, &frmVerOndas::picbox_PideDibujo);
}

void frmVerOndas::Form_activo(double alto, double ancho, double arriba, double izquierda)
{
    Atrapa(this, [&] {
        Cursor1 = Cursor2 = 1.0F;
        Activa = false;
        const PunteroEspera espera(*this);
        setWindowTitle(Q(NombreCanal(store, Canal_)));
        picbox->setAccessibleName(windowTitle());
        columna_ = ColumnaDeCanal(store, Canal_);
        ultima_ = static_cast<std::int16_t>(store.Muestras.UBound(1));
        Coloca(izquierda, arriba, ancho, alto);
        Activa = true;
        ColocaControles();
        PintaEjes();
        PintaOndas();
    });
}

/// What the fonts ask for, within the height that the window leaves below the plot.
MedidasOnda frmVerOndas::Medidas() const
{
    const QFontMetrics letra(lblizq->font());
    const auto& estilo = *style();
    const int marco = estilo.pixelMetric(QStyle::PM_TitleBarHeight) +
                      2 * estilo.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const double queda = kBajoPlot - ATwips(marco) - 2.0 * kHueco;
    MedidasOnda m;
    m.altoBarra = qMin(ATwips(HScroll1->sizeHint().height()), queda / 2.0);
    m.altoEtiqueta = qMin(ATwips(letra.height()), queda - m.altoBarra);
    m.anchoZoom = anchoZoom_;
    if (store.RevisionCfg == "1997")
        m.anchoReferencia = ATwips(qMax(letra.horizontalAdvance(Q(Rotulo(279, "PRIMARIO"))),
                                        letra.horizontalAdvance(Q(Rotulo(280, "SECUNDARIO")))));
    return m;
}

/// A window too low for a plot keeps its controls where they are.
void frmVerOndas::ColocaControles()
{
    const auto lugares = ColocaOnda(AnchoVentana(), AltoVentana(), qAbs(store.NumVentanasOnda), Medidas());
    if (lugares) {
        const QSignalBlocker calla(picbox);  // it is drawn again below, with the margin of the new size
        Pon(picbox, lugares->picbox);
    }
    zoom_.Reinicia(static_cast<float>(picbox->Ancho()), static_cast<float>(picbox->Alto()), ultima_);
    tramo_.reset();
    PonBarras(1, 1, ultima_);
    Cursor1 = Cursor2 = 1.0F;
    if (!lugares) return;
    ColocaBarras(*lugares);
    ColocaEtiquetas(*lugares);
    ColocaBotones(*lugares);
    ColocaReferencia(*lugares);
}

/// The lines stand by the bar's own scale until a cursor moves.
void frmVerOndas::ColocaBarras(const LugaresOnda& l)
{
    const int paso = PasoDeCursor(store);
    for (BarraCursor* b : {HScroll1, HScroll2}) {
        b->setSingleStep(1);
        b->setPageStep(paso);
    }
    Pon(HScroll1, l.HScroll1);
    Pon(HScroll2, l.HScroll2);
    zoom_.EscalaXPaso = static_cast<float>(l.HScroll1.ancho / ultima_);
    for (LineaSobre* linea : {Lineizq, Lineder}) {
        const double x = static_cast<double>(Cursor1) * zoom_.EscalaXPaso + MargenX;
        linea->Pon(x, 0.0, x, l.picbox.alto);
        linea->setVisible(true);
    }
}

/// The texts of sample 1, at both cursors.
void frmVerOndas::ColocaEtiquetas(const LugaresOnda& l)
{
    const std::pair<QLabel*, const Lugar*> lugares[] = {{lblizq, &l.lblizq}, {lblamar, &l.lblamar},
                                                        {lblder, &l.lblder}, {lblcian, &l.lblcian},
                                                        {lblms, &l.lblms},   {lblDif, &l.lblDif}};
    for (const auto& [etiqueta, lugar] : lugares) {
        etiqueta->setFont(font());
        Pon(etiqueta, *lugar);
    }
    const std::string& unidades = store.Canales(Canal_).Unidades;
    const QString valor = Q(TextoValor(store.Muestras(1, columna_), unidades));
    PonTexto(lblizq, Q(TextoMuestra(1)));
    PonTexto(lblder, Q(TextoMuestra(1)));
    PonTexto(lblamar, valor);
    PonTexto(lblcian, valor);
    PonTexto(lblms, "0.000 ms");
    PonTexto(lblDif, Q("0.000 " + unidades));
    textoMs_ = lblms->text();
    textoDif_ = lblDif->text();
}

void frmVerOndas::ColocaBotones(const LugaresOnda& l)
{
    Pon(cmdzoom, l.cmdzoom);
    Pon(cmdadel, l.cmdadel);
    Pon(cmdatras, l.cmdatras);
    Pon(pctimpresora, l.pctimpresora);
    // In a narrow window the caption alone tells more than a picture and half a word.
    cmdzoom->setIcon(l.cmdzoom.ancho >= anchoZoom_ ? IconoZoom() : QIcon());
}

void frmVerOndas::ColocaReferencia(const LugaresOnda& l)
{
    Pon(lbl_PS, l.lbl_PS);
    const bool hay = store.RevisionCfg == "1997" && (store.EnPrimario || store.EnSecundario);
    if (hay) lbl_PS->setText(Q(store.EnPrimario ? Rotulo(279, "PRIMARIO") : Rotulo(280, "SECUNDARIO")));
    lbl_PS->setVisible(hay);
}

void frmVerOndas::PintaEjes()
{
    const double w = picbox->Ancho(), h = picbox->Alto();
    picbox->Limpia(kFondoPlot);
    const QRgb color = ColorPaleta(kColorEjes);
    picbox->Linea(w / 50.0, h / 2.0, 49.0 * w / 50.0, h / 2.0, color);
    picbox->Linea(w / 50.0, h / 50.0, w / 50.0, 49.0 * h / 50.0, color);
    MargenX = static_cast<float>(w / 50.0);
    zoom_.OrigenY = static_cast<float>(h / 2.0);
}

void frmVerOndas::PintaOndas()
{
    TablaMinMax(store, store.Muestras);
    EscalaY = EscalaVertical(static_cast<float>(picbox->Alto()), store.MinCanal(columna_),
                             store.MaxCanal(columna_));
    store.FactorZoomY = factor_ = 1.0F;
    zoom_.FactorZoomYAnt = 1.0F;
    Curva(1, ultima_);
}

void frmVerOndas::Curva(int s, int e)
{
    const PuntosCurva p = CalculaPuntos(store.Muestras, columna_, s, e,
                                        {zoom_.EscalaX, MargenX, zoom_.OrigenY, EscalaY, factor_});
    picbox->Poligonal(p.PuntosX, p.PuntosY, ColorCurva(store.Colores, Canal_));
}

void frmVerOndas::LineaCero()
{
    const double w = picbox->Ancho();
    if (zoom_.OrigenY < picbox->Alto())
        picbox->Linea(MargenX, zoom_.OrigenY, w, zoom_.OrigenY, ColorPaleta(kColorEjes));
}

/// The picture was lost to another screen: the same is drawn again, with the factor it was drawn with.
void frmVerOndas::picbox_PideDibujo()
{
    if (!Activa) return;
    if (tramo_) {
        picbox->Limpia(kFondoPlot);
        LineaCero();
        Curva(tramo_->s, tramo_->e);
    } else {
        PintaEjes();
        Curva(1, ultima_);
    }
}

void frmVerOndas::RedibujaZoom()
{
    const auto w = static_cast<float>(picbox->Ancho()), h = static_cast<float>(picbox->Alto());
    auto estrecha = ZoomCaja::Estrecha::No;
    const auto tramo = zoom_.Calcula(w, h, ultima_, store.FactorZoomY, estrecha);
    if (!tramo) {
        PonPuntero(this, Puntero::Normal);
        const bool nueva = estrecha == ZoomCaja::Estrecha::CajaNueva;
        Avisa(Textos(80), nueva ? Icono::Critico : Icono::Ninguno);
        return;
    }
    tramo_ = tramo;
    factor_ = store.FactorZoomY;
    picbox->Limpia(kFondoPlot);
    LineaCero();
    Curva(tramo->s, tramo->e);
    PonBarras(tramo->s, tramo->s, tramo->e);
    HScroll1_Change();
    HScroll2_Change();
    zoom_.Guarda(w, h, store.FactorZoomY);
}

/// Sets both bars without their handlers. A stretch that runs backwards holds them to its end.
void frmVerOndas::PonBarras(int minimo, int valor, int maximo)
{
    for (BarraCursor* b : {HScroll1, HScroll2}) {
        const QSignalBlocker calla(b);
        b->setRange(qMin(minimo, maximo), maximo);
        b->setValue(SujetaCursor(valor, minimo, maximo));
    }
}

void frmVerOndas::HScroll1_Change()
{
    CambiaCursor(Lineizq, Cursor1);
}
void frmVerOndas::HScroll2_Change()
{
    CambiaCursor(Lineder, Cursor2);
}

void frmVerOndas::CambiaCursor(LineaSobre* linea, float& cursor)
{
    Cursor1 = static_cast<float>(HScroll1->value());
    Cursor2 = static_cast<float>(HScroll2->value());
    const double x = LugarCursor(cursor, zoom_.MuestraInicial, zoom_.EscalaX, MargenX);
    linea->Pon(x, 0.0, x, picbox->Alto());
    linea->setVisible(true);
    const int m1 = HScroll1->value(), m2 = HScroll2->value();
    if (cursor < 0.0F || cursor > static_cast<float>(ultima_)) return;
    const std::string& unidades = store.Canales(Canal_).Unidades;
    const float v1 = store.Muestras(m1, columna_), v2 = store.Muestras(m2, columna_);
    PonTexto(lblizq, Q(TextoMuestra(m1)));
    PonTexto(lblder, Q(TextoMuestra(m2)));
    PonTexto(lblamar, Q(TextoValor(v1, unidades)));
    PonTexto(lblcian, Q(TextoValor(v2, unidades)));
    PonTexto(lblDif, Q(TextoDiferencia(v1, v2, unidades)));
    PonTexto(lblms, Q(TextoTiempo(Cursor1, Cursor2, MuestrasPorSegundo(store))));
    textoDif_ = lblDif->text();
    textoMs_ = lblms->text();
}

void frmVerOndas::cmdzoom_Click()
{
    PonPuntero(picbox, Puntero::Propio);
    punteroPropio_ = true;
    zoom_.ArrastrandoCaja = false;
    zoom_.ZoomPendiente = true;
}

void frmVerOndas::cmdadel_Click()
{
    if (!zoom_.HayAdelante()) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(79), Icono::Informacion);
        return;
    }
    CambiaNivel(1);
}

void frmVerOndas::cmdatras_Click()
{
    if (!zoom_.HayAtras()) {
        Avisa(Textos(84), Icono::Informacion);
        return;
    }
    CambiaNivel(-1);
}

void frmVerOndas::CambiaNivel(int paso)
{
    zoom_.NivelZoom = static_cast<std::int16_t>(zoom_.NivelZoom + paso);
    zoom_.ZoomPendiente = false;
    const PunteroEspera espera(*this);
    RedibujaZoom();
}

void frmVerOndas::picbox_MouseDown(double x, double y)
{
    zoom_.CajaX1 = SujetaCaja(x, picbox->Ancho());
    zoom_.CajaY1 = SujetaCaja(y, picbox->Alto());
    if (!punteroPropio_) return;
    cajaX_ = x;
    cajaY_ = y;
    PonCaja(x, y);
    MuestraCaja(true);
    zoom_.ArrastrandoCaja = true;
}

void frmVerOndas::picbox_MouseMove(double x, double y)
{
    if (zoom_.ArrastrandoCaja) PonCaja(x, y);
}

void frmVerOndas::picbox_MouseUp(double x, double y)
{
    zoom_.CajaX2 = SujetaCaja(x, picbox->Ancho());
    zoom_.CajaY2 = SujetaCaja(y, picbox->Alto());
    if (!zoom_.ArrastrandoCaja) return;
    zoom_.ArrastrandoCaja = false;
    const QPointer<frmVerOndas> vivo(this);
    const bool acepta = Pregunta(Textos(85));
    if (!vivo || Descargado()) return;
    if (acepta) {
        const PunteroEspera espera(*this);
        RedibujaZoom();
    }
    if (!vivo || Descargado()) return;
    PonPuntero(this, Puntero::Normal);
    MuestraCaja(false);
    PonPuntero(picbox, Puntero::Normal);
    punteroPropio_ = false;
}

void frmVerOndas::MuestraCaja(bool visible)
{
    for (LineaSobre* linea : {Line2, Line3, Line4, Line5})
        linea->setVisible(visible);
}

/// The box from where the mouse went down to (x, y).
void frmVerOndas::PonCaja(double x, double y)
{
    Line2->Pon(cajaX_, cajaY_, x, cajaY_);
    Line3->Pon(cajaX_, cajaY_, cajaX_, y);
    Line4->Pon(cajaX_, y, x, y);
    Line5->Pon(x, cajaY_, x, y);
}

void frmVerOndas::Form_Resize()
{
    if (!Activa) return;
    PonPuntero(this, Puntero::Propio);
    ColocaControles();
    PintaEjes();
    PintaOndas();
    PonPuntero(this, Puntero::Normal);
}

void frmVerOndas::Form_Minimiza()
{
    if (Activa) OcultaMenu();
}

void frmVerOndas::Form_Unload()
{
    store.EnPrimario = false;
    store.EnSecundario = false;
    --store.NumVentanasOnda;
    Intenta([this] {
        if (store.VentanaOnda(Canal_) == this) store.VentanaOnda(Canal_) = nullptr;
    });
    if (store.NumVentanasOnda == 0) MuestraMenu();
}

}  // namespace veldix
