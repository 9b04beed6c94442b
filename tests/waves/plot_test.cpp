#include "waves/plot.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "platform/ranuras.h"
#include "support/soporte.h"
#include "waves/colores.h"
#include "waves/lugares_onda.h"

namespace veldix {
namespace {

int NumeroDeError(const std::function<void()>& f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

TEST(Colores, ACurveNeverTakesACursorColour)
{
    RecordStore s;
    ReiniciaRegistro(s);
    const struct {
        int canal, indice, color;
        std::uint32_t rgb;
    } casos[] = {
        {1, 1, 9, 0x0000FF},  {2, 2, 10, 0x00FF00}, {3, 3, 12, 0xFF0000},  {4, 9, 1, 0x000080},
        {5, 14, 5, 0x800080}, {6, 6, 13, 0xFF00FF}, {7, 7, 15, 0xFFFFFF},  {8, 8, 0, 0x000000},
        {9, 1, 9, 0x0000FF},  {12, 9, 1, 0x000080}, {21, 14, 5, 0x800080}, {800, 8, 0, 0x000000},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.canal);
        EXPECT_EQ(ColorCanal(c.canal), c.indice);
        EXPECT_EQ(ColorPaleta(c.color), c.rgb);
        EXPECT_EQ(ColorCurva(s.Colores, c.canal), c.rgb);
    }
    EXPECT_EQ(ColorPaleta(14), kCursorAmarillo);
    EXPECT_EQ(ColorPaleta(11), kCursorCian);
    EXPECT_EQ(ColorPaleta(8), kFondoPlot);
    EXPECT_EQ(ColorPaleta(7), 0xC0C0C0U);
    for (const int fuera : {-1, 16})
        EXPECT_EQ(NumeroDeError([&] { ColorPaleta(fuera); }), error::kSubindice);
    EXPECT_EQ(NumeroDeError([&] { ColorCurva(s.Colores, -1); }), error::kSubindice);
}

TEST(Escalas, TheLargerMagnitudeFillsThePlot)
{
    const struct {
        float alto, minimo, maximo, escala;
    } casos[] = {
        {5000, 0, 100, 24},  {5000, -100, 0, 24}, {5000, -400, 100, 6},
        {5000, -50, 400, 6}, {5000, 0, 0, 0.96F}, {1234, 0, 0, 0.96F},
    };
    for (const auto& c : casos)
        EXPECT_FLOAT_EQ(EscalaVertical(c.alto, c.minimo, c.maximo), c.escala) << c.alto << ' ' << c.minimo;
    EXPECT_EQ(EscalaHorizontal(10000, 960), 10.0F);
    EXPECT_EQ(NumeroDeError([] { EscalaHorizontal(10000, 0); }), error::kDivisionPorCero);
}

TEST(Puntos, StartAtTheMarginAndGoUpWithTheValue)
{
    Tabla2<float> muestras(300, 2);
    muestras(1, 2) = 50, muestras(100, 2) = -100, muestras(101, 2) = 25, muestras(300, 2) = 10;
    const struct {
        int s, e;
        EscalaPlot escala;
        double primeraY, ultimaX, ultimaY;
    } casos[] = {
        {1, 300, {10, 200, 2500, 24, 1}, 1300, 3190, 2260},
        {100, 300, {48, 200, 3000, 24, 2}, 7800, 9800, 2520},
        {100, 101, {9600, 200, -1000, 24, 4}, 8600, 9800, -3400},
        {300, 300, {10, 200, 2500, 24, 1}, 2260, 200, 2260},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.s);
        const PuntosCurva p = CalculaPuntos(muestras, 2, c.s, c.e, c.escala);
        EXPECT_EQ(p.primera, c.s);
        ASSERT_EQ(p.PuntosX.size(), static_cast<std::size_t>(c.e - c.s + 1));
        ASSERT_EQ(p.PuntosY.size(), p.PuntosX.size());
        EXPECT_DOUBLE_EQ(p.PuntosX.front(), 200);
        EXPECT_DOUBLE_EQ(p.PuntosY.front(), c.primeraY);
        EXPECT_DOUBLE_EQ(p.PuntosX.back(), c.ultimaX);
        EXPECT_DOUBLE_EQ(p.PuntosY.back(), c.ultimaY);
    }
    const EscalaPlot e{10, 200, 2500, 24, 1};
    EXPECT_TRUE(CalculaPuntos(muestras, 2, 299, 298, e).PuntosX.empty());
    for (const auto& [columna, s, u] : {std::array{3, 1, 300}, {0, 1, 300}, {2, 0, 300}, {2, 1, 301}})
        EXPECT_EQ(NumeroDeError([&, c = columna, i = s, f = u] { CalculaPuntos(muestras, c, i, f, e); }),
                  error::kSubindice);
}

TEST(Cursores, StandOneSampleToTheRightOnAFreshPlotAlone)
{
    EXPECT_NEAR(LugarCursor(50, 0, 10, 200), 700, 1e-3);  // its sample's point is at 690
    EXPECT_NEAR(LugarCursor(50, 1, 9600.0F / 959, 200), 690.511, 1e-3);
    EXPECT_NEAR(LugarCursor(100, 100, 48, 200), 200, 1e-3);
}

TEST(Cursores, TheLargeStepIsACycleAndTheColumnANumber)
{
    RecordStore s;
    EXPECT_EQ(NumeroDeError([&] { PasoDeCursor(s); }), error::kSubindice);
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    const struct {
        std::int16_t declarada, medida, linea;
        int paso;
    } casos[] = {{1600, 7, 50, 32}, {0, 1200, 60, 20}, {125, 0, 50, 2},
                 {75, 0, 50, 2},    {20, 0, 50, 1},    {25, 0, 50, 1}};
    for (const auto& c : casos) {
        s.FrecMuestras(1) = c.declarada, s.FrecMuestreo = c.medida, s.FrecLinea = c.linea;
        EXPECT_EQ(PasoDeCursor(s), c.paso) << c.declarada;
    }
    s.FrecLinea = 0;
    EXPECT_EQ(NumeroDeError([&] { PasoDeCursor(s); }), error::kDivisionPorCero);

    s.Canales = Tabla1<FilaCanal>(2);
    s.Canales(1).Numero = " 7 ", s.Canales(2).Numero = "siete";
    EXPECT_EQ(ColumnaDeCanal(s, 1), 7);
    EXPECT_EQ(NumeroDeError([&] { ColumnaDeCanal(s, 2); }), error::kTipos);
    EXPECT_EQ(NumeroDeError([&] { ColumnaDeCanal(s, 3); }), error::kSubindice);
}

TEST(Rotulos, RoundByTheMaskWithTheSystemsSeparator)
{
    const struct {
        float valor;
        const char* texto;
    } valores[] = {{1.5F, "1.500 kV"},     {-12.3456F, "-12.346 kV"}, {0.25F, "0.250 kV"},
                   {-0.0004F, "0.000 kV"}, {-0.25F, "-0.250 kV"},     {32767, "32767.000 kV"}};
    const struct {
        float c1, c2;
        std::int16_t tasa;
        const char* texto;
    } tiempos[] = {
        {401, 201, 1000, "200.000 ms"}, {201, 401, 1000, "200.000 ms"}, {5, 5, 1000, "0.000 ms"},
        {4, 1, 7, "428.571 ms"},        {513, 1, 7, "73142.859 ms"},  // 73142.857 where the period is not
                                                                      // kept in single precision kept in
                                                                      // single precision
    };
    for (const std::string decimal : {".", ","}) {
        const prueba::Separa separa(decimal, decimal == "." ? "," : ".");
        const auto local = [&](std::string t) {
            if (const auto p = t.find('.'); p != std::string::npos) t.replace(p, 1, decimal);
            return t;
        };
        for (const auto& v : valores)
            EXPECT_EQ(TextoValor(v.valor, "kV"), local(v.texto));
        for (const auto& t : tiempos)
            EXPECT_EQ(TextoTiempo(t.c1, t.c2, t.tasa), local(t.texto));
        EXPECT_EQ(TextoDiferencia(-1.25F, 1.0F, "A"), local("2.250 A"));
        EXPECT_EQ(TextoDiferencia(1.0F, -1.25F, "A"), local("2.250 A"));
        EXPECT_EQ(TextoMuestra(12345), "No.= 12345");
    }
    EXPECT_EQ(NumeroDeError([] { TextoTiempo(1, 2, 0); }), error::kDivisionPorCero);
}

TEST(Rejilla, FillsTheLeftColumnFirstWithWholeTwips)
{
    // 10001 / 2 and 15003 / 2 are halves: to even, 5000 and 7502.
    const TamanoVista vista{15003, 10001};
    const double altos[] = {10001, 5000, 3334, 3334, 3334, 3334, 2500, 2500};
    for (int n = 1; n <= 8; ++n) {
        SCOPED_TRACE(n);
        const auto lugares = RejillaVentanas(n, vista);
        ASSERT_EQ(lugares.size(), static_cast<std::size_t>(n));
        const int filas = n <= 3 ? n : n <= 6 ? 3 : 4;
        const double alto = altos[n - 1], ancho = n <= 3 ? 15003 : 7502;
        for (int k = 0; k < n; ++k) {
            const Lugar& l = lugares[static_cast<std::size_t>(k)];
            EXPECT_EQ(l.alto, alto);
            EXPECT_EQ(l.ancho, ancho);
            EXPECT_EQ(l.arriba, alto * (k < filas ? k : k - filas)) << k;
            EXPECT_EQ(l.izquierda, k < filas ? 0.0 : ancho) << k;
        }
    }
}

TEST(Rejilla, TheControlsOfAWindowDependOnHowManyAreOpen)
{
    MedidasOnda m;
    m.altoBarra = 255, m.altoEtiqueta = 240, m.anchoZoom = 900;
    const struct {
        int ventanas;
        double hueco, alto, flecha;
    } casos[] = {{1, 50, 530, 720}, {3, 50, 530, 720}, {4, 0, 290, 540}, {8, 0, 290, 540}};
    for (const auto& c : casos) {
        SCOPED_TRACE(c.ventanas);
        const auto l = ColocaOnda(18000, 6000, c.ventanas, m);
        ASSERT_TRUE(l);
        EXPECT_EQ(l->picbox.alto, 4900);
        EXPECT_EQ(l->HScroll2.izquierda, 5050);
        EXPECT_EQ(l->HScroll2.arriba, 4950);
        EXPECT_EQ(l->lblder.arriba, 5255);
        EXPECT_EQ(l->lblDif.izquierda, 10100);
        EXPECT_GE(l->lblamar.izquierda, l->lblizq.Derecha());
        EXPECT_LE(l->lblamar.Derecha(), l->lblder.izquierda);
        EXPECT_LE(l->lblms.Abajo(), l->lblDif.arriba);
        EXPECT_GE(l->cmdzoom.izquierda, l->lblms.Derecha());
        EXPECT_EQ(l->cmdzoom.alto, c.alto);
        EXPECT_DOUBLE_EQ(l->cmdadel.ancho, c.flecha);
        EXPECT_DOUBLE_EQ(l->cmdatras.ancho, c.flecha);
        EXPECT_DOUBLE_EQ(l->pctimpresora.ancho, 720);
        EXPECT_DOUBLE_EQ(l->pctimpresora.izquierda, l->cmdzoom.Derecha() + 3 * c.hueco + 2 * c.flecha);
        EXPECT_DOUBLE_EQ(l->lbl_PS.arriba, c.ventanas <= 3 ? l->pctimpresora.Abajo() - 240 : 5305);
    }
    EXPECT_FALSE(ColocaOnda(18000, 1000, 1, m));
}

TEST(RanurasTest, TheMarkerTellsWhatIsADuplicateAndWhereTheNextOneGoes)
{
    using Puesta = Ranuras::Puesta;
    struct Acto {
        char que;  // put, mark, empty
        const char* texto;
        int numero;
        Puesta puesta = Puesta::Hecha;
    };
    const auto pon8 = [] {
        std::vector<Acto> v;
        for (int k = 1; k <= 8; ++k)
            v.push_back({'p', "I", k});
        return v;
    }();
    const auto mas = [](std::vector<Acto> v, std::initializer_list<Acto> otros) {
        v.insert(v.end(), otros);
        return v;
    };
    const struct {
        const char* fallo;
        std::vector<Acto> actos;
        const char* numeros;  // of all slots
        int activa;
    } casos[] = {
        {"a duplicate in succession", {{'p', "A", 1}, {'p', "A", 1, Puesta::Repetida}}, "1,,,,,,,,", 2},
        {"equal names are two channels", {{'p', "A", 1}, {'p', "A", 4}}, "1,4,,,,,,,", 3},
        {"the ninth overwrites the last", mas(pon8, {{'p', "J", 9}}), "1,2,3,4,5,6,7,9,", 8},
        {"the last slot is no duplicate of itself", mas(pon8, {{'p', "I", 8}}), "1,2,3,4,5,6,7,8,", 8},
        {"with the last active all before it count", mas(pon8, {{'p', "I", 7, Puesta::Repetida}}),
         "1,2,3,4,5,6,7,8,", 8},
        {"behind the marker nothing is looked at", mas(pon8, {{'m', "", 2}, {'p', "I", 5}}),
         "1,5,3,4,5,6,7,8,", 3},
        {"a slot in the middle stays empty", mas(pon8, {{'v', "", 3}, {'m', "", 8}, {'p', "J", 9}}),
         "1,2,,4,5,6,7,9,", 8},
        {"an emptied slot is the next", mas(pon8, {{'v', "", 3}, {'p', "J", 9}}), "1,2,9,4,5,6,7,8,", 4},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.fallo);
        Ranuras r(8);
        for (const Acto& a : c.actos) {
            if (a.que == 'p') {
                EXPECT_EQ(r.Pon(a.texto, a.numero), a.puesta) << a.numero;
            }
            if (a.que == 'm') r.Marca(a.numero);
            if (a.que == 'v') r.Vacia(a.numero);
        }
        std::string numeros;
        for (int k = 1; k <= 8; ++k)
            numeros += r(k).numero + ',';
        EXPECT_EQ(numeros, c.numeros);
        EXPECT_EQ(r.Activa(), c.activa);
    }
    Ranuras r(8);
    for (const int fuera : {0, 9}) {
        EXPECT_EQ(NumeroDeError([&] { r.Marca(fuera); }), error::kSubindice);
        EXPECT_EQ(NumeroDeError([&] { r.Vacia(fuera); }), error::kSubindice);
    }
    EXPECT_EQ(r.Activa(), 1);
}

}  // namespace
}  // namespace veldix
