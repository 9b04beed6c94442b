#include "support/imprime.h"
#include "waves/forms/frmNewOndas.h"
#include "waves/forms/frmVerOndas.h"
#include "waves/forms/registro_ondas.h"

namespace veldix {
namespace {

using prueba::Valor;

class OndasTest : public prueba::RegistroOndas {
protected:
    template <class Control>
    static Control* Da(const std::string& nombre, QWidget* form = frmNewOndas::unica.Cargado())
    {
        return RegistroOndas::Da<Control>(nombre, form);
    }
    static void Pulsa(const char* boton, QWidget* form = frmNewOndas::unica.Cargado())
    {
        RegistroOndas::Pulsa(boton, form);
    }
    /// Opens the chooser, where it is not, and double-clicks rows of its list.
    static void Elige(std::initializer_list<int> filas)
    {
        if (!frmNewOndas::unica.Cargado()) frmNewOndas::unica.CargaNueva().show();
        RegistroOndas::Elige(frmNewOndas::unica.Cargado(), filas);
    }
    static std::string Numeros()
    {
        std::string s;
        for (const char* k : {"lbl1", "lbl2", "lbl3", "lbl4", "lbl5", "lbl6", "lbl7", "lbl8"})
            s += U(Da<QLabel>(k)->text()) + ",";
        return s;
    }
    /// One window for a row, by the chooser.
    static frmVerOndas* Ventana(int r)
    {
        Elige({r});
        Pulsa("cmdOK");
        frmVerOndas* v = store.VentanaOnda.Vacia() ? nullptr : store.VentanaOnda(r);
        if (!v) throw std::runtime_error("no window");
        return v;
    }
    using Vistos = std::vector<int>;
    /// The sample of the fresh plot of 960, from 0, at a pixel.
    static int Muestra(frmVerOndas* v, int pixel)
    {
        return qRound((15.0 * pixel / v->Plot()->Ancho() - 0.02) * 1000);
    }

