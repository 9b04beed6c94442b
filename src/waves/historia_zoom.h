#pragma once

#include <cstdint>

namespace veldix {

/// Where a plot stands in its zooms: level 0 is the whole record. A new zoom goes behind the last level,
/// wherever the user stood, so that forward may step through older branches.
struct HistoriaZoom {
    std::int16_t NivelZoom = 0, NumNiveles = 1;
    bool ZoomPendiente = false;  ///< the next redraw applies a new zoom

    bool HayAdelante() const { return NivelZoom < NumNiveles - 1; }
    bool HayAtras() const { return NivelZoom >= 1; }
    /// One level forward (1) or back (-1), which drops a zoom that was asked for.
    void Mueve(int paso)
    {
        NivelZoom = static_cast<std::int16_t>(NivelZoom + paso);
        ZoomPendiente = false;
    }

protected:
    void Vuelve()
    {
        NivelZoom = 0;
        NumNiveles = 1;
    }
    /// The level just stored at NumNiveles is the present one.
    void Avanza()
    {
        NivelZoom = NumNiveles;
        ++NumNiveles;
        ZoomPendiente = false;
    }
};

}  // namespace veldix
