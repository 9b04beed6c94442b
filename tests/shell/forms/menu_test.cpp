#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <sys/inotify.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <memory>

#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/forms/dialogo_fichero.h"
#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/MDIForm1.h"
#include "shell/forms/frmDirect.h"
#include "support/soporte.h"
#include "waves/forms/frmNewOndas.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::LeeTodo;

constexpr const char* k53 = "Error 53: File not found";
constexpr const char* k70 = "Error 70: Permission denied";

/// The program started on a record with a template that fits it.
class MenuPrincipal : public testing::Test {
protected:
    MenuPrincipal()
    {
        static const bool instalada = (InstalaEscena(), true);
        cajas = std::make_unique<prueba::RespondeCajas>();
        if (!instalada || !fs::create_directories(c.Ruta("VELDIX/EXE")) || !fs::create_directory(c.Ruta("d")))
            throw std::runtime_error("no tree");
        fs::copy(VELDIX_SOURCE "/runtime/VELDIX/ini", c.Ruta("VELDIX/ini"));
        c.Escribe("VELDIX/ini/ficher.ini", " 1 \r\n 4 \r\n\r\n\r\n\r\n\r\n");
        Tools({});
        Registro("rec", Cfg("SE UNO,R", "3", "ASCII"), "1,0,10,20,0\r\n2,1000,30,40,1\r\n3,2000,50,60,0\r\n");
        c.Escribe("d/rec.hdr", "hola\r\n");
        c.Escribe(
            "d/p.cnf",
            "ver 1.1\r\nPLANTILLA\r\nANALOGICOS\r\n 2 \r\n1%Va%x%V$\r\n2%Ia%x%A$\r\nDIGITALES\r\n1\r\n 1 \r\n"
            "***\r\nGRUPO\r\n 1 \r\n1%Disparo$\r\n-----\r\n");
        c.Escribe("d/v10.cnf", "ver 1.0\r\nVIEJA\r\n-----\r\n");
        Arranca();
    }
    ~MenuPrincipal() override
    {
        PonDialogoFichero(nullptr);
        Termina();
    }
    void Arranca()
    {
        Termina();
        principal =
            std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf"));
        principal->MDIForm_Load();
        if (!store.PlantillaAplicada) throw std::runtime_error("the template was not applied");
    }
    void Termina()
    {
        if (principal) principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        VaciaTextos();
        store = RecordStore{};
    }

    void Tools(const std::vector<std::string>& herramientas) const
    {
        std::string octetos = "1\r\n" + c.Ruta("d") + "\r\n" + c.Ruta() + "\r\n" + c.Ruta("d") + "\r\n" +
                              std::to_string(herramientas.size()) + "\r\n";
        for (const std::string& h : herramientas)
            octetos += '"' + h + "\"\r\n";
        c.Escribe("VELDIX/ini/tools.ini", octetos);
    }
    static std::string Cfg(const char* linea1, const char* muestras, const char* formato)
    {
        return linea1 +
               std::string(
                   "\r\n3,2A,1D\r\n1,VA,A,BARRAS,kV,1,0,0,-9,9\r\n2,IA,A,LINEA,A,1,0,0,-9,9\r\n"
                   "1,TRIP,0\r\n50\r\n1\r\n1000,") +
               muestras + "\r\nfecha\r\nfecha\r\n" + formato + "\r\n";
    }
    void Registro(const std::string& nombre, const std::string& cfg, const char* dat = "1,0,7,8,1\r\n") const
    {
        if (!cfg.empty()) c.Escribe("d/" + nombre + ".cfg", cfg);
        c.Escribe("d/" + nombre + ".dat", dat);
    }
    /// An executable script that leaves the mark.
    std::string Guion(const std::string& nombre) const
    {
        const std::string ruta = c.Escribe(nombre, "#!/bin/sh\necho x > '" + Marca() + "'\n");
        fs::permissions(ruta, fs::perms::owner_all);
        return ruta;
    }
    std::string Marca() const { return c.Ruta("marca"); }
    bool Arranco() const
    {
        return QTest::qWaitFor([this] { return fs::remove(Marca()); }, 5000);
    }
    std::string Ini(const char* nombre) const { return LeeTodo(c.Ruta("VELDIX/ini/") + nombre); }
    std::string Etiqueta() const { return U(Hijo<QLabel>("Etiqueta")->toolTip()); }

