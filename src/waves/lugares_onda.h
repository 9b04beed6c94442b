#pragma once

#include <optional>
#include <vector>

#include "platform/vista.h"

namespace veldix {

/// Height of a wave window that is not the plot's: frame, bars and labels. Twips.
inline constexpr double kBajoPlot = 1100.0;
/// The gap between the controls of a wave window, twips.
inline constexpr double kHueco = 50.0;
/// The zoom button is never narrower, twips.
inline constexpr double kMenorZoom = 450.0;

/// Places of `cuenta` windows of one size, 1 to 8: the left column from top to bottom, then the right one.
/// Raises 5 for another count.
std::vector<Lugar> RejillaVentanas(int cuenta, const TamanoVista& vista);

/// Sizes that the layout of a wave window takes from the controls' fonts, in twips.
struct MedidasControles {
    double altoBarra = 240.0;      ///< of a cursor bar
    double altoEtiqueta = 240.0;   ///< of a label
    double anchoZoom = 900.0;      ///< of the zoom button, where there is room
    double anchoReferencia = 0.0;  ///< that the reference label needs
    double anchoNumero = 900.0;    ///< that the longest sample number needs
    double anchoTiempo = 1000.0;   ///< that the longest time between cursors needs
    double anchoMarco = 0.0;       ///< of the window's frame, both sides
};

/// Places of the buttons that all time-domain views have, twips from the corner of the window's inside.
struct LugaresBotones {
    Lugar cmdzoom, cmdadel, cmdatras, pctimpresora;
};

/// Places of the controls of a wave window, in twips from the corner of its inside; the widths of plot and
/// bars follow the outer size, so that the plot ends under the frame.
struct LugaresOnda : LugaresBotones {
    Lugar picbox;
    Lugar HScroll1, HScroll2;
    Lugar lblizq, lblamar, lblder, lblcian;
    Lugar lblms, lblDif;
    Lugar lbl_PS;
};

/// The layout of a window of the outer size `ancho` x `alto` while `ventanas` wave windows are open: with
/// more than three the buttons are low and stand without gaps. The zoom button, which the others follow in
/// width, gives way to the reference label. Nothing where the plot would have no height.
std::optional<LugaresOnda> ColocaOnda(double ancho, double alto, int ventanas, const MedidasControles& m);

}  // namespace veldix
