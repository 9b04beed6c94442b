#pragma once

#include "platform/vista.h"

namespace veldix {

/// Sizes that the layout of the choice by hand starts from, twips.
struct TamanoGrid {
    double ancho = 0.0, alto = 0.0;  ///< the window's outer size
    double anchoInterior = 0.0, altoInterior = 0.0;
};

/// Places of its sixteen columns of labels, in two bands of eight, and of what stands at their right; twips
/// from the corner of its inside.
struct LugaresGrid {
    double anchoEtiqueta = 0.0, altoEtiqueta = 0.0;
    double paso = 0.0;  ///< from a label to the one under it, which overlaps it
    Lugar resto;

    /// The column of group `k`, 1 to 16.
    Lugar Grupo(int k) const;
};

/// A label is a seventh of the window's height wide and a 63rd of its width high, but no larger than lets
/// both bands stand inside the frame and leaves 2400 twips of its width for the rest.
LugaresGrid ColocaGrid(const TamanoGrid& t);

}  // namespace veldix
