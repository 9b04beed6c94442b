#include "templates/plantilla.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "platform/avisos.h"
#include "platform/ficheros.h"
#include "platform/textos.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Carpeta;
using prueba::LeeTodo;
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

/// Reads a template whose lines stand between "|".
RecordStore Leida(const std::string& lineas, RecordStore s = {})
{
    std::string texto;
    for (const char c : lineas + "|")
        c == '|' ? texto += "\r\n" : texto += c;
    const Carpeta carpeta;
    s.FicheroCnf = carpeta.Escribe("p.cnf", texto);
    LeerPlantilla(s);
    return s;
}

std::string Cuentas(const RecordStore& s)
{
    std::ostringstream o;
    o << s.NumCanalPlan << ' ' << s.NumTrifasicPlan << ' ' << s.NumCanalDigPlan << ' ' << s.NumGruposDigPlan;
    return o.str();
}
std::string Analog(const RecordStore& s)
{
    std::string o;
    for (const FilaCanal& f : s.CanalesPlan)
        o += f.Numero + ',' + f.Nombre + ',' + f.Circuito + ',' + f.Unidades + ';';
    return o;
}
std::string Digitales(const RecordStore& s)
{
    std::string o;
    for (const FilaCanalDig& f : s.CanalesDigPlan)
        o += f.Numero + ',' + f.Nombre + ';';
    return o;
}
/// All counts and tables of the template set.
std::string Resumen(const RecordStore& s)
{
    std::ostringstream o;
    o << Cuentas(s) << " A " << Analog(s) << " T ";
    for (const FilaTrifasic& f : s.TrifasicPlan)
        o << f.Fase(1) << ',' << f.Fase(2) << ',' << f.Fase(3) << ',' << f.Nombre << ',' << f.Factor << ';';
    o << " G ";
    for (const FilaGrupoDig& f : s.GruposDigPlan)
        o << f.Nombre << ',' << f.Cuenta << ';';
    o << " D " << Digitales(s);
    return o.str();
}

/// A store with earlier rows in every table of the template set.
RecordStore ConAntes()
{
    RecordStore s = Leida(
        "ver "
        "1.1|ANTES|ANALOGICOS|2|8%a%b%c$|9%d%e%f$|TRIFASICOS|1|7%8%9%g%h$|DIGITALES|1|1|***|G|1|6%i$|-----");
    EXPECT_EQ(Resumen(s), "2 1 1 1 A 8,a,b,c;9,d,e,f; T 7,8,9,g,h; G G,1; D 6,i;");
    return s;
}
const char* const kAnalogAntes = "8,a,b,c;9,d,e,f;";

TEST(LeerPlantilla, BrokenSeparatorsStopTheReading)
{
    RecordStore s;
    s.PlantillaNoValida = true;
    s = Leida(
        "ver 1.1|SE NORTE|ANALOGICOS| 3 "
        "|1%IA%A$|2%I$B%B%kA$|3%IC%C%k%A$|TRIFASICOS|1|1%2%3%LINEA$|DIGITALES|3"
        "| 2 |***|G1|2|4%50%51$|5Reeng$|***|G2|1|9%TR$IP$",
        s);
    EXPECT_EQ(s.VersionPlan + s.EstacionPlan, "ver 1.1SE NORTE");
    EXPECT_EQ(Resumen(s),
              "3 1 3 2 A 1,IA,,1%IA%A;2,I$B,B,kA;3,IC,C,k%A; T 1,2,3,,1%2%3%LINEA; G G1,2;G2,1;"
              " D 4,50%51;,5Reeng;9,TR;");
    EXPECT_FALSE(s.PlantillaNoValida);
}

