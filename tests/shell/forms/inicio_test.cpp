#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <sys/inotify.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "shell/forms/Cancelar.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/MDIForm1.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/frmDirect.h"
#include "support/soporte.h"
#include "waves/forms/frmNewOndas.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::LeeTodo;

constexpr std::string_view kFicher = " 1 \r\n 4 \r\n\r\n\r\n\r\n\r\n";
constexpr const char* kAnio = ".cfg COMTRADE file is not OK, you must check the year of revision ";

/// Counts how often a file of a folder is replaced or rewritten.
class Escrituras {
public:
    Escrituras(const std::string& carpeta, std::string nombre)
        : fd_(inotify_init1(IN_NONBLOCK)), nombre_(std::move(nombre))
    {
        if (inotify_add_watch(fd_, carpeta.c_str(), IN_MOVED_TO | IN_CLOSE_WRITE) < 0)
            throw std::runtime_error("cannot watch " + carpeta);
    }
    ~Escrituras() { close(fd_); }
    Escrituras(const Escrituras&) = delete;
    Escrituras& operator=(const Escrituras&) = delete;

    int Cuenta()
    {
        alignas(inotify_event) char octetos[4096];
        for (ssize_t n; (n = read(fd_, octetos, sizeof octetos)) > 0;)
            for (const char* p = octetos; p < octetos + n;) {
                const auto* e = reinterpret_cast<const inotify_event*>(p);
                if (e->len > 0 && nombre_ == e->name) ++cuenta_;
                p += sizeof *e + e->len;
            }
        return cuenta_;
    }

private:
    int fd_;
    std::string nombre_;
    int cuenta_ = 0;
};

std::string Cfg(const std::string& linea1, const std::string& formato)
{
    return linea1 +
           "\r\n3,2A,1D\r\n1,VA,A,BARRAS,kV,1,0,0,-9,9\r\n2,IA,A,LINEA,A,1,0,0,-9,9\r\n1,TRIP,0\r\n"
           "50\r\n1\r\n1000,2\r\n01/02/03,04:05:06.0\r\n01/02/03,04:05:07.0\r\n" +
           formato + "\r\n";
}

/// A program tree with records and templates, and the program started in it.
class Inicio : public testing::Test {
protected:
    Inicio()
    {
        static const bool instalada = (InstalaEscena(), true);
        (void)instalada;
        cajas = std::make_unique<prueba::RespondeCajas>();
        store = RecordStore{};
        for (const char* carpeta : {"VELDIX/EXE", "VELDIX/ini", "d"})
            fs::create_directories(c.Ruta(carpeta));
        for (const char* fichero : {"vdotro.ini", "vdingles.ini"})
            fs::copy_file(fs::path(VELDIX_SOURCE "/runtime/VELDIX/ini") / fichero,
                          c.Ruta("VELDIX/ini/") + fichero);
        c.Escribe("VELDIX/ini/ficher.ini", kFicher);
        Tools("1", 0);
        Registro("rec", Cfg("SE UNO,R", "ASCII"));
        c.Escribe("d/rec.hdr", "hola\r\n");
        for (const char* nombre : {"p.cnf", "P2.CNF", "p.Cnf"})
            c.Escribe(
                std::string("d/") + nombre,
                "ver 1.1\r\nPLANTILLA\r\nANALOGICOS\r\n 3 \r\n1%a%x%V$\r\n2%b%x%V$\r\n3%c%x%V$\r\n-----\r\n");
        c.Escribe("d/v10.cnf", "ver 1.0\r\nVIEJA\r\n-----\r\n");
    }
    ~Inicio() override
    {
        if (principal) principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        VaciaTextos();
        store = RecordStore{};
    }

