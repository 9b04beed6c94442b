#include <QTimer>

#include "support/imprime.h"
#include "waves/forms/frmNewOndas.h"
#include "waves/forms/frmTodoanalog.h"
#include "waves/forms/registro_ondas.h"

namespace veldix {
namespace {

using prueba::Valor;

class TodoTest : public prueba::RegistroOndas {
protected:
    frmTodoanalog* Abre(std::initializer_list<int> filas)
    {
        frmNewOndas::unica.CargaNueva().show();
        Elige(frmNewOndas::unica.Cargado(), filas);
        Pulsa("cmdtodo", frmNewOndas::unica.Cargado());
        return frmTodoanalog::unica.Cargado();
    }
};

TEST_F(TodoTest, NoChoiceIsToldAndTheDialogComesBack)
{
    cajas.Espera("No se ha elegido nada para visualizar.", Icono::Informacion);
    EXPECT_EQ(Abre({}), nullptr);
    ASSERT_TRUE(frmNewOndas::unica.Cargado() && frmNewOndas::unica.Cargado()->isVisible());
    EXPECT_TRUE(menu && avance.empty());
}

TEST_F(TodoTest, EightBandsShowTheirRowsValuesAndTheirColumnsCurves)
{
    store.Canales(9).Circuito = "CIRCUITO LARGO";
    frmTodoanalog* v = Abre({9, 8, 2, 3, 4, 5, 6, 7});
    ASSERT_TRUE(v && v->isVisible() && !menu && !frmNewOndas::unica.Cargado());
    EXPECT_EQ(avance, "[Preparando las ondas... 5 20 40]");
    EXPECT_EQ(U(v->windowTitle()), "Canales Analógicos");
    const auto ops = Graba(v);
    ASSERT_EQ(ops.size(), 1U + 9U + 8U);
    const double w = v->Plot()->Ancho(), h = v->Plot()->Alto(), banda = h / 8 + 1;
    const OperacionLienzo& vertical = ops[1];
    EXPECT_EQ(vertical.xs, (std::vector{50.0, 50.0}));
    EXPECT_EQ(vertical.ys, (std::vector{50.0, h - 50}));
    EXPECT_NEAR(ops[9].ys[0], 7 * banda + banda / 2, 0.01);
    const OperacionLienzo& primera = ops[10];  // row 2, column 3, at the common scale of 180
    ASSERT_EQ(primera.xs.size(), 960U);
    EXPECT_NEAR(primera.xs.back(), 959 * (w - 150) / 960 + 50, 0.1);
    EXPECT_NEAR(primera.ys[21], banda / 2 - Valor(22, 3) * (banda - banda / 25) / 2 / 180, 0.1);
    EXPECT_EQ(primera.color & 0xFFFFFFU, 0x00FF00U);

    EXPECT_EQ(U(Da<QLabel>("lblet1", v)->palette().window().color().name()), "#ffff00");
    EXPECT_EQ(U(Da<QLabel>("lblet2", v)->palette().window().color().name()), "#00ffff");

    Cursores(v, 22, 960);
    EXPECT_EQ(Texto("lblet1", v), "I2: " + std::to_string(Valor(22, 2)) + ",000 A");
    EXPECT_EQ(Texto("lblet16", v), "CIRCUITO LARGO: " + std::to_string(Valor(960, 9)) + ",000 A");
    EXPECT_EQ(Texto("lblam", v) + Texto("lblci", v), "No.= 22No.= 960");
    EXPECT_EQ(Texto("lblms", v), "938,000 ms");
    EXPECT_NEAR(LineaX("lnam", v), 21 * (w - 150) / 960 + 50, 15);
    Da<QScrollBar>("HScroll_Nombres", v)->setValue(9);
    EXPECT_EQ(Texto("lblet16", v), "LARGO: " + std::to_string(Valor(960, 9)) + ",000 A");
    EXPECT_EQ(Texto("lblet1", v), ("I2: " + std::to_string(Valor(22, 2)) + ",000 A").substr(9));
    QTest::mouseClick(Da<QLabel>("lblet1", v), Qt::LeftButton);
    EXPECT_TRUE(Texto("lblet1", v).starts_with("I2: "));
    v->Ventana().close();
    Asienta();
    EXPECT_TRUE(menu);
}

TEST_F(TodoTest, TheFirstCursorLeavesTheSixteenthNameAsItWas)
{
    frmTodoanalog* v = Abre({1, 2, 3, 4, 5, 6, 7, 8});
    Da<QScrollBar>("HScroll2", v)->setValue(5);
    const std::string antes = Texto("lblet16", v);
    store.Canales(8).Nombre = "OTRO";
    Da<QScrollBar>("HScroll1", v)->setValue(9);
    EXPECT_TRUE(Texto("lblet16", v).starts_with("OTRO: "));
    QTest::mouseClick(Da<QLabel>("lblet16", v), Qt::LeftButton);
    EXPECT_EQ(Texto("lblet16", v), antes);
    QTest::mouseClick(Da<QLabel>("lblet15", v), Qt::LeftButton);
    EXPECT_TRUE(Texto("lblet15", v).starts_with("OTRO: "));
}

TEST_F(TodoTest, ZoomsBetweenTheCursorsAndTellsItsEnds)
{
    frmTodoanalog* v = Abre({1, 2});
    const std::vector<int> todo{1, 1, 1, 960, 0, 1};
    SinZoom(v, Icono::Critico, Icono::Ninguno);
    EXPECT_EQ(Estado(v), todo);

    Cursores(v, 401, 201);
    Pulsa("cmdzoom", v);
    EXPECT_EQ(Estado(v), (std::vector{201, 201, 201, 401, 1, 2}));
    const double w = v->Plot()->Ancho();
    const auto curva = Graba(v).back();
    ASSERT_EQ(curva.xs.size(), 200U);  // the last sample is not joined
    EXPECT_NEAR(curva.xs.back(), 199 * (w - 100) / 200 + 50, 0.1);
    Da<QScrollBar>("HScroll2", v)->setValue(401);
    EXPECT_NEAR(LineaX("lnci", v), w - 100, 15);
    EXPECT_EQ(CurvaImpresa(v).xs.size(), 200U);
    Pulsa("cmdatras", v);
    EXPECT_EQ(Estado(v), (std::vector{1, 1, 1, 960, 0, 2}));
    EXPECT_EQ(Graba(v).back().xs.size(), 959U);  // now the zoom's rule holds for the whole record too
    Pulsa("cmdadel", v);
    EXPECT_EQ(Estado(v), (std::vector{201, 201, 201, 401, 1, 2}));
    Estira(v);
    EXPECT_EQ(Estado(v), todo);
}

TEST_F(TodoTest, ABadColumnOrNoRateLeavesAWindow)
{
    store.Canales(1).Numero = "x";
    cajas.Espera("Error 13: Type mismatch", Icono::Critico);
    EXPECT_EQ(Abre({1}), nullptr);
    EXPECT_TRUE(menu && avance.ends_with(']') && !frmNewOndas::unica.Cargado());

    store.Canales(1).Numero = "1";
    store.FrecMuestreo = 0;
    store.FrecMuestras(1) = 0;
    frmTodoanalog* v = Abre({1});
    ASSERT_TRUE(v) << "no rate is needed before a cursor moves";
    EXPECT_EQ(Texto("lblms", v), "0.000 ms");
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    Da<QScrollBar>("HScroll1", v)->setValue(9);
    EXPECT_FALSE(frmTodoanalog::unica.Cargado());
}

/// Copies of a page, what the user does before each, and what the view is meanwhile.
TEST_F(TodoTest, CancelarEndsAPrintBehindTheCopiesThatWereDrawn)
{
    using Papel = prueba::OperacionPagina::Tipo;
    frmTodoanalog* v = Abre({1, 2});
    prueba::Imprime imprime(3);
    const prueba::Grabadora* impresora = imprime.impresora.get();
    int copia = 0, cancelaEn = 0, tira = 0;
    bool activa = true;
    escena.muestraCancelar = [&] {
        activa = activa && v->isEnabled();
        if (++copia == cancelaEn) QTimer::singleShot(0, v, [] { store.CancelaImpresion = true; });
    };
    escena.descargaCancelar = [] { store.CancelaImpresion = true; };  // as its unload does
    escena.activaSalir = [&](bool si) { tira += si ? 1 : -1; };
    const struct {
        int cancelaEn;
        std::size_t paginas, curvas;
    } casos[] = {{0, 2, 6}, {2, 0, 2}, {1, 0, 0}};
    for (const auto& c : casos) {
        cancelaEn = c.cancelaEn;
        activa = true;
        copia = 0;
        Pulsa("pctimpresora", v);
        EXPECT_EQ(impresora->De(Papel::Pagina).size(), c.paginas);
        EXPECT_EQ(impresora->De(Papel::Recorte).size() * 2, c.curvas);
        EXPECT_EQ(impresora->De(Papel::Termina).size(), 1U);
        EXPECT_EQ(impresora->sentido, Orientacion::Horizontal);
        EXPECT_TRUE(!activa && v->isEnabled() && tira >= 0);
    }
    imprime.copias = 0;
    Pulsa("pctimpresora", v);
    EXPECT_TRUE(impresora->ops.empty());
    imprime.copias = 3;
    store.FrecMuestras(1) = 0;
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    Pulsa("pctimpresora", v);
    EXPECT_EQ(impresora->De(Papel::Termina).size(), 1U);
    EXPECT_TRUE(frmTodoanalog::unica.Cargado() && v->isEnabled());
}

TEST_F(TodoTest, AViewThatGoesWhileItMayBeCancelledPrintsNothing)
{
    frmTodoanalog* v = Abre({1});
    const prueba::Imprime imprime(2);
    escena.muestraCancelar = [&] { v->Descarga(); };
    Pulsa("pctimpresora", v);
    EXPECT_TRUE(imprime.impresora->De(prueba::OperacionPagina::Tipo::Poligonal).empty());
    EXPECT_TRUE(menu);
}

}  // namespace
}  // namespace veldix
