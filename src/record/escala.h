#pragma once

#include <vector>

#include "record/record_store.h"

namespace veldix {

/// Whether opening the record fills its samples: always for 1991, for 1997 where channel 1 has the ratio 1/1.
/// Any other holds zeros until a side is chosen. Raises 9 for a 1997 record without analog channels.
bool MuestrasDirectas(const RecordStore& s);

/// How raw values become samples, channel by channel: v = a x + b in double, rounded once to float32, and
/// for 1997 its primary and secondary value, v or v times a ratio.
class EscalaCanales {
public:
    /// Takes factors and ratios of the store. `mayor` is the largest magnitude that a raw value can have.
    EscalaCanales(const RecordStore& s, double mayor);

    /// One sample of all channels from raw values x[0..n) into rows of n columns that do not overlap: v to
    /// `muestras` for 1991, and for 1997 where channel 1 has the ratio 1/1; its sides to `prim` and `sec`
    /// for 1997 alone. `primera` is told of sample 1, whose ratios have none before them. A value beyond
    /// float32 is left at 0, and so is one that `valida` (or null, for all) says was not there.
    template <class X>
    void Aplica(const X* x, const bool* valida, bool primera, float* muestras, float* prim, float* sec) const;

private:
    /// Factors on v for the primary and the secondary side. The product of two float32 is exact in double, so
    /// that a float32 product is the same value rounded once.
    struct Lados {
        std::vector<float> prim, sec;
    };
    void CalculaLados(const RecordStore& s);
    Lados Pasada(const RecordStore& s, float& prim, float& sec) const;

    int n_ = 0;
    bool es1997_ = false, directa_ = true;
    bool segura_ = true;  ///< no value can pass float32
    std::vector<double> a_, b_;
    Lados primera_, resto_;     ///< sample 1, and those behind it
    std::vector<int> sinLado_;  ///< channels, from 0, whose side is neither P nor S
};

}  // namespace veldix
