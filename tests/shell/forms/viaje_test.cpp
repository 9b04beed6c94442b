#include <QCheckBox>
#include <QLabel>

#include <cmath>
#include <numbers>

#include "analysis/forms/frmFasecuencias.h"
#include "analysis/forms/frmFases.h"
#include "analysis/forms/frmSecuencias.h"
#include "platform/forms/ListaCarpetas.h"
#include "shell/forms/Cancelar.h"
#include "support/arbol.h"
#include "support/imprime.h"
#include "templates/forms/frmPlantilla.h"
#include "waves/forms/frmNewOndas.h"
#include "waves/forms/frmTodoanalog.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// From the file dialog to the diagram and back, with the mouse and the keys.
class Viaje : public prueba::Arbol {
protected:
    Viaje()
    {
        Seno("seno", "ASCII");
        c.Escribe("t.cnf",
                  ConFinales("ver 1.1|MI LINEA|ANALOGICOS| 3 |1%Ia%%A$|2%Ib%%A$|3%Ic%%A$|TRIFASICOS| 1 |"
                             "1%2%3%Intensidades%1$|-----"));
        Arranca();
    }

    /// Two cycles of a balanced system of 100 A, 20 samples a cycle, whole numbers in thousandths.
    void Seno(const std::string& nombre, const std::string& formato) const
    {
        std::string cfg = "SE,R|3,3A,0D|", dat;
        for (const char* canal : {"1,IA", "2,IB", "3,IC"})
            cfg += std::string(canal) + ",,,A,0.001,0,0,-99999,99999|";
        for (int s = 1; s <= 40; ++s) {
            dat += (s > 1 ? "|" : "") + std::to_string(s) + "," + std::to_string((s - 1) * 1000);
            for (int fase = 0; fase < 3; ++fase) {
                const double angulo = 2.0 * std::numbers::pi * ((s - 1) / 20.0 - fase / 3.0);
                dat += "," + std::to_string(std::lround(141421.356 * std::sin(angulo)));
            }
        }
        Registro(nombre, cfg + "50|1|1000,40|fecha|fecha|" + formato, dat.c_str());
    }
    /// Chooses the template of the tree in the dialog that stands, by the keyboard alone.
    void EligePlantilla()
    {
        frmPlantilla* form = frmPlantilla::unica.Cargado();
        if (!form) throw std::runtime_error("no dialog of templates");
        auto* lista = Hijo<ListaFicheros>("File1", form);
        QTest::keyClick(lista, Qt::Key_Down);
        EXPECT_EQ(store.FicheroCnf, c.Ruta("t.cnf"));
        QTest::keyClick(lista, Qt::Key_Return);
        QTest::qWait(1);
    }
    /// The chooser with the first group ticked in the named columns, accepted by Enter.
    void Fasores(std::initializer_list<const char*> cajasMarcadas)
    {
        Accion("mnuFasores")->trigger();
        frmFasecuencias* form = frmFasecuencias::unica.Cargado();
        if (!form) throw std::runtime_error("no chooser");
        for (const char* caja : cajasMarcadas)
            QTest::keyClick(Hijo<QCheckBox>(caja, form), Qt::Key_Space);
        QTest::keyClick(Hijo<QCheckBox>("fas1", form), Qt::Key_Return);
        QTest::qWait(1);
        EXPECT_FALSE(frmFasecuencias::unica.Cargado());
    }
};

