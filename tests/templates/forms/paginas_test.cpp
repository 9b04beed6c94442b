#include <QTest>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/avance.h"
#include "record/leer_cfg.h"
#include "support/soporte.h"
#include "templates/forms/frmPlantilla.h"
#include "templates/forms/frmSalvaPlan.h"
#include "templates/forms/frmTrifasic.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// A folder of templates, a record of three analog channels, and the forms, of which one is in sight.
class Paginas : public testing::Test {
protected:
    Paginas()
    {
        store = RecordStore{};
        CargaTextos(VELDIX_SOURCE "/runtime/VELDIX/ini/vdotro.ini");
        std::filesystem::create_directories(c.Ruta("pla/sub"));
        store.DirPlantillas = c.Ruta("pla");
        escena.activaPlantilla = [this] { hecho += "menu "; };
        ganchosRegistro.EscribeSesion = [this] { hecho += "session "; };
        store.FicheroCfg = c.Escribe("r.cfg", ConFinales("REC,1|3,3A,0D|1,VR,A|2,IR,A|3,UR,A|50|1|1000,9"));
        LeerCfg(store);
        store.RegistroAbierto = true;
        c.Escribe("pla/p.cnf", ConFinales(kCabeza + kDigitales));
        c.Escribe("pla/n.cnf", ConFinales(kCabeza + "|TRIFASICOS|1|7%8%9%L%$"));
        c.Escribe("pla/v10.CNF", "ver 1.0");
        c.Escribe("pla/mal.Cnf", "");
        frmPlantilla::unica.Muestra();
    }
    ~Paginas() override
    {
        frmPlantilla::unica.Descarga();
        frmTrifasic::unica.Descarga();
        frmSalvaPlan::unica.Descarga();
    }
    std::string Leida(const char* nombre) const { return prueba::LeeTodo(c.Ruta("pla/") + nombre); }
    template <class Control>
    static Control* Da(const std::string& nombre)
    {
        for (const QWidget* w : QApplication::topLevelWidgets())
            if (auto* control = w->isVisible() ? w->findChild<Control*>(Q(nombre)) : nullptr) return control;
        throw std::runtime_error("no " + nombre);
    }
    static void Pulsa(const char* boton) { QTest::mouseClick(Da<QPushButton>(boton), Qt::LeftButton); }
    static void Elige(const char* fichero, const char* boton)
    {
        auto* lista = Da<QListWidget>("File1");
        lista->setCurrentItem(lista->findItems(Q(fichero), Qt::MatchExactly).value(0));
        Pulsa(boton);
    }
    static void Teclea(const char* caja, const char* texto, const char* boton = nullptr)
    {
        Da<QLineEdit>(caja)->clear();
        QTest::keyClicks(Da<QLineEdit>(caja), texto);
        if (boton) Pulsa(boton);
    }
    static void Asigna(int grupo, std::initializer_list<int> canales)
    {
        auto* l = Da<QListWidget>("ListTrif" + std::to_string(grupo));
        for (const int canal : canales) {
            const QPoint p = l->visualItemRect(l->item(canal - 1)).center();
            QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, p);
            QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, p);
        }
    }
    /// Numbers of a group's phases, a star before the marked one.
    static std::string Puestas(const std::string& grupo)
    {
        std::string s;
        for (const char* p : {"1", "2", "3"})
            s += (Da<QLabel>("lblpunt" + grupo + p)->palette().window() == QBrush(Qt::yellow) ? "*" : ",") +
                 U(Da<QLabel>("lbl" + grupo + p)->text());
        return s;
    }
    const std::string kCabeza = "ver 1.1|SE|ANALOGICOS| 4 |1%IA%%A$|2%IB%%A$|3%IC%%A$|4%IA%%A$";
    const std::string kDigitales = "|DIGITALES|3| 2 |***|G1|02|4%a$|5%b$|***|G2| 1 |9%c$|-----";
    prueba::Carpeta c;
    prueba::RespondeCajas cajas;
    std::string hecho;
};

TEST_F(Paginas, SelectionChecksInAnotherOrderOrLeavesAnotherState)
{
    for (const int texto : {242, 147, 147, 172, 253})
        cajas.Espera(Textos(texto), Icono::Critico);
    Pulsa("cmdModif");
    Elige("mal.Cnf", "cmdModif");
    EXPECT_EQ(store.CanalesPlan(1).Nombre, "VR");
    Pulsa("cmdBuscar");
    EXPECT_TRUE(store.PlantillaAplicada && store.CanalesPlan.Vacia());
    Elige("v10.CNF", "cmdBuscar");
    Elige("p.cnf", "cmdBuscar");
    EXPECT_EQ(store.CanalesPlan(2).Nombre + store.EstacionPlan, "IRREC") << "the record's own channels";
    EXPECT_TRUE(store.PlantillaNoValida && store.NumCanalPlan == 4 && hecho.empty());
    store.RegistroAbierto = false;
    std::filesystem::remove(c.Ruta("pla/p.cnf"));  // an empty set is applied
    QTest::keyClick(Da<QListWidget>("File1"), Qt::Key_Return);
    EXPECT_TRUE(!frmPlantilla::unica.Cargado() && store.NumCanalAnalog == 0 && hecho == "session menu ");
}

