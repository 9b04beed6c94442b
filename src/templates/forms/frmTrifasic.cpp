#include "templates/forms/frmTrifasic.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "platform/enteros.h"
#include "platform/forms/doble_clic.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "templates/forms/cadena.h"

namespace veldix {

Portador<frmTrifasic> frmTrifasic::unica;

namespace {

constexpr int kGrupos = 4, kFases = 3;
const QColor kBlanco(0xFF, 0xFF, 0xFF), kGris(0x80, 0x80, 0x80);

void PintaCaja(QLineEdit* caja, bool activa)
{
    QPalette p = caja->palette();
    p.setColor(QPalette::Base, activa ? kBlanco : kGris);
    p.setColor(QPalette::Text, Qt::black);
    caja->setPalette(p);
}

}  // namespace

frmTrifasic::frmTrifasic() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmTrifasic");
    setWindowTitle(Q(Rotulo(19, "Grupos trifásicos")));
    CreaControles();
    Dispone();
    Conecta(txtnumTrif, &QLineEdit::textChanged, this, &frmTrifasic::txtnumTrif_Change);
    for (int g = 1; g <= kGrupos; ++g)
        ConectaGrupo(g);
    botones_->ConectaA(this, &frmTrifasic::cmdvolver_Click, &frmTrifasic::cmdOK_Click,
                       &frmTrifasic::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
    Centra(*this);
}

void frmTrifasic::CreaControles()
{
    txtnumTrif = new QLineEdit(this);
    txtnumTrif->setObjectName("txtnumTrif");
    txtnumTrif->setMaximumWidth(txtnumTrif->fontMetrics().averageCharWidth() * 8);
    for (int g = 1; g <= kGrupos; ++g)
        CreaGrupo(g);
    botones_.emplace(this, 38, "Continuar");
}

void frmTrifasic::CreaGrupo(int g)
{
    Grupo& grupo = ElGrupo(g);
    const QString numero = QString::number(g);
    grupo.fmetrif = new QGroupBox(Q(Rotulo(42 + g, "Grupo " + U(numero))), this);
    grupo.fmetrif->setObjectName("fmetrif" + numero);
    grupo.nbTrif = new QLineEdit(grupo.fmetrif);
    grupo.nbTrif->setObjectName("nbTrif" + numero);
    grupo.txtFactor = new QLineEdit(grupo.fmetrif);
    grupo.txtFactor->setObjectName("txtFactor" + numero);
    grupo.ListTrif = new QListWidget(grupo.fmetrif);
    grupo.ListTrif->setObjectName("ListTrif" + numero);
    grupo.ListTrif->setMinimumWidth(grupo.ListTrif->fontMetrics().averageCharWidth() * 30);
    grupo.filas = new FilasRanura(kFases, grupo.fmetrif, {.juego = numero, .nombre = grupo.fmetrif->title()});
    DisponeGrupo(grupo, g);
}

/// Name and factor over the list of channels and the phases.
void frmTrifasic::DisponeGrupo(Grupo& grupo, int g)
{
    const QString numero = QString::number(g);
    auto* nombre = new QHBoxLayout;
    nombre->addWidget(CreaRotulo(grupo.nbTrif, "Label2" + numero, Rotulo(49, "Nombre:")));
    nombre->addWidget(grupo.nbTrif, 3);
    nombre->addWidget(CreaRotulo(grupo.txtFactor, "Label3" + numero, Rotulo(40, "Factor:")));
    nombre->addWidget(grupo.txtFactor, 1);
    for (QWidget* campo : {grupo.nbTrif, grupo.txtFactor})
        campo->setAccessibleName(grupo.fmetrif->title() + ", " + campo->accessibleName());
    auto* rejilla = new QGridLayout(grupo.fmetrif);
    rejilla->addLayout(nombre, 0, 0, 1, 2);
    rejilla->addWidget(CreaRotulo(grupo.ListTrif, "Label4" + numero, Rotulo(41, "Canales disponibles:")), 1,
                       0);
    rejilla->addWidget(CreaRotulo(grupo.filas, "Label5" + numero, Rotulo(42, "Fases del grupo:")), 1, 1);
    grupo.ListTrif->setAccessibleName(grupo.fmetrif->title() + ", " + grupo.ListTrif->accessibleName());
    rejilla->addWidget(grupo.ListTrif, 2, 0);
    rejilla->addWidget(grupo.filas, 2, 1, Qt::AlignTop);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(1, 1);
    rejilla->setRowStretch(2, 1);
}

void frmTrifasic::Dispone()
{
    auto* cuenta = new QHBoxLayout;
    cuenta->addWidget(CreaRotulo(txtnumTrif, "Label1", Rotulo(39, "Número de grupos trifásicos:")));
    cuenta->addWidget(txtnumTrif);
    cuenta->addStretch(1);
    auto* ayuda =
        new QLabel(Q(Rotulo(50, "Un doble clic en un canal lo asigna a la fase marcada en amarillo.")), this);
    ayuda->setObjectName("Label6");
    auto* rejilla = new QGridLayout;
    for (int g = 1; g <= kGrupos; ++g)
        rejilla->addWidget(ElGrupo(g).fmetrif, (g - 1) / 2, (g - 1) % 2);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(cuenta);
    todo->addWidget(ayuda);
    todo->addLayout(rejilla, 1);
    todo->addSpacing(6);
    todo->addLayout(botones_->linea);
}

void frmTrifasic::ConectaGrupo(int g)
{
    const Grupo& grupo = ElGrupo(g);
    ConectaDobleClic(grupo.ListTrif, this, [g](frmTrifasic* f) { f->ListTrif_DblClick(g); });
    Conecta(grupo.filas, &FilasRanura::Click, this, [g](frmTrifasic* f, int p) { f->grp_Click(g, p); });
    Conecta(grupo.filas, &FilasRanura::DblClick, this, [g](frmTrifasic* f, int p) { f->grp_DblClick(g, p); });
    Conecta(grupo.filas, &FilasRanura::Change, this, [g](frmTrifasic* f, int p) { f->grp_Change(g, p); });
    Conecta(grupo.nbTrif, &QLineEdit::textChanged, this, [g](frmTrifasic* f) { f->nbTrif_Change(g); });
    Conecta(grupo.txtFactor, &QLineEdit::textChanged, this, [g](frmTrifasic* f) { f->txtFactor_Change(g); });
}

/// Raises 9.
frmTrifasic::Grupo& frmTrifasic::ElGrupo(int g)
{
    if (g < 1 || g > kGrupos) Lanza(error::kSubindice);
    return grupos_[static_cast<std::size_t>(g - 1)];
}

/// A new template starts without groups, unless this page was left backwards before.
void frmTrifasic::Form_Load()
{
    for (Grupo& grupo : grupos_) {
        grupo.filas->Muestra(grupo.ranuras);
        for (int i = 1; i <= store.NumCanalPlan; ++i)
            grupo.ListTrif->addItem(Q(NombreCanalPlan(store, i)));
        if (grupo.ListTrif->count() > 0) grupo.ListTrif->setCurrentRow(0);
    }
    if (!store.PlantillaNueva || store.HechoTrifasic) MuestraGrupos();
    if (store.NumCanalPlan != 0 && txtnumTrif->text().isEmpty()) txtnumTrif->setText("0");
}

/// The groups of the template set. Their phases are channel numbers, taken for rows of `CanalesPlan` without
/// translation, while the lists give rows: the two agree where the channels are numbered from 1.
void frmTrifasic::MuestraGrupos()
{
    for (int g = 1; g <= store.NumTrifasicPlan; ++g) {
        Grupo& grupo = ElGrupo(g);
        const FilaTrifasic& fila = store.TrifasicPlan(g);
        grupo.nbTrif->setText(Q(fila.Nombre));
        grupo.txtFactor->setText(Q(fila.Factor));
        for (int p = 1; p <= kFases; ++p)
            if (fila.Fase(p) != 0) grupo.ranuras.Llena(p, NombreCanalPlan(store, fila.Fase(p)), fila.Fase(p));
        grupo.filas->Muestra(grupo.ranuras);
    }
    ActivaGrupos(store.NumTrifasicPlan);
    txtnumTrif->setText(Q(FormaDelimitada(store.NumTrifasicPlan)));
}

/// Groups 1 to `cuantos`, each with its first phase to be filled next; the others are out of reach.
void frmTrifasic::ActivaGrupos(int cuantos)
{
    for (int g = 1; g <= kGrupos; ++g) {
        Grupo& grupo = ElGrupo(g);
        const bool activo = g <= cuantos;
        grupo.fmetrif->setEnabled(activo);
        PintaCaja(grupo.nbTrif, activo);
        PintaCaja(grupo.txtFactor, activo);
        if (activo)
            grp_Click(g, 1);
        else
            grupo.filas->Desmarca();
    }
}

/// The last character is converted for itself: behind a number a blank or a separator is refused too.
void frmTrifasic::txtnumTrif_Change()
{
    AvisaTipos(187, Icono::Critico, [this] {
        const std::string texto = U(txtnumTrif->text());
        if (!texto.empty()) NumeroLocal(Derecha(texto, 1));
        store.NumTrifasicPlan = texto.empty() ? std::int16_t{0} : Entero16Local(texto);
        if (store.NumTrifasicPlan < 0 || store.NumTrifasicPlan > kGrupos) {
            PunteroNormal();
            Avisa(Textos(87), Icono::Critico);
            return;
        }
        ActivaGrupos(store.NumTrifasicPlan);
    });
}

void frmTrifasic::ListTrif_DblClick(int g)
{
    Grupo& grupo = ElGrupo(g);
    const int indice = grupo.ListTrif->currentRow();
    if (indice < 0) return;
    if (grupo.ranuras.Pon(U(grupo.ListTrif->item(indice)->text()), indice + 1) == Ranuras::Puesta::Llena) {
        PunteroNormal();
        Avisa(g == kGrupos ? "El número máximo de canales analogicos es 3" : Textos(271), Icono::Critico);
        return;
    }
    grupo.filas->Muestra(grupo.ranuras);
}

void frmTrifasic::grp_Click(int g, int p)
{
    Grupo& grupo = ElGrupo(g);
    grupo.ranuras.Marca(p);
    grupo.filas->Muestra(grupo.ranuras);
}

void frmTrifasic::grp_DblClick(int g, int p)
{
    Grupo& grupo = ElGrupo(g);
    grupo.ranuras.Vacia(p);
    grupo.filas->Muestra(grupo.ranuras);
}

void frmTrifasic::grp_Change(int g, int p)
{
    AvisaSeparadores(ElGrupo(g).ranuras(p).texto);
}

void frmTrifasic::nbTrif_Change(int g)
{
    AvisaSeparadores(U(ElGrupo(g).nbTrif->text()));
}

/// The factor is only tried: the text is what is kept.
void frmTrifasic::txtFactor_Change(int g)
{
    const std::string texto = U(ElGrupo(g).txtFactor->text());
    if (texto.empty()) return;
    AvisaTipos(186, Icono::Critico, [&] { Single(NumeroLocal(texto)); });
}

/// Phases of group `g` into its row of `TrifasicPlan`; false, with its message, at the first that is missing.
/// The message names group 1 whichever group it is.
bool frmTrifasic::GuardaFases(int g)
{
    const Ranuras& ranuras = ElGrupo(g).ranuras;
    for (int p = 1; p <= kFases; ++p) {
        if (ranuras(p).numero.empty()) {
            Avisa(Textos(43) + " : " + Textos(273), Icono::Informacion);
            show();
            return false;
        }
        const int fila = Entero16(Val(ranuras(p).numero));
        store.TrifasicPlan(g).Fase(p) = Entero16Local(store.CanalesPlan(fila).Numero);
    }
    return true;
}

/// Sizes `TrifasicPlan` anew and fills it, phases before names; what is refused leaves it as far as it came.
/// With no groups it stays as it was.
bool frmTrifasic::GuardaGrupos()
{
    if (store.NumTrifasicPlan == 0) return true;
    bool guardados = false;
    AvisaTipos(273, Icono::Ninguno, [&] {
        store.TrifasicPlan = Tabla1<FilaTrifasic>(store.NumTrifasicPlan);
        for (int g = 1; g <= store.NumTrifasicPlan; ++g)
            if (!GuardaFases(g)) return;
        for (int g = 1; g <= store.NumTrifasicPlan; ++g) {
            store.TrifasicPlan(g).Nombre = U(ElGrupo(g).nbTrif->text());
            store.TrifasicPlan(g).Factor = U(ElGrupo(g).txtFactor->text());
        }
        guardados = true;
    });
    return guardados;
}

void frmTrifasic::cmdOK_Click()
{
    if (!GuardaGrupos()) return;
    hide();
    AbreDigital();
}

void frmTrifasic::cmdvolver_Click()
{
    if (!GuardaGrupos()) return;
    hide();
    store.HechoTrifasic = true;
    MuestraAnalogicos();
}

void frmTrifasic::TrasCierre()
{
    MuestraAnalogicos();
}

void frmTrifasic::TrasError()
{
    Descarga();
    TrasCierre();
}

void frmTrifasic::cmdcancel_Click()
{
    CancelaPaginas();
}

}  // namespace veldix
