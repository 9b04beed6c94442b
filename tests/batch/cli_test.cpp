#include <filesystem>
#include <map>
#include <sstream>

#include "batch/ordenes.h"
#include "platform/textos.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::LeeTodo;

constexpr std::string_view kPlantilla =
    "ver 1.1\r\nMI \"PLANTILLA\"\r\nANALOGICOS\r\n 2 \r\n1%Va%x%V$\r\n2%Ia%x%A$\r\nDIGITALES\r\n1\r\n 1 "
    "\r\n***\r\n"
    "GRUPO\r\n 1 \r\n1%Disparo$\r\n-----\r\n";

std::string Cfg(const std::string& linea1, const std::string& tras = {}, const std::string& formato = "ASCII")
{
    return linea1 + "\r\n3,2A,1D\r\n1,VA,A,BARRAS,kV,0.1,0,0,-9,9" + tras +
           "\r\n2,IA,A,LINEA,A,2,\"1,5\",2.5,-9,9" + tras +
           "\r\n1,TRIP,0\r\n50\r\n1\r\n1000,2\r\n01/02/03,04:05:06.0\r\n01/02/03,04:05:07.0\r\n" + formato +
           "\r\n1\r\n";
}

/// JSON without the blanks between its marks. Fails where quotes or brackets do not close, or where a
/// control character stands inside a text.
std::string Compacta(const std::string& json)
{
    std::string salida, abiertos;
    bool texto = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (texto) {
            EXPECT_GE(static_cast<unsigned char>(c), 0x20) << "at " << i;
            salida += c;
            if (c == '\\')
                salida += json.at(++i);
            else if (c == '"')
                texto = false;
            continue;
        }
        if (c == ' ' || c == '\n' || c == '\r' || c == '\t') continue;
        salida += c;
        if (c == '"') texto = true;
        if (c == '{' || c == '[') abiertos += c;
        if (c == '}' || c == ']') {
            EXPECT_TRUE(!abiertos.empty() && abiertos.back() == (c == '}' ? '{' : '[')) << "at " << i;
            if (!abiertos.empty()) abiertos.pop_back();
        }
    }
    EXPECT_TRUE(!texto && abiertos.empty());
    EXPECT_EQ(salida.find(",}"), std::string::npos);
    EXPECT_EQ(salida.find(",]"), std::string::npos);
    return salida;
}

class Cli : public testing::Test {
protected:
    Cli()
    {
        for (const char* carpeta : {"VELDIX/EXE", "VELDIX/ini", "d"})
            fs::create_directories(c.Ruta(carpeta));
        for (const char* fichero : {"vdotro.ini", "vdingles.ini"})
            fs::copy_file(fs::path(VELDIX_SOURCE "/runtime/VELDIX/ini") / fichero,
                          c.Ruta("VELDIX/ini/") + fichero);
        c.Escribe("VELDIX/ini/ficher.ini", " 1 \r\n 4 \r\na\r\nb\r\nc\r\nd\r\n");
        c.Escribe("VELDIX/ini/tools.ini", "1\r\na\r\nb\r\nc\r\n0\r\n");
        Registro("rec", Cfg("SE UNO,R"));
        c.Escribe("d/p.cnf", kPlantilla);
        antes_ = Ini();
    }
    ~Cli() override
    {
        EXPECT_EQ(Ini(), antes_) << "the settings folder was written";
        VaciaTextos();
        store = RecordStore{};
    }

