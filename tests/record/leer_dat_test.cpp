#include "record/leer_dat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "record/avance.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Carpeta;
using prueba::Separa;

/// A store as the `.cfg` leaves it: channel c has the factor c and the offset 0.
RecordStore Prepara(const char* revision, int analog, int digital, int muestras)
{
    RecordStore s;
    s.RevisionCfg = revision;
    s.NumAnalog = static_cast<std::int16_t>(analog);
    s.NumDigital = static_cast<std::int16_t>(digital);
    s.FrecMuestras = Tabla1<std::int16_t>(1);
    s.UltimaMuestra = Tabla1<std::int16_t>(1);
    s.UltimaMuestra(1) = static_cast<std::int16_t>(muestras);
    if (analog > 0) {
        s.FactorA = s.FactorB = s.Skew = Tabla1<float>(analog);
        for (int c = 1; c <= analog; ++c)
            s.FactorA(c) = static_cast<float>(c);
        if (s.RevisionCfg == "1997") s.Relacion = Tabla1<FilaRelacion>(analog);
    }
    return s;
}

void LeeAscii(RecordStore& s, const std::string& texto)
{
    const Carpeta carpeta;
    s.FicheroDat = carpeta.Escribe("rec.dat", texto);
    EXPECT_EQ(LeerDatAscii(s), 0);
}

void LeeBin(RecordStore& s, const std::string& octetos)
{
    const Carpeta carpeta;
    s.FicheroDat = carpeta.Escribe("rec.dat", octetos);
    EXPECT_EQ(LeerDatBin(s), 0);
}

/// A BINARY sample: number, time, then 16-bit values.
std::string Muestra(std::int32_t numero, std::int32_t tiempo, const std::vector<int>& palabras)
{
    std::string o;
    const auto pon = [&o](std::uint32_t v, int octetos) {
        for (int k = 0; k < octetos; ++k)
            o += static_cast<char>(v >> (8 * k) & 0xFFU);
    };
    pon(static_cast<std::uint32_t>(numero), 4);
    pon(static_cast<std::uint32_t>(tiempo), 4);
    for (const int p : palabras)
        pon(static_cast<std::uint32_t>(p), 2);
    return o;
}

/// A row of a table as text, nothing where there is no table.
template <class T>
std::string Fila(const Tabla2<T>& t, int f)
{
    std::ostringstream o;
    o.precision(9);
    for (int c = 1; c <= t.Columnas(); ++c)
        o << (c > 1 ? " " : "") << t(f, c);
    return o.str();
}

TEST(LeerDat, ScalingAndRawValuesWrong)
{
    RecordStore a = Prepara("1991", 3, 2, 2);
    a.FactorB(2) = -0.5F;
    a.FactorA(3) = 0.1F;
    a.FactorB(3) = 0.3F;
    RecordStore b = a;
    LeeAscii(a, "1,-5,100,-7,10,0,1\r\n2,995,-32768,32767,13,1,0\r\n");
    LeeBin(b, Muestra(1, -5, {100, -7, 10, 2}) + Muestra(2, 995, {-32768, 32767, 13, 1}));
    for (const RecordStore* s : {&a, &b}) {
        EXPECT_EQ(Fila(s->Muestras, 1), "100 -14.5 1.30000007");  // rounded once: twice gives 1.29999995
        EXPECT_EQ(Fila(s->Muestras, 2), "-32768 65533.5 1.60000002");
        EXPECT_EQ(Fila(s->MuestrasDig, 1) + '/' + Fila(s->MuestrasDig, 2), "0 1/1 0");
        EXPECT_EQ(s->Tiempos(1), -5);
        EXPECT_EQ(s->Tiempos(2), 995);
        EXPECT_EQ(s->FrecMuestreo, 1000);
        EXPECT_TRUE(s->MuestrasPrim.Vacia() && s->MuestrasSec.Vacia());
    }
}

