#include "waves/lugares_comp.h"

#include <algorithm>

namespace veldix {

namespace {

constexpr double kAltoMarca = 75.0;

ColumnaComp ColocaColumna(const Lugar& hueco, double altoBarra, int curvas)
{
    ColumnaComp c;
    const double barra = std::min(altoBarra, hueco.alto / 4.0);
    c.marca = {hueco.izquierda, hueco.arriba, hueco.ancho, kAltoMarca};
    c.barra = {hueco.izquierda, hueco.Abajo() - barra, hueco.ancho, barra};
    const double alto = std::max(0.0, (hueco.alto - kAltoMarca - barra) / std::max(1, curvas));
    for (std::size_t k = 0; k < c.etiquetas.size() && static_cast<int>(k) < curvas; ++k)
        c.etiquetas[k] = {hueco.izquierda, c.marca.Abajo() + static_cast<double>(k) * alto, hueco.ancho,
                          alto};
    return c;
}

/// Both bars with their sample numbers below them, then the time.
void ColocaCursores(LugaresComp& l, double arriba, double lateral, const MedidasControles& m)
{
    const double barra = l.Picture1.ancho / 4.0, debajo = arriba + m.altoBarra + 10.0;
    l.HScroll1 = {0.0, arriba, barra, m.altoBarra};
    l.HScroll2 = {barra + lateral, arriba, barra, m.altoBarra};
    l.Label1 = {l.HScroll1.izquierda, debajo, barra, m.altoEtiqueta};
    l.Label2 = {l.HScroll2.izquierda, debajo, barra, m.altoEtiqueta};
    l.lblms = {l.HScroll2.Derecha() + kHueco, arriba, m.anchoTiempo, m.altoEtiqueta};
    l.lbl_PS = {l.lblms.izquierda, debajo, m.anchoTiempo, m.altoEtiqueta};
}

void ColocaBotones(LugaresComp& l, double lateral, double alto, bool medio, double anchoZoom)
{
    const double arriba = l.HScroll1.arriba, x = l.lblms.Derecha() + kHueco;
    const double queda = l.Picture1.Derecha() - x - 3.0 * lateral;
    const double zoom = std::clamp(queda / 3.4, kMenorZoom, anchoZoom), otro = 0.8 * zoom;
    l.cmdzoom = {x, arriba, zoom, medio ? alto / 2.0 : alto};
    l.cmdadel = {l.cmdzoom.Derecha() + lateral, arriba, otro, alto};
    l.cmdatras = {l.cmdadel.Derecha() + lateral, arriba, otro, alto};
    l.pctimpresora = {l.cmdatras.Derecha() + lateral, arriba, otro, alto};
}

}  // namespace

HuecosComp HuecosDe(int ventanas)
{
    if (ventanas >= 3) return {10.0, 10.0};
    return ventanas == 2 ? HuecosComp{50.0, 100.0} : HuecosComp{295.0, 100.0};
}

std::optional<LugaresComp> ColocaComposicion(const TamanoComp& t, const MedidasControles& m)
{
    LugaresComp l;
    l.Picture1 = {0.0, 0.0, t.ancho - kLadoComp, t.alto - kBajoComp};
    if (!(l.Picture1.ancho > 0.0 && l.Picture1.alto > 0.0)) return std::nullopt;
    const HuecosComp h = HuecosDe(t.ventanas);
    const double x = l.Picture1.Derecha() + kHueco, ancho = std::max(0.0, t.anchoInterior - x - kHueco);
    const double mitad = (l.Picture1.alto + t.bajo) / 2.0;
    l.amarilla = ColocaColumna({x, 0.0, ancho, mitad - 30.0}, m.altoBarra, t.curvas);
    l.cian = ColocaColumna({x, mitad, ancho, mitad - 30.0}, m.altoBarra, t.curvas);
    ColocaCursores(l, l.Picture1.alto + h.vertical, h.lateral, m);
    const double alto = m.altoBarra + 10.0 + m.altoEtiqueta;
    ColocaBotones(l, h.lateral, alto, t.estrecha && t.ventanas >= 3, m.anchoZoom);
    return l;
}

}  // namespace veldix
