#include <QComboBox>
#include <QRadioButton>

#include "digital/forms/frm19.h"
#include "digital/forms/frmElecdig.h"
#include "digital/forms/frmGrid.h"
#include "support/imprime.h"
#include "waves/forms/registro_ondas.h"

namespace veldix {
namespace {

using prueba::Valor;

constexpr const char* kLimite = "No se pueden elegir más de 19 canales digitales.";

/// The record of waves with three digital channels: 1 from sample 401 to 500, always, never; and a template
/// with a group of these, one of nineteen and one of two, whose channels are the record's in turn.
class DigitalTest : public prueba::RegistroOndas {
protected:
    DigitalTest()
    {
        store.NumDigital = 3;
        store.MuestrasDig = Tabla2<std::int16_t>(960, 3);
        for (int i = 1; i <= 960; ++i) {
            store.MuestrasDig(i, 1) = i > 400 && i <= 500 ? 1 : 0;
            store.MuestrasDig(i, 2) = 1;
        }
        Grupos({3, 19, 2});
        for (int c = 2; c <= 3; ++c)  // rows and columns agree: the reference is read by its row
            store.Canales(c).Nombre = "LARGA " + std::to_string(c);
    }
    static void Grupos(const std::vector<int>& cuentas)
    {
        store.NumGruposDig = static_cast<std::int16_t>(cuentas.size());
        store.GruposDig = Tabla1<FilaGrupoDig>(store.NumGruposDig);
        int filas = 0;
        for (int g = 1; g <= store.NumGruposDig; ++g) {
            const int cuenta = cuentas[static_cast<std::size_t>(g - 1)];
            store.GruposDig(g) = {"GRUPO " + std::to_string(g), std::to_string(cuenta)};
            filas += cuenta;
        }
        store.CanalesDig = Tabla1<FilaCanalDig>(filas);
        for (int r = 1; r <= filas; ++r)
            store.CanalesDig(r) = {std::to_string((r - 1) % 3 + 1), "Señal " + std::to_string(r)};
    }

