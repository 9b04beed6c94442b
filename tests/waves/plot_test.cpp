#include "waves/plot.h"

#include <array>

#include "platform/ranuras.h"
#include "support/soporte.h"
#include "waves/colores.h"
#include "waves/lugares_onda.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;

TEST(Colores, ACurveNeverTakesACursorColour)
{
    RecordStore s;
    ReiniciaRegistro(s);
    const std::uint32_t colores[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x000080,
                                     0x800080, 0xFF00FF, 0xFFFFFF, 0x000000};
    for (int canal = 1; canal <= 24; ++canal)
        EXPECT_EQ(ColorCurva(s.Colores, canal), colores[(canal - 1) % 8]) << canal;
    EXPECT_EQ(NumeroDeError([] { ColorPaleta(16); }), 9);
    EXPECT_EQ(NumeroDeError([&] { ColorCurva(s.Colores, -1); }), 9);
}

TEST(Curvas, StartAtTheMarginAndGoUpWithTheValue)
{
    const struct {
        float alto, minimo, maximo, escala;
    } escalas[] = {{5000, 0, 100, 24}, {5000, -400, 100, 6}, {5000, -50, 400, 6}, {1234, 0, 0, 0.96F}};
    for (const auto& e : escalas)
        EXPECT_FLOAT_EQ(EscalaVertical(e.alto, e.minimo, e.maximo), e.escala) << e.minimo;

    Tabla2<float> muestras(300, 2);
    muestras(1, 2) = 50, muestras(100, 2) = -100, muestras(101, 2) = 25, muestras(300, 2) = 10;
    const EscalaPlot entera{10, 200, 2500, 24, 1};
    const struct {
        int s, e;
        EscalaPlot escala;
        std::array<double, 4> extremos;  // x and y of the first and of the last point
    } casos[] = {{1, 300, entera, {200, 1300, 3190, 2260}},
                 {100, 101, {9600, 200, -1000, 24, 4}, {200, 8600, 9800, -3400}},
                 {300, 300, entera, {200, 2260, 200, 2260}}};
    for (const auto& c : casos) {
        const auto [primera, x, y] = CalculaPuntos(muestras, 2, c.s, c.e, c.escala);
        ASSERT_EQ(x.size(), static_cast<std::size_t>(c.e - c.s + 1));
        EXPECT_EQ((std::array{x.front(), y.front(), x.back(), y.back()}), c.extremos) << c.s;
    }
    EXPECT_TRUE(CalculaPuntos(muestras, 2, 299, 298, entera).PuntosX.empty());
    EXPECT_EQ(NumeroDeError([&] { CalculaPuntos(muestras, 2, 0, 300, entera); }), 9);
    EXPECT_EQ(NumeroDeError([&] { CalculaPuntos(muestras, 2, 1, 301, entera); }), 9);
}

TEST(Cursores, TheLargeStepIsACycleByTheRateThatThereIs)
{
    RecordStore s;
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    const struct {
        std::int16_t declarada, medida, linea;
        int paso;
    } casos[] = {{1600, 7, 50, 32}, {0, 1200, 60, 20}, {125, 0, 50, 2}, {75, 0, 50, 2}, {20, 0, 50, 1}};
    for (const auto& c : casos) {
        s.FrecMuestras(1) = c.declarada, s.FrecMuestreo = c.medida, s.FrecLinea = c.linea;
        EXPECT_EQ(PasoDeCursor(s), c.paso) << c.declarada;
    }
    s.FrecLinea = 0;
    EXPECT_EQ(NumeroDeError([&] { PasoDeCursor(s); }), 11);
}

TEST(Rotulos, AreInTheSystemsSeparatorAndSinglePrecision)
{
    const prueba::Separa separa(",", ".");
    EXPECT_EQ(TextoValor(-12.3456F, "kV"), "-12,346 kV");
    EXPECT_EQ(TextoTiempo(513, 1, 7), "73142,859 ms");  // of 73142,857
    EXPECT_EQ(TextoTiempo(201, 401, 1000), "200,000 ms");
    EXPECT_EQ(TextoDiferencia(-1.25F, 1.0F, "A"), "2,250 A");
    EXPECT_EQ(TextoMuestra(12345), "No.= 12345");
}

