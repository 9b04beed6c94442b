#include <array>
#include <cstdio>

#include "support/soporte.h"
#include "waves/caja_zoom.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;

/// x1, y1, x2, y2
using Marco = std::array<float, 4>;

/// A window of 10000 x 5000 twips: the acts of its user on a record of `ultima` samples, each of which tells
/// first and last sample shown, scale, vertical factor, origin, and the level of those stored.
struct Ventana {
    explicit Ventana(float& factor_, std::int16_t ultima_ = 960) : ultima(ultima_), factor(factor_)
    {
        z.Reinicia(10000.0F, 5000.0F, ultima);
        z.OrigenY = 2500.0F;
        factor = 1.0F;
    }
    std::string Marca(const Marco& m)
    {
        z.CajaX1 = m[0], z.CajaY1 = m[1], z.CajaX2 = m[2], z.CajaY2 = m[3];
        z.ZoomPendiente = true;
        return Redibuja();
    }
    std::string Pasa(int paso)
    {
        z.Mueve(paso);
        return Redibuja();
    }
    std::string Redibuja()
    {
        const auto t = z.Calcula(10000.0F, 5000.0F, ultima, factor, estrecha);
        if (t) z.Guarda(10000.0F, 5000.0F, factor);
        char texto[100];
        std::snprintf(texto, sizeof texto, "%d-%d %g x%g at %g, %d/%d", z.MuestraInicial, t ? t->e : 0,
                      static_cast<double>(z.EscalaX), static_cast<double>(factor),
                      static_cast<double>(z.OrigenY), z.NivelZoom, z.NumNiveles - 1);
        EXPECT_EQ(t ? t->s : z.MuestraInicial, z.MuestraInicial) << texto;
        return texto;
    }

    ZoomCaja z;
    std::int16_t ultima;
    float& factor;
    ZoomCaja::Estrecha estrecha = ZoomCaja::Estrecha::No;
};

constexpr Marco kPrimera{1200, 1000, 3200, 3500};

TEST(ZoomCaja, TheHistoryReplaysBoxesAndAppendsBranches)
{
    float factor = 0.0F;
    Ventana v(factor);
    EXPECT_EQ(v.Marca(kPrimera), "100-300 48 x2 at 3000, 1/1");
    EXPECT_EQ(v.Marca({1160, 2000, 3560, 4500}), "120-170 192 x4 at 2000, 2/2");
    EXPECT_EQ(v.Pasa(-1), "100-300 48 x2 at 3000, 1/2");
    EXPECT_EQ(v.Pasa(1), "120-170 192 x4 at 2000, 2/2");
    EXPECT_EQ(v.Marca({2120, 3000, 200, 500}), "121-130 1066.67 x8 at 3000, 3/3") << "mirrored";
    EXPECT_EQ(v.Pasa(-3), "1-960 10.0104 x1 at 2500, 0/3");
    EXPECT_EQ(v.Marca(kPrimera), "101-301 48 x2 at 3000, 4/4") << "a branch";
    EXPECT_EQ(v.Pasa(-1), "121-130 1066.67 x8 at 3000, 3/4");
    EXPECT_TRUE(v.z.HayAdelante());
    EXPECT_EQ(v.Pasa(1), "101-301 48 x2 at 3000, 4/4");
    EXPECT_FALSE(v.z.HayAdelante());
}

