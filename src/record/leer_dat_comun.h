#pragma once

#include <vector>

#include "record/escala.h"
#include "record/record_store.h"

namespace veldix {

/// The common start of both readers: erases the sample arrays and sizes them.
void PreparaMuestras(RecordStore& s);

/// The common end: `FrecMuestreo` from the first two time stamps, taken as microseconds; it keeps its value
/// where they give none.
void CalculaFrecMuestreo(RecordStore& s);

/// Where a sample's values go. A table that could not be sized has a spare row in its place.
class FilasMuestra {
public:
    FilasMuestra(RecordStore& s, int canales);
    /// Moves to sample `i` of the record, 1-based.
    void Ve(int i);

    float* muestras = nullptr;
    float* prim = nullptr;
    float* sec = nullptr;
    std::int16_t* dig = nullptr;  ///< null where there are no states

private:
    RecordStore& s_;
    std::vector<float> sobraPrim_, sobraSec_;
};

}  // namespace veldix
