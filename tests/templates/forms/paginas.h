#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/avance.h"
#include "record/leer_cfg.h"
#include "support/soporte.h"
#include "templates/forms/cadena.h"
#include "templates/forms/frmPlantilla.h"

namespace veldix::prueba {

/// A folder of templates, relay models, a record of three analog and two digital channels, and the forms, of
/// which one is in sight.
class Paginas : public testing::Test {
protected:
    Paginas()
    {
        store = RecordStore{};
        CargaTextos(VELDIX_SOURCE "/runtime/VELDIX/ini/vdotro.ini");
        std::filesystem::create_directories(c.Ruta("pla/sub"));
        std::filesystem::copy(VELDIX_DATA "/jet", c.Ruta("Models"));
        store.RutaPrograma = c.Ruta("VELDIX/EXE");
        store.DirPlantillas = c.Ruta("pla");
        escena.activaPlantilla = [this] { hecho += "menu "; };
        ganchosRegistro.EscribeSesion = [this] { hecho += "session "; };
        store.FicheroCfg =
            c.Escribe("r.cfg", ConFinales("REC,1|5,3A,2D|1,VR,A|2,IR,A|3,UR,A|1,D1,0|2,D2,0|50|1|1000,9"));
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
        AbandonaPaginas();
        escena = Escena{};
        ganchosRegistro = {};
        store = RecordStore{};
        VaciaTextos();
    }
    std::string Leida(const char* nombre) const { return LeeTodo(c.Ruta("pla/") + nombre); }
    /// The name of the page in sight.
    static std::string Pagina()
    {
        std::string nombres;
        for (const QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible()) nombres += U(w->objectName());
        return nombres;
    }
    template <class Control>
    static Control* Da(const std::string& nombre)
    {
        for (const QWidget* w : QApplication::topLevelWidgets())
            if (auto* control = w->isVisible() ? w->findChild<Control*>(Q(nombre)) : nullptr) return control;
        throw std::runtime_error("no " + nombre);
    }
    static void Pulsa(const char* boton, int veces = 1)
    {
        for (; veces > 0; --veces)
            QTest::mouseClick(Da<QPushButton>(boton), Qt::LeftButton);
    }
    static void Elige(const char* fichero, const char* boton)
    {
        auto* lista = Da<QListWidget>("File1");
        lista->setCurrentItem(lista->findItems(Q(fichero), Qt::MatchExactly).value(0));
        Pulsa(boton);
    }
    static std::string Texto(const char* caja) { return U(Da<QLineEdit>(caja)->text()); }
    static void Teclea(const char* caja, const char* texto, const char* boton = nullptr)
    {
        Da<QLineEdit>(caja)->clear();
        QTest::keyClicks(Da<QLineEdit>(caja), texto);
        if (boton) Pulsa(boton);
    }
    /// Lines of a list, from 1, with the mouse.
    static void Clic(const std::string& lista, int linea, bool doble = false)
    {
        auto* l = Da<QListWidget>(lista);
        l->scrollToItem(l->item(linea - 1));
        const QPoint p = l->visualItemRect(l->item(linea - 1)).center();
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, p);
        if (doble) QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, p);
    }
    static void Asigna(const std::string& lista, std::initializer_list<int> lineas)
    {
        for (const int linea : lineas)
            Clic(lista, linea, true);
    }
    static bool Marcado(const std::string& punto)
    {
        return Da<QLabel>(punto)->palette().window() == QBrush(Qt::yellow);
    }
    const std::string kCabeza = "ver 1.1|SE|ANALOGICOS| 4 |1%IA%%A$|2%IB%%A$|3%IC%%A$|4%IA%%A$";
    const std::string kDigitales = "|DIGITALES|3| 2 |***|G1| 2 |4%a$|5%b$|***|G2|01|9%c$|-----";
    Carpeta c;
    RespondeCajas cajas;
    std::string hecho;
};

}  // namespace veldix::prueba