    template <class T>
    T* Hijo(const std::string& nombre) const
    {
        T* hijo = principal->findChild<T*>(Q(nombre));
        if (!hijo) throw std::runtime_error("no " + nombre);
        return hijo;
    }
    QAction* Accion(const std::string& nombre) const { return Hijo<QAction>(nombre); }
    /// Runs a command, enabled or not, that shows one box: a language line, or an error's text.
    void Pulsa(const char* nombre, int texto, const char* error = nullptr, Icono icono = Icono::Critico)
    {
        cajas->Espera(error ? error : Textos(texto), icono);
        Pulsa(nombre);
    }
    void Pulsa(const char* nombre)
    {
        Accion(nombre)->setEnabled(true);
        Accion(nombre)->trigger();
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    void AbreMenu(const char* nombre) { Q_EMIT Hijo<QMenu>(nombre)->aboutToShow(); }
    void AbreRegistro(const std::optional<std::string>& dat)
    {
        PonDialogoFichero([=, this](const PeticionFichero& p) {
            EXPECT_EQ(p.titulo + "|" + p.carpeta + "|" + p.filtro,
                      Textos(18) + "|" + c.Ruta("d") + "|Data Files (*.dat)");
            return dat ? std::optional(c.Ruta("d/" + *dat)) : dat;
        });
        Pulsa("mnuAbrirComtrade");
    }

    prueba::Carpeta c;
    std::unique_ptr<prueba::RespondeCajas> cajas;
    std::unique_ptr<MDIForm1> principal;
};

TEST_F(MenuPrincipal, PhasorsOrReportRunTheirTestsInAnotherOrder)
{
    store.FicheroCnf = c.Ruta("d/no.cnf");
    Pulsa("mnuFasores", 0, k53);
    store.FicheroCnf.clear();
    Pulsa("mnuFasores", 0, "Error 75: Path/File access error");
    store.FicheroCnf = c.Ruta("d/v10.cnf");
    Pulsa("mnuFasores", 172);
    store.PlantillaNoValida = true;
    Pulsa("mnuFasores", 246);
    store.FrecMuestras(1) = 30;
    store.FrecLinea = 60;  // half a sample a cycle goes to even
    Pulsa("mnuFasores", 283, nullptr, Icono::Informacion);
    store.FrecMuestras(1) = 0;
    store.FrecMuestreo = 20;
    Pulsa("mnuFasores", 283, nullptr, Icono::Informacion);
    store.FrecLinea = 0;
    Pulsa("mnuFasores", 0, "Error 11: Division by zero");
    store.FicheroHdr.clear();
    Pulsa("mnuInform", 161);
    store.RegistroAbierto = false;
    Pulsa("mnuFasores", 91);
    Pulsa("mnuInform", 91);
    EXPECT_FALSE(store.DFTHecha);
    EXPECT_TRUE(FrmMenu::unica.Cargado()->isVisible());
}

TEST_F(MenuPrincipal, OpeningAMenuEnablesWithoutRecordOrSaysTheWrongThing)
{
    const std::string buena = c.Ruta("d/p.cnf"), vieja = c.Ruta("d/v10.cnf"), ida = c.Ruta("d/no.cnf");
    const struct {
        const char* caso;
        bool abierto;
        std::string cnf;
        std::int16_t canales, grupos;
        int ondas, digital;  ///< language line of the box, 1 for error 53
    } aperturas[] = {
        {"all is well", true, buena, 1, 1, 0, 0},
        {"no groups", true, buena, 1, 0, 0, 92},
        {"no channels", true, buena, 0, 1, 0, 92},
        {"neither", true, buena, 0, 0, 0, 92},
        {"old, no groups", true, vieja, 1, 0, 172, 172},
        {"no template, no groups", true, "", 1, 0, 246, 246},
        {"vanished", true, ida, 1, 1, 1, 1},
        {"no record", false, "", 0, 0, 0, 0},
    };
    for (const auto& a : aperturas) {
        for (const std::string menu : {"mnuOndas", "mnuDigital"}) {
            SCOPED_TRACE(menu + ": " + a.caso);
            const bool ondas = menu == "mnuOndas";
            store.RegistroAbierto = a.abierto;
            store.FicheroCnf = a.cnf;
            store.NumCanalDig = a.canales;
            store.NumGruposDig = a.grupos;
            QAction* const entradas[] = {Accion(ondas ? "mnuCanalog" : "mnuDigGrupos"),
                                         Accion(ondas ? "mnuCompanalog" : "mnuCompdig")};
            for (QAction* e : entradas)
                e->setEnabled(!a.abierto);
            if (const int texto = ondas ? a.ondas : a.digital)
                cajas->Espera(texto == 1 ? k53 : Textos(texto), Icono::Critico);
            AbreMenu(menu.c_str());
            EXPECT_EQ(cajas->Pendientes(), 0U);
            for (const QAction* e : entradas)
                EXPECT_EQ(e->isEnabled(), a.abierto);
        }
    }
}

TEST_F(MenuPrincipal, CommandsKeepTheEarlierWindowOrOldFolders)
{
    Pulsa("mnuCanalog");
    const QPointer<frmNewOndas> primera = frmNewOndas::unica.Cargado();
    ASSERT_TRUE(primera && primera->isVisible());
    Pulsa("mnuCanalog");
    EXPECT_TRUE(!primera || primera->Descargado());
    EXPECT_TRUE(frmNewOndas::unica.Cargado() && frmNewOndas::unica.Cargado()->isVisible());
    store.DirDatos = "/otro";
    Pulsa("mnuDir_defecto");
    EXPECT_EQ(store.DirDatos, c.Ruta("d"));
    EXPECT_TRUE(frmDirect::unica.Cargado() && frmDirect::unica.Cargado()->isVisible());
}

TEST_F(MenuPrincipal, ToolEntriesShowAnOlderListOrStayUsable)
{
    const std::vector<std::string> tres = {"Uno=/bin/true", "Dos=/a=b", "Tres="};
    Tools(tres);
    Arranca();
    EXPECT_TRUE(Hijo<QMenu>("mnuanalisis")->menuAction()->isEnabled());
    const auto comprueba = [this](const char* nombres, bool habilitadas) {
        AbreMenu("mnuanalisis");
        std::string vistos;
        for (const char* i : {"1", "2", "3"}) {
            const QAction* a = Accion(std::string("mnuanal") + i);
            vistos += U(a->text().trimmed()) + "|";
            EXPECT_EQ(a->isEnabled(), habilitadas && !a->text().trimmed().isEmpty()) << nombres << i;
        }
        EXPECT_EQ(vistos, nombres);
    };
    comprueba("Uno|Dos|Tres|", true);
    Tools({"Otro=/bin/true"});
    comprueba("Otro|||", true);
    Tools(tres);
    store.PlantillaAplicada = false;
    comprueba("Uno|Dos|Tres|", false);
    store.PlantillaAplicada = true;
    store.RegistroAbierto = false;
    comprueba("Uno|Dos|Tres|", false);
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    cajas->Espera(k53, Icono::Critico);
    AbreMenu("mnuanalisis");
}

TEST_F(MenuPrincipal, ToolStartsInSpiteOfItsTestsOrWithTheWrongCommand)
{
    Tools({"A=" + Guion("mi guion"), "B=/bin/sh -c \"a=1; touch '" + Marca() + "'\"",
           "C=", "D=" + c.Ruta("no"), "E=" + c.Ruta("d/rec.cfg")});
    Arranca();
    AbreMenu("mnuanalisis");
    Pulsa("mnuanal1");
    EXPECT_TRUE(Arranco()) << "a path with blanks";
    Pulsa("mnuanal2");
    EXPECT_TRUE(Arranco()) << "a command line";
    Pulsa("mnuanal3");
    Pulsa("mnuanal4", 0, k53);
    Pulsa("mnuanal5", 0, k70);
    store.NumGruposDig = 0;
    Pulsa("mnuanal3", 92);
    store.FicheroCnf = c.Ruta("d/v10.cnf");
    Pulsa("mnuanal1", 172);
    store.FicheroCnf = c.Ruta("d/no.cnf");
    Pulsa("mnuanal1", 0, k53);
    store.PlantillaNoValida = true;
    Pulsa("mnuanal1", 246);
    EXPECT_FALSE(fs::exists(Marca()));
}

TEST_F(MenuPrincipal, LanguageSwitchForgetsAMenuASettingsFileOrASessionLine)
{
    const std::pair<const char*, int> entradas[] = {
        {"mnuAbrirComtrade", 7}, {"mnuCerrarComtrade", 282}, {"mnuPlantilla", 8},
        {"mnuAñadirTool", 12},   {"mnuBorrartool", 13},      {"mnuDir_defecto", 192},
        {"mnuEspanol", 58},      {"mnuIngles", 59},          {"mnutraducirCOMTRADE", 255},
        {"mnuSalir", 11},        {"mnuCanalog", 14},         {"mnuCompanalog", 15},
        {"mnuFasores", 3},       {"mnuInform", 4},           {"mnuDigGrupos", 16},
        {"mnuCompdig", 17}};
    const std::pair<const char*, int> menus[] = {{"mnuFicheros", 1}, {"mnuOndas", 2}, {"mnuDigital", 5},
                                                 {"mnuanalisis", 6}, {"mnuTools", 9}, {"mnuIdioma", 10}};
    const auto compruebaRotulos = [&](const char* fichero) {
        const std::vector<std::string> lineas = Lineas(DesdePagina(Ini(fichero)));
        const auto linea = [&](int n) { return lineas.at(static_cast<std::size_t>(n) - 1); };
        for (const auto& [nombre, n] : entradas)
            EXPECT_EQ(U(Accion(nombre)->text()), linea(n)) << nombre;
        for (const auto& [nombre, n] : menus)
            EXPECT_EQ(U(Hijo<QMenu>(nombre)->title()), linea(n)) << nombre;
        EXPECT_EQ(U(Hijo<QPushButton>("cmdSalir")->text()), linea(63));
    };
    const std::string ficher = Ini("ficher.ini"), tools = Ini("tools.ini");
    compruebaRotulos("vdotro.ini");
    store.DirPlantillas = "/otro";

    Pulsa("mnuIngles");
    compruebaRotulos("vdingles.ini");
    EXPECT_EQ(Ini("ficher.ini"), " 0 " + ficher.substr(3));
    EXPECT_EQ(Ini("tools.ini"), "0" + tools.substr(1));
    EXPECT_EQ(store.DirPlantillas, c.Ruta());
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled());