TEST(LeerPlantilla, CountOrMissingSectionMisread)
{
    const std::string aAntes = " A 8,a,b,c;9,d,e,f;", tAntes = " T 7,8,9,g,h;", antes = aAntes + tAntes;
    const std::string digital = "|DIGITALES|2|1|any|D|2|1%u$|2%v$|-----", leido = " G D,2; D 1,u;2,v;";
    const std::string dAntes = " G G,1; D 6,i;";
    const std::pair<std::string, std::string> casos[] = {
        {"-----", "0 0 0 0" + antes + dAntes},
        {"ANALOGICOS| 1|1%p%q%r$", "1 0 0 0 A 1,p,q,r;" + tAntes + dAntes},
        {"ANALOGICOS |1|1%p%q%r$" + digital, "0 0 0 0" + antes + dAntes},
        // No number: the count stays.
        {"ANALOGICOS|x|1%p%q%r$|2%s%t%u$" + digital, "2 0 2 1 A 1,p,q,r;2,s,t,u;" + tAntes + leido},
        {"TRIFASICOS||1%2%3%n%2,5$" + digital, "0 1 2 1" + aAntes + " T 1,2,3,n,2,5;" + leido},
        // Zero and below: no rows; only the analog table is erased before it cannot be sized.
        {"ANALOGICOS|0|TRIFASICOS| 0 " + digital, "0 0 2 1 A " + tAntes + leido},
        {"ANALOGICOS|-3 |TRIFASICOS|-1" + digital, "-3 -1 2 1 A " + tAntes + leido},
        {"TRIFASICOS|2|a%2%40000%n%$|4%5%6%m%k$", "0 2 0 0" + aAntes + " T 0,2,0,n,;4,5,6,m,k;" + dAntes},
        {digital.substr(1), "0 0 2 1" + antes + leido},
        {"DIGITALES||2", "0 0 0 1" + antes + dAntes},
        {"DIGITALES|5||***", "0 0 5 0" + antes + dAntes},
        {"DIGITALES|5| 0 |-----", "0 0 5 0" + antes + dAntes},
        {"DIGITALES|0|-1|***", "0 0 0 -1" + antes + " G  D "},
        {"DIGITALES|1|2|***|D|x|***|E|1|3%w$", "0 0 1 2" + antes + " G D,x;E,1; D 3,w;"},
        // More members than announced are read and dropped.
        {"DIGITALES|2|2|***|D|3|1%u$|2%v$|3%w$|***|E|002|4%y$|5%z$|--",
         "0 0 2 2" + antes + " G D,3;E,002; D 1,u;2,v;"},
        // The file ends early: rows repeat the last line, names stay empty.
        {"ANALOGICOS|3|1%p%q%r$", "3 0 0 0 A 1,p,q,r;1,p,q,r;1,p,q,r;" + tAntes + dAntes},
        {"DIGITALES|4|3|***|D|3|1%u$|2%v$", "0 0 4 3" + antes + " G D,3;,;,; D 1,u;2,v;2,v;,;"},
    };
    for (const auto& [lineas, resumen] : casos)
        EXPECT_EQ(Resumen(Leida("ver 1.1|X|" + lineas, ConAntes())), resumen) << lineas;
}

TEST(LeerPlantilla, VanishedFileLeavesOldCounts)
{
    RecordStore s = ConAntes();
    s.PlantillaNoValida = true;
    LeerPlantilla(s);  // its folder went with Leida
    EXPECT_EQ(Resumen(s), "0 0 0 0 A 8,a,b,c;9,d,e,f; T 7,8,9,g,h; G G,1; D 6,i;");
    EXPECT_EQ(s.VersionPlan + s.EstacionPlan, "ver 1.1ANTES");
    EXPECT_FALSE(s.PlantillaNoValida);
}

