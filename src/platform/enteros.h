#pragma once

#include <cmath>
#include <cstdint>

#include "platform/errores.h"

namespace veldix {

/// To the nearest integer of 16 bits, halves to even. Raises 6 out of range.
inline std::int16_t Entero16(double valor)
{
    const double r = std::nearbyint(valor);
    if (!(r >= -32768.0 && r <= 32767.0)) Lanza(error::kDesbordamiento);
    return static_cast<std::int16_t>(r);
}

/// To the nearest integer of 32 bits, halves to even, as places and sizes on the screen take. Raises 6.
inline std::int32_t Entero32(double valor)
{
    const double r = std::nearbyint(valor);
    if (!(r >= -2147483648.0 && r <= 2147483647.0)) Lanza(error::kDesbordamiento);
    return static_cast<std::int32_t>(r);
}

/// Sum in 16 bits. Raises 6.
inline std::int16_t Suma16(std::int16_t a, std::int16_t b)
{
    const int r = int{a} + int{b};
    if (r < -32768 || r > 32767) Lanza(error::kDesbordamiento);
    return static_cast<std::int16_t>(r);
}

/// Rounded once to float32. Raises 6 where the result is no finite float32.
inline float Single(double valor)
{
    const float r = static_cast<float>(valor);
    if (!std::isfinite(r)) Lanza(error::kDesbordamiento);
    return r;
}

/// Quotient in double. Raises 11 for a zero divisor.
inline double Divide(double dividendo, double divisor)
{
    if (divisor == 0.0) Lanza(error::kDivisionPorCero);
    return dividendo / divisor;
}

}  // namespace veldix
