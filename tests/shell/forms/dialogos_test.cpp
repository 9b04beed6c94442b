#include "shell/forms/Cancelar.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/gasolino.h"
#include "shell/forms/gasolino_ondas.h"
#include "support/escenario.h"

namespace veldix {
namespace {

using Dialogos = prueba::Escenario;

TEST_F(Dialogos, AWindowButtonDoesNotCancelOrRenewsAsTheOwnButtonDoes)
{
    for (const bool boton : {false, true}) {
        store.CancelaImpresion = false;
        Cancelar& cancelar = Cancelar::unica.CargaNueva();
        boton ? cancelar.findChild<QPushButton*>()->click() : static_cast<void>(cancelar.close());
        EXPECT_TRUE(store.CancelaImpresion) << boton;

        int veces = 0;
        Mensaje& mensaje = Mensaje::unica.CargaNueva([&] { veces += Mensaje::unica.Cargado() ? 1 : 100; });
        boton ? mensaje.findChild<QPushButton*>()->click() : static_cast<void>(mensaje.close());
        EXPECT_EQ(veces, boton ? 1 : 0);
        EXPECT_FALSE(Cancelar::unica.Cargado() || Mensaje::unica.Cargado());
    }
}

TEST_F(Dialogos, AMissingOrBrokenFilmStopsTheGauge)
{
    const prueba::Carpeta carpeta;
    std::filesystem::create_directories(carpeta.Ruta("rota/Iconos"));
    carpeta.Escribe("rota/Iconos/onda.avi", "RIFF");
    const std::pair<std::string, bool> casos[] = {{carpeta.Ruta("EXE"), false},
                                                  {carpeta.Ruta("rota/EXE"), false},
                                                  {VELDIX_SOURCE "/runtime/VELDIX/EXE", true}};
    for (const auto& [programa, pelicula] : casos) {
        SCOPED_TRACE(programa);
        store.RutaPrograma = programa;
        gasolino_ondas& form = gasolino_ondas::unica.CargaNueva(QStringLiteral("Preparando"));
        EXPECT_EQ(form.findChild<Animacion*>()->isVisible(), pelicula);
        form.Pon(60);
        EXPECT_EQ(form.findChild<QProgressBar*>()->value(), 60);
    }
}

TEST_F(Dialogos, TheGaugeStandsElsewhereOrCutsItsCaption)
{
    gasolino& form = gasolino::unica.CargaNueva();
    EXPECT_EQ(form.geometry().bottomLeft(), QPoint(7, area->height() - 7));  // 100 and 96 twips
    const auto* pista = form.findChild<QLabel*>("Label1");
    const auto* lleno = form.findChild<QLabel*>("Label2");
    form.LlenarGasolino(true, 5);
    EXPECT_EQ(lleno->text(), QStringLiteral("5 %"));
    EXPECT_EQ(lleno->width(), pista->width() / 20);
    EXPECT_LE(lleno->fontMetrics().horizontalAdvance(lleno->text()), lleno->contentsRect().width());
    form.LlenarGasolino(true, 96);
    EXPECT_EQ(lleno->text(), QStringLiteral("5 %"));
    form.LlenarGasolino(false, 0);
    EXPECT_FALSE(lleno->isVisible());
}

}  // namespace
}  // namespace veldix
