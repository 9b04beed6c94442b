#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "waves/historia_zoom.h"

namespace veldix {

/// A level of a zoom between the cursors. Samples count from 1.
struct FilaZoom {
    float s = 0.0F, e = 0.0F;  ///< first and last sample
    float MuestraInicial = 0.0F;
    float Ancho = 0.0F;    ///< of the plot at the time, twips
    float EscalaX = 0.0F;  ///< twips a sample of the cursor lines
};

/// The zoom of a plot that is made between its two cursors, with its history: a row a level.
class ZoomCursores : public HistoriaZoom {
public:
    /// `margenes` is what the samples leave free of the plot's width, twips.
    explicit ZoomCursores(float margenes) : margenes_(margenes) {}

    /// Back to the whole record on a plot of `ancho`: history of one row. Returns that row. Raises 11.
    FilaZoom Reinicia(float ancho, std::int16_t ultima);

    /// What is to be shown now: the stretch between the cursors where `ZoomPendiente` is set, nothing where
    /// they are on one sample, else the present row. Raises 6.
    std::optional<FilaZoom> Calcula(float cursor1, float cursor2, float ancho) const;

    /// Ends a redraw: a new zoom becomes the last row. Raises 9 behind row 30.
    void Guarda(const FilaZoom& fila);

    /// Row -1 to 30. Raises 9.
    FilaZoom& Fila(int fila);
    const FilaZoom& Fila(int fila) const;

private:
    std::array<FilaZoom, 32> filas_{};
    float margenes_;
};

}  // namespace veldix
