#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/pagina.h"

namespace veldix {

/// Fixed measures of a page of waves, twips.
struct MedidasHoja {
    Marco marco, plot;
    double columna = 0.0;  ///< X of the right-hand column of the heading
    double pasoY = 0.0;    ///< between value ticks, negative: upwards
    double PasoX = 0.0;    ///< how much room a label of the time axis wants
};
MedidasHoja MideOndas(double ancho, double alto);

/// The complete table of a page of waves or digital states. Twips; curves unclipped, the painter keeps them
/// inside the plot.
struct HojaOndas {
    struct Texto {
        double x = 0.0, y = 0.0;
        std::string texto;
        LetraPagina letra;
    };
    struct Raya {
        double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
        std::uint32_t color = 0;
    };
    struct Curva {
        std::vector<double> xs, ys;
        std::uint32_t color = 0;
    };
    /// Filled between two opposite corners.
    struct Caja {
        double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
        std::uint32_t color = 0;
    };
    MedidasHoja medidas;
    std::vector<Texto> textos;
    std::vector<Raya> rayas;   ///< ticks and keys
    std::vector<Raya> dentro;  ///< zero lines, base lines and cursors, kept inside the plot
    std::vector<Caja> cajas;   ///< digital states, kept inside the plot
    std::vector<Curva> curvas;
};

/// What a view tells of itself beside its curves.
struct DatosHoja {
    std::string titulo;                    ///< behind the heading's caption
    float Cursor1 = 1.0F, Cursor2 = 1.0F;  ///< samples
    std::string textoDif, textoMs;         ///< difference and time between the cursors, as the view has them
    std::string fecha;                     ///< of the print
};

/// Colour of the `k`-th curve of a page, from 1, on a colour printer.
std::uint32_t ColorPapel(int k);

/// Draws it on the printer's present page.
void ImprimeHoja(Impresora& impresora, const HojaOndas& hoja);

}  // namespace veldix
