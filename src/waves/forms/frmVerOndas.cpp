#include "waves/forms/frmVerOndas.h"

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "waves/colores.h"

namespace veldix {

frmVerOndas::frmVerOndas(int canal)
    : VistaCaja({"frmVerOndas", etiqueta::kVerOndas, "picbox", "Lineizq", "Lineder", "lblms",
                 Icono::Informacion, Icono::Informacion},
                Icono::Critico),
      Canal_(canal)
{
    lblizq = CreaEtiqueta(this, "lblizq");
    lblamar = CreaEtiqueta(this, "lblamar");
    lblder = CreaEtiqueta(this, "lblder");
    lblcian = CreaEtiqueta(this, "lblcian");
    lblDif = CreaEtiqueta(this, "lblDif");
}

void frmVerOndas::Form_activo(double alto, double ancho, double arriba, double izquierda)
{
    Atrapa(this, [&] {
        Cursor1 = Cursor2 = 1.0F;
        Activa = false;
        const PunteroEspera espera(*this);
        setWindowTitle(Q(NombreCanal(store, Canal_)));
        plot_->setAccessibleName(windowTitle());
        columna_ = ColumnaDeCanal(store, Canal_);
        ultima_ = static_cast<std::int16_t>(store.Muestras.UBound(1));
        Coloca(izquierda, arriba, ancho, alto);
        Activa = true;
        Rehace();
    });
}

void frmVerOndas::Rehace()
{
    ColocaControles();
    PintaEjes();
    PintaOndas();
}

/// A window too low for a plot keeps its controls where they are.
void frmVerOndas::ColocaControles()
{
    const auto lugares = ColocaOnda(AnchoVentana(), AltoVentana(), qAbs(store.NumVentanasOnda),
                                    Medidas(AltoBajoPlot(kBajoPlot) - 2.0 * kHueco));
    if (lugares) PonPlot(lugares->picbox);  // it is drawn again below, with the margin of the new size
    Reinicia();
    if (!lugares) return;
    ColocaBarras(*lugares);
    ColocaEtiquetas(*lugares);
    PonBotones(*lugares);
    PonReferencia(lugares->lbl_PS);
}

/// The lines stand by the bar's own scale until a cursor moves.
void frmVerOndas::ColocaBarras(const LugaresOnda& l)
{
    PreparaBarras();
    Pon(HScroll1, l.HScroll1);
    Pon(HScroll2, l.HScroll2);
    zoom_.EscalaXPaso = static_cast<float>(l.HScroll1.ancho / ultima_);
    for (LineaSobre* linea : {linea1_, linea2_})
        PonLinea(linea, static_cast<double>(Cursor1) * zoom_.EscalaXPaso + MargenX);
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
}

void frmVerOndas::PintaOndas()
{
    TablaMinMax(store, store.Muestras);
    EscalaY =
        EscalaVertical(static_cast<float>(plot_->Alto()), store.MinCanal(columna_), store.MaxCanal(columna_));
    PintaRegistro();
}

void frmVerOndas::Curvas(int s, int e)
{
    const PuntosCurva p = CalculaPuntos(store.Muestras, columna_, s, e, Escala());
    plot_->Poligonal(p.PuntosX, p.PuntosY, ColorCurva(store.Colores, Canal_));
}

/// All of them, whichever cursor moved.
void frmVerOndas::PonTextos(int)
{
    const int m1 = HScroll1->value(), m2 = HScroll2->value();
    const std::string& unidades = store.Canales(Canal_).Unidades;
    const float v1 = store.Muestras(m1, columna_), v2 = store.Muestras(m2, columna_);
    PonTexto(lblizq, Q(TextoMuestra(m1)));
    PonTexto(lblder, Q(TextoMuestra(m2)));
    PonTexto(lblamar, Q(TextoValor(v1, unidades)));
    PonTexto(lblcian, Q(TextoValor(v2, unidades)));
    PonTexto(lblDif, Q(TextoDiferencia(v1, v2, unidades)));
    PonTexto(lblms, Q(TextoTiempo(Cursor1, Cursor2, MuestrasPorSegundo(store))));
}

std::optional<HojaOndas> frmVerOndas::Hoja(Impresora& impresora)
{
    return HojaDeOnda(store, impresora, Canal_, zoom_.Pila(zoom_.NivelZoom + 1), EscalaY,
                      {NombreCanal(store, Canal_), Cursor1, Cursor2, U(lblDif->text()), U(lblms->text()),
                       FechaImpresion()});
}

void frmVerOndas::Form_Unload()
{
    store.EnPrimario = false;
    store.EnSecundario = false;
    --store.NumVentanasOnda;
    Intenta([this] {
        if (store.VentanaOnda(Canal_) == this) store.VentanaOnda(Canal_) = nullptr;
    });
    if (store.NumVentanasOnda == 0) escena.muestraMenu();
}

}  // namespace veldix
