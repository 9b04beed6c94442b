#include "record/leer_dat.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "record/avance.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using Lector = std::int16_t (*)(RecordStore&);
using Palabras = std::vector<std::int16_t>;

/// A store as the `.cfg` leaves it: channel c has the factor c and the offset 0.
RecordStore Prepara(const char* revision, int analog, int digital, int muestras)
{
    RecordStore s;
    s.RevisionCfg = revision;
    s.NumAnalog = static_cast<std::int16_t>(analog);
    s.NumDigital = static_cast<std::int16_t>(digital);
    s.UltimaMuestra = Tabla1<std::int16_t>(1);
    s.UltimaMuestra(1) = static_cast<std::int16_t>(muestras);
    s.FactorA = s.FactorB = Tabla1<float>(analog);
    for (int c = 1; c <= analog; ++c)
        s.FactorA(c) = static_cast<float>(c);
    if (s.RevisionCfg == "1997") s.Relacion = Tabla1<FilaRelacion>(analog);
    return s;
}

void Lee(RecordStore& s, std::string_view octetos, Lector lector = LeerDatAscii)
{
    const prueba::Carpeta carpeta;
    s.FicheroDat = carpeta.Escribe("rec.dat", octetos);
    EXPECT_EQ(lector(s), 0);
}

/// The same record of either format; BINARY in 16-bit words, of which the number and the time of a sample
/// take two each, the low one first.
std::array<RecordStore, 2> Lee2(const RecordStore& s, const std::string& texto, const Palabras& p)
{
    std::array<RecordStore, 2> leidos{s, s};
    Lee(leidos[0], texto);
    Lee(leidos[1], {reinterpret_cast<const char*>(p.data()), 2 * p.size()}, LeerDatBin);
    return leidos;
}

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
    RecordStore s = Prepara("1991", 3, 2, 2);
    s.FactorB(2) = -0.5F;
    s.FactorA(3) = 0.1F;
    s.FactorB(3) = 0.3F;
    s.TimeMult = 2;  // of the text alone
    for (const RecordStore& r : Lee2(s, "1,-2.5,100,-7,10,0,1\r\n2,497.5,-32768,32767,13,1,0\r\n",
                                     {1, 0, -5, -1, 100, -7, 10, 2, 2, 0, 995, 0, -32768, 32767, 13, 1})) {
        EXPECT_EQ(Fila(r.Muestras, 1), "100 -14.5 1.30000007");  // rounded once: twice gives 1.29999995
        EXPECT_EQ(Fila(r.Muestras, 2), "-32768 65533.5 1.60000002");
        EXPECT_EQ(Fila(r.MuestrasDig, 1) + '/' + Fila(r.MuestrasDig, 2), "0 1/1 0");
        EXPECT_EQ(r.Tiempos(1), -5);
        EXPECT_EQ(r.Tiempos(2), 995);
    }
}

/// Raw value 6 in all, so v is 6, 12, 18; expected the primary and the secondary rows of both samples.
TEST(LeerDat, RatiosOfOtherChannelsOrSides)
{
    const struct {
        FilaRelacion canales[3];
        const char *primera, *segunda;
    } casos[] = {
        // 18 times the float32 next to 0.4.
        {{{2, 1, "P"}, {2, 1, " s "}, {10, 4, "p"}}, "6 24 18/3 12 7.20000029", "6 24 18/3 12 7.20000029"},
        {{{1, 1, "P"}, {2, 1, "X"}, {2, 1, "S"}}, "6 0 36/6 0 18", "6 0 36/6 0 18"},
        {{{1, 2, "S"}, {2, 1, "P"}, {3e38F, 1, "S"}}, "3 12 0/6 6 18", "3 12 0/6 6 18"},
        // A zero divisor leaves the ratio of the channel before, also of one without a side.
        {{{5, 1, "S"}, {4, 2, ""}, {0, 0, "S"}}, "30 0 36/6 0 18", "30 0 36/6 0 18"},
        // The first channel finds none before it, and in the second sample that of the last channel.
        {{{0, 1, "P"}, {0, 1, "P"}, {2, 1, "P"}}, "6 12 18/0 0 9", "6 12 18/3 6 9"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.segunda);
        RecordStore s = Prepara("1997", 3, 0, 2);
        std::copy_n(c.canales, 3, s.Relacion.begin());
        for (const RecordStore& r :
             Lee2(s, "1,0,6,6,6\n2,500,6,6,6\n", {1, 0, 0, 0, 6, 6, 6, 2, 0, 500, 0, 6, 6, 6})) {
            EXPECT_EQ(Fila(r.MuestrasPrim, 1) + '/' + Fila(r.MuestrasSec, 1), c.primera);
            EXPECT_EQ(Fila(r.MuestrasPrim, 2) + '/' + Fila(r.MuestrasSec, 2), c.segunda);
        }
    }
}

TEST(LeerDat, SamplingFrequencyLostWhereTimesGiveNone)
{
    for (const auto& [multiplicador, t2, tiempo, frec] : {std::tuple(10, " 2.5e1", 250, 4000),
                                                          {-40, "25", -1000, -1000},
                                                          {0, "0", 0, 77},
                                                          {0, "30", 30, 77},
                                                          {0, "31", 31, 32258},
                                                          {0, "400000", 400000, 2}}) {
        RecordStore s = Prepara("1997", 1, 0, 2);
        s.TimeMult = static_cast<std::int16_t>(multiplicador);
        s.FrecMuestreo = 77;  // kept where it would not fit
        Lee(s, std::string("1,x,0\n2,") + t2 + ",0\n");
        EXPECT_EQ(s.Tiempos(2), tiempo) << t2;
        EXPECT_EQ(s.FrecMuestreo, frec) << t2;
    }
}

