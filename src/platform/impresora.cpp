#include "platform/impresora.h"

#include <array>

namespace veldix {

void Impresora::Texto(const std::string& texto)
{
    Escribe(X, Y, texto);
    X += AnchoTexto(texto);
}

void Impresora::TextoLinea(const std::string& texto)
{
    Escribe(X, Y, texto);
    X = 0.0;
    Y += AltoTexto();
}

void Impresora::Linea(double x1, double y1, double x2, double y2, std::uint32_t color)
{
    const std::array<double, 2> xs{x1, x2}, ys{y1, y2};
    Poligonal(xs, ys, color);
}

}  // namespace veldix
