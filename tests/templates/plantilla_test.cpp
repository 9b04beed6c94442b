#include "templates/plantilla.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "platform/avisos.h"
#include "platform/textos.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Carpeta;
using prueba::LeeTodo;
using prueba::NumeroDeError;

/// Reads a template whose lines stand between "|" and follow `antes`.
RecordStore Leida(const std::string& lineas, RecordStore s = {}, const std::string& antes = "ver 1.1|X|")
{
    const Carpeta carpeta;
    s.FicheroCnf = carpeta.Escribe("p.cnf", prueba::ConFinales(antes + lineas));
    LeerPlantilla(s);
    return s;
}

std::string Analog(const RecordStore& s)
{
    std::string o;
    for (const FilaCanal& f : s.CanalesPlan)
        o += f.Numero + ',' + f.Nombre + ',' + f.Circuito + ',' + f.Unidades + ';';
    return o;
}

/// Counts and rows of each table of the template set.
std::string Resumen(const RecordStore& s)
{
    std::ostringstream o;
    o << s.NumCanalPlan << ' ' << s.NumTrifasicPlan << ' ' << s.NumCanalDigPlan << ' ' << s.NumGruposDigPlan;
    o << " A " << Analog(s) << " T ";
    for (const FilaTrifasic& f : s.TrifasicPlan)
        o << f.Fase(1) << ',' << f.Fase(2) << ',' << f.Fase(3) << ',' << f.Nombre << ',' << f.Factor << ';';
    o << " G ";
    for (const FilaGrupoDig& f : s.GruposDigPlan)
        o << f.Nombre << ',' << f.Cuenta << ';';
    o << " D ";
    for (const FilaCanalDig& f : s.CanalesDigPlan)
        o << f.Numero << ',' << f.Nombre << ';';
    return o.str();
}

/// A store with earlier rows in every table of the template set.
RecordStore ConAntes()
{
    return Leida("ANALOGICOS|1|8%a%b%c$|TRIFASICOS|1|7%8%9%g%h$|DIGITALES|1|1|***|G|1|6%i$|-----");
}

TEST(LeerPlantilla, CountSeparatorOrMissingSectionMisread)
{
    const std::string a = " A 8,a,b,c;", t = " T 7,8,9,g,h;", d = " G G,1; D 6,i;";
    const std::string digital = "DIGITALES|2|1|any|D|2|1%u$|2%v$|-----", leido = " G D,2; D 1,u;2,v;";
    const std::pair<std::string, std::string> casos[] = {
        {"ANALOGICOS| 3 |1%IA%A$|2%I$B%B%kA$|3%IC%C%k%A$|TRIFASICOS|1|1%2%3%LINEA$|DIGITALES|3"
         "| 2 |***|G1|2|4%50%51$|5Reeng$|***|G2|1|9%TR$IP$",
         "3 1 3 2 A 1,IA,,1%IA%A;2,I$B,B,kA;3,IC,C,k%A; T 1,2,3,,1%2%3%LINEA; G G1,2;G2,1;"
         " D 4,50%51;,5Reeng;9,TR;"},
        {"-----", "0 0 0 0" + a + t + d},
        {"ANALOGICOS |1|1%p%q%r$|" + digital, "0 0 0 0" + a + t + d},
        // No number: the count stays.
        {"ANALOGICOS|x|1%p%q%r$|" + digital, "1 0 2 1 A 1,p,q,r;" + t + leido},
        // Zero and below: no rows; only the analog table is erased before it cannot be sized.
        {"ANALOGICOS|0|TRIFASICOS|-1|" + digital, "0 -1 2 1 A " + t + leido},
        {"TRIFASICOS|2|a%2%40000%n%$|4%5%6%m%2,5$", "0 2 0 0" + a + " T 0,2,0,n,;4,5,6,m,2,5;" + d},
        {digital, "0 0 2 1" + a + t + leido},
        {"DIGITALES||2", "0 0 0 1" + a + t + d},
        {"DIGITALES|5| 0 |-----", "0 0 5 0" + a + t + d},
        // More members than announced are read and dropped.
        {"DIGITALES|2|2|***|D|3|1%u$|2%v$|3%w$|***|E|002|4%y$|5%z$|--",
         "0 0 2 2" + a + t + " G D,3;E,002; D 1,u;2,v;"},
        // The file ends early: rows repeat the last line, names stay empty.
        {"ANALOGICOS|2|1%p%q%r$", "2 0 0 0 A 1,p,q,r;1,p,q,r;" + t + d},
        {"DIGITALES|4|2|***|D|3|1%u$|2%v$", "0 0 4 2" + a + t + " G D,3;,; D 1,u;2,v;2,v;,;"},
    };
    for (const auto& [lineas, resumen] : casos)
        EXPECT_EQ(Resumen(Leida(lineas, ConAntes())), resumen) << lineas;
}

TEST(LeerPlantilla, VersionRuleTooWideOrTooNarrow)
{
    int punteros = 0;
    PonPunteroNormal([&] { ++punteros; });
    prueba::RespondeCajas cajas;
    for (const std::string version : {"ver 1.0 ", "VER 1.0", "ver 1.01", "", "ver 1.0"}) {
        SCOPED_TRACE(version);
        const bool vieja = version == "ver 1.0";
        if (vieja) cajas.Espera(Textos(172), Icono::Critico);
        const RecordStore s = Leida("|NUEVA|ANALOGICOS|1|1%p%q%r$", ConAntes(), version);
        EXPECT_EQ(s.VersionPlan + s.EstacionPlan, version + (vieja ? "X" : "NUEVA"));
        EXPECT_EQ(Analog(s), vieja ? "8,a,b,c;" : "1,p,q,r;");
        EXPECT_EQ(punteros, vieja ? 1 : 0);
    }
    PonPunteroNormal(nullptr);
}

