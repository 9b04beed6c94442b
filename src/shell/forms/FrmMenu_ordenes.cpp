#include <QApplication>
#include <QTimer>

#include "analysis/forms/frmFasecuencias.h"
#include "analysis/modDFT.h"
#include "digital/forms/frmElecdig.h"
#include "digital/forms/frmGrid.h"
#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/programas.h"
#include "platform/perfil.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "record/forms/frmAjustes.h"
#include "shell/ajustes.h"
#include "shell/forms/Conversion.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/frmAbrirComtrade.h"
#include "shell/forms/frmDirect.h"
#include "shell/forms/poscamb.h"
#include "templates/forms/cadena.h"
#include "templates/forms/frmPlantilla.h"
#include "templates/plantilla.h"
#include "tools/forms/frmNuevosTools.h"
#include "tools/herramientas.h"
#include "tools/tools_ini.h"
#include "waves/forms/frmNewCompanalog.h"
#include "waves/forms/frmNewOndas.h"

namespace veldix {

namespace {

constexpr std::size_t kMayorPerfil = 149;  // characters of the converter's command

bool VersionVieja()
{
    return EsVersionVieja(LeerVersionPlantilla(store));
}

}  // namespace

void FrmMenu::DescargaSelectores()
{
    frmNewOndas::unica.Descarga();
    frmNewCompanalog::unica.Descarga();
    frmFasecuencias::unica.Descarga();
    frmElecdig::unica.Descarga();
    frmGrid::unica.Descarga();
}

void FrmMenu::OlvidaRegistro()
{
    DescargaSelectores();
    AbandonaPaginas();
    Conversion::unica.Descarga();
    poscamb::unica.Descarga();
}

void FrmMenu::ConectaMenus()
{
    const auto orden = [this](const char* nombre, auto manejador) {
        Conecta(findChild<QAction*>(nombre), &QAction::triggered, this, manejador);
    };
    orden("mnuAbrirComtrade", &FrmMenu::mnuAbrirComtrade_Click);
    orden("mnuCerrarComtrade", &FrmMenu::mnuCerrarComtrade_Click);
    orden("mnuPlantilla", &FrmMenu::mnuPlantilla_Click);
    orden("mnuAñadirTool", &FrmMenu::mnuAñadirTool_Click);
    orden("mnuBorrartool", &FrmMenu::mnuBorrartool_Click);
    orden("mnuDir_defecto", &FrmMenu::mnuDir_defecto_Click);
    orden("mnutraducirCOMTRADE", &FrmMenu::mnutraducirCOMTRADE_Click);
    orden("mnuEspanol", &FrmMenu::mnuEspanol_Click);
    orden("mnuIngles", &FrmMenu::mnuIngles_Click);
    orden("mnuSalir", &FrmMenu::mnuSalir_Click);
    orden("mnuCanalog", &FrmMenu::mnuCanalog_Click);
    orden("mnuCompanalog", &FrmMenu::mnuCompanalog_Click);
    orden("mnuDigGrupos", &FrmMenu::mnuDigGrupos_Click);
    orden("mnuCompdig", &FrmMenu::mnuCompdig_Click);
    orden("mnuFasores", &FrmMenu::mnuFasores_Click);
    orden("mnuInform", &FrmMenu::mnuInform_Click);
    AlDesplegar(mnuOndas, &FrmMenu::mnuOndas_Click);
    AlDesplegar(mnuDigital, &FrmMenu::mnuDigital_Click);
    AlDesplegar(mnuanalisis, &FrmMenu::mnuanalisis_Click);
}

/// In a window too narrow for its bar the toolkit lends the heads that are left over to a menu of its own,
/// which has no name and does not outlive a message box: there the handler comes when that menu has gone.
void FrmMenu::AlDesplegar(QMenu* menu, void (FrmMenu::*manejador)())
{
    Conecta(menu, &QMenu::aboutToShow, this, [manejador](FrmMenu* form) {
        const QWidget* abierto = QApplication::activePopupWidget();
        if (abierto && abierto->objectName().isEmpty())
            QTimer::singleShot(0, form, [form, manejador] { Atrapa(form, [&] { (form->*manejador)(); }); });
        else
            (form->*manejador)();
    });
}

void FrmMenu::mnuAbrirComtrade_Click()
{
    const bool abierto = frmAbrirComtrade().Carga();
    if (abierto) OlvidaRegistro();
    principal.muestraRegistro();
    if (!abierto) return;
    if (store.FormatoDat == "ASCII") {
        frmPlantilla::unica.Muestra();
        return;
    }
    frmPlantilla::unica.Descarga();  // that of the record before; of a BINARY one it comes behind the choice
    if (store.FormatoDat == "BINARY") poscamb::unica.Muestra();
}

void FrmMenu::mnuCerrarComtrade_Click()
{
    OlvidaRegistro();
    CierraRegistro(store);
    principal.muestraRegistro();
}

void FrmMenu::mnuPlantilla_Click()
{
    frmPlantilla::unica.Muestra();
}

void FrmMenu::mnuAñadirTool_Click()
{
    store.NuevoTool = true;
    frmNuevosTools::unica.Muestra();
}

void FrmMenu::mnuBorrartool_Click()
{
    store.NuevoTool = false;
    frmNuevosTools::unica.Muestra();
}

void FrmMenu::mnuDir_defecto_Click()
{
    escena.leeDirectorios();
    frmDirect::unica.Muestra();
}

void FrmMenu::mnutraducirCOMTRADE_Click()
{
    const std::string orden = ValorPerfil(UneRuta(store.DirIni, "perfil.ini"), "QORVANT", "path");
    store.FicheroTraducido = Izquierda(orden, kMayorPerfil);
    if (Recorta(store.FicheroTraducido).empty()) {
        Avisa(Textos(270), Icono::Informacion);
        return;
    }
    try {
        ArrancaPrograma(store.FicheroTraducido);
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kFicheroNoEncontrado) throw;
        Avisa(Textos(270), Icono::Informacion);
    }
}

