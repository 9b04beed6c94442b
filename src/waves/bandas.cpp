#include "waves/bandas.h"

#include <algorithm>
#include <cmath>

#include "platform/enteros.h"
#include "platform/texto.h"
#include "waves/plot.h"

namespace veldix {

namespace {

enum class Unidad { Amperio, Voltio, Otra };

Unidad UnidadDe(const RecordStore& s, int r)
{
    const auto unidades = Recorta(s.Canales(r).Unidades);
    if (unidades == "A") return Unidad::Amperio;
    return unidades == "V" ? Unidad::Voltio : Unidad::Otra;
}

}  // namespace

std::vector<int> CanalesMarcados(const RecordStore& s)
{
    std::vector<int> canales;
    for (int r = 1; r <= s.NumAnalog; ++r)
        if (s.OndaCanal(r) == 1) canales.push_back(r);
    return canales;
}

Bandas ColocaBandas(RecordStore& s, const std::vector<int>& canales, float alto)
{
    TablaMinMax(s, s.Muestras);
    Bandas b;
    b.canales = canales;
    b.alto = Single(Divide(alto, static_cast<double>(canales.size())) + 1.0);
    float comun = 0.0F;
    for (const int r : canales) {
        const int c = ColumnaDeCanal(s, r);
        b.escalas.push_back(std::max(std::fabs(s.MaxCanal(c)), std::fabs(s.MinCanal(c))));
        if (UnidadDe(s, r) != Unidad::Otra) comun = std::max(comun, b.escalas.back());
    }
    for (std::size_t k = 0; k < canales.size(); ++k) {
        const float mayor = UnidadDe(s, canales[k]) == Unidad::Otra ? b.escalas[k] : comun;
        b.escalas[k] = EscalaVertical(b.alto, 0.0F, mayor);
    }
    return b;
}

float EscalaTramo(float ancho, double s, double e)
{
    return Single(Divide(ancho - 2.0 * kMargenBandas, e - s));
}

}  // namespace veldix
