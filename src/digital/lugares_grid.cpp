#include "digital/lugares_grid.h"

#include <algorithm>

namespace veldix {

namespace {

constexpr int kColumnas = 8, kEtiquetas = 20;
constexpr double kSolape = 16.0, kMargen = 120.0, kMenorResto = 2400.0;

}  // namespace

LugaresGrid ColocaGrid(const TamanoGrid& t)
{
    LugaresGrid l;
    l.anchoEtiqueta = std::clamp((t.anchoInterior - kMenorResto) / kColumnas, 0.0, t.alto / 7.0);
    l.altoEtiqueta = std::min(t.ancho / 63.0, (t.altoInterior / 2.0 - kSolape) / kEtiquetas + kSolape);
    l.paso = l.altoEtiqueta - kSolape;
    const double izquierda = kColumnas * l.anchoEtiqueta + kMargen;
    l.resto = {izquierda, kMargen, std::max(0.0, t.anchoInterior - izquierda - kMargen),
               std::max(0.0, t.altoInterior - 2.0 * kMargen)};
    return l;
}

Lugar LugaresGrid::Grupo(int k) const
{
    const double alto = kEtiquetas * paso + kSolape;
    const int banda = (k - 1) / kColumnas, columna = (k - 1) % kColumnas;
    return {columna * anchoEtiqueta, banda * alto, anchoEtiqueta, alto};
}

}  // namespace veldix
