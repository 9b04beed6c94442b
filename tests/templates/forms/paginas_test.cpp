#include "templates/forms/paginas.h"

#include "templates/forms/frmSalvaPlan.h"
#include "templates/forms/frmTrifasic.h"

namespace veldix {
namespace {

using prueba::ConFinales;
using prueba::Paginas;

/// Numbers of a group's phases, a star before the marked one.
class Trifasicos : public Paginas {
protected:
    static std::string Puestas(const std::string& grupo)
    {
        std::string s;
        for (const char* p : {"1", "2", "3"})
            s += (Marcado("lblpunt" + grupo + p) ? "*" : ",") + U(Da<QLabel>("lbl" + grupo + p)->text());
        return s;
    }
    /// From the selection over the analog page.
    static void Abre(const char* fichero)
    {
        Elige(fichero, "cmdModif");
        Pulsa("cmdOK");
    }
};

TEST_F(Trifasicos, SelectionChecksInAnotherOrderOrLeavesAnotherState)
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

TEST_F(Trifasicos, AssigningOverwritesOrSkipsAPhaseOrAMissingOnePasses)
{
    c.Escribe("pla/hueco.cnf", ConFinales(kCabeza + "|TRIFASICOS|1|1%0%3%L%$"));
    frmPlantilla::unica.Muestra();
    Abre("hueco.cnf");  // its second phase was never filled
    EXPECT_EQ(Pagina() + Puestas("1"), "frmTrifasic*1,,3");
    frmPlantilla::unica.Muestra();
    Abre("p.cnf");
    Asigna("ListTrif1", {1});  // not in use: takes nothing
    Teclea("txtnumTrif", "1");
    QTest::mouseClick(Da<QLabel>("lblpunt22"), Qt::LeftButton);  // nor does its row
    EXPECT_EQ(Puestas("1") + Puestas("2"), "*,,,,,");
    Asigna("ListTrif1", {1, 4, 2, 3, 3});
    EXPECT_EQ(Puestas("1"), ",1,2*3");
    QTest::mouseClick(Da<QLineEdit>("grp11"), Qt::LeftButton);
    Asigna("ListTrif1", {3, 2, 4});
    Pulsa("cmdOK");
    EXPECT_EQ(store.TrifasicPlan(1).fases, (std::array<std::int16_t, 3>{3, 4, 3}));
    Pulsa("cmdvolver");  // of the digital page
    EXPECT_EQ(Puestas("1"), ",3,4*3") << "the page comes back as it was left";
    QTest::mouseDClick(Da<QLineEdit>("grp12"), Qt::LeftButton);
    for (int i = 0; i < 3; ++i)
        cajas.Espera("Grupo 1 : " + Textos(273), Icono::Informacion);
    Pulsa("cmdOK");
    Pulsa("cmdvolver");
    EXPECT_EQ(store.TrifasicPlan(1).fases, (std::array<std::int16_t, 3>{3, 0, 0}));
    Asigna("ListTrif1", {1});
    Teclea("txtnumTrif", "2", "cmdOK");  // it is group 2 that lacks them
    EXPECT_EQ(Puestas("1") + Puestas("2"), "*3,1,3*,,") << "a new count marks the first phases";
}

TEST_F(Trifasicos, CountNameOrFactorIsTakenOrWarnedOfWrongly)
{
    Abre("p.cnf");
    for (const int texto : {187, 87, 187, 176, 176, 177, 186, 87})
        cajas.Espera(Textos(texto), Icono::Critico);
    Teclea("txtnumTrif", "-1");
    Teclea("txtnumTrif", "4x");
    for (const int grupo : {1, 2, 3, 4})
        Asigna("ListTrif" + std::to_string(grupo), {1, 2, 3});
    Teclea("nbTrif4", "%$");
    const prueba::Separa coma(",", ".");
    Teclea("txtFactor4", "-1,5");
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Teclea("txtnumTrif", "5", "cmdOK");
    EXPECT_EQ(Pagina(), "frmAnalog");
    EXPECT_TRUE(!frmTrifasic::unica.Cargado() && store.TrifasicPlan.Cuantos() == 5);
}

TEST_F(Trifasicos, SavedTemplateDiffersFromTheOneThatWasModified)
{
    Abre("p.cnf");
    Teclea("txtnumTrif", "1");
    Asigna("ListTrif1", {1, 2, 3});
    Teclea("nbTrif1", "L", "cmdOK");
    cajas.Espera(Textos(243), Icono::Ninguno);
    cajas.Espera(Textos(138), Icono::Pregunta, Botones::AceptarCancelar, false);
    Pulsa("cmdOK", 2);
    Elige("p.cnf", "cmdOK");
    EXPECT_EQ(Leida("p.cnf"), ConFinales(kCabeza + kDigitales));
    EXPECT_TRUE(frmTrifasic::unica.Cargado());
    c.Escribe("pla/sub/otra.cnf", "old");
    cajas.Espera(Textos(138), Icono::Pregunta, Botones::AceptarCancelar, true);
    Teclea("Text2", "sub/otra", "cmdOK");
    EXPECT_EQ(Leida("sub/otra.cnf"), ConFinales(kCabeza + "|TRIFASICOS| 1 |1%2%3%L%$" + kDigitales));
    store.DirPlantillas = c.Ruta("pla/sub");
    frmPlantilla::unica.Cargado()->Form_Activate();
    Abre("otra.cnf");
    EXPECT_EQ(Puestas("1") + U(Da<QLineEdit>("nbTrif1")->text()), "*1,2,3L") << "read back";
    Pulsa("cmdOK", 2);
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Teclea("Text2", "falta/x", "cmdOK");
    EXPECT_FALSE(frmTrifasic::unica.Cargado() || frmSalvaPlan::unica.Cargado());
}

TEST_F(Trifasicos, GoingBackCancellingOrAFailedPageLosesItsPlace)
{
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Abre("n.cnf");  // its channel numbers are no rows
    EXPECT_EQ(Pagina(), "frmAnalog");
    Pulsa("cmdvolver");
    EXPECT_TRUE(store.VuelveAnalog);
    Pulsa("cmdNueva");
    Pulsa("cmdOK");
    EXPECT_EQ(Texto("txtnumTrif"), "0");
    Teclea("txtnumTrif", "1");
    Asigna("ListTrif1", {1, 2, 3});
    Pulsa("cmdvolver");
    EXPECT_EQ(Pagina(), "frmAnalog");
    Pulsa("cmdOK");
    EXPECT_EQ(Puestas("1"), "*1,2,3") << "the page was left backwards before";
    store.DirPlantillas = c.Ruta("falta");
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Pulsa("cmdOK", 2);
    EXPECT_EQ(Pagina(), "frmDigital");
    store.DirPlantillas = c.Ruta("pla");
    Pulsa("cmdOK");
    Pulsa("cmdvolver", 3);
    EXPECT_EQ(Pagina(), "frmAnalog");
    Pulsa("cmdOK", 3);
    frmSalvaPlan::unica.Cargado()->close();
    EXPECT_EQ(Pagina(), "frmDigital") << "a page's window button strands those before it";
    Pulsa("cmdOK");
    EXPECT_EQ(Pagina(), "frmSalvaPlan");
    Pulsa("cmdcancel");
    EXPECT_EQ(Pagina(), "");
    EXPECT_FALSE(store.VuelveAnalog || frmTrifasic::unica.Cargado() || frmSalvaPlan::unica.Cargado());
    frmPlantilla::unica.Muestra();
    Pulsa("cmdNueva");
    Pulsa("cmdOK", 3);
    Elige("v10.CNF", "cmdOK");
    EXPECT_EQ(Leida("v10.CNF") + Leida("v10.cnf").substr(0, 7), "ver 1.0ver 1.1");
    Pulsa("cmdNueva");
    frmPlantilla::unica.Muestra();  // by the menu, over the page
    cajas.Espera(Textos(242), Icono::Critico);
    Pulsa("cmdBuscar");
    EXPECT_EQ(Pagina(), "frmPlantilla") << "the page's flags have changed";
}

}  // namespace
}  // namespace veldix