    const Vistos todo{1, 1, 1, 960, 0, 1};
};

TEST_F(OndasTest, EightChannelsStandInRisingOrderWhateverTheirSlots)
{
    Elige({9, 3, 1, 7, 5, 8, 2, 4});
    Pulsa("cmdOK");
    EXPECT_EQ(avance, "[Preparando las ondas... 30 60 80 100]");
    EXPECT_TRUE(!menu && muestras == 0);
    EXPECT_EQ(Abiertas(), 8);
    const double alto = 2609.0 / 15, ancho = 7642.0 / 15;  // of 10435 x 15284 twips
    int k = 0;
    for (const int r : {1, 2, 3, 4, 5, 7, 8, 9}) {
        frmVerOndas* v = store.VentanaOnda(r);
        ASSERT_TRUE(v && v->isVisible()) << r;
        EXPECT_EQ(U(v->windowTitle()), "I" + std::to_string(r));
        EXPECT_EQ(Estado(v), todo);
        const QPointF lugar((k / 4) * ancho, (k % 4) * alto);  // down the left column, then the right one
        EXPECT_LE((v->Ventana().pos() - lugar).manhattanLength(), 2) << r;
        EXPECT_LE((v->Ventana().rect().bottomRight() - QPointF(ancho, alto)).manhattanLength(), 4) << r;
        ++k;
    }
}

TEST_F(OndasTest, SlotsFollowMouseAndKeysAndKeepBadNames)
{
    store.Canales(2).Nombre = "$I%";
    Elige({});
    cajas.Espera("No se ha elegido nada para visualizar.", Icono::Critico);
    Pulsa("cmdOK");
    ASSERT_TRUE(frmNewOndas::unica.Cargado() && menu);
    cajas.Espera("El carácter % no está permitido.", Icono::Critico);
    cajas.Espera("El carácter $ no está permitido.", Icono::Critico);
    Elige({4, 4, 2});
    EXPECT_EQ(U(Da<QLineEdit>("grp2")->text()), "$I%");
    Da<QListWidget>("List1")->setCurrentRow(8);
    QTest::keyClick(Da<QListWidget>("List1"), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Numeros(), "4,2,9,,,,,,");
    QTest::mouseDClick(Da<QLineEdit>("grp2"), Qt::LeftButton);
    EXPECT_EQ(Numeros(), "4,,9,,,,,,");
    QTest::mouseClick(Da<QLabel>("lblpunt8"), Qt::LeftButton);
    Elige({5, 6});
    EXPECT_EQ(Numeros(), "4,,9,,,,,6,");
    Pulsa("cmdOK");
    EXPECT_EQ(Abiertas(), 3);
}

TEST_F(OndasTest, AnOpeningThatFailsLeavesAWayOut)
{
    const struct {
        const char *caso, *numero;  // of channel 2
        std::initializer_list<int> filas;
        int encima;  // put on the first slot then
        const char* caja;
        int quedan;
    } casos[] = {
        {"no number", "siete", {2}, 0, "Error 13: Type mismatch", 0},
        {"no such column, beside a good one", "99", {2, 5}, 0, "Error 9: Subscript out of range", 1},
        {"a channel in two slots", "3", {4, 3}, 3, "Error 9: Subscript out of range", 0},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.caso);
        store.Canales(2).Numero = c.numero;
        Elige(c.filas);
        if (c.encima > 0) {
            QTest::mouseClick(Da<QLabel>("lblpunt1"), Qt::LeftButton);
            Elige({c.encima});
        }
        cajas.Espera(c.caja, Icono::Critico);
        Pulsa("cmdOK");
        EXPECT_TRUE(!frmNewOndas::unica.Cargado() && avance.ends_with(']'));
        EXPECT_EQ(Abiertas(), c.quedan);
        EXPECT_EQ(menu, c.quedan == 0);
        if (c.quedan > 0) store.VentanaOnda(5)->Descarga();
        EXPECT_TRUE(menu);
    }
}

TEST_F(OndasTest, TheReferenceIsAppliedNamedAndForgottenByTheFirstToClose)
{
    for (const bool primario : {true, false}) {
        SCOPED_TRACE(primario);
        Registro(960);
        store.RevisionCfg = "1997";
        store.Muestras = Tabla2<float>(960, 9);
        Elige({1, 2});
        if (!primario) Da<QRadioButton>("CmdSecundario")->click();
        Pulsa("cmdOK");
        EXPECT_EQ(store.Muestras(2, 1), static_cast<float>(Valor(2, 1) * (primario ? 2 : 1)));
        frmVerOndas *a = store.VentanaOnda(1), *b = store.VentanaOnda(2);
        ASSERT_TRUE(a && b);
        EXPECT_TRUE(Da<QLabel>("lbl_PS", b)->isVisible());
        EXPECT_EQ(Texto("lbl_PS", b), primario ? "PRIMARIO" : "SECUNDARIO");
        a->Ventana().close();
        Asienta();
        EXPECT_EQ(store.NumVentanasOnda, 1);
        EXPECT_FALSE(store.EnPrimario || store.EnSecundario || menu);
        Estira(b);
        EXPECT_FALSE(Da<QLabel>("lbl_PS", b)->isVisible());
        b->Ventana().close();
        Asienta();
        EXPECT_TRUE(menu);
    }
}

TEST_F(OndasTest, KeysMoveACursorItsLineAndTheLabels)
{
    frmVerOndas* v = Ventana(3);
    const double w = v->Plot()->Ancho();
    EXPECT_NEAR(LineaX("Lineizq", v), w / 3.6 / 960, 15);  // without the margin before a bar has moved
    EXPECT_EQ(Texto("lblamar", v), "-26,000 A");
    Da<QScrollBar>("HScroll2", v)->setValue(100);
    const std::array<const char*, 4> lados[] = {{"HScroll1", "lblizq", "lblamar", "Lineizq"},
                                                {"HScroll2", "lblder", "lblcian", "Lineder"}};
    const struct {
        int antes;
        Qt::Key tecla;
        int muestra;
    } teclas[] = {{1, Qt::Key_Right, 2}, {22, Qt::Key_PageDown, 42}, {950, Qt::Key_PageDown, 960}};
    int otra = 100;  // the sample of the cursor that stands
    for (const auto& [nombre, numero, valor, linea] : lados) {
        auto* barra = Da<QScrollBar>(nombre, v);
        for (const auto& t : teclas) {
            SCOPED_TRACE(nombre + std::string(" to ") + std::to_string(t.muestra));
            barra->setValue(t.antes);
            QTest::keyClick(barra, t.tecla);
            EXPECT_EQ(Texto(numero, v), "No.= " + std::to_string(t.muestra));
            EXPECT_EQ(Texto(valor, v), std::to_string(Valor(t.muestra, 2)) + ",000 A");
            EXPECT_NEAR(LineaX(linea, v), t.muestra * w * 48 / 50 / 960 + w / 50, 15);
            EXPECT_EQ(Texto("lblms", v), std::to_string(std::abs(t.muestra - otra)) + ",000 ms");
            const int dif = std::abs(Valor(t.muestra, 2) - Valor(otra, 2));
            EXPECT_EQ(Texto("lblDif", v), std::to_string(dif) + ",000 A");
        }
        otra = 960;
    }
}

TEST_F(OndasTest, ABoxZoomsInEveryDirectionAndOnlyWhenArmedAndConfirmed)
{
    frmVerOndas* v = Ventana(3);
    Arrastra(v, {200, 100}, {400, 200});  // not armed: no question
    Pulsa("cmdzoom", v);
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::CrossCursor);
    QTest::mousePress(v->Plot(), Qt::LeftButton, {}, {200, 100});
    QTest::mouseMove(v->Plot(), {400, 250});
    EXPECT_EQ(Da<LineaSobre>("Line2", v)->geometry(), QRect(200, 100, 201, 1));
    EXPECT_EQ(Da<LineaSobre>("Line3", v)->geometry(), QRect(200, 100, 1, 151));
    EXPECT_EQ(Da<LineaSobre>("Line4", v)->geometry(), QRect(200, 250, 201, 1));
    EXPECT_EQ(Da<LineaSobre>("Line5", v)->geometry(), QRect(400, 100, 1, 151));
    EsperaAmpliar(false);
    QTest::mouseRelease(v->Plot(), Qt::LeftButton, {}, {400, 250});
    EXPECT_FALSE(Da<LineaSobre>("Line2", v)->isVisible());
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(Estado(v), todo);

