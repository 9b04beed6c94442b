#include "shell/ajustes.h"

#include <filesystem>

#include "platform/ficheros.h"
#include "platform/textos.h"
#include "platform/vista.h"
#include "support/soporte.h"
#include "tools/tools_ini.h"

namespace veldix {
namespace {

using prueba::ConFinales, prueba::LeeTodo, prueba::NumeroDeError, prueba::Separa;

const std::string kFicher = " 1 \r\n 4 \r\n/d/a.dat\r\n/d/a.hdr\r\n/d/a.cfg\r\n/p/x.cnf\r\n";
const std::string kTools =
    "1\r\n/datos\r\n/a, b\r\n /c \r\n3\r\n\"Calc=/bin/calc -x\"\r\n\"\"\r\n\"N=sh -c \"x y\"\"\r\n";

std::string FicheroTextos(int lineas, const std::string& palabra)
{
    std::string octetos;
    for (int n = 1; n <= lineas; ++n)
        octetos += palabra + ' ' + std::to_string(n) + "\r\n";
    return octetos;
}

class Ajustes : public testing::Test {
protected:
    Ajustes()
    {
        s.DirIni = c.Ruta();
        s.Idioma = 1;
        s.FicheroDat = "/d/a.dat", s.FicheroHdr = "/d/a.hdr";
        s.FicheroCfg = "/d/a.cfg", s.FicheroCnf = "/p/x.cnf";
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
    const std::int16_t ingles = 0;
};

TEST_F(Ajustes, SessionIsWrittenWithTheHeaderFileBeforeTheConfigurationAndFailsInSilence)
{
    EscribeSesion(s);
    EXPECT_EQ(Ficher(), kFicher);
    s.FicheroHdr.clear();
    s.FicheroDat = "/d/a, b,c.dat";
    LimitaDisco(40);
    EXPECT_NO_THROW(EscribeSesion(s));
    EXPECT_EQ(Ficher(), kFicher);
    LimitaDisco(-1);
    EscribeSesion(s);
    EXPECT_EQ(Ficher(), " 1 \r\n 4 \r\n/d/a, b,c.dat\r\n\r\n/d/a.cfg\r\n/p/x.cnf\r\n");
}

TEST_F(Ajustes, SessionIsPutBackAsReadOrNotTouched)
{
    const struct {
        const char* lineas;
        int error;
    } casos[] = {{" 0 | 2 | a,b |\"c\"", 0},
                 {" 1 | 6 |1|2|3|4|5|", 0},
                 {" 1 | 0 ", 0},
                 {" 1 ", 62},
                 {" 1 | 4 |a|b|c", 62},
                 {" 1 | 32767 |a", 62},
                 {"x| 0 ", 13},
                 {" 1 ||a", 13},
                 {" 40000 | 0 ", 6},
                 {" 1 | -2 ", 9}};
    for (const auto& k : casos) {
        SCOPED_TRACE(k.lineas);
        const std::string octetos = ConFinales(k.lineas);
        c.Escribe("ficher.ini", octetos);
        s.Idioma = 7;
        EXPECT_EQ(NumeroDeError([&] { RepasaSesion(s, nullptr); }), k.error);
        EXPECT_EQ(s.Idioma, k.error == 0 ? octetos[1] - '0' : 7);
        EXPECT_EQ(Ficher(), octetos);
    }
    c.Escribe("ficher.ini", "1\n4\na\nb\nc\nd");
    RepasaSesion(s, &ingles);
    EXPECT_EQ(Ficher(), " 0 \r\n 4 \r\na\r\nb\r\nc\r\nd\r\n");
    std::filesystem::remove(c.Ruta("ficher.ini"));
    EXPECT_EQ(NumeroDeError([&] { RepasaSesion(s, nullptr); }), 53);
    EXPECT_FALSE(ExisteFichero(c.Ruta("ficher.ini")));
}

TEST_F(Ajustes, APathBeyondTheCodePageReadsBackWhole)
{
    // The last one's octets of the page would be taken for UTF-8.
    const std::pair<const char*, const char*> casos[] = {
        {"/Ñ/é", "/\xD1/\xE9"}, {"/Ñ/ω漢", "/Ñ/ω漢"}, {"/plain", "/plain"}, {"/Ã±", "/Ã±"}};
    for (const auto& [ruta, octetos] : casos) {
        EscribeToolsIni(s, {1, "/d", ruta, "/a", {std::string("A=") + ruta}});
        EXPECT_NE(Tools().find(std::string("\r\n") + octetos + "\r\n"), std::string::npos) << ruta;
        EXPECT_EQ(LeeToolsIni(s).DirPlantillas, ruta);
        EXPECT_EQ(LeeToolsIni(s).herramientas.at(0), std::string("A=") + ruta);
        s.FicheroCnf = ruta;
        EscribeSesion(s);
        const std::string antes = Ficher();
        EXPECT_TRUE(antes.ends_with(std::string("\r\n") + octetos + "\r\n")) << ruta;
        RepasaSesion(s, &ingles);
        EXPECT_EQ(Ficher(), " 0 " + antes.substr(3));
    }
}

TEST_F(Ajustes, ASwitchOfLanguageRewritesBothFilesOrLosesNeither)
{
    c.Escribe("ficher.ini", kFicher);
    c.Escribe("tools.ini", kTools);
    c.Escribe("vdingles.ini", FicheroTextos(288, "Line"));
    c.Escribe("vdotro.ini", FicheroTextos(288, "L\xEDnea"));
    std::filesystem::rename(c.Ruta("tools.ini"), c.Ruta("away"));
    EXPECT_EQ(NumeroDeError([&] { CambiaIdiomaFicheros(s, 0); }), 53);
    EXPECT_EQ(Ficher(), kFicher) << "the files speak two languages";
    std::filesystem::rename(c.Ruta("away"), c.Ruta("tools.ini"));
    s.DirDatos = s.DirAplic = "/stale";
    for (int n = 0, error = 61; error != 0; ++n) {
        LimitaDisco(n);
        error = NumeroDeError([&] { CambiaIdiomaFicheros(s, 0); });
        LimitaDisco(-1);
        ASSERT_TRUE(error == 0 || (error == 61 && n < 200)) << error;
        ASSERT_EQ(Ficher().substr(3), kFicher.substr(3)) << n;  // the disk is too full to put line 1 back
        ASSERT_EQ(Tools(), (error != 0 ? "1" : "0") + kTools.substr(1)) << n;
    }
    EXPECT_EQ(Ficher().substr(0, 3), " 0 ");
    EXPECT_EQ(s.DirDatos + s.DirPlantillas + s.DirAplic, "/datos/a, b /c ");
    CargaTextos(s.FicheroIdioma);
    EXPECT_EQ(Textos(277), "Line 277");
    CambiaIdiomaFicheros(s, 1);
    EXPECT_EQ(Ficher() + Tools(), kFicher + kTools);
    CargaTextos(s.FicheroIdioma);
    EXPECT_EQ(Textos(288), "Línea 288");
}

TEST_F(Ajustes, OnlyTheTextsOfAShortLanguageFileReplaceCaptions)
{
    CargaTextos(c.Escribe("a.ini", FicheroTextos(300, "old")));
    EXPECT_EQ(Textos(288), "old 288");
    EXPECT_EQ(NumeroDeError([&] { CargaTextos(c.Escribe("b.ini", FicheroTextos(100, "new"))); }), 62);
    EXPECT_EQ(Rotulo(100, "&Salir"), "new 100");
    EXPECT_EQ(Rotulo(101, "&Salir"), "&Salir");
    EXPECT_EQ(NumeroDeError([] { Textos(289); }), 9);
}

TEST(Vista, SizesOfEveryScreenWithADecimalComma)
{
    const Separa separa(",", ".");
    const struct {
        double twips;
        int ancho, alto, anchoVista, altoVista;  // pixels, and twips
    } casos[] = {{15, 640, 480, 9527, 6117}, {15, 1024, 768, 15284, 10435}, {12, 800, 600, 9527, 6261}};
    for (const auto& k : casos) {
        const TamanoVista v = MideVista({k.ancho * k.twips, k.alto * k.twips, k.twips});
        EXPECT_EQ(v.ancho, k.anchoVista) << k.ancho << ' ' << k.twips;
        EXPECT_EQ(v.alto, k.altoVista) << k.ancho << ' ' << k.twips;
    }
    EXPECT_EQ(AltoVista({15360, 11520, 15}), "10434,7826086957");
    EXPECT_EQ(DosPuntos("1.2.1997 10.20.30"), "1:2:1997 10:20.30");
}

}  // namespace
}  // namespace veldix
