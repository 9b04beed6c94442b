#include "templates/forms/frmDigital.h"
#include "templates/forms/frmSalvaPlan.h"
#include "templates/forms/paginas.h"

namespace veldix {
namespace {

using prueba::ConFinales;

class Digitales : public prueba::Paginas {
protected:
    /// Opens the page of a template, or of a new one, with twenty-four channels on offer.
    void Abre(const char* fichero)
    {
        store.NumDigitalPlan = store.NumDigital = 24;
        store.NombreDig = Tabla1<std::string>(24);
        for (int i = 1; i <= 24; ++i)
            store.NombreDig(i) = "d" + std::to_string(i);
        if (fichero)
            Elige(fichero, "cmdModif");
        else
            Pulsa("cmdNueva");
        Pulsa("cmdOK", 2);
    }
    /// The rows of the page, the number ahead of the name, up to the last that holds something; a star where
    /// the mark is.
    static std::string Filas()
    {
        std::string todas;
        int vacias = 0;
        for (int k = 1; k <= 19; ++k) {
            const std::string n = std::to_string(k);
            const std::string fila =
                (Marcado("lblpunt" + n) ? "*" : "") + Texto(("lbl" + n).c_str()) + Texto(("grp" + n).c_str());
            ++vacias;
            if (fila.empty()) continue;
            todas += std::string(static_cast<std::size_t>(vacias), ' ') + fila;
            vacias = 0;
        }
        return todas;
    }
    static std::string Grupos()
    {
        std::string todos = U(Da<QLabel>("txtGrupos")->text()) + ":";
        auto* lista = Da<QListWidget>("List2");
        for (int i = 0; i < lista->count(); ++i)
            todos += (lista->item(i)->isSelected() ? " *" : " ") + U(lista->item(i)->text());
        return todos + "|" + Texto("txtnbgrp");
    }
    static void Anade(const char* nombre) { Teclea("txtnbgrp", nombre, "cmdAñadir"); }
    void Espera(int texto, Icono icono = Icono::Critico) { cajas.Espera(Textos(texto), icono); }
    void Pregunta(bool si) { cajas.Espera(Textos(252), Icono::Pregunta, Botones::AceptarCancelar, si); }
    /// The digital section that the page would save.
    std::string Guardada()
    {
        Pulsa("cmdOK");
        Teclea("Text2", "x", "cmdOK");
        const std::string todo = Leida("x.cnf");
        return todo.substr(todo.find("DIGITALES"));
    }
};

TEST_F(Digitales, AGroupsRowsAreFilledMovedOrStoredWrongly)
{
    Abre(nullptr);
    EXPECT_EQ(Grupos() + Filas(), "0:| *");
    Espera(249, Icono::Informacion);
    Asigna("List1", {1});
    Anade("G1");
    Asigna("List1", {1, 3, 1, 2});
    EXPECT_EQ(Grupos() + Filas(), "1: *G1|G1 1d1 3d3 2d2 *");
    QTest::mouseClick(Da<QLabel>("lblpunt1"), Qt::LeftButton);
    Asigna("List1", {3});  // behind the mark nothing is looked at
    EXPECT_EQ(Filas(), " 3d3 *3d3 2d2");
    QTest::mouseDClick(Da<QLineEdit>("grp1"), Qt::LeftButton);
    QTest::mouseDClick(Da<QLineEdit>("lbl2"), Qt::LeftButton);
    EXPECT_EQ(Filas(), "  * 2d2");
    Anade("G2");  // stores the page without its gaps
    EXPECT_EQ(Grupos() + Filas(), "2: G1 *G2|G2 *");
    Asigna("List1", {5});
    Teclea("lbl2", "7");
    Teclea("grp3", "hand");
    Clic("List2", 1);
    EXPECT_EQ(Grupos() + Filas(), "2: *G1 G2|G1 2d2 *");
    Clic("List2", 2);
    EXPECT_EQ(Filas(), " 5d5 7 *") << "a number without a name is no gap, but does not count";
    EXPECT_EQ(Guardada(), ConFinales("DIGITALES|2| 2 |***|G1| 1 |2%d2$|***|G2| 1 |5%d5$|-----"));
}

TEST_F(Digitales, TheTwentiethChannelTheSeventeenthGroupOrASameNameComesIn)
{
    Abre(nullptr);
    Anade("G1");
    Espera(184, Icono::Ninguno);
    for (int i = 1; i <= 20; ++i)
        Asigna("List1", {i});
    EXPECT_EQ(Texto("grp19") + Filas().substr(0, 4), "d19 1d1") << "no row is marked";
    for (const char* nombre : {"G1", "G?", "Ga", "G[1]", "x"})
        Anade(nombre);  // the fourth is fitted by none, the third by G?
    EXPECT_EQ(Grupos(), "4: G1 G? G[1] *x|x");
    for (int i = 5; i <= 16; ++i)
        Anade(("g" + std::to_string(i)).c_str());
    Espera(150);
    Anade("otro");
    EXPECT_TRUE(Grupos().starts_with("16: G1") && Grupos().ends_with("*g16|g16"));
    cajas.Espera(Textos(179) + "2" + Textos(180), Icono::Critico);
    Pulsa("cmdOK");
    EXPECT_TRUE(Pagina() == "frmDigital" && store.NumCanalDigPlan == 19);
}

TEST_F(Digitales, DeletingOrRenamingLosesAnotherGroup)
{
    Abre("p.cnf");
    EXPECT_EQ(Grupos() + Filas(), "2: *G1 G2|G1 *4a 5b") << "the mark is on the first row";
    Asigna("List1", {9});
    Anade("G3");
    Asigna("List1", {7, 8});
    Clic("List2", 2);
    EXPECT_EQ(Filas(), " 9c *");
    Teclea("txtnbgrp", "nuevo");
    Clic("List2", 2);  // renames; the list keeps the old name
    EXPECT_EQ(Grupos(), "3: G1 *G2 G3|nuevo");
    Pregunta(false);
    Pregunta(true);
    Pulsa("cmdEliminar", 2);
    EXPECT_EQ(Grupos() + Filas(), "2: G1 *G3|G3 7d7 8d8 *");
    Pregunta(true);
    Pulsa("cmdEliminar");
    EXPECT_EQ(Grupos() + Filas(), "1: *G1|G1 9d9 5b *");
    Pulsa("cmdvolver");
    Pulsa("cmdOK");
    EXPECT_EQ(Grupos() + Filas(), "2: *G1 G2|G1 *4a 5b") << "always fresh, of the groups read";
    Pregunta(true);
    Pregunta(true);
    Pulsa("cmdEliminar", 3);
    EXPECT_EQ(Grupos() + Filas(), "0:| *");
    EXPECT_EQ(Guardada(), ConFinales("DIGITALES|3| 0 |-----")) << "the total stays";
}

TEST_F(Digitales, ANameOrANumberThatTheFileCannotCarryStays)
{
    Abre("p.cnf");
    for (const int texto : {176, 177, 175, 175})
        Espera(texto);
    QTest::keyClicks(Da<QLineEdit>("grp1"), "%");
    QTest::keyClicks(Da<QLineEdit>("grp2"), "$x");
    EXPECT_EQ(Filas(), " *4 5x");
    Teclea("lbl2", "1x-");
    EXPECT_EQ(Texto("lbl2"), "1x-");
    Da<QLineEdit>("grp1")->setText("*#\n?[\r\n");  // as it is pasted from a text editor
    EXPECT_EQ(Guardada(), ConFinales("DIGITALES|3| 2 |***|G1| 2 |4%*#?[$|0%x$|***|G2|01|9%c$|-----"));
    Abre("x.cnf");
    EXPECT_EQ(Filas(), " *4*#?[ 0x") << "read back";
    cajas.Espera("Error 6: Overflow", Icono::Critico);
    Da<QLineEdit>("lbl1")->setText("40000");
    EXPECT_EQ(Pagina(), "frmTrifasic");
}

TEST_F(Digitales, ChannelsOnOfferComeFromTheWrongSourceOrTooManyMembersOpen)
{
    c.Escribe("pla/m.cnf", ConFinales(kCabeza + "|DIGITALES|20|1|***|G|20" + [] {
                  std::string s;
                  for (int i = 1; i <= 20; ++i)
                      s += "|" + std::to_string(i) + "%d$";
                  return s;
              }()));
    frmPlantilla::unica.Muestra();
    cajas.Espera("Error 9: Subscript out of range", Icono::Critico);
    Abre("m.cnf");
    EXPECT_EQ(Pagina(), "frmTrifasic");
    store.PlantillaModifica = false;  // as the pages are with neither command
    store.EstacionPlan = "REC", store.NombreEstacion = "R?C";
    store.GruposDigPlan = {};
    Pulsa("cmdOK");
    EXPECT_EQ(Da<QListWidget>("List1")->count(), 24);
    Pulsa("cmdvolver");
    store.NombreEstacion = "otra";
    Pulsa("cmdOK");
    EXPECT_EQ(Da<QListWidget>("List1")->count(), 0);
}

TEST_F(Digitales, AnotherTemplatesGroupsOrCountsComeIntoThePage)
{
    Abre("p.cnf");
    frmPlantilla::unica.Muestra();  // by the menu, while the page stands
    cajas.Espera(Textos(253), Icono::Critico);
    Elige("p.cnf", "cmdBuscar");
    EXPECT_EQ(Pagina(), "frmPlantilla") << "its tables have been read anew";
    c.Escribe("pla/sin.cnf", ConFinales(kCabeza + "|-----"));
    frmPlantilla::unica.Muestra();
    Abre("sin.cnf");
    Anade("G%");
    Pulsa("cmdvolver");
    Pulsa("cmdOK");
    EXPECT_EQ(Grupos(), "0:|") << "the groups of the file: none";
    store.NombreDig(1) = "a%b";
    Pulsa("cmdvolver");
    Pulsa("cmdOK");
    Anade("G%$");
    Espera(176);
    Asigna("List1", {1, 2});
    EXPECT_EQ(Filas(), " 1 2d2 *") << "the name goes, the number stays";
    QTest::keyClick(Da<QLineEdit>("lbl1"), Qt::Key_F8);
    EXPECT_EQ(Guardada(), ConFinales("DIGITALES|1| 1 |***|G%$| 1 |2%d2$|-----"));
}

TEST_F(Digitales, MoreGroupsThanThePageAddsLoseMembersOnTheirWayDown)
{
    std::string lineas = kCabeza + "|DIGITALES|18| 18 ", queda = "|DIGITALES|15| 15 ";
    for (int i = 1; i <= 18; ++i) {
        const std::string grupo = "|***|g" + std::to_string(i) + "| 1 |" + std::to_string(i) + "%d$";
        lineas += grupo;
        if (i > 3) queda += grupo;
    }
    c.Escribe("pla/m.cnf", ConFinales(lineas + "|-----"));
    frmPlantilla::unica.Muestra();
    Abre("m.cnf");
    Espera(150);
    Anade("otro");
    EXPECT_TRUE(Grupos().starts_with("18: *g1") && Grupos().ends_with("g18|g1"));
    for (int i = 0; i < 3; ++i)
        Pregunta(true);
    Pulsa("cmdEliminar", 3);
    QTest::keyClick(Da<QListWidget>("List2"), Qt::Key_Down);
    EXPECT_TRUE(Grupos().starts_with("15: g4 *g5") && Filas() == " 5d *");
    Pulsa("cmdOK");
    Teclea("Text2", "x", "cmdOK");
    EXPECT_EQ(Leida("x.cnf"), ConFinales(kCabeza + queda + "|-----"));
}

}  // namespace
}  // namespace veldix
