#pragma once

#include "digital/plot_digital.h"
#include "waves/hoja_ondas.h"

namespace veldix {

/// The plot on the screen that a page repeats, twips, and what it shows.
struct PlotDigital {
    double ancho = 0.0, alto = 0.0;
    TramoDigital tramo;
    std::vector<FilaDigital> filas;
};

/// The page of digital states under their analog reference, `CanalRef`, over the stretch in view. Raises 9,
/// 11.
HojaOndas HojaDigital(const RecordStore& s, Impresora& impresora, const PlotDigital& plot,
                      const DatosHoja& datos);

}  // namespace veldix
