#include "record/leer_cfg.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "platform/ficheros.h"
#include "record/abrir_registro.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Carpeta;

/// The lines that stand between "|", each with its end.
std::string Texto(const std::string& lineas, const std::string& fin = "\r\n")
{
    std::string texto;
    for (const char c : lineas + "|")
        c == '|' ? texto += fin : texto += c;
    return texto;
}

RecordStore Leido(const std::string& texto, RecordStore s = {})
{
    const Carpeta carpeta;
    s.FicheroCfg = carpeta.Escribe("rec.cfg", texto);
    LeerCfg(s);
    return s;
}

std::string Cabeza(const RecordStore& s)
{
    return s.NombreEstacion + ';' + s.RevisionCfg + ';' + s.AnioCfg + ';' + (s.AnioMal ? "mal" : "bien");
}

/// Declared channels, and both counts with their copies.
std::string Cuentas(const RecordStore& s)
{
    std::ostringstream o;
    o << s.NumCanales << ' ' << s.NumAnalog << ' ' << s.NumDigital;
    EXPECT_TRUE(s.NumAnalogPlan == s.NumAnalog && s.NumCanalAnalog == s.NumAnalog && s.NumCanalPlan == 0);
    EXPECT_TRUE(s.Canales.Cuantos() == s.NumAnalog && s.CanalesPlan.Cuantos() == s.NumAnalog);
    EXPECT_TRUE(s.NumDigitalPlan == s.NumDigital && s.NombreDig.Cuantos() == s.NumDigital);
    return o.str();
}

std::string Analog(const RecordStore& s, int c)
{
    std::ostringstream o;
    const FilaCanal &f = s.Canales(c), &p = s.CanalesPlan(c);
    o << f.Numero << ';' << f.Nombre << ';' << f.Circuito << ';' << f.Unidades << ';';
    EXPECT_EQ(o.str(), p.Numero + ';' + p.Nombre + ';' + p.Circuito + ';' + p.Unidades + ';');
    o << s.FactorA(c) << ' ' << s.FactorB(c) << ' ' << s.Skew(c);
    if (!s.Relacion.Vacia())
        o << ';' << s.Relacion(c).Primario << ' ' << s.Relacion(c).Secundario << ';' << s.Relacion(c).Lado;
    return o.str();
}

std::string Digitales(const RecordStore& s)
{
    std::string o;
    for (const std::string& n : s.NombreDig)
        o += n + ';';
    return o;
}

