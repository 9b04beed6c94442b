#pragma once

#include "record/record_store.h"

namespace veldix {

/// Magnitude, in double and rounded once. Raises 6.
float ModuloFasor(float x, float y);

/// Angle in degrees, -90 to 270, referred to a sine wave. On the axes the angle is the opposite of what its
/// neighbours give: 0 on the left, 180 on the right, -90 above, 90 below and for a phasor of zero.
float AnguloFasor(float x, float y);

/// From rows of phasors, columns 2c - 1 (horizontal) and 2c (vertical), magnitude and angle of phasor c in
/// column c of two tables of the same bounds; their further columns are 0. Raises 9 with no phasors, 6.
void CalculaModulos(const Tabla2<float>& fasores, Tabla2<float>& Modulos, Tabla2<float>& Angulos);

/// Every element times `escala` and `zoom`: units of the diagram, twips. Raises 9 with no phasors, 6.
void CalculaCartesianas(const Tabla2<float>& fasores, float escala, float zoom, Tabla2<float>& Cartesianas);

/// Fills `Secuencias` from the phasors of the ticked groups, 1 or 2 of them: positive, negative and zero
/// sequence of each, horizontal and vertical part, in columns 1 to 6 of the first and 7 to 12 of the second.
/// The operator is -0.5 + j 0.866 with these three digits (Fortescue's components, amplitude over three).
/// For another count `Secuencias` is left empty. Raises 9 for a phase that is no channel, 6.
void CalculaSecuencias(RecordStore& s);

}  // namespace veldix
