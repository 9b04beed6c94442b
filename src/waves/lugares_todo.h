#pragma once

#include <optional>
#include <vector>

#include "platform/vista.h"
#include "waves/lugares_onda.h"

namespace veldix {

/// Height and width of the window of all channels that are not the plot's, and the plot's left. Twips.
inline constexpr double kBajoTodo = 900.0, kLadoTodo = 1500.0, kIzquierdaTodo = 1400.0;

/// Places of its controls, in twips from the corner of its inside.
struct LugaresTodo : LugaresBotones {
    Lugar Picture1;
    std::vector<Lugar> lblet;  ///< two a band: at the yellow and at the cyan cursor
    Lugar HScroll_Nombres;
    Lugar HScroll1, lblam, HScroll2, lblci, lblms;
    Lugar lbl_PS;
};

/// The layout of a window of the outer size `ancho` x `alto`: labels beside their band, everything else in
/// one row below the plot. `anchoInterior` is the width inside the frame, `bajo` the height that the frame
/// leaves below the plot. Nothing where the plot would have no size.
std::optional<LugaresTodo> ColocaTodo(double ancho, double alto, double anchoInterior, double bajo,
                                      int bandas, const MedidasControles& m);

}  // namespace veldix