    const int fd = inotify_init1(IN_NONBLOCK);
    ASSERT_GE(inotify_add_watch(fd, c.Ruta("VELDIX/ini").c_str(), IN_OPEN | IN_MOVED_TO | IN_CREATE), 0);
    Pulsa("mnuIngles");
    char octetos[4096];
    EXPECT_LT(read(fd, octetos, sizeof octetos), 0) << "the same language again touches the settings";
    close(fd);

    Pulsa("mnuEspanol");
    compruebaRotulos("vdotro.ini");
    EXPECT_EQ(Ini("ficher.ini"), ficher);
    EXPECT_EQ(Ini("tools.ini"), tools);

    fs::remove(c.Ruta("VELDIX/ini/vdingles.ini"));
    Pulsa("mnuIngles", 0, k53);
    compruebaRotulos("vdotro.ini");
    fs::remove(c.Ruta("VELDIX/ini/ficher.ini"));
    Pulsa("mnuEspanol", 0, k53);
    EXPECT_EQ(Ini("tools.ini"), "0" + tools.substr(1)) << "written though the session file failed";
}

TEST_F(MenuPrincipal, ConverterIsStartedFromTheWrongKeyOrMissedInSilence)
{
    const std::string guion = Guion("el conversor"), clave = "[QORVANT]\r\npath=";
    const auto avisa = [this](const std::string& perfil) {
        SCOPED_TRACE(perfil);
        c.Escribe("VELDIX/ini/perfil.ini", perfil);
        Pulsa("mnutraducirCOMTRADE", 270, nullptr, Icono::Informacion);
    };
    Pulsa("mnutraducirCOMTRADE", 270, nullptr, Icono::Informacion);
    avisa(clave + "   \r\n");
    avisa("[OTRO]\r\npath=" + guion + "\r\n[QORVANT]\r\nruta=" + guion + "\r\n");
    avisa(clave + "/no/hay\r\n");
    avisa(clave + "/" + std::string(200, 'x') + "\r\n");
    EXPECT_EQ(store.FicheroTraducido.size(), 149U);
    c.Escribe("VELDIX/ini/perfil.ini", clave + c.Ruta("d/rec.dat"));
    Pulsa("mnutraducirCOMTRADE", 0, k70);
    c.Escribe("VELDIX/ini/perfil.ini", "[OTRO]\r\npath=/no\r\n" + clave + guion + "\r\n");
    Pulsa("mnutraducirCOMTRADE");
    EXPECT_TRUE(Arranco());
}

