#include <algorithm>
#include <array>
#include <random>

#include "digital/eleccion.h"
#include "digital/lugares_digital.h"
#include "digital/lugares_grid.h"
#include "digital/pagina_digital.h"
#include "platform/raster.h"
#include "support/grabadora.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;

/// A record of digital channels, each by its states, and an analog one that counts its samples; the template
/// has groups of as many channels as told, named G1, G2, ..., their channels numbered from the record's last
/// down.
RecordStore Registro(const std::vector<std::string>& estados, const std::vector<std::string>& cuentas)
{
    RecordStore s;
    const int muestras = static_cast<int>(estados.at(0).size()), canales = static_cast<int>(estados.size());
    s.RegistroAbierto = s.PlantillaAplicada = true;
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    s.FrecMuestras(1) = 1000;
    s.NumAnalog = s.NumCanalAnalog = 1;
    s.Canales = Tabla1<FilaCanal>(1);
    s.Canales(1) = {"7", "Ia", "", "kA"};
    s.Muestras = Tabla2<float>(muestras, 1);
    s.MuestrasDig = Tabla2<std::int16_t>(muestras, canales);
    for (int i = 1; i <= muestras; ++i) {
        s.Muestras(i, 1) = static_cast<float>(i);
        for (int c = 1; c <= canales; ++c)
            s.MuestrasDig(i, c) = static_cast<std::int16_t>(estados[c - 1U][i - 1U] - '0');
    }
    s.NumGruposDig = static_cast<std::int16_t>(cuentas.size());
    int total = 0;
    if (!cuentas.empty()) s.GruposDig = Tabla1<FilaGrupoDig>(s.NumGruposDig);
    for (int g = 1; g <= s.NumGruposDig; ++g) {
        s.GruposDig(g) = {"G" + std::to_string(g), cuentas[g - 1U]};
        total += std::atoi(cuentas[g - 1U].c_str());
    }
    if (total > 0) s.CanalesDig = Tabla1<FilaCanalDig>(total);
    for (int r = 1; r <= total; ++r)
        s.CanalesDig(r) = {std::to_string(canales - (r - 1) % canales), "D" + std::to_string(r)};
    ReiniciaRegistro(s);
    return s;
}

std::string Filas(const RecordStore& s)
{
    std::string texto;
    for (const FilaDigital& f : FilasDigitales(s))
        texto += f.nombre + "=" + std::to_string(f.canal) + " ";
    return texto;
}

TEST(Eleccion, AChangeOfStateIsMissedOrOneOfTheLastSampleIsSeen)
{
    const struct {
        const char* estados;
        int cambia;
    } casos[] = {{"0000", 0}, {"1111", 0}, {"0001", 0}, {"1110", 0},
                 {"0010", 1}, {"1101", 1}, {"0111", 1}, {"2333", 0},  // only 1 is opposite to what is not 1
                 {"1222", 0}, {"2212", 1}, {"01", 0},   {"0", 0}};
    for (const auto& c : casos) {
        RecordStore s = Registro({c.estados}, {});
        bool avisado = false;
        EXPECT_EQ(CambiaEstado(s, 1, avisado), c.cambia) << c.estados;
    }
}

TEST(Eleccion, AChannelThatTheRecordLacksIsToldOnlyWithATemplateInForce)
{
    prueba::RespondeCajas cajas;
    for (const int canal : {0, 2}) {
        RecordStore s = Registro({"0110"}, {});
        s.PlantillaNoValida = true;
        cajas.Espera(Textos(246), Icono::Critico);
        bool avisado = false;
        EXPECT_EQ(CambiaEstado(s, canal, avisado), 0);
        EXPECT_FALSE(s.PlantillaNoValida);
        EXPECT_EQ(CambiaEstado(s, canal, avisado), 0) << "told once";
        s.PlantillaAplicada = false;
        EXPECT_EQ(NumeroDeError([&] { CambiaEstado(s, canal, avisado); }), error::kSubindice);
    }
}

