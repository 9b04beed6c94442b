#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "shell/forms/Mensaje.h"
#include "shell/forms/frmDirect.h"
#include "shell/forms/gasolino.h"
#include "support/arbol.h"
#include "waves/forms/frmNewOndas.h"
#include "waves/forms/frmVerOndas.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::ConFinales;

constexpr const char* k53 = "Error 53: File not found";
constexpr const char* kAnio = ".cfg COMTRADE file is not OK, you must check the year of revision ";
constexpr const char* k62 = "Error 62: Input past end of file";

class Inicio : public prueba::Arbol {
protected:
    /// "d/" stands for the folder of records.
    std::string Rutas(std::string texto) const
    {
        for (std::size_t p = 0; (p = texto.find("d/", p)) != std::string::npos; p += c.Ruta("d/").size())
            texto.replace(p, 2, c.Ruta("d/"));
        return texto;
    }
    FrmMenu* Menu() const { return FrmMenu::unica.Cargado(); }
    QPushButton* cmdSalir() const { return Hijo<QPushButton>("cmdSalir"); }
    void EsperaSalir(bool aceptar)
    {
        cajas->Espera(Textos(284), Icono::Pregunta, Botones::AceptarCancelar, aceptar);
    }
    void AbreDosOndas() const
    {
        frmNewOndas& selector = frmNewOndas::unica.CargaNueva();
        selector.show();
        auto* lista = Hijo<QListWidget>("List1", &selector);
        for (int i = 0; i < 2; ++i) {
            lista->setCurrentRow(i);
            Q_EMIT lista->itemDoubleClicked(lista->item(i));
        }
        Hijo<QPushButton>("cmdOK", &selector)->click();
        if (store.NumVentanasOnda != 2) throw std::runtime_error("no two windows");
    }
};

TEST_F(Inicio, CommandLineOpensTheWrongFilesOrWritesTheWrongSession)
{
    Registro("sincfg", "");
    Registro("anio", Cfg("SE,R,1999", "1", "ASCII"));
    Registro("r.v2", "");
    c.Escribe("d/r.v2.CFG", ConFinales(Cfg("SE,R", "1", "ASCII")));
    for (const char* copia : {"d/P2.CNF", "d/p.Cnf"})
        fs::copy(c.Ruta("d/p.cnf"), c.Ruta(copia));
    const std::string rec = "d/rec.dat|d/rec.hdr|d/rec.cfg|";
    const struct {
        const char* linea;
        int texto;  ///< of the box: a language line, 0 for none, 1 for the year
        bool abierto, plantilla;
        const char *etiqueta, *cnf;
        std::string sesion;  ///< the four last lines of the session file
    } lineas[] = {
        {"   ", 0, false, false, "", "", "|||"},
        {"  d/rec.dat    d/P2.CNF ", 0, true, true, "d/rec.dat", "d/P2.CNF", rec + "d/P2.CNF"},
        {"d/no.dat d/p.cnf", 0, false, true, "", "d/p.cnf", "|||d/p.cnf"},
        {"d/rec.dat d/no.cnf", 0, true, false, "d/rec.dat", "", rec},
        {"d/rec.dat d/p.Cnf", 147, true, false, "d/rec.dat", "d/p.Cnf", rec},
        {"d/rec.dat d/v10.cnf", 172, true, false, "d/rec.dat", "d/v10.cnf", rec},
        {"d/sincfg.dat", 277, true, false, "d/sincfg.dat", "", "|||"},
        {"d/anio.dat", 1, true, false, "d/anio.dat", "", "|||"},
        {"d/r.v2.dat", 0, true, false, "d/r.v2.dat", "", "d/r.v2.dat||d/r.v2.CFG|"},
    };
    for (const auto& l : lineas) {
        SCOPED_TRACE(l.linea);
        PonIni("1");
        CargaTextos(c.Ruta("VELDIX/ini/vdotro.ini"));
        const std::string cnf = Rutas(l.cnf);
        const std::string caja = l.texto == 0     ? ""
                                 : l.texto == 147 ? Textos(147) + " " + cnf
                                 : l.texto == 1   ? kAnio
                                                  : Textos(l.texto);
        if (l.texto != 0)
            cajas->Espera(caja, l.texto == 147 || l.texto == 172 ? Icono::Critico : Icono::Ninguno);
        Arranca(Rutas(l.linea));

        EXPECT_EQ(store.RegistroAbierto, l.abierto);
        EXPECT_EQ(store.PlantillaAplicada, l.plantilla);
        EXPECT_EQ(store.FicheroCnf, cnf);
        EXPECT_EQ(U(Hijo<QLabel>("Etiqueta")->toolTip()), Rutas(l.etiqueta));
        EXPECT_EQ(Accion("mnuFasores")->isEnabled(), l.plantilla);
        EXPECT_EQ(Ini("ficher.ini"), ConFinales(Rutas(" 1 | 4 |" + l.sesion)));
        EXPECT_TRUE(Menu() && Menu()->isVisible() && Menu()->Ventana().isMaximized());
        EXPECT_FALSE(gasolino::unica.Cargado());
        if (!l.abierto || !l.plantilla) continue;
        EXPECT_EQ(store.NumAnalog, 2);
        EXPECT_EQ(store.NumCanalAnalog, 3) << "the template is fitted to the record";
    }
}

