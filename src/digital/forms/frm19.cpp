#include "digital/forms/frm19.h"

#include "digital/pagina_digital.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "waves/colores.h"
#include "waves/plot.h"

namespace veldix {

namespace {

/// Places of the three texts of the reference among those that its bar scrolls.
constexpr int kLblanalog = 1, kLblamar = 2, kLblcian = 3;
constexpr int kLetraEstrecha = 75;  // percent

std::string ValorReferencia(int muestra)
{
    return TextoValor(store.Muestras(muestra, store.CanalRef), store.Canales(store.CanalRef).Unidades);
}

}  // namespace

Portador<frm19> frm19::unica;

frm19::frm19()
    : VistaCursores({"frm19", etiqueta::k19, "Picture1", "lnizq", "lnder", "lbltiempo", Icono::Informacion,
                     Icono::Informacion},
                    kMargenesDigital)
{
    CreaControles();
    Atrapa(this, [this] { Form_Load(); });
}

void frm19::Abre()
{
    PonPuntero(escena.principal, Puntero::Propio);
    unica.CargaNueva();
    escena.descargaGasolinoOndas();
    if (frm19* vista = unica.Cargado()) vista->Presenta(vista->Plot());
    PonPuntero(escena.principal, Puntero::Normal);
}

void frm19::CreaControles()
{
    HScroll_Analog = new BarraCursor("HScroll_Analog", Q(Rotulo(74, "Canales Analógicos ")), this);
    HScroll_Nombres = new BarraCursor("HScroll_Nombres", Q(Rotulo(47, "Canales Digitales ")), this);
    for (BarraCursor* barra : {HScroll_Analog, HScroll_Nombres}) {
        barra->setSingleStep(1);
        barra->setPageStep(4);
    }
    ventanilla_ = new QWidget(this);
    plot_->setParent(ventanilla_);
    std::vector<QLabel*> nombres, analogicas;
    for (int n = 1; n <= kFilasDigital; ++n)
        nombres.push_back(CreaEtiqueta(this, QString("label%1").arg(n)));
    for (const char* nombre : {"lblanalog", "lblamar", "lblcian"})
        analogicas.push_back(CreaEtiqueta(this, nombre));
    PonFondo(analogicas[kLblamar - 1], kCursorAmarillo);
    PonFondo(analogicas[kLblcian - 1], kCursorCian);
    label = new EtiquetasCorridas(nombres, HScroll_Nombres, this);
    analogicas_ = new EtiquetasCorridas(analogicas, HScroll_Analog, this);
    lblizq = CreaEtiqueta(this, "lblizq");
    lblder = CreaEtiqueta(this, "lblder");
}

void frm19::Form_Load()
{
    escena.ponGasolinoOndas(20);
    setWindowTitle(Q(Rotulo(47, "Canales Digitales ") + (EnGrupo(store) ? store.NombreGrupoDig : "")));
    plot_->setAccessibleName(windowTitle());
    PreparaBarras();
    ultima_ = static_cast<std::int16_t>(store.MuestrasDig.UBound(1));
    filas_ = FilasDigitales(store);
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    Coloca(0.0, 0.0, vista.ancho, vista.alto);
    Rehace();
    escena.ponGasolinoOndas(100);
    Activa = true;
}

/// A window too small for a plot keeps its controls where they are.
void frm19::ColocaControles()
{
    TamanoDigital t;
    t.ancho = AnchoVentana();
    t.alto = AltoVentana();
    t.anchoInterior = ATwips(Interior().width());
    t.bajo = AltoBajoPlot(kBajoDigital);
    t.ancha = AnchoPixeles({store.AnchoPantalla, store.AltoPantalla}) > kPantallaEstrecha;
    t.revision97 = store.RevisionCfg == "1997";
    const auto l = ColocaDigital(t, Medidas(t.bajo - 2.0 * kHueco));
    if (!l) return;
    ColocaPlot(*l);
    ColocaTextos(*l, t.ancha);
    const std::pair<QWidget*, const Lugar*> lugares[] = {{HScroll_Analog, &l->HScroll_Analog},
                                                         {HScroll_Nombres, &l->HScroll_Nombres},
                                                         {HScroll1, &l->HScroll1},
                                                         {HScroll2, &l->HScroll2},
                                                         {lblizq, &l->lblizq},
                                                         {lblder, &l->lblder},
                                                         {lblms, &l->lbltiempo}};
    for (const auto& [control, lugar] : lugares)
        Pon(control, *lugar);
    for (QLabel* etiqueta : {lblizq, lblder, lblms})
        etiqueta->setFont(font());
    PonBotones(*l);
    PonReferencia(l->lbl_PS);
}

void frm19::ColocaPlot(const LugaresDigital& l)
{
    const double corte = l.label[0].Derecha();
    Pon(ventanilla_, {corte, 0.0, l.Picture1.Derecha() - corte, l.Picture1.alto});
    PonPlot({l.Picture1.izquierda - corte, 0.0, l.Picture1.ancho, l.Picture1.alto});
}

/// Names of rows that there are and that the plot has room for, and the texts of the reference; in condensed
/// letters on a narrow screen.
void frm19::ColocaTextos(const LugaresDigital& l, bool ancha)
{
    QFont letra = font();
    if (!ancha) letra.setStretch(kLetraEstrecha);
    const auto pon = [&letra](QLabel* etiqueta, const Lugar& lugar) {
        etiqueta->setFont(letra);
        Pon(etiqueta, lugar);
    };
    for (int n = 1; n <= kFilasDigital; ++n) {
        const Lugar& lugar = l.label[static_cast<std::size_t>(n - 1)];
        pon(label->Etiqueta(n), lugar);
        label->Etiqueta(n)->setVisible(n <= static_cast<int>(filas_.size()) &&
                                       lugar.Abajo() <= l.Picture1.alto);
    }
    pon(analogicas_->Etiqueta(kLblanalog), l.lblanalog);
    pon(analogicas_->Etiqueta(kLblamar), l.lblamar);
    pon(analogicas_->Etiqueta(kLblcian), l.lblcian);
}

void frm19::LlenaEtiquetas()
{
    for (BarraCursor* barra : {HScroll_Analog, HScroll_Nombres}) {
        const QSignalBlocker calla(barra);  // all texts are shown whole
        barra->setValue(0);
    }
    const std::string valor = ValorReferencia(1);
    analogicas_->Pon(kLblanalog, EtiquetaCanal(store, store.CanalRef));
    analogicas_->Pon(kLblamar, valor);
    analogicas_->Pon(kLblcian, valor);
    analogicas_->Recoge(analogicas_->Cuantas(), false);
    lblms->setText("0 ms");
    lblizq->setText("1");
    lblder->setText("1");
    for (std::size_t n = 0; n < filas_.size(); ++n)
        label->Pon(static_cast<int>(n) + 1, filas_[n].nombre);
    label->Recoge(label->Cuantas(), false);
}

/// The whole record, with both cursors on its first sample. Until a zoom its first sample is drawn too.
void frm19::Rehace()
{
    ColocaControles();
    const FilaZoom registro = zoom_.Reinicia(static_cast<float>(plot_->Ancho()), ultima_);
    zoom_.ZoomPendiente = true;  // until a zoom is stored
    tramo_ = {0, ultima_, registro.EscalaX};
    LlenaEtiquetas();
    PonBarras(1, 1, ultima_);
    Cursor1 = Cursor2 = 1.0F;
    PintaEjes();
    PintaReferencia();
    escena.ponGasolinoOndas(50);
    PintaFilas();
    escena.ponGasolinoOndas(70);
    for (LineaSobre* linea : {linea1_, linea2_})
        PonLinea(linea, XCursor(1.0F));
}

void frm19::PintaEjes()
{
    const double w = plot_->Ancho(), h = plot_->Alto(), fila = AltoFila(h);
    const QRgb color = ColorPaleta(kColorEjes);
    plot_->Limpia(kFondoPlot);
    plot_->Linea(kMargenDigital, kEjeDigital, kMargenDigital, h - kEjeDigital, color);
    plot_->Linea(kMargenDigital, kCeroAnalog, w - kDerechaDigital, kCeroAnalog, color);
    for (int n = 1; n <= store.NumDigVista; ++n)
        plot_->Linea(kMargenDigital, BaseFila(n, fila), w - kDerechaDigital, BaseFila(n, fila), color);
}

void frm19::PintaFilas()
{
    const double fila = AltoFila(plot_->Alto());
    const QRgb color = ColorPaleta(kColorEstado);
    int n = 0;
    for (const auto& tramos : EstadosDigitales(store.MuestrasDig, filas_, tramo_)) {
        const double base = BaseFila(++n, fila);
        if (!tramos.empty()) plot_->Cajas(BordesEstado(tramos, tramo_), base, base - kAltoEstado, color);
    }
}

void frm19::PintaDigital()
{
    PintaEjes();
    PintaReferencia();
    PintaFilas();
}

void frm19::PintaReferencia()
{
    const PuntosCurva p = CurvaReferencia(store.Muestras, store.CanalRef, tramo_);
    plot_->Poligonal(p.PuntosX, p.PuntosY, ColorCurva(store.Colores, store.CanalRef));
}

void frm19::PonNivel(const FilaZoom& nivel)
{
    tramo_ = {static_cast<std::int16_t>(nivel.MuestraInicial), static_cast<std::int16_t>(nivel.e),
              nivel.EscalaX};
}

double frm19::XCursor(float cursor) const
{
    return LugarCursor(cursor, tramo_.MuestraInicial, tramo_.EscalaX, static_cast<float>(kMargenDigital));
}

void frm19::PonTextos(int cursor)
{
    const int muestra = (cursor == 1 ? HScroll1 : HScroll2)->value();
    PonTexto(cursor == 1 ? lblizq : lblder, Q(FormaDelimitada(muestra)));
    analogicas_->PonEntero(cursor == 1 ? kLblamar : kLblcian, ValorReferencia(muestra));
    PonTexto(lblms, Q(TextoTiempo(Cursor1, Cursor2, MuestrasPorSegundo(store))));
}

std::optional<HojaOndas> frm19::Hoja(Impresora& impresora)
{
    return HojaDigital(store, impresora, {plot_->Ancho(), plot_->Alto(), tramo_, filas_},
                       {"", Cursor1, Cursor2, "", U(lblms->text()), FechaImpresion()});
}

void frm19::Form_Unload()
{
    escena.muestraMenu();
}

}  // namespace veldix
