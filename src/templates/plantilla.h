#pragma once

#include <string>
#include <string_view>

#include "record/record_store.h"

namespace veldix {

/// Reads the template `FicheroCnf` into the template set, forgiving: a statement that fails is skipped.
/// "ver 1.0" as first line gives its message and nothing is read. With a record open, a template in force
/// and none being edited, one that has more analog channels than the record, or a digital channel number
/// above its digital channels, sets `PlantillaNoValida` and leaves the set half filled.
void LeerPlantilla(RecordStore& s);

/// The first line of a template too old to be read.
inline bool EsVersionVieja(std::string_view version)
{
    return version == "ver 1.0";
}

/// The first line of `FicheroCnf`, also stored in `VersionPlantilla`. Raises 75 for an empty name or a
/// folder, 53 for a missing file, 76 for a missing folder, 62 for an empty file.
std::string LeerVersionPlantilla(RecordStore& s);

/// Whether a path ends in "CNF" or "cnf"; a mix of cases is refused.
bool EsExtensionPlantilla(std::string_view ruta);

/// Writes the template set to `ruta`, replacing the file; its groups come from `GruposEdit` and
/// `GruposEditNum`. A failure leaves a half-written file. Raises what writing raises, 9 for a row that the
/// tables lack, 13 for a group's count that is no number.
void GrabarPlantilla(const RecordStore& s, const std::string& ruta);

}  // namespace veldix