    const int s = Muestra(v, 200), e = Muestra(v, 400);
    for (const auto& [x1, y1, x2, y2] : {std::array{200, 100, 400, 200}, {400, 200, 200, 100}}) {
        Amplia(v, {x1, y1}, {x2, y2});
        EXPECT_EQ(Estado(v), (Vistos{s, s, s, e, 1, 2}));
        EXPECT_NEAR(LineaX("Lineder", v), v->Plot()->Ancho() / 50, 15);
        EXPECT_EQ(Texto("lblcian", v), std::to_string(Valor(s, 2)) + ",000 A");
        Estira(v);
        EXPECT_EQ(Estado(v), todo);
        EXPECT_EQ(store.FactorZoomY, 1.0F);
    }
    Cursores(v, 300, 200);
    Pulsa("cmdzoom", v);
    QTest::keyClick(v->Plot(), Qt::Key_Escape);
    QTest::keyClick(v->Plot(), Qt::Key_Return);  // no longer armed: no question
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
    EsperaAmpliar(true);
    Pulsa("cmdzoom", v);
    QTest::keyClick(v->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Estado(v), (Vistos{200, 200, 200, 300, 1, 2})) << "from cursor to cursor, by the keys alone";
    Estira(v);
    Amplia(v, {200, 100}, {400, 200});
    menu = true;
    v->Ventana().showMinimized();
    Asienta();
    EXPECT_FALSE(menu);
    EXPECT_EQ(Estado(v), (Vistos{s, s, s, e, 1, 2}));
    v->Ventana().showNormal();
    Asienta();
    EXPECT_EQ(Estado(v), todo);
}

TEST_F(OndasTest, StepsThroughTheHistoryTellTheirEnds)
{
    frmVerOndas* v = Ventana(1);
    const auto llega = [&](const char* boton, const char* texto) {
        cajas.Espera(texto, Icono::Informacion);
        Pulsa(boton, v);
    };
    llega("cmdadel", "Este es el último nivel de zoom.");
    const int s = Muestra(v, 200);
    const Vistos uno{s, s, s, Muestra(v, 600), 1, 2};
    Pulsa("cmdzoom", v);
    llega("cmdatras", "Este es el primer nivel de zoom.");  // leaves the zoom armed
    EsperaAmpliar();
    Arrastra(v, {200, 100}, {600, 200});
    EXPECT_EQ(Estado(v), uno);
    llega("cmdadel", "Este es el último nivel de zoom.");
    Pulsa("cmdatras", v);
    EXPECT_EQ(Estado(v), (Vistos{1, 1, 1, 960, 0, 2}));
    Pulsa("cmdzoom", v);
    Pulsa("cmdadel", v);  // takes the pending zoom away: the box that follows replays the level
    EsperaAmpliar();
    Arrastra(v, {300, 100}, {500, 200});
    EXPECT_EQ(Estado(v), uno);
}

