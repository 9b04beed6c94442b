#pragma once

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

#include <functional>
#include <string>
#include <vector>

#include "platform/forms/formulario.h"
#include "platform/forms/iconos.h"
#include "platform/tabla.h"

namespace veldix {

/// The program and its version, as its windows show them.
inline constexpr const char* kTitulo = "VELDIX " VELDIX_VERSION;

/// The child window that stands when no view is open: the program's picture and the menu bar.
class FrmMenu : public Vista {
    Q_OBJECT

public:
    FrmMenu();
    static Portador<FrmMenu> unica;

    /// Unloads the choosers, which list channels and groups of the record and template before.
    static void DescargaSelectores();
    /// The same with all else that is about the record before: set-up pages, its conversion.
    static void OlvidaRegistro();
    /// A template in force makes these commands available.
    void ActivaPlantilla();
    /// Takes the head of `tools.ini` (language, folders); the tools menu gets as many entries as there are
    /// tools and is enabled where there are any. Raises what reading raises.
    void ActivaAnalisis();

    /// What the main window does for the menu.
    struct Principal {
        std::function<void()> descarga = [] {};         ///< ends the program
        std::function<void()> muestraRegistro = [] {};  ///< title and path of an open record
        std::function<void()> rotulos = [] {};          ///< captions of the strip
    };
    static Principal principal;

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void Form_Load();
    void CreaMenus();
    void CreaMenuFicheros();
    QAction* Entrada(QMenu* menu, const QString& nombre, int texto, const QString& defecto);
    QMenu* Submenu(QMenu* menu, const QString& nombre, int texto, const QString& defecto);
    void ConectaMenus();
    void AlDesplegar(QMenu* menu, void (FrmMenu::*manejador)());
    void AjustaHerramientas(int cuenta);
    void ColocaEmblema();
    void PideAncho();
    void PonRotulos();
    void LeeTextos();
    void CambiaIdioma(std::int16_t idioma);

    void mnuAbrirComtrade_Click();
    void mnuCerrarComtrade_Click();
    void mnuPlantilla_Click();
    void mnuAñadirTool_Click();
    void mnuBorrartool_Click();
    void mnuDir_defecto_Click();
    void mnutraducirCOMTRADE_Click();
    void mnuEspanol_Click();
    void mnuIngles_Click();
    void mnuSalir_Click();
    void mnuOndas_Click();
    void mnuCanalog_Click();
    void mnuCompanalog_Click();
    void mnuDigGrupos_Click();
    void mnuCompdig_Click();
    void mnuFasores_Click();
    void mnuInform_Click();
    void mnuDigital_Click();
    void mnuanalisis_Click();
    void mnuanal_Click(int i);

    /// A menu item, the language line of its caption and the caption until that is loaded.
    struct Rotulado {
        QAction* accion;
        int texto;
        QString defecto;
    };
    std::vector<Rotulado> rotulados_;

    QMenuBar* barra_;
    QMenu *mnuFicheros, *mnuOndas, *mnuDigital, *mnuanalisis;
    QAction *mnuFasores, *mnuInform;
    QAction *mnuCanalog, *mnuCompanalog, *mnuDigGrupos, *mnuCompdig;
    std::vector<QAction*> mnuanal;     ///< tool i at i - 1; the first is always there
    Tabla1<std::string> ComandosTool;  ///< 1 to the count of tools and one more, when the menu was opened
    Emblema* Image1 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Lblversion = nullptr;  ///< the last one made
};

}  // namespace veldix
