#pragma once

#include <string>
#include <vector>

#include "waves/hoja_ondas.h"

namespace veldix {

/// A tick of an axis and its label, empty where it has none.
struct Marca {
    double lugar = 0.0;  ///< x or y, twips
    std::string rotulo;
};

/// Value ticks at multiples of the vertical step either side of `origen`, 7 each, those inside the plot
/// alone. `valorPaso` is a step in the channel's units.
std::vector<Marca> MarcasValor(const MedidasHoja& m, double origen, double valorPaso,
                               const std::string& unidades);

/// Time ticks every 50 ms from the left edge, and finer ones without labels where 50 ms are wide. `escala` is
/// twips a sample of the page. None at fewer than 10 samples a second; raises 11 for 0.
std::vector<Marca> MarcasTiempo(const MedidasHoja& m, double escala, int porSegundo);

}  // namespace veldix