TEST(ZoomCaja, EdgesRoundAndAreLimitedOnlyBeyondTheRecord)
{
    const struct {
        const char* caja;
        float x1, x2, y2;
        const char* vista;
    } casos[] = {
        {"halves to even", 1205, 1215, 3500, "100-102 4800 x2 at 3000, 1/1"},
        {"left edge of the plot", 0, 3200, 3500, "1-300 32.107 x2 at 3000, 1/1"},
        {"to the last sample by rounding", 5000, 9804, 3500, "480-960 20 x2 at 3000, 1/1"},
        {"beyond the last sample", 5000, 9806, 3500, "480-959 20.0418 x2 at 3000, 1/1"},
        {"wholly beyond it", 9850, 10000, 3500, "965-959 1600 x2 at 3000, 1/1"},
        {"narrow: both edges round to one", 1206, 1214, 3500, "101-0 10 x1 at 2500, 0/0"},
        {"a click: the width is looked at before the height", 1200, 1200, 1000, "100-0 10 x1 at 2500, 0/0"},
        {"narrow by the limit at the end", 9790, 10000, 3500, "959-0 10 x1 at 2500, 0/0"},
    };
    float factor = 0.0F;
    for (const auto& c : casos) {
        Ventana v(factor);
        EXPECT_EQ(v.Marca({c.x1, 1000, c.x2, c.y2}), c.vista) << c.caja;
    }
    Ventana v(factor);
    v.Marca({1200, 1000, 1200, 3500});
    EXPECT_EQ(v.estrecha, ZoomCaja::Estrecha::CajaNueva);
    EXPECT_EQ(v.Marca({700, 1000, 1200, 3500}), "150-200 192 x2 at 3000, 1/1") << "counts from a narrow box";
    v.Pasa(-1);
    EXPECT_EQ(v.Marca({200, 0, 5005, 5000}), "2-481 20.0418 x1 at 2500, 2/2") << "sample 1 is lost";
}

TEST(ZoomCaja, ARecordOfOneSampleIsNarrowInEveryView)
{
    float factor = 0.0F;
    Ventana v(factor, 1);
    EXPECT_EQ(v.Marca({200, 0, 9800, 5000}), "1-0 9600 x1 at 2500, 0/0");
    v.Pasa(0);
    EXPECT_EQ(v.estrecha, ZoomCaja::Estrecha::Reproducida);
}

TEST(ZoomCaja, NumbersBeyondTheirRangeFailInsteadOfBeingClamped)
{
    constexpr Marco kTodo{200, 0, 9800, 5000}, kFinal{5100, 0, 9800, 5000};
    const struct {
        const char* acto;
        std::int16_t ultima;
        Marco antes, caja;
        int error;
    } casos[] = {
        {"no height", 960, kTodo, {1200, 2000, 3200, 2000}, 11},
        {"the right edge still fits", 32098, kTodo, {1000, 0, 10000, 5000}, 0},
        {"the right edge is over", 32099, kTodo, {1000, 0, 10000, 5000}, 6},
        {"so it is as the first corner", 32099, kTodo, {10000, 0, 1000, 5000}, 6},
        {"the end of a zoomed view fits", 32767, kFinal, {1000, 0, 9800, 5000}, 0},
        {"beyond it the sum is over", 32767, kFinal, {1000, 0, 10000, 5000}, 6},
    };
    for (const auto& c : casos) {
        float factor = 0.0F;
        Ventana v(factor, c.ultima);
        v.Marca(c.antes);
        EXPECT_EQ(NumeroDeError([&] { v.Marca(c.caja); }), c.error) << c.acto;
    }
    const NivelCaja nivel{0, 5000, 200, 9800, 1, 32000, 5000, 10000, 12, 2500};
    EXPECT_EQ(NumeroDeError([&] { (void)Reproduce(nivel, 32767); }), 6);
}

TEST(ZoomCaja, TheThirtiethZoomIsStoredAndTheNextOneFails)
{
    float factor = 0.0F;
    Ventana v(factor);
    std::string ultima;
    for (int k = 1; k <= 30; ++k)
        ultima = v.Marca({200, 0, 9800, 5000});
    // Each box from the left edge of a zoomed view drops a sample.
    EXPECT_EQ(ultima, "30-960 10.3226 x1 at 2500, 30/30");
    EXPECT_EQ(NumeroDeError([&] { v.Marca({200, 0, 9800, 5000}); }), 9);
}

TEST(ZoomCaja, WindowsShareTheVerticalFactorButNotTheOrigin)
{
    float factor = 0.0F;
    Ventana a(factor), b(factor);
    a.Marca(kPrimera);
    EXPECT_EQ(b.Marca(kPrimera), "100-300 48 x4 at 3000, 1/1") << "on top of the other window's factor";
    EXPECT_EQ(a.Pasa(-1), "1-960 10.0104 x1 at 2500, 0/1") << "a step writes the shared factor";
    EXPECT_EQ(b.Marca({200, 0, 9800, 2500}), "101-300 48.2412 x2 at 6000, 2/2");
    EXPECT_EQ(b.Pasa(-1), "100-300 48 x4 at 3000, 1/2") << "a replay restores its own";
}

}  // namespace
}  // namespace veldix
