#include <algorithm>
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

std::vector<std::string> Parte(const std::string& texto, char separador)
{
    std::vector<std::string> trozos;
    std::istringstream s(texto);
    for (std::string t; std::getline(s, t, separador);)
        trozos.push_back(t);
    return trozos;
}

/// JSON without the blanks between its marks. Fails where quotes or brackets do not close, or where a
/// control character stands inside a text.
std::string Compacta(const std::string& json)
{
    std::string salida, abiertos;
    bool texto = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (!texto && std::string_view(" \r\n\t").find(c) != std::string_view::npos) continue;
        salida += c;
        EXPECT_GE(static_cast<unsigned char>(c), 0x20) << "at " << i;
        if (texto && c == '\\')
            salida += json.at(++i);
        else if (c == '"')
            texto = !texto;
        else if (!texto && (c == '{' || c == '['))
            abiertos += static_cast<char>(c + 2);
        else if (!texto && (c == '}' || c == ']')) {
            EXPECT_TRUE(abiertos.ends_with(c)) << "at " << i;
            abiertos = abiertos.substr(0, abiertos.size() - 1);
        }
    }
    EXPECT_TRUE(!texto && abiertos.empty());
    return salida;
}

/// A program tree beside a folder of records, none of whose settings may be written.
class Cli : public testing::Test {
protected:
    Cli()
    {
        fs::create_directories(c.Ruta("VELDIX/EXE"));
        fs::create_directory(c.Ruta("d"));
        fs::copy(VELDIX_SOURCE "/runtime/VELDIX/ini", c.Ruta("VELDIX/ini"));
        c.Escribe("VELDIX/ini/ficher.ini", " 1 \r\n 4 \r\na\r\nb\r\nc\r\nd\r\n");
        c.Escribe("VELDIX/ini/tools.ini", "1\r\na\r\nb\r\nc\r\n0\r\n");
        Registro("rec", "SE,R");
        c.Escribe("d/p.cnf",
                  "ver 1.1\r\nMI \"PLANTILLA\"\r\nANALOGICOS\r\n 2 \r\n1%Va%x%V$\r\n2%Ia%x%A$\r\n"
                  "DIGITALES\r\n1\r\n 1 \r\n***\r\nGRUPO\r\n 1 \r\n1%Disparo$\r\n-----\r\n");
        antes = Ini();
    }
    ~Cli() override
    {
        EXPECT_EQ(Ini(), antes) << "the settings folder was written";
        VaciaTextos();
        store = RecordStore{};
    }

    void Registro(const std::string& nombre, const std::string& linea1, const std::string& ratios = {},
                  const std::string& formato = "ASCII") const
    {
        c.Escribe("d/" + nombre + ".cfg", linea1 + "\n3,2A,1D\n1,VA,A,BARRAS,kV,0.1,0,0,-9,9" + ratios +
                                              "\n2,IA,A,LINEA,A,2,0,2.5,-9,9" + ratios +
                                              "\n1,TRIP,0\n50\n1\n1000,2\n1/2/3\n4/5/6\n" + formato +
                                              "\n1\n");
        c.Escribe("d/" + nombre + ".dat", "1,0,10,20,0\r\n2,1000,-3,4,1\r\n");
    }
    /// Arguments between blanks; "d/" stands for the folder of records, "ej/" for the demonstration's.
    Salida Corre(const std::string& linea)
    {
        std::vector<std::string> argumentos = Parte(linea, ' ');
        for (std::string& a : argumentos)
            a = a.starts_with("d/")    ? c.Ruta(a)
                : a.starts_with("ej/") ? VELDIX_SOURCE "/examples" + a.substr(2)
                                       : a;
        std::ostringstream resultados, mensajes;
        const Salida salida = Ejecuta(argumentos, c.Ruta("VELDIX/EXE"), Consola{resultados, mensajes});
        res = resultados.str();
        msj = mensajes.str();
        return salida;
    }
    /// Runs a command to a good end. The pieces of JSON, between ";", must stand in its result.
    void Da(const std::string& linea, const std::string& trozos)
    {
        SCOPED_TRACE(linea);
        ASSERT_EQ(Corre(linea), Salida::Hecha) << msj;
        EXPECT_EQ(msj, "");
        const std::string json = Compacta(res);
        for (const std::string& t : Parte(trozos, ';'))
            EXPECT_NE(json.find(t), std::string::npos) << t << "\nis not in\n" << json;
    }
    std::map<std::string, std::string> Ini() const
    {
        std::map<std::string, std::string> ficheros;
        if (!fs::exists(c.Ruta("VELDIX"))) return ficheros;
        for (const auto& e : fs::directory_iterator(c.Ruta("VELDIX/ini")))
            ficheros[e.path().filename()] = LeeTodo(e.path());
        return ficheros;
    }

