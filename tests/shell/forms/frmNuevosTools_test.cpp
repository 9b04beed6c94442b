#include "tools/forms/frmNuevosTools.h"

#include <QLineEdit>
#include <QMenu>

#include "platform/ficheros.h"
#include "platform/forms/ListaCarpetas.h"
#include "support/arbol.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// The program started with some tools in its settings.
class HerramientasMenu : public prueba::Arbol {
protected:
    ~HerramientasMenu() override { LimitaDisco(-1); }

    void Empieza(const std::vector<std::string>& herramientas)
    {
        PonTools("1", herramientas);
        Arranca();
    }
    frmNuevosTools* Abre(const char* orden)
    {
        Accion(orden)->trigger();
        EXPECT_EQ(cajas->Pendientes(), 0U);
        return frmNuevosTools::unica.Cargado();
    }
    template <class T>
    T* Da(const char* nombre) const
    {
        return Hijo<T>(nombre, frmNuevosTools::unica.Cargado());
    }
    void Acepta(const std::string& caja = {}, Icono icono = Icono::Exclamacion)
    {
        if (!caja.empty()) cajas->Espera(caja, icono);
        QTest::mouseClick(Da<QPushButton>("cmdOK"), Qt::LeftButton);
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    /// Entries of the menu, one that is grey in parentheses, as they are when it has been opened.
    std::string Menu() const
    {
        auto* menu = Hijo<QMenu>("mnuanalisis");
        if (!menu->menuAction()->isEnabled()) return "off";
        Q_EMIT menu->aboutToShow();
        std::string r;
        for (const QAction* a : menu->actions())
            r += a->isEnabled() ? U(a->text()) + "|" : "(" + U(a->text()) + ")|";
        return r;
    }
};

TEST_F(HerramientasMenu, AToolIsAddedAgainstAMessageOrByAnotherPath)
{
    c.Escribe("d/calc.exe", "x");
    const std::string uno = c.Ruta("d/calc.exe");
    Empieza({});
    EXPECT_EQ(Menu(), "off");
    frmNuevosTools* form = Abre("mnuAñadirTool");
    ASSERT_TRUE(form);
    auto *nombre = Da<QLineEdit>("txtNombre"), *ruta = Da<QLineEdit>("txtPath");
    EXPECT_EQ(form->windowTitle() + Da<QLabel>("Label1")->text(), Q(Textos(53) + Textos(55)));
    EXPECT_EQ(ruta->text(), "") << "a folder may end like a program";
    EXPECT_EQ(Da<ListaFicheros>("File1")->findItems("calc.exe", Qt::MatchExactly).size(), 1);
    EXPECT_TRUE(Da<ListaFicheros>("File1")->isEnabled());
    EXPECT_FALSE(Da<ListaClic>("List1")->isEnabled());
    PonTools("1", {"Calc=/de/fuera.exe"});  // the file of the moment counts
    Acepta(Textos(232));
    Da<ListaCarpetas>("Dir1")->Pon(c.Ruta());
    EXPECT_EQ(ruta->text(), Q(c.Ruta()));
    Da<ListaCarpetas>("Dir1")->Pon(c.Ruta("d"));
    auto* ficheros = Da<ListaFicheros>("File1");
    ficheros->setCurrentItem(ficheros->findItems("calc.exe", Qt::MatchExactly).value(0));
    EXPECT_EQ(ruta->text(), Q(uno));
    nombre->setText("Calc\n");
    Acepta(Textos(234));
    nombre->setText("A=B");
    ruta->setText("\"/a b/x.exe\" -r y.EXE");
    Accion("mnuCerrarComtrade")->trigger();  // what the window is for stays
    QTest::keyClick(nombre, Qt::Key_Return);
    EXPECT_FALSE(frmNuevosTools::unica.Cargado());
    store.PlantillaAplicada = true;
    EXPECT_EQ(Menu(), "(Calc)|(A)|");
    store.RegistroAbierto = true;
    EXPECT_EQ(Menu(), "Calc|A|");
}

TEST_F(HerramientasMenu, SettingsLoseWhatTheyHeldOrKeepWhatTheProgramChanged)
{
    Empieza({"A=/a.exe"});
    const std::string antes = Ini("tools.ini");
    const auto anade = [this](const char* nombre, const std::string& caja, Icono icono) {
        Da<QLineEdit>("txtNombre")->setText(nombre);
        Da<QLineEdit>("txtPath")->setText(Q(std::string("/") + nombre + ".exe"));
        Acepta(caja, icono);
    };
    Abre("mnuAñadirTool");
    LimitaDisco(30);
    anade("B", "Error 61: Disk full", Icono::Critico);
    EXPECT_TRUE(frmNuevosTools::unica.Cargado());
    Abre("mnuBorrartool");
    Da<ListaClic>("List1")->setCurrentRow(0);
    Acepta("Error 61: Disk full", Icono::Critico);
    LimitaDisco(-1);
    EXPECT_EQ(Ini("tools.ini"), antes);
    EXPECT_EQ(Menu(), "(A)|");

    // Folder and language are written as the program holds them.
    store.DirAplic = "/otro";
    store.Idioma = 0;
    cajas->Espera("Error 76: Path not found", Icono::Critico);
    ASSERT_TRUE(Abre("mnuAñadirTool"));
    Da<ListaCarpetas>("Dir1")->Pon(c.Ruta("d"));
    EXPECT_EQ(Da<QLineEdit>("txtPath")->text(), Q(c.Ruta("d"))) << "another folder can be chosen";
    anade("B", {}, Icono::Ninguno);
    const std::string cabeza = "0|" + c.Ruta("d") + "|" + c.Ruta() + "|/otro|";
    EXPECT_EQ(Ini("tools.ini"), ConFinales(cabeza + "2|\"A=/a.exe\"|\"B=/B.exe\""));
    ASSERT_TRUE(Abre("mnuBorrartool")) << "no folder is needed to remove";
    Da<ListaClic>("List1")->setCurrentRow(0);
    PonTools("1", {"B=/B.exe"});
    const std::string fuera = Ini("tools.ini");
    Acepta();
    EXPECT_EQ(Ini("tools.ini"), fuera) << "that tool has gone meanwhile";

    store.RegistroAbierto = store.PlantillaAplicada = true;
    EXPECT_EQ(Menu(), "B|");
    c.Escribe("VELDIX/ini/tools.ini", ConFinales("1|a|b|c|2|\"A=/a.exe\""));
    cajas->Espera("Error 62: Input past end of file", Icono::Critico);
    EXPECT_FALSE(Abre("mnuBorrartool"));
    cajas->Espera("Error 62: Input past end of file", Icono::Critico);
    EXPECT_EQ(Menu(), "(B)|") << "what it starts is not known";
    store.DirAplic = c.Ruta();
    Abre("mnuAñadirTool");
    anade(" ", Textos(232), Icono::Exclamacion);
    anade("C", "Error 62: Input past end of file", Icono::Critico);
}

TEST_F(HerramientasMenu, AnotherToolIsRemovedOrItsEntryStays)
{
    Empieza({"A=/a.exe", "B=/b.exe", "A=/c.exe"});
    Abre("mnuAñadirTool");
    frmNuevosTools* form = Abre("mnuBorrartool");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->windowTitle(), Q(Textos(54)));
    auto* lista = Da<ListaClic>("List1");
    EXPECT_TRUE(lista->isEnabled());
    for (const char* control : {"File1", "Dir1", "Drive1"})
        EXPECT_FALSE(Da<QWidget>(control)->isEnabled()) << control;
    for (const char* campo : {"txtNombre", "txtPath"})
        EXPECT_TRUE(Da<QLineEdit>(campo)->isReadOnly()) << campo;
    const std::string antes = Ini("tools.ini");
    Acepta();
    EXPECT_TRUE(frmNuevosTools::unica.Cargado()) << "nothing is selected";
    lista->setCurrentRow(2);
    EXPECT_EQ(Da<QLineEdit>("txtNombre")->text() + Da<QLineEdit>("txtPath")->text(), "A/c.exe");
    QTest::keyClick(lista, Qt::Key_Escape);
    EXPECT_FALSE(frmNuevosTools::unica.Cargado());
    EXPECT_EQ(Ini("tools.ini"), antes);

    const std::pair<int, const char*> pasos[] = {{2, "(B)|(A)|"}, {1, "(B)|"}, {0, "off"}};
    for (const auto& [linea, menu] : pasos) {
        Abre("mnuBorrartool");
        Da<ListaClic>("List1")->setCurrentRow(linea);
        Acepta();
        EXPECT_FALSE(frmNuevosTools::unica.Cargado());
        EXPECT_EQ(Menu(), menu);
    }
    EXPECT_EQ(Ini("tools.ini"), ConFinales("1|" + c.Ruta("d") + "|" + c.Ruta() + "|" + c.Ruta("d") + "|0"));
}

}  // namespace
}  // namespace veldix
