#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/pagina.h"
#include "waves/bandas.h"
#include "waves/caja_zoom.h"
#include "waves/zoom_cursores.h"

namespace veldix {

/// Fixed measures of a page of waves, twips.
struct MedidasOndas {
    Marco marco, plot;
    double columna = 0.0;  ///< X of the right-hand column of the heading
    double pasoY = 0.0;    ///< between value ticks, negative: upwards
    double PasoX = 0.0;    ///< how much room a label of the time axis wants
};
MedidasOndas MideOndas(double ancho, double alto);

/// The complete table of a page of waves. Twips; curves unclipped, the painter keeps them inside the plot.
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
    MedidasOndas medidas;
    std::vector<Texto> textos;
    std::vector<Raya> rayas;   ///< ticks and keys
    std::vector<Raya> dentro;  ///< zero lines and cursors, kept inside the plot
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

/// The page of one channel at a level of its zoom, without its row or column in shared state. `escalaY` is in
/// twips a unit of the screen. Nothing where the level's stretch is no step wide. Raises 9, 13, 11, 6.
std::optional<HojaOndas> HojaDeOnda(const RecordStore& s, Impresora& impresora, int canal,
                                    const NivelCaja& nivel, float escalaY, const DatosHoja& datos);

/// The page of a composition: all curves on one scale, value ticks in the first one's units, a legend whose
/// gaps follow the count of windows. Otherwise as HojaDeOnda.
std::optional<HojaOndas> HojaDeComposicion(const RecordStore& s, Impresora& impresora,
                                           const std::vector<int>& canales, const NivelCaja& nivel,
                                           float escalaY, int ventanas, const DatosHoja& datos);

/// The page of all channels in bands of a screen plot of height `alto`, over the stretch of a row of the
/// zoom. The last sample of the stretch is not joined. Raises as above.
std::optional<HojaOndas> HojaDeTodo(const RecordStore& s, Impresora& impresora, const Bandas& bandas,
                                    const FilaZoom& fila, float alto, const DatosHoja& datos);

/// Draws it on the printer's present page.
void ImprimeHoja(Impresora& impresora, const HojaOndas& hoja);

}  // namespace veldix
