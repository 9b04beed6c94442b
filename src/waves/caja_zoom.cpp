#include "waves/caja_zoom.h"

#include <cmath>
#include <utility>

#include "platform/enteros.h"
#include "platform/errores.h"
#include "waves/plot.h"

namespace veldix {

namespace {

/// The last sample that a zoom may show: beyond the record it falls back to the last but one.
std::int16_t Limita(std::int16_t e, std::int16_t ultima)
{
    return e > ultima ? static_cast<std::int16_t>(ultima - 1) : e;
}

std::int16_t AlMenosUno(std::int16_t v)
{
    return v <= 0 ? std::int16_t{1} : v;
}

/// The stretch from sample numbers that are not yet held to 1; empty where it is no step wide.
std::optional<Tramo> Cierra(std::int16_t s, std::int16_t e, float ancho)
{
    s = AlMenosUno(s);
    e = AlMenosUno(e);
    if (s == e) return std::nullopt;
    return Tramo{s, e, std::fabs(EscalaHorizontal(ancho, int{e} - int{s}))};
}

}  // namespace

NivelCaja& PilaZoom::operator()(int columna)
{
    if (columna < 0 || columna > 31) Lanza(error::kSubindice);
    return columnas_[static_cast<std::size_t>(columna)];
}

const NivelCaja& PilaZoom::operator()(int columna) const
{
    if (columna < 0 || columna > 31) Lanza(error::kSubindice);
    return columnas_[static_cast<std::size_t>(columna)];
}

BordesCaja Bordes(const NivelCaja& nivel)
{
    const float x0 = nivel.Ancho / 50.0F;
    const auto muestra = [&](float x) {
        return AlMenosUno(Entero16(Divide(static_cast<double>(x) - x0, nivel.EscalaX)));
    };
    return {muestra(nivel.CajaX1), muestra(nivel.CajaX2)};
}

std::optional<Tramo> Reproduce(const NivelCaja& nivel, std::int16_t ultima)
{
    const BordesCaja b = Bordes(nivel);
    const std::int16_t s = Suma16(nivel.MuestraInicial, b.a);
    const std::int16_t e = Suma16(nivel.MuestraInicial, b.b);
    return Cierra(s, Limita(e, ultima), nivel.Ancho);
}

void ZoomCaja::Reinicia(float ancho, float alto, std::int16_t ultima)
{
    MuestraInicial = 0;
    Vuelve();
    EscalaX = EscalaHorizontal(ancho, ultima);
    Pila(0).MuestraInicial = 0;
    Pila(1) = NivelCaja{.CajaY1 = 0.0F,
                        .CajaY2 = alto,
                        .CajaX1 = ancho / 50.0F,
                        .CajaX2 = 49.0F * ancho / 50.0F,
                        .FactorZoomY = 1.0F,
                        .MuestraInicial = 0,
                        .Alto = alto,
                        .Ancho = ancho,
                        .EscalaX = EscalaX,
                        .OrigenY = alto / 2.0F};
}

std::optional<Tramo> ZoomCaja::Nueva(float ancho, float alto, std::int16_t ultima, float& factorZoomY,
                                     Estrecha& estrecha)
{
    FactorZoomYAnt = factorZoomY;
    if (CajaX1 > CajaX2) std::swap(CajaX1, CajaX2);
    NivelCaja caja{.CajaX1 = CajaX1, .CajaX2 = CajaX2, .Ancho = ancho, .EscalaX = EscalaX};
    const BordesCaja bordes = Bordes(caja);
    if (CajaY1 > CajaY2) std::swap(CajaY1, CajaY2);
    MuestraInicialAnt = MuestraInicial;
    const std::int16_t s = Suma16(MuestraInicial, bordes.a);
    const std::int16_t e = Limita(Suma16(MuestraInicialAnt, bordes.b), ultima);
    MuestraInicial = s;
    if (s == e) {
        estrecha = Estrecha::CajaNueva;
        return std::nullopt;
    }
    EscalaXAnt = EscalaX;
    EscalaX = std::fabs(EscalaHorizontal(ancho, int{e} - int{s}));
    factorZoomY =
        Single(factorZoomY * Divide(alto, static_cast<double>(CajaY2) - static_cast<double>(CajaY1)));
    OrigenY = Single(Divide((static_cast<double>(OrigenY) - CajaY1) * factorZoomY, FactorZoomYAnt));
    return Cierra(s, e, ancho);
}

std::optional<Tramo> ZoomCaja::Nivel(std::int16_t ultima, float& factorZoomY)
{
    const NivelCaja& nivel = Pila(NivelZoom + 1);
    CajaX1 = nivel.CajaX1;
    CajaX2 = nivel.CajaX2;
    CajaY1 = nivel.CajaY1;
    CajaY2 = nivel.CajaY2;
    factorZoomY = nivel.FactorZoomY;
    EscalaX = nivel.EscalaX;
    OrigenY = nivel.OrigenY;
    MuestraInicial = Suma16(nivel.MuestraInicial, Bordes(nivel).a);
    return Reproduce(nivel, ultima);
}

std::optional<Tramo> ZoomCaja::Calcula(float ancho, float alto, std::int16_t ultima, float& factorZoomY,
                                       Estrecha& estrecha)
{
    estrecha = Estrecha::No;
    const std::optional<Tramo> tramo =
        ZoomPendiente ? Nueva(ancho, alto, ultima, factorZoomY, estrecha) : Nivel(ultima, factorZoomY);
    if (!tramo) {
        if (estrecha == Estrecha::No) estrecha = Estrecha::Reproducida;
        return tramo;
    }
    EscalaX = tramo->EscalaX;
    EscalaXPaso = Single(Divide(ancho, int{tramo->e} - int{tramo->s}));
    return tramo;
}

void ZoomCaja::Guarda(float ancho, float alto, float factorZoomY)
{
    if (!ZoomPendiente) return;
    Pila(NumNiveles + 1) = NivelCaja{CajaY1, CajaY2, CajaX1,     CajaX2, factorZoomY, MuestraInicialAnt,
                                     alto,   ancho,  EscalaXAnt, OrigenY};
    Avanza();
}

}  // namespace veldix
