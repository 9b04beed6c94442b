#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <sys/inotify.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

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

constexpr auto kCritico = Icono::Critico;
constexpr auto kInformacion = Icono::Informacion;
constexpr auto kNinguno = Icono::Ninguno;
constexpr const char* k53 = "Error 53: File not found";
constexpr const char* k75 = "Error 75: Path/File access error";

std::string Cfg(const std::string& linea1, int muestras, const std::string& formato)
{
    return linea1 +
           "\r\n3,2A,1D\r\n1,VA,A,BARRAS,kV,1,0,0,-9,9\r\n2,IA,A,LINEA,A,1,0,0,-9,9\r\n1,TRIP,0\r\n"
           "50\r\n1\r\n1000," +
           std::to_string(muestras) + "\r\n01/02/03,04:05:06.0\r\n01/02/03,04:05:07.0\r\n" + formato + "\r\n";
}

constexpr std::string_view kPlantilla =
    "ver 1.1\r\nPLANTILLA\r\nANALOGICOS\r\n 2 \r\n1%Va%x%V$\r\n2%Ia%x%A$\r\nDIGITALES\r\n1\r\n 1 \r\n***\r\n"
    "GRUPO\r\n 1 \r\n1%Disparo$\r\n-----\r\n";

/// The program started on a record with a template that fits it.
class MenuPrincipal : public testing::Test {
protected:
    MenuPrincipal()
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
        c.Escribe("VELDIX/ini/ficher.ini", " 1 \r\n 4 \r\n\r\n\r\n\r\n\r\n");
        Tools({});
        Registro("rec", Cfg("SE UNO,R", 3, "ASCII"));
        c.Escribe("d/rec.hdr", "hola\r\n");
        c.Escribe("d/p.cnf", kPlantilla);
        c.Escribe("d/v10.cnf", "ver 1.0\r\nVIEJA\r\n-----\r\n");
        principal =
            std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf"));
        principal->MDIForm_Load();
        if (!store.PlantillaAplicada) throw std::runtime_error("the template was not applied");
    }
    ~MenuPrincipal() override
    {
        PonDialogoFichero(nullptr);
        principal->MDIForm_Unload();
        principal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        VaciaTextos();
        store = RecordStore{};
    }

    std::string TextoTools(const std::vector<std::string>& herramientas, const char* idioma = "1") const
    {
        std::string octetos = std::string(idioma) + "\r\n" + c.Ruta("d") + "\r\n" + c.Ruta() + "\r\n" +
                              c.Ruta("VELDIX") + "\r\n" + std::to_string(herramientas.size()) + "\r\n";
        for (const std::string& h : herramientas)
            octetos += '"' + h + "\"\r\n";
        return octetos;
    }
    void Tools(const std::vector<std::string>& herramientas) const
    {
        c.Escribe("VELDIX/ini/tools.ini", TextoTools(herramientas));
    }
    void Registro(const std::string& nombre, const std::string& cfg, const char* dat = nullptr) const
    {
        if (!cfg.empty()) c.Escribe("d/" + nombre + ".cfg", cfg);
        c.Escribe("d/" + nombre + ".dat", dat ? dat : "1,0,10,20,0\r\n2,1000,30,40,1\r\n3,2000,50,60,0\r\n");
    }
    /// An executable script that writes its own mark.
    std::string Guion(const std::string& nombre) const
    {
        const std::string ruta = c.Escribe(nombre, "#!/bin/sh\necho x > '" + Marca() + "'\n");
        fs::permissions(ruta, fs::perms::owner_all);
        return ruta;
    }
    std::string Marca() const { return c.Ruta("marca"); }
    bool Arranco() const
    {
        const bool esta = QTest::qWaitFor([this] { return fs::exists(Marca()); }, 5000);
        fs::remove(Marca());
        return esta;
    }
    std::string Ini(const char* nombre) const { return LeeTodo(c.Ruta("VELDIX/ini/") + nombre); }
    std::string Etiqueta() const { return U(Hijo<QLabel>("Etiqueta")->toolTip()); }

    template <class T>
    T* Hijo(const char* nombre) const
    {
        T* hijo = principal->findChild<T*>(QString::fromUtf8(nombre));
        if (!hijo) throw std::runtime_error(std::string("no ") + nombre);
        return hijo;
    }
    QAction* Accion(const char* nombre) const { return Hijo<QAction>(nombre); }
    void Pulsa(const char* nombre) const
    {
        Accion(nombre)->setEnabled(true);
        Accion(nombre)->trigger();
    }
    void Abre(const char* menu) const { Q_EMIT Hijo<QMenu>(menu)->aboutToShow(); }
    void Espera(const std::string& texto, Icono icono) { cajas->Espera(texto, icono); }
    void Espera(int texto, Icono icono) { cajas->Espera(Textos(texto), icono); }
    void SinPendientes() const { EXPECT_EQ(cajas->Pendientes(), 0U); }

    prueba::Carpeta c;
    std::unique_ptr<prueba::RespondeCajas> cajas;
    std::unique_ptr<MDIForm1> principal;
};