TEST_F(MenuPrincipal, CloseKeepsTheRecordOrLosesItsPaths)
{
    AbreMenu("mnuOndas");
    const std::string ficher = Ini("ficher.ini");
    store.DFTHecha = true;
    Pulsa("mnuCerrarComtrade");
    const RecordStore& s = store;
    EXPECT_FALSE(s.RegistroAbierto || s.PlantillaAplicada || s.DFTHecha);
    EXPECT_EQ(s.RevisionCfg + s.AnioCfg + s.FechaInicio + s.FechaDisparo + s.EstacionPlan + s.VersionPlan,
              "000000");
    EXPECT_EQ(s.NombreEstacion + s.FormatoDat + s.VersionPlantilla, "");
    EXPECT_EQ(s.NumAnalog + s.NumDigital + s.NumCanalAnalog + s.NumGruposDig + s.FrecLinea + s.Colores[0], 0);
    EXPECT_TRUE(s.Muestras.Vacia() && s.Canales.Vacia() && s.GruposDig.Vacia() && s.CanalesPlan.Vacia());
    EXPECT_EQ(s.FicheroDat, c.Ruta("d/rec.dat"));
    EXPECT_EQ(s.FicheroCfg, c.Ruta("d/rec.cfg"));
    EXPECT_EQ(s.FicheroHdr, c.Ruta("d/rec.hdr"));
    EXPECT_EQ(s.FicheroCnf, c.Ruta("d/p.cnf"));
    EXPECT_EQ(Etiqueta() + U(Hijo<QLabel>("Etiqueta")->text()), "");
    EXPECT_EQ(Ini("ficher.ini"), ficher);

    EXPECT_TRUE(Accion("mnuCanalog")->isEnabled()) << "before its menu is opened";
    AbreMenu("mnuOndas");
    EXPECT_FALSE(Accion("mnuCanalog")->isEnabled());
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled() && Accion("mnuInform")->isEnabled());
    Pulsa("mnuCerrarComtrade");
}