TEST(LeerPlantilla, VersionRuleTooWideOrTooNarrow)
{
    std::string textos;
    for (int n = 1; n <= kNumTextos; ++n)
        textos += "Texto " + std::to_string(n) + "\n";
    const Carpeta carpeta;
    CargaTextos(carpeta.Escribe("textos.ini", textos));
    int punteros = 0;
    PonPunteroNormal([&] { ++punteros; });
    RespondeCajas cajas;
    const std::string resto = "|NUEVA|ANALOGICOS|1|1%p%q%r$";
    for (const std::string version : {"ver 1.0 ", "VER 1.0", "ver 1.01", "ver 9.9", ""}) {
        const RecordStore s = Leida(version + resto, ConAntes());
        EXPECT_EQ(s.VersionPlan, version);
        EXPECT_EQ(Analog(s), "1,p,q,r;") << version;
    }
    EXPECT_EQ(punteros, 0);
    cajas.Espera("Texto 172", Icono::Critico);
    RecordStore s = ConAntes();
    s.PlantillaNoValida = true;
    s = Leida("ver 1.0" + resto, s);
    EXPECT_EQ(s.VersionPlan + s.EstacionPlan, "ver 1.0ANTES");
    EXPECT_EQ(Cuentas(s) + Analog(s), std::string("2 1 1 1") + kAnalogAntes);
    EXPECT_FALSE(s.PlantillaNoValida);
    EXPECT_EQ(punteros, 1);
    PonPunteroNormal(nullptr);
    VaciaTextos();
}

TEST(LeerPlantilla, FitCheckRunsUnderTheWrongFlags)
{
    for (int bits = 0; bits < 8; ++bits) {
        SCOPED_TRACE(bits);
        const bool rechaza = bits == 3;
        RecordStore s = ConAntes();
        s.NumAnalog = 2;
        s.NumDigital = 16;
        s.RegistroAbierto = (bits & 1) != 0;
        s.PlantillaAplicada = (bits & 2) != 0;
        s.PlantillaModifica = (bits & 4) != 0;
        const RecordStore a = Leida("ver 1.1|X|ANALOGICOS|3|1%p%q%r$|2%p%q%r$|3%p%q%r$|-----", s);
        EXPECT_EQ(a.PlantillaNoValida, rechaza);
        EXPECT_EQ(Analog(a), rechaza ? kAnalogAntes : "1,p,q,r;2,p,q,r;3,p,q,r;");
        EXPECT_EQ(Cuentas(a), rechaza ? "3 1 1 1" : "3 0 0 0");
        EXPECT_EQ(a.EstacionPlan, "X");
        const RecordStore d = Leida("ver 1.1|X|DIGITALES|3|1|***|D|3|16%u$|17%v$|1%w$|-----", s);
        EXPECT_EQ(d.PlantillaNoValida, rechaza);
        ASSERT_EQ(d.CanalesDigPlan.Cuantos(), 3);
        EXPECT_EQ(d.CanalesDigPlan(1).Nombre, "u");
        EXPECT_EQ(d.CanalesDigPlan(3).Nombre, rechaza ? "" : "w");
    }
}

TEST(LeerPlantilla, FittingTemplateRefused)
{
    RecordStore s;
    s.NumAnalog = 2;
    s.NumDigital = 16;
    s.RegistroAbierto = s.PlantillaAplicada = s.PlantillaNoValida = true;
    // Row numbers, phases and the total are not compared, nor are rows past the total or without a number.
    s = Leida(
        "ver 1.1|X|ANALOGICOS|2|90%p%q%r$|91%p%q%r$|TRIFASICOS|1|70%71%72%n%1$|DIGITALES|2|1|***|D|3|x%u$"
        "|16%v$|99%w$|-----",
        s);
    EXPECT_FALSE(s.PlantillaNoValida);
    EXPECT_EQ(Resumen(s), "2 1 2 1 A 90,p,q,r;91,p,q,r; T 70,71,72,n,1; G D,3; D x,u;16,v;");
}

