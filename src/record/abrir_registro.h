#pragma once

#include <cstdint>

#include "record/record_store.h"

namespace veldix {

/// Opens the record that `FicheroCfg` and `FicheroDat` name: gauge, `.cfg`, samples by the format line,
/// session. Returns 0, or -1 after its message: a refused year, or a format line that is neither word, after
/// which the record has no samples.
std::int16_t AbrirRegistro(RecordStore& s);

/// The three paths of the record whose `.dat` is named, as the command line forms them: the stem is the path
/// less its last 3 characters; siblings are found in any case; a file that is not there is the empty string.
void NombraPorTronco(RecordStore& s, const std::string& dat);

/// The same as the file dialog forms them: the title, the last component of the path, is cut behind its
/// first point (which it gets where it has none).
void NombraPorTitulo(RecordStore& s, const std::string& dat);

}  // namespace veldix
