#include "waves/plot.h"

#include <cmath>

#include "platform/enteros.h"
#include "platform/numeros.h"

namespace veldix {

float EscalaHorizontal(float ancho, double muestras)
{
    return Single(Divide(ancho * 48.0 / 50.0, muestras));
}

float EscalaVertical(float alto, float minimo, float maximo)
{
    float m = std::fabs(maximo) > std::fabs(minimo) ? std::fabs(maximo) : std::fabs(minimo);
    if (m == 0.0F) m = alto / 2.0F;
    return Single(Divide((static_cast<double>(alto) - (static_cast<double>(alto) + alto) / 50.0) / 2.0, m));
}

PuntosCurva CalculaPuntos(const Tabla2<float>& muestras, int columna, int s, int e, const EscalaPlot& escala)
{
    PuntosCurva p;
    p.primera = s;
    if (e < s) return p;
    const auto n = static_cast<std::size_t>(e - s + 1);
    p.PuntosX.resize(n);
    p.PuntosY.resize(n);
    // The last element is asked for so that the bounds are checked once, outside the loop.
    const float* y = &muestras(s, columna);
    static_cast<void>(muestras(e, columna));
    const auto salto = static_cast<std::ptrdiff_t>(muestras.Columnas());
    const double porUnidad = static_cast<double>(escala.FactorZoomY) * escala.EscalaY;
    for (std::size_t k = 0; k < n; ++k, y += salto) {
        p.PuntosX[k] = static_cast<double>(k) * escala.EscalaX + escala.MargenX;
        p.PuntosY[k] = escala.OrigenY - *y * porUnidad;
    }
    return p;
}

int ColumnaDeCanal(const RecordStore& s, int r)
{
    return Entero16Local(s.Canales(r).Numero);
}

std::int16_t PasoDeCursor(const RecordStore& s)
{
    const std::int16_t paso = Entero16(Divide(MuestrasPorSegundo(s), s.FrecLinea));
    return paso == 0 ? std::int16_t{1} : paso;
}

int SujetaCursor(int valor, int minimo, int maximo)
{
    if (valor >= maximo) return maximo;
    return valor <= minimo ? minimo : valor;
}

double LugarCursor(float cursor, std::int16_t muestraInicial, float escalaX, float margenX)
{
    return (static_cast<double>(cursor) - muestraInicial) * escalaX + margenX;
}

std::string TextoMuestra(int muestra)
{
    return "No.= " + FormaDelimitada(muestra);
}

std::string TextoValor(float valor, const std::string& unidades)
{
    return Mascara(valor, "0.000") + " " + unidades;
}

std::string TextoDiferencia(float valor1, float valor2, const std::string& unidades)
{
    return Mascara(std::fabs(static_cast<double>(valor1) - valor2), "0.000") + " " + unidades;
}

std::string TextoTiempo(float cursor1, float cursor2, std::int16_t porSegundo)
{
    const float t = Single(Divide(1000.0, porSegundo));
    const float ms = Single(std::fabs(static_cast<double>(cursor1) - cursor2) * t);
    return Mascara(ms, "0.000") + " ms";
}

}  // namespace veldix
