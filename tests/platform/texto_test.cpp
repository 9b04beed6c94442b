#include "platform/texto.h"

#include <gtest/gtest.h>

#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/perfil.h"
#include "support/soporte.h"

namespace veldix {
namespace {

TEST(Texto, IsTrimmedAndCutByCharacters)
{
    for (const auto& [texto, corto] :
         {std::pair{"  a b  ", "a b"}, {" \ta\r ", "\ta\r"}, {"\u00A0a ", "\u00A0a"}, {"   ", ""}})
        EXPECT_EQ(Recorta(texto), corto);
    for (const auto& [texto, cuantos] :
         {std::pair{"", 0U}, {"Ñ€😀", 3}, {"\xD1u", 2}, {"a\xE2\x82", 3}, {"\xED\xA0\x80", 3}})
        EXPECT_EQ(NumCaracteres(texto), cuantos) << texto;
    EXPECT_EQ(Izquierda("Ñandú", 1), "Ñ");
    EXPECT_EQ(Derecha("Ñandú", 2), "dú");
    EXPECT_EQ(SinFinal("cañón", 3), "ca");
    EXPECT_EQ(SinFinal("ñ", 3), "");
}

TEST(Coincide, WildCardsListsAndCase)
{
    using Pareja = std::pair<const char*, const char*>;
    const Pareja iguales[] = {{"", "*"},           {"aXbXc", "*X?"}, {"aab", "*ab"}, {"aÑ", "a?*"},
                              {"L7", "L#"},        {"!", "[!a-c]"},  {"*", "[*]"},   {"-", "[a-]"},
                              {"x5y", "x*[0-9]y"}, {"V[x", "V[?"}};
    const Pareja distintos[] = {{"ia", "IA"}, {"IA", "I"},    {"", "?"},       {"Ñu", "?"},  {"abc", "a*b"},
                                {"Lx", "L#"}, {"B", "[a-c]"}, {"b", "[!a-c]"}, {"", "[!a]"}, {"n", "[ñ]"}};
    for (const auto& [texto, patron] : iguales)
        EXPECT_TRUE(Coincide(texto, patron)) << texto << " against " << patron;
    for (const auto& [texto, patron] : distintos)
        EXPECT_FALSE(Coincide(texto, patron)) << texto << " against " << patron;
}

TEST(PaginaCodigos, AnotherOneTakesItsPlaceUnlessItIsUnknown)
{
    const prueba::Carpeta carpeta;
    bool entero = true;
    EXPECT_EQ(DesdePagina("\x80\xD1\x81"), "€Ñ\u0081");
    EXPECT_EQ(APagina("漢Ñ😀e\u0301", &entero), "?\xD1?e?");
    EXPECT_FALSE(entero);
    CargaPaginaCodigos(carpeta.Ruta("perfil.ini"));  // missing: nothing changes
    EXPECT_EQ(APagina("Ñ", &entero), "\xD1");
    EXPECT_TRUE(entero);
    CargaPaginaCodigos(carpeta.Escribe("perfil.ini", "[texto]\r\npagina = \"CP850\"\r\n"));
    EXPECT_EQ(DesdePagina("\xA5"), "Ñ");
    EXPECT_EQ(APagina("Ñ€"), "\xA5?");
    PonPaginaCodigos("no-such-page");
    EXPECT_EQ(APagina("Ñ"), "\xA5");
    PonPaginaCodigos("WINDOWS-1252");
}

TEST(Utf8, RefusesOverlongSurrogateAndTruncatedForms)
{
    for (const char* bueno : {"", "aÑ€😀", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(DesdeUtf8OPagina(bueno), bueno);
    for (const char* malo :
         {"\x80", "\xC1\xBF", "a\xC3", "\xC3-", "\xE0\x9F\xBF", "\xE2\x82-", "\xED\xA0\x80",
          "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"})
        EXPECT_EQ(DesdeUtf8OPagina(malo), DesdePagina(malo)) << testing::PrintToString(malo);
    EXPECT_EQ(DesdeUtf8OPagina("\xEF\xBB\xBFÑ"), "Ñ");
}

TEST(Lineas, EveryKindOfEndAndNoLineBehindTheLastOne)
{
    using L = std::vector<std::string>;
    const std::pair<const char*, L> casos[] = {{"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                                               {"a\n\n\x1A", {"a", ""}},
                                               {"\r\r\n\n", {"", "", ""}},
                                               {"\x1A", {}},
                                               {"\x1A\n b \n\t\x1A", {"\x1A", " b ", "\t\x1A"}}};
    for (const auto& [texto, lineas] : casos) {
        EXPECT_EQ(Lineas(texto), lineas) << texto;
        LectorLineas lector(texto);
        for (const std::string& linea : lineas)
            EXPECT_EQ(lector.Lee(), linea);
        EXPECT_TRUE(lector.Fin());
        EXPECT_EQ(prueba::NumeroDeError([&] { lector.Lee(); }), 62);
    }
}

}  // namespace
}  // namespace veldix
