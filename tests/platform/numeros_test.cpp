#include "platform/numeros.h"

#include <gtest/gtest.h>
#include <locale.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <span>
#include <tuple>

#include "platform/enteros.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::Separa;

/// The number of the error that `f` raises, 0 where it raises none.
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

struct CasoNumero {
    const char* texto;
    double valor;
};

TEST(TolVal, ReadsEitherNotationAndStopsAtTheFirstForeignCharacter)
{
    const CasoNumero casos[] = {
        {"1,5", 1.5},     {"1.5", 1.5},  {"1,000.5", 1},  {"1,000,5", 1}, {" ,5 ", 0.5},   {"-,5", -0.5},
        {"+2,5E1", 25},   {"1d2", 100},  {"1D-2", 0.01F}, {"1e", 1},      {"1e+", 1},      {"5.", 5},
        {"1 200", 1},     {"12abc", 12}, {"1.2.3", 1.2F}, {"1.000,5", 1}, {"--1", 0},      {"-", 0},
        {"- 5", 0},       {"", 0},       {",", 0},        {".e5", 0},     {"inf", 0},      {"nan", 0},
        {"0x1F", 0},      {"&H1F", 0},   {"\t5", 0},      {"1e-400", 0},  {"0e999999", 0}, {"3e38", 3e38F},
        {"-3e38", -3e38F}};
    for (const auto& [decimal, grupo] : {std::pair{".", ","}, {",", "."}}) {
        const Separa separa(decimal, grupo);
        for (const CasoNumero& c : casos)
            EXPECT_EQ(TolVal(c.texto), static_cast<float>(c.valor)) << '"' << c.texto << '"';
    }
    for (const char* grande : {"1e400", "-1e400", "1e39", "1e99999999999999999999"})
        EXPECT_EQ(NumeroDe([&] { TolVal(grande); }), 6) << grande;
}

TEST(SeparadoresSistema, ComeFromTheEnvironment)
{
    const char* antes = std::getenv("LC_ALL");
    const std::string guardado = antes ? antes : "";
    for (const auto& [locale, decimal, grupo] : {std::tuple{"es_ES.UTF-8", ",", "."}, {"C.UTF-8", ".", ""}}) {
        setenv("LC_ALL", locale, 1);
        PonSeparadores(std::nullopt);
        EXPECT_EQ(SeparadoresSistema().decimal, decimal);
        EXPECT_EQ(SeparadoresSistema().grupo, grupo);
    }
    antes ? setenv("LC_ALL", guardado.c_str(), 1) : unsetenv("LC_ALL");
    PonSeparadores(std::nullopt);
}

TEST(NumeroLocal, FollowsTheSeparatorsOfTheSystem)
{
    const struct {
        Separadores s;
        std::vector<CasoNumero> casos;
    } sistemas[] = {
        {{".", ","}, {{"12.5", 12.5}, {"12,5", 125}, {"1,234.5", 1234.5}, {"1.", 1}, {".5", 0.5}, {"+1", 1}}},
        {{",", "."},
         {{"12,5", 12.5}, {"12.5", 125}, {"1.234,5", 1234.5}, {",5", 0.5}, {" -5 ", -5}, {"5e-1", 0.5}}},
        {{",", "\u202F"}, {{"1\u202F234,5", 1234.5}, {"0,1", 0.1}}}};
    for (const auto& k : sistemas) {
        const Separa separa(k.s.decimal, k.s.grupo);
        for (const CasoNumero& c : k.casos)
            EXPECT_EQ(NumeroLocal(c.texto), c.valor) << c.texto << " with " << k.s.decimal;
    }
}

TEST(NumeroLocal, RefusesWhatIsNoNumberAsAWhole)
{
    const Separa separa(".", "");
    for (const char* texto : {"",      "  ", "-",   ".",  "-.",  "abc", "12abc", "1 2",  "- 1", "1,5",
                              "1.2.3", "1e", "1e+", "e5", "--1", "inf", "nan",   "0x10", "\t1", "1\r"}) {
        EXPECT_EQ(NumeroDe([&] { NumeroLocal(texto); }), 13) << '"' << texto << '"';
        EXPECT_FALSE(CampoSingle(texto, SeparadoresSistema()).has_value()) << '"' << texto << '"';
    }
    for (const char* texto : {"1e400", "-1e99999999999999999999"})
        EXPECT_EQ(NumeroDe([&] { NumeroLocal(texto); }), 6) << texto;
}

