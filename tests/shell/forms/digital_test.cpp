#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "digital/forms/frm19.h"
#include "digital/forms/frmElecdig.h"
#include "digital/forms/frmGrid.h"
#include "platform/forms/impresion.h"
#include "record/forms/frmAjustes.h"
#include "shell/forms/Cancelar.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/gasolino_ondas.h"
#include "support/arbol.h"
#include "support/grabadora.h"

namespace veldix {
namespace {

using Tipo = prueba::OperacionPagina::Tipo;

/// The program started on a record with a digital channel and a header, and a template with its group.
class ViajeDigital : public prueba::Arbol {
protected:
    ViajeDigital() { Arranca(c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf")); }
    ~ViajeDigital() override { PonDialogoImpresion({}); }

    void Pulsa(const char* boton, Formulario* form)
    {
        QTest::mouseClick(Hijo<QPushButton>(boton, form), Qt::LeftButton);
        QTest::qWait(1);
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    static bool MenuALaVista()
    {
        QTest::qWait(1);
        return FrmMenu::unica.Cargado()->Ventana().isVisible() &&
               FrmMenu::unica.Cargado()->Ventana().isMaximized();
    }
    static bool ALaVista(Vista* v)
    {
        return v && v->Ventana().isVisible() && !v->Ventana().isMaximized() && !MenuALaVista();
    }
    frmAjustes* Cabecera(const std::string& octetos)
    {
        c.Escribe("d/rec.hdr", octetos);
        Accion("mnuInform")->trigger();
        QTest::qWait(1);
        EXPECT_EQ(cajas->Pendientes(), 0U);
        return frmAjustes::unica.Cargado();
    }
    static std::string Lineas(const frmAjustes* form)
    {
        std::string texto;
        const auto* lista = form->findChild<QListWidget*>("Lista1");
        for (int i = 0; i < lista->count(); ++i)
            texto += U(lista->item(i)->text()) + "|";
        return texto;
    }
};

TEST_F(ViajeDigital, TheMenusLeadToBothChoosersAndBack)
{
    Q_EMIT Hijo<QMenu>("mnuDigital")->aboutToShow();
    Accion("mnuDigGrupos")->trigger();
    frmElecdig* grupos = frmElecdig::unica.Cargado();
    ASSERT_TRUE(grupos && grupos->isVisible() && MenuALaVista());
    EXPECT_TRUE(Hijo<QRadioButton>("optdg1", grupos)->isEnabled());
    EXPECT_FALSE(Hijo<QRadioButton>("optdg2", grupos)->isEnabled());
    EXPECT_EQ(Hijo<QComboBox>("Combo1", grupos)->itemText(1), "Ia");
    QTest::keyClick(Hijo<QRadioButton>("optdg1", grupos), Qt::Key_Space);
    QTest::keyClick(Hijo<QRadioButton>("optdg1", grupos), Qt::Key_Return);
    EXPECT_FALSE(frmElecdig::unica.Cargado() || gasolino_ondas::unica.Cargado());
    ASSERT_TRUE(ALaVista(frm19::unica.Cargado()));
    EXPECT_EQ(Hijo<QLabel>("label1", frm19::unica.Cargado())->text(), "Disparo");
    QTest::keyClick(frm19::unica.Cargado()->Plot(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(MenuALaVista() && !frm19::unica.Cargado());

    Accion("mnuCompdig")->trigger();
    ASSERT_TRUE(ALaVista(frmGrid::unica.Cargado()));
    Pulsa("cmdSalir", nullptr);
    EXPECT_TRUE(MenuALaVista() && !frmGrid::unica.Cargado());
    Accion("mnuCompdig")->trigger();
    auto* etiqueta = Hijo<QLabel>("lblgrp1_1", frmGrid::unica.Cargado());
    QTest::mouseClick(etiqueta, Qt::LeftButton);
    QTest::keyClick(etiqueta, Qt::Key_Return);
    EXPECT_FALSE(frmGrid::unica.Cargado() || gasolino_ondas::unica.Cargado());
    ASSERT_TRUE(ALaVista(frm19::unica.Cargado()));
    frm19::unica.Cargado()->Ventana().close();
    EXPECT_TRUE(MenuALaVista());
    Accion("mnuDigGrupos")->trigger();
    Accion("mnuCerrarComtrade")->trigger();
    EXPECT_FALSE(frmElecdig::unica.Cargado());
    EXPECT_TRUE(store.DigElegidos.Vacia() && store.ModoDigital == 0 && MenuALaVista());
}

TEST_F(ViajeDigital, AHeaderIsListedAsItIsOrNotAtAll)
{
    frmAjustes* form = Cabecera("uno\r\n\r\na\tb");
    ASSERT_TRUE(ALaVista(form));
    EXPECT_EQ(Lineas(form), "VELDIX|uno||a       b|");
    EXPECT_EQ(U(form->windowTitle()), Textos(236));
    QTest::keyClick(Hijo<QListWidget>("Lista1", form), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(MenuALaVista() && !frmAjustes::unica.Cargado());
    std::string larga;
    for (int i = 1; i <= 2500; ++i)
        larga += "l" + std::to_string(i) + "\r\n";
    form = Cabecera(std::string(3000, 'w') + "\n" + larga.substr(4));
    EXPECT_TRUE(Lineas(form).ends_with("|l2500|"));
    EXPECT_GT(Hijo<QListWidget>("Lista1", form)->horizontalScrollBar()->maximum(), 5000) << "cannot be read";
    Pulsa("cmdSalir", nullptr);
    cajas->Espera("Error 9: Subscript out of range", Icono::Critico);
    EXPECT_EQ(Cabecera(larga + "\r\n"), nullptr);
    EXPECT_TRUE(MenuALaVista());
    std::filesystem::remove(c.Ruta("d/rec.hdr"));
    cajas->Espera("Error 53: File not found", Icono::Critico);
    Accion("mnuInform")->trigger();
    EXPECT_TRUE(MenuALaVista() && !frmAjustes::unica.Cargado());
}

TEST_F(ViajeDigital, AHeaderPrintsEachCopyAndCanBeCancelled)
{
    frmAjustes* form = Cabecera("uno\ndos");
    const auto impresora = std::make_shared<prueba::Grabadora>();
    impresora->sentido = Orientacion::Vertical;
    PonDialogoImpresion([&] { return PeticionImpresion{impresora, 2, false}; });
    Pulsa("cmdImprimir", form);
    EXPECT_EQ(std::ranges::count(impresora->ops, "dos", &prueba::OperacionPagina::texto), 2);
    EXPECT_EQ(impresora->De(Tipo::Pagina).size(), 1U);
    EXPECT_EQ(impresora->sentido, Orientacion::Vertical) << "as the printer stands";
    EXPECT_TRUE(form->isEnabled() && !Cancelar::unica.Cargado());
    EXPECT_EQ(principal->focusWidget(), Hijo<QPushButton>("cmdImprimir", form));

    impresora->ops.clear();
    QTimer::singleShot(0, form, [] { Cancelar::unica.Cargado()->close(); });
    Pulsa("cmdImprimir", form);
    EXPECT_EQ(impresora->De(Tipo::Anula).size(), 1U);
    EXPECT_EQ(std::ranges::count(impresora->ops, "dos", &prueba::OperacionPagina::texto), 0);
    EXPECT_TRUE(frmAjustes::unica.Cargado() && form->isEnabled() && !Cancelar::unica.Cargado());
}

}  // namespace
}  // namespace veldix
