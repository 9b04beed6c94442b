#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace veldix {

inline constexpr double kTwipsPorPixel = 15.0;

/// Logical pixel nearest to a distance in twips, halves upwards; saturates to the range of int, 0 for NaN.
inline int APixeles(double twips)
{
    if (std::isnan(twips)) return 0;
    constexpr double menor = std::numeric_limits<int>::min();
    constexpr double mayor = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::floor(twips / kTwipsPorPixel + 0.5), menor, mayor));
}

inline double ATwips(int pixeles)
{
    return pixeles * kTwipsPorPixel;
}

}  // namespace veldix