/// Raw value 6 in all, so v is 6, 12, 18; expected the primary and the secondary rows of both samples.
TEST(LeerDat, RatiosOfOtherChannelsOrSides)
{
    struct {
        FilaRelacion canal1, canal2, canal3;
        const char *primera, *segunda;
    } const casos[] = {
        // 18 times the float32 next to 0.4.
        {{2, 1, "P"}, {2, 1, " s "}, {10, 4, "p"}, "6 24 18/3 12 7.20000029", "6 24 18/3 12 7.20000029"},
        {{1, 1, "P"}, {2, 1, "P"}, {2, 1, "S"}, "6 12 36/6 6 18", "6 12 36/6 6 18"},
        {{1, 1, ""}, {1, 1, "X"}, {2, 1, "PS"}, "0 0 0/0 0 0", "0 0 0/0 0 0"},
        {{2, 1, "S"}, {1, 1, "S"}, {1, 2, "S"}, "12 12 9/6 12 18", "12 12 9/6 12 18"},
        // A zero divisor leaves the ratio of the channel before, also of one without a side.
        {{2, 1, "S"}, {3, 0, "S"}, {3, 0, "P"}, "12 24 18/6 12 0", "12 24 18/6 12 0"},
        {{5, 1, "S"}, {4, 2, "-"}, {0, 0, "S"}, "30 0 36/6 0 18", "30 0 36/6 0 18"},
        // The first channel finds none before it, and in the second sample that of the last channel.
        {{0, 1, "P"}, {0, 1, "P"}, {2, 1, "P"}, "6 12 18/0 0 9", "6 12 18/3 6 9"},
        {{0, 0, "S"}, {0, 0, "P"}, {4, 2, "S"}, "0 12 36/6 0 18", "12 12 36/6 6 18"},
    };
    for (const auto& c : casos) {
        RecordStore a = Prepara("1997", 3, 0, 2);
        a.Relacion(1) = c.canal1;
        a.Relacion(2) = c.canal2;
        a.Relacion(3) = c.canal3;
        RecordStore b = a;
        LeeAscii(a, "1,0,6,6,6\n2,500,6,6,6\n");
        LeeBin(b, Muestra(1, 0, {6, 6, 6}) + Muestra(2, 500, {6, 6, 6}));
        for (const RecordStore* s : {&a, &b}) {
            SCOPED_TRACE(c.segunda);
            EXPECT_EQ(Fila(s->MuestrasPrim, 1) + '/' + Fila(s->MuestrasSec, 1), c.primera);
            EXPECT_EQ(Fila(s->MuestrasPrim, 2) + '/' + Fila(s->MuestrasSec, 2), c.segunda);
            const bool directa = c.canal1.Primario == 1 && c.canal1.Secundario == 1;
            EXPECT_EQ(Fila(s->Muestras, 2), directa ? "6 12 18" : "0 0 0") << "channel 1 alone decides";
        }
    }
}

TEST(LeerDat, TimeMultiplierAppliedInBinaryOrLostInAscii)
{
    for (const auto& [mult, tiempo, frec] :
         {std::tuple(10, 250, 4000), {0, 25, 77}, {-1, -25, 77}, {-40, -1000, -1000}}) {
        RecordStore s = Prepara("1997", 1, 0, 2);
        s.TimeMult = static_cast<std::int16_t>(mult);
        s.FrecMuestreo = 77;  // kept where it would not fit
        LeeAscii(s, "1,x,0\n2, 2.5e1,0\n");
        EXPECT_EQ(s.Tiempos(2), tiempo) << mult;
        EXPECT_EQ(s.FrecMuestreo, frec) << mult;
        LeeBin(s, Muestra(1, 100, {0}) + Muestra(2, 350, {0}));
        EXPECT_EQ(s.Tiempos(2), 350) << mult;
        EXPECT_EQ(s.FrecMuestreo, 4000) << mult;
    }
}

TEST(LeerDat, SamplingFrequencyLostWhereTimesGiveNone)
{
    const std::pair<int, int> casos[] = {{5, 77}, {35, 77}, {36, 32258}, {400005, 2}, {666672, 1}};
    for (const auto& [t2, frec] : casos) {
        RecordStore s = Prepara("1991", 1, 0, 2);
        s.FrecMuestreo = 77;
        LeeBin(s, Muestra(1, 5, {0}) + Muestra(2, t2, {0}));
        EXPECT_EQ(s.FrecMuestreo, frec) << t2;
        s.UltimaMuestra(1) = 1;
        EXPECT_EQ(LeerDatBin(s), 0);
        EXPECT_EQ(s.FrecMuestreo, frec) << "one sample";
    }
}

