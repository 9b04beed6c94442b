#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace veldix {

/// What a call of the gauge draws, in its order. Widths are of the filled part, in the unit of the track's.
struct DibujoMedidor {
    struct Paso {
        std::string rotulo;
        double ancho;
    };
    bool reinicia = false;  ///< hide the filled part, its width 0, and clear the track's caption; no steps
    std::vector<Paso> pasos;
};

/// The gauge: a position from 0 to 100.
struct Medidor {
    std::int16_t Posicion = 0;

    /// Moves to `valor`, or by it where `relativo`; 0 is a reset in either mode. A target above 100 draws
    /// nothing, but an absolute one is taken as the position. Raises 6 where the target leaves 16 bits.
    DibujoMedidor Llena(bool relativo, std::int16_t valor, double anchoPista);
};

/// Width of the filled part at a percentage.
double AnchoMedidor(double anchoPista, double porcentaje);

}  // namespace veldix