/// A state of the record and the box that a command answers with: a language line or a text.
struct Estado {
    const char* caso;
    std::function<void()> pon;
    int texto;
    const char* error;
    Icono icono;
};

#define CASOS(...) const Estado casos[] = {__VA_ARGS__}

TEST_F(MenuPrincipal, PhasorsTestTheTemplateBeforeTheRateOrTheRecordLast)
{
    const auto vieja = [this] { store.FicheroCnf = c.Ruta("d/v10.cnf"); };
    const auto noValida = [] { store.PlantillaNoValida = true; };
    CASOS({"vanished", [this] { store.FicheroCnf = c.Ruta("d/no.cnf"); }, 0, k53, kCritico},
          {"no template", [] { store.FicheroCnf.clear(); }, 0, k75, kCritico},
          {"old", vieja, 172, nullptr, kCritico}, {"unfit before old", noValida, 246, nullptr, kCritico},
          {"half a cycle goes to even",
           [] {
               store.FrecMuestras(1) = 30;
               store.FrecLinea = 60;
           },
           283, nullptr, kInformacion},
          {"rate of the time stamps",
           [] {
               store.FrecMuestras(1) = 0;
               store.FrecMuestreo = 20;
           },
           283, nullptr, kInformacion},
          {"no line frequency", [] { store.FrecLinea = 0; }, 0, "Error 11: Division by zero", kCritico},
          {"no record", [] { store.RegistroAbierto = false; }, 91, nullptr, kCritico});
    for (const Estado& e : casos) {
        SCOPED_TRACE(e.caso);
        e.pon();
        Espera(e.error ? e.error : Textos(e.texto), e.icono);
        Pulsa("mnuFasores");
        SinPendientes();
        EXPECT_FALSE(store.DFTHecha);
        EXPECT_TRUE(FrmMenu::unica.Cargado()->isVisible());
    }
}

TEST_F(MenuPrincipal, ReportRunsWithoutRecordOrHeader)
{
    store.FicheroHdr.clear();
    Espera(161, kCritico);
    Pulsa("mnuInform");
    store.RegistroAbierto = false;
    Espera(91, kCritico);
    Pulsa("mnuInform");
}

