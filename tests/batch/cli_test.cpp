#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "batch/ordenes.h"
#include "support/grabadora.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::ConFinales;

const char* const kSesion = " 1 \r\n 4 \r\na\r\nb\r\nc\r\nd\r\n";

/// A program tree beside a folder of records, whose session may not be written.
class Cli : public testing::Test {
protected:
    Cli()
    {
        fs::create_directories(c.Ruta("VELDIX/EXE"));
        fs::create_directory(c.Ruta("d"));
        fs::copy(VELDIX_SOURCE "/runtime/VELDIX/ini", c.Ruta("VELDIX/ini"));
        c.Escribe("VELDIX/ini/ficher.ini", kSesion);
        Registro("rec", "SE,R");
        c.Escribe("d/p.cnf",
                  ConFinales("ver 1.1|\"P\"|ANALOGICOS|2|1%Va%x%V$|2%Ia%x%A$|TRIFASICOS|1|1%2%2%T%1$"
                             "|DIGITALES|1|1|***|GRUPO|1|1%Disparo$|-----"));
    }
    void TearDown() override { EXPECT_EQ(prueba::LeeTodo(c.Ruta("VELDIX/ini/ficher.ini")), kSesion); }

    void Registro(const std::string& nombre, const std::string& linea1, const std::string& ratios = {},
                  const std::string& formato = "ASCII") const
    {
        c.Escribe("d/" + nombre + ".cfg", ConFinales(linea1 + "|3,2A,1D|1,VA,A,BARRAS,kV,0.1,0,0,-9,9" +
                                                     ratios + "|2,IA,A,LINEA,A,2,0,2.5,-9,9" + ratios +
                                                     "|1,TRIP,0|50|1|1000,2|1/2/3|4/5/6|" + formato + "|1"));
        c.Escribe("d/" + nombre + ".dat", "1,0,10,20,0\r\n2,1000,-3,4,1\r\n");
    }
    /// What a command writes; unless it ends well and without messages, its status and those behind it.
    /// In the arguments "d/" stands for the folder of records, "ej/" for the demonstration's.
    std::string Corre(const std::string& linea) const
    {
        std::vector<std::string> argumentos;
        std::istringstream palabras(linea);
        for (std::string a; palabras >> a;) {
            if (a.starts_with("d/")) a = c.Ruta(a);
            if (a.starts_with("ej/")) a.replace(0, 2, VELDIX_SOURCE "/examples");
            argumentos.push_back(a);
        }
        std::ostringstream resultados, mensajes;
        const Salida salida = Ejecuta(argumentos, programa, Consola{resultados, mensajes});
        if (salida == Salida::Hecha && mensajes.str().empty()) return resultados.str();
        return resultados.str() + std::to_string(static_cast<int>(salida)) + mensajes.str();
    }
    void Da(const std::string& linea, const std::string& trozo) const
    {
        const std::string r = Corre(linea);
        EXPECT_NE(r.find(trozo), std::string::npos) << trozo << "\nis not in\n" << r;
    }

    const prueba::Carpeta c;
    std::string programa = c.Ruta("VELDIX/EXE");
};

