#include "record/cabecera.h"

#include "support/grabadora.h"
#include "support/soporte.h"

namespace veldix {
namespace {

using Tipo = prueba::OperacionPagina::Tipo;

TEST(Cabecera, LinesAreListedWithWhatCannotBeShown)
{
    const prueba::Carpeta c;
    const struct {
        std::string octetos, lineas;
    } casos[] = {{"", ""},
                 {"uno\r\n\r\na\tb\n", "|uno||a       b"},
                 {"12345678\tx\ty\x1A", "|12345678        x       y "},
                 {"A\xC3\xB1o\xC2\x85\xE2\x80\xA8z\x7F\x01", "|Año  z  "},
                 {"A\xF1o", "|Año"},
                 {std::string(4097, 'w'), "|" + std::string(4095, 'w') + "…"},
                 {std::string(4096, 'w'), "|" + std::string(4096, 'w')}};
    for (const auto& caso : casos) {
        std::string lineas;
        for (const std::string& linea : LeeCabecera(c.Escribe("r.hdr", caso.octetos)))
            lineas += "|" + linea;
        EXPECT_EQ(lineas, "|VELDIX" + caso.lineas);
    }
    const std::string larga = c.Escribe("larga.hdr", std::string(2500, '\n'));
    EXPECT_EQ(LeeCabecera(larga).size(), 2501U);
    c.Escribe("larga.hdr", std::string(2500, '\n') + "x");
    EXPECT_EQ(prueba::NumeroDeError([&] { LeeCabecera(larga); }), error::kSubindice);
}

/// What is printed: places and texts, "/" for a new page.
std::string Imprime(const std::vector<std::string>& lineas, prueba::Grabadora& imp)
{
    std::string texto;
    EXPECT_TRUE(ImprimeCabecera(imp, lineas, "hoy", [] { return false; }));
    for (const auto& o : imp.ops) {
        if (o.tipo == Tipo::Pagina) texto += "/";
        if (o.tipo == Tipo::Texto && !o.texto.empty())
            texto += o.texto + "@" + std::to_string(static_cast<int>(o.ys[0] / 240.0)) + " ";
    }
    return texto;
}

TEST(Cabecera, PagesLoseLinesOrTheirDateOrEndWhite)
{
    // Sixty-four rows of 240 twips and the date: rows 0 to 63, the date in row 65.
    std::vector<std::string> lineas{"VELDIX", "a"};
    prueba::Grabadora uno(16838.0, 11906.0);
    uno.sentido = Orientacion::Vertical;
    EXPECT_EQ(Imprime(lineas, uno), "hoy@65 VELDIX@0 a@1 ");
    EXPECT_EQ(uno.De(Tipo::Texto).back().texto, "") << "one line more than there are";
    EXPECT_TRUE(uno.ops[0].letra.fija && !uno.Letra.fija);
    lineas.insert(lineas.end(), 150, "");
    for (const bool acaba : {true, false}) {
        prueba::Grabadora otra(16838.0, 11906.0);
        otra.sentido = Orientacion::Vertical;
        if (!acaba) lineas.push_back("b");
        EXPECT_EQ(Imprime(lineas, otra),
                  acaba ? "hoy@65 VELDIX@0 a@1 " : "hoy@65 VELDIX@0 a@1 /hoy@65 /hoy@65 b@24 ");
    }
}

TEST(Cabecera, LongLinesRunOffThePaperOrAreCutTooSoon)
{
    for (const auto& [letras, puntos] : {std::pair{110U, 7.4}, {90U, 9.0}, {113U, 7.2}, {400U, 6.0}}) {
        prueba::Grabadora imp(16838.0, 11906.0);
        imp.sentido = Orientacion::Vertical;
        ImprimeCabecera(imp, {std::string(letras, 'w')}, "hoy", [] { return false; });
        const auto linea = imp.Primero("w");
        EXPECT_NEAR(linea.letra.puntos, puntos, 0.05);
        EXPECT_EQ(linea.texto.size() == letras, letras < 400);
        EXPECT_LE(linea.xs[0] + 120.0 * puntos / 9.0 * static_cast<double>(linea.texto.size() - 2),
                  0.942 * 11906.0);
    }
}

TEST(Cabecera, ACancelledPrintGoesOnOrKeepsItsDocument)
{
    prueba::Grabadora imp;
    int lineas = 0;
    EXPECT_FALSE(ImprimeCabecera(imp, {"VELDIX", "a", "b"}, "hoy", [&] { return ++lineas == 3; }));
    EXPECT_EQ(imp.De(Tipo::Texto).size(), 3U);
    EXPECT_TRUE(imp.ops.back().tipo == Tipo::Anula && !imp.Letra.fija);
}

}  // namespace
}  // namespace veldix
