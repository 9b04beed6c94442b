#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "platform/ficheros.h"
#include "platform/textos.h"
#include "record/abrir_registro.h"
#include "record/avance.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Carpeta;
using prueba::RespondeCajas;

template <class F>
int NumeroDeError(F f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

class AbrirRegistroTest : public testing::Test {
protected:
    AbrirRegistroTest()
    {
        std::string lineas;
        for (int n = 1; n <= kNumTextos; ++n)
            lineas += "Texto " + std::to_string(n) + "\r\n";
        CargaTextos(carpeta.Escribe("textos.ini", lineas));
        ganchosRegistro.MuestraGasolino = [this] { hechos.emplace_back("show"); };
        ganchosRegistro.DescargaGasolino = [this] {
            EXPECT_EQ(cajas.Pendientes(), 0U) << "the gauge is gone before the message";
            hechos.emplace_back("unload");
        };
        ganchosRegistro.LlenarGasolino = [this](bool relativo, std::int16_t v) {
            hechos.push_back((relativo ? "+" : "=") + std::to_string(v));
        };
        ganchosRegistro.EscribeSesion = [this] { hechos.emplace_back("session"); };
    }
    ~AbrirRegistroTest() override
    {
        ganchosRegistro = {};
        VaciaTextos();
    }

    /// A record of one analog channel; `linea1` and `formato` as given.
    std::int16_t Abre(const char* linea1, const char* formato, const std::string& dat, int analog = 1)
    {
        std::vector<std::string> lineas{linea1, "1," + std::to_string(analog) + "A,0D"};
        for (int c = 0; c < analog; ++c)
            lineas.emplace_back("1,IA,A,C,kA,2,0,0,-1,1,1,1,P");
        lineas.insert(lineas.end(), {"50", "1", "1000,2", "f", "g", formato, "1"});
        s.FicheroCfg = carpeta.Escribe("rec.cfg", Une(lineas));
        s.FicheroDat = carpeta.Escribe("rec.dat", dat);
        hechos.clear();
        return AbrirRegistro(s);
    }

    const Carpeta carpeta;
    RespondeCajas cajas;
    std::vector<std::string> hechos;
    RecordStore s;
};

const char* const kAnio = ".cfg COMTRADE file is not OK, you must check the year of revision ";
const char* const kAscii = "1,0,3\n2,1000,4\n";
const std::vector<std::string> kBien{"show", "+0", "+5", "+1", "+1", "session", "unload"};
const std::vector<std::string> kSinMuestras{"show", "+0", "+5", "session", "unload"};
const std::vector<std::string> kMal{"show", "+0", "+5", "unload"};

TEST_F(AbrirRegistroTest, GaugeReadingAndSessionOutOfOrder)
{
    EXPECT_EQ(Abre("A,B,1997", " ascii ", kAscii), 0);
    EXPECT_EQ(hechos, kBien);
    EXPECT_EQ(s.FormatoDat, "ASCII");
    EXPECT_EQ(s.Muestras(2, 1), 8);
    EXPECT_EQ(Abre("A,B", "Binary  ", std::string("\1\0\0\0\0\0\0\0\5\0\2\0\0\0\1\0\0\0\6\0", 20)), 0);
    EXPECT_EQ(hechos, kBien);
    EXPECT_EQ(s.FormatoDat, "BINARY");
    EXPECT_EQ(s.Muestras(2, 1), 12);
    EXPECT_EQ(Abre("A,B", "ASCII", kAscii, 0), 0);
    EXPECT_EQ(hechos, kSinMuestras);
    EXPECT_TRUE(s.Muestras.Vacia());
}

TEST_F(AbrirRegistroTest, RefusedYearErasesTheEarlierRecord)
{
    Abre("A,B", "ASCII", kAscii);
    cajas.Espera(kAnio, Icono::Ninguno);
    EXPECT_EQ(Abre("A,B,1999", "ASCII", "1,0,7\n2,1000,7\n"), -1);
    EXPECT_EQ(hechos, kMal);
    EXPECT_TRUE(s.AnioMal);
    EXPECT_FALSE(s.ErrorFormato);
    EXPECT_EQ(s.Muestras(2, 1), 8);
    EXPECT_EQ(Abre("A,B,1997", "ASCII", kAscii), 0);
    EXPECT_FALSE(s.AnioMal);
}

TEST_F(AbrirRegistroTest, UnknownFormatKeepsTheEarlierCurves)
{
    for (const char* formato : {"FLOAT32", "", "ASCII,", "ASC II"}) {
        SCOPED_TRACE(formato);
        ASSERT_EQ(Abre("A,B,1997", "ASCII", kAscii), 0);
        EXPECT_FALSE(s.ErrorFormato);
        ASSERT_FALSE(s.MuestrasPrim.Vacia());
        cajas.Espera("Texto 277", Icono::Ninguno);
        EXPECT_EQ(Abre("A,B,1997", formato, kAscii), -1);
        EXPECT_EQ(hechos, kMal);
        EXPECT_TRUE(s.ErrorFormato);
        EXPECT_TRUE(s.Muestras.Vacia() && s.MuestrasPrim.Vacia() && s.MuestrasSec.Vacia());
        EXPECT_TRUE(s.Tiempos.Vacia() && s.MuestrasDig.Vacia());
    }
    s.FicheroCfg.clear();
    cajas.Espera("Texto 277", Icono::Ninguno);
    EXPECT_EQ(AbrirRegistro(s), -1) << "a missing configuration file";
}

TEST(ReiniciaRegistro, OldPhasorsOrColoursKept)
{
    RecordStore s;
    s.DFTHecha = true;
    ReiniciaRegistro(s);
    EXPECT_FALSE(s.DFTHecha);
    EXPECT_TRUE(s.RegistroAbierto);
    EXPECT_EQ(s.Colores, (std::array<std::uint8_t, 15>{9, 10, 12, 11, 14, 13, 15, 0, 1, 2, 4, 3, 6, 5, 7}));
}

TEST(CierraRegistro, PartOfTheRecordLeftOpen)
{
    RecordStore s;
    NombraPorTronco(s, VELDIX_SOURCE "/examples/falta_1997.dat");
    ASSERT_EQ(AbrirRegistro(s), 0);
    ReiniciaRegistro(s);
    AplicaReferencia(s, Lado::Primario);
    TablaMinMax(s, s.Muestras);
    s.FicheroCnf = "x.cnf";
    s.DirIni = "ini";
    s.Idioma = 1;
    s.AltoPantalla = 15000;
    s.NumTrifasicPlan = s.NumCanalDig = s.NumVentanasOnda = 3;
    s.Trifasic = Tabla1<FilaTrifasic>(2);
    s.GruposEdit = Tabla1<FilaGrupoEdit>(2);
    s.VersionPlantilla = s.VersionPlan = "ver 1.1";
    s.PlantillaAplicada = s.PlantillaNoValida = s.DFTHecha = s.ErrorFormato = true;
    const std::string dat = s.FicheroDat, cfg = s.FicheroCfg, hdr = s.FicheroHdr;

    CierraRegistro(s);
    for (const std::string* t :
         {&s.FechaInicio, &s.FechaDisparo, &s.EstacionPlan, &s.VersionPlan, &s.AnioCfg, &s.RevisionCfg})
        EXPECT_EQ(*t, "0");
    EXPECT_EQ(s.NombreEstacion + s.FormatoDat + s.VersionPlantilla, "");
    EXPECT_EQ(s.NumCanales + s.NumAnalog + s.NumDigital + s.FrecLinea + s.NumFrecuencias + s.TimeMult, 0);
    EXPECT_EQ(s.NumAnalogPlan + s.NumDigitalPlan + s.NumCanalAnalog + s.NumTrifasicPlan + s.NumCanalDig, 0);
    EXPECT_EQ(s.FrecMuestreo + s.NumVentanasOnda, 0);
    EXPECT_TRUE(s.Canales.Vacia() && s.CanalesPlan.Vacia() && s.Trifasic.Vacia() && s.GruposEdit.Vacia());
    EXPECT_TRUE(s.FactorA.Vacia() && s.Relacion.Vacia() && s.NombreDig.Vacia() && s.UltimaMuestra.Vacia());
    EXPECT_TRUE(s.Muestras.Vacia() && s.MuestrasPrim.Vacia() && s.MuestrasDig.Vacia() && s.Tiempos.Vacia());
    EXPECT_TRUE(s.MinCanal.Vacia() && s.MaxCanal.Vacia());
    EXPECT_FALSE(s.RegistroAbierto || s.PlantillaAplicada || s.PlantillaNoValida || s.EnPrimario);
    EXPECT_FALSE(s.DFTHecha || s.ErrorFormato);
    EXPECT_EQ(s.Colores, (std::array<std::uint8_t, 15>{}));
    EXPECT_EQ(s.FicheroDat, dat);
    EXPECT_EQ(s.FicheroCfg, cfg);
    EXPECT_EQ(s.FicheroHdr, hdr);
    EXPECT_EQ(s.FicheroCnf + s.DirIni, "x.cnfini");
    EXPECT_EQ(s.Idioma, 1);
    EXPECT_EQ(s.AltoPantalla, 15000);
}

TEST(TablaMinMax, ZeroLeftOutOfTheRange)
{
    Tabla2<float> t(3, 4);
    const float filas[3][4] = {{3, -5, -1, 0}, {7, -2, 4, 0}, {5, -9, 2, 0}};
    for (int i = 1; i <= 3; ++i)
        std::copy_n(filas[i - 1], 4, t.fila(i));
    RecordStore s;
    s.MinCanal = s.MaxCanal = Tabla1<float>(9);
    TablaMinMax(s, t);
    EXPECT_EQ(std::vector<float>(s.MinCanal.begin(), s.MinCanal.end()), (std::vector<float>{0, -9, -1, 0}));
    EXPECT_EQ(std::vector<float>(s.MaxCanal.begin(), s.MaxCanal.end()), (std::vector<float>{7, 0, 4, 0}));
    EXPECT_EQ(NumeroDeError([&] { TablaMinMax(s, Tabla2<float>()); }), 9);
}

TEST(EtiquetaCanal, WrongOneOfNameAndCircuit)
{
    struct {
        const char *nombre, *circuito, *etiqueta, *nombreCanal;
    } const casos[] = {
        {"VA", "LINEA", "LINEA", "VA"}, {"VA", "L1", "L1", "VA"}, {"VAN", "L1", "VAN", "VAN"},
        {"Ñu", "ab", "ab", "Ñu"},       {"VA", "", "VA", "VA"},   {"", "L1", "L1", "L1"},
        {"VA", "   ", "   ", "VA"},     {"", "", "", ""},         {" ", "", " ", " "},
    };
    RecordStore s;
    s.Canales = s.CanalesPlan = Tabla1<FilaCanal>(2);
    for (const auto& c : casos) {
        s.Canales(2) = s.CanalesPlan(1) = {"7", c.nombre, c.circuito, "A"};
        EXPECT_EQ(EtiquetaCanal(s, 2), c.etiqueta) << c.nombre << '/' << c.circuito;
        EXPECT_EQ(NombreCanal(s, 2), c.nombreCanal) << c.nombre << '/' << c.circuito;
        EXPECT_EQ(NombreCanalPlan(s, 1), c.nombreCanal) << c.nombre << '/' << c.circuito;
    }
    EXPECT_EQ(NumeroDeError([&] { EtiquetaCanal(s, 3); }), 9);
}

TEST(AplicaReferencia, BothSidesFlaggedOrAnotherRevisionTouched)
{
    RecordStore s;
    s.RevisionCfg = "1997";
    EXPECT_EQ(NumeroDeError([&] { AplicaReferencia(s, Lado::Primario); }), 9);
    s.Muestras = s.MuestrasPrim = s.MuestrasSec = Tabla2<float>(2, 2);
    s.MuestrasPrim(2, 2) = 100;
    s.MuestrasSec(2, 2) = 5;
    for (const bool primario : {true, false, true}) {
        AplicaReferencia(s, primario ? Lado::Primario : Lado::Secundario);
        EXPECT_EQ(s.Muestras(2, 2), primario ? 100 : 5);
        EXPECT_EQ(s.EnPrimario, primario);
        EXPECT_EQ(s.EnSecundario, !primario);
    }
    s.RevisionCfg = "1991";
    AplicaReferencia(s, Lado::Secundario);
    EXPECT_EQ(s.Muestras(2, 2), 100);
    EXPECT_TRUE(s.EnPrimario && !s.EnSecundario);
}

TEST(MuestrasPorSegundo, DeclaredRateOfZeroTaken)
{
    RecordStore s;
    s.FrecMuestreo = 960;
    EXPECT_EQ(NumeroDeError([&] { MuestrasPorSegundo(s); }), 9);
    s.FrecMuestras = Tabla1<std::int16_t>(2);
    s.FrecMuestras(2) = 500;
    EXPECT_EQ(MuestrasPorSegundo(s), 960);
    s.FrecMuestras(1) = 1600;
    EXPECT_EQ(MuestrasPorSegundo(s), 1600);
}

RecordStore Ejemplo(const std::string& nombre)
{
    RecordStore s;
    NombraPorTronco(s, std::string(VELDIX_SOURCE "/examples/") + nombre + ".dat");
    EXPECT_EQ(AbrirRegistro(s), 0) << nombre;
    EXPECT_FALSE(s.FicheroDat.empty() || s.FicheroCfg.empty() || s.FicheroHdr.empty()) << nombre;
    return s;
}

double Eficaz(const Tabla2<float>& t, int canal, int desde)
{
    double suma = 0;
    for (int i = desde; i < desde + 32; ++i)
        suma += double{t(i, canal)} * double{t(i, canal)};
    return std::sqrt(suma / 32);
}

TEST(DemostrationRecords, FormsDifferOrLeaveTheToldStory)
{
    const RespondeCajas ninguna;
    RecordStore a = Ejemplo("falta_1997"), b = Ejemplo("falta_1997b"), v = Ejemplo("falta_1991");
    ASSERT_EQ(a.FormatoDat + b.FormatoDat + v.FormatoDat, "ASCIIBINARYASCII");
    for (const RecordStore* s : {&a, &b, &v}) {
        ASSERT_EQ(s->Muestras.Filas(), 2560);
        ASSERT_EQ(s->Muestras.Columnas(), 8);
        ASSERT_EQ(s->MuestrasDig.Columnas(), 24);
        EXPECT_EQ(s->FrecMuestreo, 1600);
        EXPECT_EQ(s->Tiempos(2560), 1599375);
    }
    EXPECT_EQ(v.RevisionCfg, "1991");
    for (int i = 1; i <= 2560; ++i) {
        for (int c = 1; c <= 8; ++c) {
            ASSERT_EQ(a.MuestrasPrim(i, c), b.MuestrasPrim(i, c)) << i << ' ' << c;
            ASSERT_EQ(a.MuestrasSec(i, c), b.MuestrasSec(i, c)) << i << ' ' << c;
            ASSERT_EQ(a.Muestras(i, c) + b.Muestras(i, c), 0) << "no reference was chosen";
            ASSERT_NEAR(v.Muestras(i, c), a.MuestrasPrim(i, c), 1e-5 * std::abs(v.Muestras(i, c)) + 1e-3);
        }
        for (int k = 1; k <= 24; ++k) {
            ASSERT_EQ(a.MuestrasDig(i, k), b.MuestrasDig(i, k)) << i << ' ' << k;
            ASSERT_EQ(a.MuestrasDig(i, k), v.MuestrasDig(i, k)) << i << ' ' << k;
        }
    }
    EXPECT_NEAR(a.MuestrasPrim(1, 1), 40.295, 1e-5);
    EXPECT_NEAR(a.MuestrasSec(1, 1), 40.295 * 0.11 / 132, 1e-7);
    EXPECT_NEAR(Eficaz(a.MuestrasPrim, 1, 1), 77.1, 0.05);
    EXPECT_NEAR(Eficaz(a.MuestrasPrim, 5, 1), 251, 0.5);
    EXPECT_NEAR(Eficaz(a.MuestrasPrim, 5, 401), 2633, 5);
    EXPECT_NEAR(Eficaz(a.MuestrasSec, 6, 401), 251.0 / 800, 0.001);
    for (const int polo : {8, 9, 10}) {
        EXPECT_EQ(a.MuestrasDig(356, polo), 0) << "trip";
        EXPECT_EQ(a.MuestrasDig(357, polo), 1) << "trip";
    }
}

}  // namespace
}  // namespace veldix
