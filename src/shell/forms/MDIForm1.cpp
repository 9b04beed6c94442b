#include "shell/forms/MDIForm1.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTime>
#include <QVBoxLayout>

#include <utility>

#include "analysis/forms/frmFases.h"
#include "analysis/forms/frmSecuencias.h"
#include "platform/ficheros.h"
#include "platform/forms/disposicion.h"
#include "platform/forms/escena.h"
#include "platform/forms/formulario.h"
#include "platform/forms/iconos.h"
#include "platform/pantalla.h"
#include "platform/perfil.h"
#include "platform/rutas.h"
#include "platform/textos.h"
#include "record/abrir_registro.h"
#include "record/avance.h"
#include "shell/ajustes.h"
#include "shell/forms/Cancelar.h"
#include "shell/forms/Conversion.h"
#include "shell/forms/FrmMenu.h"
#include "shell/forms/gasolino.h"
#include "shell/forms/gasolino2.h"
#include "shell/forms/gasolino_ondas.h"
#include "shell/forms/traductor.h"
#include "shell/linea_ordenes.h"
#include "templates/plantilla.h"
#include "tools/tools_ini.h"
#include "waves/forms/frmVerCmpang.h"
#include "waves/forms/frmVerOndas.h"

namespace veldix {

namespace {

constexpr int kReloj = 1000;  // ms

/// Forms in the order in which the program's end unloads them.
constexpr const char* kOrdenFinal[] = {
    "Conversion",       "frm19",          "frmAjustes",    "frmAnalog",      "frmAbrirComtrade",
    "frmNewCompanalog", "frmDirect",      "frmDigital",    "frmFases",       "frmFasecuencias",
    "frmGrid",          "frmElecdig",     "FrmMenu",       "frmNuevosTools", "frmNewOndas",
    "frmPlantilla",     "frmSalvaPlan",   "frmSecuencias", "frmTodoanalog",  "frmTrifasic",
    "frmVerCmpang",     "frmVerOndas",    "Mensaje",       "poscamb",        "gasolino",
    "gasolino2",        "gasolino_ondas", "frmBaseModelo"};

void DescargaTodas(const QString& nombre)
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* w : widgets)
        if (auto* form = qobject_cast<Formulario*>(w); form && form->objectName() == nombre) form->Descarga();
}

}  // namespace

MDIForm1::MDIForm1(const std::string& rutaPrograma, std::string linea) : linea_(std::move(linea))
{
    setObjectName("MDIForm1");
    QApplication::setWindowIcon(IconoPrograma());
    store.RutaPrograma = rutaPrograma;
    auto* centro = new QWidget(this);
    auto* columna = new QVBoxLayout(centro);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    area_ = new QMdiArea(centro);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    columna->addWidget(area_, 1);
    CreaTira();
    columna->addWidget(tira_);
    setCentralWidget(centro);
    LlenaGanchos();
}

MDIForm1::~MDIForm1()
{
    MDIForm_Unload();
    escena = {};
    ganchosRegistro = {};
    FrmMenu::principal = {};
}

void MDIForm1::CreaTira()
{
    tira_ = new QWidget(this);
    tira_->setObjectName("tira");
    Etiqueta = new EtiquetaRuta(tira_);
    Etiqueta->setObjectName("Etiqueta");
    mnuTime = new QLabel(tira_);
    mnuTime->setObjectName("mnuTime");
    cmdSalir = new QPushButton("Salir", tira_);
    cmdSalir->setObjectName("cmdSalir");
    Reloj = new QTimer(this);
    Reloj->setObjectName("Reloj");
    tira_->setFixedHeight(cmdSalir->sizeHint().height() + 6);
    connect(cmdSalir, &QPushButton::clicked, this, [this] { cmdSalir_Click(); });
    connect(Reloj, &QTimer::timeout, this, [this] { Reloj_Timer(); });
    Reloj_Timer();
    Reloj->start(kReloj);
}

