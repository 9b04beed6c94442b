#include "waves/marcas_pagina.h"

#include "platform/enteros.h"
#include "platform/numeros.h"

namespace veldix {

namespace {

constexpr int kMarcasLado = 7;
constexpr double kMilisegundos = 50.0, kHolgura = 1e-6;  // a tick on the very edge belongs to the plot

}  // namespace

std::vector<Marca> MarcasValor(const MedidasHoja& m, double origen, double valorPaso,
                               const std::string& unidades)
{
    std::vector<Marca> marcas;
    for (int k = -kMarcasLado; k <= kMarcasLado; ++k) {
        const double y = origen + k * m.pasoY;
        if (k == 0 || y < m.plot.arriba - kHolgura || y > m.plot.abajo + kHolgura) continue;
        marcas.push_back({y, Mascara(k * valorPaso, "#.##") + " " + unidades + "  "});
    }
    return marcas;
}

std::vector<Marca> MarcasTiempo(const MedidasHoja& m, double escala, int porSegundo)
{
    std::vector<Marca> marcas;
    const int p50 = Entero16(kMilisegundos / Divide(1000.0, porSegundo));
    const double d50 = escala * p50;
    if (!(d50 > 0.0)) return marcas;
    const bool finas = 5.0 * m.PasoX < d50, todas = m.PasoX / 1.5 < d50;
    const int partes = finas ? 5 : 1;
    for (int j = 1; m.plot.izquierda + j * d50 / partes <= m.plot.derecha + kHolgura; ++j) {
        const int k = j / partes;
        Marca marca{m.plot.izquierda + j * d50 / partes, {}};
        if (j % partes == 0 && k == 2)
            marca.rotulo = "100";
        else if (j % partes == 0 && todas)
            marca.rotulo = FormaDelimitada(k * static_cast<int>(kMilisegundos));
        marcas.push_back(marca);
    }
    return marcas;
}

}  // namespace veldix