std::string Cola(const RecordStore& s)
{
    std::ostringstream o;
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

TEST(LeerCfg, FieldsLineEndsOrCodePagesConfused)
{
    const std::string crlf = Texto(kCompleto);
    std::string pagina = crlf;
    pagina.replace(pagina.find("í"), 2, "\xED");
    const std::string casos[] = {
        crlf,  Texto(kCompleto, "\n"), Texto(kCompleto, "\r"), crlf.substr(0, crlf.size() - 2), crlf + '\x1A',
        pagina};
    for (const char* decimal : {".", ","}) {
        const prueba::Separa separa(decimal, *decimal == '.' ? "" : ".");  // of no weight here
        int caso = 0;
        for (const std::string& texto : casos) {
            SCOPED_TRACE(caso++);
            const RecordStore s = Leido(texto);
            EXPECT_EQ(Cabeza(s), "SE Línea ;1997;1997;bien");
            EXPECT_EQ(s.EstacionPlan, s.NombreEstacion);
            EXPECT_EQ(Cuentas(s), "4 2 2");
            EXPECT_EQ(Analog(s, 1), "1; IA ;LIN 1;kA;0.5 -2 10;100 5; p ");
            EXPECT_EQ(Analog(s, 2), "2;VB;;;0 1 0;1.5 2;S,x");
            EXPECT_EQ(Digitales(s), "DISPARO;CIERRE;");
            EXPECT_EQ(Cola(s), "60;2;1000 40;500 80;01/02/03,04:05:06.7; 08/09/10, x ; ascii ;2");
        }
    }
}

TEST(LeerCfg, FieldsOf1991RunTogether)
{
    const RecordStore s = Leido(Texto("A,B|1,1A,0D|1,IA,A,C,kA,1,2,3,-1|50|0|0,9|f|g|BINARY|7"));
    EXPECT_EQ(Analog(s, 1), "1;IA;C;kA;1 2 3");
    EXPECT_EQ(Cola(s), "50;0;0 9;f;g;BINARY;0") << "no time multiplier, one rate line";
}

TEST(LeerCfg, FirstLineMisread)
{
    const std::pair<const char*, const char*> casos[] = {
        {"E.T. NORTE ,R, 1997 ", "E.T. NORTE ;1997; 1997 ;bien"},
        {"A,B", "A;1991;;bien"},
        {"A,B,", "A;1991;;bien"},
        {"A", "before;1991;;bien"},
        {"A,B, ", "A;old; ;mal"},
        {"A,B,1991", "A;old;1991;mal"},
        {"A,B,1999", "A;old;1999;mal"},
        {"A,B,1997,", "A;old;1997,;mal"},
    };
    for (const auto& [linea, cabeza] : casos) {
        SCOPED_TRACE(linea);
        RecordStore s;
        s.NombreEstacion = "before";
        s.RevisionCfg = "old";
        s.FormatoDat = "ASCII";
        s.AnioCfg = "rest";
        s.ErrorFormato = true;
        s.TimeMult = 3;
        s.NumAnalog = 9;
        s.AnioMal = std::string_view(cabeza).ends_with("bien");
        s = Leido(Texto(std::string(linea) + "|1,0A,0D|50|0|0,1|f|g|BINARY"), s);
        EXPECT_EQ(Cabeza(s), cabeza);
        EXPECT_EQ(s.FormatoDat, s.AnioMal ? "" : "BINARY");
        EXPECT_EQ(s.NumAnalog, s.AnioMal ? 9 : 0);
        EXPECT_EQ(s.TimeMult, 0);
        EXPECT_FALSE(s.ErrorFormato);
    }
}

TEST(LeerCfg, MissingOrShortFileKeepsFormatOfTheLastRecord)
{
    RecordStore s = Leido(Texto(kCompleto));
    s.FicheroCfg = "/no/such/rec.cfg";
    LeerCfg(s);
    EXPECT_EQ(s.FormatoDat + s.AnioCfg, "");
    EXPECT_EQ(s.TimeMult, 0);
    EXPECT_EQ(s.NombreEstacion + s.FechaInicio, "SE Línea 01/02/03,04:05:06.7");
}

TEST(LeerCfg, CountsOfSecondLineMisread)
{
    const std::pair<const char*, const char*> casos[] = {
        {"4, 2A,017D", "4 2 17"}, {"14,2A,12", "14 2 1"},   {"4,2A,2", "4 2 0"},      {"3,2,1D", "3 0 1"},
        {"4,2A,2D ", "4 2 0"},    {"4,,2D", "4 0 0"},       {"4,2A", "4 0 0"},        {"4", "0 0 0"},
        {"40000,2A,2D", "0 2 2"}, {"4,40000A,3D", "4 0 3"}, {"4,2xA,1.5xD", "4 0 0"},
    };
    for (const auto& [linea, cuentas] : casos)
        EXPECT_EQ(Cuentas(Leido(Texto(std::string("A,B|") + linea))), cuentas) << linea;
}

TEST(LeerCfg, EmptyDigitalNameEndsAtItsOwnComma)
{
    const RecordStore s = Leido(Texto("A,B|5,0A,5D|1,,,,0|2,,A,,0|3,N,0|4, D 4 ,0|5,TRIP|50"));
    EXPECT_EQ(Digitales(s), ",;,A;N; D 4 ;;");
    EXPECT_EQ(s.FrecLinea, 50);
}

TEST(LeerCfg, ChannelNumbersFromZeroNotRaised)
{
    const std::string casos[][2] = {{"0,1,5", "1,2,6"},    {"1,0,5", "1,0,5"},  {"00,3,3", "1,4,4"},
                                    {" 0, 2,07", "1,3,8"}, {"0,x,9", "1,x,10"}, {"A,0,", "A,0,"}};
    for (const auto& [antes, despues] : casos) {
        std::istringstream numeros(antes + ",");
        std::string lineas = "A,B|3,3A,0D";
        for (std::string n; std::getline(numeros, n, ',');)
            lineas += "|" + n + ",I,A,C,A,1,0,0,0,0";
        const RecordStore s = Leido(Texto(lineas));
        EXPECT_EQ(s.Canales(1).Numero + ',' + s.Canales(2).Numero + ',' + s.Canales(3).Numero, despues);
        EXPECT_EQ(s.CanalesPlan(3).Numero, s.Canales(3).Numero);
    }
}

TEST(LeerCfg, AnalogLineWithoutCommasSpoilsItsNeighbours)
{
    const std::pair<const char*, const char*> casos[] = {
        {"1,IA,A,C,kA,2,3,4,-1,1,100,5,", "1;IA;C;kA;2 3 4;100 5;"},
        {"1,IA,A,C,kA,2,3,4,-1,1,100,5", "1;IA;C;kA;2 3 4;100 0;"},
        {"1,IA,A,C,kA,2,3,4,-1,1", "1;IA;C;kA;2 3 4;0 0;"},
        {"1,IA,A,C,kA,2", "1;IA;C;kA;0 0 0;0 0;"},
        {"1,IA,A", "1;IA;;;0 0 0;0 0;"},
        {"1,IA", "1;;;;0 0 0;0 0;"},
        {"", ";;;;0 0 0;0 0;"},
        {"1,,,,,1e400,1 200,1d2,,,x,.5e1,S", "1;;;;0 1 100;0 5;S"},
    };
    for (const auto& [linea, fila] : casos) {
        const RecordStore s =
            Leido(Texto(std::string("A,B,1997|2,2A,0D|") + linea + "|2,VB,B,D,V,7,8,9,0,0,6,5,S|50"));
        EXPECT_EQ(Analog(s, 1), fila) << linea;
        EXPECT_EQ(Analog(s, 2), "2;VB;D;V;7 8 9;6 5;S") << linea;
        EXPECT_EQ(s.FrecLinea, 50) << linea;
    }
}

TEST(LeerCfg, RatesOrTailMisread)
{
    const std::pair<const char*, const char*> casos[] = {
        {"50|0|0,9|f|g|ASCII|10", "50;0;0 9;f;g;ASCII;10"},
        {"50|3|9,1|8,2|7, 3|f|g|ASCII|1", "50;3;9 1;8 2;7 3;f;g;ASCII;1"},
        {" 61,5|1,0|999.5,0 5|f||X|0.5", "62;1;1000 0;f;;X;0"},
        {"50|1|1000,40000|f|g|ASCII|2,5", "50;1;1000 0;f;g;ASCII;2"},
        {"50|2|1000|500,8|f|g|ASCII|3", "50;2;0 0;500 8;f;g;ASCII;3"},
        {"70000|1|40000,6|f|g|BINARY|1e9", "0;1;0 6;f;g;BINARY;0"},
        {"50|1|1000,40", "50;1;1000 40;;;;0"},
        {"50|1|1000,40|f|g|ASCII", "50;1;1000 40;f;g;ASCII;0"},
    };
    for (const auto& [lineas, cola] : casos)
        for (const char* fin : {"", "\x1A"})
            EXPECT_EQ(Cola(Leido(Texto(std::string("A,B,1997|0,0A,0D|") + lineas) + fin)), cola);
}

TEST(NombraRegistro, SiblingsSoughtUnderTheWrongNameOrCase)
{
    struct {
        void (*nombra)(RecordStore&, const std::string&);
        const char* dat;
        std::vector<std::string> hay;
        const char *cfg, *hdr;
    } const casos[] = {
        {NombraPorTronco, "rec.dat", {"REC.CFG", "Rec.Hdr"}, "REC.CFG", "Rec.Hdr"},
        {NombraPorTitulo, "REC.DAT", {"rec.cfg"}, "rec.cfg", ""},
        {NombraPorTronco, "rec.dat", {"REC.CFG", "rec.cfg"}, "rec.cfg", ""},
        {NombraPorTronco, "rec.v2.dat", {"rec.v2.cfg", "rec.cfg", "rec.hdr"}, "rec.v2.cfg", ""},
        {NombraPorTitulo, "rec.v2.dat", {"rec.v2.cfg", "rec.cfg", "rec.hdr"}, "rec.cfg", "rec.hdr"},
        {NombraPorTitulo, "rec", {"rec.cfg", "rec.hdr"}, "rec.cfg", "rec.hdr"},
        {NombraPorTronco, "recdat", {"reccfg", "rec.cfg"}, "reccfg", ""},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.dat);
        const Carpeta padre;  // a folder with points of its own must not be cut
        std::filesystem::create_directory(padre.Ruta("a.b"));
        const auto ruta = [&](const std::string& n) { return n.empty() ? n : padre.Ruta("a.b/" + n); };
        padre.Escribe(std::string("a.b/") + c.dat, "");
        for (const std::string& n : c.hay)
            padre.Escribe("a.b/" + n, "");
        RecordStore s;
        s.FicheroHdr = "old";
        c.nombra(s, ruta(c.dat));
        EXPECT_EQ(s.FicheroDat, ruta(c.dat));
        EXPECT_EQ(s.FicheroCfg, ruta(c.cfg));
        EXPECT_EQ(s.FicheroHdr, ruta(c.hdr));
        c.nombra(s, ruta("none.dat"));
        EXPECT_EQ(s.FicheroCfg + s.FicheroDat + s.FicheroHdr, "");
    }
}

}  // namespace
}  // namespace veldix
