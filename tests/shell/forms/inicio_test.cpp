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
#include "shell/forms/FrmMenu.h"
#include "shell/forms/MDIForm1.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/frmDirect.h"
#include "shell/forms/gasolino.h"
#include "support/soporte.h"
#include "waves/forms/frmNewOndas.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::LeeTodo;

constexpr const char* k53 = "Error 53: File not found";
constexpr const char* k62 = "Error 62: Input past end of file";
constexpr const char* kAnio = ".cfg COMTRADE file is not OK, you must check the year of revision ";
constexpr const char* kIni = "VELDIX/ini/";

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
    int Cuenta()
    {
        alignas(inotify_event) char octetos[4096];
        int cuenta = 0;
        for (ssize_t n; (n = read(fd_, octetos, sizeof octetos)) > 0;)
            for (const char* p = octetos; p < octetos + n;) {
                const auto* e = reinterpret_cast<const inotify_event*>(p);
                if (e->len > 0 && nombre_ == e->name) ++cuenta;
                p += sizeof *e + e->len;
            }
        return cuenta;
    }

private:
    int fd_;
    std::string nombre_;
};

std::string Cambia(std::string texto, const std::string& que, const std::string& por)
{
    for (std::size_t p = 0; (p = texto.find(que, p)) != std::string::npos; p += por.size())
        texto.replace(p, que.size(), por);
    return texto;
}

/// A program tree with records and templates, to start the program in.
class Inicio : public testing::Test {
protected:
    Inicio()
    {
        static const bool instalada = (InstalaEscena(), true);
        cajas = std::make_unique<prueba::RespondeCajas>();
        if (!instalada || !fs::create_directories(c.Ruta("VELDIX/EXE")) || !fs::create_directory(c.Ruta("d")))
            throw std::runtime_error("no tree");
        Ini();
        Registro("rec", "SE UNO,R", "ASCII");
        c.Escribe("d/rec.hdr", "hola\r\n");
        for (const char* nombre : {"d/p.cnf", "d/P2.CNF", "d/p.Cnf"})
            c.Escribe(nombre,
                      "ver 1.1\r\nPLANTILLA\r\nANALOGICOS\r\n 3 \r\n1%a%x%V$\r\n2%b%x%V$\r\n3%c%x%V$\r\n");
        c.Escribe("d/v10.cnf", "ver 1.0\r\nVIEJA\r\n-----\r\n");
    }
    ~Inicio() override { Termina(); }

    /// The settings folder of a session in Spanish (1) or English (0).
    void Ini(const std::string& idioma = "1", const char* herramientas = "0") const
    {
        fs::remove_all(c.Ruta(kIni));
        fs::copy(VELDIX_SOURCE "/runtime/VELDIX/ini", c.Ruta(kIni));
        c.Escribe("VELDIX/ini/ficher.ini", " " + idioma + " \r\n 4 \r\n\r\n\r\n\r\n\r\n");
        Tools(idioma, herramientas);
    }
    void Tools(const std::string& idioma, const std::string& herramientas = "0") const
    {
        const std::string d = c.Ruta("d") + "\r\n";
        c.Escribe("VELDIX/ini/tools.ini", idioma + "\r\n" + d + d + d + herramientas + "\r\n");
    }
    void Registro(const std::string& nombre, const std::string& linea1, const std::string& formato) const
    {
        c.Escribe("d/" + nombre + ".cfg",
                  linea1 +
                      "\r\n3,2A,1D\r\n1,VA,A,BARRAS,kV,1,0,0,-9,9\r\n2,IA,A,LINEA,A,1,0,0,-9,9\r\n"
                      "1,TRIP,0\r\n50\r\n1\r\n1000,2\r\nfecha\r\nfecha\r\n" +
                      formato + "\r\n");
        c.Escribe("d/" + nombre + ".dat", "1,0,10,20,0\r\n2,1000,30,40,1\r\n");
    }
    /// "d/" stands for the folder of records.
    std::string Rutas(const std::string& texto) const { return Cambia(texto, "d/", c.Ruta("d/")); }
    void Arranca(const std::string& linea = {})
    {
        Termina();
        principal = std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), Rutas(linea));
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
    FrmMenu* Menu() const { return FrmMenu::unica.Cargado(); }
    template <class T>
    T* Hijo(const char* nombre, const QWidget* padre = nullptr) const
    {
        T* hijo = (padre ? padre : principal.get())->findChild<T*>(QString::fromUtf8(nombre));
        if (!hijo) throw std::runtime_error(std::string("no ") + nombre);
        return hijo;
    }
    QPushButton* cmdSalir() const { return Hijo<QPushButton>("cmdSalir"); }
    void EsperaSalir(bool aceptar)
    {
        cajas->Espera(Textos(284), Icono::Pregunta, Botones::AceptarCancelar, aceptar);
    }

    prueba::Carpeta c;
    std::unique_ptr<prueba::RespondeCajas> cajas;
    std::unique_ptr<MDIForm1> principal;
};