TEST_F(MenuPrincipal, OpeningAMenuEnablesWithoutRecordOrSaysTheWrongThing)
{
    struct Apertura {
        const char* caso;
        std::function<void()> pon;
        bool habilita;
        int ondas, digital;  ///< language line of the box
        const char* error;
    };
    const std::string buena = store.FicheroCnf;
    const Apertura aperturas[] = {
        {"all is well", [] {}, true, 0, 0, nullptr},
        {"no groups", [] { store.NumGruposDig = 0; }, true, 0, 92, nullptr},
        {"no channels", [] { store.NumCanalDig = 0; }, true, 0, 92, nullptr},
        {"neither", [] { store.NumCanalDig = store.NumGruposDig = 0; }, true, 0, 92, nullptr},
        {"old and no groups",
         [this] {
             store.FicheroCnf = c.Ruta("d/v10.cnf");
             store.NumGruposDig = 0;
         },
         true, 172, 172, nullptr},
        {"no template, no groups",
         [] {
             store.FicheroCnf.clear();
             store.NumGruposDig = 0;
         },
         true, 246, 246, nullptr},
        {"vanished", [this] { store.FicheroCnf = c.Ruta("d/no.cnf"); }, true, 0, 0, k53},
        {"no record, no template",
         [] {
             store.RegistroAbierto = false;
             store.FicheroCnf.clear();
         },
         false, 0, 0, nullptr},
    };
    const struct {
        const char *menu, *uno, *dos;
    } menus[] = {{"mnuOndas", "mnuCanalog", "mnuCompanalog"}, {"mnuDigital", "mnuDigGrupos", "mnuCompdig"}};
    for (const Apertura& a : aperturas) {
        for (const auto& m : menus) {
            SCOPED_TRACE(std::string(a.caso) + ", " + m.menu);
            store.RegistroAbierto = true;
            store.FicheroCnf = buena;
            store.NumCanalDig = store.NumGruposDig = 1;
            for (const char* entrada : {m.uno, m.dos})
                Accion(entrada)->setEnabled(!a.habilita);
            a.pon();
            const int texto = &m == menus ? a.ondas : a.digital;
            if (texto != 0) Espera(texto, kCritico);
            if (a.error) Espera(a.error, kCritico);
            Abre(m.menu);
            SinPendientes();
            for (const char* entrada : {m.uno, m.dos})
                EXPECT_EQ(Accion(entrada)->isEnabled(), a.habilita) << entrada;
        }
    }
}

TEST_F(MenuPrincipal, CommandsLeaveTheEarlierWindowLoaded)
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
    Tools({"Uno=/bin/true", "Dos=/a=b", "Tres="});
    principal->MDIForm_Unload();
    principal = std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf"));
    principal->MDIForm_Load();
    EXPECT_TRUE(Hijo<QMenu>("mnuanalisis")->menuAction()->isEnabled());

    const auto comprueba = [this](const char* caso, bool habilitadas,
                                  const std::vector<const char*>& nombres) {
        SCOPED_TRACE(caso);
        Abre("mnuanalisis");
        for (int i = 1; i <= 3; ++i) {
            const QAction* a = Accion(("mnuanal" + std::to_string(i)).c_str());
            const bool esta = i <= static_cast<int>(nombres.size());
            EXPECT_EQ(U(a->text().trimmed()), esta ? nombres[static_cast<std::size_t>(i - 1)] : "") << i;
            EXPECT_EQ(a->isEnabled(), esta && habilitadas) << i;
        }
    };
    comprueba("all", true, {"Uno", "Dos", "Tres"});
    Tools({"Otro=/bin/true"});
    comprueba("fewer", true, {"Otro"});
    Tools({"Uno=/bin/true", "Dos=/a=b", "Tres="});
    store.PlantillaAplicada = false;
    comprueba("no template", false, {"Uno", "Dos", "Tres"});
    store.PlantillaAplicada = true;
    store.RegistroAbierto = false;
    comprueba("no record", false, {"Uno", "Dos", "Tres"});
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    Espera(k53, kCritico);
    Abre("mnuanalisis");
}

