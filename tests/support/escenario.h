#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QPushButton>
#include <QTest>

#include "platform/forms/escena.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "support/soporte.h"

namespace veldix::prueba {

/// A main window with its area, the Spanish texts, and the menu as a flag; what a test opens goes with it.
class Escenario : public testing::Test {
protected:
    Escenario()
    {
        store = RecordStore{};
        store.AnchoPantalla = 15360.0, store.AltoPantalla = 11520.0;
        CargaTextos(VELDIX_SOURCE "/runtime/VELDIX/ini/vdotro.ini");
        principal.setCentralWidget(area);
        principal.resize(1024, 768);
        principal.show();
        escena.principal = &principal;
        escena.area = area;
        escena.muestraMenu = [this] { ++muestras, menu = true; };
        escena.ocultaMenu = [this] { menu = false; };
    }
    ~Escenario() override
    {
        Descarga();
        escena = Escena{};
        store = RecordStore{};
        VaciaTextos();
    }

    /// A fixture whose own members the scene's hooks use unloads the forms before these go.
    void Descarga()
    {
        for (Formulario* f : principal.findChildren<Formulario*>())
            f->Descarga();
        Asienta();
    }
    static void Asienta()
    {
        QTest::qWait(0);
        QTest::qWait(0);
    }
    /// A control of a form.
    template <class Control>
    static Control* Da(const std::string& nombre, QWidget* form)
    {
        Control* c = form ? form->findChild<Control*>(Q(nombre)) : nullptr;
        if (!c) throw std::runtime_error("no control " + nombre);
        return c;
    }
    static std::string Texto(const char* etiqueta, QWidget* form)
    {
        return U(Da<QLabel>(etiqueta, form)->text());
    }
    static void Pulsa(const char* boton, QWidget* form)
    {
        QTest::mouseClick(Da<QPushButton>(boton, form), Qt::LeftButton);
        Asienta();
    }

    RespondeCajas cajas;
    QMainWindow principal;
    QMdiArea* area = new QMdiArea;
    bool menu = true;
    int muestras = 0;  ///< of the menu
};

}  // namespace veldix::prueba