TEST(Entero16, HalvesGoToEvenAndLimitsHold)
{
    const struct {
        const char* texto;
        int valor, error;
    } casos[] = {{"0.5", 0, 0},         {"1.5", 2, 0},     {"2.5", 2, 0},     {"-2.5", -2, 0},
                 {"-3.5", -4, 0},       {"59.5", 60, 0},   {"60.5", 60, 0},   {"61.5", 62, 0},
                 {"32767.4", 32767, 0}, {"32767.5", 0, 6}, {"32767.6", 0, 6}, {"-32768.5", -32768, 0},
                 {"-32768.6", 0, 6},    {"40000", 0, 6},   {"1e300", 0, 6},   {"x", 0, 13}};
    const Separa separa(".", "");
    for (const auto& c : casos) {
        int leido = 0;
        EXPECT_EQ(NumeroDe([&] { leido = Entero16Local(c.texto); }), c.error) << c.texto;
        EXPECT_EQ(leido, c.valor) << c.texto;
        if (c.error == 13) continue;
        leido = 0;
        EXPECT_EQ(NumeroDe([&] { leido = Entero16(std::strtod(c.texto, nullptr)); }), c.error) << c.texto;
        EXPECT_EQ(leido, c.valor) << c.texto;
    }
    EXPECT_EQ(NumeroDe([] { Entero16(std::nan("")); }), 6);
}

/// A text with a point, read by the C library without a look at the environment.
float Referencia(const std::string& texto)
{
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtof_l(texto.c_str(), nullptr, c);
}

void ComparaConReferencia(const std::string& texto)
{
    const float esperado = Referencia(texto);
    std::string conComa = texto;
    if (const auto punto = conComa.find('.'); punto != std::string::npos) conComa[punto] = ',';
    const std::optional<float> conPunto = CampoSingle(texto, {".", ","});
    const std::optional<float> traduccion = CampoSingle(conComa, {",", "."});
    if (std::isinf(esperado)) {
        EXPECT_FALSE(conPunto.has_value()) << texto;
        EXPECT_FALSE(traduccion.has_value()) << texto;
        return;
    }
    ASSERT_TRUE(conPunto && traduccion) << '"' << texto << '"';
    ASSERT_EQ(std::bit_cast<std::uint32_t>(*conPunto), std::bit_cast<std::uint32_t>(esperado)) << texto;
    ASSERT_EQ(std::bit_cast<std::uint32_t>(*traduccion), std::bit_cast<std::uint32_t>(esperado)) << conComa;
}

TEST(CampoSingle, RandomDecimalsEqualTheLibraryBitForBit)
{
    std::mt19937_64 azar(20);
    for (int i = 0; i < 200000 && !testing::Test::HasFatalFailure(); ++i) {
        std::string texto(azar() % 4, ' ');
        texto += std::array{"", "-", "+"}[azar() % 3];
        texto.append(azar() % 4, '0');
        const std::size_t cifras = 1 + azar() % 18;
        const std::size_t punto = azar() % (cifras + 2);
        for (std::size_t k = 0; k < cifras; ++k) {
            if (k == punto) texto += '.';
            texto += static_cast<char>('0' + azar() % 10);
        }
        if (punto == cifras) texto += '.';
        if (azar() % 3 == 0)
            texto += std::array{"e", "E", "e+", "E-"}[azar() % 4] + std::to_string(azar() % 50);
        ComparaConReferencia(texto + std::string(azar() % 3, ' '));
    }
}