TEST_F(Inicio, CommandLineOpensTheWrongFilesOrWritesTheWrongSession)
{
    Registro("sincfg", "", "");
    fs::remove(c.Ruta("d/sincfg.cfg"));
    Registro("anio", "SE,R,1999", "ASCII");
    Registro("formato", "SE,R", "FLOAT32");
    Registro("r.v2", "SE,R", "ASCII");
    fs::rename(c.Ruta("d/r.v2.cfg"), c.Ruta("d/r.v2.CFG"));
    c.Escribe("0", "");
    const fs::path antes = fs::current_path();
    fs::current_path(c.Ruta());
    const std::string rec = "d/rec.dat|d/rec.hdr|d/rec.cfg|";
    const struct {
        const char* linea;
        int texto;  ///< of the box: a language line, 0 for none, 1 for the year
        bool abierto, plantilla;
        const char *etiqueta, *cnf;
        std::string sesion;  ///< the four last lines of the session file
        int escrituras;
    } lineas[] = {
        {"   ", 0, false, false, "", "", "|||", 1},
        {"d/rec.dat", 0, true, false, "d/rec.dat", "", rec, 2},
        {"d/rec.dat d/p.cnf", 0, true, true, "d/rec.dat", "d/p.cnf", rec + "d/p.cnf", 3},
        {"  d/rec.dat    d/P2.CNF ", 0, true, true, "d/rec.dat", "d/P2.CNF", rec + "d/P2.CNF", 3},
        {"d/no.dat d/p.cnf", 0, false, true, "", "d/p.cnf", "|||d/p.cnf", 2},
        {"d/no.dat", 0, false, false, "", "", "|||", 1},
        {"d/rec.dat d/no.cnf", 0, true, false, "d/rec.dat", "", rec, 2},
        {"d/rec.dat d/p.cnf d/p.cnf", 0, true, false, "d/rec.dat", "", rec, 2},
        {"d/rec.dat d/p.Cnf", 147, true, false, "d/rec.dat", "d/p.Cnf", rec, 2},
        {"d/rec.dat d/v10.cnf", 172, true, false, "d/rec.dat", "d/v10.cnf", rec, 2},
        {"d/sincfg.dat", 277, true, false, "d/sincfg.dat", "", "|||", 1},
        {"d/formato.dat", 277, true, false, "d/formato.dat", "", "|||", 1},
        {"d/anio.dat", 1, true, false, "d/anio.dat", "", "|||", 1},
        {"d/r.v2.dat", 0, true, false, "d/r.v2.dat", "", "d/r.v2.dat||d/r.v2.CFG|", 2},
    };
    for (const auto& l : lineas) {
        SCOPED_TRACE(l.linea);
        Ini();
        CargaTextos(c.Ruta("VELDIX/ini/vdotro.ini"));
        const std::string cnf = Rutas(l.cnf);
        if (l.texto != 0)
            cajas->Espera(l.texto == 1 ? kAnio : Textos(l.texto) + (l.texto == 147 ? " " + cnf : ""),
                          l.texto == 147 || l.texto == 172 ? Icono::Critico : Icono::Ninguno);
        Escrituras escrituras(c.Ruta("VELDIX/ini"), "ficher.ini");
        Arranca(l.linea);

        EXPECT_EQ(store.RegistroAbierto, l.abierto);
        EXPECT_EQ(store.PlantillaAplicada, l.plantilla);
        EXPECT_EQ(store.FicheroCnf, cnf);
        EXPECT_EQ(store.Muestras.Vacia(), l.sesion[0] == '|');
        EXPECT_EQ(U(Hijo<QLabel>("Etiqueta")->toolTip()), Rutas(l.etiqueta));
        EXPECT_EQ(principal->windowTitle(), "VELDIX 2.1.7");
        EXPECT_EQ(Hijo<QAction>("mnuFasores")->isEnabled(), l.plantilla);
        EXPECT_EQ(Hijo<QAction>("mnuInform")->isEnabled(), l.plantilla);
        EXPECT_EQ(LeeTodo(c.Ruta("VELDIX/ini/ficher.ini")),
                  " 1 \r\n 4 \r\n" + Cambia(Rutas(l.sesion), "|", "\r\n") + "\r\n");
        EXPECT_EQ(escrituras.Cuenta(), l.escrituras);
        EXPECT_TRUE(Menu() && Menu()->isVisible() && Menu()->Ventana().isMaximized());
        EXPECT_FALSE(gasolino::unica.Cargado());
    }
    fs::current_path(antes);
}

