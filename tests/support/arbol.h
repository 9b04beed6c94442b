#pragma once

#include <QAction>
#include <QPushButton>
#include <QTest>

#include <memory>

#include "platform/forms/dialogo_fichero.h"
#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/MDIForm1.h"
#include "support/soporte.h"

namespace veldix::prueba {

/// A program tree, VELDIX/EXE and VELDIX/ini, with records and templates in d, and the program in it.
class Arbol : public testing::Test {
protected:
    Arbol()
    {
        static const bool instalada = (InstalaEscena(), true);
        cajas = std::make_unique<RespondeCajas>();
        std::filesystem::create_directories(c.Ruta("VELDIX/EXE"));
        std::filesystem::create_directory(c.Ruta("d"));
        if (!instalada) throw std::logic_error("no scene");
        PonIni("1");
        Registro("rec", Cfg("SE UNO,R", "3", "ASCII"), "1,0,10,20,0|2,1000,30,40,1|3,2000,50,60,0");
        c.Escribe("d/rec.hdr", "hola\r\n");
        c.Escribe("d/p.cnf",
                  ConFinales("ver 1.1|PLANTILLA|ANALOGICOS| 3 |1%Va%x%V$|2%Ia%x%A$|3%c%x%V$|DIGITALES|1| 1 |"
                             "***|GRUPO| 1 |1%Disparo$|-----"));
        c.Escribe("d/v10.cnf", ConFinales("ver 1.0|VIEJA|-----"));
    }
    ~Arbol() override
    {
        Termina();
        PonDialogoFichero(nullptr);
    }

    /// The settings of a first start in Spanish (1) or English (0).
    void PonIni(const std::string& idioma, const std::vector<std::string>& herramientas = {}) const
    {
        std::filesystem::remove_all(c.Ruta("VELDIX/ini"));
        std::filesystem::copy(VELDIX_SOURCE "/runtime/VELDIX/ini", c.Ruta("VELDIX/ini"));
        c.Escribe("VELDIX/ini/ficher.ini", ConFinales(" " + idioma + " | 4 ||||"));
        PonTools(idioma, herramientas);
    }
    void PonTools(const std::string& idioma, const std::vector<std::string>& herramientas = {}) const
    {
        std::string lineas = idioma + "|" + c.Ruta("d") + "|" + c.Ruta() + "|" + c.Ruta("d") + "|" +
                             std::to_string(herramientas.size());
        for (const std::string& h : herramientas)
            lineas += "|\"" + h + "\"";
        c.Escribe("VELDIX/ini/tools.ini", ConFinales(lineas));
    }
    std::string Ini(const char* nombre) const { return LeeTodo(c.Ruta("VELDIX/ini/") + nombre); }
    static std::string Cfg(const std::string& linea1, const char* muestras, const char* formato)
    {
        return linea1 + "|3,2A,1D|1,VA,A,BARRAS,kV,1,0,0,-9,9|2,IA,A,LINEA,A,1,0,0,-9,9|1,TRIP,0|50|1|1000," +
               muestras + "|fecha|fecha|" + formato;
    }
    /// Its files; no configuration for an empty one.
    void Registro(const std::string& nombre, const std::string& cfg, const char* dat = "1,0,7,8,1") const
    {
        if (!cfg.empty()) c.Escribe("d/" + nombre + ".cfg", ConFinales(cfg));
        c.Escribe("d/" + nombre + ".dat", ConFinales(dat));
    }

    void Arranca(const std::string& linea = {})
    {
        Termina();
        principal = std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), linea);
        principal->MDIForm_Load();
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    void Termina()
    {
        if (principal) principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        VaciaTextos();
        store = RecordStore{};
    }
    template <class T>
    T* Hijo(const std::string& nombre, const QWidget* padre = nullptr) const
    {
        T* hijo = (padre ? padre : principal.get())->findChild<T*>(Q(nombre));
        if (!hijo) throw std::runtime_error("no " + nombre);
        return hijo;
    }
    QAction* Accion(const std::string& nombre) const { return Hijo<QAction>(nombre); }
    /// A button of a form, or of the strip.
    void Pulsa(const char* boton, const QWidget* form)
    {
        QTest::mouseClick(Hijo<QPushButton>(boton, form), Qt::LeftButton);
        QTest::qWait(1);
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    static bool MenuALaVista()
    {
        QTest::qWait(1);
        Vista* menu = FrmMenu::unica.Cargado();
        return menu->Ventana().isVisible() && menu->Ventana().isMaximized();
    }
    /// The file dialog answers with this, beneath the tree, and the menu opens it.
    void AbreRegistro(const std::string& dat)
    {
        PonDialogoFichero([=, this](const PeticionFichero&) { return std::optional(c.Ruta(dat)); });
        Accion("mnuAbrirComtrade")->trigger();
        QTest::qWait(1);
    }

    Carpeta c;
    std::unique_ptr<RespondeCajas> cajas;
    std::unique_ptr<MDIForm1> principal;
};

}  // namespace veldix::prueba
