#include "shell/ajustes.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/ficheros.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::LeeTodo;
using prueba::Separa;

template <class F>
int NumeroDe(F&& f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

std::string FicheroTextos(int lineas, const std::string& palabra)
{
    std::string octetos;
    for (int n = 1; n <= lineas; ++n)
        octetos += palabra + ' ' + std::to_string(n) + "\r\n";
    return octetos;
}

const char kFicher[] = " 1 \r\n 4 \r\n/d/a.dat\r\n/d/a.hdr\r\n/d/a.cfg\r\n/p/x.cnf\r\n";
const char kTools[] = "1\r\n/datos\r\n/plantillas\r\n/aplic\r\n2\r\n\"Calc=/bin/calc -x\"\r\n\"Nota=ed\"\r\n";

class Ajustes : public testing::Test {
protected:
    Ajustes()
    {
        s.DirIni = c.Ruta();
        s.Idioma = 1;
        s.FicheroDat = "/d/a.dat";
        s.FicheroHdr = "/d/a.hdr";
        s.FicheroCfg = "/d/a.cfg";
        s.FicheroCnf = "/p/x.cnf";
    }
    ~Ajustes() override
    {
        LimitaDisco(-1);
        VaciaTextos();
    }
    std::string Ficher() const { return LeeTodo(c.Ruta("ficher.ini")); }
    std::string Tools() const { return LeeTodo(c.Ruta("tools.ini")); }

    prueba::Carpeta c;
    RecordStore s;
};

TEST_F(Ajustes, SessionIsWrittenWithTheHeaderFileBeforeTheConfiguration)
{
    EscribeSesion(s);
    EXPECT_EQ(Ficher(), kFicher);
    s.Idioma = 0;
    s.FicheroHdr.clear();
    s.FicheroDat = "/d/a, b,c.dat";
    EscribeSesion(s);
    EXPECT_EQ(Ficher(), " 0 \r\n 4 \r\n/d/a, b,c.dat\r\n\r\n/d/a.cfg\r\n/p/x.cnf\r\n");
}

TEST_F(Ajustes, SessionFailsInSilence)
{
    c.Escribe("ficher.ini", "old");
    for (int n = 0; n < 40; ++n) {
        LimitaDisco(n);
        EXPECT_NO_THROW(EscribeSesion(s));
        ASSERT_EQ(Ficher(), "old") << n;
    }
    LimitaDisco(-1);
    s.DirIni = c.Ruta("no/such/folder");
    EXPECT_NO_THROW(EscribeSesion(s));
}

TEST_F(Ajustes, SessionIsPutBackAsReadWithItsOwnCount)
{
    for (const char* octetos : {kFicher, " 0 \r\n 2 \r\n a,b \r\n\"c\"\r\n",
                                " 1 \r\n 6 \r\n1\r\n2\r\n3\r\n4\r\n5\r\n\r\n", " 1 \r\n 0 \r\n"}) {
        c.Escribe("ficher.ini", octetos);
        s.Idioma = 7;
        RepasaSesion(s, nullptr);
        EXPECT_EQ(Ficher(), octetos);
        EXPECT_EQ(s.Idioma, octetos[1] - '0');
    }
    EXPECT_EQ(s.FicheroDat, "/d/a.dat");  // the lines are not taken over
    c.Escribe("ficher.ini", "1\n4\na\nb\nc\nd");
    const std::int16_t ingles = 0;
    RepasaSesion(s, &ingles);
    EXPECT_EQ(Ficher(), " 0 \r\n 4 \r\na\r\nb\r\nc\r\nd\r\n");
}

TEST_F(Ajustes, ABrokenSessionFileIsNeverCut)
{
    const std::pair<const char*, int> casos[] = {{"", 62},
                                                 {" 1 \r\n", 62},
                                                 {" 1 \r\n 4 \r\na\r\nb\r\nc\r\n", 62},
                                                 {" 1 \r\n 32767 \r\na\r\n", 62},
                                                 {"x\r\n 0 \r\n", 13},
                                                 {" 1 \r\n\r\na\r\n", 13},
                                                 {" 40000 \r\n 0 \r\n", 6}};
    const std::int16_t ingles = 0;
    for (const auto& [octetos, error] : casos) {
        c.Escribe("ficher.ini", octetos);
        for (const std::int16_t* idioma : {static_cast<const std::int16_t*>(nullptr), &ingles})
            EXPECT_EQ(NumeroDe([&] { RepasaSesion(s, idioma); }), error) << octetos;
        EXPECT_EQ(Ficher(), octetos);
    }
    std::filesystem::remove(c.Ruta("ficher.ini"));
    EXPECT_EQ(NumeroDe([&] { RepasaSesion(s, nullptr); }), 53);
    EXPECT_FALSE(ExisteFichero(c.Ruta("ficher.ini")));
}

TEST_F(Ajustes, ToolsAreWrittenInDoubleQuotesAndNumbersWithoutBlanks)
{
    ToolsIni t{1, "/datos", "/plantillas", "/aplic", {"Calc=/bin/calc -x", "Nota=ed"}};
    EscribeToolsIni(s, t);
    EXPECT_EQ(Tools(), kTools);
    t = {0, "/a, b", "", " /c ", {"", "N=sh -c \"x y\""}};
    EscribeToolsIni(s, t);
    EXPECT_EQ(Tools(), "0\r\n/a, b\r\n\r\n /c \r\n2\r\n\"\"\r\n\"N=sh -c \"x y\"\"\r\n");
    const ToolsIni leido = LeeToolsIni(s);
    EXPECT_EQ(leido.Idioma, 0);
    EXPECT_EQ(leido.DirDatos, "/a, b");
    EXPECT_EQ(leido.DirPlantillas, "");
    EXPECT_EQ(leido.DirAplic, " /c ");
    EXPECT_EQ(leido.herramientas, t.herramientas);
}

TEST_F(Ajustes, ToolsBeyondTheCountAreNotReadAndFewerAreAnError)
{
    c.Escribe("tools.ini", " 1 \n/d\n/p\n/a\n 2 \n\"\"\n'Ñ=o'\n\"C=d\"\n");
    EXPECT_EQ(LeeToolsIni(s).herramientas, (std::vector<std::string>{"", "Ñ=o"}));
    const std::pair<const char*, int> casos[] = {{"1\n/d\n/p\n/a\n3\n\"A=b\"\n\"C=d\"\n", 62},
                                                 {"1\n/d\n/p\n/a\n", 62},
                                                 {"x\n/d\n/p\n/a\n0\n", 13},
                                                 {"1\n/d\n/p\n/a\nno\n", 13},
                                                 {"1\n/d\n/p\n/a\n99999\n", 6}};
    for (const auto& [octetos, error] : casos) {
        c.Escribe("tools.ini", octetos);
        EXPECT_EQ(NumeroDe([&] { LeeToolsIni(s); }), error) << octetos;
    }
    s.DirIni = c.Ruta("no");
    EXPECT_EQ(NumeroDe([&] { LeeToolsIni(s); }), 76);
}

TEST_F(Ajustes, TheHeadOfToolsStopsAtTheCountAndKeepsWhatItReadBeforeAFailure)
{
    c.Escribe("tools.ini", "0\r\n/d\r\n/p\r\n/a\r\n3");  // the tools themselves are missing
    EXPECT_EQ(LeeTools(s), 3);
    EXPECT_EQ(s.Idioma, 0);
    EXPECT_EQ(s.DirAplic, "/a");

    s.Idioma = 1;
    c.Escribe("tools.ini", "0\r\n/d2\r\n/p2\r\n/a2\r\n");
    LeeDirectorios(s);
    EXPECT_EQ(s.Idioma, 1);
    EXPECT_EQ(s.DirDatos + s.DirPlantillas + s.DirAplic, "/d2/p2/a2");
    EXPECT_EQ(LeeIdiomaTools(s), 0);
    EXPECT_EQ(s.Idioma, 1);

    c.Escribe("tools.ini", "0\r\n/d3\r\n");
    EXPECT_EQ(NumeroDe([&] { LeeTools(s); }), 62);
    EXPECT_EQ(s.Idioma, 0);
    EXPECT_EQ(s.DirDatos + s.DirPlantillas, "/d3/p2");
}

TEST_F(Ajustes, APathBeyondTheCodePageReadsBackWhole)
{
    const struct {
        const char *ruta, *octetos;
    } casos[] = {{"/Ñ/é", "/\xD1/\xE9"}, {"/Ñ/ω漢", "/Ñ/ω漢"}, {"/plain", "/plain"}};
    const std::int16_t ingles = 0;
    for (const auto& k : casos) {
        const ToolsIni t{1, "/€", k.ruta, "/a", {std::string("Ü=") + k.ruta}};
        EscribeToolsIni(s, t);
        EXPECT_NE(Tools().find(std::string("\r\n") + k.octetos + "\r\n"), std::string::npos) << k.ruta;
        EXPECT_EQ(LeeToolsIni(s).DirPlantillas, k.ruta);
        EXPECT_EQ(LeeToolsIni(s).DirDatos, "/€");
        EXPECT_EQ(LeeToolsIni(s).herramientas, t.herramientas);

        s.Idioma = 1;
        s.FicheroCnf = k.ruta;
        EscribeSesion(s);
        const std::string antes = Ficher();
        EXPECT_TRUE(antes.ends_with(std::string("\r\n") + k.octetos + "\r\n")) << k.ruta;
        RepasaSesion(s, &ingles);
        EXPECT_EQ(Ficher(), " 0 " + antes.substr(3));
    }
}

TEST_F(Ajustes, APathWhoseOctetsLookLikeUtf8ReadsBackWhole)
{
    EscribeToolsIni(s, {1, "/Ã±", "/p", "/a", {}});
    EXPECT_EQ(LeeToolsIni(s).DirDatos, "/Ã±");
}

TEST_F(Ajustes, ASwitchOfLanguageRewritesBothFilesAndTakesFoldersAndTexts)
{
    c.Escribe("ficher.ini", kFicher);
    c.Escribe("tools.ini", kTools);
    c.Escribe("vdingles.ini", FicheroTextos(288, "Line"));
    c.Escribe("vdotro.ini", FicheroTextos(288, "L\xEDnea"));
    s.DirDatos = s.DirAplic = "/stale";
    CambiaIdiomaFicheros(s, 0);
    EXPECT_EQ(Ficher(), std::string(" 0 ") + (kFicher + 3));
    EXPECT_EQ(Tools(), std::string("0") + (kTools + 1));
    EXPECT_EQ(s.DirDatos + s.DirPlantillas + s.DirAplic, "/datos/plantillas/aplic");
    EXPECT_EQ(s.FicheroIdioma, c.Ruta("vdingles.ini"));
    EXPECT_EQ(Textos(277), "Line 277");
    CambiaIdiomaFicheros(s, 1);
    EXPECT_EQ(Ficher(), kFicher);
    EXPECT_EQ(Tools(), kTools);
    EXPECT_EQ(Textos(288), "Línea 288");
}

TEST_F(Ajustes, ASwitchThatFailsLosesNeitherFile)
{
    c.Escribe("ficher.ini", kFicher);
    c.Escribe("tools.ini", kTools);
    c.Escribe("vdingles.ini", FicheroTextos(288, "Line"));
    for (int n = 0; n < 70; ++n) {
        LimitaDisco(n);
        const int error = NumeroDe([&] { CambiaIdiomaFicheros(s, 0); });
        LimitaDisco(-1);
        EXPECT_TRUE(error == 61 || error == 0) << error;
        ASSERT_EQ(Ficher().substr(3), kFicher + 3) << n;
        ASSERT_EQ(Tools().substr(1), kTools + 1) << n;
    }
    c.Escribe("tools.ini", "1\r\n/d\r\n/p\r\n/a\r\n2\r\n\"A=b\"\r\n");
    EXPECT_EQ(NumeroDe([&] { CambiaIdiomaFicheros(s, 0); }), 62);
    EXPECT_EQ(Tools(), "1\r\n/d\r\n/p\r\n/a\r\n2\r\n\"A=b\"\r\n");
}

TEST_F(Ajustes, OnlyTheTextsOfAShortLanguageFileReplaceCaptions)
{
    CargaTextos(c.Escribe("a.ini", FicheroTextos(300, "old")));
    EXPECT_EQ(Textos(288), "old 288");
    EXPECT_EQ(NumeroDe([&] { CargaTextos(c.Escribe("b.ini", FicheroTextos(100, "new"))); }), 62);
    EXPECT_EQ(Textos(100), "new 100");
    EXPECT_EQ(Textos(101), "");
    EXPECT_EQ(Rotulo(100, "&Salir"), "new 100");
    EXPECT_EQ(Rotulo(101, "&Salir"), "&Salir");
    EXPECT_EQ(NumeroDe([&] { CargaTextos(c.Ruta("falta.ini")); }), 53);
    EXPECT_EQ(Textos(100), "");
    for (const int n : {0, 289})
        EXPECT_EQ(NumeroDe([&] { Textos(n); }), 9) << n;
}

TEST(Vista, SizesOfEveryScreenInEitherNotation)
{
    const struct {
        double twips;
        int ancho, alto;  // pixels
        double anchoVista;
        const char* altoVista;
        int anchoEntero, altoEntero;
    } casos[] = {{15, 640, 480, 9526.64483477225, "6117.24723874257", 9527, 6117},
                 {15, 800, 600, 11940.2985074627, "7919.74656810982", 11940, 7920},
                 {15, 1024, 768, 15283.5820895522, "10434.7826086957", 15284, 10435},
                 {15, 2560, 1440, 38208.9552238806, "19565.2173913043", 38209, 19565},
                 {12, 640, 480, 7621.3158678178, "4893.79779099405", 7621, 4894},
                 {12, 800, 600, 9526.64483477225, "6260.86956521739", 9527, 6261},
                 {12, 1024, 768, 12226.8656716418, "8265.47085201794", 12227, 8265},
                 {12, 2560, 1440, 30567.1641791045, "15497.7578475336", 30567, 15498}};
    for (const auto& [decimal, grupo] : {std::pair{".", ","}, {",", "."}}) {
        const Separa separa(decimal, grupo);
        for (const auto& k : casos) {
            const Pantalla p{k.ancho * k.twips, k.alto * k.twips, k.twips};
            std::string alto = k.altoVista;
            alto.replace(alto.find('.'), 1, decimal);
            EXPECT_EQ(AnchoVista(p), static_cast<float>(k.anchoVista)) << k.ancho << ' ' << k.twips;
            EXPECT_EQ(AltoVista(p), alto) << k.ancho << ' ' << k.twips;
            EXPECT_EQ(MideVista(p).ancho, k.anchoEntero) << k.ancho << ' ' << k.twips;
            EXPECT_EQ(MideVista(p).alto, k.altoEntero) << k.ancho << ' ' << k.twips;
        }
    }
}

TEST(Vista, OnlyThreePointsOfADateBecomeColons)
{
    EXPECT_EQ(DosPuntos("1.2.1997 10.20.30"), "1:2:1997 10:20.30");
    EXPECT_EQ(DosPuntos("01/02/97 10.20"), "01/02/97 10:20");
}

}  // namespace
}  // namespace veldix