TEST_F(MenuPrincipal, ToolStartsInSpiteOfItsTestsOrWithTheWrongCommand)
{
    const std::string conBlancos = Guion("mi guion");
    Tools({"Guion=" + conBlancos, "Orden=/usr/bin/touch " + Marca(), "Vacio=", "No=" + c.Ruta("no"),
           "Fichero=" + c.Ruta("d/rec.cfg"), "Igual=/bin/sh -c \"a=1; touch '" + Marca() + "'\""});
    principal->MDIForm_Unload();
    principal = std::make_unique<MDIForm1>(c.Ruta("VELDIX/EXE"), c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf"));
    principal->MDIForm_Load();
    Abre("mnuanalisis");

    for (const char* arranca : {"mnuanal1", "mnuanal2", "mnuanal6"}) {
        Pulsa(arranca);
        EXPECT_TRUE(Arranco()) << arranca;
    }
    Pulsa("mnuanal3");
    Espera(k53, kCritico);
    Pulsa("mnuanal4");
    Espera("Error 70: Permission denied", kCritico);
    Pulsa("mnuanal5");
    SinPendientes();

    CASOS(
        {"no groups", [] { store.NumGruposDig = 0; }, 92, nullptr, kCritico},
        {"old before no groups", [this] { store.FicheroCnf = c.Ruta("d/v10.cnf"); }, 172, nullptr, kCritico},
        {"vanished", [this] { store.FicheroCnf = c.Ruta("d/no.cnf"); }, 0, k53, kCritico},
        {"unfit before vanished", [] { store.PlantillaNoValida = true; }, 246, nullptr, kCritico});
    for (const Estado& e : casos) {
        SCOPED_TRACE(e.caso);
        e.pon();
        for (const char* entrada : {"mnuanal1", "mnuanal3"}) {
            Espera(e.error ? e.error : Textos(e.texto), e.icono);
            Pulsa(entrada);
            SinPendientes();
        }
    }
    EXPECT_FALSE(fs::exists(Marca()));
}

TEST_F(MenuPrincipal, LanguageSwitchForgetsAMenuASettingsFileOrASessionLine)
{
    store.DirPlantillas = "/otro";
    const std::string ficher = Ini("ficher.ini"), tools = Ini("tools.ini");
    const auto cambiado = [](std::string texto, const char* idioma) {
        return idioma + texto.substr(texto.find("\r\n"));
    };
    const struct {
        const char* nombre;
        int texto;
    } rotulos[] = {{"mnuAbrirComtrade", 7},
                   {"mnuCerrarComtrade", 282},
                   {"mnuPlantilla", 8},
                   {"mnuAñadirTool", 12},
                   {"mnuBorrartool", 13},
                   {"mnuDir_defecto", 192},
                   {"mnutraducirCOMTRADE", 255},
                   {"mnuEspanol", 58},
                   {"mnuIngles", 59},
                   {"mnuSalir", 11},
                   {"mnuCanalog", 14},
                   {"mnuCompanalog", 15},
                   {"mnuFasores", 3},
                   {"mnuInform", 4},
                   {"mnuDigGrupos", 16},
                   {"mnuCompdig", 17}};
    const auto rotulosSon = [&](const char* fichero) {
        const std::vector<std::string> lineas = Lineas(LeeTodo(c.Ruta("VELDIX/ini/") + fichero));
        for (const auto& r : rotulos)
            EXPECT_EQ(Accion(r.nombre)->text(),
                      QString::fromLatin1(lineas.at(static_cast<std::size_t>(r.texto - 1)).c_str()));
        for (int n : {1, 2, 5, 6, 9, 10}) {
            const char* menus[] = {"", "mnuFicheros", "mnuOndas", "", "", "mnuDigital", "mnuanalisis", "",
                                   "", "mnuTools",    "mnuIdioma"};
            EXPECT_EQ(Hijo<QMenu>(menus[n])->title(),
                      QString::fromLatin1(lineas.at(static_cast<std::size_t>(n - 1)).c_str()));
        }
        EXPECT_EQ(Hijo<QPushButton>("cmdSalir")->text(), QString::fromLatin1(lineas.at(62).c_str()));
    };
    rotulosSon("vdotro.ini");

    Accion("mnuIngles")->trigger();
    rotulosSon("vdingles.ini");
    EXPECT_EQ(Ini("ficher.ini"), cambiado(ficher, " 0 "));
    EXPECT_EQ(Ini("tools.ini"), cambiado(tools, "0"));
    EXPECT_EQ(store.DirPlantillas, c.Ruta());
    EXPECT_EQ(store.FicheroIdioma, c.Ruta("VELDIX/ini/vdingles.ini"));
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled());

    const int fd = inotify_init1(IN_NONBLOCK);
    ASSERT_GE(inotify_add_watch(fd, c.Ruta("VELDIX/ini").c_str(), IN_OPEN | IN_MOVED_TO | IN_CREATE), 0);
    Accion("mnuIngles")->trigger();
    char octetos[4096];
    EXPECT_LT(read(fd, octetos, sizeof octetos), 0) << "the same language again touches the settings";
    close(fd);

    Accion("mnuEspanol")->trigger();
    rotulosSon("vdotro.ini");
    EXPECT_EQ(Ini("ficher.ini"), ficher);
    EXPECT_EQ(Ini("tools.ini"), tools);
}