TEST_F(Cli, InfoLacksAKeyOrWritesNumbersOfTheLocale)
{
    const prueba::Separa coma(",", ".");
    Registro("r97", "SE,R,1997", ",132,0.11, p ");
    std::string json = Corre("info d/r97.dat d/p.cnf");
    std::erase_if(json, [](char x) { return x == ' ' || x == '\n'; });
    EXPECT_EQ(
        json,
        R"({"NombreEstacion":"\"P\"","RevisionCfg":"1997","NumCanales":3,"NumAnalog":2,"NumDigital":1,)"
        R"("FrecLinea":50,"NumFrecuencias":1,"FrecMuestras":[1000],"UltimaMuestra":[2],"FechaInicio":"1/2/3",)"
        R"("FechaDisparo":"4/5/6","FormatoDat":"ASCII","TimeMult":1,"FrecMuestreo":1000,"FicheroCfg":")" +
            c.Ruta("d/r97.cfg") + R"(","FicheroDat":")" + c.Ruta("d/r97.dat") +
            R"(","FicheroHdr":"","FicheroCnf":")" + c.Ruta("d/p.cnf") +
            R"(","NumMuestras":2,"Canales":[["1","Va","x","V"],["2","Ia","x","A"]],"FactorA":[0.1,2],)"
            R"("FactorB":[0,0],"Skew":[0,2.5],"Relacion":[[132,0.11,"p"],[132,0.11,"p"]],"NombreDig":["TRIP"],)"
            R"("VersionPlan":"ver1.1","EstacionPlan":"\"P\"","Trifasic":[[1,2,2,"T","1"]],)"
            R"("GruposDig":[["GRUPO","1"]],"CanalesDig":[["1","Disparo"]],"PlantillaNoValida":false})");
    Da("info d/rec.dat", "\"TRIP\"]\n}\n");  // nothing of a template that was not named
    programa = c.Ruta("NO/EXE");
    Da("info d/rec.dat", "\"NombreEstacion\": \"SE\"");
    EXPECT_FALSE(fs::exists(c.Ruta("NO"))) << "a missing settings folder is made";
}

TEST_F(Cli, InfoMissesATemplateThatDoesNotFitOrOddNamesBreakTheJson)
{
    c.Escribe("d/tres.cnf", ConFinales("ver 1.1|T|ANALOGICOS|3|1%a%x%V$|2%b%x%V$|3%c%x%V$|-----"));
    Da("info d/rec.dat d/tres.cnf", "\"PlantillaNoValida\": true");
    Da("info ej/falta_1991.dat ej/falta.cnf", "\"PlantillaNoValida\": false");
    Registro("\xFF\"", "A\"B\\C\x1f-L\xEDnea \x80,R");
    Da("info d/\xFF\".dat", "\"A\\\"B\\\\C\\u001f-L\u00EDnea \u20AC\"");
    Da("info d/\xFF\".dat", "/\uFFFD\\\".dat\"");
}

TEST_F(Cli, SamplesAreOfTheWrongSideOrWithAComma)
{
    const prueba::Separa coma(",", ".");
    Registro("r97", "SE,R,1997", ",100,25,P");
    Registro("uno", "SE,R,1997", ",1,1,P");
    const std::string primario = "1,0,1,40,0\n2,1000,-0.3,8,1\n";
    const std::pair<const char*, std::string> casos[] = {
        {"samples d/rec.dat --reference secondary", primario},
        {"samples d/uno.dat", primario},
        {"--lang en samples d/r97.dat",
         "1,0,0,0,0\n2,1000,0,0,1\n"
         "0veldix-cli: A 1997 record with ratios is zero until a --reference is chosen.\n"},
        {"samples d/r97.dat --reference primary", primario},
        {"samples --reference secondary d/r97.dat", "1,0,0.25,10,0\n2,1000,-0.075,2,1\n"},
    };
    for (const auto& [linea, filas] : casos)
        EXPECT_EQ(Corre(linea), "sample,time_us,A1,A2,D1\n" + filas) << linea;
}

