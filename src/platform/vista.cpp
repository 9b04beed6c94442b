#include "platform/vista.h"

#include <array>
#include <clocale>
#include <ctime>

#include "platform/enteros.h"
#include "platform/numeros.h"

namespace veldix {

namespace {

/// What the locale of the environment makes of a format of strftime_l.
std::string FormateaHora(const char* formato)
{
    const std::time_t ahora = std::time(nullptr);
    std::tm partes{};
    localtime_r(&ahora, &partes);
    const locale_t l = newlocale(LC_TIME_MASK, "", nullptr);
    std::array<char, 128> b{};
    const std::size_t n = l ? strftime_l(b.data(), b.size(), formato, &partes, l)
                            : std::strftime(b.data(), b.size(), formato, &partes);
    if (l) freelocale(l);
    return {b.data(), n};
}

}  // namespace

float AnchoVista(const Pantalla& p)
{
    const std::int32_t pixeles = AnchoPixeles(p);
    const bool pequena = pixeles == 640 || (p.twipsPorPixel == 12.0 && pixeles == 800);
    return Single(p.ancho / (pequena ? 1.0077 : 1.005));
}

std::string AltoVista(const Pantalla& p)
{
    const std::int32_t pixeles = AnchoPixeles(p);
    const bool doce = p.twipsPorPixel == 12.0;
    double divisor = 1.104;
    if (pixeles == 640)
        divisor = 1.177;
    else if (doce)
        divisor = pixeles == 800 ? 1.15 : 1.115;
    else if (pixeles == 800)
        divisor = 1.1364;
    return TextoDouble(p.alto / divisor);
}

std::int32_t AnchoPixeles(const Pantalla& p)
{
    return Entero32(Divide(p.ancho, p.twipsPorPixel));
}

TamanoVista MideVista(const Pantalla& p)
{
    return {Entero32(TolVal(TextoSingle(AnchoVista(p)))), Entero32(TolVal(AltoVista(p)))};
}

std::string FechaImpresion()
{
    return DosPuntos(FormateaHora("%x %X"));
}

std::string DosPuntos(std::string fecha)
{
    int quedan = 3;
    for (char& c : fecha)
        if (c == '.' && quedan > 0) {
            c = ':';
            --quedan;
        }
    return fecha;
}

}  // namespace veldix