TEST(LeerDat, DigitalWordsMisaligned)
{
    const std::string estados = "1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 1 0 0 0 0 0 0 0 0 1 0 1 1 0 1 0 0 1";
    for (const int digital : {0, 1, 15, 16, 17, 32, 33, 34}) {
        SCOPED_TRACE(digital);
        std::vector<int> fila{7, -32767, 0x5A01, 0xFFFE};
        fila.resize(1 + static_cast<std::size_t>(digital + 15) / 16);
        RecordStore s = Prepara("1991", 1, digital, 2);
        LeeBin(s, Muestra(1, 0, fila) + Muestra(2, 1, fila));
        EXPECT_EQ(s.Muestras(2, 1), 7) << "the next sample starts at the wrong place";
        EXPECT_EQ(Fila(s.MuestrasDig, 2),
                  estados.substr(0, digital == 0 ? 0 : 2 * static_cast<std::size_t>(digital) - 1));
    }
}

TEST(LeerDat, FileShorterOrLongerThanDeclared)
{
    const std::string bin = Muestra(1, 10, {5, 1}) + Muestra(2, 20, {6, 1}) + Muestra(3, 30, {7, 1});
    for (std::size_t faltan = 0; faltan <= 12; ++faltan) {
        RecordStore s = Prepara("1991", 1, 1, 3);
        LeeBin(s, bin.substr(0, bin.size() - faltan));
        EXPECT_EQ(s.Muestras(2, 1), 6);
        const float suma = s.Muestras(3, 1) + s.Tiempos(3) + static_cast<float>(s.MuestrasDig(3, 1));
        EXPECT_EQ(suma, faltan == 0 ? 38 : 0) << faltan;
    }
    RecordStore s = Prepara("1991", 1, 1, 2);
    LeeBin(s, bin.substr(0, 11));
    EXPECT_EQ(Fila(s.Muestras, 1), "0") << "less than a sample";
    for (const bool binario : {false, true}) {
        binario ? LeeBin(s, bin) : LeeAscii(s, "1,10,5,1\r\n2,20,6,1\r\n3,30,7,1\r\n");
        EXPECT_EQ(s.Muestras.UBound(1), 2);
        EXPECT_EQ(s.Muestras(2, 1), 6);
        s.FicheroDat = "/no/such/rec.dat";
        EXPECT_EQ((binario ? LeerDatBin : LeerDatAscii)(s), 0);
        EXPECT_EQ(s.Muestras.UBound(1), 2);
        EXPECT_EQ(Fila(s.Muestras, 2) + Fila(s.MuestrasDig, 2), "00");
    }
}

/// Sample 2 of three is the broken line; its neighbours must stay whole. Channel 2 counts double.
TEST(LeerDatAscii, BrokenLineMisread)
{
    struct {
        const char* linea;
        int digital;
        const char* leida;
    } const casos[] = {
        {"2,20,4,5,1,1,9,9", 2, "20/4 10/1 1"},
        {"2,20,4,5,1", 2, "20/4 10/0 0"},  // state 1 lacks the comma that ends it
        {"2,20,4,5,1,", 2, "20/4 10/1 0"},
        {"2,20,4,5", 2, "20/4 0/0 0"},
        {"2,20,4,5", 0, "20/4 10/"},
        {"2,20,4,5,", 0, "20/4 10/"},
        {"2,20,4", 0, "20/0 0/"},
        {"2,20", 2, "0/0 0/0 0"},
        {"2", 2, "0/0 0/0 0"},
        {"", 2, "0/0 0/0 0"},
        {"2,20,,5,,1", 2, "20/0 10/0 1"},
        {"2,20,4,5,,,1", 3, "20/4 10/0 0 1"},
        {"2,20,x,5,y,1", 2, "20/0 10/0 1"},
        {"2,20,3A,5 ,1 , 1", 2, "20/0 10/1 1"},
        {"x,zz,+4,-5,1.0,2", 2, "0/4 -10/1 2"},
        {"2,1e300,1e2,5E-1,40000,1", 2, "0/100 1/0 1"},
        {"2,20,inf,nan,1,0x1", 2, "20/0 0/1 0"},
        {"2,20,1e39,3e38,1,0", 2, "20/0 0/1 0"},
        {"2,20,.5,5.,1,0", 2, "20/0.5 10/1 0"},
        {"2,20,--4,4-,1,-1", 2, "20/0 0/1 -1"},
    };
    const Separa puntos(".", "");
    for (const auto& c : casos) {
        SCOPED_TRACE(c.linea);
        RecordStore s = Prepara("1991", 2, c.digital, 3);
        const std::string otra = c.digital > 0 ? "9,30,8,8,1,1" : "9,30,8,8";
        LeeAscii(s, otra + "\n" + c.linea + "\n" + otra);
        EXPECT_EQ(std::to_string(std::lround(s.Tiempos(2))) + '/' + Fila(s.Muestras, 2) + '/' +
                      Fila(s.MuestrasDig, 2),
                  c.leida);
        EXPECT_EQ(Fila(s.Muestras, 1) + Fila(s.Muestras, 3), "8 168 16");
    }
}