/// In the fault of the demonstration record, at sample 432, IA is 2633 A and I2 = I0 = 826 A; VA is the
/// sum of its last cycle with sine and cosine.
TEST_F(Cli, PhasorsOrSequencesAreOfAnotherRowSideOrGroup)
{
    const struct {
        std::string linea, cabecera;
        int columna;  ///< from 0
        double valor;
    } casos[] = {
        {"phasors ej/falta_1991.dat", "row,A1_x,A1_y,A1_mag,A1_ang,A2_x", 19, 2633.0},
        {"phasors ej/falta_1991.dat", "row,A1_x,", 1, 50.5887},
        {"phasors ej/falta_1991.dat", "row,A1_x,", 2, 5.6181},
        {"phasors ej/falta_1991.dat", "row,A1_x,", 4, 6.337},
        {"phasors ej/falta_1997b.dat --reference primary", "row,A1_x,", 19, 2633.0},
        {"phasors ej/falta_1997.dat --reference secondary", "row,A1_x,", 19, 2633.0 / 800.0},
        {"sequences ej/falta_1991.dat ej/falta.cnf --group 2", "row,pos_x,pos_y,pos_mag,pos_ang,neg_x", 7,
         826.0},
        {"sequences ej/falta_1991.dat ej/falta.cnf --group 1", "row,pos_x", 11, 22.5 / 3.0},
    };
    for (const auto& k : casos) {
        std::istringstream csv(Corre(k.linea));
        std::string fila, campo;
        std::getline(csv, fila);
        EXPECT_TRUE(fila.starts_with(k.cabecera)) << fila;
        while (!fila.starts_with("592,") && std::getline(csv, fila)) {
        }
        std::istringstream campos(fila);
        for (int i = 0; i <= k.columna; ++i)
            std::getline(campos, campo, ',');
        EXPECT_NEAR(Val(campo), k.valor, 0.005 * k.valor) << k.linea;
        while (std::getline(csv, fila))
            campo = fila.substr(0, fila.find(','));
        EXPECT_EQ(campo, "2720") << "five cycles and the samples";
    }
}

TEST_F(Cli, FailureOrWrongUsageEndsWellOrPrintsAHalfResult)
{
    c.Escribe("d/sincfg.dat", "1,0,10,20,0\r\n");
    Registro("anio", "SE,R,1999");
    Registro("formato", "SE,R", "", "FLOAT32");
    c.Escribe("d/v10.cnf", "ver 1.0\r\nVIEJA\r\n");
    c.Escribe("d/muchos.cnf", ConFinales("ver 1.1|T|ANALOGICOS|9|1%a%x%V$|TRIFASICOS|1|1%2%3%T%1$|-----"));
    const std::pair<const char*, std::vector<const char*>> casos[] = {
        {"1veldix-cli: ",
         {"info d/no.dat", "info d/sincfg.dat", "samples d/anio.dat", "samples d/formato.dat",
          "info d/rec.dat d/no.cnf", "info d/rec.dat d/v10.cnf", "info d/", "phasors d/formato.dat",
          "phasors d/rec.dat", "sequences ej/falta_1991.dat d/no.cnf --group 1",
          "sequences ej/falta_1991.dat ej/falta.cnf --group 3",
          "sequences ej/falta_1991.dat d/muchos.cnf --group 1"}},
        {"2",
         {"", "infos d/rec.dat", "info", "info d/rec.dat d/p.cnf d/p.cnf", "info d/rec.dat --nada",
          "phasors d/rec.dat --group 1", "sequences d/rec.dat d/p.cnf",
          "sequences d/rec.dat d/p.cnf --group 0", "sequences d/rec.dat d/p.cnf --group 1x",
          "info d/rec.dat --reference primary", "samples d/rec.dat --reference x", "samples --reference"}},
    };
    for (const auto& [principio, lineas] : casos)
        for (const std::string linea : lineas) {
            const std::string r = Corre("--lang en " + linea);
            EXPECT_TRUE(r.starts_with(principio) && r.size() > 20) << linea << '\n' << r;
        }
    Da("--lang en phasors d/rec.dat",
       "1veldix-cli: Error 9: Subscript out of range");  // shorter than a cycle
    Da("--lang en info d/formato.dat", "The format line of the .cfg file is not valid.");
    Da("--lang es info d/formato.dat", "La línea de formato del fichero .cfg no es válida.");
    EXPECT_TRUE(Corre("samples d/rec.dat --help --lang en").starts_with("Usage:"));
}