TEST(Rejilla, FillsTheLeftColumnFirstWithWholeTwips)
{
    // 10001 / 2 and 15003 / 2 are halves: to even, 5000 and 7502.
    const Lugar ultimos[] = {{0, 0, 15003, 10001},     {0, 5000, 15003, 5000},   {0, 6668, 15003, 3334},
                             {7502, 0, 7502, 3334},    {7502, 3334, 7502, 3334}, {7502, 6668, 7502, 3334},
                             {7502, 5000, 7502, 2500}, {7502, 7500, 7502, 2500}};
    for (int n = 1; n <= 8; ++n) {
        const auto lugares = RejillaVentanas(n, {15003, 10001});
        ASSERT_EQ(lugares.size(), static_cast<std::size_t>(n));
        const Lugar &l = lugares.back(), &debe = ultimos[n - 1];
        EXPECT_EQ((std::array{l.izquierda, l.arriba, l.ancho, l.alto}),
                  (std::array{debe.izquierda, debe.arriba, debe.ancho, debe.alto}))
            << n;
    }
}

TEST(Rejilla, TheControlsOfAWindowNeverCoverOneAnother)
{
    MedidasControles m;
    m.altoBarra = 255, m.altoEtiqueta = 240, m.anchoZoom = 900;
    for (const int ventanas : {3, 4}) {
        SCOPED_TRACE(ventanas);
        const auto l = ColocaOnda(18000, 6000, ventanas, m);
        ASSERT_TRUE(l);
        const Lugar* fila[] = {&l->lblizq,  &l->lblamar, &l->lblder,   &l->lblcian,     &l->lblDif,
                               &l->cmdzoom, &l->cmdadel, &l->cmdatras, &l->pctimpresora};
        for (std::size_t i = 1; i < std::size(fila); ++i)
            EXPECT_LE(fila[i - 1]->Derecha(), fila[i]->izquierda) << i;
        EXPECT_LE(l->lblms.Abajo(), l->lblDif.arriba);
        EXPECT_EQ(l->cmdadel.izquierda - l->cmdzoom.Derecha(), ventanas == 3 ? 50 : 0);
        MedidasControles con = m;
        con.anchoMarco = 120, con.anchoReferencia = 1100;
        for (const double ancho : {18000.0, 9000.0, 7500.0}) {
            const auto r = ColocaOnda(ancho, 6000, ventanas, con);
            EXPECT_LE(r->lbl_PS.Derecha(), ancho - con.anchoMarco) << "under the frame";
            EXPECT_GE(r->lbl_PS.izquierda, r->pctimpresora.Derecha());
            EXPECT_GE(r->lbl_PS.ancho, ancho > 8000.0 ? con.anchoReferencia : 0.0) << ancho;
        }
    }
    EXPECT_FALSE(ColocaOnda(18000, 1000, 1, m));
}

TEST(RanurasTest, TheMarkerTellsWhatIsADuplicateAndWhereTheNextOneGoes)
{
    const struct {
        const char *actos, *numeros;  ///< a digit puts its channel, > marks a slot, - empties one
        int activa;
    } casos[] = {{"114", "14......", 3},           {"123456789", "12345679", 8},
                 {"123456787", "12345678", 8},     {"12345678>25", "15345678", 3},
                 {"12345678-3>89", "12.45679", 8}, {"12345678-39", "12945678", 4}};
    for (const auto& c : casos) {
        Ranuras r(8);
        for (const char* a = c.actos; *a != '\0'; ++a) {
            if (*a == '>')
                r.Marca(*++a - '0');
            else if (*a == '-')
                r.Vacia(*++a - '0');
            else
                r.Pon("I", *a - '0');
        }
        std::string numeros;
        for (int k = 1; k <= 8; ++k)
            numeros += r(k).numero.empty() ? "." : r(k).numero;
        EXPECT_EQ(numeros, c.numeros) << c.actos;
        EXPECT_EQ(r.Activa(), c.activa) << c.actos;
    }
    EXPECT_EQ(NumeroDeError([] { Ranuras(8).Marca(9); }), 9);
}

}  // namespace
}  // namespace veldix
