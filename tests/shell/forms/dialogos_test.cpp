#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QTest>
#include <QVBoxLayout>

#include <functional>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "shell/forms/Cancelar.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/gasolino.h"
#include "shell/forms/gasolino2.h"
#include "shell/forms/gasolino_ondas.h"
#include "support/soporte.h"

namespace veldix {
namespace {

constexpr int kMarco = 8;  // pixels that a window frame may shift a centre by

/// A main window with an area and a strip of 40 pixels below it.
class DialogosTest : public testing::Test {
protected:
    DialogosTest()
    {
        store = RecordStore{};
        auto* centro = new QWidget;
        auto* capas = new QVBoxLayout(centro);
        capas->setContentsMargins(0, 0, 0, 0);
        capas->setSpacing(0);
        capas->addWidget(area, 1);
        franja->setFixedHeight(40);
        capas->addWidget(franja);
        principal.setCentralWidget(centro);
        principal.resize(800, 600);
        principal.show();
        escena.principal = &principal;
        escena.area = area;
    }
    ~DialogosTest() override
    {
        gasolino::unica.Descarga();
        gasolino2::unica.Descarga();
        gasolino_ondas::unica.Descarga();
        Mensaje::unica.Descarga();
        Cancelar::unica.Descarga();
        escena = Escena{};
        store = RecordStore{};
    }

    QMdiArea* area = new QMdiArea;
    QWidget* franja = new QWidget;
    QMainWindow principal;
    prueba::RespondeCajas cajas;
};

template <class Control>
Control* Da(QWidget& form, const char* nombre)
{
    return form.findChild<Control*>(QLatin1String(nombre));
}

TEST_F(DialogosTest, CancelarPoneSuBanderaComoQuieraQueSeCierre)
{
    const struct {
        const char* nombre;
        std::function<void(Cancelar&)> cierra;
    } casos[] = {
        {"button", [](Cancelar& c) { QTest::mouseClick(Da<QPushButton>(c, "cdmCancelar"), Qt::LeftButton); }},
        {"close box", [](Cancelar& c) { c.close(); }},
        {"Escape", [](Cancelar& c) { QTest::keyClick(&c, Qt::Key_Escape); }},
        {"the program", [](Cancelar& c) { c.Descarga(); }},
    };
    for (const auto& caso : casos) {
        Cancelar& form = Cancelar::unica.CargaNueva();
        form.show();
        store.CancelaImpresion = false;
        caso.cierra(form);
        EXPECT_TRUE(QTest::qWaitFor([] { return Cancelar::unica.Cargado() == nullptr; }, 2000))
            << caso.nombre;
        EXPECT_TRUE(store.CancelaImpresion) << caso.nombre;
    }
}

TEST_F(DialogosTest, SoloElBotonDeMensajeRenuevaLaConversion)
{
    int veces = 0;
    const auto renueva = [&] {
        EXPECT_TRUE(Mensaje::unica.Cargado()) << "the conversion is renewed first";
        ++veces;
    };
    Mensaje::unica.CargaNueva(renueva).show();
    Mensaje::unica.Cargado()->close();
    EXPECT_EQ(veces, 0);
    Mensaje& form = Mensaje::unica.CargaNueva(renueva);
    form.show();
    QTest::mouseClick(Da<QPushButton>(form, "OK"), Qt::LeftButton);
    EXPECT_EQ(veces, 1);
    EXPECT_FALSE(Mensaje::unica.Cargado());
}

TEST_F(DialogosTest, GasolinoOndasSigueSinPelicula)
{
    const prueba::Carpeta carpeta;
    std::filesystem::create_directories(carpeta.Ruta("EXE"));
    std::filesystem::create_directories(carpeta.Ruta("rota/Iconos"));
    carpeta.Escribe("rota/Iconos/onda.avi", "RIFF");
    const struct {
        std::string programa;
        bool pelicula;
    } casos[] = {
        {"", false},
        {carpeta.Ruta("EXE"), false},
        {carpeta.Ruta("rota/EXE"), false},
        {VELDIX_SOURCE "/runtime/VELDIX/EXE", true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.programa);
        store.RutaPrograma = caso.programa;
        gasolino_ondas& form = gasolino_ondas::unica.CargaNueva(QStringLiteral("Preparando"));
        EXPECT_EQ(Da<Animacion>(form, "Animation1")->isVisible(), caso.pelicula);
        EXPECT_EQ(Da<QProgressBar>(form, "ProgressBar1")->value(), 10);
        form.Pon(60);
        EXPECT_EQ(Da<QProgressBar>(form, "ProgressBar1")->value(), 60);
        const QPoint centro = area->mapToGlobal(area->rect().center());
        EXPECT_LE((form.geometry().center() - centro).manhattanLength(), kMarco);
    }
}

TEST_F(DialogosTest, Gasolino2SeCentraSobreLaConversion)
{
    QWidget conversion;
    conversion.setGeometry(40, 60, 500, 300);
    for (QWidget* sobre : {&conversion, static_cast<QWidget*>(nullptr)}) {
        const gasolino2& form = gasolino2::unica.CargaNueva(sobre);
        EXPECT_TRUE(form.isVisible());
        const QWidget& bajo = sobre ? *sobre : principal;
        const QPoint centro = bajo.mapToGlobal(bajo.rect().center());
        EXPECT_LE((form.geometry().center() - centro).manhattanLength(), kMarco);
    }
}

TEST_F(DialogosTest, GasolinoCreceSobreLaFranja)
{
    gasolino& form = gasolino::unica.CargaNueva();
    EXPECT_EQ(form.x(), 7);                                    // 100 twips
    EXPECT_EQ(form.geometry().bottom() + 1, franja->y() - 6);  // 96 twips
    const auto* pista = Da<QLabel>(form, "Label1");
    const auto* lleno = Da<QLabel>(form, "Label2");
    form.LlenarGasolino(false, 0);
    EXPECT_FALSE(lleno->isVisible());
    form.LlenarGasolino(true, 5);
    EXPECT_TRUE(lleno->isVisible());
    EXPECT_EQ(lleno->text(), QStringLiteral("5 %"));
    EXPECT_EQ(lleno->width(), pista->width() / 20);
    EXPECT_LE(lleno->fontMetrics().horizontalAdvance(lleno->text()), lleno->contentsRect().width());
    form.LlenarGasolino(true, 96);
    EXPECT_EQ(lleno->text(), QStringLiteral("5 %")) << "the last drawn state stays";
    double twips = 0;
    form.PintaGasolino(0, 50, twips);
    EXPECT_EQ(twips, 15 * pista->width() / 2.0);
    EXPECT_EQ(lleno->width(), (pista->width() + 1) / 2);
    form.LlenarGasolino(false, -20);
    EXPECT_EQ(lleno->width(), 0);
}

}  // namespace
}  // namespace veldix
