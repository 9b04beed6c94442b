#pragma once

#include <cstdint>
#include <span>

namespace veldix {

/// A view of 32-bit pixels owned by someone else; `paso` is the distance between rows, in pixels.
struct Imagen32 {
    std::uint32_t* pixeles = nullptr;
    int ancho = 0;
    int alto = 0;
    int paso = 0;
};

inline constexpr int kGruesoMaximo = 64;

void Rellena(const Imagen32& imagen, std::uint32_t color);

/// Fills a row of rectangles, from xs[2k] to xs[2k + 1] and from y1 to y2 times `escala`, in device pixels;
/// the pixels of both ends are included, and pixel n holds [n - 0.5, n + 0.5). What lies outside the picture
/// is left out, and one with an infinite or NaN corner fills nothing. Rising neighbours that touch are filled
/// as one.
void RellenaCajas(const Imagen32& imagen, std::span<const double> xs, double y1, double y2, double escala,
                  std::uint32_t color);

/// Draws from (x1, y1) to (x2, y2), both ends included, in device pixels; pixel n holds [n - 0.5, n + 0.5).
/// The pen is a square of `grueso` pixels (held to 1..kGruesoMaximo) centred on the line, the odd pixel to
/// the right and below. Any coordinates are allowed; a line with an infinite or NaN end draws nothing.
void TrazaLinea(const Imagen32& imagen, double x1, double y1, double x2, double y2, std::uint32_t color,
                int grueso = 1);

/// Draws the segments between consecutive points (xs[i], ys[i]) * escala, in device pixels after scaling by
/// the positive `escala`.
/// The pixels are exactly those of TrazaLinea called for each segment; x need not be monotonic.
/// Points beyond the shorter of the two arrays are ignored, and a lone point draws nothing.
void TrazaPoligonal(const Imagen32& imagen, std::span<const double> xs, std::span<const double> ys,
                    double escala, std::uint32_t color, int grueso = 1);

}  // namespace veldix
