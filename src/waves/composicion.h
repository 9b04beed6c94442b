#pragma once

#include <cstdint>
#include <vector>

#include "platform/ranuras.h"
#include "platform/vista.h"
#include "record/record_store.h"

namespace veldix {

/// Windows of compositions, and channels in each.
inline constexpr int kVentanasComp = 3, kCanalesComp = 6;

/// The window, 1 to 3, that slot `k` of the chooser, 1 to 18, belongs to.
constexpr int VentanaDeRanura(int k)
{
    return (k - 1) / kCanalesComp + 1;
}

/// Fills `MatrizComp` from the slots; its last column marks windows that have a channel, which
/// `NumVentanasComp` counts. False where a window has more channels than it takes. Raises 9 for a channel
/// that the record lacks, 6.
bool LlenaMatriz(RecordStore& s, const Ranuras& ranuras);

/// Windows that have a channel, rising.
std::vector<int> VentanasEnUso(const RecordStore& s);

/// Rows of `Canales` of a window, rising. Raises 9.
std::vector<int> CanalesDeVentana(const RecordStore& s, int ventana);

/// Twips a unit that all curves of `canales` share in a plot of height `alto`: the greatest of them fills it.
/// Takes the range of each column anew, into `MinCanal` and `MaxCanal`. Raises 9, 13, 6.
float EscalaComposicion(RecordStore& s, const std::vector<int>& canales, float alto);

/// Colour of curve `k`, from 1, by the order `Colores`, never that of a cursor. Raises 9.
std::uint32_t ColorComposicion(const RecordStore& s, int k);

/// Console colour of position `n` of a legend, 0 beyond 6.
int ColorLeyenda(int n);

/// Places of `cuenta` windows, 1 to 3, one below another.
std::vector<Lugar> RejillaComposicion(int cuenta, const TamanoVista& vista);

}  // namespace veldix