void MDIForm1::LlenaGanchos()
{
    escena.principal = this;
    escena.area = area_;
    escena.muestraMenu = [this] { MuestraMenu(); };
    escena.ocultaMenu = [this] { OcultaMenu(); };
    escena.leeDirectorios = [] { Atrapa(nullptr, [] { LeeDirectorios(store); }); };
    escena.descargaSelectores = [] { FrmMenu::DescargaSelectores(); };
    escena.activaPlantilla = [] {
        FrmMenu::DescargaSelectores();
        if (FrmMenu* menu = FrmMenu::unica.Cargado()) menu->ActivaPlantilla();
    };
    escena.ActualizaTools = [] {
        if (FrmMenu* menu = FrmMenu::unica.Cargado()) menu->ActivaAnalisis();
    };
    escena.teclaSalir = [this](int tecla, Qt::KeyboardModifiers estado) { return TeclaSalir(tecla, estado); };
    escena.muestraGasolinoOndas = [](const QString& titulo) { gasolino_ondas::unica.CargaNueva(titulo); };
    escena.ponGasolinoOndas = [](int valor) {
        if (gasolino_ondas* g = gasolino_ondas::unica.Cargado()) g->Pon(valor);
    };
    escena.descargaGasolinoOndas = [] { gasolino_ondas::unica.Descarga(); };
    escena.muestraCancelar = [] {
        if (!Cancelar::unica.Cargado()) Cancelar::unica.Muestra();
    };
    escena.descargaCancelar = [] { Cancelar::unica.Descarga(); };
    escena.activaSalir = [this](bool activa) { cmdSalir->setEnabled(activa); };
    ganchosRegistro.EscribeSesion = [] { EscribeSesion(store); };
    ganchosRegistro.MuestraGasolino = [] { gasolino::unica.CargaNueva().show(); };
    ganchosRegistro.DescargaGasolino = [] { gasolino::unica.Descarga(); };
    ganchosRegistro.LlenarGasolino = [](bool relativo, std::int16_t valor) {
        if (gasolino* g = gasolino::unica.Cargado()) g->LlenarGasolino(relativo, valor);
    };
    ganchosRegistro.MuestraGasolino2 = [](int maximo) {
        QProgressBar& barra = *gasolino2::unica.CargaNueva(Conversion::unica.Cargado()).ProgressBar1;
        barra.setRange(0, qMax(1, maximo));  // without a range it would never stand still
        barra.setValue(0);
    };
    ganchosRegistro.PonGasolino2 = [](int valor) {
        if (gasolino2* g = gasolino2::unica.Cargado()) g->ProgressBar1->setValue(valor);
    };
    ganchosRegistro.DescargaGasolino2 = [] { gasolino2::unica.Descarga(); };
    FrmMenu::principal = {[this] { close(); }, [this] { MuestraRegistro(); }, [this] { PonRotulos(); }};
}

void MDIForm1::MuestraMenu()
{
    if (descargado_) return;
    if (FrmMenu* menu = FrmMenu::unica.Cargado()) {
        menu->Ventana().showMaximized();
        area_->setActiveSubWindow(&menu->Ventana());
    }
    for (const QPointer<Formulario>& form : std::exchange(apartadas_, {}))
        if (form && !form->Descargado()) form->show();
}

void MDIForm1::OcultaMenu()
{
    if (FrmMenu* menu = FrmMenu::unica.Cargado()) menu->Ventana().hide();
    for (Formulario* form : findChildren<Formulario*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool deVista = form == gasolino_ondas::unica.Cargado() || form == Cancelar::unica.Cargado();
        if (!form->isWindow() || !form->isVisible() || deVista) continue;
        form->hide();
        apartadas_.emplace_back(form);
    }
}

void MDIForm1::MDIForm_Load()
{
    try {
        const QRect libre = QApplication::primaryScreen()->availableGeometry();
        store.AltoPantalla = ATwips(libre.height());
        store.AnchoPantalla = ATwips(libre.width());
        resize(libre.size() - kMarcoVentana);  // where it is restored, its strip is still on the screen
        move(libre.topLeft());
        store.DirIni = RutaIni(store.RutaPrograma);
        CargaPaginaCodigos(UneRuta(store.DirIni, "perfil.ini"));
        setCursor(Qt::WaitCursor);
        store.RegistroAbierto = false;
        store.PlantillaAplicada = false;
        showMaximized();
        FrmMenu::unica.CargaNueva();
        MuestraMenu();
        setWindowTitle(kTitulo);
        PonRotulos();
        EjecutaLinea();
    } catch (const std::exception&) {
        const ErrorEjecucion e = ErrorEnVuelo();
        PunteroNormal();
        AvisaError(e);
    }
    unsetCursor();
    MuestraMenu();
}

void MDIForm1::EjecutaLinea()
{
    const auto [dat, plantilla] = ParteLinea(linea_);
    if (dat.empty()) return;
    AbreDeLinea(dat);
    PlantillaDeLinea(plantilla);
    ganchosRegistro.DescargaGasolino();
}

/// The record counts as open before it is read, and nothing is tested after it.
void MDIForm1::AbreDeLinea(const std::string& dat)
{
    if (!ExisteFichero(dat)) {
        store.RegistroAbierto = false;
        return;
    }
    NombraPorTronco(store, dat);
    ReiniciaRegistro(store);
    AbrirRegistro(store);
    MuestraRegistro();
}

void MDIForm1::PlantillaDeLinea(const std::string& plantilla)
{
    if (!ExisteFichero(plantilla)) {
        store.PlantillaAplicada = false;
        return;
    }
    store.FicheroCnf = plantilla;
    if (!EsExtensionPlantilla(plantilla)) {
        PunteroNormal();
        Avisa(Textos(147) + " " + plantilla, Icono::Critico);
        return;
    }
    LeerPlantilla(store);
    ganchosRegistro.LlenarGasolino(true, 5);
    if (EsVersionVieja(store.VersionPlan)) return;
    EscribeSesion(store);
    if (FrmMenu* menu = FrmMenu::unica.Cargado()) menu->ActivaPlantilla();
    AplicaPlantilla(store);
    store.PlantillaAplicada = true;
}

void MDIForm1::MuestraRegistro()
{
    setWindowTitle(kTitulo);
    Etiqueta->PonRuta(store.RegistroAbierto ? Q(store.FicheroDat) : QString());
}

