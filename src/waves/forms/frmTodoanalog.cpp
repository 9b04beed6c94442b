#include "waves/forms/frmTodoanalog.h"

#include "platform/forms/EtiquetaLineas.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "waves/colores.h"
#include "waves/plot.h"

namespace veldix {

namespace {

constexpr int kEtiquetas = 16;  // two a channel

}  // namespace

Portador<frmTodoanalog> frmTodoanalog::unica;

frmTodoanalog::frmTodoanalog()
    : VistaCursores({"frmTodoanalog", etiqueta::kTodoanalog, "Picture1", "lnam", "lnci", "lblms",
                     Icono::Critico, Icono::Ninguno},
                    kMargenesBandas)
{
    CreaControles();
    Atrapa(this, [this] { Form_Load(); });
}

void frmTodoanalog::CreaControles()
{
    HScroll_Nombres = new BarraCursor("HScroll_Nombres", Q(Rotulo(256, "Canales elegidos")), this);
    std::vector<QLabel*> etiquetas;
    for (int k = 1; k <= kEtiquetas; ++k) {
        etiquetas.push_back(new EtiquetaLineas(this, QString("lblet%1").arg(k)));
        PonFondo(etiquetas.back(), ColorPaleta(k % 2 == 1 ? 14 : 11));
        etiquetas.back()->hide();
    }
    lblet = new EtiquetasCorridas(etiquetas, HScroll_Nombres, this);
    lblam = CreaEtiqueta(this, "lblam");
    lblci = CreaEtiqueta(this, "lblci");
}

void frmTodoanalog::Form_Load()
{
    setWindowTitle(Q(Rotulo(31, "Canales Analógicos")));
    plot_->setAccessibleName(windowTitle());
    ultima_ = static_cast<std::int16_t>(store.Muestras.UBound(1));
    canales_ = CanalesMarcados(store);
    const TamanoVista vista = MideVista({store.AnchoPantalla, store.AltoPantalla});
    Coloca(0.0, 0.0, vista.ancho, vista.alto);
    Rehace();
    Activa = true;
}

/// A window too small for a plot keeps its controls where they are.
void frmTodoanalog::ColocaControles()
{
    const double bajo = AltoBajoPlot(kBajoTodo);
    const auto l = ColocaTodo(AnchoVentana(), AltoVentana(), ATwips(Interior().width()), bajo,
                              static_cast<int>(canales_.size()), Medidas(bajo, true));
    if (!l) return;
    PonPlot(l->Picture1);
    ColocaEtiquetas(*l);
    const std::pair<QWidget*, const Lugar*> lugares[] = {
        {HScroll1, &l->HScroll1}, {HScroll2, &l->HScroll2}, {HScroll_Nombres, &l->HScroll_Nombres},
        {lblam, &l->lblam},       {lblci, &l->lblci},       {lblms, &l->lblms}};
    for (const auto& [control, lugar] : lugares)
        Pon(control, *lugar);
    for (QLabel* etiqueta : {lblam, lblci, lblms})
        etiqueta->setFont(font());
    PonBotones(*l);
    PonReferencia(l->lbl_PS);
}

void frmTodoanalog::ColocaEtiquetas(const LugaresTodo& l)
{
    for (int k = 1; k <= static_cast<int>(l.lblet.size()); ++k) {
        QLabel* etiqueta = lblet->Etiqueta(k);
        Pon(etiqueta, l.lblet[static_cast<std::size_t>(k - 1)]);
        etiqueta->setVisible(true);
    }
}

/// The whole record, with both cursors on its first sample.
void frmTodoanalog::Rehace()
{
    ColocaControles();
    const auto w = static_cast<float>(plot_->Ancho());
    tramo_.reset();
    const FilaZoom registro = zoom_.Reinicia(w, ultima_);
    MuestraInicial = registro.MuestraInicial;
    EscalaX = EscalaCurva = registro.EscalaX;
    PreparaBarras();
    PonBarras(1, 1, ultima_);
    bandas_ = ColocaBandas(store, canales_, static_cast<float>(plot_->Alto()));
    escena.ponGasolinoOndas(20);
    PintaMarco();
    Curvas(1, ultima_, EscalaCurva);
    escena.ponGasolinoOndas(40);
    Cursor1 = Cursor2 = 1.0F;
    PonLinea(linea1_, XCursor(Cursor1));
    PonLinea(linea2_, XCursor(Cursor2));
    PonValores(1);
    PonValores(2);
    PonTexto(lblms, "0.000 ms");
}

void frmTodoanalog::PintaMarco()
{
    const double w = plot_->Ancho(), h = plot_->Alto(), margen = kMargenBandas;
    const QRgb color = ColorPaleta(kColorEjes);
    plot_->Limpia(kFondoPlot);
    plot_->Linea(margen, margen, margen, h - margen, color);
    for (int k = 1; k <= static_cast<int>(canales_.size()); ++k)
        plot_->Linea(margen, bandas_.Cero(k), w - margen, bandas_.Cero(k), color);
}

void frmTodoanalog::Curvas(int s, int e, float escala)
{
    for (std::size_t k = 0; k < canales_.size(); ++k) {
        const int r = canales_[k];
        const EscalaPlot lugar{escala, kMargenBandas, bandas_.Cero(static_cast<int>(k) + 1),
                               bandas_.escalas[k]};
        const PuntosCurva p = CalculaPuntos(store.Muestras, ColumnaDeCanal(store, r), s, e, lugar);
        plot_->Poligonal(p.PuntosX, p.PuntosY, ColorCurva(store.Colores, r));
    }
}

/// The last sample of a zoom is never joined.
void frmTodoanalog::Repinta()
{
    PintaMarco();
    if (tramo_)
        Curvas(static_cast<int>(tramo_->s), static_cast<int>(tramo_->e) - 1, EscalaCurva);
    else
        Curvas(1, ultima_, EscalaCurva);
}

void frmTodoanalog::PonNivel(const FilaZoom& nivel)
{
    tramo_ = nivel;
    EscalaX = nivel.EscalaX;
    MuestraInicial = nivel.MuestraInicial;
    EscalaCurva = EscalaTramo(nivel.Ancho, nivel.s, nivel.e);
    bandas_ = ColocaBandas(store, canales_, static_cast<float>(plot_->Alto()));
}

double frmTodoanalog::XCursor(float cursor) const
{
    return (static_cast<double>(cursor) - MuestraInicial) * EscalaX + kMargenBandas;
}

/// Values are those of the channel's row, curves those of its number: the two differ where a template
/// renumbers channels. The last name is kept only when the second cursor moves.
void frmTodoanalog::PonValores(int cursor)
{
    const int m1 = HScroll1->value(), m2 = HScroll2->value();
    PonTexto(cursor == 1 ? lblam : lblci, Q(TextoMuestra(cursor == 1 ? m1 : m2)));
    for (std::size_t k = 0; k < canales_.size(); ++k) {
        const int r = canales_[k], par = 2 * static_cast<int>(k) + 1;
        const std::string nombre = EtiquetaCanal(store, r) + ": ", &unidades = store.Canales(r).Unidades;
        lblet->Pon(par, nombre + TextoValor(store.Muestras(m1, r), unidades));
        lblet->Pon(par + 1, nombre + TextoValor(store.Muestras(m2, r), unidades));
    }
    lblet->Recoge(cursor == 1 ? kEtiquetas - 1 : kEtiquetas, true);
}

void frmTodoanalog::PonTextos(int cursor)
{
    PonValores(cursor);
    PonTexto(lblms, Q(TextoTiempo(Cursor1, Cursor2, MuestrasPorSegundo(store))));
}

std::optional<HojaOndas> frmTodoanalog::Hoja(Impresora& impresora)
{
    return HojaDeTodo(store, impresora, bandas_, zoom_.Fila(zoom_.NivelZoom),
                      static_cast<float>(plot_->Alto()),
                      {"", Cursor1, Cursor2, "", U(lblms->text()), FechaImpresion()});
}

void frmTodoanalog::Form_Unload()
{
    escena.muestraMenu();
}

}  // namespace veldix
