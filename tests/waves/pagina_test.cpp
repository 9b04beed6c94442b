#include <algorithm>
#include <array>

#include "platform/numeros.h"
#include "support/grabadora.h"
#include "support/soporte.h"
#include "waves/composicion.h"
#include "waves/marcas_pagina.h"
#include "waves/pagina_ondas.h"

namespace veldix {
namespace {

using prueba::Grabadora;
using prueba::NumeroDeError;
using Tipo = prueba::OperacionPagina::Tipo;

/// `canales` channels of 960 samples, all 10 but the first one's 20th, of -40; rows and columns run
/// backwards.
RecordStore Registro(int canales, int ultima = 960)
{
    RecordStore s;
    s.FrecLinea = 50;
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    s.FrecMuestras(1) = 1000;
    s.NumAnalog = s.NumCanalAnalog = static_cast<std::int16_t>(canales);
    s.Canales = Tabla1<FilaCanal>(canales);
    s.Muestras = Tabla2<float>(ultima, canales);
    for (int c = 1; c <= canales; ++c) {
        s.Canales(c) = {std::to_string(canales + 1 - c), "C" + std::to_string(c), "", "A"};
        for (int i = 1; i <= ultima; ++i)
            s.Muestras(i, c) = c == 1 && i == 20 ? -40.0F : 10.0F;
    }
    ReiniciaRegistro(s);
    return s;
}

/// Levels of a plot of 10000 x 5000 twips.
const NivelCaja kNiveles[] = {{0, 5000, 200, 9800, 1, 0, 5000, 10000, 10, 2500},
                              {1000, 3500, 1200, 3200, 2, 0, 5000, 10000, 10, 3000},
                              {2000, 4500, 1160, 3560, 4, 100, 5000, 10000, 48, 2000},
                              {500, 3000, 200, 2120, 8, 120, 5000, 10000, 192, 3000}};

std::string Rotulos(const std::vector<Marca>& marcas)
{
    std::string s;
    for (const Marca& m : marcas)
        s += m.rotulo + (m.rotulo.empty() ? "." : "|");
    return s;
}

TEST(PaginaOndas, LevelsAreReplayedOnThePaperWithTheirTicks)
{
    const prueba::Separa punto(".", ",");
    const struct {
        double escala, origen, diez;
        int s, e;
        double paso;
        std::size_t valores;
        const char* tiempos;
    } casos[] = {{16.0584, 6650, 6107.6, 1, 960, 13.0208, 14,
                  "50|100|150|200|250|300|350|400|450|500|550|600|650|700|750|800|850|900|950|"},
                 {77, 7780, 6695.2, 100, 300, 6.5104, 13, "....50|....100|....150|....200|"},
                 {308, 5520, 3350.4, 120, 170, 3.2552, 13, "....50|"},
                 {1711.11, 7780, 3440.8, 121, 130, 1.6276, 13, ""}};
    const RecordStore s = Registro(2);
    for (std::size_t n = 0; n < 4; ++n) {
        SCOPED_TRACE(n);
        Grabadora imp(20000.0, 15000.0);
        const auto h =
            HojaDeOnda(s, imp, 2, kNiveles[n], 24.0F,
                       {"C2", static_cast<float>(casos[n].s), static_cast<float>(casos[n].e), "", "", ""});
        ASSERT_TRUE(h);
        const HojaOndas::Curva& c = h->curvas.at(0);
        ASSERT_EQ(static_cast<int>(c.xs.size()), casos[n].e - casos[n].s + 1);
        EXPECT_NEAR(c.xs[1] - c.xs[0], casos[n].escala, 0.01);
        EXPECT_NEAR(c.xs.front(), 3000.0, 0.01);
        EXPECT_NEAR(c.xs.back(), 18400.0, 0.01);
        EXPECT_NEAR(c.ys.back(), casos[n].diez, 0.1);
        EXPECT_NEAR(h->dentro.at(0).y1, casos[n].origen, 0.01);
        EXPECT_NEAR(h->dentro.at(1).x1, 3000.0, 0.01);
        EXPECT_NEAR(h->dentro.at(2).x1, 18400.0, 0.01);
        EXPECT_EQ(Rotulos(MarcasTiempo(h->medidas, casos[n].escala, 1000)), casos[n].tiempos);
        const auto valores = MarcasValor(h->medidas, casos[n].origen, casos[n].paso, "A");
        EXPECT_EQ(valores.size(), casos[n].valores);
        ImprimeHoja(imp, *h);
        const std::string siete = Mascara(7 * casos[n].paso, "#.##") + " A  ";
        EXPECT_EQ(imp.Primero(siete).texto, n == 2 ? "" : siete);  // off the plot on one level
    }
}

TEST(PaginaOndas, TimeTicksThinOutAndEndWhereTheyMustNotRunForever)
{
    const MedidasHoja m = MideOndas(20000.0, 15000.0);
    EXPECT_EQ((std::array{m.marco.izquierda, m.marco.derecha, m.marco.abajo, m.plot.arriba, m.plot.abajo,
                          m.columna}),
              (std::array{180.0, 18840.0, 14175.0, 1000.0, 12300.0, 11250.0}));
    EXPECT_EQ(Rotulos(MarcasTiempo(m, 15400.0 / 3999, 1000)).substr(0, 8), ".100|...");
    EXPECT_EQ(MarcasTiempo(m, 16.0, 10).size(), 0U);
    EXPECT_EQ(MarcasTiempo(m, 500.0, 50).at(0).lugar, 4000.0);  // 2.5 samples go to 2
    EXPECT_EQ(NumeroDeError([&] { MarcasTiempo(m, 16.0, 0); }), error::kDivisionPorCero);
}

TEST(PaginaOndas, HeadingsNameTheChannelTheCursorsAndTheFile)
{
    const prueba::Separa coma(",", ".");
    RecordStore s = Registro(2);
    s.FicheroDat = "/r/falta.dat";
    Grabadora imp;
    const auto h = HojaDeOnda(s, imp, 2, kNiveles[0], 24.0F, {"C2", 20, 21, "50,000 A", "1,000 ms", "hoy"});
    ImprimeHoja(imp, *h);
    EXPECT_EQ(imp.Primero("20").texto + imp.Primero("21").texto, "20 C2 -40,000 A21 C2 10,000 A");
    for (const char* texto : {" Cursor 1: ", "Cursor 2 : ", "50,000 A", "1,000 ms", "/r/falta.dat", "0 A  "})
        EXPECT_EQ(imp.Primero(texto).texto.substr(0, 4), std::string(texto).substr(0, 4)) << texto;
    EXPECT_EQ(imp.Primero("hoy").ys, imp.Primero("C2").ys);
    EXPECT_NEAR(imp.Primero("hoy").xs[0], 0.75 * 11906.0, 0.01);
    const auto lineas = imp.De(Tipo::Poligonal);
    EXPECT_NEAR(lineas[1].xs[0], 15861.396, 0.01);
    EXPECT_NEAR(lineas[4].ys[0], 841.9, 0.01);
    for (const auto& o : imp.De(Tipo::Texto)) {
        EXPECT_GE(o.ys[0], h->medidas.marco.arriba) << o.texto;
        EXPECT_LE(o.ys[0] + 240.0, h->medidas.marco.abajo) << o.texto;
    }
    EXPECT_EQ(imp.Letra.puntos, LetraPagina{}.puntos);  // as it was before

    s.Canales(2).Nombre = std::string(400, 'n');
    s.FicheroDat = "/" + std::string(400, 'r') + "/falta.dat";
    Grabadora larga;
    ImprimeHoja(larga,
                *HojaDeOnda(s, larga, 2, kNiveles[0], 24.0F, {s.Canales(2).Nombre, 20, 21, "", "", ""}));
    int cortados = 0;
    for (const auto& o : larga.De(Tipo::Texto)) {
        const bool media = o.xs[0] < 8000.0 && !o.texto.ends_with("falta.dat");
        const double fin = media ? h->medidas.columna : h->medidas.marco.derecha;
        EXPECT_LE(o.xs[0] + 120.0 * static_cast<double>(o.texto.size()), fin) << o.texto;
        cortados += o.texto.find("…") != std::string::npos;
        const bool valor = o.texto.ends_with("… 10,000 A") || o.texto.ends_with("… -40,000 A");
        EXPECT_EQ(valor, o.texto.find(" n") != std::string::npos) << o.texto;
    }
    EXPECT_EQ(cortados, 4);  // the title, both cursors' names and the path, never a value
    EXPECT_TRUE(larga.Primero("…r").texto.ends_with("r/falta.dat"));
    s = Registro(1, 1);
    EXPECT_FALSE(HojaDeOnda(s, imp, 1, {0, 5000, 200, 9800, 1, 0, 5000, 10000, 9600, 2500}, 24.0F, {}));
}

TEST(PaginaOndas, BandsShareTheTimeAxisAndLeaveTheLastSampleOut)
{
    const prueba::Separa coma(",", ".");
    RecordStore s = Registro(8);
    std::vector<int> canales;
    for (int r = 1; r <= 8; ++r)
        canales.push_back(r);
    const Bandas bandas = ColocaBandas(s, canales, 6000.0F);
    const std::uint32_t colores[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFFFF00, 0xFF00FF, 0, 0x0000FF};
    for (const ModoColor modo : {ModoColor::Color, ModoColor::Monocromo}) {
        Grabadora imp(20000.0, 15000.0, modo);
        const auto h =
            HojaDeTodo(s, imp, bandas, {101, 301, 101, 10150, 50}, 6000.0F, {"", 101, 301, "", "", ""});
        ASSERT_TRUE(h && h->curvas.size() == 8);
        for (std::size_t k = 0; k < 8; ++k)
            EXPECT_EQ(h->curvas[k].color, modo == ModoColor::Color ? colores[k] : 0U) << k;
        EXPECT_EQ(h->curvas[7].xs.size(), 200U);
        EXPECT_NEAR(h->curvas[7].xs.back(), 18400.0 - 77.0, 0.01);
        EXPECT_NEAR(h->dentro.at(1).x1, 18400.0, 0.01);  // the cursor at the stretch's end
        const double ry = 11300.0 / 6000.0, cero = 1000.0 + 5632.5 * ry;
        EXPECT_NEAR(h->dentro.at(9).y1, cero, 0.01);
        EXPECT_NEAR(h->curvas[7].ys[0], cero - 10.0 * bandas.escalas[7] * ry, 0.01);
        ImprimeHoja(imp, *h);
        EXPECT_EQ(imp.Primero(" min -").texto, " min -40,000 A");  // of column 1, which is row 8
        EXPECT_EQ(std::ranges::count(imp.ops, "0 A  ", &prueba::OperacionPagina::texto), 8);
        EXPECT_EQ(imp.De(Tipo::Recorte).at(0).xs, (std::vector{3000.0, 18400.0}));
    }
}

TEST(PaginaOndas, CompositionsHaveALegendInTheirCurvesColours)
{
    const prueba::Separa coma(",", ".");
    RecordStore s = Registro(6);
    s.Canales(2).Unidades = "kV";
    const float escala = EscalaComposicion(s, {2, 3, 6}, 5000.0F);
    for (const int ventanas : {1, 3}) {
        Grabadora imp;
        const auto h = HojaDeComposicion(s, imp, {2, 3, 6}, kNiveles[1], escala, ventanas,
                                         {"Ventana 1", 1, 1, "", "", ""});
        ASSERT_TRUE(h && h->curvas.size() == 3);
        ImprimeHoja(imp, *h);
        EXPECT_EQ(imp.Primero("0 kV").texto, "0 kV  ");
        const auto clave = h->rayas.at(h->rayas.size() - 3);
        EXPECT_EQ(clave.color, 0x0000FFU);
        EXPECT_NEAR(clave.x2 - clave.x1, 500.0, 0.01);
        EXPECT_GT(clave.y1, h->medidas.plot.abajo + (ventanas == 1 ? 295.0 : 10.0));
        EXPECT_LT(h->rayas.back().y1, h->medidas.marco.abajo - 380.0);
        EXPECT_EQ(imp.Primero("C6").xs[0] - clave.x2, ventanas == 1 ? 100.0 : 10.0);
    }
}

}  // namespace
}  // namespace veldix