    void Registro(const std::string& nombre, const std::string& cfg) const
    {
        if (!cfg.empty()) c.Escribe("d/" + nombre + ".cfg", cfg);
        c.Escribe("d/" + nombre + ".dat", "1,0,10,20,0\r\n2,1000,-3,4,1\r\n");
    }
    /// "d/" at an argument's head stands for the folder of records.
    Salida Corre(std::vector<std::string> argumentos, bool espanol = false)
    {
        for (std::string& a : argumentos)
            if (a.starts_with("d/")) a = c.Ruta(a);
        std::ostringstream resultados, mensajes;
        const Salida salida =
            Ejecuta(argumentos, c.Ruta("VELDIX/EXE"), Consola{resultados, mensajes, espanol});
        res = resultados.str();
        msj = mensajes.str();
        return salida;
    }
    std::map<std::string, std::string> Ini() const
    {
        std::map<std::string, std::string> ficheros;
        for (const auto& e : fs::directory_iterator(c.Ruta("VELDIX/ini")))
            ficheros[e.path().filename()] = LeeTodo(e.path());
        return ficheros;
    }
    void Contiene(const std::vector<std::string>& trozos) const
    {
        const std::string json = Compacta(res);
        for (const std::string& t : trozos)
            EXPECT_NE(json.find(t), std::string::npos) << t << "\nis not in\n" << json;
    }

    prueba::Carpeta c;
    std::string res, msj;

private:
    std::map<std::string, std::string> antes_;
};

TEST_F(Cli, InfoLacksAKeyOrWritesNumbersOfTheLocale)
{
    const prueba::Separa coma(",", ".");
    ASSERT_EQ(Corre({"info", "d/rec.dat"}), Salida::Hecha) << msj;
    EXPECT_EQ(msj, "");
    Contiene({R"("NombreEstacion":"SE UNO")",
              R"("RevisionCfg":"1991")",
              R"("NumCanales":3)",
              R"("NumAnalog":2)",
              R"("NumDigital":1)",
              R"("FrecLinea":50)",
              R"("NumFrecuencias":1)",
              R"("FrecMuestras":[1000])",
              R"("UltimaMuestra":[2])",
              R"("FechaInicio":"01/02/03,04:05:06.0")",
              R"("FechaDisparo":"01/02/03,04:05:07.0")",
              R"("FormatoDat":"ASCII")",
              R"("TimeMult":0)",
              R"("FrecMuestreo":1000)",
              R"("FicheroDat":")" + c.Ruta("d/rec.dat") + '"',
              R"("FicheroCfg":")" + c.Ruta("d/rec.cfg") + '"',
              R"("FicheroHdr":"")",
              R"("FicheroCnf":"")",
              R"("NumMuestras":2)",
              R"("Canales":[["1","VA","BARRAS","kV"],["2","IA","LINEA","A"]])",
              R"("FactorA":[0.1,2])",
              R"("Skew":[0,)",
              R"("NombreDig":["TRIP"])"});
    for (const char* clave : {"VersionPlan", "EstacionPlan", "PlantillaNoValida", "GruposDig"})
        EXPECT_EQ(res.find(clave), std::string::npos) << clave;

    Registro("r97", Cfg("SE,R,1997", ",132,0.11, p "));
    ASSERT_EQ(Corre({"info", "d/r97.dat"}), Salida::Hecha) << msj;
    Contiene(
        {R"("RevisionCfg":"1997")", R"("TimeMult":1)", R"("Relacion":[[132,0.11," p "],[132,0.11," p "]])"});
}