void MDIForm1::PonRotulos()
{
    PonTraductor(store.Idioma == 1);
    cmdSalir->setText(Q(Rotulo(63, "Salir")));
    ColocaTira();
}

void MDIForm1::ColocaTira()
{
    const QFontMetrics letra = mnuTime->fontMetrics();
    const int ancho = qMax(letra.horizontalAdvance("00:00 AM"), letra.horizontalAdvance("00:00 PM"));
    mnuTime->resize(ancho + letra.averageCharWidth(), cmdSalir->sizeHint().height());
    cmdSalir->resize(cmdSalir->sizeHint());
    const LugaresTira l =
        veldix::ColocaTira(ATwips(tira_->width()), ATwips(mnuTime->width()), ATwips(cmdSalir->width()));
    const int alto = cmdSalir->height();
    Etiqueta->setGeometry(APixeles(l.izquierdaEtiqueta), 3, qMax(0, APixeles(l.anchoEtiqueta)), alto);
    cmdSalir->move(APixeles(l.izquierdaSalir), 3);
    mnuTime->move(APixeles(l.izquierdaReloj), 3);
}

void MDIForm1::resizeEvent(QResizeEvent* evento)
{
    QMainWindow::resizeEvent(evento);
    tira_->resize(width(), tira_->height());
    ColocaTira();
}

void MDIForm1::Reloj_Timer()
{
    const QTime ahora = QTime::currentTime();
    mnuTime->setText(Q(TextoReloj(ahora.hour(), ahora.minute())));
}

bool MDIForm1::TeclaSalir(int tecla, Qt::KeyboardModifiers estado)
{
    if (estado != Qt::AltModifier || (tecla != Qt::Key_S && tecla != Qt::Key_X)) return false;
    const std::int16_t idioma = LeeIdiomaTools(store);
    const bool salida = (idioma == 0 && tecla == Qt::Key_X) || (idioma == 1 && tecla == Qt::Key_S);
    if (salida) cmdSalir->click();
    return salida;
}

/// The window's own handler takes either letter, while no child and none of their controls has the focus.
void MDIForm1::keyPressEvent(QKeyEvent* evento)
{
    const bool letra = evento->key() == Qt::Key_S || evento->key() == Qt::Key_X;
    if (letra && evento->modifiers() == Qt::AltModifier && !FormularioDe(QApplication::focusWidget()))
        cmdSalir->click();
    else
        QMainWindow::keyPressEvent(evento);
}

/// The view that the strip's button acts on, null where the menu stands.
Vista* MDIForm1::VistaActiva() const
{
    const auto vista = [](QMdiSubWindow* ventana) {
        return ventana && ventana->isVisible() ? qobject_cast<Vista*>(ventana->widget()) : nullptr;
    };
    if (Vista* activa = vista(area_->currentSubWindow())) return activa;
    const auto ventanas = area_->subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto it = ventanas.rbegin(); it != ventanas.rend(); ++it)
        if (Vista* otra = vista(*it)) return otra;
    return nullptr;
}

void MDIForm1::cmdSalir_Click()
{
    Vista* activa = VistaActiva();
    Formulario* form = activa ? activa : FrmMenu::unica.Cargado();
    Atrapa(form, [&] { CierraVista(activa); });
}

void MDIForm1::CierraVista(Vista* vista)
{
    const int que = vista ? vista->Etiqueta() : etiqueta::kMenu;
    if (que == etiqueta::kMenu) {
        if (Pregunta(Textos(284))) close();
        return;
    }
    if (que < etiqueta::kFases || que > etiqueta::kGrid) return;
    switch (que) {
        case etiqueta::kVerOndas:
            CierraOndas();
            break;
        case etiqueta::kVerCmpang:
            CierraComposiciones();
            break;
        case etiqueta::kFases:
        case etiqueta::kSecuencias:
            CierraFasores(*vista);
            break;
        default:
            vista->Descarga();
    }
    MuestraMenu();
}

/// The view, and the other one too where both were opened.
void MDIForm1::CierraFasores(Vista& vista)
{
    vista.Descarga();
    if (store.ModoFasecuencia != 2) return;
    frmFases::unica.Descarga();
    frmSecuencias::unica.Descarga();
}

void MDIForm1::CierraOndas()
{
    for (int r = 1; r <= store.NumAnalog; ++r)
        if (frmVerOndas* ventana = store.VentanaOnda(r)) {
            ventana->setEnabled(true);
            ventana->Descarga();
        }
}

void MDIForm1::CierraComposiciones()
{
    for (frmVerCmpang* ventana : store.VentanaComp)
        if (ventana) ventana->Descarga();
    store.EnPrimario = false;
    store.EnSecundario = false;
}

void MDIForm1::MDIForm_Unload()
{
    if (descargado_) return;
    descargado_ = true;
    Reloj->stop();
    for (const char* nombre : kOrdenFinal)
        DescargaTodas(nombre);
}

/// No question here: those who ask have asked.
void MDIForm1::closeEvent(QCloseEvent* evento)
{
    MDIForm_Unload();
    evento->accept();
}

}  // namespace veldix
