#include "waves/composicion.h"

#include <algorithm>
#include <cmath>

#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "waves/colores.h"
#include "waves/plot.h"

namespace veldix {

bool LlenaMatriz(RecordStore& s, const Ranuras& ranuras)
{
    const int extra = s.NumAnalog + 1;
    s.MatrizComp = Tabla2<std::uint8_t>(kVentanasComp, extra);
    s.NumVentanasComp = 0;
    for (int k = 1; k <= ranuras.Cuantas(); ++k) {
        if (Recorta(ranuras(k).texto).empty()) continue;
        const int r = Entero16(Val(ranuras(k).numero));
        if (r < 1 || r > s.NumAnalog) Lanza(error::kSubindice);
        s.MatrizComp(VentanaDeRanura(k), r) = 1;
    }
    for (int j = 1; j <= kVentanasComp; ++j) {
        const auto cuenta = CanalesDeVentana(s, j).size();
        if (cuenta == 0) continue;
        s.MatrizComp(j, extra) = 1;
        ++s.NumVentanasComp;
        if (cuenta > kCanalesComp) return false;
    }
    return true;
}

std::vector<int> VentanasEnUso(const RecordStore& s)
{
    std::vector<int> ventanas;
    for (int j = 1; j <= kVentanasComp; ++j)
        if (s.MatrizComp(j, s.NumAnalog + 1) == 1) ventanas.push_back(j);
    return ventanas;
}

std::vector<int> CanalesDeVentana(const RecordStore& s, int ventana)
{
    std::vector<int> canales;
    for (int r = 1; r <= s.NumAnalog; ++r)
        if (s.MatrizComp(ventana, r) == 1) canales.push_back(r);
    return canales;
}

float EscalaComposicion(RecordStore& s, const std::vector<int>& canales, float alto)
{
    TablaMinMax(s, s.Muestras);
    float mayor = 0.0F;
    for (const int r : canales) {
        const int c = ColumnaDeCanal(s, r);
        mayor = std::max({mayor, std::fabs(s.MaxCanal(c)), std::fabs(s.MinCanal(c))});
    }
    return EscalaVertical(alto, 0.0F, mayor);
}

std::uint32_t ColorComposicion(const RecordStore& s, int k)
{
    const int i = k == 4 ? 8 : (k == 5 ? 13 : k - 1);
    if (i < 0 || i > 14) Lanza(error::kSubindice);
    return ColorPaleta(s.Colores[static_cast<std::size_t>(i)]);
}

int ColorLeyenda(int n)
{
    constexpr int kOrden[] = {9, 10, 12, 11, 14, 13};
    return n >= 1 && n <= 6 ? kOrden[n - 1] : 0;
}

std::vector<Lugar> RejillaComposicion(int cuenta, const TamanoVista& vista)
{
    if (cuenta < 1 || cuenta > kVentanasComp) Lanza(error::kArgumento);
    const double alto = Entero32(static_cast<double>(vista.alto) / cuenta);
    std::vector<Lugar> lugares;
    for (int n = 0; n < cuenta; ++n)
        lugares.push_back({0.0, n * alto, static_cast<double>(vista.ancho), alto});
    return lugares;
}

}  // namespace veldix
