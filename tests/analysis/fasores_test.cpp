#include "analysis/fasores.h"

#include <cmath>
#include <complex>

#include "analysis/diagrama.h"
#include "analysis/grupos.h"
#include "platform/textos.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;
using Complejo = std::complex<double>;

/// A store with one row of phasors at row `fila` of `filas`, two three-phase groups over channels 1 to 6, and
/// names in an order of their own.
RecordStore Con(const std::vector<Complejo>& fasores, int filas = 1, int fila = 1)
{
    RecordStore s;
    const int canales = static_cast<int>(fasores.size());
    s.FasoresDFT = Tabla2<float>(filas, 2 * canales);
    s.Canales = Tabla1<FilaCanal>(canales + 1);
    s.Canales(1) = {"1", "otra", "", "V"};  // the last row that says 1 counts
    for (int c = 1; c <= canales; ++c) {
        const Complejo f = fasores[static_cast<std::size_t>(c - 1)];
        s.FasoresDFT(fila, 2 * c - 1) = static_cast<float>(f.real());
        s.FasoresDFT(fila, 2 * c) = static_cast<float>(f.imag());
        const std::string numero = std::to_string(c);
        s.Canales(canales + 2 - c) = {numero, "I" + numero, "", "kA"};
    }
    s.NumCanalAnalog = static_cast<std::int16_t>(canales + 1);
    s.NumTrifasic = 2;
    s.Trifasic = Tabla1<FilaTrifasic>(2);
    s.Trifasic(1) = {{1, 2, 3}, "uno", "1"};
    s.Trifasic(2) = {{4, 5, 6}, "dos", "1"};
    return s;
}

Complejo Polar(double modulo, double grados)
{
    return std::polar(modulo, grados * std::acos(-1.0) / 180.0);
}

TEST(Fasores, AngleRuleOrMagnitudeIsAnother)
{
    const struct {
        float x, y, angulo, modulo;
    } casos[] = {
        {0.0F, 5.0F, -90.0F, 5.0F},       {1e-3F, 5.0F, 89.9886F, 5.0F},    {0.0F, -5.0F, 90.0F, 5.0F},
        {1e-3F, -5.0F, -89.9886F, 5.0F},  {0.0F, 0.0F, 90.0F, 0.0F},        {0.0F, -0.0F, 90.0F, 0.0F},
        {5.0F, 0.0F, 180.0F, 5.0F},       {5.0F, 1e-3F, 0.01146F, 5.0F},    {-5.0F, 0.0F, 0.0F, 5.0F},
        {-5.0F, 1e-3F, 179.9885F, 5.0F},  {-3.0F, -4.0F, 233.13015F, 5.0F}, {3.0F, -4.0F, -53.13015F, 5.0F},
        {-1e-3F, -5.0F, 269.9886F, 5.0F}, {3e30F, 4e30F, 53.13015F, 5e30F}};
    for (const auto& k : casos) {
        // 3.14159 for pi makes every angle 1.0000008 of the true one.
        EXPECT_NEAR(AnguloFasor(k.x, k.y), k.angulo, 2e-4F) << k.x << ", " << k.y;
        EXPECT_NEAR(ModuloFasor(k.x, k.y), k.modulo, 1e-6F * k.modulo);
    }
    EXPECT_EQ(AnguloFasor(1.0F, 1.0F), static_cast<float>(std::atan(1.0) * 180.0 / 3.14159));
    EXPECT_EQ(NumeroDeError([] { ModuloFasor(3e38F, 3e38F); }), 6);
}

TEST(Fasores, TablesHaveAnotherColumnOrMissAnOverflow)
{
    RecordStore s = Con({{3.0, 4.0}, {-8.0, 6.0}}, 2, 2);
    Tabla2<float> modulos, angulos, cartesianas;
    CalculaModulos(s.FasoresDFT, modulos, angulos);
    EXPECT_EQ(modulos(2, 1) + modulos(2, 2) + modulos(2, 3) + modulos(2, 4), 15.0F);
    EXPECT_EQ(angulos(1, 1) + angulos(1, 2), 180.0F);
    EXPECT_EQ(modulos.UBound(2), 4);
    CalculaCartesianas(s.FasoresDFT, 10.0F, 1.25F, cartesianas);
    EXPECT_EQ(cartesianas(2, 3), -100.0F);
    EXPECT_EQ(NumeroDeError([&] { CalculaCartesianas(s.FasoresDFT, 1e30F, 1e30F, cartesianas); }), 6);
    s.FasoresDFT(1, 1) = s.FasoresDFT(1, 2) = 3e38F;
    EXPECT_EQ(NumeroDeError([&] { CalculaModulos(s.FasoresDFT, modulos, angulos); }), 6);
    EXPECT_EQ(NumeroDeError([&] { CalculaModulos({}, modulos, angulos); }), 9);
}

