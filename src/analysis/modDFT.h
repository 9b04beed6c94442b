#pragma once

#include <cstdint>

#include "record/record_store.h"

namespace veldix {

/// The pi of the reference tables, and of the way back to degrees: this value, not a longer one.
inline constexpr double kPiDFT = 3.14159;

/// Samples a cycle of the line frequency, halves to even. Raises 9 with no record, 11 for a line frequency of
/// 0, 6 beyond 16 bits.
std::int16_t MuestrasCiclo(const RecordStore& s);

/// Position, 1 to `ciclo`, of row `i` in its cycle. A cycle of 0 shows the common box and gives 0.
std::int16_t IndiceCiclo(std::int16_t i, std::int16_t ciclo);

/// Fills `FasoresDFT` with the running one-cycle DFT of `Muestras`: rows 1 to 5N + S for N samples a cycle
/// and S samples, row 5N + s for the window that ends at sample s, columns 2c - 1 (sine sum) and 2c (cosine
/// sum) of channel c. The sums are RMS values, in the units of `Muestras`, against a reference that stands
/// still, each channel's shifted by its skew. A failure shows the common box and leaves `FasoresDFT` empty: 6
/// where 5N + S or a value is out of range, 9 for a record shorter than a cycle.
void CalculaDFT(RecordStore& s);

}  // namespace veldix
