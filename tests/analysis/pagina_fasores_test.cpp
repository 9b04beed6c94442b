#include "analysis/pagina_fasores.h"

#include "support/grabadora.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Grabadora;
using Tipo = prueba::OperacionPagina::Tipo;

/// Two groups whose six phasors are all (60, 80), the second one's factor 1.5, at scale 30 and zoom 3.
struct Pagina {
    explicit Pagina(ModoColor color, const char* separador = ".")
        : separa(separador, ""), impresora(16838.0, 11906.0, color)
    {
        s.FrecLinea = 50;
        s.FrecMuestras = Tabla1<std::int16_t>(1);
        s.FrecMuestras(1) = 50;
        s.Canales = Tabla1<FilaCanal>(6);
        s.FasoresDFT = Tabla2<float>(8, 12);
        for (int c = 1; c <= 6; ++c) {
            s.Canales(c) = {std::to_string(c), "C" + std::to_string(c), "", "A"};
            s.FasoresDFT(7, 2 * c - 1) = 60.0F;
            s.FasoresDFT(7, 2 * c) = 80.0F;
        }
        s.NumTrifasic = 2;
        s.Trifasic = Tabla1<FilaTrifasic>(2);
        s.Trifasic(1) = {{1, 2, 3}, "uno", "1"};
        s.Trifasic(2) = {{4, 5, 6}, "dos", separador == std::string(".") ? "1.5" : "1,5"};
        s.GruposFases = Tabla1<std::int16_t>(0, 2);
        s.GruposFases(0) = 2, s.GruposFases(1) = s.GruposFases(2) = 1;
        Diagrama d(s, s.FasoresDFT, 1);
        d.MaxModulo = 100.0F;
        d.Ajusta(9000.0, 6000.0);
        d.CambiaZoom(3);
        const HojaFasores h =
            ComponeFasores(s, d, TrazosFases(s), 7, 6000.0, {"Fases", "/r/falta.dat", "2/3/26 4:05"},
                           impresora, {240.0, 240.0});
        ImprimeFasores(impresora, h);
    }
    prueba::Separa separa;
    RecordStore s;
    Grabadora impresora;
};

void EsLinea(const prueba::OperacionPagina& o, double x1, double y1, double x2, double y2)
{
    EXPECT_NEAR(o.xs[0], x1, 0.01);
    EXPECT_NEAR(o.ys[0], y1, 0.01);
    EXPECT_NEAR(o.xs[1], x2, 0.01);
    EXPECT_NEAR(o.ys[1], y2, 0.01);
}

TEST(PaginaFasores, LinesLeaveTheirPlaceTheirZoomOrTheirFactor)
{
    const Pagina p(ModoColor::Color);
    const auto lineas = p.impresora.De(Tipo::Poligonal);
    ASSERT_EQ(lineas.size(), 4U + 4U + 2U + 6U * 2U);
    EsLinea(lineas[0], 151.542, 107.154, 15861.396, 107.154);
    EsLinea(lineas[2], 15861.396, 11251.17, 151.542, 11251.17);
    EsLinea(lineas[5], 15154.2, 841.9, 15154.2, 9524.8);
    EsLinea(lineas[8], 2525.7, 5183.35, 15154.2, 5183.35);
    EsLinea(lineas[9], 8839.95, 841.9, 8839.95, 9524.8);
    EsLinea(lineas[16], 8839.95, 5183.35, 16374.22, -4862.34);  // unclipped, factor 1.5
    EsLinea(lineas[10], 8839.95, 5183.35, 8839.95 + 3515.625 * 1.42872, 5183.35 - 4687.5 * 1.42872);
    EsLinea(lineas[11], 1831.542, 1081.9, 2331.542, 1081.9);
    EsLinea(lineas[17], 1831.542, 2521.9, 2331.542, 2521.9);
    EXPECT_TRUE(p.impresora.De(Tipo::Recorte).empty());
}

TEST(PaginaFasores, TextsStandElsewhereOrAreThoseOfTheScreen)
{
    const Pagina p(ModoColor::Color, ",");
    const struct {
        const char* texto;
        double x, y;
    } textos[] = {{"C1", 391.542, 1081.9},     {"C1: 100,@53,13A", 391.542, 1321.9},
                  {"C2", 391.542, 1561.9},     {"C4", 391.542, 2521.9},
                  {"C6: ", 391.542, 3721.9},   {"FASES", 391.542, 347.154},
                  {"2/3/26", 8929.5, 347.154}, {"/r/falta.dat", 391.542, 587.154},
                  {"3", 391.542, 9764.8}};
    for (const auto& t : textos) {
        const auto o = p.impresora.Primero(t.texto);
        EXPECT_NEAR(o.xs[0], t.x, 0.01) << t.texto;
        EXPECT_NEAR(o.ys[0], t.y, 0.01) << t.texto;
    }
    EXPECT_EQ(p.impresora.Primero("C1: ").texto, "C1: 100,@53,13A");
}

TEST(PaginaFasores, ColoursOrWidthsAreNotThoseOfThePrinter)
{
    const int gruesos[] = {1, 4, 7, 4, 7, 10};
    for (const ModoColor modo : {ModoColor::Color, ModoColor::Monocromo}) {
        const bool color = modo == ModoColor::Color;
        const Pagina p(modo);
        const auto lineas = p.impresora.De(Tipo::Poligonal);
        for (std::size_t i = 0; i < 6; ++i)
            for (const std::size_t cual : {10 + 2 * i, 11 + 2 * i}) {  // the line and its key
                EXPECT_EQ(lineas[cual].color, color ? kColoresFasor[i] : 0U) << i;
                EXPECT_EQ(lineas[cual].grosor, color ? 1 : gruesos[i]) << i;
            }
        EXPECT_EQ(lineas[0].grosor, 1);
    }
}

}  // namespace
}  // namespace veldix