TEST_F(MenuPrincipal, FailedOpenLosesTheEarlierRecord)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("OTRA,R,1999", "1", "ASCII"));
    store.DFTHecha = true;
    store.NombreEstacion = "MIA";
    for (const bool abierto : {true, false}) {
        if (!abierto) Pulsa("mnuCerrarComtrade");
        const auto estado = [this] {
            const RecordStore& s = store;
            return std::vector<std::string>{
                s.FicheroDat,
                s.FicheroCfg,
                s.FicheroHdr,
                s.NombreEstacion,
                s.RevisionCfg,
                s.FormatoDat,
                Etiqueta(),
                U(principal->windowTitle()),
                Ini("ficher.ini"),
                s.Canales.Vacia() ? "" : s.Canales(2).Nombre,
                std::to_string(s.RegistroAbierto + 2 * s.PlantillaAplicada + 4 * s.DFTHecha + 8 * s.AnioMal),
                s.Muestras.Vacia() ? ""
                                   : std::to_string(std::lround(s.Muestras(3, 2)) + s.MuestrasDig(2, 1))};
        };
        const std::vector<std::string> antes = estado();
        ASSERT_EQ(antes.back(), abierto ? "61" : "");
        AbreRegistro(std::nullopt);
        EXPECT_EQ(estado(), antes) << "cancelled";
        cajas->Espera(Textos(173), Icono::Ninguno);
        AbreRegistro("sincfg.dat");
        EXPECT_EQ(estado(), antes) << "no .cfg";
        cajas->Espera(Textos(174), Icono::Ninguno);
        AbreRegistro("no.dat");
        EXPECT_EQ(estado(), antes) << "no .dat";
        cajas->Espera(".cfg COMTRADE file is not OK, you must check the year of revision ", Icono::Ninguno);
        AbreRegistro("anio.dat");
        EXPECT_EQ(estado(), antes) << "refused year";
    }
}

