#include "waves/composicion.h"

#include <array>

#include "support/soporte.h"
#include "waves/lugares_comp.h"
#include "waves/lugares_todo.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;

RecordStore Registro(int canales)
{
    RecordStore s;
    s.NumAnalog = s.NumCanalAnalog = static_cast<std::int16_t>(canales);
    s.Canales = Tabla1<FilaCanal>(canales);
    s.Muestras = Tabla2<float>(2, canales);
    for (int c = 1; c <= canales; ++c)
        s.Canales(c).Numero = std::to_string(c);
    ReiniciaRegistro(s);
    return s;
}

TEST(Composicion, SlotsFillTheMatrixByTheirWindow)
{
    RecordStore s = Registro(7);
    Ranuras r(18, Ranuras::Repetida::AntesPorTexto, kCanalesComp);
    EXPECT_TRUE(LlenaMatriz(s, r));
    EXPECT_TRUE(s.NumVentanasComp == 0 && VentanasEnUso(s).empty());
    r.Llena(6, "b", 2);
    r.Llena(5, "g", 7);
    r.Llena(18, "b", 2);
    r.Llena(13, "b", 2);
    r.Llena(7, "  ", 3);
    EXPECT_TRUE(LlenaMatriz(s, r));
    EXPECT_EQ(VentanasEnUso(s), (std::vector<int>{1, 3}));
    EXPECT_EQ(CanalesDeVentana(s, 1), (std::vector<int>{2, 7}));
    EXPECT_EQ(CanalesDeVentana(s, 3), (std::vector<int>{2}));
    EXPECT_EQ(s.NumVentanasComp, 2);
    r.Llena(1, "z", 8);
    EXPECT_EQ(NumeroDeError([&] { LlenaMatriz(s, r); }), error::kSubindice);
}

TEST(Composicion, ANameStandsOncePerWindowAndTheMarkerGoesOnByItself)
{
    using Puesta = Ranuras::Puesta;
    Ranuras r(18, Ranuras::Repetida::AntesPorTexto, kCanalesComp);
    EXPECT_EQ(r.Pon("a", 1), Puesta::Hecha);
    EXPECT_EQ(r.Pon("a", 2), Puesta::Repetida);  // by the name alone
    r.Marca(6);
    EXPECT_EQ(r.Pon("b", 2), Puesta::Hecha);
    EXPECT_EQ(r.Activa(), 7);
    EXPECT_EQ(r.Pon("b", 2), Puesta::Hecha);
    r.Marca(7);
    EXPECT_EQ(r.Pon("b", 2), Puesta::Hecha);  // the slot itself does not count
    r.Marca(18);
    EXPECT_EQ(r.Pon("c", 3), Puesta::Hecha);
    EXPECT_EQ(r.Activa(), 18);
}

TEST(Composicion, CurvesShareTheScaleOfTheGreatestAndNeverACursorColour)
{
    RecordStore s = Registro(3);
    s.Muestras(1, 1) = 10.0F, s.Muestras(2, 2) = -250.0F, s.Muestras(2, 3) = 900.0F;
    EXPECT_FLOAT_EQ(EscalaComposicion(s, {1, 2}, 5000.0F), 2400.0F / 250.0F);
    s.Muestras = Tabla2<float>(2, 3);
    EXPECT_FLOAT_EQ(EscalaComposicion(s, {1, 2}, 5000.0F), 0.96F);
    const std::uint32_t colores[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x000080, 0x800080, 0xFF00FF};
    const int leyenda[] = {9, 10, 12, 11, 14, 13};
    for (int k = 1; k <= 6; ++k) {
        EXPECT_EQ(ColorComposicion(s, k), colores[k - 1]) << k;
        EXPECT_EQ(ColorLeyenda(k), leyenda[k - 1]) << k;
    }
    EXPECT_EQ(ColorLeyenda(7), 0);
}

TEST(Lugares, ControlsOfACompositionOverlapOnASmallScreen)
{
    const double huecos[] = {295.0, 50.0, 10.0}, lados[] = {100.0, 100.0, 10.0};
    for (int n = 1; n <= 3; ++n) {
        const auto alto = static_cast<double>(RejillaComposicion(n, {11700, 8175})[0].alto);
        for (const bool estrecha : {false, true}) {
            const auto l =
                ColocaComposicion({11700.0, alto, 11580.0, 900.0, n, estrecha}, MedidasControles{});
            ASSERT_TRUE(l);
            EXPECT_EQ((std::array{l->Picture1.ancho, l->Picture1.alto}),
                      (std::array{10365.0, alto - 1350.0}));
            EXPECT_EQ(l->HScroll1.arriba - l->Picture1.Abajo(), huecos[n - 1]);
            EXPECT_NEAR(l->cmdadel.izquierda - l->cmdzoom.Derecha(), lados[n - 1], 1e-6);
            EXPECT_EQ(l->cmdzoom.alto * (n == 3 && estrecha ? 2 : 1), l->cmdadel.alto);
            EXPECT_LE(l->pctimpresora.Derecha(), l->amarilla.marca.izquierda);
            EXPECT_LE(l->amarilla.barra.Abajo(), l->cian.marca.arriba);
            EXPECT_LE(l->amarilla.etiquetas[5].Abajo(), l->amarilla.barra.arriba + 1e-6);
            EXPECT_LE(l->Label1.Abajo(), l->Picture1.alto + 900.0);
        }
    }
    EXPECT_FALSE(ColocaComposicion({1300.0, 5000.0, 1200.0, 900.0}, MedidasControles{}));
}

TEST(Lugares, LabelsOfAllChannelsStandByTheirBandInOneColumn)
{
    for (const int bandas : {1, 3, 8}) {
        const auto l = ColocaTodo(15284.0, 10435.0, 15164.0, 450.0, bandas, MedidasControles{});
        ASSERT_TRUE(l && static_cast<int>(l->lblet.size()) == 2 * bandas);
        EXPECT_EQ((std::array{l->Picture1.izquierda, l->Picture1.ancho, l->Picture1.alto}),
                  (std::array{1400.0, 15284.0 - 1500.0, 10435.0 - 900.0}));
        for (std::size_t k = 0; k + 1 < l->lblet.size(); ++k)
            EXPECT_LE(l->lblet[k].Abajo(), l->lblet[k + 1].arriba + 1e-6);
        EXPECT_NEAR(l->lblet[1].arriba, (l->Picture1.alto / bandas + 1.0) / 2.0, 1e-6);
        EXPECT_LE(l->pctimpresora.Derecha(), 15164.0);
    }
    EXPECT_FALSE(ColocaTodo(1500.0, 9000.0, 1400.0, 450.0, 2, MedidasControles{}));
}

}  // namespace
}  // namespace veldix