TEST_F(MenuPrincipal, FailedLanguageSwitchBlanksTheMenuOrCutsASettingsFile)
{
    fs::remove(c.Ruta("VELDIX/ini/vdingles.ini"));
    const QString antes = Accion("mnuCanalog")->text();
    Espera(k53, kCritico);
    Accion("mnuIngles")->trigger();
    SinPendientes();
    EXPECT_EQ(Accion("mnuCanalog")->text(), antes);
    EXPECT_EQ(Ini("tools.ini").substr(0, 3), "0\r\n");

    const std::string tools = Ini("tools.ini");
    c.Escribe("VELDIX/ini/ficher.ini", " 0 \r\n 4 \r\na\r\n");
    Espera("Error 62: Input past end of file", kCritico);
    Accion("mnuEspanol")->trigger();
    EXPECT_EQ(Ini("ficher.ini"), " 0 \r\n 4 \r\na\r\n");
    EXPECT_EQ(Ini("tools.ini"), tools);
}

TEST_F(MenuPrincipal, ConverterIsStartedFromTheWrongKeyOrMissedInSilence)
{
    const std::string guion = Guion("el conversor");
    const std::string larga(200, 'x');
    const struct {
        const char* caso;
        const char* perfil;  ///< null for a missing file
        int texto;
        const char* error;
        bool arranca;
    } casos[] = {
        {"no file", nullptr, 270, nullptr, false},
        {"blank", "[QORVANT]\r\npath=   \r\n", 270, nullptr, false},
        {"another section", "[OTRO]\r\npath=GUION\r\n[QORVANT]\r\nruta=GUION\r\n", 270, nullptr, false},
        {"not found", "[QORVANT]\r\npath=/no/hay\r\n", 270, nullptr, false},
        {"too long", "[QORVANT]\r\npath=/LARGA\r\n", 270, nullptr, false},
        {"not to be run", "[QORVANT]\r\npath=REGISTRO\r\n", 0, "Error 70: Permission denied", false},
        {"runs", "[OTRO]\r\npath=/no\r\n[QORVANT]\r\npath=GUION\r\n", 0, nullptr, true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.caso);
        if (caso.perfil) {
            std::string perfil = caso.perfil;
            const std::pair<std::string, std::string> cambios[] = {
                {"GUION", guion}, {"LARGA", larga}, {"REGISTRO", c.Ruta("d/rec.dat")}};
            for (const auto& [que, por] : cambios)
                for (std::size_t p = 0; (p = perfil.find(que, p)) != std::string::npos; p += por.size())
                    perfil.replace(p, que.size(), por);
            c.Escribe("VELDIX/ini/perfil.ini", perfil);
        }
        if (caso.texto != 0) Espera(caso.texto, kInformacion);
        if (caso.error) Espera(caso.error, kCritico);
        Pulsa("mnutraducirCOMTRADE");
        SinPendientes();
        if (caso.arranca) {
            EXPECT_TRUE(Arranco());
        }
        EXPECT_LT(store.FicheroTraducido.size(), 150U);
    }
    EXPECT_EQ(store.FicheroTraducido, guion);
}

