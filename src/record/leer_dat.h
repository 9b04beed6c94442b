#pragma once

#include <cstdint>

#include "record/record_store.h"

namespace veldix {

/// Read the `.dat` named by `FicheroDat` into the sample arrays, sized by `UltimaMuestra(1)`, `NumAnalog`
/// and `NumDigital`, scaled by `FactorA` and `FactorB` and, for 1997, by `Relacion`. Errors are ignored
/// throughout: what cannot be read stays zero, a table over 1 GiB is not there. Return 0.
///
/// ASCII: one line a sample, `n,time,A1..An,D1..Dm`; time stamps are multiplied by a `TimeMult` other than 0.
std::int16_t LeerDatAscii(RecordStore& s);
/// BINARY: little-endian, per sample two 32-bit integers (number, time), a 16-bit integer an analog channel,
/// a 16-bit word for each 16 digital channels begun, lowest bit first; `TimeMult` is not applied.
std::int16_t LeerDatBin(RecordStore& s);

/// Erases samples, states and times, and what side they were of; `FrecMuestreo` stays.
void BorraMuestras(RecordStore& s);

}  // namespace veldix
