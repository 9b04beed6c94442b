#pragma once

#include "platform/impresora.h"

namespace veldix {

/// A rectangle of a page by its edges, twips.
struct Marco {
    double izquierda = 0.0, arriba = 0.0, derecha = 0.0, abajo = 0.0;
    double Ancho() const { return derecha - izquierda; }
    double Alto() const { return abajo - arriba; }
};

/// Sizes that a form's own letters have, twips: the texts of a phasor page are spaced by them.
struct MedidasLetra {
    double aa = 0.0;    ///< width of "AA"
    double alto = 0.0;  ///< of a line
};

/// The outer frame of a page of this size.
Marco MarcoPagina(double ancho, double alto);

/// X of the right-hand column of a page's heading: a fraction of its height.
double ColumnaDerecha(double alto);

/// Its four edges, in black and the present line width.
void PintaMarco(Impresora& impresora, const Marco& marco);

/// The end of a path that fits into a width in the printer's present letters, its cut marked: the file's name
/// is what is read.
std::string CabeFinal(const Impresora& impresora, const std::string& ruta, double ancho);

/// Writes a text at a place.
void EscribeEn(Impresora& impresora, double x, double y, const std::string& texto);

}  // namespace veldix
