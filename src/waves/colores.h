#pragma once

#include <array>
#include <cstdint>

namespace veldix {

/// Colours are 0xRRGGBB.
inline constexpr std::uint32_t kFondoPlot = 0x808080;
inline constexpr std::uint32_t kCursorAmarillo = 0xFFFF00;
inline constexpr std::uint32_t kCursorCian = 0x00FFFF;
inline constexpr std::uint32_t kCajaZoom = 0xFFFFFF;
inline constexpr int kColorEjes = 15;

/// One of the sixteen console colours, 0 black to 15 bright white. Raises 9.
std::uint32_t ColorPaleta(int numero);

/// Place, from 1, in the colour order of curves for channel row `n`, which is never that of a cursor colour.
int ColorCanal(int n);

/// The colour of the curve of channel row `n` by the order `colores`. Raises 9.
std::uint32_t ColorCurva(const std::array<std::uint8_t, 15>& colores, int n);

}  // namespace veldix
