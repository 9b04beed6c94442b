#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "platform/errores.h"
#include "waves/caja_zoom.h"

namespace veldix {
namespace {

using Estrecha = ZoomCaja::Estrecha;

int NumeroDeError(const std::function<void()>& f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

/// A window of 10000 x 5000 twips: the acts of its user on a record of `ultima` samples.
struct Ventana {
    Ventana(std::int16_t ultima_, float& factor_) : ultima(ultima_), factor(factor_)
    {
        z.Reinicia(10000.0F, 5000.0F, ultima);
        z.OrigenY = 2500.0F;
        factor = 1.0F;
    }
    std::optional<Tramo> Caja(float x1, float y1, float x2, float y2)
    {
        z.CajaX1 = x1, z.CajaY1 = y1, z.CajaX2 = x2, z.CajaY2 = y2;
        z.ZoomPendiente = true;
        return Redibuja();
    }
    std::optional<Tramo> Pasa(int paso)
    {
        z.NivelZoom = static_cast<std::int16_t>(z.NivelZoom + paso);
        z.ZoomPendiente = false;
        return Redibuja();
    }
    std::optional<Tramo> Redibuja()
    {
        estrecha = Estrecha::No;
        const auto t = z.Calcula(10000.0F, 5000.0F, ultima, factor, estrecha);
        if (t) z.Guarda(10000.0F, 5000.0F, factor);
        return t;
    }

    ZoomCaja z;
    std::int16_t ultima;
    float& factor;
    Estrecha estrecha = Estrecha::No;
};

struct Vista {
    int s, e, inicial;
    float escala, factor, origen;
    int nivel, niveles;
};

void Comprueba(const Ventana& v, const std::optional<Tramo>& t, const Vista& m, const char* acto)
{
    SCOPED_TRACE(acto);
    ASSERT_TRUE(t);
    EXPECT_EQ(t->s, m.s);
    EXPECT_EQ(t->e, m.e);
    EXPECT_FLOAT_EQ(t->EscalaX, m.escala);
    EXPECT_FLOAT_EQ(v.z.EscalaX, m.escala);
    EXPECT_EQ(v.z.MuestraInicial, m.inicial);
    EXPECT_EQ(v.factor, m.factor);
    EXPECT_EQ(v.z.OrigenY, m.origen);
    EXPECT_EQ(v.z.NivelZoom, m.nivel);
    EXPECT_EQ(v.z.NumNiveles, m.niveles);
    EXPECT_FALSE(v.z.ZoomPendiente);
}

TEST(ZoomCaja, TheHistoryReplaysBoxesAndAppendsBranches)
{
    float factor = 0.0F;
    Ventana v(960, factor);
    EXPECT_EQ(v.z.EscalaX, 10.0F);
    const std::array<float, 4> primera{1200, 1000, 3200, 3500}, segunda{1160, 2000, 3560, 4500};
    const std::array<float, 4> alreves{2120, 3000, 200, 500};
    const struct {
        const char* acto;
        const std::array<float, 4>* caja;  // or null for a step
        int paso;
        Vista vista;
    } pasos[] = {
        {"first box", &primera, 0, {100, 300, 100, 48, 2, 3000, 1, 2}},
        {"box in it", &segunda, 0, {120, 170, 120, 192, 4, 2000, 2, 3}},
        {"back", nullptr, -1, {100, 300, 100, 48, 2, 3000, 1, 3}},
        {"forward", nullptr, 1, {120, 170, 120, 192, 4, 2000, 2, 3}},
        {"mirrored box", &alreves, 0, {121, 130, 121, 9600.0F / 9, 8, 3000, 3, 4}},
        {"back to 2", nullptr, -1, {120, 170, 120, 192, 4, 2000, 2, 4}},
        {"back to 1", nullptr, -1, {100, 300, 100, 48, 2, 3000, 1, 4}},
        {"back to 0", nullptr, -1, {1, 960, 1, 10.0104275F, 1, 2500, 0, 4}},
        {"first box again", &primera, 0, {101, 301, 101, 48, 2, 3000, 4, 5}},
        {"back to the older branch", nullptr, -1, {121, 130, 121, 9600.0F / 9, 8, 3000, 3, 5}},
    };
    for (const auto& p : pasos) {
        const auto t =
            p.caja ? v.Caja((*p.caja)[0], (*p.caja)[1], (*p.caja)[2], (*p.caja)[3]) : v.Pasa(p.paso);
        Comprueba(v, t, p.vista, p.acto);
    }
    EXPECT_TRUE(v.z.HayAdelante());
    const float columnas[][10] = {
        {0, 5000, 200, 9800, 1, 0, 5000, 10000, 10, 2500},
        {1000, 3500, 1200, 3200, 2, 0, 5000, 10000, 10, 3000},
        {2000, 4500, 1160, 3560, 4, 100, 5000, 10000, 48, 2000},
        {500, 3000, 200, 2120, 8, 120, 5000, 10000, 192, 3000},
        {1000, 3500, 1200, 3200, 2, 1, 5000, 10000, 10.0104275F, 3000},
    };
    for (int c = 1; c <= 5; ++c) {
        const NivelCaja& n = v.z.Pila(c);
        const float filas[] = {
            n.CajaY1, n.CajaY2, n.CajaX1,  n.CajaX2, n.FactorZoomY, static_cast<float>(n.MuestraInicial),
            n.Alto,   n.Ancho,  n.EscalaX, n.OrigenY};
        for (int f = 0; f < 10; ++f)
            EXPECT_FLOAT_EQ(filas[f], columnas[c - 1][f]) << "column " << c << " row " << f;
    }
}

TEST(ZoomCaja, EdgesRoundAndTheEndIsLimitedOnlyBeyondTheRecord)
{
    const struct {
        const char* caja;
        float x1, x2;
        int s, e;
        float escala;
    } casos[] = {
        {"right to left", 3200, 1200, 100, 300, 48},
        {"halves to even", 1205, 1215, 100, 102, 4800},
        {"less than a sample wide", 1204, 1206, 100, 101, 9600},
        {"left edge of the plot", 0, 3200, 1, 300, 9600.0F / 299},
        {"exactly to the last sample", 5000, 9800, 480, 960, 20},
        {"to the last sample by rounding", 5000, 9804, 480, 960, 20},
        {"beyond the last sample", 5000, 9806, 480, 959, 9600.0F / 479},
        {"wholly beyond it", 9850, 10000, 965, 959, 1600},
    };
    for (const auto& c : casos) {
        for (const bool arriba : {false, true}) {
            float factor = 0.0F;
            Ventana v(960, factor);
            const float y1 = arriba ? 3500.0F : 1000.0F;
            const auto t = v.Caja(c.x1, y1, c.x2, 4500.0F - y1);
            Comprueba(v, t, {c.s, c.e, c.s, c.escala, 2, 3000, 1, 2}, c.caja);
        }
    }
    float factor = 0.0F;
    Ventana v(960, factor);
    v.Caja(1200, 1000, 3200, 3500);
    v.Pasa(-1);
    const auto t = v.Caja(200, 0, 5005, 5000);  // from the left edge after a return: sample 1 goes
    Comprueba(v, t, {2, 481, 2, 9600.0F / 479, 1, 2500, 2, 3}, "left edge after a return");
}

TEST(ZoomCaja, ANarrowBoxLeavesTheFirstSampleMovedAndNothingElse)
{
    const struct {
        float x1, x2, y2;
        int inicial;
    } casos[] = {
        {1206, 1214, 3500, 101},  // 0.8 samples, both edges round to one
        {1200, 1200, 1000, 100},  // a click: the width is looked at before the height
        {0, 204, 3500, 1},
        {9790, 10000, 3500, 959},  // narrow only by the limit at the end
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.x1);
        float factor = 0.0F;
        Ventana v(960, factor);
        EXPECT_FALSE(v.Caja(c.x1, 1000, c.x2, c.y2));
        EXPECT_EQ(v.estrecha, Estrecha::CajaNueva);
        EXPECT_EQ(v.z.MuestraInicial, c.inicial);
        EXPECT_EQ(v.z.EscalaX, 10.0F);
        EXPECT_EQ(v.z.OrigenY, 2500.0F);
        EXPECT_EQ(factor, 1.0F);
        EXPECT_EQ(v.z.NivelZoom, 0);
        EXPECT_EQ(v.z.NumNiveles, 1);
    }
    float factor = 0.0F;
    Ventana v(960, factor);
    v.Caja(1200, 1000, 1200, 3500);
    const auto t = v.Caja(700, 1000, 1200, 3500);  // the next box counts from where the first one left it
    Comprueba(v, t, {150, 200, 150, 192, 2, 3000, 1, 2}, "after a narrow box");
    EXPECT_EQ(v.z.Pila(2).MuestraInicial, 100);
}

TEST(ZoomCaja, ARecordOfOneSampleIsNarrowInEveryView)
{
    float factor = 0.0F;
    Ventana v(1, factor);
    EXPECT_EQ(v.z.EscalaX, 9600.0F);
    EXPECT_FALSE(v.Caja(200, 0, 9800, 5000));
    EXPECT_EQ(v.estrecha, Estrecha::CajaNueva);
    EXPECT_FALSE(v.Pasa(0));
    EXPECT_EQ(v.estrecha, Estrecha::Reproducida);
    EXPECT_FALSE(Reproduce(v.z.Pila(1), 1));
}

TEST(ZoomCaja, NumbersBeyondTheirRangeFailInsteadOfBeingClamped)
{
    const struct {
        const char* acto;
        std::int16_t ultima;
        std::array<float, 4> antes;  // an earlier box, or none where its width is 0
        std::array<float, 4> caja;
        int error;
    } casos[] = {
        {"no height", 960, {}, {1200, 2000, 3200, 2000}, 11},
        {"a click beyond the last sample", 960, {}, {9900, 2000, 9900, 2000}, 11},
        {"the right edge still fits", 32098, {}, {1000, 0, 10000, 5000}, 0},
        {"the right edge is over", 32099, {}, {1000, 0, 10000, 5000}, 6},
        {"so it is as the first corner", 32099, {}, {10000, 0, 1000, 5000}, 6},
        {"the end of a zoomed view fits", 32767, {5100, 0, 9800, 5000}, {1000, 0, 9800, 5000}, 0},
        {"beyond it the sum is over", 32767, {5100, 0, 9800, 5000}, {1000, 0, 10000, 5000}, 6},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.acto);
        float factor = 0.0F;
        Ventana v(c.ultima, factor);
        if (c.antes[2] > 0.0F) {
            ASSERT_TRUE(v.Caja(c.antes[0], c.antes[1], c.antes[2], c.antes[3]));
        }
        EXPECT_EQ(NumeroDeError([&] { v.Caja(c.caja[0], c.caja[1], c.caja[2], c.caja[3]); }), c.error);
    }
    NivelCaja nivel{0, 5000, 200, 9800, 1, 32000, 5000, 10000, 12, 2500};
    EXPECT_EQ(NumeroDeError([&] { (void)Reproduce(nivel, 32767); }), error::kDesbordamiento);
    nivel.EscalaX = 0.1F;
    EXPECT_EQ(NumeroDeError([&] { (void)Bordes(nivel); }), error::kDesbordamiento);
}

TEST(ZoomCaja, TheThirtiethZoomIsStoredAndTheNextOneFailsAfterItsDrawing)
{
    float factor = 0.0F;
    Ventana v(960, factor);
    std::optional<Tramo> t;
    for (int k = 1; k <= 30; ++k) {
        t = v.Caja(200, 0, 9800, 5000);
        ASSERT_TRUE(t) << k;
    }
    EXPECT_EQ(t->s, 30);  // each box from the left edge of a zoomed view drops a sample
    EXPECT_EQ(t->e, 960);
    EXPECT_EQ(v.z.NivelZoom, 30);
    EXPECT_EQ(v.z.NumNiveles, 31);
    EXPECT_EQ(v.z.Pila(31).MuestraInicial, 29);

    v.z.ZoomPendiente = true;
    EXPECT_TRUE(v.z.Calcula(10000.0F, 5000.0F, 960, factor, v.estrecha));
    EXPECT_EQ(NumeroDeError([&] { v.z.Guarda(10000.0F, 5000.0F, factor); }), error::kSubindice);
}

TEST(ZoomCaja, WindowsShareTheVerticalFactorButNotTheOrigin)
{
    float factor = 0.0F;
    Ventana a(960, factor), b(960, factor);
    a.Caja(1200, 1000, 3200, 3500);
    auto t = b.Caja(1200, 1000, 3200, 3500);
    Comprueba(b, t, {100, 300, 100, 48, 4, 3000, 1, 2}, "on top of the other window's factor");
    EXPECT_EQ(b.z.Pila(2).FactorZoomY, 4.0F);
    t = a.Pasa(-1);
    Comprueba(a, t, {1, 960, 1, 9600.0F / 959, 1, 2500, 0, 2}, "a step writes the shared factor");
    t = b.Caja(200, 0, 9800, 2500);
    Comprueba(b, t, {101, 300, 101, 9600.0F / 199, 2, 6000, 2, 3}, "the next zoom starts from it");
    t = b.Pasa(-1);
    Comprueba(b, t, {100, 300, 100, 48, 4, 3000, 1, 3}, "a replay restores its own");
}

}  // namespace
}  // namespace veldix