TEST_F(Cli, AsciiCopyIsNotTheRecordOrIsMadeOverIt)
{
    Registro("bin", "SE,R,1997", ",2,1,P", "BINARY");
    c.Escribe("d/bin.dat", std::string("\1\0\0\0\0\0\0\0\7\0\370\377\1\0", 14));
    c.Escribe("d/bin.hdr", "h");
    c.Escribe("d/otro.dat", "old");
    EXPECT_EQ(Corre("ascii d/bin.dat d/otro"), "");
    EXPECT_EQ(prueba::LeeTodo(c.Ruta("d/otro.dat")), " 1,0,7,-8,1\r\n");
    EXPECT_TRUE(prueba::LeeTodo(c.Ruta("d/otro.cfg")).ends_with("4/5/6\r\nASCII\r\r\n1\r\n\r\n"));
    EXPECT_EQ(prueba::LeeTodo(c.Ruta("d/otro.hdr")), "h");
    EXPECT_EQ(Corre("samples d/otro.dat --reference secondary"),
              Corre("samples d/bin.dat --reference secondary"));
    EXPECT_EQ(Corre("ascii d/bin.dat d/BIN"), "1veldix-cli: Error 55: File already open\n");
    EXPECT_EQ(Corre("--lang en ascii d/rec.dat d/x"), "1veldix-cli: The record is not in BINARY format.\n");
    c.Escribe("d/sin.cfg", ConFinales("SE,R|1,0A,1D|1,T,0|50|1|1000,2|f|f|BINARY"));
    c.Escribe("d/sin.dat", "\1");
    EXPECT_EQ(Corre("--lang en ascii d/sin.dat d/otro"), "1veldix-cli: The record has no samples.\n");
    for (const char* linea :
         {"ascii d/bin.dat d/..", "ascii d/bin.dat d/", "ascii d/bin.dat", "ascii d/bin.dat d/x --sample 1"})
        EXPECT_EQ(Corre(linea).substr(0, 1), "2") << linea;
}

/// The pages of a report as its titles tell them, and whether it was ended.
class Informe : public Cli {
protected:
    Informe()
    {
        creaPdf = [this](const std::string& ruta, ModoColor color) {
            pdf = ruta;
            auto nueva = std::make_unique<prueba::Grabadora>(16838.0, 11906.0, color);
            impresora = nueva.get();
            impresora->alAcabar = [this](const prueba::Grabadora& g) { ops = g.ops; };
            return nueva;
        };
    }
    ~Informe() override { creaPdf = nullptr; }
    std::string Titulos() const
    {
        std::string s;
        int paginas = ops.empty() ? 0 : 1;
        for (const auto& o : ops) {
            if (o.tipo == Tipo::Pagina) ++paginas;
            if (o.texto == "PHASES" || o.texto == "SEQUENCES") s += o.texto + " ";
            if (o.texto == "Analog channels ") s += "waves ";
            if (o.texto == "Digital channels ") s += "digital ";
            if (o.texto == "VELDIX") s += "header ";
        }
        const bool acabado = !ops.empty() && ops.back().tipo == Tipo::Termina;
        return s + std::to_string(paginas) + (acabado ? " ended" : "");
    }
    using Tipo = prueba::OperacionPagina::Tipo;
    std::string pdf;
    prueba::Grabadora* impresora = nullptr;
    std::vector<prueba::OperacionPagina> ops;
};