TEST_F(Cli, InfoMissesATemplateThatDoesNotFit)
{
    const std::string tres =
        "ver 1.1\r\nT\r\nANALOGICOS\r\n 3 \r\n1%a%x%V$\r\n2%b%x%V$\r\n3%c%x%V$\r\n-----\r\n";
    c.Escribe("d/tres.cnf", tres);
    c.Escribe("d/dig.cnf",
              "ver 1.1\r\nT\r\nDIGITALES\r\n1\r\n 1 \r\n***\r\nG\r\n 1 \r\n2%Disparo$\r\n-----\r\n");
    const struct {
        const char *plantilla, *noValida;
    } casos[] = {{"d/p.cnf", "false"}, {"d/tres.cnf", "true"}, {"d/dig.cnf", "true"}, {"d/p.cnf", "false"}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.plantilla);
        ASSERT_EQ(Corre({"info", "d/rec.dat", caso.plantilla}), Salida::Hecha) << msj;
        Contiene({std::string(R"("PlantillaNoValida":)") + caso.noValida, R"("VersionPlan":"ver 1.1")",
                  R"("FicheroCnf":")" + c.Ruta(caso.plantilla) + '"'});
    }
    Contiene(
        {R"("EstacionPlan":"MI \"PLANTILLA\"")", R"("Trifasic":[])", R"(["GRUPO",)", R"(["1","Disparo"])"});
}

TEST_F(Cli, OddNamesBreakTheJson)
{
    const struct {
        const char *nombre, *json;
    } casos[] = {
        {"A\"B\\C/", R"("NombreEstacion":"A\"B\\C)"},
        {"A\x01"
         "B\x1f"
         "C",
         R"("NombreEstacion":"A\u0001B\u001)"},
        {"L\xEDnea \xF1 \x80", "\"NombreEstacion\":\"L\u00EDnea \u00F1 \u20AC\""},
        {"L\xC3\xADnea", "\"NombreEstacion\":\"L\u00EDnea\""},
        {"\xED\xA0\x80", "\"NombreEstacion\":\"\u00ED\u00A0\u20AC\""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.json);
        Registro("raro", Cfg(std::string(caso.nombre) + ",R"));
        ASSERT_EQ(Corre({"info", "d/raro.dat"}), Salida::Hecha) << msj;
        Contiene({caso.json});
    }
    fs::copy_file(c.Ruta("d/rec.dat"), c.Ruta("d/\xFF\".dat"));
    fs::copy_file(c.Ruta("d/rec.cfg"), c.Ruta("d/\xFF\".cfg"));
    ASSERT_EQ(Corre({"info", "d/\xFF\".dat"}), Salida::Hecha) << msj;
    Contiene({"/\uFFFD\\\".dat\""});
}

TEST_F(Cli, SamplesAreOfTheWrongSideOrWithAComma)
{
    const prueba::Separa coma(",", ".");
    const std::string cabeza = "sample,time_us,A1,A2,D1\n";
    Registro("r97", Cfg("SE,R,1997", ",100,20,P"));
    Registro("uno", Cfg("SE,R,1997", ",1,1,P"));
    const struct {
        std::vector<std::string> argumentos;
        const char* filas;
    } casos[] = {
        {{"samples", "d/rec.dat"}, "1,0,1,40,0\n2,1000,-0.3,8,1\n"},
        {{"samples", "d/rec.dat", "--reference", "secondary"}, "1,0,1,40,0\n2,1000,-0.3,8,1\n"},
        {{"samples", "d/uno.dat"}, "1,0,1,40,0\n2,1000,-0.3,8,1\n"},
        {{"samples", "d/r97.dat"}, "1,0,0,0,0\n2,1000,0,0,1\n"},
        {{"samples", "d/r97.dat", "--reference", "primary"}, "1,0,1,40,0\n2,1000,-0.3,8,1\n"},
        {{"samples", "--reference", "secondary", "d/r97.dat"}, "1,0,0.2,8,0\n2,1000,-0.06,1.6,1\n"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        EXPECT_EQ(Corre(caso.argumentos), Salida::Hecha) << msj;
        std::string csv = res;
        std::erase(csv, '\r');
        EXPECT_EQ(csv, cabeza + caso.filas);
        EXPECT_EQ(msj, "");
    }
}

TEST_F(Cli, DemonstrationRecordsDiffer)
{
    const std::string carpeta = VELDIX_SOURCE "/examples/";
    ASSERT_EQ(Corre({"samples", carpeta + "falta_1997.dat", "--reference", "primary"}), Salida::Hecha) << msj;
    const std::string texto = res;
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 2561);
    ASSERT_EQ(Corre({"samples", carpeta + "falta_1997b.dat", "--reference", "primary"}), Salida::Hecha)
        << msj;
    EXPECT_TRUE(texto == res);
    ASSERT_EQ(Corre({"info", carpeta + "falta_1991.dat", carpeta + "falta.cnf"}), Salida::Hecha) << msj;
    Contiene({R"("PlantillaNoValida":false)", "\"L\u00EDnea 1, 132 kV", R"("NumMuestras":2560)"});
}

TEST_F(Cli, FailureEndsWellOrPrintsAHalfResult)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("SE,R,1999"));
    Registro("formato", Cfg("SE,R", "", "FLOAT32"));
    const std::vector<std::string> casos[] = {
        {"info", "d/no.dat"},         {"samples", "d/no.dat"},           {"info", "d/sincfg.dat"},
        {"info", "d/anio.dat"},       {"samples", "d/anio.dat"},         {"info", "d/formato.dat"},
        {"samples", "d/formato.dat"}, {"info", "d/rec.dat", "d/no.cnf"}, {"info", "d"},
    };
    for (const auto& argumentos : casos) {
        SCOPED_TRACE(testing::PrintToString(argumentos));
        EXPECT_EQ(Corre(argumentos), Salida::Fallida);
        EXPECT_EQ(res, "");
        EXPECT_NE(msj, "");
    }
    const std::string ingles = (Corre({"info", "d/formato.dat"}, false), msj);
    EXPECT_NE(ingles.find("The format line of the .cfg file is not valid."), std::string::npos) << ingles;
    const std::string espanol = (Corre({"info", "d/formato.dat"}, true), msj);
    EXPECT_NE(espanol.find("La línea de formato del fichero .cfg no es válida."), std::string::npos)
        << espanol;
}