TEST(AplicaPlantilla, WorkingSetKeepsEarlierRows)
{
    RecordStore s = ConAntes();
    s.NumCanalPlan = 3;  // one more than the table has
    s.Canales = Tabla1<FilaCanal>(5);
    s.CanalesDig = Tabla1<FilaCanalDig>(4);
    AplicaPlantilla(s);
    EXPECT_EQ(s.VersionPlantilla + s.NombreEstacion, "ver 1.1ANTES");
    EXPECT_EQ(s.NumCanalAnalog * 1000 + s.NumTrifasic * 100 + s.NumCanalDig * 10 + s.NumGruposDig, 3111);
    ASSERT_EQ(s.Canales.Cuantos(), 3);
    EXPECT_EQ(s.Canales(2).Unidades + s.Canales(3).Nombre, "f");
    EXPECT_EQ(s.Trifasic(1).Factor + std::to_string(s.Trifasic(1).Fase(3)), "h9");
    ASSERT_EQ(s.CanalesDig.Cuantos(), 1);
    EXPECT_EQ(s.CanalesDig(1).Numero + s.CanalesDig(1).Nombre, "6i");
    EXPECT_EQ(s.GruposDig(1).Nombre + s.GruposDig(1).Cuenta, "G1");
    LeerPlantilla(s);  // vanished: the empty set is applied
    AplicaPlantilla(s);
    EXPECT_EQ(s.NumCanalAnalog + s.NumTrifasic + s.NumCanalDig + s.NumGruposDig, 0);
    EXPECT_TRUE(s.Canales.Vacia() && s.CanalesDig.Vacia() && s.GruposDig.Vacia());
}

/// What the digital page keeps of the groups as read.
void LlenaEdicion(RecordStore& s)
{
    s.GruposEdit = Tabla1<FilaGrupoEdit>(s.NumGruposDigPlan);
    s.GruposEditNum = Tabla2<std::int16_t>(s.NumGruposDigPlan, 21);
    for (int g = 1, r = 1; g <= s.NumGruposDigPlan; ++g) {
        s.GruposEdit(g).Nombre = s.GruposDigPlan(g).Nombre;
        s.GruposEdit(g).Cuenta = s.GruposDigPlan(g).Cuenta;
        for (int j = 3; j < 3 + std::stoi(s.GruposDigPlan(g).Cuenta); ++j, ++r) {
            s.GruposEdit(g).Miembro(j) = s.CanalesDigPlan(r).Nombre;
            s.GruposEditNum(g, j) = static_cast<std::int16_t>(std::stoi(s.CanalesDigPlan(r).Numero));
        }
    }
}

TEST(GrabarPlantilla, DemonstrationTemplateChangedByReadingAndWriting)
{
    const std::string origen = VELDIX_SOURCE "/examples/falta.cnf";
    RecordStore s;
    s.FicheroCnf = origen;
    LeerPlantilla(s);
    ASSERT_EQ(Cuentas(s), "8 2 24 4");
    EXPECT_EQ(s.CanalesPlan(1).Nombre, "Tensión fase A");
    LlenaEdicion(s);
    const Carpeta carpeta;
    GrabarPlantilla(s, carpeta.Ruta("copia.cnf"));
    EXPECT_EQ(LeeTodo(carpeta.Ruta("copia.cnf")), LeeTodo(origen));
}

TEST(GrabarPlantilla, LinesOrOctetsDifferFromTheFormat)
{
    RecordStore s;
    s.VersionPlan = "ver 7";
    s.EstacionPlan = "Año Ω€";
    const Carpeta carpeta;
    const std::string ruta = carpeta.Escribe("p.cnf", std::string(5000, 'x'));
    s.NumCanalDigPlan = 12;  // digital channels, no groups
    GrabarPlantilla(s, ruta);
    EXPECT_EQ(LeeTodo(ruta), "ver 1.1\r\nA\xF1o ?\x80\r\nDIGITALES\r\n12\r\n 0 \r\n-----\r\n");

    s.NumCanalPlan = s.NumTrifasicPlan = 1;
    s.CanalesPlan = Tabla1<FilaCanal>(2);
    s.CanalesPlan(1) = {"01", "50%", "", "kA"};
    s.TrifasicPlan = Tabla1<FilaTrifasic>(1);
    s.TrifasicPlan(1).fases = {1, -2, 3};
    s.TrifasicPlan(1).Nombre = "L";
    s.NumGruposDigPlan = 3;
    s.GruposEdit = Tabla1<FilaGrupoEdit>(3);
    s.GruposEditNum = Tabla2<std::int16_t>(3, 21);
    s.GruposEdit(1) = {"G1", std::int16_t{2}, {"a", "b", "c"}};
    s.GruposEdit(2) = {"G2", "002", {"d", ""}};
    s.GruposEdit(3) = {"", std::int16_t{0}, {"e"}};
    for (int j = 3; j <= 21; ++j)
        s.GruposEditNum(1, j) = s.GruposEditNum(2, j) = static_cast<std::int16_t>(j);
    GrabarPlantilla(s, ruta);
    const std::string entera =
        "ver 1.1\r\nA\xF1o ?\x80\r\nANALOGICOS\r\n 1 \r\n01%50%%%kA$\r\nTRIFASICOS\r\n 1 \r\n1%-2%3%L%$\r\n"
        "DIGITALES\r\n12\r\n 3 \r\n***\r\nG1\r\n 2 \r\n3%a$\r\n4%b$\r\n***\r\nG2\r\n002\r\n3%d$\r\n4%$\r\n"
        "***\r\n\r\n 0 \r\n-----\r\n";
    EXPECT_EQ(LeeTodo(ruta), entera);
}

