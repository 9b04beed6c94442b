#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "platform/textos.h"
#include "record/abrir_registro.h"
#include "record/avance.h"
#include "record/disparo.h"
#include "support/soporte.h"

namespace veldix {
namespace {

TEST(AbrirRegistro, StepsOutOfOrderOrEarlierCurvesKept)
{
    const prueba::Carpeta carpeta;
    prueba::RespondeCajas cajas;
    std::string hechos;
    ganchosRegistro.MuestraGasolino = [&] { hechos += "show "; };
    ganchosRegistro.DescargaGasolino = [&] {
        EXPECT_EQ(cajas.Pendientes(), 0U) << "the gauge is gone before the message";
        hechos += "unload";
    };
    ganchosRegistro.LlenarGasolino = [&](bool relativo, std::int16_t v) {
        hechos += (relativo ? "+" : "=") + std::to_string(v) + ' ';
    };
    ganchosRegistro.EscribeSesion = [&] { hechos += "session "; };

    const std::string binario("\1\0\0\0\0\0\0\0\5\0\2\0\0\0\1\0\0\0\6\0", 20);
    const std::string texto = "1,0,3\n2,1000,4\n", bien = "show +0 +5 +1 +1 session unload";
    const struct {
        std::string formato, dat, hechos;
        float muestra;  ///< the second one, 0 for a record that is refused
    } casos[] = {
        {" ascii ", texto, bien, 8},
        {"Binary  ", binario, bien, 12},
        {"ASC II", texto, "show +0 +5 unload", 0},
        {"ASCII", texto, bien, 8},
        {"", texto, "show +0 +5 unload", 0},
    };
    RecordStore s;
    for (const auto& c : casos) {
        SCOPED_TRACE(c.formato);
        const bool abre = c.muestra != 0;
        const std::string cfg = "A,B,1997|1,1A,0D|1,IA,A,C,kA,2,0,0,-1,1,1,1,P|50|1|1000,2|f|g|";
        s.FicheroCfg = carpeta.Escribe("rec.cfg", prueba::ConFinales(cfg + c.formato + "|1"));
        s.FicheroDat = carpeta.Escribe("rec.dat", c.dat);
        hechos.clear();
        if (!abre) cajas.Espera(Textos(277), Icono::Ninguno);
        EXPECT_EQ(AbrirRegistro(s), abre ? 0 : -1);
        EXPECT_EQ(hechos, c.hechos);
        EXPECT_EQ(s.ErrorFormato, !abre);
        EXPECT_EQ(s.MuestrasPrim.Vacia() && s.MuestrasSec.Vacia() && s.Tiempos.Vacia(), !abre);
        ASSERT_EQ(s.Muestras.Vacia(), !abre);
        EXPECT_EQ(abre ? s.Muestras(2, 1) : 0, c.muestra);
    }
    ganchosRegistro = {};
}

TEST(TablaMinMax, ZeroLeftOutOfTheRange)
{
    Tabla2<float> t(2, 4);
    const float filas[] = {3, -5, -1, 0, 7, -9, 4, 0};
    std::copy(std::begin(filas), std::end(filas), t.fila(1));
    RecordStore s;
    s.MinCanal = s.MaxCanal = Tabla1<float>(9);
    TablaMinMax(s, t);
    EXPECT_EQ(std::vector<float>(s.MinCanal.begin(), s.MinCanal.end()), (std::vector<float>{0, -9, -1, 0}));
    EXPECT_EQ(std::vector<float>(s.MaxCanal.begin(), s.MaxCanal.end()), (std::vector<float>{7, 0, 4, 0}));
}

TEST(EtiquetaCanal, WrongOneOfNameAndCircuit)
{
    const struct {
        const char *nombre, *circuito, *etiqueta, *nombreCanal;
    } casos[] = {
        {"VA", "LINEA", "LINEA", "VA"}, {"VA", "L1", "L1", "VA"}, {"VAN", "L1", "VAN", "VAN"},
        {"Ñu", "ab", "ab", "Ñu"},       {"VA", "", "VA", "VA"},   {"", "L1", "L1", "L1"},
        {"VA", "   ", "   ", "VA"},
    };
    RecordStore s;
    s.Canales = s.CanalesPlan = Tabla1<FilaCanal>(2);
    for (const auto& c : casos) {
        s.Canales(2) = s.CanalesPlan(1) = {"7", c.nombre, c.circuito, "A"};
        EXPECT_EQ(EtiquetaCanal(s, 2), c.etiqueta) << c.nombre << '/' << c.circuito;
        EXPECT_EQ(NombreCanal(s, 2), c.nombreCanal) << c.nombre << '/' << c.circuito;
        EXPECT_EQ(NombreCanalPlan(s, 1), c.nombreCanal) << c.nombre << '/' << c.circuito;
    }
}

RecordStore Ejemplo(const std::string& nombre)
{
    RecordStore s;
    NombraPorTronco(s, std::string(VELDIX_SOURCE "/examples/") + nombre + ".dat");
    EXPECT_EQ(AbrirRegistro(s), 0) << nombre;
    return s;
}

double Eficaz(const Tabla2<float>& t, int canal, int desde)
{
    double suma = 0;
    for (int i = desde; i < desde + 32; ++i)
        suma += double{t(i, canal)} * double{t(i, canal)};
    return std::sqrt(suma / 32);
}

TEST(DemonstrationRecords, FormsDifferOrLeaveTheToldStory)
{
    const RecordStore a = Ejemplo("falta_1997"), b = Ejemplo("falta_1997b"), v = Ejemplo("falta_1991");
    ASSERT_EQ(a.FormatoDat + b.FormatoDat + v.FormatoDat + v.RevisionCfg, "ASCIIBINARYASCII1991");
    for (const RecordStore* s : {&a, &b, &v}) {
        ASSERT_EQ(s->Muestras.Filas(), 2560);
        ASSERT_EQ(s->Muestras.Columnas(), 8);
        ASSERT_EQ(s->MuestrasDig.Columnas(), 24);
        EXPECT_EQ(s->Tiempos(2560), 1599375);
    }
    for (int i = 1; i <= 2560; ++i) {
        for (int c = 1; c <= 8; ++c) {
            ASSERT_EQ(a.MuestrasPrim(i, c), b.MuestrasPrim(i, c)) << i << ' ' << c;
            ASSERT_EQ(a.MuestrasSec(i, c), b.MuestrasSec(i, c)) << i << ' ' << c;
            ASSERT_NEAR(v.Muestras(i, c), a.MuestrasPrim(i, c), 1e-5 * std::abs(v.Muestras(i, c)) + 1e-3);
        }
        for (int k = 1; k <= 24; ++k)
            ASSERT_TRUE(a.MuestrasDig(i, k) == b.MuestrasDig(i, k) &&
                        a.MuestrasDig(i, k) == v.MuestrasDig(i, k));
    }
    EXPECT_NEAR(Eficaz(a.MuestrasPrim, 1, 1), 77.1, 0.05);
    EXPECT_NEAR(Eficaz(a.MuestrasPrim, 5, 401), 2633, 5);
    EXPECT_NEAR(Eficaz(a.MuestrasSec, 6, 401), 251.0 / 800, 0.001);
    EXPECT_EQ(a.MuestrasDig(356, 8), 0) << "trip";
    EXPECT_EQ(a.MuestrasDig(357, 8), 1) << "trip";
}

TEST(Disparo, IsAnotherSampleOrOneOfADateThatCannotBeRead)
{
    RecordStore s;
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    s.FrecMuestras(1) = 1000;
    s.Muestras = Tabla2<float>(100, 1);
    const struct {
        const char *revision, *inicio, *disparo;
        int muestra;
    } casos[] = {{"1997", "31/12/1999,23:59:59.990000", "01/01/2000,00:00:00.010400", 21},
                 {"1991", "12/31/99,23:59:59.99", "01/01/00,00:00:00.01", 21},
                 {"1991", "02/28/96,23:59:59.99", "02/29/96,00:00:00.0151", 26},
                 {"1997", "02/28/1996,23:59:59", "02/29/1996,00:00:00", 0},
                 {"1997", " 1/2/2003 , 4:05:06.5", "1/2/2003,4:5:6.4", 1},
                 {"1997", "1/2/2003,4:05:06.5x", "1/2/2003,4:5:6.6", 0},
                 {"1997", "1/2/99999999999,4:5:6", "1/2/2003,4:5:6.6", 0},
                 {"1997", "nan/2/2003,4:5:6", "1/2/2003,4:5:6.6", 0},
                 {"1997", "99999999999/2/2003,4:5:6", "1/2/2003,4:5:6.6", 0},
                 {"1997", "", "1/2/2003,4:5:6.6", 0}};
    for (const auto& c : casos) {
        s.RevisionCfg = c.revision;
        s.FechaInicio = c.inicio;
        s.FechaDisparo = c.disparo;
        EXPECT_EQ(MuestraDeDisparo(s).value_or(0), c.muestra) << c.inicio;
    }
    s.FechaDisparo = "1/2/2003,4:5:6.505", s.FechaInicio = "1/2/2003,4:5:6.5";
    s.Tiempos = Tabla1<float>(100);
    s.TimeMult = 2;
    for (int i = 1; i <= 100; ++i)
        s.Tiempos(i) = static_cast<float>(7000 + 250 * i);
    EXPECT_EQ(MuestraDeDisparo(s).value_or(0), 11);
    s.FormatoDat = "ASCII";  // the multiplier is in the stamps
    EXPECT_EQ(MuestraDeDisparo(s).value_or(0), 21);
}

}  // namespace
}  // namespace veldix