/// Against (Va + a Vb + a2 Vc) / 3 and its kin with a = -0.5 + j 0.866 in double.
TEST(Fasores, SequencesUseAnotherOperatorOrOrderOfPhases)
{
    const Complejo a(-0.5, 0.866), a2(-0.5, -0.866);
    const std::vector<Complejo> sistemas[] = {
        {Polar(100, 10), Polar(100, -110), Polar(100, 130)},
        {Polar(100, 10), Polar(100, 130), Polar(100, -110)},
        {Polar(7, 30), Polar(7, 30), Polar(7, 30)},
        {Polar(2633, -60), Polar(251, 228), Polar(251, 108)},
    };
    for (const auto& uno : sistemas)
        for (const auto& dos : sistemas) {
            std::vector<Complejo> v = dos;  // the second group comes first in the record
            v.insert(v.end(), uno.begin(), uno.end());
            RecordStore s = Con(v);
            s.Trifasic(1) = {{4, 5, 6}, "", "1"};
            s.Trifasic(2) = {{3, 1, 2}, "", "1"};
            s.GruposSecuencias = CuentaMarcas({true, true});
            CalculaSecuencias(s);
            ASSERT_EQ(s.Secuencias.UBound(2), 12);
            const Complejo fases[2][3] = {{uno[0], uno[1], uno[2]}, {dos[2], dos[0], dos[1]}};
            for (int g = 0; g < 2; ++g) {
                const auto& f = fases[g];
                const Complejo partes[] = {(f[0] + a * f[1] + a2 * f[2]) / 3.0,
                                           (f[0] + a2 * f[1] + a * f[2]) / 3.0, (f[0] + f[1] + f[2]) / 3.0};
                for (int p = 0; p < 3; ++p) {
                    EXPECT_NEAR(s.Secuencias(1, 6 * g + 2 * p + 1), partes[p].real(), 2e-4) << g << p;
                    EXPECT_NEAR(s.Secuencias(1, 6 * g + 2 * p + 2), partes[p].imag(), 2e-4) << g << p;
                }
            }
        }
}