TEST(GrabarPlantilla, FailureLostOrFileRolledBack)
{
    RecordStore s = ConAntes();
    LlenaEdicion(s);
    const Carpeta carpeta;
    const std::string ruta = carpeta.Ruta("p.cnf");
    const std::string hastaAnalog = "ver 1.1\r\nANTES\r\nANALOGICOS\r\n 3 \r\n8%a%b%c$\r\n9%d%e%f$\r\n";
    const auto graba = [&](const RecordStore& t) {
        carpeta.Escribe("p.cnf", "old");
        return NumeroDeError([&] { GrabarPlantilla(t, ruta); });
    };
    RecordStore t = s;
    t.NumCanalPlan = 3;
    EXPECT_EQ(graba(t), 9);
    EXPECT_EQ(LeeTodo(ruta), hastaAnalog);
    t = s;
    t.NumGruposDigPlan = 2;
    EXPECT_EQ(graba(t), 9);
    const std::string media = LeeTodo(ruta);
    EXPECT_NE(media.find("***\r\nG\r\n1\r\n6%i$\r\n"), std::string::npos);
    EXPECT_EQ(media.find("-----"), std::string::npos);
    t = s;
    t.GruposEdit(1).Cuenta = "x";
    EXPECT_EQ(graba(t), 13);
    t.GruposEdit(1).Cuenta = "20";  // a row holds 19 members
    EXPECT_EQ(graba(t), 9);

    LimitaDisco(20);
    EXPECT_EQ(graba(s), 61);
    LimitaDisco(-1);
    EXPECT_EQ(LeeTodo(ruta), "ver 1.1\r\nANTES\r\nANAL");
    EXPECT_EQ(NumeroDeError([&] { GrabarPlantilla(s, carpeta.Ruta("no/p.cnf")); }), 76);
}

TEST(LeerVersionPlantilla, WrongErrorForAFileThatIsNotThere)
{
    const Carpeta carpeta;
    const std::pair<std::string, int> casos[] = {{"", 75},
                                                 {carpeta.Ruta("no.cnf"), 53},
                                                 {carpeta.Ruta("no/p.cnf"), 76},
                                                 {carpeta.Ruta(), 75},
                                                 {carpeta.Escribe("vacio.cnf", ""), 62}};
    RecordStore s;
    for (const char* fin : {"\r\n", "\n", ""}) {
        s.FicheroCnf = carpeta.Escribe("p.cnf", std::string("ver 1.0 \xF1") + fin);
        EXPECT_EQ(LeerVersionPlantilla(s), "ver 1.0 ñ");
        EXPECT_EQ(s.VersionPlantilla, "ver 1.0 ñ");
    }
    for (const auto& [ruta, numero] : casos) {
        s.FicheroCnf = ruta;
        EXPECT_EQ(NumeroDeError([&] { LeerVersionPlantilla(s); }), numero) << ruta;
        EXPECT_EQ(s.VersionPlantilla, "ver 1.0 ñ");
    }
}

}  // namespace
}  // namespace veldix
