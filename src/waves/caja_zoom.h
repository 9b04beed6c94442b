#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "waves/historia_zoom.h"

namespace veldix {

/// One level of a box zoom: the box as drawn and the state before it, from which the zoom is replayed.
/// Coordinates are twips of the plot, samples count from 1.
struct NivelCaja {
    float CajaY1 = 0.0F, CajaY2 = 0.0F, CajaX1 = 0.0F, CajaX2 = 0.0F;
    float FactorZoomY = 0.0F;         ///< after the zoom
    std::int16_t MuestraInicial = 0;  ///< before the zoom
    float Alto = 0.0F, Ancho = 0.0F;  ///< of the plot at the time
    float EscalaX = 0.0F;             ///< twips a sample, before the zoom
    float OrigenY = 0.0F;             ///< after the zoom
};

/// The zoom history of a plot, column 0 to 31; column 1 is the whole record, column L + 1 the level L.
class PilaZoom {
public:
    /// Raises 9 outside 0 to 31.
    NivelCaja& operator()(int columna);
    const NivelCaja& operator()(int columna) const;

private:
    std::array<NivelCaja, 32> columnas_{};
};

/// A stretch of samples that a zoom shows. `s` may lie behind `e`, which shows nothing.
struct Tramo {
    std::int16_t s = 1, e = 1;
    float EscalaX = 0.0F;  ///< twips a sample
};

/// Samples from the state before a box to its edges, at least 1.
struct BordesCaja {
    std::int16_t a = 1, b = 1;
};
/// The edges, from the margin in steps of `EscalaX`, rounded. Raises 6 where a number leaves 16 bits.
BordesCaja Bordes(const NivelCaja& nivel);

/// The stretch that a stored level shows of a record of `ultima` samples. Empty where it is narrower than a
/// step. Raises 6 where a sample number leaves 16 bits.
std::optional<Tramo> Reproduce(const NivelCaja& nivel, std::int16_t ultima);

/// The box zoom of one window: its state, its history, and the box that the mouse draws.
struct ZoomCaja : HistoriaZoom {
    float EscalaX = 0.0F, EscalaXAnt = 0.0F;  ///< twips a sample, now and before the last zoom
    float EscalaXPaso = 0.0F;                 ///< of the cursor bar at layout, of the plot after a zoom
    float OrigenY = 0.0F;
    float FactorZoomYAnt = 1.0F;
    std::int16_t MuestraInicial = 0, MuestraInicialAnt = 0;
    float CajaX1 = 0.0F, CajaY1 = 0.0F, CajaX2 = 0.0F, CajaY2 = 0.0F;
    bool ArrastrandoCaja = false;
    PilaZoom Pila;

    /// Back to the whole record on a plot of `ancho` x `alto`: history of one level.
    void Reinicia(float ancho, float alto, std::int16_t ultima);

    /// Why a zoom shows nothing, for the icon of its message.
    enum class Estrecha { No, CajaNueva, Reproducida };

    /// The stretch to be shown now: the box just drawn where `ZoomPendiente` is set, else the present
    /// level. `factorZoomY` is shared by windows. Where the stretch is narrower than a step, `estrecha`
    /// tells it and `MuestraInicial` stays moved. Raises 6, and 11 for a box of no height.
    std::optional<Tramo> Calcula(float ancho, float alto, std::int16_t ultima, float& factorZoomY,
                                 Estrecha& estrecha);

    /// Ends a redraw: a new zoom goes to the end of the history. Raises 9 for the thirty-first.
    void Guarda(float ancho, float alto, float factorZoomY);

private:
    std::optional<Tramo> Nueva(float ancho, float alto, std::int16_t ultima, float& factorZoomY,
                               Estrecha& estrecha);
    std::optional<Tramo> Nivel(std::int16_t ultima, float& factorZoomY);
};

/// A coordinate of the mouse held on the plot.
inline float SujetaCaja(double v, double mayor)
{
    return static_cast<float>(v < 0.0 ? 0.0 : (v > mayor ? mayor : v));
}

}  // namespace veldix