    prueba::Carpeta c;
    std::string res, msj;
    std::map<std::string, std::string> antes;
};

TEST_F(Cli, InfoLacksAKeyOrWritesNumbersOfTheLocale)
{
    const prueba::Separa coma(",", ".");
    Da("info d/rec.dat",
       R"("NombreEstacion":"SE";"RevisionCfg":"1991";"NumCanales":3;"NumAnalog":2;"NumDigital":1;)"
       R"("FrecLinea":50;"NumFrecuencias":1;"FrecMuestras":[1000];"UltimaMuestra":[2];"FechaInicio":"1/2/3";)"
       R"("FechaDisparo":"4/5/6";"FormatoDat":"ASCII";"TimeMult":0;"FrecMuestreo":1000;"FicheroHdr":"";)"
       R"("FicheroCnf":"";"NumMuestras":2;"Canales":[["1","VA","BARRAS","kV"],["2","IA","LINEA","A"]];)"
       R"("FactorA":[0.1,2];"FactorB":[0,0];"Skew":[0,2.5];"NombreDig":["TRIP"];"FicheroDat":")" +
           c.Ruta("d/rec.dat") + R"(";"FicheroCfg":")" + c.Ruta("d/rec.cfg") + '"');
    for (const char* clave : {"VersionPlan", "EstacionPlan", "PlantillaNoValida", "GruposDig"})
        EXPECT_EQ(res.find(clave), std::string::npos) << clave;
    Registro("r97", "SE,R,1997", ",132,0.11, p ");
    Da("info d/r97.dat",
       R"("RevisionCfg":"1997";"TimeMult":1;"Relacion":[[132,0.11," p "],[132,0.11," p "]])");
}

TEST_F(Cli, InfoMissesATemplateThatDoesNotFit)
{
    c.Escribe("d/tres.cnf",
              "ver 1.1\r\nT\r\nANALOGICOS\r\n 3 \r\n1%a%x%V$\r\n2%b%x%V$\r\n3%c%x%V$\r\n-----\r\n");
    c.Escribe("d/dig.cnf",
              "ver 1.1\r\nT\r\nDIGITALES\r\n1\r\n 1 \r\n***\r\nG\r\n 1 \r\n2%Disparo$\r\n-----\r\n");
    Da("info d/rec.dat d/tres.cnf", R"("PlantillaNoValida":true;"VersionPlan":"ver 1.1")");
    Da("info d/rec.dat d/dig.cnf", R"("PlantillaNoValida":true;"EstacionPlan":"T")");
    Da("info d/rec.dat d/p.cnf",
       R"("PlantillaNoValida":false;"EstacionPlan":"MI \"PLANTILLA\"";"Trifasic":[];["GRUPO",;["1","Disparo"])");
    Da("info ej/falta_1991.dat ej/falta.cnf",
       "\"PlantillaNoValida\":false;\"L\u00EDnea 1, 132 kV;\"NumMuestras\":2560");
}

TEST_F(Cli, OddNamesBreakTheJson)
{
    const std::pair<const char*, const char*> casos[] = {
        {"A\"B\\C/", R"("NombreEstacion":"A\"B\\C)"},
        {"A\x01-\x1f-", R"("NombreEstacion":"A\u0001-\u001)"},
        {"L\xEDnea \xF1 \x80", "\"NombreEstacion\":\"L\u00EDnea \u00F1 \u20AC\""},
        {"L\xC3\xADnea", "\"NombreEstacion\":\"L\u00EDnea\""},
        {"\xED\xA0\x80", "\"NombreEstacion\":\"\u00ED\u00A0\u20AC\""},
    };
    for (const auto& [nombre, json] : casos) {
        Registro("raro", std::string(nombre) + ",R");
        Da("info d/raro.dat", json);
    }
    Registro("\xFF\"", "SE,R");
    Da("info d/\xFF\".dat", "/\uFFFD\\\".dat\"");
}

TEST_F(Cli, SamplesAreOfTheWrongSideOrWithAComma)
{
    const prueba::Separa coma(",", ".");
    Registro("r97", "SE,R,1997", ",100,25,P");
    Registro("uno", "SE,R,1997", ",1,1,P");
    const char* const primario = "1,0,1,40,0\n2,1000,-0.3,8,1\n";
    const std::pair<const char*, const char*> casos[] = {
        {"samples d/rec.dat", primario},
        {"samples d/rec.dat --reference secondary", primario},
        {"samples d/uno.dat", primario},
        {"samples d/r97.dat", "1,0,0,0,0\n2,1000,0,0,1\n"},
        {"samples d/r97.dat --reference primary", primario},
        {"samples --reference secondary d/r97.dat", "1,0,0.25,10,0\n2,1000,-0.075,2,1\n"},
    };
    for (const auto& [linea, filas] : casos) {
        SCOPED_TRACE(linea);
        EXPECT_EQ(Corre(linea), Salida::Hecha);
        std::erase(res, '\r');
        EXPECT_EQ(res, std::string("sample,time_us,A1,A2,D1\n") + filas);
        EXPECT_EQ(msj, "");
    }
    Corre("samples ej/falta_1997.dat --reference primary");
    const std::string texto = res;
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 2561);
    Corre("samples ej/falta_1997b.dat --reference primary");
    EXPECT_TRUE(texto == res) << "text and binary differ";
}

