#include "waves/lugares_onda.h"

#include <algorithm>

#include "platform/enteros.h"
#include "platform/errores.h"

namespace veldix {

namespace {

/// Widths of the arrow and print buttons are fractions of the zoom button's.
void ColocaBotones(LugaresOnda& l, double ancho, bool pocas, const MedidasControles& m)
{
    const double hueco = pocas ? kHueco : 0.0, flecha = pocas ? 0.8 : 0.6, imprimir = 0.8;
    const double alto = pocas ? 2.0 * m.altoEtiqueta + kHueco : m.altoEtiqueta + kHueco;
    const double arriba = l.HScroll1.arriba, izquierda = l.lblms.Derecha() + kHueco;
    const double queda = ancho - izquierda - 3.0 * hueco - m.anchoReferencia - 2.0 * kHueco;
    const double zoom = std::clamp(queda / (1.0 + 2.0 * flecha + imprimir), kMenorZoom, m.anchoZoom);
    l.cmdzoom = {izquierda, arriba, zoom, alto};
    l.cmdadel = {l.cmdzoom.Derecha() + hueco, arriba, flecha * zoom, alto};
    l.cmdatras = {l.cmdadel.Derecha() + hueco, arriba, flecha * zoom, alto};
    l.pctimpresora = {l.cmdatras.Derecha() + hueco, arriba, imprimir * zoom, alto};
}

}  // namespace

std::vector<Lugar> RejillaVentanas(int cuenta, const TamanoVista& vista)
{
    if (cuenta < 1 || cuenta > 8) Lanza(error::kArgumento);
    const int filas = cuenta <= 3 ? cuenta : (cuenta <= 6 ? 3 : 4);
    const int columnas = cuenta <= 3 ? 1 : 2;
    const double alto = Entero32(static_cast<double>(vista.alto) / filas);
    const double ancho = Entero32(static_cast<double>(vista.ancho) / columnas);
    std::vector<Lugar> lugares;
    for (int k = 0; k < cuenta; ++k)
        lugares.push_back({(k / filas) * ancho, (k % filas) * alto, ancho, alto});
    return lugares;
}

std::optional<LugaresOnda> ColocaOnda(double ancho, double alto, int ventanas, const MedidasControles& m)
{
    LugaresOnda l;
    const double altoPlot = alto - kBajoPlot;
    if (!(altoPlot > 0.0)) return std::nullopt;
    l.picbox = {0.0, 0.0, ancho, altoPlot};

    const double anchoBarra = ancho / 3.6, arriba = altoPlot + kHueco;
    l.HScroll1 = {0.0, arriba, anchoBarra, m.altoBarra};
    l.HScroll2 = {anchoBarra + kHueco, arriba, anchoBarra, m.altoBarra};

    const double debajo = l.HScroll1.Abajo() + kHueco, par = anchoBarra / 2.1;
    l.lblizq = {l.HScroll1.izquierda, debajo, par, m.altoEtiqueta};
    l.lblamar = {l.HScroll1.Derecha() - par, debajo, par, m.altoEtiqueta};
    l.lblder = {l.HScroll2.izquierda, debajo, par, m.altoEtiqueta};
    l.lblcian = {l.HScroll2.Derecha() - par, debajo, par, m.altoEtiqueta};

    const double derecha = l.HScroll2.Derecha() + kHueco, tercio = anchoBarra / 3.0;
    l.lblms = {derecha, arriba, tercio, m.altoEtiqueta};
    l.lblDif = {derecha, debajo, tercio, m.altoEtiqueta};

    const bool pocas = ventanas <= 3;
    const double dentro = ancho - m.anchoMarco;  // what ends at the right edge is not to lie under the frame
    ColocaBotones(l, dentro, pocas, m);
    const Lugar& ultimo = l.pctimpresora;
    l.lbl_PS = {ultimo.Derecha(), pocas ? ultimo.Abajo() - m.altoEtiqueta : l.lblizq.arriba + kHueco,
                std::max(0.0, dentro - ultimo.Derecha() - 2.0 * kHueco), m.altoEtiqueta};
    return l;
}

}  // namespace veldix