TEST(CampoSingle, AHalfBetweenTwoFloatsIsRoundedOnce)
{
    std::mt19937 azar(7);
    for (int i = 0; i < 20000 && !testing::Test::HasFatalFailure(); ++i) {
        const float a = std::bit_cast<float>(static_cast<std::uint32_t>(azar()) & 0x7FFFFFFFU);
        const float b = std::nextafter(a, std::numeric_limits<float>::infinity());
        if (!std::isfinite(a) || !std::isfinite(b)) continue;
        const double mitad = (static_cast<double>(a) + b) / 2.0;
        char texto[400];
        std::snprintf(texto, sizeof texto, "%.170f", mitad);  // exact: 150 places hold the least half
        ComparaConReferencia(texto);
        ComparaConReferencia(std::string(texto) + "0001");
        for (const int cifras : {15, 16, 17, 18}) {  // so near that a double in between may hide the side
            std::snprintf(texto, sizeof texto, "%.*g", cifras, mitad);
            ComparaConReferencia(texto);
        }
    }
    for (const char* texto :
         {"16777217", "16777217.0000000000000000001", "16777216.9999999999999999999", "-0", "-0.0",
          "3.4028235e38", "3.4028236e38", "1e-45", "0.7e-45", "1e-60", "-1e-60", "-1e-400",
          "1e999999999999999999999", "0e999999999999999999999", "1e-999999999999999999999",
          "0000000000000000000000000000000000000000012.5000000000000000000000000000"})
        ComparaConReferencia(texto);
}

TEST(FormaImpresa, LeavesRoomForSignAndSeparator)
{
    EXPECT_EQ(FormaImpresa(4), " 4 ");
    EXPECT_EQ(FormaImpresa(0), " 0 ");
    EXPECT_EQ(FormaImpresa(-2147483647 - 1), "-2147483648 ");
    EXPECT_EQ(FormaDelimitada(-4), "-4");
}

TEST(Mascara, RoundsHalvesAwayFromZeroAndShowsNoEmptyPlace)
{
    const CasoNumero ceros[] = {{"0.000", 0},      {"0.063", 0.0625},   {"-0.063", -0.0625},
                                {"0.188", 0.1875}, {"10.000", 9.9996},  {"0.000", -0.0001},
                                {"0.000", -0.0},   {"1234.500", 1234.5}};
    const CasoNumero tres[] = {{".", 0},         {".5", 0.5},    {"12.", 12},  {"120.983", 120.983},
                               {".063", 0.0625}, {".", -0.0004}, {".05", 0.05}};
    const CasoNumero dos[] = {
        {"-18.", -18}, {"-10.69", -10.69}, {".13", 0.125}, {"-.13", -0.125},
        {".", 0.004},  {"100.", 99.996},   {"1.", 0.999},  {"100000000000000000000.", 1e20},
        {".", 1e-300}};
    const CasoNumero uno[] = {{".0", 0}, {".3", 0.25}, {"-.3", -0.25}, {"12.0", 12}, {".0", -0.04}};
    const std::pair<const char*, std::span<const CasoNumero>> mascaras[] = {
        {"0.000", ceros}, {"#.###", tres}, {"#.##", dos}, {"#.0", uno}};
    for (const auto& [decimal, grupo] : {std::pair{".", ","}, {",", "."}}) {
        const Separa separa(decimal, grupo);
        for (const auto& [mascara, casos] : mascaras) {
            for (const CasoNumero& c : casos) {
                std::string esperado = c.texto;
                esperado.replace(esperado.find('.'), 1, decimal);
                EXPECT_EQ(Mascara(c.valor, mascara), esperado) << mascara << " of " << c.valor;
            }
        }
        EXPECT_EQ(Mascara(-1e300, "#.##").size(), 303U);
    }
}

TEST(TextoDouble, KeepsFifteenDigitsAndTheSystemsSeparator)
{
    const CasoNumero casos[] = {{"10434,7826086957", 11520 / 1.104},
                                {"0,3", 0.1 + 0.2},
                                {"-0,333333333333333", -1 / 3.0},
                                {"21600", 21600}};
    const Separa coma(",", ".");
    for (const CasoNumero& c : casos)
        EXPECT_EQ(TextoDouble(c.valor), c.texto);
    EXPECT_EQ(TextoSingle(38208.9552F), "38208,96");
    EXPECT_EQ(TextoExacto(0.1F), "0.1");
}

}  // namespace
}  // namespace veldix
