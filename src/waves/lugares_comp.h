#pragma once

#include <array>
#include <optional>

#include "platform/vista.h"
#include "waves/composicion.h"
#include "waves/lugares_onda.h"

namespace veldix {

/// Height and width of a composition window that are not the plot's. Twips.
inline constexpr double kBajoComp = 1350.0, kLadoComp = 1335.0;

/// Gaps below the plot and between the controls, on the screen and on paper, while `ventanas` composition
/// windows are in use. Twips.
struct HuecosComp {
    double vertical, lateral;
};
HuecosComp HuecosDe(int ventanas);

/// A column of labels, one a curve: a strip in the cursor's colour, the labels, the bar that scrolls them.
struct ColumnaComp {
    Lugar marca, barra;
    std::array<Lugar, kCanalesComp> etiquetas;
};

/// Places of the controls of a composition window, in twips from the corner of its inside.
struct LugaresComp : LugaresBotones {
    Lugar Picture1;
    ColumnaComp amarilla, cian;
    Lugar HScroll1, HScroll2, Label1, Label2, lblms;
    Lugar lbl_PS;
};

/// What the layout is made for.
struct TamanoComp {
    double ancho = 0.0, alto = 0.0;  ///< the window's outer size
    double anchoInterior = 0.0;      ///< inside its frame
    double bajo = 0.0;               ///< height that the frame leaves below the plot
    int ventanas = 1;                ///< composition windows in use, 1 to 3
    bool estrecha = false;           ///< a screen of at most 800 pixels
    int curvas = kCanalesComp;       ///< whose labels share a column
};

/// The layout; gaps follow the count of windows. Nothing where the plot would have no size.
std::optional<LugaresComp> ColocaComposicion(const TamanoComp& t, const MedidasControles& m);

}  // namespace veldix
