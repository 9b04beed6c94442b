#pragma once

#include <string>
#include <vector>

#include "analysis/diagrama.h"
#include "platform/pagina.h"

namespace veldix {

/// What a page of phasors tells beside its lines.
struct PieFasores {
    std::string titulo;   ///< of the view
    std::string fichero;  ///< the record's samples
    std::string fecha;    ///< of the print
};

/// The complete table of a page of phasors. Twips.
struct HojaFasores {
    struct Linea {
        double x2 = 0.0, y2 = 0.0;  ///< its end, unclipped; it starts at the centre
        std::uint32_t color = 0;
        int grosor = 1;  ///< in 1/300 inch
        std::string nombre, valor;
        double y = 0.0, yValor = 0.0;  ///< of the name and its stroke, of the value
    };
    Marco marco, caja;
    double CentroX = 0.0, CentroY = 0.0;
    double EscalaPapel = 0.0;  ///< from the diagram's twips to the page's
    double xTexto = 0.0;       ///< left edge of all texts but the date
    double xTrazo = 0.0, largoTrazo = 500.0;
    double xFecha = 0.0, yTitulo = 0.0, yFichero = 0.0, yNumero = 0.0;
    std::vector<Linea> lineas;
    std::string titulo, fichero, fecha, numero;
};

/// The page of what a diagram shows of `trazos` at `fila`, at its present zoom, on the printer's paper,
/// landscape. `altoDiagrama` is the screen diagram's height, twips. On a printer without colour the lines are
/// black and differ by width. Raises what the screen's table raises, but for the length of lines, and 11 for
/// a diagram without height.
HojaFasores ComponeFasores(const RecordStore& s, const Diagrama& d, const std::vector<Trazo>& trazos,
                           int fila, double altoDiagrama, const PieFasores& pie, const Impresora& impresora,
                           const MedidasLetra& letra);

/// Draws it on the printer's present page.
void ImprimeFasores(Impresora& impresora, const HojaFasores& hoja);

}  // namespace veldix
