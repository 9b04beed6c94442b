#include "analysis/modDFT.h"

#include <bit>
#include <cmath>
#include <functional>
#include <numbers>

#include "support/soporte.h"

namespace veldix {
namespace {

constexpr double kDosPi = 2.0 * std::numbers::pi;

/// A record of `canales` channels with x(s, c) for samples s, channels c from 1.
RecordStore Registro(int muestras, int canales, int frecuencia, const std::function<double(int, int)>& x)
{
    RecordStore s;
    s.FrecLinea = 50;
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    s.FrecMuestras(1) = static_cast<std::int16_t>(frecuencia);
    s.Skew = Tabla1<float>(canales);
    s.Muestras = Tabla2<float>(muestras, canales);
    for (int i = 1; i <= muestras; ++i)
        for (int c = 1; c <= canales; ++c)
            s.Muestras(i, c) = static_cast<float>(x(i, c));
    return s;
}

std::function<double(int, int)> Seno(double eficaz, double frecuencia, double grados)
{
    return [=](int s, int) {
        return eficaz * std::numbers::sqrt2 *
               std::sin(kDosPi * frecuencia * (s - 1) / 1000.0 + grados * kDosPi / 360.0);
    };
}

void EsFasor(const RecordStore& s, int fila, int c, double x, double y, double tolerancia)
{
    EXPECT_NEAR(s.FasoresDFT(fila, 2 * c - 1), x, tolerancia) << "row " << fila;
    EXPECT_NEAR(s.FasoresDFT(fila, 2 * c), y, tolerancia) << "row " << fila;
}

/// RMS 100 for a cycle and 200 for the next, 20 samples a cycle, worked out by a separate program.
TEST(ModDFT, WindowsAreOffByARowOrAverageTheWrongCycle)
{
    prueba::RespondeCajas cajas;
    RecordStore s = Registro(40, 1, 1000, [](int i, int) {
        return (i <= 20 ? 100.0 : 200.0) * std::numbers::sqrt2 * std::sin(kDosPi * (i - 1) / 20.0);
    });
    CalculaDFT(s);
    EXPECT_EQ(s.NumMuestrasDFT, 40);
    EXPECT_EQ(s.NumFilasDFT, 140);
    EXPECT_EQ(s.NumCanalesDFT, 1);
    ASSERT_EQ(s.FasoresDFT.UBound(1), 140);
    const struct {
        int fila;
        double x, y;
    } filas[] = {{1, 0, 0},
                 {20, 0, 0},
                 {21, 0, 0},
                 {22, 1.81636, 2.50000},
                 {40, 95.1058, -30.9014},
                 {100, 95.1058, -30.9014},
                 {121, 95.1058, -30.9014},
                 {125, 118.8822, -22.4465},
                 {130, 142.6586, -46.3522},
                 {139, 190.2115, -58.7127},
                 {140, 190.2115, -61.8029}};
    for (const auto& f : filas)
        EsFasor(s, f.fila, 1, f.x, f.y, 1e-3);
    for (int i = 41; i <= 120; ++i)
        EXPECT_EQ(s.FasoresDFT(i, 1), s.FasoresDFT(40, 1)) << "the padding does not stand still at " << i;
    EXPECT_NE(s.FasoresDFT(122, 1), s.FasoresDFT(121, 1)) << "the second cycle does not show";
}

/// X = A cos(psi), Y = A sin(psi) for an RMS value A, psi counted from one sample before the first.
TEST(ModDFT, ClosedFormsOfSteadySignals)
{
    prueba::RespondeCajas cajas;
    constexpr double k18 = kDosPi / 20.0;
    for (const double grados : {0.0, 35.0, 120.0, 250.0}) {
        RecordStore s = Registro(60, 2, 1000, Seno(70.0, 50.0, grados));
        s.Skew(2) = 1000.0F;  // microseconds, a twentieth of the cycle
        CalculaDFT(s);
        const double psi = grados * kDosPi / 360.0 - k18;
        EsFasor(s, 160, 1, 70.0 * std::cos(psi), 70.0 * std::sin(psi), 70.0 * 1e-5);
        EsFasor(s, 160, 2, 70.0 * std::cos(psi - k18), 70.0 * std::sin(psi - k18), 70.0 * 1e-5);
    }
    RecordStore constante = Registro(60, 1, 1000, [](int, int) { return 500.0; });
    CalculaDFT(constante);
    EsFasor(constante, 160, 1, 0.0, 0.0, 500.0 * 1e-5);
    RecordStore armonico = Registro(60, 1, 1000, Seno(100.0, 150.0, 20.0));
    CalculaDFT(armonico);
    EsFasor(armonico, 160, 1, 0.0, 0.0, 100.0 * 1e-5);

    // Half the frequency, one cycle of the reference: the sum of the products, in closed form by the sums of
    // cosines of both frequencies' difference and sum.
    RecordStore mitad = Registro(60, 1, 1000, Seno(100.0, 25.0, 0.0));
    CalculaDFT(mitad);
    double x = 0.0, y = 0.0;
    for (int i = 41; i <= 60; ++i) {
        const double v = 200.0 / 20.0 * std::sin(k18 * (i - 1) / 2.0);
        x += v * std::sin(k18 * i);
        y += v * std::cos(k18 * i);
    }
    EsFasor(mitad, 160, 1, x, y, 100.0 * 1e-5);
}

/// The recurrence as it is defined, in float32 with every intermediate stored, on the padded samples.
TEST(ModDFT, BitsDifferFromTheScalarRecurrence)
{
    prueba::RespondeCajas cajas;
    constexpr int kN = 12, kS = 400, kC = 7;
    RecordStore s = Registro(kS, kC, 50 * kN, [](int i, int c) {
        return std::sin(i * 0.37 * c) * 1000.0 / c + (i * 7919 % 101) * 0.013;
    });
    for (int c = 1; c <= kC; ++c)
        s.Skew(c) = static_cast<float>(17.5 * c);
    CalculaDFT(s);
    ASSERT_EQ(s.FasoresDFT.UBound(1), 5 * kN + kS);
    for (int c = 1; c <= kC; ++c) {
        float seno[kN + 1], coseno[kN + 1], x = 0.0F, y = 0.0F;
        for (int k = 1; k <= kN; ++k) {
            const auto grados =
                static_cast<float>(2.0 * s.Skew(c) * 50.0 * 0.000001 * 180.0 + 360.0 / kN * k);
            const double radianes = grados * 3.14159 / 180.0;
            seno[k] = static_cast<float>(std::sqrt(2.0) * std::sin(radianes) / kN);
            coseno[k] = static_cast<float>(std::sqrt(2.0) * std::cos(radianes) / kN);
        }
        const auto extendida = [&](int i) {
            if (i <= kN) return 0.0F;
            return s.Muestras(i > 5 * kN ? i - 5 * kN : (i - 1) % kN + 1, c);
        };
        for (int i = kN + 1; i <= 5 * kN + kS; ++i) {
            volatile float d = extendida(i) - extendida(i - kN);
            volatile float ps = d * seno[(i - 1) % kN + 1], pc = d * coseno[(i - 1) % kN + 1];
            x += ps;
            y += pc;
            ASSERT_EQ(std::bit_cast<std::uint32_t>(s.FasoresDFT(i, 2 * c - 1)),
                      std::bit_cast<std::uint32_t>(x));
            ASSERT_EQ(std::bit_cast<std::uint32_t>(s.FasoresDFT(i, 2 * c)), std::bit_cast<std::uint32_t>(y));
        }
    }
}

TEST(ModDFT, CycleOfARateIsRoundedAway)
{
    const struct {
        int frecuencia, linea, ciclo;
    } casos[] = {{990, 60, 16}, {1050, 60, 18}, {1000, 50, 20}, {1600, 60, 27}, {50, 50, 1}, {25, 50, 0}};
    for (const auto& k : casos) {
        RecordStore s = Registro(1, 1, k.frecuencia, [](int, int) { return 0.0; });
        s.FrecLinea = static_cast<std::int16_t>(k.linea);
        EXPECT_EQ(MuestrasCiclo(s), k.ciclo) << k.frecuencia << " / " << k.linea;
        s.FrecMuestreo = s.FrecMuestras(1);
        s.FrecMuestras(1) = 0;
        EXPECT_EQ(MuestrasCiclo(s), k.ciclo) << "rate of the time stamps";
        s.FrecLinea = 0;
        EXPECT_EQ(prueba::NumeroDeError([&] { MuestrasCiclo(s); }), 11);
    }
    EXPECT_EQ(IndiceCiclo(20, 20) * 100 + IndiceCiclo(21, 20), 2001);
    prueba::RespondeCajas cajas;
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    EXPECT_EQ(IndiceCiclo(5, 0), 0);
}

/// Each run starts from the phasors of a record before it, which a failure may not leave behind.
TEST(ModDFT, LimitsAreOffByOneOrAFailureKeepsAnOldResult)
{
    const auto nada = [](int, int) { return 1.0; };
    const struct {
        const char* caso;
        int muestras, canales, frecuencia;
        const char* caja;  ///< null where it runs
        float valor = 1.0F;
    } casos[] = {
        {"most rows", 32667, 1, 1000, nullptr},
        {"a row more", 32668, 1, 1000, "Error 6: Overflow"},
        {"five cycles alone", 1, 1, 32767, "Error 9: Subscript out of range"},
        {"one sample a cycle", 3, 1, 50, nullptr},
        {"a cycle", 20, 1, 1000, nullptr},
        {"shorter than a cycle", 19, 1, 1000, "Error 9: Subscript out of range"},
        {"most channels", 20, 255, 1000, nullptr},
        {"a channel more", 20, 256, 1000, "Error 6: Overflow"},
        {"out of float32", 40, 1, 1000, "Error 6: Overflow", 3e38F},
    };
    for (const auto& k : casos) {
        SCOPED_TRACE(k.caso);
        prueba::RespondeCajas cajas;
        RecordStore s = Registro(k.muestras, k.canales, k.frecuencia, nada);
        s.FasoresDFT = Tabla2<float>(3, 2);
        for (int i = 1; k.valor != 1.0F && i <= k.muestras; ++i)
            s.Muestras(i, 1) = i <= 20 ? k.valor : -k.valor;
        if (k.caja) cajas.Espera(k.caja, Icono::Critico);
        CalculaDFT(s);
        EXPECT_EQ(cajas.Pendientes(), 0U);
        EXPECT_EQ(s.FasoresDFT.Filas(), k.caja ? 0 : 5 * MuestrasCiclo(s) + k.muestras);
    }
    prueba::RespondeCajas cajas;
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    RecordStore vacio = Registro(20, 1, 1000, nada);
    vacio.Muestras = {};
    CalculaDFT(vacio);
}

}  // namespace
}  // namespace veldix