TEST(LeerPlantilla, FitCheckRunsUnderTheWrongFlagsOrTooStrict)
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
        s.PlantillaNoValida = true;
        const RecordStore a = Leida("ANALOGICOS|3|1%p%q%r$|2%p%q%r$|3%p%q%r$|-----", s);
        EXPECT_EQ(a.PlantillaNoValida, rechaza);
        EXPECT_EQ(Analog(a), rechaza ? "8,a,b,c;" : "1,p,q,r;2,p,q,r;3,p,q,r;");
        const RecordStore d = Leida("DIGITALES|3|1|***|D|3|16%u$|17%v$|1%w$|-----", s);
        EXPECT_EQ(d.PlantillaNoValida, rechaza);
        EXPECT_EQ(d.CanalesDigPlan(1).Nombre + d.CanalesDigPlan(3).Nombre, rechaza ? "u" : "uw");
        // Row numbers, phases and the total are not compared, nor are rows past the total.
        const std::string cabe = "|TRIFASICOS|1|70%71%72%n%1$|DIGITALES|99|1|***|D|2|x%u$|16%v$|-----";
        EXPECT_FALSE(Leida("ANALOGICOS|2|90%p%q%r$|91%p%q%r$" + cabe, s).PlantillaNoValida);
    }
}

TEST(AplicaPlantilla, WorkingSetKeepsEarlierRows)
{
    RecordStore s = ConAntes();
    s.NumCanalPlan = 2;  // one more than the table has
    s.Canales = Tabla1<FilaCanal>(5);
    s.CanalesDig = Tabla1<FilaCanalDig>(4);
    AplicaPlantilla(s);
    ASSERT_EQ(s.Canales.Cuantos() * 10 + s.CanalesDig.Cuantos(), 21);
    EXPECT_EQ(s.Canales(1).Unidades + s.Canales(2).Nombre, "c");
    EXPECT_EQ(s.Trifasic(1).Factor + std::to_string(s.Trifasic(1).Fase(3)), "h9");
    EXPECT_EQ(s.CanalesDig(1).Nombre + s.GruposDig(1).Nombre + s.NombreEstacion, "iGX");
    LeerPlantilla(s);  // its file went with Leida: the empty set is applied
    EXPECT_EQ(s.VersionPlan + s.EstacionPlan, "ver 1.1X");
    AplicaPlantilla(s);
    EXPECT_TRUE(s.Canales.Vacia() && s.CanalesDig.Vacia() && s.GruposDig.Vacia());
}

TEST(GrabarPlantilla, LinesOrOctetsDifferFromTheFormatOrFailureIsLost)
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
    s.NumGruposDigPlan = 2;
    s.GruposEdit = Tabla1<FilaGrupoEdit>(2);
    s.GruposEditNum = Tabla2<std::int16_t>(2, 21);
    s.GruposEdit(1) = {"G1", std::int16_t{2}, {"a", "b", "c"}};
    s.GruposEdit(2) = {"", "001", {"d"}};
    for (int j = 3; j <= 21; ++j)
        s.GruposEditNum(1, j) = static_cast<std::int16_t>(j);
    GrabarPlantilla(s, ruta);
    const std::string principio = "ver 1.1|A\xF1o ?\x80|ANALOGICOS| 1 |01%50%%%kA$|TRIFASICOS| 1 |1%-2%3%L%$";
    const std::string grupo = "|DIGITALES|12| 2 |***|G1| 2 |3%a$|4%b$";
    EXPECT_EQ(LeeTodo(ruta), prueba::ConFinales(principio + grupo + "|***||001|0%d$|-----"));

    const std::pair<FilaGrupoEdit, int> malos[] = {{{"", "x", {}}, 13}, {{"", "20", {}}, 9}};
    for (const auto& [malo, error] : malos) {
        s.GruposEdit(2) = malo;
        EXPECT_EQ(NumeroDeError([&] { GrabarPlantilla(s, ruta); }), error);
        const std::string escrito = LeeTodo(ruta);
        EXPECT_TRUE(escrito.starts_with(prueba::ConFinales(principio + grupo + "|***"))) << escrito;
        EXPECT_EQ(escrito.find("-----"), std::string::npos);
    }
}

TEST(LeerVersionPlantilla, WrongErrorForAFileThatIsNotThere)
{
    const Carpeta carpeta;
    RecordStore s;
    for (const char* fin : {"\r\n", "\n", ""}) {
        s.FicheroCnf = carpeta.Escribe("p.cnf", std::string("ver 1.0 \xF1") + fin);
        EXPECT_EQ(LeerVersionPlantilla(s), "ver 1.0 ñ");
    }
    const std::pair<std::string, int> casos[] = {
        {"", 75}, {carpeta.Ruta("no.cnf"), 53}, {carpeta.Ruta(), 75}, {carpeta.Escribe("vacio.cnf", ""), 62}};
    for (const auto& [ruta, numero] : casos) {
        s.FicheroCnf = ruta;
        EXPECT_EQ(NumeroDeError([&] { LeerVersionPlantilla(s); }), numero) << ruta;
        EXPECT_EQ(s.VersionPlantilla, "ver 1.0 ñ");
    }
}

}  // namespace
}  // namespace veldix
