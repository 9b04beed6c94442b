#include "tools/tools_ini.h"

#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::ConFinales, prueba::NumeroDeError;

TEST(ToolsIni, ToolsAreWrittenWithoutTheirQuotesOrReadBeyondTheirCount)
{
    const prueba::Carpeta c;
    RecordStore s;
    s.DirIni = c.Ruta();
    EscribeToolsIni(s, {1, "/datos", "/a, b", " /c ", {"Calc=/bin/calc -x", "", "N=sh -c \"x y\""}});
    EXPECT_EQ(prueba::LeeTodo(RutaTools(s)),
              ConFinales("1|/datos|/a, b| /c |3|\"Calc=/bin/calc -x\"|\"\"|\"N=sh -c \"x y\"\""));
    c.Escribe("tools.ini", " 1 \n/d\n/p\n/a\n 2 \n\"\"\n'Ñ=o'\n\"C=d\"\n");
    EXPECT_EQ(LeeToolsIni(s).herramientas, (std::vector<std::string>{"", "Ñ=o"}));
    const std::pair<const char*, int> casos[] = {
        {"1|/d|/p|/a|2|\"A=b\"", 62}, {"x|/d|/p|/a|0", 13}, {"1|/d|/p|/a|no", 13}, {"1|/d|/p|/a|-1", 9}};
    for (const auto& [lineas, error] : casos) {
        c.Escribe("tools.ini", ConFinales(lineas));
        EXPECT_EQ(NumeroDeError([&] { LeeToolsIni(s); }), error) << lineas;
    }
    // The head stops at the count, and keeps what it read before a failure.
    c.Escribe("tools.ini", "0\r\n/d\r\n/p\r\n/a\r\n3");
    EXPECT_EQ(LeeTools(s), 3);
    EXPECT_EQ(s.Idioma, 0);
    s.Idioma = 1;
    LeeDirectorios(s);
    EXPECT_EQ(s.Idioma, 1);
    c.Escribe("tools.ini", "0\r\n/d3\r\n");
    EXPECT_EQ(NumeroDeError([&] { LeeTools(s); }), 62);
    EXPECT_EQ(s.DirDatos + s.DirPlantillas + s.DirAplic, "/d3/p/a");
}

}  // namespace
}  // namespace veldix
