#include "platform/numeros.h"

#include <gtest/gtest.h>
#include <locale.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <tuple>

#include "platform/enteros.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using prueba::NumeroDeError;
using prueba::Separa;

TEST(TolVal, ReadsEitherNotationAndStopsAtTheFirstForeignCharacter)
{
    const std::pair<const char*, float> casos[] = {
        {"1,5", 1.5F},   {"1.5", 1.5F}, {"1,5.5", 1}, {"1,5,5", 1.5F}, {" -,5 ", -0.5F}, {"+2,5E1", 25},
        {"1D-2", 0.01F}, {"1e+", 1},    {"1 200", 1}, {"12a", 12},     {"1.2.3", 1.2F},  {"- 5", 0},
        {"", 0},         {".e5", 0},    {"inf", 0},   {"\t5", 0},      {"1e-400", 0},    {"0e99999", 0}};
    const Separa coma(",", ".");
    for (const auto& [texto, valor] : casos)
        EXPECT_EQ(TolVal(texto), valor) << '"' << texto << '"';
    for (const char* grande : {"1e39", "-1e99999999999999999999"})
        EXPECT_EQ(NumeroDeError([&] { TolVal(grande); }), 6) << grande;
}

TEST(SeparadoresSistema, ComeFromTheEnvironment)
{
    const std::string antes = std::getenv("LC_ALL") ? std::getenv("LC_ALL") : "";
    for (const auto& [locale, esperados] : {std::pair{"es_ES.UTF-8", ",."}, {"C.UTF-8", "."}}) {
        setenv("LC_ALL", locale, 1);
        PonSeparadores(std::nullopt);
        EXPECT_EQ(SeparadoresSistema().decimal + SeparadoresSistema().grupo, esperados);
    }
    setenv("LC_ALL", antes.c_str(), 1);
    PonSeparadores(std::nullopt);
}

TEST(NumeroLocal, FollowsTheSeparatorsAndRefusesWhatIsNoNumberAsAWhole)
{
    const std::tuple<Separadores, const char*, double> casos[] = {
        {{".", ","}, "1,234.5", 1234.5}, {{".", ","}, "12,5", 125},
        {{",", "."}, "12.5", 125},       {{",", "."}, " -,5e-1 ", -0.05},
        {{",", ""}, "+1,", 1},           {{",", "\u202F"}, "1\u202F234,5", 1234.5}};
    for (const auto& [s, texto, valor] : casos) {
        const Separa separa(s.decimal, s.grupo);
        EXPECT_EQ(NumeroLocal(texto), valor) << texto << " with " << s.decimal;
    }
    const Separa separa(".", "'");
    for (const char* texto : {"", " ", "-.", "'1", "1.2'3", "12abc", "1 2", "- 1", "1,5", "1.2.3", "1e+",
                              "e5", "--1", "inf", "0x10", "\t1", "1\r"}) {
        EXPECT_EQ(NumeroDeError([&] { NumeroLocal(texto); }), 13) << '"' << texto << '"';
        EXPECT_FALSE(CampoSingle(texto, SeparadoresSistema()).has_value()) << '"' << texto << '"';
    }
    EXPECT_EQ(NumeroDeError([] { NumeroLocal("-1e400"); }), 6);
}

TEST(Entero16, HalvesGoToEvenAndLimitsHold)
{
    const std::tuple<const char*, std::optional<std::int16_t>, int> casos[] = {
        {"0.5", 0, 0},      {"1.5", 2, 0},           {"-2.5", -2, 0},     {"32767.4", 32767, 0},
        {"32767.5", {}, 6}, {"-32768.5", -32768, 0}, {"-32768.6", {}, 6}, {"x", {}, 13}};
    const Separa separa(".", "");
    for (const auto& [texto, valor, error] : casos) {
        std::optional<std::int16_t> leido;
        EXPECT_EQ(NumeroDeError([&, t = texto] { leido = Entero16Local(t); }), error) << texto;
        EXPECT_EQ(leido, valor) << texto;
        EXPECT_EQ(CampoEntero16(texto, SeparadoresSistema()), valor) << texto;
    }
    EXPECT_EQ(NumeroDeError([] { Entero16(std::nan("")); }), 6);
}

/// A field in either notation against the C library, which takes no look at the environment here.
void ComparaConReferencia(const std::string& texto)
{
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    const float esperado = strtof_l(texto.c_str(), nullptr, c);
    std::string conComa = texto;
    std::replace(conComa.begin(), conComa.end(), '.', ',');
    for (const auto& leido : {CampoSingle(texto, {".", ","}), CampoSingle(conComa, {",", "."})}) {
        const float v = leido.value_or(std::copysign(HUGE_VALF, esperado));
        ASSERT_TRUE(v == esperado && std::signbit(v) == std::signbit(esperado)) << '"' << texto << '"';
    }
}

TEST(CampoSingle, IsTheNearestFloatToTheLastBit)
{
    std::mt19937_64 azar(20);
    for (int i = 0; i < 200000 && !HasFatalFailure(); ++i) {
        std::string texto = std::to_string(azar() >> azar() % 64);
        texto.insert(0, azar() % 4, '0').insert(azar() % (texto.size() + 1), azar() % 4 == 0 ? "" : ".");
        texto.insert(0, std::array{"", "-", "+", "  "}[azar() % 4]);
        if (azar() % 3 == 0) texto += std::array{"e", "E+", "e-"}[azar() % 3] + std::to_string(azar() % 50);
        ComparaConReferencia(texto + std::string(azar() % 3, ' '));
    }
    // So near to the half between two floats that a double on the way may hide the side.
    for (int i = 0; i < 20000 && !HasFatalFailure(); ++i) {
        const float a = std::ldexp(static_cast<float>(azar() >> 40), static_cast<int>(azar() % 250) - 149);
        const double mitad = (static_cast<double>(a) + std::nextafter(a, HUGE_VALF)) / 2;
        for (const char* forma : {"%.170f", "%.170f0001", "%.15g", "%.16g", "%.17g", "%.18g"}) {
            char texto[400];
            std::snprintf(texto, sizeof texto, forma, mitad);
            ComparaConReferencia(texto);
        }
    }
    for (const char* texto : {"16777217.0000000000000000001", "3.4028235e38", "3.4028236e38", "0.7e-45",
                              "-1e-60", "1e999999999999999999999", "0e999999999999999999999"})
        ComparaConReferencia(texto);
}

TEST(Mascara, RoundsHalvesAwayFromZeroAndShowsNoEmptyPlace)
{
    const std::tuple<const char*, double, const char*> casos[] = {
        {"0.000", -0.0625, "-0,063"}, {"0.000", 9.9996, "10,000"}, {"0.000", -0.0001, "0,000"},
        {"#.###", -0.0004, ","},      {"#.###", 0.05, ",05"},      {"#.##", 0.999, "1,"},
        {"#.0", -0.04, ",0"},         {"#.0", 0.25, ",3"},         {"#.0", 1e9, "1000000000,0"}};
    const Separa coma(",", ".");
    for (const auto& [mascara, valor, texto] : casos)
        EXPECT_EQ(Mascara(valor, mascara), texto) << mascara << " of " << valor;
}

}  // namespace
}  // namespace veldix
