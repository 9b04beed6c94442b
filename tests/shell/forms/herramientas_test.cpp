#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "platform/ficheros.h"
#include "platform/forms/ListaCarpetas.h"
#include "support/arbol.h"
#include "tools/forms/frmNuevosTools.h"

namespace veldix {
namespace {

using prueba::ConFinales;

/// The program started with some tools in its settings.
class Herramientas : public prueba::Arbol {
protected:
    ~Herramientas() override { LimitaDisco(-1); }

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

TEST_F(Herramientas, AToolIsAddedAgainstAMessageOrTheSettingsLoseSomething)
{
    c.Escribe("d/calc.exe", "x");
    const std::string uno = c.Ruta("d/calc.exe");
    Empieza({});
    EXPECT_EQ(Menu(), "off");
    frmNuevosTools* form = Abre("mnuAñadirTool");
    ASSERT_TRUE(form);
    auto *nombre = Da<QLineEdit>("txtNombre"), *ruta = Da<QLineEdit>("txtPath");
    EXPECT_EQ(form->windowTitle() + Da<QLabel>("Label1")->text(), Q(Textos(53) + Textos(55)));
    EXPECT_EQ(ruta->text(), Q(c.Ruta("d")));
    EXPECT_TRUE(Da<ListaFicheros>("File1")->isEnabled() && !Da<ListaClic>("List1")->isEnabled());
    Acepta(Textos(232));
    nombre->setText("Calc");
    ruta->setText("/x/VELDIX.EXE");
    Acepta(Textos(261));
    Da<ListaCarpetas>("Dir1")->Pon(c.Ruta());
    EXPECT_EQ(ruta->text(), Q(c.Ruta()));
    Acepta(Textos(233));
    Da<ListaCarpetas>("Dir1")->Pon(c.Ruta("d"));
    auto* ficheros = Da<ListaFicheros>("File1");
    ficheros->setCurrentItem(ficheros->findItems("calc.exe", Qt::MatchExactly).value(0));
    EXPECT_EQ(ruta->text(), Q(uno));

    const std::string antes = Ini("tools.ini");
    LimitaDisco(30);
    Acepta("Error 61: Disk full", Icono::Critico);
    LimitaDisco(-1);
    EXPECT_EQ(Ini("tools.ini"), antes);
    ASSERT_TRUE(frmNuevosTools::unica.Cargado());
    store.DirAplic = "/otro";  // what the program holds is written, as it stands
    Acepta();
    EXPECT_FALSE(frmNuevosTools::unica.Cargado());
    const std::string cabeza = "1|" + c.Ruta("d") + "|" + c.Ruta() + "|/otro|";
    EXPECT_EQ(Ini("tools.ini"), ConFinales(cabeza + "1|\"Calc=" + uno + "\""));
    EXPECT_EQ(Menu(), "(Calc)|");

    cajas->Espera("Error 76: Path not found", Icono::Critico);
    ASSERT_TRUE(Abre("mnuAñadirTool")) << "another folder can be chosen";
    Da<QLineEdit>("txtNombre")->setText("Calc");
    Da<QLineEdit>("txtPath")->setText(Q(uno));
    Acepta(Textos(234));
    Da<QLineEdit>("txtNombre")->setText("A=B");
    Acepta(Textos(235));
    Da<QLineEdit>("txtPath")->setText("\"/a b/x.exe\" -r y.EXE");
    Acepta();
    store.RegistroAbierto = store.PlantillaAplicada = true;
    EXPECT_EQ(Menu(), "Calc|A|");
    EXPECT_EQ(Ini("tools.ini"),
              ConFinales(cabeza + "2|\"Calc=" + uno + "\"|\"A=B=\"/a b/x.exe\" -r y.EXE\""));
}

TEST_F(Herramientas, AnotherToolIsRemovedOrItsEntryStays)
{
    Empieza({"A=/a.exe", "B=/b.exe", "A=/c.exe"});
    frmNuevosTools* form = Abre("mnuBorrartool");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->windowTitle(), Q(Textos(54)));
    auto* lista = Da<ListaClic>("List1");
    EXPECT_TRUE(lista->isEnabled() && !Da<ListaFicheros>("File1")->isEnabled());
    EXPECT_TRUE(Da<QLineEdit>("txtNombre")->isReadOnly() && Da<QLineEdit>("txtPath")->isReadOnly());
    const std::string antes = Ini("tools.ini");
    Acepta();
    EXPECT_TRUE(frmNuevosTools::unica.Cargado()) << "nothing is selected";
    lista->setCurrentRow(2);
    EXPECT_EQ(Da<QLineEdit>("txtPath")->text(), "/c.exe");
    QTest::mouseClick(Da<QPushButton>("cmdcancel"), Qt::LeftButton);
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
    c.Escribe("VELDIX/ini/tools.ini", ConFinales("1|a|b|c|2|\"A=/a.exe\""));
    cajas->Espera("Error 62: Input past end of file", Icono::Critico);
    EXPECT_FALSE(Abre("mnuBorrartool"));
}

}  // namespace
}  // namespace veldix