TEST_F(Cli, FailureOrWrongUsageEndsWellOrPrintsAHalfResult)
{
    c.Escribe("d/sincfg.dat", "1,0,10,20,0\r\n");
    Registro("anio", "SE,R,1999");
    Registro("formato", "SE,R", "", "FLOAT32");
    const std::pair<Salida, std::vector<const char*>> casos[] = {
        {Salida::Fallida,
         {"info d/no.dat", "samples d/no.dat", "info d/sincfg.dat", "info d/anio.dat", "samples d/anio.dat",
          "info d/formato.dat", "samples d/formato.dat", "info d/rec.dat d/no.cnf", "info d/"}},
        {Salida::MalUso,
         {"", "infos d/rec.dat", "info", "info d/rec.dat d/p.cnf d/p.cnf", "info d/rec.dat --nada", "samples",
          "samples d/rec.dat d/p.cnf", "samples d/rec.dat --reference", "samples d/rec.dat --reference x",
          "samples d/rec.dat --reference=", "--reference primary"}},
    };
    for (const auto& [salida, lineas] : casos)
        for (const char* linea : lineas) {
            SCOPED_TRACE(linea);
            EXPECT_EQ(Corre(linea), salida);
            EXPECT_EQ(res, "");
            EXPECT_NE(msj, "");
        }
    Corre("--lang en info d/formato.dat");
    EXPECT_NE(msj.find("The format line of the .cfg file is not valid."), std::string::npos) << msj;
    Corre("--lang es info d/formato.dat");
    EXPECT_NE(msj.find("La línea de formato del fichero .cfg no es válida."), std::string::npos) << msj;
}

TEST_F(Cli, HelpGoesToTheMessagesOrRunsTheCommand)
{
    for (const char* linea : {"--help", "samples --help", "samples d/rec.dat --help"}) {
        SCOPED_TRACE(linea);
        EXPECT_EQ(Corre(linea), Salida::Hecha);
        EXPECT_EQ(msj, "");
        EXPECT_NE(res.find("--reference"), std::string::npos);
        EXPECT_EQ(res.find("time_us,A1,A2"), std::string::npos);
    }
}

TEST_F(Cli, MissingSettingsFolderStopsTheToolOrIsMade)
{
    fs::remove_all(c.Ruta("VELDIX"));
    antes.clear();
    Da("info d/rec.dat", R"("NombreEstacion":"SE")");
    EXPECT_FALSE(fs::exists(c.Ruta("VELDIX")));
}

}  // namespace
}  // namespace veldix
