#pragma once

#include "comun.h"
#include "record/record_store.h"

namespace veldix::fuzz {

/// An input of the sample readers: a head of 24 octets that stands for the header of the record, then the
/// sample file. Little-endian:
///   0 analog channels, 1 digital channels (250 to 255: see Cuenta), 2 samples (16 bits),
///   4 flags: 1 revision 1997, 2 decimal comma, 4 sides per channel,
///   5 time multiplier (16 bits), 7 side and first of the factors for even channels,
///   8 factors a and b and both ratios of odd channels (float32 each)
struct CasoDat {
    explicit CasoDat(Octetos entrada);
    void Prepara(RecordStore& s) const;

    Octetos fichero;
    bool comaDecimal = false;

private:
    FilaRelacion Relacion(int canal) const;
    bool es1997_ = false, mezcla_ = false;
    std::int16_t analogicos_ = 0, digitales_ = 0, muestras_ = 0, multiplicador_ = 0;
    unsigned paleta_ = 0;
    float impar_[4] = {};
};

/// Sizes, and that no sample of the first `leidas` rows is infinite or no number; the rows behind are zero.
void CompruebaMuestras(const RecordStore& s, int leidas);

}  // namespace veldix::fuzz
