#include "record/leer_cfg.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <string>
#include <utility>

#include "record/record_store.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::ConFinales;

RecordStore Leido(const std::string& texto, RecordStore s = {})
{
    const prueba::Carpeta carpeta;
    s.FicheroCfg = carpeta.Escribe("rec.cfg", texto);
    LeerCfg(s);
    return s;
}

using Vista = std::string (*)(const RecordStore&);

/// Each text behind the lines `antes`, read over `s`, must give what stands beside it.
void Comprueba(Vista vista, const std::string& antes,
               std::initializer_list<std::pair<std::string, std::string>> casos, const RecordStore& s = {})
{
    for (const auto& [texto, leido] : casos)
        EXPECT_EQ(vista(Leido(ConFinales(antes + texto), s)), leido) << texto;
}

std::string Cabeza(const RecordStore& s)
{
    return s.NombreEstacion + ';' + s.RevisionCfg + ';' + s.AnioCfg + ';' + (s.AnioMal ? "mal" : "bien");
}

std::string Cuentas(const RecordStore& s)
{
    std::ostringstream o;
    o << s.NumCanales << ' ' << s.NumAnalog << ' ' << s.NumDigital << ' ' << s.NumCanalAnalog;
    return o.str();
}

std::string Numeros(const RecordStore& s)
{
    std::string o;
    for (int c = 1; c <= s.NumAnalog; ++c)
        o += s.Canales(c).Numero + '/' + s.CanalesPlan(c).Numero + ' ';
    return o;
}

std::string Analog(const RecordStore& s)
{
    std::ostringstream o;
    for (int c = 1; c <= s.NumAnalog; ++c) {
        const FilaCanal &f = s.Canales(c), &p = s.CanalesPlan(c);
        EXPECT_EQ(f.Nombre + f.Circuito + f.Unidades, p.Nombre + p.Circuito + p.Unidades);
        o << f.Numero << ';' << f.Nombre << ';' << f.Circuito << ';' << f.Unidades << ';';
        o << s.FactorA(c) << ' ' << s.FactorB(c) << ' ' << s.Skew(c);
        if (s.Relacion.Vacia()) continue;
        const FilaRelacion& r = s.Relacion(c);
        o << ';' << r.Primario << ' ' << r.Secundario << ';' << r.Lado << '|';
    }
    return o.str();
}

/// Names of the digital channels and all that stands behind them.
std::string Cola(const RecordStore& s)
{
    std::ostringstream o;
    for (const std::string& n : s.NombreDig)
        o << n << ';';
    o << s.FrecLinea << ';' << s.NumFrecuencias << ';';
    for (int i = 1; i <= s.FrecMuestras.Cuantos(); ++i)
        o << s.FrecMuestras(i) << ' ' << s.UltimaMuestra(i) << ';';
    o << s.FechaInicio << ';' << s.FechaDisparo << ';' << s.FormatoDat << ';' << s.TimeMult;
    return o.str();
}

const char* const kCompleto =
    "SE Línea ,R,1997|4,2A,2D|1, IA ,A,LIN 1,kA,0.5,-2,10,-32767,32767,100,5, p "
    "|2,VB,,,,\"3\",1,\"5\",-1,1,1.5,2,S,x|1,DISPARO,0|2,CIERRE,1|60.5|2|1000,40|500,80|01/02/03,04:05:06.7"
    "| 08/09/10, x | ascii |2.5";

TEST(LeerCfg, FieldsOrCodePagesConfused)
{
    std::string pagina = ConFinales(kCompleto, "\r") + '\x1A';
    pagina.replace(pagina.find("í"), 2, "\xED");
    for (const std::string& texto : {ConFinales(kCompleto), pagina}) {
        const RecordStore s = Leido(texto);
        EXPECT_EQ(Cabeza(s), "SE Línea ;1997;1997;bien");
        EXPECT_EQ(Cuentas(s), "4 2 2 2");
        EXPECT_EQ(Analog(s), "1; IA ;LIN 1;kA;0.5 -2 10;100 5; p |2;VB;;;0 1 0;1.5 2;S,x|");
        EXPECT_EQ(Cola(s), "DISPARO;CIERRE;60;2;1000 40;500 80;01/02/03,04:05:06.7; 08/09/10, x ; ascii ;2");
    }
    const RecordStore s = Leido(ConFinales("A,B|1,1A,0D|1,IA,A,C,kA,1,2,3,-1|50|0|0,9|f|g|BINARY|7"));
    EXPECT_EQ(Analog(s), "1;IA;C;kA;1 2 3") << "1991";
    EXPECT_EQ(Cola(s), "50;0;0 9;f;g;BINARY;0") << "1991 has no time multiplier";
}