TEST_F(Inicio, DamagedSettingsStopTheProgramOrAreCut)
{
    const struct {
        const char *fichero, *lineas, *caja;  ///< null lines for a missing file
        const char* rotulos;                  ///< of two menus and the strip's button
        bool analisis;
    } averias[] = {
        {"ficher.ini", nullptr, k53, "&Ficheros|Oscilos|Salir", true},
        {"ficher.ini", " 0 | 4 |a|b|c", k62, "&Ficheros|Oscilos|Salir", true},
        {"ficher.ini", " 0 | 5 |a|b,1|c|d|e", nullptr, "&File|&Waveforms|Exit", true},
        {"tools.ini", nullptr, k53, "&Ficheros|Oscilos|Salir", false},
        {"tools.ini", "0|a|b|c|x", "Error 13: Type mismatch", "&Ficheros|Oscilos|Salir", false},
        {"vdingles.ini", nullptr, k53, "&Ficheros|Oscilos|Salir", true},
        {"vdingles.ini", "&File", k62, "&File|Oscilos|Salir", true},
    };
    for (const auto& a : averias) {
        SCOPED_TRACE(std::string(a.fichero) + ": " + (a.lineas ? a.lineas : "missing"));
        PonIni("0", {"T=/bin/true"});
        const std::string ruta = c.Ruta("VELDIX/ini/") + a.fichero;
        fs::remove(ruta);
        if (a.lineas) c.Escribe(ruta, ConFinales(a.lineas));
        if (a.caja) cajas->Espera(a.caja, Icono::Critico);
        Arranca(c.Ruta("d/rec.dat"));

        EXPECT_EQ(U(Hijo<QMenu>("mnuFicheros")->title() + "|" + Hijo<QMenu>("mnuOndas")->title() + "|" +
                    cmdSalir()->text()),
                  a.rotulos);
        EXPECT_EQ(Hijo<QMenu>("mnuanalisis")->menuAction()->isEnabled(), a.analisis);
        EXPECT_TRUE(Menu()->isVisible());
        EXPECT_TRUE(store.RegistroAbierto) << "a record of the command line is lost with the settings";
        EXPECT_GE(principal->minimumWidth(), Hijo<QMenuBar>("")->sizeHint().width())
            << "a menu is lent to the bar's own one, which a message box ends";
    }
    PonIni("0");
    fs::permissions(c.Ruta(), fs::perms(0755));
    fs::permissions(c.Ruta("VELDIX/ini"), fs::perms(0555));
    {
        const prueba::SinPrivilegios nadie;
        Arranca();
    }
    fs::permissions(c.Ruta("VELDIX/ini"), fs::perms::owner_all);
    EXPECT_EQ(U(cmdSalir()->text()), "Exit") << "settings that need no change were to be written";
}

