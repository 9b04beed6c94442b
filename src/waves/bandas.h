#pragma once

#include <vector>

#include "record/record_store.h"

namespace veldix {

/// x of the first sample of a plot in bands, and what its curves leave free of the width. Twips.
inline constexpr float kMargenBandas = 50.0F, kMargenesBandas = 150.0F;

/// Rows of `Canales` that `OndaCanal` marks, rising.
std::vector<int> CanalesMarcados(const RecordStore& s);

/// The bands of a plot that shows channels one below another, a band each. Twips, bands count from 1.
struct Bandas {
    float alto = 0.0F;           ///< of a band, which is a twip more than its share
    std::vector<int> canales;    ///< row of `Canales` of each band
    std::vector<float> escalas;  ///< twips a unit of its channel

    float Cero(int k) const { return static_cast<float>((k - 1) * double{alto} + double{alto} / 2.0); }
};

/// The bands of `canales` in a plot of height `alto`. Takes the range of each column anew, into `MinCanal`
/// and `MaxCanal`. Amperes and volts share one scale, whatever their sizes; other units have their channel's
/// own. Raises 9, 13, 6 for a channel without a column, 11 for no channels.
Bandas ColocaBandas(RecordStore& s, const std::vector<int>& canales, float alto);

/// Twips a sample of the curves of a zoom from `s` to `e` in a plot `ancho` wide. The cursors' scale leaves
/// more of the width free, so that at `e` they stand short of the curve's end. Raises 11.
float EscalaTramo(float ancho, double s, double e);

}  // namespace veldix
