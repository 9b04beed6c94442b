#include "waves/forms/frmVerOndas.h"

#include <QFontMetrics>
#include <QStyle>

#include "platform/forms/escena.h"
#include "platform/forms/iconos.h"
#include "platform/textos.h"
#include "waves/colores.h"

namespace veldix {

namespace {

constexpr int kEtiquetaVista = 5;

QLabel* CreaEtiqueta(QWidget* padre, const char* nombre)
{
    auto* l = new QLabel(padre);
    l->setObjectName(nombre);
    l->setTextFormat(Qt::PlainText);
    return l;
}

QScrollBar* CreaBarra(QWidget* padre, const char* nombre, const QString& accesible)
{
    auto* b = new QScrollBar(Qt::Horizontal, padre);
    b->setObjectName(nombre);
    b->setFocusPolicy(Qt::StrongFocus);
    b->setAccessibleName(accesible);
    return b;
}

/// Sets a text and, where it is wider than its label, condenses the letters as far as they stay legible.
void PonTexto(QLabel* etiqueta, const QString& texto)
{
    constexpr int kMenorAncho = 60;  // percent
    QFont letra = etiqueta->font();
    letra.setStretch(QFont::Unstretched);
    const int pide = QFontMetrics(letra).horizontalAdvance(texto);
    if (pide > etiqueta->width() && etiqueta->width() > 0)
        letra.setStretch(qMax(kMenorAncho, 100 * etiqueta->width() / pide));
    etiqueta->setFont(letra);
    etiqueta->setText(texto);
}

void Coloca(QWidget* w, const Lugar& l)
{
    w->setGeometry(APixeles(l.izquierda), APixeles(l.arriba), APixeles(l.ancho), APixeles(l.alto));
}

}  // namespace

frmVerOndas::frmVerOndas(int canal) : Vista(kEtiquetaVista), Canal_(canal)
{
    setObjectName("frmVerOndas");
    CreaControles();
    CreaBotones();
    ConectaControles();
    zoom_.FactorZoomYAnt = 1.0F;
}

void frmVerOndas::CreaControles()
{
    picbox = new Lienzo(this);
    picbox->setObjectName("picbox");
    Lineizq = picbox->CreaLinea(kCursorAmarillo | 0xFF000000U, "Lineizq");
    Lineder = picbox->CreaLinea(kCursorCian | 0xFF000000U, "Lineder");
    Line2 = picbox->CreaLinea(kCajaZoom | 0xFF000000U, "Line2");
    Line3 = picbox->CreaLinea(kCajaZoom | 0xFF000000U, "Line3");
    Line4 = picbox->CreaLinea(kCajaZoom | 0xFF000000U, "Line4");
    Line5 = picbox->CreaLinea(kCajaZoom | 0xFF000000U, "Line5");
    HScroll1 = CreaBarra(this, "HScroll1", "Cursor 1");
    HScroll2 = CreaBarra(this, "HScroll2", "Cursor 2");
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
    cmdadel = crea("cmdadel", IconoAdelante(), ">>");
    cmdatras = crea("cmdatras", IconoAtras(), "<<");
    pctimpresora = crea("pctimpresora", IconoImprimir(), QString());
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
}

void frmVerOndas::Form_activo(double alto, double ancho, double arriba, double izquierda)
{
    Atrapa(this, [&] {
        Cursor1 = Cursor2 = 1.0F;
        Activa = false;
        const PunteroEspera espera(*this);
        setWindowTitle(Q(NombreCanal(store, Canal_)));
        columna_ = ColumnaDeCanal(store, Canal_);
        ultima_ = static_cast<std::int16_t>(store.Muestras.UBound(1));
        Coloca(izquierda, arriba, ancho, alto);
        Activa = true;
        ColocaControles();
        PintaEjes();
        PintaOndas();
    });
}

void frmVerOndas::ColocaControles()
{
    const QFontMetrics letra(lblizq->font());
    MedidasOnda m;
    m.altoEtiqueta = ATwips(letra.height());
    m.altoBarra = ATwips(HScroll1->sizeHint().height());
    m.anchoZoom = ATwips(cmdzoom->sizeHint().width());
    if (store.RevisionCfg == "1997")
        m.anchoReferencia = ATwips(qMax(letra.horizontalAdvance(Q(Rotulo(279, "PRIMARIO"))),
                                        letra.horizontalAdvance(Q(Rotulo(280, "SECUNDARIO")))));
    const auto lugares = ColocaOnda(AnchoVentana(), AltoVentana(), qAbs(store.NumVentanasOnda), m);
    if (!lugares) return;
    veldix::Coloca(picbox, lugares->picbox);
    zoom_.Reinicia(static_cast<float>(picbox->Ancho()), static_cast<float>(picbox->Alto()), ultima_);
    ColocaBarras(*lugares);
    ColocaTextos(*lugares);
    ColocaReferencia(*lugares);
}

/// The lines stand by the bar's own scale until a bar is moved.
void frmVerOndas::ColocaBarras(const LugaresOnda& l)
{
    const int paso = PasoDeCursor(store);
    for (QScrollBar* b : {HScroll1, HScroll2}) {
        b->setSingleStep(1);
        b->setPageStep(paso);
    }
    PonBarras(1, 1, ultima_);
    Cursor1 = Cursor2 = 1.0F;
    veldix::Coloca(HScroll1, l.HScroll1);
    veldix::Coloca(HScroll2, l.HScroll2);
    zoom_.EscalaXPaso = static_cast<float>(l.HScroll1.ancho / ultima_);
    for (LineaSobre* linea : {Lineizq, Lineder}) {
        const double x = static_cast<double>(Cursor1) * zoom_.EscalaXPaso + MargenX;
        linea->Pon(x, 0.0, x, l.picbox.alto);
        linea->setVisible(true);
    }
}

void frmVerOndas::ColocaTextos(const LugaresOnda& l)
{
    veldix::Coloca(lblizq, l.lblizq);
    veldix::Coloca(lblamar, l.lblamar);
    veldix::Coloca(lblder, l.lblder);
    veldix::Coloca(lblcian, l.lblcian);
    veldix::Coloca(lblms, l.lblms);
    veldix::Coloca(lblDif, l.lblDif);
    veldix::Coloca(cmdzoom, l.cmdzoom);
    veldix::Coloca(cmdadel, l.cmdadel);
    veldix::Coloca(cmdatras, l.cmdatras);
    veldix::Coloca(pctimpresora, l.pctimpresora);
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
    // In a narrow window the caption alone tells more than a picture and half a word.
    const bool cabe = l.cmdzoom.ancho >= ATwips(cmdzoom->sizeHint().width());
    cmdzoom->setIcon(cabe ? IconoZoom() : QIcon());
}

void frmVerOndas::ColocaReferencia(const LugaresOnda& l)
{
    veldix::Coloca(lbl_PS, l.lbl_PS);
    const bool hay = store.RevisionCfg == "1997" && (store.EnPrimario || store.EnSecundario);
    if (hay) lbl_PS->setText(Q(store.EnPrimario ? Rotulo(279, "PRIMARIO") : Rotulo(280, "SECUNDARIO")));
    lbl_PS->setVisible(hay);
}

void frmVerOndas::PintaEjes()
{
    const double w = picbox->Ancho(), h = picbox->Alto();
    picbox->Limpia(kFondoPlot | 0xFF000000U);
    const QRgb color = ColorPaleta(kColorEjes) | 0xFF000000U;
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
    store.FactorZoomY = 1.0F;
    zoom_.FactorZoomYAnt = 1.0F;
    Curva(1, ultima_);
}

void frmVerOndas::Curva(int s, int e)
{
    puntos_ = CalculaPuntos(store.Muestras, columna_, s, e,
                            {zoom_.EscalaX, MargenX, zoom_.OrigenY, EscalaY, store.FactorZoomY});
    picbox->Poligonal(puntos_.PuntosX, puntos_.PuntosY, ColorCurva(store.Colores, Canal_) | 0xFF000000U);
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
    picbox->Limpia(kFondoPlot | 0xFF000000U);
    if (zoom_.OrigenY < h)
        picbox->Linea(MargenX, zoom_.OrigenY, w, zoom_.OrigenY, ColorPaleta(kColorEjes) | 0xFF000000U);
    Curva(tramo->s, tramo->e);
    PonBarras(tramo->s, tramo->s, tramo->e);
    HScroll1_Change();
    HScroll2_Change();
    zoom_.Guarda(w, h, store.FactorZoomY);
}

/// Sets both bars without their handlers. A stretch that runs backwards holds them to its end.
void frmVerOndas::PonBarras(int minimo, int valor, int maximo)
{
    for (QScrollBar* b : {HScroll1, HScroll2}) {
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
    Atrapa(this, [this] {
        PonPuntero(this, Puntero::Propio);
        ColocaControles();
        PintaEjes();
        zoom_.EscalaX = EscalaHorizontal(static_cast<float>(picbox->Ancho()), ultima_);
        zoom_.EscalaXPaso = static_cast<float>(picbox->Ancho() / ultima_);
        PintaOndas();
        PonPuntero(this, Puntero::Normal);
    });
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