TEST(Fasores, SequencesOfAGroupThatIsNoneAreComputed)
{
    RecordStore s = Con({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    s.GruposSecuencias = CuentaMarcas({false, true});
    s.Trifasic(2).Fase(3) = 7;
    EXPECT_EQ(NumeroDeError([&] { CalculaSecuencias(s); }), 9);
    s.Trifasic(2).Fase(3) = 0;
    EXPECT_EQ(NumeroDeError([&] { CalculaSecuencias(s); }), 9);
    s.GruposSecuencias = CuentaMarcas({true, false});
    CalculaSecuencias(s);
    EXPECT_EQ(s.Secuencias.UBound(2), 6);
    s.GruposSecuencias = CuentaMarcas({false, false});
    CalculaSecuencias(s);
    EXPECT_TRUE(s.Secuencias.Vacia()) << "those of the groups before";
}

TEST(Diagrama, ScaleForgetsChannelOneOrTakesTheFactor)
{
    RecordStore s = Con({900.0, 20.0, 30.0, 1.0, 2.0, 50.0});
    s.GruposFases = CuentaMarcas({false, true});
    s.GruposSecuencias = CuentaMarcas({false, true});
    s.Trifasic(2).Factor = "100";
    Diagrama d(s, s.FasoresDFT, 1);
    EXPECT_EQ(MaxModuloFases(s), 900.0F);
    d.MaxModulo = MaxModuloFases(s);
    d.Ajusta(12000.0, 9000.0);
    EXPECT_EQ(d.Escala, 5.0F);
    for (const int paso : {1, 1, -1, -1, -1})
        d.CambiaZoom(paso);
    EXPECT_EQ(d.NivelZoom, -1);
    EXPECT_EQ(d.Zoom, 0.8F);
    EXPECT_EQ(d.Cartesianas(1, 11), 200.0F);
    d.Ajusta(6000.0, 9000.0);
    EXPECT_EQ(d.Cartesianas(1, 11), static_cast<float>(50.0 * (3000.0F / 900.0F) * 0.8F))
        << "the zoom was lost";
    CalculaSecuencias(s);
    const Diagrama secuencias(s, s.Secuencias, 1);
    EXPECT_NEAR(MaxModuloSecuencias(s), 53.0 / 3.0, 0.01);
    RecordStore nulo = Con({0.0, 0.0, 0.0});
    Diagrama quieto(nulo, nulo.FasoresDFT, 1);
    quieto.Ajusta(100.0, 100.0);
    EXPECT_EQ(quieto.Escala, 0.0F);
}

/// Row 100 of five cycles of 20: the bar's first.
TEST(Diagrama, LinesOrTextsAreOfAnotherChannelFactorOrSample)
{
    const prueba::Separa coma(",", "");
    RecordStore s = Con({Complejo(60, 80), 0.5, 3.0, Complejo(-3, 4), 0.0, Complejo(0, 2)}, 200, 101);
    s.Trifasic(1).Factor = "-1,5";
    s.GruposFases = CuentaMarcas({true, true});
    Diagrama d(s, s.FasoresDFT, 20);
    d.MaxModulo = 100.0F;
    d.Ajusta(20000.0, 10000.0);
    CuadroDiagrama c = PintaFases(s, d, 101);
    EXPECT_EQ(c.numero, Textos(266) + "2");
    EXPECT_EQ(c.textos[0], "I1: 100, @ 53,13kA");
    EXPECT_EQ(c.textos[1], "I2: ,5 @ 180,kA");
    EXPECT_EQ(c.textos[3], "I4: 5, @ 126,87kA");
    EXPECT_EQ(c.textos[4], "I5: , @ 90,kA");
    EXPECT_EQ(c.lineas[0].x2, 10000.0 - 1.5 * 3000.0);
    EXPECT_EQ(c.lineas[0].y2, 5000.0 + 1.5 * 4000.0);
    EXPECT_EQ(c.lineas[5].y2, 4900.0);
    EXPECT_TRUE(c.lineas[5].visible);

    s.GruposSecuencias = CuentaMarcas({false, true});
    CalculaSecuencias(s);
    const CuadroDiagrama q = [&] {
        Diagrama e(s, s.Secuencias, 20);
        e.MaxModulo = 100.0F;
        e.Ajusta(20000.0, 10000.0);
        return PintaSecuencias(s, e, 101);
    }();
    EXPECT_EQ(q.textos[0].substr(0, 4) + q.textos[1].substr(0, 4) + q.textos[2],
              "I41:I42:I40: 2,236 @ 116,56kA")
        << "116.565051 by the full pi, 116.564997 by 3.14159";
    EXPECT_TRUE(q.lineas[2].visible && !q.lineas[3].visible && q.textos[3].empty());
    EXPECT_NEAR(q.lineas[2].x2, 10000.0 - 50.0, 1e-2);
    EXPECT_NEAR(q.lineas[2].y2, 5000.0 - 100.0, 1e-2);
}

TEST(Diagrama, OddTemplatesDrawInsteadOfRaising)
{
    const prueba::Separa coma(",", "");
    const struct {
        const char* factor;
        int fase, error;
    } casos[] = {{"1", 1, 0},     {"", 1, 13},     {"1%2", 1, 13},   {"0", 1, 0}, {"1e39", 1, 6},
                 {"98,25", 1, 0}, {"98,31", 1, 6}, {"-98,31", 1, 6}, {"1", 4, 9}, {"1", 0, 9}};
    for (const auto& k : casos) {
        RecordStore s = Con({100.0, 0.0, 0.0});
        s.Trifasic(1).Factor = k.factor;
        s.Trifasic(1).Fase(2) = static_cast<std::int16_t>(k.fase);
        s.GruposFases = CuentaMarcas({true, false});
        Diagrama d(s, s.FasoresDFT, 1);
        d.MaxModulo = 100.0F;
        d.Ajusta(10000.0,
                 10000.0);  // an end lies 5000 a factor from the centre at 5000: 491505 is factor 97.301
        if (k.error == 6 || k.error == 0) d.CentroX = 5.0F;
        EXPECT_EQ(NumeroDeError([&] { PintaFases(s, d, 1); }), k.error) << k.factor << " phase " << k.fase;
    }
    RecordStore s = Con({1.0, 2.0, 3.0});
    s.Canales(2).Numero = "03";
    EXPECT_EQ(NumeroDeError([&] { FilaDeCanal(s, 3); }), 9) << "a text, not a number";
}

}  // namespace
}  // namespace veldix