TEST_F(Viaje, RecordDoesNotReachItsPhasorsOrTheyCannotBeLeft)
{
    const prueba::Separa punto(".", "");
    AbreRegistro("d/seno.dat");
    EXPECT_FALSE(Accion("mnuFasores")->isEnabled());
    EligePlantilla();
    EXPECT_FALSE(frmPlantilla::unica.Cargado());
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled() && Accion("mnuInform")->isEnabled());
    EXPECT_EQ(store.NombreEstacion, "MI LINEA");
    EXPECT_NE(Ini("ficher.ini").find(c.Ruta("t.cnf")), std::string::npos) << "session not written";

    Accion("mnuPlantilla")->trigger();  // stands with the menu, and comes back with it
    Fasores({"fas1"});
    EXPECT_TRUE(frmPlantilla::unica.Cargado() && !frmPlantilla::unica.Cargado()->isVisible());
    frmFases* fases = frmFases::unica.Cargado();
    ASSERT_TRUE(fases && fases->Ventana().isVisible());
    EXPECT_FALSE(MenuALaVista());
    EXPECT_EQ(Hijo<QLabel>("LblCorrienteA", fases)->text(), "Ia: 100. @ -18.A");
    EXPECT_EQ(Hijo<QLabel>("lblNumero", fases)->text(), Q(Textos(266) + "1"));
    Pulsa("cmdSalir", nullptr);
    EXPECT_FALSE(frmFases::unica.Cargado());
    EXPECT_TRUE(MenuALaVista());
    EXPECT_TRUE(frmPlantilla::unica.Cargado()->isVisible());
    frmPlantilla::unica.Descarga();

    store.Muestras(1, 1) = 1e6F;  // the transform is not run again
    Fasores({"fas1", "sec1"});
    frmSecuencias* secuencias = frmSecuencias::unica.Cargado();
    ASSERT_TRUE(secuencias && frmFases::unica.Cargado());
    EXPECT_EQ(Hijo<QLabel>("lblCorSecPos", secuencias)->text(), "Ia1: 99.999 @ -18.A")
        << "0.866, not its root";
    QTest::keyClick(secuencias->Barra(), Qt::Key_PageDown);
    EXPECT_EQ(frmFases::unica.Cargado()->Barra()->value(), 120);
    Pulsa("cmdSalir", nullptr);
    EXPECT_FALSE(frmFases::unica.Cargado() || frmSecuencias::unica.Cargado());
    EXPECT_TRUE(MenuALaVista());
    Accion("mnuCerrarComtrade")->trigger();
    EXPECT_TRUE(store.FasoresDFT.Vacia() && store.Secuencias.Vacia() && !store.DFTHecha);
}

/// A printer whose first page is long enough for a press of `Cancelar`, which waits in the queue.
class Lenta : public prueba::Grabadora {
public:
    void QuitaRecorte() override
    {
        Grabadora::QuitaRecorte();
        if (++paginas != 1) return;
        auto* boton = Cancelar::unica.Cargado()->findChild<QPushButton*>("cdmCancelar");
        for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(
                boton, new QMouseEvent(tipo, {5, 5}, boton->mapToGlobal(QPointF{5, 5}), Qt::LeftButton,
                                       Qt::LeftButton, {}));
    }
    int paginas = 0;
};

TEST_F(Viaje, APressOfCancelarWhileAPageIsDrawnIsLost)
{
    AbreRegistro("d/seno.dat");
    EligePlantilla();
    const auto impresora = std::make_shared<Lenta>();
    const prueba::Imprime imprime(3, impresora);
    Accion("mnuCanalog")->trigger();
    auto* lista = Hijo<QListWidget>("List1", frmNewOndas::unica.Cargado());
    Q_EMIT lista->itemDoubleClicked(lista->item(0));
    Pulsa("cmdtodo", frmNewOndas::unica.Cargado());
    ASSERT_TRUE(frmTodoanalog::unica.Cargado());
    Pulsa("pctimpresora", frmTodoanalog::unica.Cargado());
    EXPECT_EQ(impresora->paginas, 1);
    EXPECT_FALSE(Cancelar::unica.Cargado());
    Pulsa("pctimpresora", frmTodoanalog::unica.Cargado());
    EXPECT_EQ(impresora->paginas, 4);  // nothing is left of the press
    Pulsa("cmdSalir", nullptr);
    EXPECT_TRUE(MenuALaVista());
}

/// A template of more channels than the record, which the menu brings up beside the chooser of waves.
TEST_F(Viaje, AChooserOutlivesTheChannelsThatATemplateTookAway)
{
    c.Escribe("t.cnf", ConFinales("ver 1.1|X|ANALOGICOS|4|1%a%%A$|2%b%%A$|3%c%%A$|4%d%%A$|-----"));
    AbreRegistro("d/seno.dat");
    frmPlantilla::unica.Descarga();
    Accion("mnuCanalog")->trigger();
    ASSERT_TRUE(frmNewOndas::unica.Cargado());
    Accion("mnuPlantilla")->trigger();
    cajas->Espera(Textos(253), Icono::Critico);
    EligePlantilla();
    EXPECT_EQ(cajas->Pendientes(), 0U);
    EXPECT_FALSE(frmNewOndas::unica.Cargado());
    EXPECT_EQ(store.NombreEstacion, "SE");
}

}  // namespace
}  // namespace veldix