TEST_F(MenuPrincipal, CloseKeepsTheRecordOrLosesItsPaths)
{
    Abre("mnuOndas");
    const std::string ficher = Ini("ficher.ini"), dat = store.FicheroDat, dirIni = store.DirIni;
    Accion("mnuCerrarComtrade")->trigger();

    EXPECT_FALSE(store.RegistroAbierto || store.PlantillaAplicada || store.DFTHecha);
    for (const std::string* texto : {&store.RevisionCfg, &store.AnioCfg, &store.FechaInicio,
                                     &store.FechaDisparo, &store.EstacionPlan, &store.VersionPlan})
        EXPECT_EQ(*texto, "0");
    EXPECT_EQ(store.NombreEstacion + store.FormatoDat + store.VersionPlantilla, "");
    EXPECT_EQ(
        store.NumAnalog + store.NumDigital + store.NumCanalAnalog + store.NumGruposDig + store.FrecLinea, 0);
    EXPECT_TRUE(store.Muestras.Vacia() && store.Canales.Vacia() && store.Tiempos.Vacia() &&
                store.GruposDig.Vacia() && store.CanalesPlan.Vacia() && store.FrecMuestras.Vacia());
    EXPECT_EQ(store.FicheroDat, dat);
    EXPECT_EQ(store.FicheroCfg, c.Ruta("d/rec.cfg"));
    EXPECT_EQ(store.FicheroHdr, c.Ruta("d/rec.hdr"));
    EXPECT_EQ(store.FicheroCnf, c.Ruta("d/p.cnf"));
    EXPECT_EQ(store.DirIni, dirIni);
    EXPECT_EQ(store.Idioma, 1);
    EXPECT_EQ(Etiqueta(), "");
    EXPECT_EQ(Hijo<QLabel>("Etiqueta")->text(), "");
    EXPECT_EQ(Ini("ficher.ini"), ficher);

    EXPECT_TRUE(Accion("mnuCanalog")->isEnabled()) << "before its menu is opened";
    Abre("mnuOndas");
    EXPECT_FALSE(Accion("mnuCanalog")->isEnabled());
    Espera(91, kCritico);
    Accion("mnuFasores")->trigger();
    Espera(91, kCritico);
    Accion("mnuInform")->trigger();
    Accion("mnuCerrarComtrade")->trigger();
}

TEST_F(MenuPrincipal, FailedOpenLosesTheEarlierRecord)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("OTRA,R,1999", 1, "ASCII"));
    const struct {
        const char* elegido;
        int texto;  ///< -1 for the year, 0 for none
    } casos[] = {{nullptr, 0}, {"sincfg.dat", 173}, {"no.dat", 174}, {"anio.dat", -1}};
    store.DFTHecha = true;
    store.NombreEstacion = "MIA";
    for (const bool abierto : {true, false}) {
        if (!abierto) Accion("mnuCerrarComtrade")->trigger();
        const std::string titulo = U(principal->windowTitle()), etiqueta = Etiqueta(),
                          ficher = Ini("ficher.ini"), estacion = store.NombreEstacion,
                          revision = store.RevisionCfg, formato = store.FormatoDat;
        for (const auto& caso : casos) {
            SCOPED_TRACE(caso.elegido ? caso.elegido : "cancelled");
            PeticionFichero peticion;
            PonDialogoFichero([&](const PeticionFichero& p) -> std::optional<std::string> {
                peticion = p;
                if (!caso.elegido) return std::nullopt;
                return c.Ruta("d/") + caso.elegido;
            });
            if (caso.texto < 0)
                Espera(".cfg COMTRADE file is not OK, you must check the year of revision ", kNinguno);
            else if (caso.texto > 0)
                Espera(caso.texto, kNinguno);
            Accion("mnuAbrirComtrade")->trigger();
            SinPendientes();

            EXPECT_EQ(peticion.titulo, Textos(18));
            EXPECT_EQ(peticion.carpeta, c.Ruta("d"));
            EXPECT_EQ(peticion.filtro, "Data Files (*.dat)");
            EXPECT_EQ(store.RegistroAbierto, abierto);
            EXPECT_EQ(store.DFTHecha, abierto);
            EXPECT_EQ(store.PlantillaAplicada, abierto);
            EXPECT_FALSE(store.AnioMal);
            EXPECT_EQ(store.FicheroDat, c.Ruta("d/rec.dat"));
            EXPECT_EQ(store.FicheroCfg, c.Ruta("d/rec.cfg"));
            EXPECT_EQ(store.FicheroHdr, c.Ruta("d/rec.hdr"));
            EXPECT_EQ(store.NombreEstacion, estacion);
            EXPECT_EQ(store.RevisionCfg, revision);
            EXPECT_EQ(store.FormatoDat, formato);
            if (abierto) {
                EXPECT_EQ(store.Muestras(3, 2), 60.0F);
                EXPECT_EQ(store.MuestrasDig(2, 1), 1);
                EXPECT_EQ(store.Canales(2).Nombre, "Ia");
            }
            EXPECT_EQ(U(principal->windowTitle()), titulo);
            EXPECT_EQ(Etiqueta(), etiqueta);
            EXPECT_EQ(Ini("ficher.ini"), ficher);
        }
    }
}

