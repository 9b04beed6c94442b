#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace veldix {

/// A Motion-JPEG film. There is at least one frame and the first one is never empty; an empty frame
/// further on repeats the one before it. The other frames are whole chunks, not checked to be JPEG.
struct PeliculaAvi {
    double milisegundosPorCuadro = 0;  ///< in [1, 60000]
    int ancho = 0, alto = 0;           ///< pixels, as declared by the video stream, in [1, 16384]
    std::vector<std::vector<std::uint8_t>> cuadros;
};

/// Reads the first video stream of an AVI file of 64 MiB at most. nullopt for a file that is missing,
/// too big, truncated, broken, without frames or of another coding.
std::optional<PeliculaAvi> LeeAvi(const std::string& ruta);

/// The same from the contents of the file. Bytes behind the outermost chunk are ignored.
std::optional<PeliculaAvi> InterpretaAvi(std::span<const std::uint8_t> bytes);

}  // namespace veldix