/// Sample 2 of three is the broken line; its neighbours must stay whole. Channel 2 counts double.
TEST(LeerDatAscii, BrokenLineMisread)
{
    const struct {
        const char* linea;
        int digital;
        const char *leida, *decimal = ".", *grupo = "";
    } casos[] = {
        {"2,20,4,5,1,1,9,9", 2, "20/4 10/1 1"},
        {"2,20,4,5,1", 2, "20/4 10/0 0"},  // state 1 lacks the comma that ends it
        {"2,20,4,5", 2, "20/4 0/0 0"},
        {"2,20,4,5", 0, "20/4 10/"},
        {"2,20,4,5,", 0, "20/4 10/"},
        {"", 2, "0/0 0/0 0"},
        {"2,20,,5,,,1", 3, "20/0 10/0 0 1"},
        {"2,20,3A,5 ,1 , 1", 2, "20/0 10/1 1"},
        {"x,zz,+4,-5E-1,1.0,2", 2, "0/4 -1/1 2"},
        {"2,1e300,inf,3e38,40000,0x1", 2, "0/0 0/0 0"},
        // Values by the separators of the system, times always with the point.
        {"2,12.5,12.5,1,1,1", 2, "12.5/125 2/1 1", ",", "."},
        {"2,12.5,12.5,1\u202F2,1,1", 2, "12.5/0 24/1 1", ",", "\u202F"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.linea);
        const prueba::Separa separa(c.decimal, c.grupo);
        const std::string otra = "9,30,8,8,1,1";
        RecordStore s = Prepara("1991", 2, c.digital, 3);
        Lee(s, otra + "\n" + c.linea + "\n" + otra);
        std::ostringstream o;
        o << s.Tiempos(2) << '/' << Fila(s.Muestras, 2) << '/' << Fila(s.MuestrasDig, 2);
        EXPECT_EQ(o.str(), c.leida);
        EXPECT_EQ(Fila(s.Muestras, 1) + '/' + Fila(s.Muestras, 3), "8 16/8 16");
    }
}

TEST(LeerDatAscii, ManyBadFieldsEndTheReading)
{
    std::string campos, texto;
    for (int c = 1; c <= 250; ++c)
        campos += "x,7,";
    for (int i = 1; i <= 2000; ++i)
        texto += "1,z," + campos + "y,1\n";
    RecordStore s = Prepara("1991", 500, 2, 2000);
    Lee(s, texto);
    EXPECT_EQ(s.Muestras(2000, 499) + s.Muestras(2000, 500), 3500);
    EXPECT_EQ(Fila(s.MuestrasDig, 2000), "0 1");
}

TEST(LeerDat, EarlierRecordShinesThrough)
{
    for (const Lector lector : {LeerDatAscii, LeerDatBin}) {
        RecordStore s = Prepara("1997", 1, 1, 2);
        s.Relacion(1) = {1, 1, "P"};
        Lee(s, "1,0,5,1\n2,10,6,1\n3,20,7,1\n");
        ASSERT_EQ(s.MuestrasSec.UBound(1), 2) << "lines beyond those declared";
        ASSERT_EQ(s.MuestrasSec(2, 1), 6);
        s.EnPrimario = s.EnSecundario = true;
        lector(s);  // the file went with Lee
        EXPECT_EQ(Fila(s.Muestras, 2) + Fila(s.MuestrasSec, 2) + Fila(s.MuestrasDig, 2), "000");
        EXPECT_FALSE(s.EnPrimario || s.EnSecundario);
    }
}

TEST(LeerDat, GaugeMovedAtTheWrongStrideOrFileCutAtAChunk)
{
    std::string texto;
    Palabras palabras;
    for (std::int16_t i = 1; i < 32767; ++i) {
        texto += "1,1," + std::to_string(i) + "\n";
        palabras.insert(palabras.end(), {i, 0, i, 0, i});
    }
    // Stride round(n / 90), halves to even; a step each stride + 1 samples.
    for (const auto& [muestras, pasos] :
         {std::pair(1, 1), {45, 45}, {46, 23}, {90, 45}, {960, 80}, {32766, 89}}) {
        int movidos = 0;
        ganchosRegistro.LlenarGasolino = [&](bool, std::int16_t valor) { movidos += valor; };
        for (const RecordStore& r : Lee2(Prepara("1991", 1, 0, muestras), texto, palabras))
            EXPECT_EQ(r.Muestras(muestras, 1), static_cast<float>(muestras));
        ganchosRegistro = {};
        EXPECT_EQ(movidos, 2 * pasos) << muestras;
    }
}

/// Line 2 ends from three octets before the border to two behind it; line 4 is longer than a chunk.
TEST(LeerDatAscii, LineEndLostAtAChunkBorder)
{
    constexpr std::size_t kTrozo = std::size_t{256} << 10;
    for (const std::string fin : {"\n", "\r\n", "\r"}) {
        for (std::size_t sitio = kTrozo - 3; sitio <= kTrozo + 2; ++sitio) {
            std::string texto = "1,0,11" + fin;
            texto += std::string(sitio - texto.size() - 6, ' ') + "1,0,12" + fin + "1,0,13" + fin +
                     std::string(3 * kTrozo, ' ') + "1,0,14" + fin + "1,0,15";
            RecordStore s = Prepara("1991", 1, 0, 6);
            Lee(s, texto);
            EXPECT_EQ(std::vector<float>(s.Muestras.fila(1), s.Muestras.fila(1) + 6),
                      (std::vector<float>{11, 12, 13, 14, 15, 0}));
        }
    }
}

}  // namespace
}  // namespace veldix