TEST(Eleccion, GroupsBeginBehindThoseBeforeThem)
{
    std::vector<std::string> cuentas(17, "2");
    cuentas[0] = " 3 ";
    cuentas[7] = "0";
    RecordStore s = Registro({"01", "10"}, cuentas);
    const struct {
        int grupo, primera, ultima, filas;
    } casos[] = {{1, 1, 3, 3}, {2, 4, 5, 2}, {8, 16, 15, 0}, {9, 16, 17, 2}, {16, 30, 31, 2}};
    for (const auto& c : casos) {
        EXPECT_TRUE(EligeGrupo(s, c.grupo));
        EXPECT_EQ((std::vector<int>{s.DigPrimera, s.DigUltima, s.NumDigVista, s.ModoDigital}),
                  (std::vector<int>{c.primera, c.ultima, c.filas, 1}));
        EXPECT_EQ(s.NombreGrupoDig, "G" + std::to_string(c.grupo));
        EXPECT_EQ(static_cast<int>(FilasDigitales(s).size()), c.filas);
    }
    EXPECT_EQ(Filas(s), "D30=1 D31=2 ");
    EXPECT_FALSE(EligeGrupo(s, 17));
    EXPECT_EQ(s.DigPrimera, 30) << "a group beyond the sixteenth fills nothing";
    EXPECT_EQ(NumeroDeError([&] { EleccionManual e(s); }), 0);
    EXPECT_FALSE(EleccionManual(s).Existe(1)) << "nor does any, by hand, where there are more";
    for (const auto& [cuenta, error] :
         {std::pair{"x", error::kTipos}, {"20", error::kSubindice}, {"-1", error::kSubindice}}) {
        s = Registro({"01", "10"}, {"1", cuenta, "19"});
        EXPECT_EQ(NumeroDeError([&] { EleccionManual e(s); }), error) << cuenta;
    }
}

TEST(Eleccion, ChoicesByHandKeepTheirLimitAndTheOrderOfTheGroups)
{
    RecordStore s = Registro({"0110", "0000"}, {"12", "0", "12"});
    EleccionManual e(s);
    using Fondo = EleccionManual::Fondo;
    EXPECT_TRUE(e.FondoDe(1, 1) == Fondo::Ventana && e.FondoDe(1, 2) == Fondo::Cambia);
    EXPECT_FALSE(e.DblClick(1, 2)) << "not chosen";
    e.Entrega();
    EXPECT_EQ(Filas(s), "");
    for (int j = 12; j >= 1; --j)
        EXPECT_TRUE(e.Click(3, j));
    for (int j = 1; j <= 7; ++j)
        EXPECT_TRUE(e.Click(1, j));
    EXPECT_FALSE(e.Click(1, 8));
    EXPECT_EQ(e.FondoDe(1, 8), Fondo::Cambia);
    EXPECT_TRUE(e.Click(1, 2)) << "a chosen one stays so, also at the limit";
    EXPECT_TRUE(e.DblClick(1, 2) && e.DblClick(3, 12));
    EXPECT_TRUE(e.FondoDe(1, 2) == Fondo::Cambia && e.FondoDe(1, 3) == Fondo::Elegido);
    EXPECT_EQ(e.NumElegidos(), 17);
    s.DigPrimera = 4;
    e.Entrega();
    EXPECT_EQ(s.DigElegidos(1).Numero, "18");
    EXPECT_EQ(s.ModoDigital, 2);
    EXPECT_EQ(Filas(s),
              "D1=2 D3=2 D4=1 D5=2 D6=1 D7=2 D13=2 D14=1 D15=2 D16=1 D17=2 D18=1 D19=2 D20=1 D21=2 D22=1 "
              "D23=2 ");
    for (const auto& [k, j] : {std::pair{2, 1}, {1, 0}, {1, 13}, {17, 1}})
        EXPECT_EQ(NumeroDeError([&, a = k, b = j] { e.Click(a, b); }), error::kSubindice) << k << "," << j;
}

/// Runs of a row as first and last sample.
std::string Tramos(const RecordStore& s, const TramoDigital& t, int canal = 1)
{
    std::string texto;
    const auto filas = EstadosDigitales(s.MuestrasDig, {{canal, ""}}, t);
    for (const TramoEstado& e : filas.at(0))
        texto += std::to_string(e.primera) + "-" + std::to_string(e.ultima) + " ";
    return texto;
}

TEST(PlotDigital, RunsBeginOrEndASampleTooFar)
{
    const RecordStore s = Registro({"11011001", "11111111", "00000000", "22222221"}, {});
    const struct {
        std::int16_t inicial, ultima;
        int canal;
        const char* tramos;
    } casos[] = {{0, 8, 1, "1-2 4-5 8-8 "}, {1, 8, 1, "2-2 4-5 8-8 "},
                 {4, 7, 1, "5-5 "},         {0, 8, 2, "1-8 "},
                 {3, 5, 2, "4-5 "},         {0, 8, 3, ""},
                 {0, 8, 4, "8-8 "},         {8, 8, 2, ""}};
    for (const auto& c : casos)
        EXPECT_EQ(Tramos(s, {c.inicial, c.ultima, 1.0F}, c.canal), c.tramos) << c.inicial << " " << c.canal;
    for (const int canal : {0, 5})
        EXPECT_EQ(NumeroDeError([&] { Tramos(s, {0, 8, 1.0F}, canal); }), error::kSubindice);
    EXPECT_EQ(NumeroDeError([&] { Tramos(s, {0, 9, 1.0F}); }), error::kSubindice);
}

