#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// Where the samples of one curve lie on a plot. Twips, y downwards.
struct EscalaPlot {
    float EscalaX = 0.0F;  ///< twips between neighbouring samples
    float MargenX = 0.0F;  ///< x of the first plotted sample
    float OrigenY = 0.0F;  ///< y of the value 0
    float EscalaY = 0.0F;  ///< twips a channel unit at zoom 1:1
    float FactorZoomY = 1.0F;
};

/// Plotted points in twips: sample `primera` + k at element k.
struct PuntosCurva {
    int primera = 1;
    std::vector<double> PuntosX, PuntosY;
};

/// Twips between two samples of a plot of width `ancho` that keeps 1/50 free at both ends and shows
/// `muestras` steps. Raises 11 for none.
float EscalaHorizontal(float ancho, double muestras);

/// Twips a unit of a channel of the range `minimo` to `maximo` in a plot of height `alto`.
float EscalaVertical(float alto, float minimo, float maximo);

/// Points of samples `s` to `e` of a column, none where `e` is below `s`. Raises 9 out of range.
PuntosCurva CalculaPuntos(const Tabla2<float>& muestras, int columna, int s, int e, const EscalaPlot& escala);

/// The column of a channel row, `Canales(r, 1)` as an integer. Raises 9, 13, 6.
int ColumnaDeCanal(const RecordStore& s, int r);

/// Samples of one cycle, halves to even, at least 1: the large step of a cursor. Raises 11 at a line
/// frequency of 0, 9 with no record.
std::int16_t PasoDeCursor(const RecordStore& s);

/// A cursor bar's value held inside its range.
int SujetaCursor(int valor, int minimo, int maximo);

/// x of a cursor's line. On a fresh plot `muestraInicial` is 0, so that the line stands one sample to the
/// right of the point of its sample.
double LugarCursor(float cursor, std::int16_t muestraInicial, float escalaX, float margenX);

/// Label texts. Values by the mask "0.000" with their units behind a blank.
std::string TextoMuestra(int muestra);
std::string TextoValor(float valor, const std::string& unidades);
std::string TextoDiferencia(float valor1, float valor2, const std::string& unidades);
/// Time between two cursors in ms at `porSegundo` samples a second, in single precision. Raises 11.
std::string TextoTiempo(float cursor1, float cursor2, std::int16_t porSegundo);

}  // namespace veldix