TEST_F(OndasTest, DrawsAxesAndEverySampleAndNoVerticalAxisOnceZoomed)
{
    frmVerOndas* v = Ventana(3);
    auto ops = Graba(v);
    const double w = v->Plot()->Ancho(), h = v->Plot()->Alto(), escala = (h - 2 * h / 50) / 2 / 40;
    ASSERT_EQ(ops.size(), 4U);
    EsTrazo(ops[1], w / 50, h / 2, 49 * w / 50, h / 2);
    EsTrazo(ops[2], w / 50, h / 50, w / 50, 49 * h / 50);
    auto *una = Da<LineaSobre>("Lineizq", v), *otra = Da<LineaSobre>("Lineder", v);
    EXPECT_GE(qMin(una->height(), otra->height()), v->Plot()->height());
    Cursores(v, 400, 600);
    EXPECT_EQ((std::pair{Centro(una), Centro(otra)}), (std::pair{0xFFFF00U, 0x00FFFFU}));
    ASSERT_EQ(ops[3].xs.size(), 960U);
    EXPECT_NEAR(ops[3].ys.back(), h / 2 - Valor(960, 2) * escala, 0.1);
    EXPECT_EQ(ops[3].color & 0xFFFFFFU, 0xFF0000U);  // of row 3, though the curve is column 2

    const int ph = v->Plot()->height();
    for (const int y1 : {ph / 4, 0}) {  // the zero line is in the first box, below the second
        Amplia(v, {200, y1}, {400, y1 + ph / 4 + 20});
        const double factor = h / (15.0 * (ph / 4 + 20)), origen = (h / 2 - 15.0 * y1) * factor;
        const int e = Da<QScrollBar>("HScroll1", v)->maximum();
        for (const bool guardado : {false, true}) {
            SCOPED_TRACE(guardado ? "by the stored level" : "by the box");
            if (guardado) Pulsa("cmdatras", v), Pulsa("cmdadel", v);
            ops = Graba(v);
            ASSERT_EQ(De(ops, Tipo::Linea).size(), y1 > 0 ? 1U : 0U);
            if (y1 > 0) EsTrazo(ops[1], w / 50, origen, w, origen);
            EXPECT_NEAR(ops.back().xs.back(), 49 * w / 50, 0.1);
            EXPECT_NEAR(ops.back().ys.back(), origen - factor * Valor(e, 2) * escala, 0.1);
        }
        Estira(v);
    }
}

TEST_F(OndasTest, APageIsThatOfTheLevelAndLeavesTheSharedFactor)
{
    frmVerOndas* v = Ventana(3);
    Amplia(v, {200, 100}, {400, 200});
    Da<QScrollBar>("HScroll2", v)->setValue(Da<QScrollBar>("HScroll2", v)->value() + 5);
    store.FactorZoomY = 7.0F;  // of another window's zoom
    const prueba::Imprime imprime(1);
    const prueba::Grabadora* impresora = imprime.impresora.get();
    Pulsa("pctimpresora", v);
    EXPECT_EQ(store.FactorZoomY, 7.0F);
    const auto curva = CurvaImpresa(v);
    const Vistos vistos = Estado(v);
    EXPECT_EQ(static_cast<int>(curva.xs.size()), vistos[3] - vistos[0] + 1);
    EXPECT_EQ(curva.color, 0x0000FFU);
    const double h = v->Plot()->Alto(), factor = h / 1500, ry = (0.82 * 11906 - 0.05 * 16838) / h;
    const double unidad = (h - h / 25) / 2 / 40 * factor * ry;
    EXPECT_NEAR(curva.ys[0], 841.9 + (h / 2 - 1500) * factor * ry - Valor(vistos[0], 2) * unidad, 0.5);
    EXPECT_EQ(impresora->Primero("5,000 ms").texto, Texto("lblms", v));
    EXPECT_EQ(impresora->Primero(Texto("lblDif", v)).texto, Texto("lblDif", v));
}

TEST_F(OndasTest, NarrowBoxesAreCriticalAndFailuresCloseTheWindow)
{
    Registro(1);
    frmVerOndas* v = Ventana(3);
    Pulsa("cmdzoom", v);
    EsperaAmpliar();
    cajas.Espera("El tramo elegido es demasiado corto: debe abarcar al menos dos muestras.", Icono::Critico);
    Arrastra(v, {10, 10}, {900, 300});
    ASSERT_EQ(store.VentanaOnda(3), v);
    EXPECT_EQ(Estado(v), (Vistos{1, 1, 1, 1, 0, 1}));
    const prueba::Imprime imprime(2);
    cajas.Espera("El tramo elegido es demasiado corto: debe abarcar al menos dos muestras.", Icono::Ninguno);
    Pulsa("pctimpresora", v);
    EXPECT_EQ(v->Plot()->cursor().shape(), Qt::ArrowCursor);
    v->Descarga();

    Registro(960);
    store.FrecMuestras(1) = 0;  // no rate at all: the first cursor move has no time to show
    v = Ventana(3);
    cajas.Espera("Error 11: Division by zero", Icono::Critico);
    QTest::keyClick(Da<QScrollBar>("HScroll1", v), Qt::Key_PageDown);
    Asienta();
    EXPECT_EQ(Abiertas(), 0);
    EXPECT_TRUE(menu);
}

}  // namespace
}  // namespace veldix
