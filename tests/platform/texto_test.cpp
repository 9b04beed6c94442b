#include "platform/texto.h"

#include <gtest/gtest.h>

#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/perfil.h"
#include "support/soporte.h"

namespace veldix {
namespace {

TEST(Recorta, TakesBlanksOnly)
{
    EXPECT_EQ(Recorta("  a b  "), "a b");
    EXPECT_EQ(Recorta(" \t a\t "), "\t a\t");
    EXPECT_EQ(Recorta(" a\r"), "a\r");
    EXPECT_EQ(Recorta("\u00A0a"), "\u00A0a");
    EXPECT_EQ(Recorta("   "), "");
}

TEST(Caracteres, AreCountedAndCutWhereOctetsWouldSplitThem)
{
    for (const auto& [texto, cuantos] : {std::pair{"", 0U},
                                         {"Ñu", 2},
                                         {"€", 1},
                                         {"😀a", 2},
                                         {"\xD1u", 2},
                                         {"a\xE2\x82", 3},
                                         {"\xED\xA0\x80", 3}})
        EXPECT_EQ(NumCaracteres(texto), cuantos) << texto;
    EXPECT_EQ(Izquierda("Ñandú", 1), "Ñ");
    EXPECT_EQ(Izquierda("Ñu", 9), "Ñu");
    EXPECT_EQ(Derecha("Ñandú", 2), "dú");
    EXPECT_EQ(Derecha("ú", 9), "ú");
    EXPECT_EQ(Derecha("a\xFA", 1), "\xFA");
    EXPECT_EQ(SinFinal("Ñandú.dat", 3), "Ñandú.");
    EXPECT_EQ(SinFinal("cañón", 3), "ca");
    EXPECT_EQ(SinFinal("ñ", 3), "");
}

TEST(Coincide, WildCardsListsAndCase)
{
    using Pareja = std::pair<const char*, const char*>;
    const Pareja iguales[] = {{"IA", "IA"},       {"", ""},          {"", "*"},        {"abc", "a*c"},
                              {"aXbXc", "*X?"},   {"aab", "*ab"},    {"abab", "a**b"}, {"Ñ", "?"},
                              {"aÑ", "a?*"},      {"L7", "L#"},      {"b", "[abc]"},   {"d", "[!a-c]"},
                              {"!", "[a!]"},      {"*", "[*]"},      {"#", "[#]"},     {"?", "[?]"},
                              {"[", "[[]"},       {"ñ", "[ñ]"},      {"ñ", "[!n]"},    {"-", "[a-]"},
                              {"x5y", "x[0-9]y"}, {"xay", "x*[a]y"}, {"V[1", "V[1"},   {"V[x", "V[?"},
                              {"]", "]"},         {"a]", "[ab]]"}};
    const Pareja distintos[] = {{"ia", "IA"},   {"IA", "I"},     {"I", "IA"},  {"a", ""},    {"", "?"},
                                {"abc", "a*b"}, {"Ñu", "?"},     {"Lx", "L#"}, {"#", "#"},   {"d", "[a-c]"},
                                {"B", "[a-c]"}, {"b", "[!a-c]"}, {"", "[!a]"}, {"x", "[*]"}, {"1", "[#]"},
                                {"n", "[ñ]"},   {"V1", "V[1"}};
    for (const auto& [texto, patron] : iguales)
        EXPECT_TRUE(Coincide(texto, patron)) << texto << " against " << patron;
    for (const auto& [texto, patron] : distintos)
        EXPECT_FALSE(Coincide(texto, patron)) << texto << " against " << patron;
}

TEST(Coincide, ManyStarsDoNotRunForEver)
{
    std::string patron;
    for (int i = 0; i < 25; ++i)
        patron += "*a";
    EXPECT_FALSE(Coincide(std::string(3000, 'a'), patron + "*b"));
    EXPECT_TRUE(Coincide(std::string(3000, 'a'), patron));
}

TEST(PaginaCodigos, EveryOctetSurvivesAReadingAndAWriting)
{
    std::string todos;
    for (int i = 0; i < 256; ++i)
        todos += static_cast<char>(i);
    const std::string texto = DesdePagina(todos);
    EXPECT_TRUE(EsUtf8(texto));
    EXPECT_EQ(NumCaracteres(texto), 256U);
    bool entero = false;
    EXPECT_EQ(APagina(texto, &entero), todos);
    EXPECT_TRUE(entero);
    EXPECT_EQ(DesdePagina("\x80\xD1\xE9"), "€Ñé");
    EXPECT_EQ(DesdePagina("\x81"), "\u0081");
}

TEST(PaginaCodigos, ACharacterThatItLacksIsOneQuestionMark)
{
    bool entero = true;
    EXPECT_EQ(APagina("漢Ñ😀a", &entero), "?\xD1?a");
    EXPECT_FALSE(entero);
    EXPECT_EQ(APagina("e\u0301"), "e?");  // not transliterated
}

TEST(PaginaCodigos, AnotherOneTakesItsPlaceUnlessItIsUnknown)
{
    const std::string antes = PaginaCodigos();
    const prueba::Carpeta carpeta;
    CargaPaginaCodigos(carpeta.Ruta("perfil.ini"));  // missing: nothing changes
    EXPECT_EQ(APagina("Ñ"), "\xD1");
    CargaPaginaCodigos(carpeta.Escribe("perfil.ini", "[texto]\r\npagina = \"CP850\"\r\n"));
    EXPECT_EQ(APagina("Ñ"), "\xA5");
    EXPECT_EQ(DesdePagina("\xA5"), "Ñ");
    bool entero = true;
    EXPECT_EQ(APagina("€", &entero), "?");
    EXPECT_FALSE(entero);
    PonPaginaCodigos("no-such-page");
    EXPECT_EQ(APagina("Ñ"), "\xA5");
    PonPaginaCodigos(antes);
    EXPECT_EQ(APagina("Ñ"), "\xD1");
}

TEST(Utf8, RefusesOverlongSurrogateAndTruncatedForms)
{
    for (const char* bueno : {"", "a", "Ñ", "€", "😀", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(EsUtf8(bueno)) << bueno;
    for (const char* malo : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3",
                             "\xC3"
                             "a",
                             "\xE0\x80\x80", "\xE0\x9F\xBF", "\xE2\x82",
                             "\xE2\x82"
                             "a",
                             "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98",
                             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFE", "\xFF", "a\xC3"}) {
        EXPECT_FALSE(EsUtf8(malo)) << testing::PrintToString(malo);
        EXPECT_EQ(DesdeUtf8OPagina(malo), DesdePagina(malo));
    }
    EXPECT_EQ(DesdeUtf8OPagina("Ñu"), "Ñu");
    EXPECT_EQ(DesdeUtf8OPagina("\xD1u"), "Ñu");
}

TEST(Lineas, EveryKindOfEndAndNoLineBehindTheLastOne)
{
    using L = std::vector<std::string>;
    EXPECT_EQ(Lineas(""), L{});
    EXPECT_EQ(Lineas("a\r\nb\nc\rd"), (L{"a", "b", "c", "d"}));
    EXPECT_EQ(Lineas("a\n\n"), (L{"a", ""}));
    EXPECT_EQ(Lineas("\r\r\n\n"), (L{"", "", ""}));
    EXPECT_EQ(Lineas("a\r\n\x1A"), L{"a"});
    EXPECT_EQ(Lineas("\x1A\n b \n\t"), (L{"\x1A", " b ", "\t"}));
    EXPECT_EQ(Lineas("\x1A"), L{});
    EXPECT_EQ(Lineas(std::string("a\0b\n", 4)), L{std::string("a\0b", 3)});
    EXPECT_EQ(Une({"a", "", "b"}), "a\r\n\r\nb\r\n");

    LectorLineas lector("a\r\n\r\n");
    EXPECT_EQ(lector.Lee(), "a");
    EXPECT_FALSE(lector.Fin());
    EXPECT_EQ(lector.Lee(), "");
    EXPECT_TRUE(lector.Fin());
    try {
        lector.Lee();
        ADD_FAILURE() << "a line behind the last one";
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.numero, 62);
    }
}

}  // namespace
}  // namespace veldix