    void Tools(const std::string& idioma, int herramientas) const
    {
        std::string octetos = idioma + "\r\n" + c.Ruta("d") + "\r\n" + c.Ruta("d") + "\r\n" + c.Ruta("d") +
                              "\r\n" + std::to_string(herramientas) + "\r\n";
        for (int i = 0; i < herramientas; ++i)
            octetos += "\"T=/bin/true\"\r\n";
        c.Escribe("VELDIX/ini/tools.ini", octetos);
    }
    void Registro(const std::string& nombre, const std::string& cfg) const
    {
        if (!cfg.empty()) c.Escribe("d/" + nombre + ".cfg", cfg);
        c.Escribe("d/" + nombre + ".dat", "1,0,10,20,0\r\n2,1000,30,40,1\r\n");
    }
    void Arranca(const std::string& linea = {})
    {
        principal = std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), linea);
        principal->MDIForm_Load();
    }
    /// "d/" stands for the folder of records.
    std::string Rutas(std::string texto) const
    {
        for (std::size_t p = 0; (p = texto.find("d/", p)) != std::string::npos; p += c.Ruta("d/").size())
            texto.replace(p, 2, c.Ruta("d/"));
        return texto;
    }
    std::string Ini(const char* nombre) const { return LeeTodo(c.Ruta("VELDIX/ini/") + nombre); }

    FrmMenu* Menu() const { return FrmMenu::unica.Cargado(); }
    QAction* Accion(const char* nombre) const { return Hijo<QAction>(nombre); }
    QPushButton* cmdSalir() const { return Hijo<QPushButton>("cmdSalir"); }
    template <class T>
    T* Hijo(const char* nombre) const
    {
        T* hijo = principal->findChild<T*>(QString::fromUtf8(nombre));
        if (!hijo) throw std::runtime_error(std::string("no ") + nombre);
        return hijo;
    }
    QString Titulo(const char* menu) const { return Hijo<QMenu>(menu)->title(); }
    void EsperaSalir(bool aceptar)
    {
        cajas->Espera(Textos(284), Icono::Pregunta, Botones::AceptarCancelar, aceptar);
    }

    prueba::Carpeta c;
    std::unique_ptr<prueba::RespondeCajas> cajas;
    std::unique_ptr<MDIForm1> principal;
};

struct Linea {
    const char* linea;
    int texto;  ///< of the box: a language line, 0 for none, -1 for the year
    bool abierto, plantilla;
    const char* etiqueta;
    const char* cnf;
    const char* sesion;  ///< the four last lines of the session file
    int escrituras;
};

TEST_F(Inicio, CommandLineOpensTheWrongFilesOrWritesTheWrongSession)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("SE,R,1999", "ASCII"));
    Registro("formato", Cfg("SE,R", "FLOAT32"));
    Registro("r.v2", Cfg("SE,R", "ASCII"));
    fs::rename(c.Ruta("d/r.v2.cfg"), c.Ruta("d/r.v2.CFG"));
    c.Escribe("0", "");
    const fs::path antes = fs::current_path();
    fs::current_path(c.Ruta());
    const Linea lineas[] = {
        {"", 0, false, false, "", "", "|||", 1},
        {"   ", 0, false, false, "", "", "|||", 1},
        {"d/rec.dat", 0, true, false, "d/rec.dat", "", "d/rec.dat|d/rec.hdr|d/rec.cfg|", 2},
        {"d/rec.dat d/p.cnf", 0, true, true, "d/rec.dat", "d/p.cnf", "d/rec.dat|d/rec.hdr|d/rec.cfg|d/p.cnf",
         3},
        {"  d/rec.dat    d/P2.CNF ", 0, true, true, "d/rec.dat", "d/P2.CNF",
         "d/rec.dat|d/rec.hdr|d/rec.cfg|d/P2.CNF", 3},
        {"d/no.dat d/p.cnf", 0, false, true, "", "d/p.cnf", "|||d/p.cnf", 2},
        {"d/no.dat", 0, false, false, "", "", "|||", 1},
        {"d/rec.dat d/no.cnf", 0, true, false, "d/rec.dat", "", "d/rec.dat|d/rec.hdr|d/rec.cfg|", 2},
        {"d/rec.dat d/p.cnf d/p.cnf", 0, true, false, "d/rec.dat", "", "d/rec.dat|d/rec.hdr|d/rec.cfg|", 2},
        {"d/rec.dat d/p.Cnf", 147, true, false, "d/rec.dat", "d/p.Cnf", "d/rec.dat|d/rec.hdr|d/rec.cfg|", 2},
        {"d/rec.dat d/v10.cnf", 172, true, false, "d/rec.dat", "d/v10.cnf", "d/rec.dat|d/rec.hdr|d/rec.cfg|",
         2},
        {"d/sincfg.dat", 277, true, false, "d/sincfg.dat", "", "|||", 1},
        {"d/formato.dat", 277, true, false, "d/formato.dat", "", "|||", 1},
        {"d/anio.dat", -1, true, false, "d/anio.dat", "", "|||", 1},
        {"d/r.v2.dat", 0, true, false, "d/r.v2.dat", "", "d/r.v2.dat||d/r.v2.CFG|", 2},
    };
    CargaTextos(c.Ruta("VELDIX/ini/vdotro.ini"));
    for (const Linea& l : lineas) {
        SCOPED_TRACE(l.linea);
        store = RecordStore{};
        c.Escribe("VELDIX/ini/ficher.ini", kFicher);
        const std::string cnf = Rutas(l.cnf);
        if (l.texto == 147)
            cajas->Espera(Textos(147) + " " + cnf, Icono::Critico);
        else if (l.texto != 0)
            cajas->Espera(l.texto < 0 ? kAnio : Textos(l.texto),
                          l.texto == 172 ? Icono::Critico : Icono::Ninguno);
        Escrituras escrituras(c.Ruta("VELDIX/ini"), "ficher.ini");

        Arranca(Rutas(l.linea));

        EXPECT_EQ(cajas->Pendientes(), 0U);
        EXPECT_EQ(store.RegistroAbierto, l.abierto);
        EXPECT_EQ(store.PlantillaAplicada, l.plantilla);
        EXPECT_EQ(store.FicheroCnf, cnf);
        EXPECT_EQ(U(Hijo<QLabel>("Etiqueta")->toolTip()), Rutas(l.etiqueta));
        EXPECT_EQ(principal->windowTitle(), "VELDIX 2.1.7");
        for (const char* menu : {"mnuFasores", "mnuInform"})
            EXPECT_EQ(Accion(menu)->isEnabled(), l.plantilla) << menu;
        std::string sesion = " 1 \r\n 4 \r\n" + Rutas(l.sesion) + "\r\n";
        for (std::size_t p = 0; (p = sesion.find('|', p)) != std::string::npos; ++p)
            sesion.replace(p, 1, "\r\n");
        EXPECT_EQ(Ini("ficher.ini"), sesion);
        EXPECT_EQ(escrituras.Cuenta(), l.escrituras);
        EXPECT_TRUE(Menu() && Menu()->isVisible() && Menu()->Ventana().isMaximized());
        EXPECT_FALSE(principal->findChild<QWidget*>("gasolino"));
        if (l.texto < 0 || l.texto == 277) {
            EXPECT_TRUE(store.Muestras.Vacia());
        }

        principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        CargaTextos(c.Ruta("VELDIX/ini/vdotro.ini"));
    }
    fs::current_path(antes);
}

