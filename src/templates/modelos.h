#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// The relay models of the master database, in the order of its table. Raises what BaseJet raises.
std::vector<std::string> ListaModelos(const RecordStore& s);

/// Takes the analog measurements of the first model that `nombre`, a pattern, fits: names, names in English
/// as circuits, and units, numbered from 1. `CanalesPlan` has one row more than the number of the last
/// measurement in the database, 32767 at most, `NumAnalogPlan` the rows that were read. Nothing happens where
/// no model fits. Raises what BaseJet raises, 3021 for no rows, 9 for more than the table has, 13 for a last
/// number that is NULL; the tables then stay as they were.
void LeeModeloAnalog(RecordStore& s, const std::string& nombre);

/// Takes the digital signals that such a model records into `NombreDigPlan` and `NumDigitalPlan`, and returns
/// their count; 0, with nothing read, where no model fits. Raises likewise, 13 for a `ByteOscilo` that is
/// NULL, 6 for one beyond 16 bits.
std::int16_t LeeModeloDigital(RecordStore& s, const std::string& nombre);

}  // namespace veldix
