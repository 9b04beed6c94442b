#pragma once

#include <cstdint>
#include <string>

namespace veldix {

/// The part of the screen that the desktop leaves to programs, in twips.
struct Pantalla {
    double ancho = 0.0, alto = 0.0;
    double twipsPorPixel = 15.0;
};

/// A rectangle in twips.
struct Lugar {
    double izquierda = 0.0, arriba = 0.0, ancho = 0.0, alto = 0.0;
    double Derecha() const { return izquierda + ancho; }
    double Abajo() const { return arriba + alto; }
};

/// Usable width of a view, in twips.
float AnchoVista(const Pantalla& p);

/// Usable height of a view, in twips, as the text of a double in 15 significant digits with the system's
/// separator: callers read it back with TolVal.
std::string AltoVista(const Pantalla& p);

/// Screen width in pixels.
std::int32_t AnchoPixeles(const Pantalla& p);
/// The widest screen that counts as narrow, pixels.
inline constexpr std::int32_t kPantallaEstrecha = 800;

/// Both sizes as the views take them: read back and rounded, halves to even. Twips.
struct TamanoVista {
    std::int32_t ancho = 0, alto = 0;
};
TamanoVista MideVista(const Pantalla& p);

/// The present date and time of the system's short form, its first three points as colons.
std::string FechaImpresion();
/// The same of a text already made.
std::string DosPuntos(std::string fecha);

}  // namespace veldix
