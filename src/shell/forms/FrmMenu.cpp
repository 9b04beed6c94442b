#include "shell/forms/FrmMenu.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "shell/ajustes.h"
#include "tools/tools_ini.h"

namespace veldix {

Portador<FrmMenu> FrmMenu::unica;
FrmMenu::Principal FrmMenu::principal;

namespace {

/// As it stands under the picture.
QString TextoVersion()
{
    return QString("   %1   ").arg(kTitulo);
}

QLabel* CreaTitulo(QWidget* padre, const char* nombre, const QString& texto, double tamano)
{
    auto* l = new QLabel(texto, padre);
    l->setObjectName(nombre);
    l->setTextFormat(Qt::PlainText);
    l->setAlignment(Qt::AlignCenter);
    QFont letra = l->font();
    letra.setPointSizeF(letra.pointSizeF() * tamano);
    l->setFont(letra);
    l->adjustSize();
    return l;
}

}  // namespace

FrmMenu::FrmMenu() : Vista(etiqueta::kMenu)
{
    setObjectName("FrmMenu");
    // The background of the other windows: no frame, so that it is neither moved nor closed.
    Ventana().setWindowFlags(Qt::FramelessWindowHint);
    setAutoFillBackground(true);
    Ventana().setAccessibleName("VELDIX");
    Image1 = new Emblema(this);
    Image1->setObjectName("Image1");
    Label1 = CreaTitulo(this, "Label1", "VELDIX", 2.2);
    CreaMenus();
    ConectaMenus();
    mnuFasores->setEnabled(false);
    mnuInform->setEnabled(false);
    mnuanalisis->menuAction()->setEnabled(false);
    Lblversion = CreaTitulo(this, "Lblversion", TextoVersion(), 1.1);
    PideAncho();
    Atrapa(this, [this] { Form_Load(); });
}

/// No head of the bar is ever left over, see AlDesplegar.
void FrmMenu::PideAncho()
{
    if (escena.principal) escena.principal->setMinimumWidth(barra_->sizeHint().width());
}

/// The order matters: where a settings file fails, the rest is left as it was built.
void FrmMenu::Form_Load()
{
    ActivaAnalisis();
    Ventana().showMaximized();
    ColocaEmblema();
    RepasaSesion(store, nullptr);
    EligeFicheroIdioma(store, store.Idioma == 1);
    LeeTextos();
    PonRotulos();
    mnuFasores->setEnabled(false);
    mnuInform->setEnabled(false);
    Lblversion->setText(TextoVersion());
}

QAction* FrmMenu::Entrada(QMenu* menu, const QString& nombre, int texto, const QString& defecto)
{
    QAction* a = menu ? menu->addAction(defecto) : barra_->addAction(defecto);
    a->setObjectName(nombre);
    rotulados_.push_back({a, texto, defecto});
    return a;
}

QMenu* FrmMenu::Submenu(QMenu* menu, const QString& nombre, int texto, const QString& defecto)
{
    QMenu* m = menu ? menu->addMenu(defecto) : barra_->addMenu(defecto);
    m->setObjectName(nombre);
    rotulados_.push_back({m->menuAction(), texto, defecto});
    return m;
}

void FrmMenu::CreaMenus()
{
    barra_ = new QMenuBar(this);
    barra_->setNativeMenuBar(false);  // two heads of the bar are commands
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setMenuBar(barra_);

    CreaMenuFicheros();
    mnuOndas = Submenu(nullptr, "mnuOndas", 2, "Oscilos");
    mnuCanalog = Entrada(mnuOndas, "mnuCanalog", 14, "Canales analógicos individuales");
    mnuCompanalog = Entrada(mnuOndas, "mnuCompanalog", 15, "Composición de canales analógicos");
    mnuFasores = Entrada(nullptr, "mnuFasores", 3, "Fasores");
    mnuInform = Entrada(nullptr, "mnuInform", 4, "&Info");
    mnuDigital = Submenu(nullptr, "mnuDigital", 5, "Canales digitales");
    mnuDigGrupos = Entrada(mnuDigital, "mnuDigGrupos", 16, "Visualización por grupos");
    mnuCompdig = Entrada(mnuDigital, "mnuCompdig", 17, "Composición de canales digitales");
    mnuanalisis = Submenu(nullptr, "mnuanalisis", 6, "Análisis");
    AjustaHerramientas(1);
}

void FrmMenu::CreaMenuFicheros()
{
    mnuFicheros = Submenu(nullptr, "mnuFicheros", 1, "&Ficheros");
    Entrada(mnuFicheros, "mnuAbrirComtrade", 7, "Abrir ficheros C&OMTRADE");
    Entrada(mnuFicheros, "mnuCerrarComtrade", 282, "Cerrar ficheros &COMTRADE");
    Entrada(mnuFicheros, "mnuPlantilla", 8, "Plan&tillas");
    QMenu* mnuTools = Submenu(mnuFicheros, "mnuTools", 9, "Herramientas de Análisis");
    Entrada(mnuTools, "mnuAñadirTool", 12, "&Añadir herramienta ");
    Entrada(mnuTools, "mnuBorrartool", 13, "Elimina&r herramienta");
    Entrada(mnuFicheros, "mnuDir_defecto", 192, "Configuración de &directorios");
    Entrada(mnuFicheros, "mnutraducirCOMTRADE", 255, "Convertir Oscilos a COMTRADE");
    QMenu* mnuIdioma = Submenu(mnuFicheros, "mnuIdioma", 10, "Idioma");
    Entrada(mnuIdioma, "mnuEspanol", 58, "E&spañol");
    Entrada(mnuIdioma, "mnuIngles", 59, "Ingl&es");
    Entrada(mnuFicheros, "mnuSalir", 11, "Salir");
}

/// The first entry stays without tools too. Names come when the menu is opened.
void FrmMenu::AjustaHerramientas(int cuenta)
{
    for (; static_cast<int>(mnuanal.size()) > qMax(cuenta, 1); mnuanal.pop_back())
        delete mnuanal.back();
    for (int i = static_cast<int>(mnuanal.size()) + 1; i <= cuenta; ++i) {
        QAction* a = mnuanalisis->addAction(QString());
        a->setObjectName(QString("mnuanal%1").arg(i));
        a->setEnabled(false);
        Conecta(a, &QAction::triggered, this, [i](FrmMenu* menu) { menu->mnuanal_Click(i); });
        mnuanal.push_back(a);
    }
}

void FrmMenu::PonRotulos()
{
    for (const Rotulado& r : rotulados_)
        r.accion->setText(Q(Rotulo(r.texto, U(r.defecto))));
    PideAncho();
    principal.rotulos();
}

/// A missing or short file shows its box; captions that it lacks stay the built-in ones.
void FrmMenu::LeeTextos()
{
    Atrapa(this, [] { CargaTextos(store.FicheroIdioma); });
}

/// The picture half the size of the window, with the name above and the version below it.
void FrmMenu::ColocaEmblema()
{
    const int barra = barra_->height();
    const int w = width(), h = height() - barra;
    Image1->setGeometry(w / 4, barra + h / 4, w / 2, h / 2);
    Label1->adjustSize();
    Lblversion->adjustSize();
    const double arriba = Image1->y() - Label1->height() * 1.8;
    Label1->move((w - Label1->width()) / 2, static_cast<int>(arriba));
    const int debajo = Image1->y() + static_cast<int>(Image1->height() + Lblversion->height() * 0.92);
    Lblversion->move((w - Lblversion->width()) / 2,
                     qMin(debajo, barra + h - static_cast<int>(1.5 * Lblversion->height())));
}

void FrmMenu::resizeEvent(QResizeEvent* evento)
{
    Vista::resizeEvent(evento);
    if (Lblversion) ColocaEmblema();
}

/// The background stays as long as the main window.
void FrmMenu::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
}

void FrmMenu::ActivaPlantilla()
{
    mnuFasores->setEnabled(true);
    mnuInform->setEnabled(true);
}

void FrmMenu::ActivaAnalisis()
{
    const std::int16_t cuenta = LeeTools(store);
    AjustaHerramientas(cuenta);
    mnuanalisis->menuAction()->setEnabled(cuenta != 0);
}

}  // namespace veldix
