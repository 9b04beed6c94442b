#pragma once

#include <array>
#include <optional>

#include "digital/plot_digital.h"
#include "platform/vista.h"
#include "waves/lugares_onda.h"

namespace veldix {

/// Height of the window of digital channels that is not the plot's: frame, bars and labels. Twips.
inline constexpr double kBajoDigital = 1100.0;

/// What the layout is made for.
struct TamanoDigital {
    double ancho = 0.0, alto = 0.0;  ///< the window's outer size
    double anchoInterior = 0.0;      ///< inside its frame
    double bajo = 0.0;               ///< height that the frame leaves below the plot
    bool ancha = true;               ///< a screen of over 800 pixels
    bool revision97 = false;
};

/// Places of its controls, in twips from the corner of its inside.
struct LugaresDigital : LugaresBotones {
    Lugar Picture1;
    std::array<Lugar, kFilasDigital> label;
    Lugar lblanalog, lblamar, lblcian, HScroll_Analog;
    Lugar HScroll_Nombres, HScroll1, HScroll2, lblizq, lblder, lbltiempo;
    Lugar lbl_PS;
};

/// The layout: names on the base lines of their rows and the texts of the reference beside its band, in a
/// column that ends at the plot's axis; bars and buttons below the plot. Nothing where the plot would have no
/// size.
std::optional<LugaresDigital> ColocaDigital(const TamanoDigital& t, const MedidasControles& m);

}  // namespace veldix