TEST_F(Informe, PagesAreMissingOrInAnotherOrder)
{
    EXPECT_EQ(Corre("--lang en report ej/falta_1997.dat ej/falta.cnf d/o.pdf"), "");
    EXPECT_EQ(Titulos(),
              "waves waves waves waves waves waves waves waves waves "
              "PHASES SEQUENCES PHASES SEQUENCES digital digital digital digital header 19 ended");
    EXPECT_TRUE(pdf.ends_with("d/o.pdf"));
    const auto de = [this](const std::string& texto) {
        return std::ranges::any_of(ops,
                                   [&](const auto& o) { return o.texto.find(texto) != std::string::npos; });
    };
    EXPECT_TRUE(de("Sample no. 337"));  // nearest to the trigger
    EXPECT_FALSE(de(" max 0")) << "no side chosen";
    EXPECT_EQ(Corre("--lang=en report ej/falta_1991.dat d/o.pdf --channels 2,5-6 --sample=385 --monochrome"),
              "");
    EXPECT_EQ(Titulos(), "waves waves waves waves header 6 ended");
    EXPECT_TRUE(de("Sample no. 385") && !de("Tensión fase A"));
    EXPECT_TRUE(std::ranges::none_of(ops, [](const auto& o) { return o.color != 0; }));
}

TEST_F(Informe, WhatHasNoPageIsToldAndTheOthersStay)
{
    std::string miembros, cabecera(2501, '\n');
    for (int j = 1; j <= 20; ++j)
        miembros += "1%D" + std::to_string(j) + "$|";
    const std::string digitales =
        "DIGITALES|22| 3 |***|LARGO| 20 |" + miembros + "***|MALO| 1 |x%D$|***|CORTO| 1 |1%D$|-----";
    c.Escribe("d/largo.cnf", ConFinales("ver 1.1|P|ANALOGICOS|1|1%a%b%V$|" + digitales));
    c.Escribe("d/solo.cnf", ConFinales("ver 1.1|P|" + digitales));
    c.Escribe("d/rec.hdr", cabecera);
    const std::string hdr = "veldix-cli: Header without a page, error 9: " + c.Ruta("d/rec.hdr") + "\n";
    EXPECT_EQ(Corre("--lang en report d/rec.dat d/largo.cnf d/o.pdf"),
              "0veldix-cli: Digital group without a page, error 9: LARGO\n"
              "veldix-cli: Digital group without a page, error 13: MALO\n" +
                  hdr);
    EXPECT_EQ(Titulos(), "waves waves digital 3 ended");
    EXPECT_EQ(Corre("--lang en report d/rec.dat d/solo.cnf d/o.pdf"),
              "1veldix-cli: There are no pages of digital channels without analog channels.\n" + hdr +
                  "veldix-cli: There is nothing to print.\n");
}

TEST_F(Informe, BadWordsOrRecordsWriteSomething)
{
    for (const char* linea : {"report d/rec.dat", "report d/rec.dat d/o.pdf --channels 2-1",
                              "report d/rec.dat d/o.pdf --channels 1,", "report d/rec.dat d/o.pdf --sample 0",
                              "samples d/rec.dat --sample 1", "info d/rec.dat --monochrome"})
        EXPECT_EQ(Corre(linea).substr(0, 2), "2U") << linea;
    std::filesystem::create_symlink(c.Ruta("d/rec.cfg"), c.Ruta("d/liga.pdf"));
    for (const char* linea : {"report d/rec.dat d/t.cnf", "report d/rec.dat d/liga.pdf"})
        EXPECT_EQ(Corre(linea).substr(0, 2), "2v") << linea;
    EXPECT_EQ(Corre("--lang en report d/rec.dat d/o.pdf --sample 3"),
              "1veldix-cli: The record has no such sample.\n");
    EXPECT_EQ(Corre("--lang en report d/rec.dat d/o.pdf --channels 3"),
              "1veldix-cli: The record has no such channel.\n");
    EXPECT_EQ(Corre("report d/nada.dat d/o.pdf").front(), '1');
    c.Escribe("d/grande.cnf", ConFinales("ver 1.1|P|ANALOGICOS|3|1%a%b%V$|2%a%b%V$|3%a%b%V$|-----"));
    EXPECT_EQ(Corre("report d/rec.dat d/grande.cnf d/o.pdf").front(), '1');
    EXPECT_TRUE(ops.empty());
}

}  // namespace
}  // namespace veldix