    frmGrid* AbreGrid()
    {
        frmGrid::Abre();
        Asienta();
        return frmGrid::unica.Cargado();
    }
    /// A group under a row of `Canales`.
    frm19* AbreGrupo(int g, int canalRef = 1)
    {
        frmElecdig::unica.Muestra();
        Da<QComboBox>("Combo1", frmElecdig::unica.Cargado())->setCurrentIndex(canalRef - 1);
        Da<QRadioButton>("optdg" + std::to_string(g), frmElecdig::unica.Cargado())->click();
        Pulsa("cmdOK", frmElecdig::unica.Cargado());
        return frm19::unica.Cargado();
    }
    static QLabel* Canal(int k, int j)
    {
        return Da<QLabel>("lblgrp" + std::to_string(k) + "_" + std::to_string(j), frmGrid::unica.Cargado());
    }
    static void Clic(int k, int j) { QTest::mouseClick(Canal(k, j), Qt::LeftButton); }
    /// As a mouse sends it: the second press is the double click, and its release comes behind it.
    static void Doble(int k, int j)
    {
        Clic(k, j);
        QTest::mouseDClick(Canal(k, j), Qt::LeftButton);
        QMouseEvent sube(QEvent::MouseButtonRelease, QPointF(5, 5), Canal(k, j)->mapToGlobal(QPointF(5, 5)),
                         Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Canal(k, j), &sube);
    }
    static std::string Fondo(int k, int j)
    {
        const QLabel* l = Canal(k, j);
        return U(l->palette().color(QPalette::Window).name());
    }
    static std::string Elegidos() { return Texto("Label102", frmGrid::unica.Cargado()); }
};

TEST_F(DigitalTest, ClicksChooseDoubleClicksReleaseAndTheTwentiethIsRefused)
{
    ASSERT_TRUE(AbreGrid() && !menu);
    const std::string blanco = Fondo(1, 2), azul = "#c0c0ff", amarillo = "#ffff00";
    EXPECT_EQ(Fondo(1, 1), azul);
    EXPECT_NE(blanco, azul);
    EXPECT_EQ(frmGrid::unica.Cargado()->focusWidget(), Canal(1, 1));
    EXPECT_TRUE(Canal(1, 0)->isEnabled() && Canal(2, 19)->isEnabled());
    EXPECT_FALSE(Canal(1, 4)->isEnabled() || Canal(4, 0)->isEnabled());
    for (const auto& [k, j] : {std::pair{1, 0}, {1, 4}, {4, 0}, {16, 19}})
        Doble(k, j);
    QTest::mousePress(Canal(1, 1), Qt::LeftButton);
    QTest::mouseRelease(Canal(1, 1), Qt::LeftButton, {}, QPoint(-5, -5));
    QTest::mouseClick(Canal(1, 1), Qt::RightButton);
    EXPECT_EQ(Elegidos(), "0");
    Clic(1, 1);
    EXPECT_EQ(Fondo(1, 1) + Elegidos(), amarillo + "1");
    Doble(1, 1);
    EXPECT_EQ(Fondo(1, 1) + Elegidos(), azul + "0");
    Doble(1, 2);
    EXPECT_EQ(Fondo(1, 2) + Elegidos(), blanco + "0") << "the release behind a double click chose it again";
    QTest::mouseDClick(Canal(1, 3), Qt::LeftButton);  // its first press went elsewhere
    EXPECT_EQ(Elegidos(), "1");
    Doble(1, 3);
    for (int j = 1; j <= 18; ++j)
        Clic(2, j);
    Canal(1, 2)->setFocus();
    QTest::keyClick(Canal(1, 2), Qt::Key_Down);
    QTest::keyClick(Canal(1, 3), Qt::Key_Space);
    EXPECT_EQ(Fondo(1, 3) + Elegidos(), amarillo + "19");
    cajas.Espera(kLimite, Icono::Critico);
    cajas.Espera(kLimite, Icono::Critico);
    Doble(2, 19);
    EXPECT_EQ(Elegidos(), "19");
    QTest::keyClick(Canal(2, 19), Qt::Key_Delete);
    QTest::keyClick(Canal(1, 3), Qt::Key_Delete);
    EXPECT_EQ(Fondo(1, 3) + Elegidos(), blanco + "18");
    Pulsa("cmdcancel", frmGrid::unica.Cargado());
    EXPECT_TRUE(menu && !frmGrid::unica.Cargado() && store.ModoDigital == 0);
}

TEST_F(DigitalTest, ByHandTheChosenStandInTheOrderOfTheGroups)
{
    store.RevisionCfg = "1997";
    Clic((AbreGrid(), 2), 2);  // rows 5 and 1 of the table: channels 2 and 1
    Clic(1, 1);
    Da<QComboBox>("Combo1", frmGrid::unica.Cargado())->setCurrentIndex(2);
    Pulsa("cmdOK", frmGrid::unica.Cargado());
    frm19* v = frm19::unica.Cargado();
    ASSERT_TRUE(v && v->isVisible() && !menu && !frmGrid::unica.Cargado());
    EXPECT_EQ(avance, "[Preparando los canales digitales... 10 20 50 70 100]");
    EXPECT_EQ(U(v->windowTitle()), "Canales Digitales ");
    EXPECT_EQ(Texto("label1", v) + "|" + Texto("label2", v) + "|" + Texto("label3", v), "Señal 1|Señal 5|");
    EXPECT_EQ(Texto("lblanalog", v) + Texto("lbl_PS", v), "LARGA 3PRIMARIO");
    EXPECT_EQ(Texto("lblamar", v), std::to_string(2 * Valor(1, 3)) + ",000 A");
    EXPECT_EQ(Texto("lblizq", v) + Texto("lblder", v) + Texto("lbltiempo", v), "110 ms");
    const auto ops = Graba(v);
    const double w = v->Plot()->Ancho(), h = v->Plot()->Alto(), fila = (h - 200) / 24;
    const double paso = (w - 1400) / 960;
    const auto lineas = De(ops, Tipo::Linea), cajasPlot = De(ops, Tipo::Cajas);
    ASSERT_EQ(lineas.size() * 10 + cajasPlot.size(), 42U);  // two axes and the rows that hold something
    EsTrazo(lineas[0], 1200, 100, 1200, h - 100);
    EsTrazo(lineas[1], 1200, 600, w - 200, 600);
    for (const std::size_t n : {2U, 3U}) {
        const double base = 1200 + static_cast<double>(n) * fila;
        EsTrazo(lineas[n], 1200, base, w - 200, base);
        EsTrazo(cajasPlot[n - 2], n == 2 ? 1200 + 400 * paso : 1200, base,
                n == 2 ? 1200 + 500 * paso : w - 200, base - 75);
        EXPECT_EQ(cajasPlot[n - 2].color & 0xFFFFFFU, 0x0000FFU);
    }
    const auto curva = De(ops, Tipo::Poligonal).at(0);
    EXPECT_EQ(curva.color & 0xFFFFFFU, 0xFF0000U);  // of row 3
    EXPECT_NEAR(curva.xs[0], 1200 + paso, 0.05);
    EXPECT_NEAR(curva.ys[0], 600 - 600.0 * 2 * Valor(1, 3) / 120, 0.05);  // the largest is 3 * 20, primary
    v->Ventana().close();
    Asienta();
    EXPECT_TRUE(menu && store.EnPrimario);

    // A whole group then shows its own rows alone.
    v = AbreGrupo(2);
    ASSERT_TRUE(v);
    EXPECT_EQ(Texto("label1", v) + "|" + Texto("label19", v), "Señal 4|Señal 22");
    EXPECT_EQ(De(Graba(v), Tipo::Linea).size(), 21U);
    EXPECT_EQ(De(Graba(v), Tipo::Cajas).size(), 13U);
}

TEST_F(DigitalTest, NothingChosenShowsTheFirstChannelAlone)
{
    store.NumGruposDig = 0;
    ASSERT_TRUE(AbreGrid());
    EXPECT_FALSE(Canal(1, 0)->isEnabled() || Canal(16, 19)->isEnabled());
    Da<QComboBox>("Combo1", frmGrid::unica.Cargado())->setCurrentIndex(-1);
    Pulsa("cmdOK", frmGrid::unica.Cargado());
    frm19* v = frm19::unica.Cargado();
    ASSERT_TRUE(v);
    EXPECT_EQ(Texto("lblanalog", v) + Texto("label1", v), "I1");
    const auto ops = Graba(v);
    EXPECT_TRUE(De(ops, Tipo::Cajas).empty() && De(ops, Tipo::Linea).size() == 2);
    v->Descarga();

    Grupos(std::vector<int>(17, 1));
    ASSERT_TRUE(AbreGrid());
    EXPECT_FALSE(Canal(1, 0)->isEnabled());
    frmGrid::unica.Descarga();
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    frmElecdig::unica.Muestra();
    EXPECT_TRUE(menu && !frmElecdig::unica.Cargado());

    Registro(20);  // few enough to tell a sample's step on the screen
    store.MuestrasDig = Tabla2<std::int16_t>(20, 3);
    Grupos({1});
    v = AbreGrupo(1);
    ASSERT_TRUE(v);
    for (const char* linea : {"lnizq", "lnder"})
        EXPECT_NEAR(LineaX(linea, v), 1200 + (v->Plot()->Ancho() - 1400) / 20, 15) << linea;
}

TEST_F(DigitalTest, AGroupZoomsBetweenTheCursorsAndBack)
{
    store.RevisionCfg = "1997";
    frm19* v = AbreGrupo(1);
    ASSERT_TRUE(v && !menu);
    EXPECT_EQ(U(v->windowTitle()), "Canales Digitales GRUPO 1");
    const std::vector<int> todo{1, 1, 1, 960, 0, 1};
    SinZoom(v, Icono::Informacion, Icono::Informacion);
    EXPECT_EQ(Estado(v), todo);

    Cursores(v, 600, 400);
    EXPECT_EQ(Texto("lblizq", v) + " " + Texto("lblder", v) + " " + Texto("lbltiempo", v),
              "600 400 200,000 ms");
    EXPECT_EQ(Texto("lblcian", v), std::to_string(2 * Valor(400, 1)) + ",000 A") << "no side was applied";
    Pulsa("cmdzoom", v);
    EXPECT_EQ(Estado(v), (std::vector{400, 400, 400, 600, 1, 2}));
    EXPECT_EQ(De(Graba(v), Tipo::Poligonal).at(0).xs.size(), 200U) << "the sample under the cursor";
    Cursores(v, 400, 600);
    EXPECT_NEAR(LineaX("lnizq", v), 1200, 15);
    EXPECT_NEAR(LineaX("lnder", v), v->Plot()->Ancho() - 200, 15);
    Pulsa("cmdatras", v);
    EXPECT_EQ(De(Graba(v), Tipo::Poligonal).at(0).xs.size(), 959U) << "samples 2 on, by the stored level";
    Estira(v);
    EXPECT_EQ(Estado(v), todo);
    EXPECT_EQ(De(Graba(v), Tipo::Poligonal).at(0).xs.size(), 960U);
}

TEST_F(DigitalTest, NamesAndTheTextsOfTheReferenceScrollApart)
{
    store.CanalesDig(2).Nombre = "Señal larga";
    frm19* v = AbreGrupo(1);
    auto *nombres = Da<QScrollBar>("HScroll_Nombres", v), *analog = Da<QScrollBar>("HScroll_Analog", v);
    EXPECT_EQ((std::vector{nombres->maximum(), nombres->pageStep(), analog->maximum()}),
              (std::vector{11, 4, static_cast<int>(Texto("lblamar", v).size())}));
    nombres->setValue(3);
    EXPECT_EQ(Texto("label1", v) + "|" + Texto("label2", v) + "|" + Texto("lblanalog", v),
              "al 1|al larga|I1");
    analog->setValue(1);
    EXPECT_EQ(Texto("lblanalog", v), "1");
    QTest::mouseClick(Da<QLabel>("label2", v), Qt::LeftButton);
    EXPECT_EQ(Texto("label1", v) + "|" + Texto("label2", v), "al 1|Señal larga");
    Da<QScrollBar>("HScroll1", v)->setValue(7);
    EXPECT_EQ(Texto("lblamar", v), std::to_string(Valor(7, 1)) + ",000 A")
        << "a value that moves is shown whole";
    EXPECT_EQ(Texto("lblanalog", v), "1");
    QTest::mouseClick(Da<QLabel>("lblanalog", v), Qt::LeftButton);
    EXPECT_EQ(Texto("lblanalog", v), "I1");
    EXPECT_TRUE(Da<QLabel>("label3", v)->isVisible() && !Da<QLabel>("label4", v)->isVisible());
    Estira(v);
    EXPECT_EQ(nombres->value() + analog->value(), 0) << "the next step would jump";
}

TEST_F(DigitalTest, ATemplateThatDoesNotFitEndsInTheMenu)
{
    const auto menuSolo = [this] {
        Asienta();
        return menu && !frm19::unica.Cargado() && !frmElecdig::unica.Cargado() && !frmGrid::unica.Cargado() &&
               cajas.Pendientes() == 0;
    };
    cajas.Espera("La plantilla no tiene grupos digitales o no se ha elegido ninguno.", Icono::Ninguno);
    frmElecdig::unica.Muestra();
    Pulsa("cmdOK", frmElecdig::unica.Cargado());
    EXPECT_TRUE(menuSolo());
    store.CanalesDig(3).Numero = "4";
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    EXPECT_EQ(AbreGrupo(1), nullptr);
    EXPECT_TRUE(menuSolo());
    store.PlantillaAplicada = true;
    store.CanalesDig(9).Numero = "-1";
    cajas.Espera(Textos(246), Icono::Critico);
    EXPECT_TRUE(AbreGrid());
    Pulsa("cmdcancel", frmGrid::unica.Cargado());
    EXPECT_TRUE(menuSolo());
    store.CanalesDig(3).Numero = "x";
    cajas.Espera("Error 13: Type mismatch", Icono::Critico);
    EXPECT_EQ(AbreGrid(), nullptr);
    EXPECT_TRUE(menuSolo());
    Grupos({20});
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    EXPECT_EQ(AbreGrupo(1), nullptr);
    EXPECT_TRUE(menuSolo() && avance.ends_with(']'));
    store.MuestrasDig = {};
    Grupos({1});
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    EXPECT_EQ(AbreGrupo(1), nullptr);
    EXPECT_TRUE(menuSolo());
}

TEST_F(DigitalTest, APageShowsAnotherStretchOrChannelThanTheView)
{
    store.Muestras(500, 3) = 60000.0F;  // the others lie flat beside it
    frm19* v = AbreGrupo(1, 3);
    Cursores(v, 451, 651);
    Pulsa("cmdzoom", v);
    Cursores(v, 471, 481);
    const prueba::Imprime imprime(2);
    const prueba::Grabadora* impresora = imprime.impresora.get();
    Pulsa("pctimpresora", v);
    using Op = prueba::OperacionPagina;
    EXPECT_EQ(impresora->De(Op::Tipo::Pagina).size(), 1U);
    const auto cajasPapel = impresora->De(Op::Tipo::Caja);
    ASSERT_EQ(cajasPapel.size(), 4U);
    const double ancho = 16838.0 * (0.92 - 0.15);
    EXPECT_NEAR(cajasPapel[0].xs[1] - cajasPapel[0].xs[0], ancho * 49 / 200, 1.0);
    EXPECT_NEAR(cajasPapel[1].xs[1] - cajasPapel[1].xs[0], ancho, 1.0);
    for (const std::string& texto : {std::string("GRUPO 1"), std::string("LARGA 3"), std::string("10,000 ms"),
                                     "Muestra n.º 471  " + std::to_string(Valor(471, 3)) + ",000 A",
                                     "Muestra n.º 481  " + std::to_string(Valor(481, 3)) + ",000 A"})
        EXPECT_EQ(impresora->Primero(texto).texto, texto);
    EXPECT_LT(impresora->Primero("Muestra n.º 471").xs[0], impresora->Primero("Muestra n.º 481").xs[0]);
    auto ys = std::ranges::find(impresora->ops, 200U, [](const auto& o) { return o.xs.size(); })->ys;
    std::ranges::sort(ys);
    EXPECT_TRUE(ys[199] - ys[1] < 5.0 && ys[1] - ys[0] > 500.0) << "the curve of another channel";
    const auto orden = [&](Op::Tipo tipo) {
        return std::ranges::find(impresora->ops, tipo, &Op::tipo) - impresora->ops.begin();
    };
    EXPECT_TRUE(orden(Op::Tipo::Recorte) < orden(Op::Tipo::Caja) &&
                orden(Op::Tipo::Caja) < orden(Op::Tipo::SinRecorte))
        << "bars beyond the plot, or the next page clipped";
}

}  // namespace
}  // namespace veldix
