#include "shell/medidor.h"

#include "support/soporte.h"

namespace veldix {
namespace {

/// The position, and what a call draws on a track of 1000: "r" for a reset, else captions and widths.
std::string Llena(Medidor& m, bool relativo, std::int16_t valor)
{
    const DibujoMedidor d = m.Llena(relativo, valor, 1000);
    std::string texto = std::to_string(m.Posicion) + (d.reinicia ? " r" : "");
    for (const auto& paso : d.pasos)
        texto += " " + paso.rotulo + std::to_string(static_cast<int>(paso.ancho));
    return texto;
}

TEST(Medidor, StepsAreSkippedOrDrawnBeyondTheTrack)
{
    constexpr bool kRelativo = true, kAbsoluto = false;
    const struct {
        bool modo;
        std::int16_t valor;
        const char* dibujo;
    } llamadas[] = {
        {kRelativo, 3, "3 3 %0 3 %10 3 %20 3 %30"},
        {kAbsoluto, 40, "40 40 %400"},
        {kRelativo, -10, "30"},
        {kRelativo, 0, "0 r"},
        {kAbsoluto, 98, "98 98 %980"},
        {kRelativo, 3, "98"},
        {kRelativo, 2, "100 100 %980 100 %990 100 %1000"},
        {kAbsoluto, 150, "150"},
        {kRelativo, 10, "150"},
        {kRelativo, -60, "90"},
        {kAbsoluto, 32767, "32767"},
    };
    Medidor m;
    for (const auto& l : llamadas)
        EXPECT_EQ(Llena(m, l.modo, l.valor), l.dibujo) << l.modo << ' ' << l.valor;
    EXPECT_EQ(prueba::NumeroDeError([&] { m.Llena(true, 1, 1000); }), 6);
}

}  // namespace
}  // namespace veldix
