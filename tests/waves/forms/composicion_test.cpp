#include "waves/forms/frmNewCompanalog.h"
#include "waves/forms/frmVerCmpang.h"
#include "waves/forms/registro_ondas.h"

namespace veldix {
namespace {

using prueba::Valor;

class ComposicionTest : public prueba::RegistroOndas {
protected:
    /// Double-clicks rows of the list from slot `ranura` on.
    static void Llena(int ranura, std::initializer_list<int> filas)
    {
        if (!frmNewCompanalog::unica.Cargado()) frmNewCompanalog::unica.CargaNueva().show();
        QWidget* elector = frmNewCompanalog::unica.Cargado();
        QTest::mouseClick(Da<QLabel>("lblpunt" + std::to_string(ranura), elector), Qt::LeftButton);
        Elige(elector, filas);
    }
    static void Acepta() { Pulsa("cmdOK", frmNewCompanalog::unica.Cargado()); }
};

TEST_F(ComposicionTest, NothingChosenStaysAndCancelLeavesTheMenu)
{
    frmNewCompanalog::unica.CargaNueva().show();
    cajas.Espera("No se ha elegido nada para visualizar.", Icono::Critico);
    Acepta();
    ASSERT_TRUE(frmNewCompanalog::unica.Cargado() && menu);
    Pulsa("cmdcancel", frmNewCompanalog::unica.Cargado());
    EXPECT_FALSE(frmNewCompanalog::unica.Cargado());
}

TEST_F(ComposicionTest, ThirdWindowAloneIsCaptionedAsTheFirstAndCurvesShareAScale)
{
    Llena(13, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(U(Da<QLabel>("lbl18", frmNewCompanalog::unica.Cargado())->text()), "6");
    Acepta();
    EXPECT_EQ(avance, "[Preparando las ondas... 30 80 100]");
    ASSERT_EQ(Abiertas(), 1);
    frmVerCmpang* v = store.VentanaComp(3);
    ASSERT_TRUE(v && store.CompAbierta && !menu && store.NumVentanasComp == 1);
    EXPECT_EQ(U(v->windowTitle()), "Ventana 1");
    const auto curvas = De(Graba(v), Tipo::Poligonal);
    ASSERT_EQ(curvas.size(), 6U);
    const double w = v->Plot()->Ancho(), h = v->Plot()->Alto(), escala = (h - 2 * h / 50) / 2 / 120;
    EXPECT_NEAR(curvas[1].xs.back(), 959 * w * 48 / 50 / 960 + w / 50, 0.1);
    EXPECT_NEAR(curvas[1].ys.back(), h / 2 - Valor(960, 3) * escala, 0.1);  // row 2 is column 3
    const std::uint32_t colores[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x000080, 0x800080, 0xFF00FF};
    for (std::size_t k = 0; k < 6; ++k) {
        EXPECT_EQ(curvas[k].color & 0xFFFFFFU, colores[k]) << k;
        const auto* canto = Da<QLabel>("lblam" + std::to_string(k + 1), v)->findChild<QLabel*>();
        EXPECT_EQ(canto->palette().window().color().rgb() & 0xFFFFFFU, colores[k]) << k;
    }
    Da<QScrollBar>("HScroll2", v)->setValue(22);
    EXPECT_EQ(Texto("Label1", v) + Texto("Label2", v), " No.: 1 No.: 22");
    EXPECT_EQ(Texto("lblci2", v), "I2: " + std::to_string(Valor(22, 3)) + ",000 A");
    EXPECT_EQ(Texto("lblam2", v), "I2: " + std::to_string(Valor(1, 3)) + ",000 A");
    EXPECT_EQ(Texto("lblms", v), "21,000 ms");
    Da<QScrollBar>("HScroll_Cian", v)->setValue(4);
    EXPECT_EQ(Texto("lblci2", v), std::to_string(Valor(22, 3)) + ",000 A");
    EXPECT_TRUE(Texto("lblam2", v).starts_with("I2: "));
    QTest::mouseClick(Da<QLabel>("lblci2", v), Qt::LeftButton);
    EXPECT_TRUE(Texto("lblci2", v).starts_with("I2: "));
}

TEST_F(ComposicionTest, WindowsZoomByThemselvesAndCloseByThemselves)
{
    Llena(6, {1, 1, 2});  // the second double click goes to the next window, where the name is new
    Llena(13, {3});
    Acepta();
    ASSERT_EQ(Abiertas(), 3);
    frmVerCmpang *una = store.VentanaComp(1), *otra = store.VentanaComp(2);
    EXPECT_EQ(otra->Canales(), (std::vector<int>{1, 2}));
    EXPECT_EQ(U(Da<QPushButton>("cmdadel", otra)->text()), ">>");
    EXPECT_EQ(U(Da<QPushButton>("cmdatras", otra)->text()), "<<");
    store.FactorZoomY = 3.0F;  // of the individual windows
    const int y = otra->Plot()->height() / 4;
    Amplia(otra, {200, y}, {400, y + 20});
    EXPECT_EQ(otra->Zoom().NivelZoom, 1);
    EXPECT_EQ(una->Zoom().NivelZoom, 0);
    EXPECT_EQ(store.FactorZoomY, 3.0F);
    const std::vector<int> visto = Estado(otra);
    Da<QScrollBar>("HScroll2", otra)->setValue(visto[3]);
    EXPECT_EQ(CurvaImpresa(otra).xs.size(), static_cast<std::size_t>(visto[3] - visto[0] + 1));
    Pulsa("cmdzoom", otra);
    EsperaAmpliar();
    cajas.Espera("El tramo elegido es demasiado corto: debe abarcar al menos dos muestras.",
                 Icono::Informacion);
    Arrastra(otra, {300, y}, {300, y + 20});
    const QRect lugar = una->Ventana().geometry();
    otra->Ventana().close();
    Asienta();
    EXPECT_EQ(store.NumVentanasComp, 2);
    EXPECT_EQ(store.VentanaComp(2), nullptr);
    EXPECT_EQ(store.MatrizComp(2, 10), 0);
    EXPECT_EQ(una->Ventana().geometry(), lugar);
    EXPECT_FALSE(menu);
    una->Ventana().close();
    store.VentanaComp(3)->Ventana().close();
    Asienta();
    EXPECT_TRUE(menu);
}

TEST_F(ComposicionTest, AFailingWindowLeavesTheOthersAndTheReferenceIsApplied)
{
    store.RevisionCfg = "1997";
    store.Canales(4).Numero = "99";
    Llena(1, {4});
    Llena(7, {5});
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Acepta();
    EXPECT_EQ(Abiertas(), 1);
    EXPECT_EQ(store.VentanaComp(1), nullptr);
    ASSERT_TRUE(store.VentanaComp(2) && !menu && store.NumVentanasComp == 1);
    EXPECT_EQ(store.Muestras(22, 5), static_cast<float>(2 * Valor(22, 5)));
    EXPECT_EQ(Texto("lbl_PS", store.VentanaComp(2)), "PRIMARIO");
}

}  // namespace
}  // namespace veldix