TEST(PlotDigital, OneBoxARunHasOtherPixelsThanOneASample)
{
    std::mt19937 azar(7);
    std::string estados;
    for (int k = 0; k < 400; ++k)
        estados += azar() % 3 == 0 ? '0' : '1';
    const RecordStore s = Registro({estados}, {});
    for (const float escala : {0.7F, 9.1F, 15.0F, 41.7F}) {
        const TramoDigital t{17, 390, escala};
        std::vector<std::uint32_t> una(600 * 8), otra(600 * 8);
        const Imagen32 junta{una.data(), 600, 8, 600}, suelta{otra.data(), 600, 8, 600};
        const auto filas = EstadosDigitales(s.MuestrasDig, {{1, ""}}, t);
        RellenaCajas(junta, BordesEstado(filas.at(0), t), 100.0, 25.0, 1.0 / 15.0, 1);
        for (int k = t.MuestraInicial + 1; k <= t.ultima; ++k)
            if (s.MuestrasDig(k, 1) == 1)
                RellenaCajas(suelta, std::array{t.X(k - 1), t.X(k)}, 100.0, 25.0, 1.0 / 15.0, 1);
        EXPECT_GT(std::count(una.begin(), una.end(), 1U), 0);
        EXPECT_EQ(una, otra) << escala;
    }
}

TEST(PlotDigital, TheReferenceFillsItsBandByWholeUnitsOfTheStretch)
{
    RecordStore s = Registro({"00000"}, {});
    const struct {
        float cima;
        double escala;
    } casos[] = {{-132000.9F, 600.0 / 132000}, {1.99F, 600.0}, {0.87F, 0.0}, {0.0F, 0.0}};
    for (const auto& c : casos) {
        for (int i = 1; i <= 5; ++i)
            s.Muestras(i, 1) = i == 4 ? c.cima : 0.0F;
        s.Muestras(2, 1) = 1e9F;  // before the stretch
        EXPECT_DOUBLE_EQ(EscalaReferencia(s.Muestras, 1, {2, 5, 1.0F}), c.escala);
    }
    s.Muestras(4, 1) = -1.5F;
    const PuntosCurva p = CurvaReferencia(s.Muestras, 1, {2, 5, 100.0F});
    EXPECT_EQ(p.PuntosX, (std::vector<double>{1300, 1400, 1500}));
    EXPECT_EQ(p.PuntosY, (std::vector<double>{600, 1500, 600}));
}