TEST_F(Inicio, TemplateOfTheCommandLineIsFittedToTheRecordOrNotApplied)
{
    Arranca(Rutas("d/rec.dat d/p.cnf"));
    EXPECT_EQ(store.NombreEstacion, "PLANTILLA");
    EXPECT_EQ(store.NumAnalog, 2);
    EXPECT_EQ(store.NumCanalAnalog, 3);
    EXPECT_EQ(store.Canales(3).Nombre, "c");
    EXPECT_FALSE(store.PlantillaNoValida);
    EXPECT_EQ(store.Muestras(2, 2), 40.0F);
}

struct Averia {
    const char* fichero;
    const char* octetos;  ///< null for a missing file
    const char* caja;
    const char* ficheros;  ///< caption of mnuFicheros in a session in English
    const char* ondas;
    bool analisis;
    const char* salir;
};

TEST_F(Inicio, DamagedSettingsStopTheProgramOrAreCut)
{
    constexpr const char* k53 = "Error 53: File not found";
    constexpr const char* k62 = "Error 62: Input past end of file";
    constexpr const char* k13 = "Error 13: Type mismatch";
    const Averia averias[] = {
        {"ficher.ini", nullptr, k53, "&Ficheros", "Oscilos", true, "Salir"},
        {"ficher.ini", " 0 \r\n 4 \r\na\r\nb\r\nc\r\n", k62, "&Ficheros", "Oscilos", true, "Salir"},
        {"ficher.ini", "", k62, "&Ficheros", "Oscilos", true, "Salir"},
        {"ficher.ini", "x\r\n 4 \r\na\r\nb\r\nc\r\nd\r\n", k13, "&Ficheros", "Oscilos", true, "Salir"},
        {"ficher.ini", " 0 \r\n 5 \r\na\r\nb,1\r\nc\r\nd\r\ne\r\n", nullptr, "&File", nullptr, true, "Exit"},
        {"tools.ini", nullptr, k53, "&Ficheros", "Oscilos", false, "Salir"},
        {"tools.ini", "0\r\na\r\nb\r\nc\r\n", k62, "&Ficheros", "Oscilos", false, "Salir"},
        {"tools.ini", "0\r\na\r\nb\r\nc\r\nx\r\n", k13, "&Ficheros", "Oscilos", false, "Salir"},
        {"vdingles.ini", nullptr, k53, "&Ficheros", "Oscilos", true, "Salir"},
        {"vdingles.ini", "&File\r\n", k62, "&File", "Oscilos", true, "Salir"},
    };
    for (const Averia& a : averias) {
        SCOPED_TRACE(std::string(a.fichero) + ": " + (a.octetos ? a.octetos : "missing"));
        const std::string ruta = std::string("VELDIX/ini/") + a.fichero;
        store = RecordStore{};
        VaciaTextos();
        c.Escribe("VELDIX/ini/ficher.ini", " 0 \r\n 4 \r\n\r\n\r\n\r\n\r\n");
        Tools("0", 1);
        fs::copy_file(VELDIX_SOURCE "/runtime/VELDIX/ini/vdingles.ini", c.Ruta("VELDIX/ini/vdingles.ini"),
                      fs::copy_options::overwrite_existing);
        if (a.octetos)
            c.Escribe(ruta, a.octetos);
        else
            fs::remove(c.Ruta(ruta));
        if (a.caja) cajas->Espera(a.caja, Icono::Critico);

        Arranca();

        EXPECT_EQ(cajas->Pendientes(), 0U);
        EXPECT_EQ(U(Titulo("mnuFicheros")), a.ficheros);
        if (a.ondas) {
            EXPECT_EQ(U(Titulo("mnuOndas")), a.ondas);
        }
        EXPECT_EQ(U(cmdSalir()->text()), a.salir);
        EXPECT_FALSE(Accion("mnuFasores")->isEnabled());
        EXPECT_FALSE(Accion("mnuInform")->isEnabled());
        EXPECT_EQ(Hijo<QMenu>("mnuanalisis")->menuAction()->isEnabled(), a.analisis);
        EXPECT_TRUE(Menu()->isVisible());
        EXPECT_EQ(fs::exists(c.Ruta(ruta)), a.octetos != nullptr);
        if (a.octetos) {
            EXPECT_EQ(LeeTodo(c.Ruta(ruta)), a.octetos);
        }

        principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Inicio, RecordOfTheCommandLineIsLostWithTheSessionFile)
{
    fs::remove(c.Ruta("VELDIX/ini/ficher.ini"));
    cajas->Espera("Error 53: File not found", Icono::Critico);
    Arranca(Rutas("d/rec.dat"));
    EXPECT_TRUE(store.RegistroAbierto);
    EXPECT_EQ(U(Hijo<QLabel>("Etiqueta")->toolTip()), c.Ruta("d/rec.dat"));
}

struct Pulsacion {
    const char* idioma;  ///< line 1 of tools.ini
    Qt::Key tecla;
    Qt::KeyboardModifiers estado;
    bool enForm, enPrincipal;  ///< whether it asks to leave
};

TEST_F(Inicio, ExitKeyAnswersInTheWrongLanguageOrShiftState)
{
    constexpr auto kAlt = Qt::AltModifier;
    const Pulsacion pulsaciones[] = {
        {"1", Qt::Key_S, kAlt, true, true},
        {"1", Qt::Key_X, kAlt, false, true},
        {"0", Qt::Key_X, kAlt, true, true},
        {"0", Qt::Key_S, kAlt, false, true},
        {"2", Qt::Key_S, kAlt, false, true},
        {"2", Qt::Key_X, kAlt, false, true},
        {"0", Qt::Key_Q, kAlt, false, false},
        {"1", Qt::Key_S, Qt::NoModifier, false, false},
        {"1", Qt::Key_S, kAlt | Qt::ShiftModifier, false, false},
        {"0", Qt::Key_X, kAlt | Qt::ControlModifier, false, false},
        {"0", Qt::Key_X, Qt::ControlModifier, false, false},
    };
    Arranca(Rutas("d/rec.dat d/p.cnf"));
    principal->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(principal.get()));
    frmNewOndas& selector = frmNewOndas::unica.CargaNueva();
    selector.show();
    auto* lista = selector.findChild<QListWidget*>("List1");
    ASSERT_NE(lista, nullptr);
    auto* barra = principal->findChild<QMenuBar*>();
    ASSERT_NE(barra, nullptr);
    for (const Pulsacion& p : pulsaciones) {
        SCOPED_TRACE(std::string(p.idioma) + " " + std::to_string(p.tecla) + " " +
                     std::to_string(static_cast<unsigned>(p.estado)));
        Tools(p.idioma, 0);
        struct {
            const char* donde;
            QWidget* foco;
            bool pregunta;
        } const focos[] = {
            {"menu", Menu(), p.enForm},
            {"label of the menu", Hijo<QLabel>("Lblversion"), p.enForm},
            {"list of a chooser", lista, p.enForm},
            {"strip", cmdSalir(), p.enPrincipal},
            {"main window", principal.get(), p.enPrincipal},
        };
        for (const auto& f : focos) {
            SCOPED_TRACE(f.donde);
            f.foco->window()->activateWindow();
            f.foco->setFocusPolicy(Qt::StrongFocus);
            f.foco->setFocus();
            ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == f.foco; }, 1000));
            if (f.pregunta) EsperaSalir(false);
            QTest::keyClick(f.foco, p.tecla, p.estado);
            EXPECT_EQ(cajas->Pendientes(), 0U);
        }
    }
    EXPECT_TRUE(Menu());
}

