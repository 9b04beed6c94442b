#include "digital/plot_digital.h"

#include <algorithm>
#include <cmath>

#include "platform/numeros.h"

namespace veldix {

namespace {

constexpr double kFilasAlto = 24.0;  // row heights in a plot, the analog band's among them

int UltimaElegida(const RecordStore& s)
{
    return s.DigElegidos.Vacia() ? 0 : Entero16Local(s.DigElegidos(1).Numero);
}

}  // namespace

double AltoFila(double alto)
{
    return (alto - kDerechaDigital) / kFilasAlto;
}

double BaseFila(int n, double altoFila)
{
    return kBandaAnalog + (n + 1) * altoFila;
}

double EscalaReferencia(const Tabla2<float>& muestras, int columna, const TramoDigital& tramo)
{
    float mayor = 0.0F;
    for (int k = tramo.MuestraInicial + 1; k <= tramo.ultima; ++k)
        mayor = std::max(mayor, std::fabs(muestras(k, columna)));
    const double entero = std::trunc(static_cast<double>(mayor));
    return entero > 0.0 ? kCeroAnalog / entero : 0.0;
}

PuntosCurva CurvaReferencia(const Tabla2<float>& muestras, int columna, const TramoDigital& tramo)
{
    EscalaPlot escala;
    escala.EscalaX = tramo.EscalaX;
    escala.MargenX = static_cast<float>(tramo.X(tramo.MuestraInicial + 1));
    escala.OrigenY = static_cast<float>(kCeroAnalog);
    escala.EscalaY = static_cast<float>(EscalaReferencia(muestras, columna, tramo));
    return CalculaPuntos(muestras, columna, tramo.MuestraInicial + 1, tramo.ultima, escala);
}

bool EnGrupo(const RecordStore& s)
{
    return s.DigPrimera + s.DigUltima != 0;
}

/// A choice by hand is marked by the last row of `DigElegidos`.
std::vector<FilaDigital> FilasDigitales(const RecordStore& s)
{
    std::vector<FilaDigital> filas;
    const auto pon = [&filas](const FilaCanalDig& c) {
        filas.push_back({Entero16Local(c.Numero), c.Nombre});
    };
    if (EnGrupo(s))
        for (int j = s.DigPrimera; j <= s.DigUltima; ++j)
            pon(s.CanalesDig(j));
    for (int n = 2; n <= UltimaElegida(s); ++n)
        pon(s.DigElegidos(n));
    return filas;
}

std::vector<std::vector<TramoEstado>> EstadosDigitales(const Tabla2<std::int16_t>& estados,
                                                       const std::vector<FilaDigital>& filas,
                                                       const TramoDigital& tramo)
{
    std::vector<std::vector<TramoEstado>> tramos(filas.size());
    const int desde = tramo.MuestraInicial + 1;
    if (filas.empty() || tramo.ultima < desde) return tramos;
    for (const FilaDigital& f : filas) {  // the bounds are checked once, outside the loop
        static_cast<void>(estados(desde, f.canal));
        static_cast<void>(estados(tramo.ultima, f.canal));
    }
    std::vector<std::uint8_t> antes(filas.size(), 0);
    for (int k = desde; k <= tramo.ultima; ++k) {
        const std::int16_t* fila = estados.fila(k) - 1;
        for (std::size_t n = 0; n < filas.size(); ++n) {
            const bool uno = fila[filas[n].canal] == 1;
            if (uno && antes[n] == 0) tramos[n].push_back({k, k});
            if (uno) tramos[n].back().ultima = k;
            antes[n] = uno ? 1 : 0;
        }
    }
    return tramos;
}

std::vector<double> BordesEstado(const std::vector<TramoEstado>& tramos, const TramoDigital& tramo)
{
    std::vector<double> xs;
    xs.reserve(2 * tramos.size());
    for (const TramoEstado& t : tramos) {
        xs.push_back(tramo.X(t.primera - 1));
        xs.push_back(tramo.X(t.ultima));
    }
    return xs;
}

}  // namespace veldix
