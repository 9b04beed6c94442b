#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"
#include "waves/plot.h"

namespace veldix {

/// Measures of the plot of digital channels, twips: x of the first sample, what stays free at the right and
/// at the bottom, top of the vertical axis, height and zero line of the analog band, height of a state's bar.
inline constexpr double kMargenDigital = 1200.0, kDerechaDigital = 200.0, kEjeDigital = 100.0,
                        kBandaAnalog = 1200.0, kCeroAnalog = 600.0, kAltoEstado = 75.0;
/// What its samples leave free of the width.
inline constexpr float kMargenesDigital = 1400.0F;
inline constexpr int kColorEstado = 9;  ///< of the bars, a palette colour
/// Rows that its names have, and channels that can be shown.
inline constexpr int kFilasDigital = 19;

/// Height of a row in a plot of height `alto`, and the base line of row `n`, from 1. Twips.
double AltoFila(double alto);
double BaseFila(int n, double altoFila);

/// The samples that a digital plot shows: those behind `MuestraInicial` up to `ultima`.
struct TramoDigital {
    std::int16_t MuestraInicial = 0, ultima = 0;
    float EscalaX = 0.0F;  ///< twips a sample

    /// x of a sample on the plot.
    double X(int muestra) const
    {
        return (static_cast<double>(muestra) - MuestraInicial) * EscalaX + kMargenDigital;
    }
};

/// Twips a unit of the analog reference, a column of the samples: its largest magnitude in the stretch, less
/// the fraction, fills half the band; 0 where that is 0. Raises 9.
double EscalaReferencia(const Tabla2<float>& muestras, int columna, const TramoDigital& tramo);

/// Points of its curve. Raises 9.
PuntosCurva CurvaReferencia(const Tabla2<float>& muestras, int columna, const TramoDigital& tramo);

/// Whether a group is shown, and not channels chosen by hand.
bool EnGrupo(const RecordStore& s);

/// A row of digital states: the record's channel and its name.
struct FilaDigital {
    int canal = 0;
    std::string nombre;
};

/// The rows that a chooser left, from the top. Raises 13 for a channel that is no number, 9 for a row that
/// the tables lack.
std::vector<FilaDigital> FilasDigitales(const RecordStore& s);

/// A run of samples in state 1. Its bar reaches from the sample before the first one to the last one.
struct TramoEstado {
    int primera = 0, ultima = 0;
};

/// The runs of each row in the stretch, in one pass over the samples. Raises 9 for a channel or sample that
/// the record lacks.
std::vector<std::vector<TramoEstado>> EstadosDigitales(const Tabla2<std::int16_t>& estados,
                                                       const std::vector<FilaDigital>& filas,
                                                       const TramoDigital& tramo);

/// Left and right x of the bars of a row on the plot, one behind the other.
std::vector<double> BordesEstado(const std::vector<TramoEstado>& tramos, const TramoDigital& tramo);

}  // namespace veldix
