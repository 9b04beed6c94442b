#include <QLabel>
#include <QMenu>

#include "shell/forms/frmDirect.h"
#include "support/arbol.h"
#include "templates/forms/frmPlantilla.h"
#include "waves/forms/frmNewOndas.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::ConFinales;

constexpr const char* k53 = "Error 53: File not found";
constexpr const char* k70 = "Error 70: Permission denied";

/// The program started on a record with a template that fits it.
class MenuPrincipal : public prueba::Arbol {
protected:
    MenuPrincipal() { Reinicia({}); }
    void Reinicia(const std::vector<std::string>& herramientas)
    {
        PonTools("1", herramientas);
        Arranca(c.Ruta("d/rec.dat ") + c.Ruta("d/p.cnf"));
        if (!store.PlantillaAplicada) throw std::runtime_error("the template was not applied");
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
    std::string Etiqueta() const { return U(Hijo<QLabel>("Etiqueta")->toolTip()); }

    /// Runs a command, enabled or not, that shows at most one box: a language line or an error's text.
    void Pulsa(const char* nombre, const std::string& texto = {}, Icono icono = Icono::Critico)
    {
        if (!texto.empty()) cajas->Espera(texto, icono);
        Accion(nombre)->setEnabled(true);
        Accion(nombre)->trigger();
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    void Pulsa(const char* nombre, int texto, Icono icono = Icono::Critico)
    {
        Pulsa(nombre, Textos(texto), icono);
    }
    void AbreMenu(const char* nombre)
    {
        Q_EMIT Hijo<QMenu>(nombre)->aboutToShow();
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    void AbreRegistro(const char* dat)
    {
        PonDialogoFichero([=, this](const PeticionFichero& p) {
            EXPECT_EQ(p.titulo + "|" + p.carpeta + "|" + p.filtro,
                      Textos(18) + "|" + c.Ruta("d") + "|Data Files (*.dat)");
            return dat ? std::optional(c.Ruta("d/") + dat) : std::nullopt;
        });
        Pulsa("mnuAbrirComtrade");
    }
};

TEST_F(MenuPrincipal, PhasorsOrReportRunTheirTestsInAnotherOrder)
{
    store.FicheroCnf = c.Ruta("d/no.cnf");
    Pulsa("mnuFasores", k53);
    store.FicheroCnf = c.Ruta("d/v10.cnf");
    Pulsa("mnuFasores", 172);
    store.PlantillaNoValida = true;
    Pulsa("mnuFasores", 246);
    store.FrecMuestras(1) = 30;
    store.FrecLinea = 60;  // half a sample a cycle goes to even
    Pulsa("mnuFasores", 283, Icono::Informacion);
    store.FicheroHdr.clear();
    Pulsa("mnuInform", 161);
    store.RegistroAbierto = false;
    Pulsa("mnuFasores", 91);
    Pulsa("mnuInform", 91);
}

TEST_F(MenuPrincipal, OpeningAMenuEnablesWithoutRecordOrSaysTheWrongThing)
{
    const struct {
        const char *caso, *cnf;
        std::int16_t canales, grupos;
        int ondas, digital;  ///< language line of the box
        bool abierto = true;
    } aperturas[] = {
        {"all is well", "d/p.cnf", 1, 1, 0, 0},
        {"no groups", "d/p.cnf", 1, 0, 0, 92},
        {"no channels", "d/p.cnf", 0, 1, 0, 92},
        {"old, no groups", "d/v10.cnf", 1, 0, 172, 172},
        {"no template, no groups", nullptr, 1, 0, 246, 246},
        {"no record", nullptr, 0, 0, 0, 0, false},
    };
    for (const auto& a : aperturas) {
        for (const bool ondas : {true, false}) {
            SCOPED_TRACE(std::string(a.caso) + (ondas ? ", waves" : ", digital"));
            store.RegistroAbierto = a.abierto;
            store.FicheroCnf = a.cnf ? c.Ruta(a.cnf) : "";
            store.NumCanalDig = a.canales;
            store.NumGruposDig = a.grupos;
            QAction* entrada = Accion(ondas ? "mnuCanalog" : "mnuDigGrupos");
            entrada->setEnabled(!a.abierto);
            if (const int texto = ondas ? a.ondas : a.digital) cajas->Espera(Textos(texto), Icono::Critico);
            AbreMenu(ondas ? "mnuOndas" : "mnuDigital");
            EXPECT_EQ(entrada->isEnabled(), a.abierto);
        }
    }
    store.DirDatos = "/otro";
    AbreMenu("mnuanalisis");
    EXPECT_EQ(store.DirDatos, "/otro") << "the folders of the file are passed over";
    Pulsa("mnuDir_defecto");
    EXPECT_EQ(store.DirDatos, c.Ruta("d")) << "the folders of the file are shown";
    EXPECT_TRUE(frmDirect::unica.Cargado());
    frmDirect::unica.Descarga();
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    Pulsa("mnuDir_defecto", k53);
    EXPECT_TRUE(frmDirect::unica.Cargado()) << "in spite of the error";
}

TEST_F(MenuPrincipal, ToolsShowAnOlderListOrStartInSpiteOfTheirTests)
{
    const std::vector<std::string> herramientas = {"A=" + Guion("mi guion"),
                                                   "B=/bin/sh -c \"a=1; touch '" + Marca() + "'\"",
                                                   "C=", "D=" + c.Ruta("no"), "E=" + c.Ruta("d/rec.cfg")};
    Reinicia(herramientas);
    const auto comprueba = [this](const char* nombres, bool habilitadas) {
        AbreMenu("mnuanalisis");
        std::string vistos;
        for (int i = 1; i <= 5; ++i) {
            const QAction* a = Accion("mnuanal" + std::to_string(i));
            const bool vacia = a->text() == QString(22, ' ');
            vistos += vacia ? "|" : U(a->text()) + "|";
            EXPECT_EQ(a->isEnabled(), habilitadas && !vacia) << nombres << i;
        }
        EXPECT_EQ(vistos, nombres);
    };
    store.PlantillaAplicada = false;
    comprueba("A|B|C|D|E|", false);
    store.PlantillaAplicada = true;
    PonTools("1", {"Otro=/bin/true"});
    comprueba("Otro|||||", true);
    PonTools("1", herramientas);
    comprueba("A|B|C|D|E|", true);

    Pulsa("mnuanal1");
    EXPECT_TRUE(Arranco()) << "a path with blanks";
    Pulsa("mnuanal2");
    EXPECT_TRUE(Arranco()) << "a command line";
    Pulsa("mnuanal3");
    Pulsa("mnuanal4", k53);
    Pulsa("mnuanal5", k70);
    store.NumGruposDig = 0;
    Pulsa("mnuanal1", 92);
    store.FicheroCnf = c.Ruta("d/v10.cnf");
    Pulsa("mnuanal1", 172);
    store.PlantillaNoValida = true;
    Pulsa("mnuanal1", 246);
    EXPECT_FALSE(QTest::qWaitFor([this] { return fs::exists(Marca()); }, 300)) << "started all the same";
}

TEST_F(MenuPrincipal, LanguageSwitchForgetsAMenuASettingsFileOrASessionLine)
{
    const auto rotulos = [this] {
        return U(Hijo<QMenu>("mnuFicheros")->title() + "|" + Hijo<QMenu>("mnuIdioma")->title() + "|" +
                 Accion("mnuAñadirTool")->text() + "|" + Hijo<QPushButton>("cmdSalir")->text());
    };
    const std::string espanol = rotulos(), ingles = "&File|&Language|&Add tool |Exit";
    const std::string ficher = Ini("ficher.ini"), tools = Ini("tools.ini");
    Pulsa("mnuIngles");
    EXPECT_EQ(rotulos(), ingles);
    EXPECT_EQ(Ini("ficher.ini") + Ini("tools.ini"), " 0 " + ficher.substr(3) + "0" + tools.substr(1));
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled());

    c.Escribe("VELDIX/ini/ficher.ini", "not read for the same language");
    Pulsa("mnuIngles");
    c.Escribe("VELDIX/ini/ficher.ini", ficher);
    Pulsa("mnuEspanol");
    EXPECT_EQ(rotulos(), espanol);
    EXPECT_EQ(Ini("ficher.ini") + Ini("tools.ini"), ficher + tools);

    fs::remove(c.Ruta("VELDIX/ini/vdingles.ini"));
    Pulsa("mnuIngles", k53);
    EXPECT_EQ(rotulos(), espanol);
    fs::remove(c.Ruta("VELDIX/ini/ficher.ini"));
    Pulsa("mnuEspanol", k53);
    EXPECT_EQ(Ini("tools.ini"), "0" + tools.substr(1)) << "written though the session file failed";
}

TEST_F(MenuPrincipal, ConverterIsStartedFromTheWrongKeyOrMissedInSilence)
{
    const std::string guion = Guion("el conversor");
    const std::string perfiles[] = {
        "", "[OTRO]|path=" + guion + "|[QORVANT]|path=  ", "[QORVANT]|path=/" + std::string(200, 'x')};
    for (const std::string& perfil : perfiles) {
        SCOPED_TRACE(perfil);
        c.Escribe("VELDIX/ini/perfil.ini", ConFinales(perfil));
        Pulsa("mnutraducirCOMTRADE", 270, Icono::Informacion);
    }
    EXPECT_EQ(store.FicheroTraducido.size(), 149U);
    c.Escribe("VELDIX/ini/perfil.ini", "[QORVANT]\r\npath=" + c.Ruta("d/rec.dat"));
    Pulsa("mnutraducirCOMTRADE", k70);
    c.Escribe("VELDIX/ini/perfil.ini", "[QORVANT]\r\npath=" + guion);
    Pulsa("mnutraducirCOMTRADE");
    EXPECT_TRUE(Arranco());
}

TEST_F(MenuPrincipal, CloseKeepsTheRecordOrLosesItsPaths)
{
    const std::string ficher = Ini("ficher.ini");
    Pulsa("mnuCanalog");
    Pulsa("mnuCerrarComtrade");
    EXPECT_FALSE(frmNewOndas::unica.Cargado());
    const RecordStore& s = store;
    EXPECT_FALSE(s.RegistroAbierto || s.PlantillaAplicada);
    EXPECT_TRUE(s.NombreEstacion.empty() && s.Muestras.Vacia() && s.GruposDig.Vacia());
    EXPECT_EQ(s.FicheroDat + s.FicheroCfg, c.Ruta("d/rec.dat") + c.Ruta("d/rec.cfg"));
    EXPECT_EQ(s.FicheroHdr + s.FicheroCnf, c.Ruta("d/rec.hdr") + c.Ruta("d/p.cnf"));
    EXPECT_EQ(Etiqueta(), "");
    EXPECT_EQ(Ini("ficher.ini"), ficher);
    EXPECT_TRUE(Accion("mnuCanalog")->isEnabled()) << "before its menu is opened";
    AbreMenu("mnuOndas");
    EXPECT_FALSE(Accion("mnuCanalog")->isEnabled());
    EXPECT_TRUE(Accion("mnuFasores")->isEnabled() && Accion("mnuInform")->isEnabled());
}

TEST_F(MenuPrincipal, FailedOpenLosesTheEarlierRecord)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("OTRA,R,1999", "1", "ASCII"));
    store.DFTHecha = true;
    store.NombreEstacion = "MIA";
    const auto estado = [this] {
        const RecordStore& s = store;
        const int banderas = s.RegistroAbierto + 2 * s.PlantillaAplicada + 4 * s.DFTHecha + 8 * s.AnioMal;
        return s.FicheroDat + s.FicheroCfg + s.FicheroHdr + s.NombreEstacion + s.RevisionCfg + Etiqueta() +
               Ini("ficher.ini") + std::to_string(banderas) + " " + std::to_string(s.Muestras(3, 2));
    };
    const std::string antes = estado();
    AbreRegistro(nullptr);
    EXPECT_EQ(estado(), antes) << "cancelled";
    const std::pair<const char*, std::string> casos[] = {
        {"sincfg.dat", Textos(173)},
        {"no.dat", Textos(174)},
        {"anio.dat", ".cfg COMTRADE file is not OK, you must check the year of revision "}};
    for (const auto& [dat, caja] : casos) {
        cajas->Espera(caja, Icono::Ninguno);
        AbreRegistro(dat);
        EXPECT_EQ(estado(), antes) << dat;
        EXPECT_FALSE(frmPlantilla::unica.Cargado()) << "a template is asked for";
    }
}