TEST_F(Inicio, ExitKeyOfAFormHidesThatTheSettingsAreGone)
{
    Arranca();
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    cajas->Espera("Error 53: File not found", Icono::Critico);
    QTest::keyClick(Menu(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(Menu());
}

TEST_F(Inicio, StripLeavesTheWaveWindowsOrTheMenuHidden)
{
    Arranca(Rutas("d/rec.dat d/p.cnf"));
    for (int vez = 1; vez <= 2; ++vez) {
        Accion("mnuCanalog")->setEnabled(true);
        Accion("mnuCanalog")->trigger();
        frmNewOndas* selector = frmNewOndas::unica.Cargado();
        ASSERT_NE(selector, nullptr);
        auto* lista = selector->findChild<QListWidget*>("List1");
        for (int i = 0; i < 2; ++i)
            Q_EMIT lista->itemDoubleClicked(lista->item(i));
        selector->findChild<QPushButton*>("cmdOK")->click();
        ASSERT_EQ(store.NumVentanasOnda, 2);
        EXPECT_FALSE(Menu()->Ventana().isVisible());
        store.EnPrimario = true;

        cmdSalir()->click();

        EXPECT_EQ(store.NumVentanasOnda, 0);
        EXPECT_FALSE(store.EnPrimario);
        EXPECT_TRUE(Menu()->isVisible());
        EXPECT_TRUE(Menu()->Ventana().isMaximized());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EsperaSalir(false);
    cmdSalir()->click();
}

TEST_F(Inicio, LeavingAsksNotOrWritesOrLeavesFormsLoaded)
{
    struct {
        const char* camino;
        std::function<void()> sal;
        bool pregunta;
    } const caminos[] = {
        {"strip", [this] { cmdSalir()->click(); }, true},
        {"menu", [this] { Accion("mnuSalir")->trigger(); }, true},
        {"window", [this] { principal->close(); }, false},
    };
    for (const auto& camino : caminos) {
        SCOPED_TRACE(camino.camino);
        store = RecordStore{};
        Arranca(Rutas("d/rec.dat"));
        frmNewOndas::unica.CargaNueva().show();
        frmDirect::unica.CargaNueva().show();
        Mensaje::unica.CargaNueva([] {}).show();
        Cancelar::unica.CargaNueva().show();
        Escrituras ficher(c.Ruta("VELDIX/ini"), "ficher.ini"), tools(c.Ruta("VELDIX/ini"), "tools.ini");
        if (camino.pregunta) {
            EsperaSalir(false);
            camino.sal();
            EXPECT_TRUE(Menu() && frmDirect::unica.Cargado() && principal->isVisible());
            EsperaSalir(true);
        }
        camino.sal();
        EXPECT_FALSE(Menu() || frmNewOndas::unica.Cargado() || frmDirect::unica.Cargado() ||
                     Mensaje::unica.Cargado());
        EXPECT_FALSE(principal->isVisible());
        principal->MDIForm_Unload();
        EXPECT_EQ(ficher.Cuenta() + tools.Cuenta(), 0);
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QWidget* w : QApplication::topLevelWidgets())
            EXPECT_FALSE(w->isVisible()) << U(w->objectName());
    }
}

}  // namespace
}  // namespace veldix
