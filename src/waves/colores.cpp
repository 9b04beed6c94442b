#include "waves/colores.h"

#include "platform/errores.h"

namespace veldix {

namespace {

constexpr std::array<std::uint32_t, 16> kPaleta = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                                   0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                                   0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

}  // namespace

std::uint32_t ColorPaleta(int numero)
{
    if (numero < 0 || numero > 15) Lanza(error::kSubindice);
    return kPaleta[static_cast<std::size_t>(numero)];
}

int ColorCanal(int n)
{
    const int m = n % 8;
    switch (m) {
        case 0:
            return 8;
        case 4:
            return 9;
        case 5:
            return 14;
        default:
            return m;
    }
}

std::uint32_t ColorCurva(const std::array<std::uint8_t, 15>& colores, int n)
{
    const int i = ColorCanal(n) - 1;
    if (i < 0 || i > 14) Lanza(error::kSubindice);
    return ColorPaleta(colores[static_cast<std::size_t>(i)]);
}

}  // namespace veldix