TEST_F(Cli, WrongUsageCountsAsAFailureOrRunsHalf)
{
    const std::vector<std::string> casos[] = {
        {},
        {"infos", "d/rec.dat"},
        {"info"},
        {"info", "d/rec.dat", "d/p.cnf", "d/p.cnf"},
        {"info", "d/rec.dat", "--nada"},
        {"samples"},
        {"samples", "d/rec.dat", "d/p.cnf"},
        {"samples", "d/rec.dat", "--reference"},
        {"samples", "d/rec.dat", "--reference", "tertiary"},
        {"--reference", "primary"},
    };
    for (const auto& argumentos : casos) {
        SCOPED_TRACE(testing::PrintToString(argumentos));
        EXPECT_EQ(Corre(argumentos), Salida::MalUso);
        EXPECT_EQ(res, "");
        EXPECT_NE(msj, "");
    }
}

TEST_F(Cli, HelpGoesToTheMessagesOrRunsTheCommand)
{
    for (const bool espanol : {false, true}) {
        EXPECT_EQ(Corre({"--help"}, espanol), Salida::Hecha);
        EXPECT_EQ(msj, "");
        for (const char* orden : {"info", "samples", "--reference"})
            EXPECT_NE(res.find(orden), std::string::npos) << orden;
        EXPECT_EQ(Corre({"samples", "--help"}, espanol), Salida::Hecha);
        EXPECT_EQ(msj, "");
        EXPECT_NE(res.find("--reference"), std::string::npos);
        EXPECT_EQ(Corre({"info", "d/rec.dat", "--help"}, espanol), Salida::Hecha);
        EXPECT_EQ(res.find("NombreEstacion\""), std::string::npos);
    }
}

TEST_F(Cli, MissingSettingsFolderStopsTheToolOrIsMade)
{
    std::ostringstream resultados, mensajes;
    const std::string otra = c.Ruta("otra/EXE");
    EXPECT_EQ(Ejecuta({"info", c.Ruta("d/rec.dat")}, otra, Consola{resultados, mensajes}), Salida::Hecha);
    EXPECT_FALSE(fs::exists(c.Ruta("otra")));
    EXPECT_NE(resultados.str().find("SE UNO"), std::string::npos);
}

}  // namespace
}  // namespace veldix