TEST_F(Paginas, SlotsDifferFromTheWorkedExampleOrAMissingPhasePasses)
{
    Elige("p.cnf", "cmdModif");
    Asigna(1, {1});  // not in use: takes nothing
    Teclea("txtnumTrif", "1");
    QTest::mouseClick(Da<QLabel>("lblpunt22"), Qt::LeftButton);  // nor does its row
    EXPECT_EQ(Puestas("1") + Puestas("2"), "*,,,,,");
    Asigna(1, {1, 4, 2, 3, 3});
    EXPECT_EQ(Puestas("1"), ",1,2*3");
    QTest::mouseClick(Da<QLineEdit>("grp11"), Qt::LeftButton);
    Asigna(1, {3, 2, 4});
    Pulsa("cmdOK");
    EXPECT_EQ(store.TrifasicPlan(1).fases, (std::array<std::int16_t, 3>{3, 4, 3}));
    Pulsa("cmdvolver");
    EXPECT_EQ(Puestas("1"), ",3,4*3") << "the page comes back as it was left";
    QTest::mouseDClick(Da<QLineEdit>("grp12"), Qt::LeftButton);
    for (int i = 0; i < 3; ++i)
        cajas.Espera("Grupo 1 : " + Textos(273), Icono::Informacion);
    Pulsa("cmdOK");
    Pulsa("cmdvolver");
    EXPECT_EQ(store.TrifasicPlan(1).fases, (std::array<std::int16_t, 3>{3, 0, 0}));
    Asigna(1, {1});
    Teclea("txtnumTrif", "2", "cmdOK");  // it is group 2 that lacks them
    EXPECT_EQ(Puestas("1") + Puestas("2"), "*3,1,3*,,") << "a new count marks the first phases";
}

TEST_F(Paginas, CountNameOrFactorIsTakenOrWarnedOfWrongly)
{
    Elige("p.cnf", "cmdModif");
    for (const int texto : {187, 87, 187, 176, 176, 177, 186, 87})
        cajas.Espera(Textos(texto), Icono::Critico);
    Teclea("txtnumTrif", "-1");
    Teclea("txtnumTrif", "4x");
    for (const int grupo : {1, 2, 3, 4})
        Asigna(grupo, {1, 2, 3});
    Teclea("nbTrif4", "%$");
    const prueba::Separa coma(",", ".");
    Teclea("txtFactor4", "-1,5");
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Teclea("txtnumTrif", "5", "cmdOK");
    EXPECT_TRUE(!frmTrifasic::unica.Cargado() && store.TrifasicPlan.Cuantos() == 5);
}

TEST_F(Paginas, SavedTemplateDiffersFromTheOneThatWasModified)
{
    Elige("p.cnf", "cmdModif");
    Teclea("txtnumTrif", "1");
    Asigna(1, {1, 2, 3});
    Teclea("nbTrif1", "L", "cmdOK");
    cajas.Espera(Textos(243), Icono::Ninguno);
    cajas.Espera(Textos(138), Icono::Pregunta, Botones::AceptarCancelar, false);
    Pulsa("cmdOK");
    Elige("p.cnf", "cmdOK");
    EXPECT_EQ(Leida("p.cnf"), ConFinales(kCabeza + kDigitales));
    EXPECT_TRUE(frmTrifasic::unica.Cargado());
    c.Escribe("pla/sub/otra.cnf", "old");
    cajas.Espera(Textos(138), Icono::Pregunta, Botones::AceptarCancelar, true);
    Teclea("Text2", "sub/otra", "cmdOK");
    EXPECT_EQ(Leida("sub/otra.cnf"), ConFinales(kCabeza + "|TRIFASICOS| 1 |1%2%3%L%$" + kDigitales));
    store.DirPlantillas = c.Ruta("pla/sub");
    frmPlantilla::unica.Cargado()->Form_Activate();
    Elige("otra.cnf", "cmdModif");
    EXPECT_EQ(Puestas("1") + U(Da<QLineEdit>("nbTrif1")->text()), "*1,2,3L") << "read back";
    Pulsa("cmdOK");
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Teclea("Text2", "falta/x", "cmdOK");
    EXPECT_FALSE(frmTrifasic::unica.Cargado() || frmSalvaPlan::unica.Cargado());
}

TEST_F(Paginas, GoingBackCancellingOrAFailedPageLosesItsPlace)
{
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Elige("n.cnf", "cmdModif");  // its channel numbers are no rows
    frmPlantilla::unica.Muestra();
    Pulsa("cmdNueva");
    EXPECT_EQ(U(Da<QLineEdit>("txtnumTrif")->text()), "0");
    Teclea("txtnumTrif", "1");
    Asigna(1, {1, 2, 3});
    Pulsa("cmdvolver");
    EXPECT_TRUE(store.VuelveAnalog);
    Pulsa("cmdNueva");
    EXPECT_EQ(Puestas("1"), "*1,2,3") << "the page was left backwards before";
    store.DirPlantillas = c.Ruta("falta");
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Pulsa("cmdOK");
    Pulsa("cmdcancel");  // of the page before
    EXPECT_FALSE(frmTrifasic::unica.Cargado() || frmSalvaPlan::unica.Cargado());
}

}  // namespace
}  // namespace veldix
