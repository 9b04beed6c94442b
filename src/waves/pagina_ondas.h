#pragma once

#include <optional>
#include <vector>

#include "waves/bandas.h"
#include "waves/caja_zoom.h"
#include "waves/hoja_ondas.h"
#include "waves/zoom_cursores.h"

namespace veldix {

/// The page of one channel at a level of its zoom, without its row or column in shared state. `escalaY` is in
/// twips a unit of the screen. Nothing where the level's stretch is no step wide. Raises 9, 13, 11, 6.
std::optional<HojaOndas> HojaDeOnda(const RecordStore& s, Impresora& impresora, int canal,
                                    const NivelCaja& nivel, float escalaY, const DatosHoja& datos);

/// The page of a composition: all curves on one scale, value ticks in the first one's units, a legend whose
/// gaps follow the count of windows. Otherwise as HojaDeOnda.
std::optional<HojaOndas> HojaDeComposicion(const RecordStore& s, Impresora& impresora,
                                           const std::vector<int>& canales, const NivelCaja& nivel,
                                           float escalaY, int ventanas, const DatosHoja& datos);

/// The page of all channels in bands of a screen plot of height `alto`, over the stretch of a row of the
/// zoom. The last sample of the stretch is not joined. Raises as above.
std::optional<HojaOndas> HojaDeTodo(const RecordStore& s, Impresora& impresora, const Bandas& bandas,
                                    const FilaZoom& fila, float alto, const DatosHoja& datos);

}  // namespace veldix