TEST_F(MenuPrincipal, NewRecordKeepsSamplesTheChooserOrDropsTheTemplate)
{
    Registro("nuevo.v2", "");
    c.Escribe("d/nuevo.CFG", ConFinales(Cfg("SE DOS,R", "1", "ascii ")));
    Registro("formato", Cfg("SE TRES,R", "2", "FLOAT32"));
    store.DFTHecha = true;
    Pulsa("mnuCanalog");
    AbreRegistro("nuevo.v2.dat");
    EXPECT_FALSE(frmNewOndas::unica.Cargado()) << "it lists the channels of the record before";
    EXPECT_TRUE(store.RegistroAbierto && !store.DFTHecha && store.PlantillaAplicada);
    EXPECT_EQ(store.NombreEstacion, "SE DOS");
    EXPECT_EQ(store.Muestras.UBound(1), 1);
    EXPECT_EQ(store.Muestras(1, 2), 8.0F);
    EXPECT_EQ(store.NumCanalAnalog, 2);
    EXPECT_EQ(store.NumGruposDig, 1);
    EXPECT_EQ(Etiqueta(), c.Ruta("d/nuevo.v2.dat"));
    const std::string sesion = ConFinales(" 1 | 4 |" + c.Ruta("d/nuevo.v2.dat") + "||" +
                                          c.Ruta("d/nuevo.CFG") + "|" + c.Ruta("d/p.cnf"));
    EXPECT_EQ(Ini("ficher.ini"), sesion);

    cajas->Espera(Textos(277), Icono::Ninguno);
    AbreRegistro("formato.dat");
    EXPECT_TRUE(store.RegistroAbierto && store.ErrorFormato);
    EXPECT_EQ(store.NombreEstacion, "SE TRES");
    EXPECT_TRUE(store.Muestras.Vacia() && store.MuestrasDig.Vacia());
    EXPECT_EQ(Ini("ficher.ini"), sesion);
}

}  // namespace
}  // namespace veldix