/// On a form the letter of the language, on the strip either letter, on a message box none.
TEST_F(Inicio, ExitKeyAnswersInTheWrongLanguageOrShiftState)
{
    constexpr auto kAlt = Qt::AltModifier;
    Arranca(c.Ruta("d/rec.dat"));
    frmNewOndas& selector = frmNewOndas::unica.CargaNueva();
    selector.show();
    QMessageBox caja(QMessageBox::Critical, "VELDIX", "aviso", QMessageBox::Ok, &selector);
    QWidget* lista = Hijo<QListWidget>("List1", &selector);
    const struct {
        QWidget* foco;
        const char* idioma;  ///< line 1 of tools.ini
        Qt::Key tecla;
        Qt::KeyboardModifiers estado;
        bool pregunta;
    } pulsaciones[] = {{&Menu()->Ventana(), "1", Qt::Key_S, kAlt, true},
                       {lista, "1", Qt::Key_S, kAlt, true},
                       {lista, "1", Qt::Key_X, kAlt, false},
                       {lista, "0", Qt::Key_X, kAlt, true},
                       {lista, "2", Qt::Key_S, kAlt, false},
                       {cmdSalir(), "1", Qt::Key_X, kAlt, true},
                       {cmdSalir(), "2", Qt::Key_S, kAlt, true},
                       {cmdSalir(), "1", Qt::Key_S, kAlt | Qt::ShiftModifier, false},
                       {caja.button(QMessageBox::Ok), "1", Qt::Key_S, kAlt, false}};
    for (const auto& p : pulsaciones) {
        SCOPED_TRACE(testing::Message() << "row " << &p - pulsaciones);
        if (p.foco->window() == &caja) caja.open();
        PonTools(p.idioma);
        p.foco->window()->activateWindow();
        p.foco->setFocusPolicy(Qt::StrongFocus);
        p.foco->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == p.foco; }, 1000));
        if (p.pregunta) EsperaSalir(false);
        QTest::keyClick(p.foco, p.tecla, p.estado);
        EXPECT_EQ(cajas->Pendientes(), 0U);
    }
    caja.close();
    fs::remove(c.Ruta("VELDIX/ini/tools.ini"));
    cajas->Espera(k53, Icono::Critico);
    QTest::keyClick(Menu(), Qt::Key_S, kAlt);
    EXPECT_TRUE(Menu());
}

TEST_F(Inicio, StripLeavesTheWaveWindowsOrTheMenuHidden)
{
    Arranca(c.Ruta("d/rec.dat"));
    auto* area = principal->findChild<QMdiArea*>();
    for (const bool cierraUna : {true, false}) {
        AbreDosOndas();
        EXPECT_FALSE(Menu()->isVisible());
        store.EnPrimario = true;
        if (cierraUna) {
            area->setActiveSubWindow(&store.VentanaOnda(2)->Ventana());
            store.VentanaOnda(2)->Ventana().close();
            EXPECT_EQ(area->activeSubWindow(), &store.VentanaOnda(1)->Ventana());
        }
        cmdSalir()->click();
        EXPECT_EQ(store.NumVentanasOnda, 0);
        EXPECT_FALSE(store.EnPrimario);
        EXPECT_TRUE(Menu()->isVisible() && Menu()->Ventana().isMaximized());
    }
    EsperaSalir(false);
    cmdSalir()->click();
}

TEST_F(Inicio, LeavingAsksNotOrWritesOrLeavesFormsLoaded)
{
    const std::pair<std::function<void()>, bool> caminos[] = {
        {[this] { cmdSalir()->click(); }, true},
        {[this] { Accion("mnuSalir")->trigger(); }, true},
        {[this] { principal->close(); }, false}};
    for (const auto& [sal, pregunta] : caminos) {
        PonIni("1");
        Arranca(c.Ruta("d/rec.dat"));
        frmDirect::unica.CargaNueva().show();
        Mensaje::unica.CargaNueva([] {}).show();
        c.Escribe("VELDIX/ini/ficher.ini", "as it was");
        if (pregunta) {
            EsperaSalir(false);
            sal();
            EXPECT_TRUE(Menu() && frmDirect::unica.Cargado() && principal->isVisible());
            EsperaSalir(true);
        }
        sal();
        EXPECT_EQ(cajas->Pendientes(), 0U);
        EXPECT_FALSE(Menu() || frmDirect::unica.Cargado() || Mensaje::unica.Cargado());
        EXPECT_FALSE(principal->isVisible());
        EXPECT_EQ(Ini("ficher.ini"), "as it was");
    }
}

}  // namespace
}  // namespace veldix