TEST(LeerDatAscii, SamplesByTheWrongSeparators)
{
    struct {
        const char *decimal, *grupo, *campo;
        double valor;
    } const casos[] = {
        {".", "", "12.5", 12.5},     {",", ".", "12.5", 125},        {",", "\u202F", "12.5", 0},
        {".", ",", "12.5", 12.5},    {",", ".", "1.234.5", 12345},   {",", "\u202F", "1\u202F234", 1234},
        {",", ".", "-1.5e2", -1500}, {",", ".", "1234567", 1234567},
    };
    for (const auto& c : casos) {
        const Separa separa(c.decimal, c.grupo);
        RecordStore s = Prepara("1991", 1, 0, 2);
        LeeAscii(s, std::string("1,0,") + c.campo + "\n2,12.5,1\n");
        EXPECT_EQ(s.Muestras(1, 1), c.valor) << c.decimal << ' ' << c.campo;
        EXPECT_EQ(s.Tiempos(2), 12.5) << "time stamps take the point in every locale";
    }
}

TEST(LeerDat, ValueBeyondFloat32StoredAsInfinity)
{
    RecordStore a = Prepara("1997", 2, 0, 1);
    a.FactorA(1) = 3e38F;
    a.FactorA(2) = 1;
    a.Relacion(1) = a.Relacion(2) = {1e38F, 1, "S"};
    RecordStore b = a;
    LeeAscii(a, "1,0,2,1000\n");
    LeeBin(b, Muestra(1, 0, {2, 1000}));
    for (const RecordStore* s : {&a, &b})
        EXPECT_EQ(Fila(s->MuestrasPrim, 1) + '/' + Fila(s->MuestrasSec, 1), "0 0/0 1000");
}

TEST(LeerDat, TableBeyondAGibibyteStopsTheReading)
{
    RecordStore s = Prepara("1991", 32767, 1, 32767);
    s.FrecMuestreo = 5;
    for (const auto lector : {LeerDatAscii, LeerDatBin}) {
        const Carpeta carpeta;
        s.FicheroDat = carpeta.Escribe("rec.dat", "1,0,1,1\n2,500,1,1\n");
        EXPECT_EQ(lector(s), 0);
        EXPECT_TRUE(s.Muestras.Vacia() && s.MuestrasDig.Vacia() && s.Tiempos.Vacia());
        EXPECT_EQ(s.FrecMuestreo, 5);
    }
    RecordStore chico = Prepara("1991", 1, 0, 1);
    LeeAscii(chico, "1,0,3\n");
    EXPECT_EQ(chico.Muestras(1, 1), 3);
}

