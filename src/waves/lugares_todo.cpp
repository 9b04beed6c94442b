#include "waves/lugares_todo.h"

#include <algorithm>

namespace veldix {

namespace {

constexpr double kIzquierdaEtiqueta = 5.0, kAnchoEtiqueta = 1300.0;
constexpr double kMenorBarra = 600.0;
constexpr int kMasLineas = 4;

/// The two labels of a band stand above and below its zero line.
void ColocaEtiquetas(LugaresTodo& l, int bandas, double altoLinea)
{
    const double banda = l.Picture1.alto / bandas + 1.0;
    const int lineas = std::clamp(static_cast<int>(banda / 2.0 / altoLinea), 1, kMasLineas);
    const double alto = std::min(lineas * altoLinea, banda / 2.0);
    for (int k = 0; k < bandas; ++k) {
        const double cero = k * banda + banda / 2.0;
        l.lblet.push_back({kIzquierdaEtiqueta, cero - alto, kAnchoEtiqueta, alto});
        l.lblet.push_back({kIzquierdaEtiqueta, cero, kAnchoEtiqueta, alto});
    }
}

/// From left to right: each cursor's bar and sample number, the time, the buttons, the reference. The bars
/// take what the texts leave.
void ColocaFila(LugaresTodo& l, double derecha, double bajo, const MedidasControles& m)
{
    const double flecha = 0.6 * m.anchoZoom, izquierda = l.Picture1.izquierda;
    const double fijo =
        2.0 * m.anchoNumero + m.anchoTiempo + m.anchoZoom + 3.0 * flecha + m.anchoReferencia + 8.0 * kHueco;
    const double barra = std::max(kMenorBarra, (derecha - izquierda - fijo) / 2.0);
    double x = izquierda;
    const auto pon = [&](double ancho, double alto, double hueco) {
        const Lugar lugar{x, l.Picture1.Abajo() + (bajo - alto) / 2.0, ancho, alto};
        x += ancho + hueco;
        return lugar;
    };
    const double altoBoton = std::min(bajo, m.altoEtiqueta + 2.0 * kHueco);
    l.HScroll1 = pon(barra, m.altoBarra, kHueco);
    l.lblam = pon(m.anchoNumero, m.altoEtiqueta, kHueco);
    l.HScroll2 = pon(barra, m.altoBarra, kHueco);
    l.lblci = pon(m.anchoNumero, m.altoEtiqueta, kHueco);
    l.lblms = pon(m.anchoTiempo, m.altoEtiqueta, kHueco);
    l.cmdzoom = pon(m.anchoZoom, altoBoton, 0.0);
    l.cmdadel = pon(flecha, altoBoton, 0.0);
    l.cmdatras = pon(flecha, altoBoton, 0.0);
    l.pctimpresora = pon(flecha, altoBoton, kHueco);
    l.lbl_PS = pon(std::max(0.0, derecha - x), m.altoEtiqueta, 0.0);
    x = kIzquierdaEtiqueta;
    l.HScroll_Nombres = pon(kAnchoEtiqueta, m.altoBarra, 0.0);
}

}  // namespace

std::optional<LugaresTodo> ColocaTodo(double ancho, double alto, double anchoInterior, double bajo,
                                      int bandas, const MedidasControles& m)
{
    LugaresTodo l;
    l.Picture1 = {kIzquierdaTodo, 0.0, ancho - kLadoTodo, alto - kBajoTodo};
    if (!(l.Picture1.ancho > 0.0 && l.Picture1.alto > 0.0) || bandas < 1) return std::nullopt;
    ColocaEtiquetas(l, bandas, m.altoEtiqueta);
    ColocaFila(l, anchoInterior, bajo, m);
    return l;
}

}  // namespace veldix