void FrmMenu::mnuEspanol_Click()
{
    if (store.Idioma != 1) CambiaIdioma(1);
}

void FrmMenu::mnuIngles_Click()
{
    if (store.Idioma != 0) CambiaIdioma(0);
}

/// Where it fails the language stays, so that the command can be given again.
void FrmMenu::CambiaIdioma(std::int16_t idioma)
{
    const std::int16_t antes = store.Idioma;
    store.Idioma = idioma;
    const bool hecho = Atrapa(this, [this, idioma] {
        CambiaIdiomaFicheros(store, idioma);
        LeeTextos();
        PonRotulos();
    });
    if (!hecho) store.Idioma = antes;
}

void FrmMenu::mnuSalir_Click()
{
    if (Pregunta(Textos(284))) principal.descarga();
}

void FrmMenu::mnuOndas_Click()
{
    mnuCanalog->setEnabled(store.RegistroAbierto);
    mnuCompanalog->setEnabled(store.RegistroAbierto);
    if (!store.RegistroAbierto) return;
    if (store.FicheroCnf.empty())
        Avisa(Textos(246), Icono::Critico);
    else if (VersionVieja())
        Avisa(Textos(172), Icono::Critico);
}

void FrmMenu::mnuCanalog_Click()
{
    frmNewOndas::unica.Muestra();
}

void FrmMenu::mnuCompanalog_Click()
{
    frmNewCompanalog::unica.Muestra();
}

/// At most one box; the entries stay enabled in every case with a record.
void FrmMenu::mnuDigital_Click()
{
    mnuDigGrupos->setEnabled(store.RegistroAbierto);
    mnuCompdig->setEnabled(store.RegistroAbierto);
    if (!store.RegistroAbierto) return;
    if (store.FicheroCnf.empty()) {
        Avisa(Textos(246), Icono::Critico);
    } else if (VersionVieja()) {
        Avisa(Textos(172), Icono::Critico);
    } else if (store.NumCanalDig == 0 || store.NumGruposDig == 0) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(92), Icono::Critico);
    }
}

void FrmMenu::mnuDigGrupos_Click()
{
    frmElecdig::unica.Muestra();
}

void FrmMenu::mnuCompdig_Click()
{
    frmGrid::Abre();
}

void FrmMenu::mnuFasores_Click()
{
    if (!store.RegistroAbierto) {
        Avisa(Textos(91), Icono::Critico);
        return;
    }
    if (MuestrasCiclo(store) == 0) {
        Avisa(Textos(283), Icono::Informacion);
        return;
    }
    if (store.PlantillaAplicada && store.PlantillaNoValida) {
        Avisa(Textos(246), Icono::Critico);
        return;
    }
    if (VersionVieja()) {
        Avisa(Textos(172), Icono::Critico);
        return;
    }
    PonPunteros(this, Puntero::Espera);
    if (!store.DFTHecha) {
        CalculaDFT(store);
        store.DFTHecha = true;  // also after a failure, which is told once
    }
    PonPunteros(this, Puntero::Normal);
    frmFasecuencias::unica.Muestra();
}

void FrmMenu::mnuInform_Click()
{
    if (!store.RegistroAbierto)
        Avisa(Textos(91), Icono::Critico);
    else if (store.FicheroHdr.empty())
        Avisa(Textos(161), Icono::Critico);
    else
        frmAjustes::Abre();
}

/// Entries beyond the tools, which a file changed from outside leaves, are blank.
void FrmMenu::mnuanalisis_Click()
{
    constexpr int kBlancos = 22;
    for (QAction* a : mnuanal)
        a->setEnabled(false);  // also where the settings cannot be read
    const std::vector<std::string> lineas = LeeToolsIni(store).herramientas;
    if (lineas.size() > mnuanal.size()) AjustaHerramientas(static_cast<int>(lineas.size()));
    ComandosTool = Tabla1<std::string>(static_cast<int>(lineas.size()) + 1);
    const bool activas = store.RegistroAbierto && store.PlantillaAplicada;
    for (std::size_t k = 0; k < mnuanal.size(); ++k) {
        const bool hay = k < lineas.size();
        const Herramienta h = hay ? ParteHerramienta(lineas[k]) : Herramienta{};
        mnuanal[k]->setText(hay ? Q(h.nombre) : QString(kBlancos, QLatin1Char(' ')));
        mnuanal[k]->setEnabled(hay && activas);
        if (hay) ComandosTool(static_cast<int>(k) + 1) = h.orden;
    }
}

void FrmMenu::mnuanal_Click(int i)
{
    if (store.RegistroAbierto && store.PlantillaAplicada && store.PlantillaNoValida) {
        Avisa(Textos(246), Icono::Critico);
        return;
    }
    if (VersionVieja()) {
        Avisa(Textos(172), Icono::Critico);
        return;
    }
    if (store.NumGruposDig == 0) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(92), Icono::Critico);
        return;
    }
    if (i <= ComandosTool.Cuantos() && !ComandosTool(i).empty()) ArrancaPrograma(ComandosTool(i));
}

}  // namespace veldix