TEST_F(MenuPrincipal, NewRecordKeepsSamplesOrDropsTheTemplate)
{
    Registro("nuevo.v2", "", "1,0,7,8,1\r\n");
    c.Escribe("d/nuevo.CFG", Cfg("SE DOS,R", 1, "ascii "));
    Registro("formato", Cfg("SE TRES,R", 2, "FLOAT32"));
    store.DFTHecha = true;
    const auto abre = [this](const char* nombre) {
        PonDialogoFichero([=, this](const PeticionFichero&) { return c.Ruta("d/") + nombre; });
        Accion("mnuAbrirComtrade")->trigger();
        SinPendientes();
    };
    abre("nuevo.v2.dat");
    EXPECT_TRUE(store.RegistroAbierto && !store.DFTHecha);
    EXPECT_EQ(store.NombreEstacion, "SE DOS");
    EXPECT_EQ(store.FormatoDat, "ASCII");
    EXPECT_EQ(store.Muestras.UBound(1), 1);
    EXPECT_EQ(store.Muestras(1, 2), 8.0F);
    EXPECT_EQ(store.Colores[0], 9);
    EXPECT_TRUE(store.PlantillaAplicada);
    EXPECT_EQ(store.NumCanalAnalog, 2);
    EXPECT_EQ(store.Canales(2).Nombre, "IA");
    ASSERT_EQ(store.NumGruposDig, 1);
    EXPECT_EQ(store.GruposDig(1).Nombre, "GRUPO");
    EXPECT_EQ(store.FicheroHdr, "");
    EXPECT_EQ(Etiqueta(), c.Ruta("d/nuevo.v2.dat"));
    const std::string sesion = " 1 \r\n 4 \r\n" + c.Ruta("d/nuevo.v2.dat") + "\r\n\r\n" +
                               c.Ruta("d/nuevo.CFG") + "\r\n" + c.Ruta("d/p.cnf") + "\r\n";
    EXPECT_EQ(Ini("ficher.ini"), sesion);

    Espera(277, kNinguno);
    abre("formato.dat");
    EXPECT_TRUE(store.RegistroAbierto && store.ErrorFormato);
    EXPECT_EQ(store.NombreEstacion, "SE TRES");
    EXPECT_TRUE(store.Muestras.Vacia() && store.MuestrasDig.Vacia() && store.Tiempos.Vacia());
    EXPECT_EQ(Etiqueta(), c.Ruta("d/formato.dat"));
    EXPECT_EQ(Ini("ficher.ini"), sesion);
}

}  // namespace
}  // namespace veldix