TEST_F(Inicio, TemplateOfTheCommandLineIsFittedToTheRecordOrNotApplied)
{
    Arranca("d/rec.dat d/p.cnf");
    EXPECT_EQ(store.NombreEstacion, "PLANTILLA");
    EXPECT_EQ(store.NumAnalog, 2);
    ASSERT_EQ(store.NumCanalAnalog, 3);
    EXPECT_EQ(store.Canales(3).Nombre, "c");
    EXPECT_FALSE(store.PlantillaNoValida);
}

TEST_F(Inicio, DamagedSettingsStopTheProgramOrAreCut)
{
    const struct {
        const char *fichero, *octetos, *caja;  ///< null octets for a missing file
        const char *ficheros, *ondas, *salir;
        bool analisis;
    } averias[] = {
        {"ficher.ini", nullptr, k53, "&Ficheros", "Oscilos", "Salir", true},
        {"ficher.ini", " 0 \r\n 4 \r\na\r\nb\r\nc\r\n", k62, "&Ficheros", "Oscilos", "Salir", true},
        {"ficher.ini", " 0 \r\n 5 \r\na\r\nb,1\r\nc\r\nd\r\ne\r\n", nullptr, "&File", "&Waveforms", "Exit",
         true},
        {"tools.ini", nullptr, k53, "&Ficheros", "Oscilos", "Salir", false},
        {"tools.ini", "0\r\na\r\nb\r\nc\r\n", k62, "&Ficheros", "Oscilos", "Salir", false},
        {"tools.ini", "0\r\na\r\nb\r\nc\r\nx\r\n", "Error 13: Type mismatch", "&Ficheros", "Oscilos", "Salir",
         false},
        {"vdingles.ini", nullptr, k53, "&Ficheros", "Oscilos", "Salir", true},
        {"vdingles.ini", "&File\r\n", k62, "&File", "Oscilos", "Salir", true},
    };
    for (const auto& a : averias) {
        SCOPED_TRACE(std::string(a.fichero) + ": " + (a.octetos ? a.octetos : "missing"));
        const std::string ruta = std::string(kIni) + a.fichero;
        Ini("0", "1\r\n\"T=/bin/true\"");
        fs::remove(c.Ruta(ruta));
        if (a.octetos) c.Escribe(ruta, a.octetos);
        if (a.caja) cajas->Espera(a.caja, Icono::Critico);
        Arranca();

        EXPECT_EQ(U(Hijo<QMenu>("mnuFicheros")->title()), a.ficheros);
        EXPECT_EQ(U(Hijo<QMenu>("mnuOndas")->title()), a.ondas);
        EXPECT_EQ(U(cmdSalir()->text()), a.salir);
        EXPECT_FALSE(Hijo<QAction>("mnuFasores")->isEnabled() || Hijo<QAction>("mnuInform")->isEnabled());
        EXPECT_EQ(Hijo<QMenu>("mnuanalisis")->menuAction()->isEnabled(), a.analisis);
        EXPECT_TRUE(Menu()->isVisible());
        EXPECT_EQ(fs::exists(c.Ruta(ruta)) ? LeeTodo(c.Ruta(ruta)) : "", a.octetos ? a.octetos : "");
    }
    Ini();
    fs::remove(c.Ruta("VELDIX/ini/ficher.ini"));
    cajas->Espera(k53, Icono::Critico);
    Arranca("d/rec.dat");
    EXPECT_TRUE(store.RegistroAbierto) << "a record of the command line is lost with the session file";
}

