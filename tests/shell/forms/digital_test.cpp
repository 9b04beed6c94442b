#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

#include "digital/forms/frm19.h"
#include "digital/forms/frmElecdig.h"
#include "digital/forms/frmGrid.h"
#include "record/forms/frmAjustes.h"
#include "shell/forms/Cancelar.h"
#include "shell/forms/gasolino_ondas.h"
#include "support/arbol.h"
#include "support/imprime.h"

namespace veldix {
namespace {

using Tipo = prueba::OperacionPagina::Tipo;

/// The program started on a record with a digital channel and a header, and a template with its group.
class ViajeDigital : public prueba::Arbol {
protected:
    ViajeDigital() { Arranca(c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf")); }

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
    frmAjustes* form = Cabecera("uno\n" + std::string(3000, 'w') + "\nfin");
    ASSERT_TRUE(ALaVista(form));
    const auto* lista = Hijo<QListWidget>("Lista1", form);
    EXPECT_EQ(lista->item(3)->text(), "fin");
    EXPECT_GT(lista->horizontalScrollBar()->maximum(), 5000) << "cannot be read";
    EXPECT_EQ(U(form->windowTitle()), Textos(236));
    QTest::keyClick(Hijo<QListWidget>("Lista1", form), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(MenuALaVista() && !frmAjustes::unica.Cargado());
    cajas->Espera("Error 9: Subscript out of range", Icono::Critico);
    EXPECT_EQ(Cabecera(std::string(2501, '\n')), nullptr);
    EXPECT_TRUE(MenuALaVista());
    std::filesystem::remove(c.Ruta("d/rec.hdr"));
    cajas->Espera("Error 53: File not found", Icono::Critico);
    Accion("mnuInform")->trigger();
    EXPECT_TRUE(MenuALaVista() && !frmAjustes::unica.Cargado());
}

TEST_F(ViajeDigital, AHeaderPrintsEachCopyAndCanBeCancelled)
{
    frmAjustes* form = Cabecera("uno\ndos");
    const prueba::Imprime imprime(2);
    const prueba::Grabadora* impresora = imprime.impresora.get();
    Pulsa("cmdImprimir", form);
    EXPECT_EQ(std::ranges::count(impresora->ops, "dos", &prueba::OperacionPagina::texto), 2);
    EXPECT_EQ(impresora->De(Tipo::Pagina).size(), 1U);
    EXPECT_EQ(impresora->sentido, Orientacion::Vertical) << "as the printer stands";
    EXPECT_TRUE(form->isEnabled() && !Cancelar::unica.Cargado());
    EXPECT_EQ(principal->focusWidget(), Hijo<QPushButton>("cmdImprimir", form));

    QTimer::singleShot(0, form, [] { Cancelar::unica.Cargado()->close(); });
    Pulsa("cmdImprimir", form);
    EXPECT_EQ(impresora->De(Tipo::Anula).size(), 1U);
    EXPECT_EQ(std::ranges::count(impresora->ops, "dos", &prueba::OperacionPagina::texto), 0);
    EXPECT_TRUE(frmAjustes::unica.Cargado() && form->isEnabled() && !Cancelar::unica.Cargado());
}

}  // namespace
}  // namespace veldix
