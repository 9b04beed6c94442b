#include "digital/lugares_digital.h"

#include <algorithm>

namespace veldix {

namespace {

// Of the names, left of the plot, where the screen has room: a part of the width, within bounds.
constexpr double kColumna = 0.1, kMenorColumna = 1300.0, kMayorColumna = 2400.0;
constexpr double kBorde = 30.0, kAntesDeEje = 60.0;
constexpr double kFlecha = 0.7;

/// The column of texts, over the plot's left margin and what stands beside it.
void ColocaTextos(LugaresDigital& l, const TamanoDigital& t, const MedidasControles& m)
{
    const double ancho = l.Picture1.izquierda + kMargenDigital - kAntesDeEje - kBorde;
    const double altoFila = AltoFila(l.Picture1.alto), alto = std::min(altoFila, m.altoEtiqueta);
    for (int n = 1; n <= kFilasDigital; ++n)
        l.label[static_cast<std::size_t>(n - 1)] = {kBorde, BaseFila(n, altoFila) - alto, ancho, alto};
    const double anchoAnalog = !t.ancha && t.revision97 ? 0.75 * ancho : ancho;
    const double altoAnalog = std::min(m.altoEtiqueta, kBandaAnalog / 4.0 - kBorde);
    double y = kBorde;
    for (Lugar* lugar : {&l.lblanalog, &l.lblamar, &l.lblcian, &l.HScroll_Analog}) {
        *lugar = {kBorde, y, anchoAnalog, altoAnalog};
        y += altoAnalog + kBorde / 2.0;
    }
    l.HScroll_Nombres = {kBorde, l.Picture1.Abajo() + kHueco, ancho, m.altoBarra};
}

/// Each cursor's bar, a quarter of the window wide, above its sample; the time at the second one's end.
void ColocaBarras(LugaresDigital& l, const TamanoDigital& t, const MedidasControles& m)
{
    const double arriba = l.HScroll_Nombres.arriba, cuarto = t.ancho / 4.0;
    const double debajo = arriba + m.altoBarra + kHueco;
    l.HScroll1 = {l.HScroll_Nombres.Derecha() + kHueco, arriba, cuarto, m.altoBarra};
    l.HScroll2 = {l.HScroll1.Derecha() + kHueco, arriba, cuarto, m.altoBarra};
    l.lblizq = {l.HScroll1.izquierda, debajo, m.anchoNumero, m.altoEtiqueta};
    l.lblder = {l.HScroll2.izquierda, debajo, m.anchoNumero, m.altoEtiqueta};
    const double tiempo = std::clamp(cuarto - m.anchoNumero, 0.0, m.anchoTiempo);
    l.lbltiempo = {l.HScroll2.Derecha() - tiempo, debajo, tiempo, m.altoEtiqueta};
}

void ColocaBotones(LugaresDigital& l, const TamanoDigital& t, const MedidasControles& m)
{
    const double izquierda = l.HScroll2.Derecha() + kHueco, arriba = l.HScroll1.arriba;
    const double queda = t.anchoInterior - izquierda - m.anchoReferencia - 2.0 * kHueco;
    const double zoom = std::clamp(queda / (1.0 + 3.0 * kFlecha), kMenorZoom, m.anchoZoom);
    const double alto = std::min(2.0 * m.altoEtiqueta + kHueco, t.bajo - kHueco);
    double x = izquierda;
    for (Lugar* lugar : {&l.cmdzoom, &l.cmdadel, &l.cmdatras, &l.pctimpresora}) {
        const double ancho = lugar == &l.cmdzoom ? zoom : kFlecha * zoom;
        *lugar = {x, arriba, ancho, alto};
        x += ancho;
    }
    x += kHueco;
    l.lbl_PS = {x, arriba, std::max(0.0, t.anchoInterior - x), m.altoEtiqueta};
}

}  // namespace

std::optional<LugaresDigital> ColocaDigital(const TamanoDigital& t, const MedidasControles& m)
{
    LugaresDigital l;
    const double columna = t.ancha ? std::clamp(kColumna * t.ancho, kMenorColumna, kMayorColumna) : 0.0;
    l.Picture1 = {columna, 0.0, t.anchoInterior - columna, t.alto - kBajoDigital};
    if (l.Picture1.ancho <= kMargenesDigital || l.Picture1.alto <= kDerechaDigital) return std::nullopt;
    ColocaTextos(l, t, m);
    ColocaBarras(l, t, m);
    ColocaBotones(l, t, m);
    return l;
}

}  // namespace veldix