TEST(LeerCfg, FirstLineMisread)
{
    RecordStore s;
    s.NombreEstacion = "before";
    s.RevisionCfg = "old";
    s.AnioMal = true;
    Comprueba(Cabeza, "",
              {{"E.T. NORTE ,R, 1997 ", "E.T. NORTE ;1997; 1997 ;bien"},
               {"A,B", "A;1991;;bien"},
               {"A,B,", "A;1991;;bien"},
               {"A", "before;1991;;bien"},
               {"A,B, ", "A;old; ;mal"},
               {"A,B,1991", "A;old;1991;mal"},
               {"A,B,1997,", "A;old;1997,;mal"}},
              s);
}

TEST(LeerCfg, LinesThatAShortFileLacksAreMadeUp)
{
    const RecordStore antes = Leido(ConFinales(kCompleto));
    const RecordStore s = Leido(ConFinales("A,B,1997|6,4A,2D|1,IA,A,C,kA,1,2,3,|2,IB,B,C,kA,4,5,6,"), antes);
    EXPECT_EQ(Analog(s), "1;IA;C;kA;1 2 3;0 0;|2;IB;C;kA;4 5 6;0 0;|;;;;0 0 0;0 0;|;;;;0 0 0;0 0;|");
    EXPECT_EQ(Cola(s), ";;60;2;0 0;0 0;01/02/03,04:05:06.7; 08/09/10, x ;;0");
}

TEST(LeerCfg, CountsOfSecondLineMisread)
{
    Comprueba(Cuentas, "A,B|",
              {{"4, 2A,017D", "4 2 17 2"},
               {"14,2A,12", "14 2 1 2"},
               {"4,2A,2D ", "4 2 0 2"},
               {"4,,2D", "4 0 0 0"},
               {"40000,2A,2D", "0 2 2 2"},
               {"4,2xA,3D", "4 0 3 0"}});
}

TEST(LeerCfg, ChannelLinesSpoilFieldsOrNeighbours)
{
    Comprueba(Numeros, "A,B|3,3A,0D|",
              {{"0,|1,|5,", "1/1 2/2 6/6 "},
               {"1,|0,|5,", "1/1 0/0 5/5 "},
               {" 0,| 2,|07,", "1/1 3/3 8/8 "},
               {"0,|x,|9,", "1/1 x/x 10/10 "},
               {"A,|0,|,", "A/A 0/0 / "}});
    Comprueba(Analog, "A,B,1997|1,1A,0D|",
              {{"1,IA,A,C,kA,2,3,4,-1,1,100,5,", "1;IA;C;kA;2 3 4;100 5;|"},
               {"1,IA,A,C,kA,2,3,4,-1,1,100,5", "1;IA;C;kA;2 3 4;100 0;|"},
               {"1,IA,A,C,kA,2", "1;IA;C;kA;0 0 0;0 0;|"},
               {"1,IA", "1;;;;0 0 0;0 0;|"},
               {"1,,,,,1e400,1 200,1d2,,,x,.5e1,S", "1;;;;0 1 100;0 5;S|"}});
    // An empty name runs on to the next comma.
    Comprueba(Cola, "A,B|5,0A,5D|",
              {{"1,,,,0|2,,A,,0|3,N,0|4, D 4 ,0|5,TRIP|50|1|7,8", ",;,A;N; D 4 ;;50;1;7 8;;;;0"}});
}

TEST(LeerCfg, RatesOrTailMisread)
{
    Comprueba(Cola, "A,B,1997|0,0A,0D|",
              {{"50|3|9,1|8,2|7, 3|f|g|ASCII|10", "50;3;9 1;8 2;7 3;f;g;ASCII;10"},
               {" 61,5|1,0|999.5,0 5|f||X|0.5", "62;1;1000 0;f;;X;0"},
               {"50|2|1000|500,40000|f|g|ASCII|2,5", "50;2;0 0;500 0;f;g;ASCII;2"},
               {"70000|0|40000,6|f|g|BINARY|1e9", "0;0;0 6;f;g;BINARY;0"}});
}

}  // namespace
}  // namespace veldix