TEST_F(Inicio, ExitKeyAnswersInTheWrongLanguageOrShiftState)
{
    constexpr auto kAlt = Qt::AltModifier;
    const struct {
        const char* idioma;  ///< line 1 of tools.ini
        Qt::Key tecla;
        Qt::KeyboardModifiers estado;
        bool enForm, enPrincipal;  ///< whether it asks to leave
    } pulsaciones[] = {
        {"1", Qt::Key_S, kAlt, true, true},
        {"1", Qt::Key_X, kAlt, false, true},
        {"0", Qt::Key_X, kAlt, true, true},
        {"0", Qt::Key_S, kAlt, false, true},
        {"2", Qt::Key_S, kAlt, false, true},
        {"0", Qt::Key_Q, kAlt, false, false},
        {"1", Qt::Key_S, Qt::NoModifier, false, false},
        {"1", Qt::Key_S, kAlt | Qt::ShiftModifier, false, false},
        {"0", Qt::Key_X, kAlt | Qt::ControlModifier, false, false},
    };
    Arranca("d/rec.dat d/p.cnf");
    frmNewOndas& selector = frmNewOndas::unica.CargaNueva();
    selector.show();
    for (const auto& p : pulsaciones) {
        Tools(p.idioma);
        const struct {
            const char* donde;
            QWidget* foco;
            bool pregunta;
        } focos[] = {{"menu", Menu(), p.enForm},
                     {"label of the menu", Hijo<QLabel>("Lblversion"), p.enForm},
                     {"list of a chooser", Hijo<QListWidget>("List1", &selector), p.enForm},
                     {"strip", cmdSalir(), p.enPrincipal},
                     {"main window", principal.get(), p.enPrincipal}};
        for (const auto& f : focos) {
            SCOPED_TRACE(testing::Message() << f.donde << ", language " << p.idioma << ", key " << p.tecla
                                            << ", shift " << p.estado.toInt());
            f.foco->window()->activateWindow();
            f.foco->setFocusPolicy(Qt::StrongFocus);
            f.foco->setFocus();
            ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == f.foco; }, 1000));
            if (f.pregunta) EsperaSalir(false);
            QTest::keyClick(f.foco, p.tecla, p.estado);
            EXPECT_EQ(cajas->Pendientes(), 0U);
        }
    }
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    cajas->Espera(k53, Icono::Critico);
    QTest::keyClick(Menu(), Qt::Key_S, kAlt);
    EXPECT_TRUE(Menu());
}

TEST_F(Inicio, StripLeavesTheWaveWindowsOrTheMenuHidden)
{
    Arranca("d/rec.dat d/p.cnf");
    for (int vez = 1; vez <= 2; ++vez) {
        frmNewOndas& selector = frmNewOndas::unica.CargaNueva();
        selector.show();
        auto* lista = Hijo<QListWidget>("List1", &selector);
        for (int i = 0; i < 2; ++i) {
            const QPoint p = lista->visualItemRect(lista->item(i)).center();
            QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, p);
            QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, p);
        }
        Hijo<QPushButton>("cmdOK", &selector)->click();
        ASSERT_EQ(store.NumVentanasOnda, 2);
        EXPECT_FALSE(Menu()->isVisible());
        store.EnPrimario = true;

        cmdSalir()->click();
        EXPECT_EQ(store.NumVentanasOnda, 0);
        EXPECT_FALSE(store.EnPrimario);
        EXPECT_TRUE(Menu()->isVisible() && Menu()->Ventana().isMaximized());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EsperaSalir(false);
    cmdSalir()->click();
}

TEST_F(Inicio, LeavingAsksNotOrWritesOrLeavesFormsLoaded)
{
    const struct {
        const char* camino;
        std::function<void()> sal;
        bool pregunta;
    } caminos[] = {{"strip", [this] { cmdSalir()->click(); }, true},
                   {"menu", [this] { Hijo<QAction>("mnuSalir")->trigger(); }, true},
                   {"window", [this] { principal->close(); }, false}};
    for (const auto& camino : caminos) {
        SCOPED_TRACE(camino.camino);
        Arranca("d/rec.dat");
        frmNewOndas::unica.CargaNueva().show();
        frmDirect::unica.CargaNueva().show();
        Mensaje::unica.CargaNueva([] {}).show();
        Escrituras ficher(c.Ruta("VELDIX/ini"), "ficher.ini"), tools(c.Ruta("VELDIX/ini"), "tools.ini");
        if (camino.pregunta) {
            EsperaSalir(false);
            camino.sal();
            EXPECT_TRUE(Menu() && frmDirect::unica.Cargado() && principal->isVisible());
            EsperaSalir(true);
        }
        camino.sal();
        EXPECT_EQ(cajas->Pendientes(), 0U);
        EXPECT_FALSE(Menu() || frmNewOndas::unica.Cargado() || frmDirect::unica.Cargado() ||
                     Mensaje::unica.Cargado());
        EXPECT_FALSE(principal->isVisible());
        EXPECT_EQ(ficher.Cuenta() + tools.Cuenta(), 0);
    }
}

}  // namespace
}  // namespace veldix