TEST(LeerDat, SamplesOfAnEarlierRecordKept)
{
    struct {
        int analog, muestras;
    } const casos[] = {{0, 2}, {1, 0}, {1, -3}};
    for (const auto lector : {LeerDatAscii, LeerDatBin}) {
        for (const auto& c : casos) {
            RecordStore s = Prepara("1997", 1, 1, 2);
            s.Relacion(1) = {1, 1, "P"};
            LeeAscii(s, "1,0,5,1\n2,10,6,1\n");
            ASSERT_EQ(s.MuestrasPrim(2, 1), 6);
            s.NumAnalog = static_cast<std::int16_t>(c.analog);
            s.UltimaMuestra(1) = static_cast<std::int16_t>(c.muestras);
            EXPECT_EQ(lector(s), 0);
            EXPECT_TRUE(s.Muestras.Vacia() && s.MuestrasPrim.Vacia() && s.MuestrasSec.Vacia());
            EXPECT_TRUE(s.MuestrasDig.Vacia() && s.Tiempos.Vacia());
        }
    }
}

TEST(LeerDat, GaugeMovedAtTheWrongStride)
{
    // Stride round(n / 90), halves to even; a step each stride + 1 samples.
    const std::pair<int, int> casos[] = {{1, 1}, {44, 44}, {45, 45}, {46, 23}, {90, 45}, {960, 80}};
    for (const auto lector : {LeerDatAscii, LeerDatBin}) {
        for (const auto& [muestras, pasos] : casos) {
            const Carpeta carpeta;
            RecordStore s = Prepara("1991", 1, 0, muestras);
            std::string octetos;
            for (int i = 1; i <= muestras; ++i)
                octetos += lector == &LeerDatBin ? Muestra(i, i, {i}) : "1,1,1\n";
            s.FicheroDat = carpeta.Escribe("rec.dat", octetos);
            int movidos = 0;
            ganchosRegistro.LlenarGasolino = [&](bool relativo, std::int16_t valor) {
                EXPECT_TRUE(relativo && valor == 1);
                ++movidos;
            };
            lector(s);
            ganchosRegistro = {};
            EXPECT_EQ(movidos, pasos) << muestras;
        }
    }
}

TEST(LeerDatAscii, LineEndLostAtAChunkBorder)
{
    constexpr std::size_t kTrozo = std::size_t{256} << 10;
    for (const std::string fin : {"\n", "\r\n", "\r"}) {
        // The end of a line starts from three octets before each border to two behind it.
        for (std::size_t sitio = kTrozo - 3; sitio <= kTrozo + 2; ++sitio) {
            std::string texto;
            int lineas = 0;
            for (std::size_t borde = sitio; texto.size() < 620000; ++lineas) {
                std::string linea = std::string(40, ' ') + "1,0," + std::to_string(lineas);
                if (texto.size() + 200 > borde) {
                    linea.insert(0, borde - texto.size() - linea.size(), ' ');
                    borde += kTrozo;
                }
                texto += linea + fin;
            }
            RecordStore s = Prepara("1991", 1, 0, lineas + 2);
            LeeAscii(s, texto);
            int malas = 0;
            for (int i = 0; i < lineas; ++i)
                malas += s.Muestras(i + 1, 1) != static_cast<float>(i);
            EXPECT_EQ(malas, 0) << fin.size() << ' ' << sitio;
            EXPECT_EQ(s.Muestras(lineas + 1, 1), 0) << "a line too many";
        }
    }
}

TEST(LeerDatAscii, LineLongerThanAChunkBroken)
{
    constexpr int kCanales = 30000;
    RecordStore s = Prepara("1991", kCanales, 2, 3);
    std::string linea = "1,0," + std::string(99999, ' '), texto;
    for (int c = 1; c <= kCanales; ++c)
        linea += std::to_string(100000 + c) + ",";
    for (const char* digitales : {"0,1", "1,0", "1,1"})
        texto += linea + digitales + "\r\n";
    std::fill(s.FactorA.begin(), s.FactorA.end(), 1.0F);
    LeeAscii(s, texto);
    int malos = 0;
    for (int i = 1; i <= 3; ++i)
        for (int c = 1; c <= kCanales; ++c)
            malos += s.Muestras(i, c) != static_cast<float>(100000 + c);
    EXPECT_EQ(malos, 0);
    EXPECT_EQ(Fila(s.MuestrasDig, 1) + '/' + Fila(s.MuestrasDig, 2) + '/' + Fila(s.MuestrasDig, 3),
              "0 1/1 0/1 1");
}

}  // namespace
}  // namespace veldix
