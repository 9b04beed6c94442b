#include <QCheckBox>
#include <QGroupBox>

#include <cmath>
#include <numbers>

#include "analysis/forms/frmFasecuencias.h"
#include "analysis/forms/frmFases.h"
#include "analysis/forms/frmSecuencias.h"
#include "analysis/modDFT.h"
#include "support/escenario.h"
#include "support/imprime.h"

namespace veldix {
namespace {

/// 40 samples of a balanced system of RMS 100 in channels 1 to 3, of 50 in 4 to 6, 20 samples a cycle; two
/// groups.
class FasoresTest : public prueba::Escenario {
protected:
    FasoresTest()
    {
        store.RevisionCfg = "1991";
        store.FrecLinea = 50;
        store.FrecMuestras = Tabla1<std::int16_t>(1);
        store.FrecMuestras(1) = 1000;
        store.Skew = Tabla1<float>(6);
        store.Canales = Tabla1<FilaCanal>(6);
        store.Muestras = Tabla2<float>(40, 6);
        for (int c = 1; c <= 6; ++c) {
            store.Canales(c) = {std::to_string(c), "C" + std::to_string(c), "", c > 3 ? "V" : "A"};
            for (int i = 1; i <= 40; ++i)
                store.Muestras(i, c) =
                    static_cast<float>((c > 3 ? 50.0 : 100.0) * std::numbers::sqrt2 *
                                       std::sin(2.0 * std::numbers::pi * (i / 20.0 - (c - 1) % 3 / 3.0)));
        }
        store.NumTrifasic = 2;
        store.Trifasic = Tabla1<FilaTrifasic>(2);
        store.Trifasic(1) = {{1, 2, 3}, "corrientes & más", "1"};
        store.Trifasic(2) = {{4, 5, 6}, "tensiones", "2"};
        CalculaDFT(store);
        store.DFTHecha = true;
    }
    static QLineF Linea(const char* linea, QWidget* form)
    {
        auto* l = Da<LineaLibre>(linea, form);
        return l->isVisibleTo(form) ? QLineF(QPointF(0, 0), l->Puntos().p2() - l->Puntos().p1()) : QLineF();
    }
    /// Opens the chooser, ticks boxes and accepts.
    void Elige(std::initializer_list<const char*> marcas)
    {
        frmFasecuencias::unica.Muestra();
        for (const char* m : marcas)
            QTest::mouseClick(Da<QCheckBox>(m, frmFasecuencias::unica.Cargado()), Qt::LeftButton, {}, {8, 8});
        Pulsa("cmdOK", frmFasecuencias::unica.Cargado());
        EXPECT_EQ(cajas.Pendientes(), 0U);
    }
    static int Abiertas()
    {
        return (frmFases::unica.Cargado() ? 1 : 0) + (frmSecuencias::unica.Cargado() ? 2 : 0);
    }
};

TEST_F(FasoresTest, ChooserChecksInAnotherOrderOrClosesWhereItStays)
{
    store.NumTrifasic = 3;
    store.Trifasic = Tabla1<FilaTrifasic>(3);
    const struct {
        std::initializer_list<const char*> marcas;
        int texto;
    } casos[] = {{{"fas1", "fas2", "fas3"}, 81}, {{"fas1", "sec1", "sec2", "sec3"}, 81}, {{}, 82}};
    for (const auto& k : casos) {
        cajas.Espera(Textos(k.texto), Icono::Critico);
        Elige(k.marcas);
        ASSERT_TRUE(frmFasecuencias::unica.Cargado()) << k.texto;
        EXPECT_EQ(store.GruposFases(0) + store.GruposSecuencias(0), static_cast<int>(k.marcas.size()));
    }
    store.NumTrifasic = 0;
    cajas.Espera(Textos(247), Icono::Critico);
    Elige({});
    EXPECT_FALSE(frmFasecuencias::unica.Cargado());
    store.NumTrifasic = 5;
    store.Trifasic = Tabla1<FilaTrifasic>(5);
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    frmFasecuencias::unica.Muestra();
    EXPECT_FALSE(frmFasecuencias::unica.Cargado());
    EXPECT_TRUE(menu && Abiertas() == 0);
}

TEST_F(FasoresTest, ChooserShowsTheWrongBoxesOrAppliesAReference)
{
    for (const char* revision : {"1991", "1997"}) {
        store.RevisionCfg = revision;
        frmFasecuencias::unica.Muestra();
        frmFasecuencias* f = frmFasecuencias::unica.Cargado();
        EXPECT_EQ(Da<QGroupBox>("Frame3", f)->isVisible(), store.RevisionCfg == "1997");
        EXPECT_EQ(Da<QCheckBox>("sec1", f)->text(), "corrientes && más") << "an accelerator";
        EXPECT_TRUE(Da<QCheckBox>("fas2", f)->isEnabled() && !Da<QCheckBox>("fas3", f)->isEnabled());
    }
    store.MuestrasPrim = Tabla2<float>(40, 6);
    Elige({"fas1"});
    EXPECT_NE(store.Muestras(5, 1), 0.0F);
    EXPECT_FALSE(store.EnPrimario);
}

TEST_F(FasoresTest, PhasesAreDrawnWithAnotherScaleFactorOrText)
{
    const prueba::Separa punto(".", "");
    Elige({"fas1", "fas2"});
    frmFases* f = frmFases::unica.Cargado();
    ASSERT_TRUE(f && !menu && Abiertas() == 1 && store.ModoFasecuencia == 1);
    auto* plot = Da<Lienzo>("Picture1", f);
    const double radio = std::min(plot->Ancho(), plot->Alto()) / 2.0;
    EXPECT_NEAR(plot->Alto(), 0.64 * ATwips(f->height()), 15.0);
    std::vector<OperacionLienzo> ops;
    plot->PonGrabadora(&ops);
    Q_EMIT plot->PideDibujo();
    plot->PonGrabadora(nullptr);
    ASSERT_EQ(ops.size(), 3U);
    EXPECT_EQ(ops[1].ys, std::vector(2, plot->Alto() / 2.0));
    EXPECT_EQ(ops[2].xs, std::vector(2, plot->Ancho() / 2.0));
    const std::uint32_t colores[] = {0x00FFFF, 0xFFFF00, 0xFF00FF, 0x0000FF, 0x00FF00, 0xFF0000};
    for (std::size_t i = 0; i < 6; ++i) {
        const std::string n = std::to_string(i + 1);
        EXPECT_EQ(Da<QLabel>("Label" + n, f)->pixmap().toImage().pixel(10, 5) & 0xFFFFFFU, colores[i]) << n;
        const bool llana = i % 3 == 0;  // its middle is on it
        EXPECT_TRUE(!llana || Centro(Da<LineaLibre>("Line" + n, f)) == colores[i]) << n;
    }
    EXPECT_NEAR(Linea("Line1", f).dx(), radio, 0.001 * radio) << "the largest phasor reaches the edge";
    EXPECT_NEAR(Linea("Line2", f).angle(), 240.0, 0.01) << "lag of 120: below, on the left";
    EXPECT_EQ(Texto("LblCorrienteB", f) + Texto("LblTensionC", f), "C2: 100. @ 240.AC6: 50. @ 120.V");
    EXPECT_EQ(Texto("lblNumero", f) + Texto("lblzoom", f), Textos(266) + "1+/-: 0");
    EXPECT_EQ(f->Barra()->minimum() * 1000 + f->Barra()->maximum(), 100139);
    EXPECT_EQ(f->Barra()->singleStep() * 100 + f->Barra()->pageStep(), 120);

    const double antes = Linea("Line1", f).dx();
    Pulsa("cmdmenos", f);
    Pulsa("cmdmenos", f);
    EXPECT_NEAR(Linea("Line1", f).dx(), antes / 1.5625, 1.0);
    EXPECT_EQ(Texto("lblzoom", f), "+/-: -2");
    f->Ventana().resize(500, 500);
    Asienta();
    EXPECT_NEAR(Linea("Line1", f).dx(), std::min(plot->Ancho(), plot->Alto()) / 2.0 / 1.5625, 1.0);
    f->Barra()->setValue(139);
    EXPECT_EQ(Texto("lblNumero", f), Textos(266) + "40");
    f->Descarga();
    EXPECT_TRUE(menu);

    Elige({"fas2"});
    f = frmFases::unica.Cargado();
    EXPECT_EQ(Texto("LblCorrienteA", f) + Texto("LblTensionA", f), "C4: 50. @ .V");
    EXPECT_TRUE(Linea("Line4", f).isNull());
}

TEST_F(FasoresTest, ZoomTooDeepEndsTheViewOrTellsNothing)
{
    Elige({"sec1"});
    frmSecuencias* f = frmSecuencias::unica.Cargado();
    const std::string texto = Texto("lblCorSecPos", f);
    int nivel = 0;
    double largo = 0.0;
    for (; nivel < 100 && 1.25 * (largo = Linea("lnCor1", f).length()) < 480000.0; ++nivel)
        Da<QPushButton>("cmdmas", f)->click();
    cajas.Espera(Textos(145), Icono::Ninguno);
    Pulsa("cmdmas", f);
    cajas.Espera(Textos(145), Icono::Ninguno);
    f->Barra()->setValue(110);
    EXPECT_EQ(cajas.Pendientes(), 0U);
    ASSERT_TRUE(frmSecuencias::unica.Cargado());
    EXPECT_EQ(Texto("lblzoom", f), "+/-: " + std::to_string(nivel + 1));
    Pulsa("cmdmenos", f);
    EXPECT_NEAR(Linea("lnCor1", f).length(), largo, 0.001 * largo);
    EXPECT_EQ(Texto("lblCorSecPos", f), texto);
}

TEST_F(FasoresTest, CopiesAreDocumentsButInAFileAndNothingMovesTheBar)
{
    using Tipo = prueba::OperacionPagina::Tipo;
    Elige({"fas1"});
    frmFases* f = frmFases::unica.Cargado();
    f->Barra()->setValue(112);
    prueba::Imprime imprime(0);
    const prueba::Grabadora* impresora = imprime.impresora.get();
    Pulsa("pctimpresora", f);
    EXPECT_TRUE(impresora->ops.empty());
    imprime.copias = 2;
    for (const bool fichero : {false, true}) {
        imprime.fichero = fichero;
        Pulsa("pctimpresora", f);
        EXPECT_EQ(impresora->De(Tipo::Poligonal).size(), 2U * (10U + 3U * 2U));
        EXPECT_NEAR(impresora->De(Tipo::Poligonal)[1].xs[0], 0.942 * 16838.0, 0.01);
        EXPECT_EQ(impresora->De(Tipo::Pagina).size(), fichero ? 1U : 0U);
        EXPECT_EQ(impresora->De(Tipo::Termina).size(), fichero ? 1U : 3U);  // the last one of nothing
    }
    EXPECT_EQ(impresora->Primero("C1: ").texto.find(" @ "), std::string::npos);
    EXPECT_EQ(impresora->Primero("Muestra").texto, Texto("lblNumero", f));
    EXPECT_EQ(f->Barra()->value(), 112);
    EXPECT_FALSE(f->testAttribute(Qt::WA_SetCursor));
    store.Trifasic(1).Factor = "x";
    cajas.Espera("Error 13: Type mismatch", Icono::Critico);
    Pulsa("pctimpresora", f);
    EXPECT_EQ(frmFases::unica.Cargado(), f);
}

TEST_F(FasoresTest, AViewLeftStandingGoesByTheModeItWasOpenedIn)
{
    Elige({"fas1"});
    ASSERT_TRUE(frmFases::unica.Cargado());
    Elige({"fas1", "sec1"});  // while the first one still stands
    Asienta();
    frmSecuencias::unica.Cargado()->Ventana().close();
    Asienta();
    EXPECT_FALSE(menu);
    frmFases::unica.Cargado()->Ventana().close();
    Asienta();
    EXPECT_TRUE(menu);
}

TEST_F(FasoresTest, TwoViewsLoseTheMenuOrEachOther)
{
    for (const bool primeroFases : {true, false}) {
        Elige({"fas1", "sec1", "sec2"});
        frmFases* f = frmFases::unica.Cargado();
        frmSecuencias* s = frmSecuencias::unica.Cargado();
        ASSERT_TRUE(f && s && !menu && store.ModoFasecuencia == 2);
        EXPECT_NEAR(s->Ventana().x(), f->Ventana().x() + f->Ventana().width(), 1);
        s->Barra()->setValue(117);
        EXPECT_EQ(f->Barra()->value(), 117);
        f->Barra()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        EXPECT_EQ(s->Barra()->value(), 137);
        EXPECT_EQ(Texto("lblNumero", f), Texto("lblNumero", s));
        VistaFasores* primera = primeroFases ? static_cast<VistaFasores*>(f) : s;
        VistaFasores* segunda = primeroFases ? static_cast<VistaFasores*>(s) : f;
        primera->Ventana().close();
        Asienta();
        EXPECT_FALSE(menu);
        segunda->Barra()->setValue(105);
        segunda->Ventana().close();
        Asienta();
        EXPECT_TRUE(menu && Abiertas() == 0);
        EXPECT_FALSE(store.FasesCerrando || store.SecuenciasCerrando);
    }
}

TEST_F(FasoresTest, ViewThatCannotLoadHidesTheMenuOrTakesTheOtherAlong)
{
    store.Trifasic(1).Factor = "";
    cajas.Espera("Error 13: Type mismatch", Icono::Critico);
    Elige({"fas1"});
    EXPECT_TRUE(menu && Abiertas() == 0 && !frmFasecuencias::unica.Cargado());
    cajas.Espera("Error 13: Type mismatch", Icono::Critico);
    Elige({"fas1", "sec2"});
    EXPECT_TRUE(!menu && Abiertas() == 2);
    frmSecuencias::unica.Descarga();
    EXPECT_TRUE(menu) << "the view that failed counts as gone";
    store.FasoresDFT = {};
    for (int k = 0; k < 2; ++k)
        cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Elige({"fas2", "sec2"});
    EXPECT_TRUE(menu && Abiertas() == 0);
    EXPECT_FALSE(store.FasesCerrando || store.SecuenciasCerrando);
}

}  // namespace
}  // namespace veldix