TEST_F(MenuPrincipal, NewRecordKeepsSamplesOrDropsTheTemplate)
{
    Registro("nuevo.v2", "");
    c.Escribe("d/nuevo.CFG", Cfg("SE DOS,R", "1", "ascii "));
    Registro("formato", Cfg("SE TRES,R", "2", "FLOAT32"));
    store.DFTHecha = true;
    AbreRegistro("nuevo.v2.dat");
    EXPECT_TRUE(store.RegistroAbierto && !store.DFTHecha && store.PlantillaAplicada);
    EXPECT_EQ(store.NombreEstacion, "SE DOS");
    EXPECT_EQ(store.Muestras.UBound(1), 1);
    EXPECT_EQ(store.Muestras(1, 2), 8.0F);
    EXPECT_EQ(store.NumCanalAnalog, 2);
    EXPECT_EQ(store.Canales(2).Nombre, "IA");
    ASSERT_EQ(store.NumGruposDig, 1);
    EXPECT_EQ(store.GruposDig(1).Nombre, "GRUPO");
    EXPECT_EQ(Etiqueta(), c.Ruta("d/nuevo.v2.dat"));
    const std::string sesion = " 1 \r\n 4 \r\n" + c.Ruta("d/nuevo.v2.dat") + "\r\n\r\n" +
                               c.Ruta("d/nuevo.CFG") + "\r\n" + c.Ruta("d/p.cnf") + "\r\n";
    EXPECT_EQ(Ini("ficher.ini"), sesion);

    cajas->Espera(Textos(277), Icono::Ninguno);
    AbreRegistro("formato.dat");
    EXPECT_TRUE(store.RegistroAbierto && store.ErrorFormato);
    EXPECT_EQ(store.NombreEstacion, "SE TRES");
    EXPECT_TRUE(store.Muestras.Vacia() && store.MuestrasDig.Vacia());
    EXPECT_EQ(Etiqueta(), c.Ruta("d/formato.dat"));
    EXPECT_EQ(Ini("ficher.ini"), sesion);
}

}  // namespace
}  // namespace veldix