/// A plot of 10000 x 5000 twips on a page of 20000 x 15000, whose plot is 15400 x 11300.
TEST(PaginaDigital, AZoomedStretchStandsElsewhereOnPaper)
{
    const prueba::Separa punto(".", ",");
    using Tipo = prueba::OperacionPagina::Tipo;
    RecordStore s =
        Registro({std::string(60, '0') + std::string(140, '1'), std::string(200, '0')}, {"2", "1"});
    s.FicheroDat = "/r/falta.dat";
    s.CanalRef = 1;
    EligeGrupo(s, 1);
    constexpr double kRy = 11300.0 / 5000.0, kPaso = 2.0 * 15400.0 / 8600.0;
    const double banda = 1000.0 + 1200.0 * kRy, fila = (12300.0 - banda) / 23.0;
    for (const ModoColor modo : {ModoColor::Color, ModoColor::Monocromo}) {
        prueba::Grabadora imp(20000.0, 15000.0, modo);
        const PlotDigital plot{10000.0, 5000.0, {50, 150, 2.0F}, FilasDigitales(s)};
        const HojaOndas h = HojaDigital(s, imp, plot, {"", 60, 150, "", "90.000 ms", "hoy"});
        const std::uint32_t color = modo == ModoColor::Color ? 0x0000FFU : 0U;
        ASSERT_EQ(h.curvas.size(), 1U);
        EXPECT_EQ(h.curvas[0].color, color);
        EXPECT_EQ(h.curvas[0].xs.size(), 100U);
        EXPECT_NEAR(h.curvas[0].xs[0], 3000.0 + kPaso, 0.01);
        EXPECT_NEAR(h.curvas[0].ys[99], 1000.0 + 600.0 * kRy - 600.0 * kRy, 0.01);  // 150 of 150
        ASSERT_EQ(h.cajas.size(), 1U) << "of row 2, which is channel 1";
        EXPECT_NEAR(h.cajas[0].x1, 3000.0 + 10 * kPaso, 0.01);
        EXPECT_NEAR(h.cajas[0].x2, 3000.0 + 100 * kPaso, 0.01);
        EXPECT_NEAR(h.cajas[0].y1, banda + 3 * fila, 0.01);
        EXPECT_NEAR(h.cajas[0].y2, banda + 3 * fila - 75 * kRy, 0.01);
        EXPECT_EQ(h.cajas[0].color, color);
        EXPECT_NEAR(h.dentro[1].y1, banda + 2 * fila, 0.01);
        EXPECT_NEAR(h.dentro[3].x1, 3000.0 + 10 * kPaso, 0.01);  // the yellow cursor
        ImprimeHoja(imp, h);
        EXPECT_EQ(imp.De(Tipo::Caja).size(), 1U);
        EXPECT_EQ(imp.Primero("60").texto + imp.Primero("150").texto, "60  60.000 kA150  150.000 kA");
        for (const char* texto : {"/r/falta.dat", "90.000 ms", "D1", "D2", "Ia", "0 kA  ", "100", "hoy"})
            EXPECT_EQ(imp.Primero(texto).texto, texto);
        const auto nombre = imp.Primero("D1");
        EXPECT_NEAR(nombre.ys[0] + 240.0 * nombre.letra.puntos / 9.0, banda + 2 * fila, 0.01) << "its row";
        const double titulo = imp.Primero("G1").ys[0], fichero = imp.Primero("Fichero").ys[0];
        const double cursores = imp.Primero("Cursor 1").ys[0];
        EXPECT_TRUE(titulo + 200 < fichero && fichero + 200 < cursores && cursores + 200 < 1000.0);
    }
    EleccionManual(s).Entrega();
    prueba::Grabadora imp;
    const HojaOndas h = HojaDigital(s, imp, {10000.0, 5000.0, {0, 200, 2.0F}, FilasDigitales(s)}, {});
    EXPECT_TRUE(h.cajas.empty() && h.curvas.at(0).xs.size() == 200);
    ImprimeHoja(imp, h);
    EXPECT_EQ(imp.Primero("G1").texto, "");
    EXPECT_TRUE(HojaDigital(s, imp, {10000.0, 1100.0, {0, 200, 2.0F}, {{2, "D"}}}, {}).cajas.empty())
        << "rows below the paper of a window too low for any";
}

TEST(LugaresDigital, LabelsAndNamesMissTheirPlacesOrTheFrame)
{
    const LugaresGrid g = ColocaGrid({19104.0, 10870.0, 19044.0, 10400.0});
    EXPECT_NEAR(g.anchoEtiqueta, 10870.0 / 7.0, 0.1);
    EXPECT_NEAR(g.Grupo(16).izquierda, 7 * g.anchoEtiqueta, 0.1);
    EXPECT_NEAR(g.Grupo(9).arriba, 20 * g.paso + 16.0, 0.1);
    EXPECT_LE(g.Grupo(16).Abajo(), 10400.0 + 0.1);
    EXPECT_NEAR(ColocaGrid({9526.0, 6117.0, 9406.0, 9000.0}).altoEtiqueta, 9526.0 / 63.0, 0.1);
    EXPECT_NEAR(ColocaGrid({12000.0, 20000.0, 11900.0, 19500.0}).resto.Derecha(), 11900.0 - 120.0, 0.1);

    const MedidasControles m;
    for (const bool ancha : {true, false}) {
        const auto l = ColocaDigital({12000.0, 9000.0, 11900.0, 600.0, ancha, true}, m);
        ASSERT_TRUE(l);
        EXPECT_EQ(l->Picture1.izquierda > 0.0, ancha);
        EXPECT_NEAR(l->label[18].Abajo(), BaseFila(19, AltoFila(7900.0)), 0.01);
        EXPECT_LT(l->label[18].Derecha(), l->Picture1.izquierda + 1200.0);
        EXPECT_NEAR(l->lblamar.ancho, (ancha ? 1.0 : 0.75) * l->label[0].ancho, 0.01);
        EXPECT_EQ(l->lblizq.izquierda, l->HScroll1.izquierda);
        EXPECT_EQ(l->lblder.izquierda, l->HScroll2.izquierda);
        EXPECT_GE(l->lbl_PS.izquierda, l->pctimpresora.Derecha());
    }
    EXPECT_FALSE(ColocaDigital({12000.0, 1300.0, 11900.0, 600.0}, m));
}

}  // namespace
}  // namespace veldix
