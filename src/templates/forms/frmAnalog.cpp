#include "templates/forms/frmAnalog.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "templates/conjunto_plantilla.h"
#include "templates/forms/cadena.h"

namespace veldix {

Portador<frmAnalog> frmAnalog::unica;

namespace {

enum Columna { kNombre = 1, kCircuito, kUnidades };

}  // namespace

frmAnalog::frmAnalog() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmAnalog");
    setWindowTitle(Q(Rotulo(31, "Canales Analógicos")));
    CreaControles();
    Dispone();
    Conecta(txtIdentif, &QPlainTextEdit::textChanged, this, &frmAnalog::txtIdentif_Change);
    Conecta(txtnumAnalog, &QLineEdit::textChanged, this, &frmAnalog::txtnumAnalog_Change);
    Conecta(cmdmodelos, &QPushButton::clicked, this, &frmAnalog::cmdmodelos_Click);
    botones_->ConectaA(this, &frmAnalog::cmdvolver_Click, &frmAnalog::cmdOK_Click,
                       &frmAnalog::cmdcancel_Click);
    Atrapa(this, [this] { Form_Load(); });
    Centra(*this);
}

void frmAnalog::CreaControles()
{
    txtIdentif = new QPlainTextEdit(this);
    txtIdentif->setObjectName("txtIdentif");
    txtIdentif->setTabChangesFocus(true);
    const int margenes =
        2 * txtIdentif->frameWidth() + static_cast<int>(2 * txtIdentif->document()->documentMargin());
    txtIdentif->setFixedHeight(5 * txtIdentif->fontMetrics().lineSpacing() / 2 + margenes);
    txtnumAnalog = new QLineEdit(this);
    txtnumAnalog->setObjectName("txtnumAnalog");
    txtnumAnalog->setMaximumWidth(txtnumAnalog->fontMetrics().averageCharWidth() * 8);
    cmdmodelos = CreaBoton(this, "cmdmodelos", 259, "Modelos");
    vaSpread1 = new Rejilla(kUnidades, this);
    vaSpread1->setObjectName("vaSpread1");
    vaSpread1->setAccessibleName(windowTitle());
    botones_.emplace(this, 38, "Continuar");
}

void frmAnalog::Dispone()
{
    lblIdentif = CreaRotulo(txtIdentif, "lblIdentif", Rotulo(32, "Identificación:"));
    lblnumAnalog = CreaRotulo(txtnumAnalog, "lblnumAnalog", Rotulo(33, "Número de canales analógicos:"));
    auto* datos = new QGridLayout;
    datos->addWidget(lblIdentif, 0, 0, Qt::AlignTop);
    datos->addWidget(txtIdentif, 0, 1, 1, 3);
    datos->addWidget(lblnumAnalog, 1, 0);
    datos->addWidget(txtnumAnalog, 1, 1);
    datos->addWidget(cmdmodelos, 1, 3);
    datos->setColumnStretch(2, 1);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(datos);
    todo->addSpacing(6);
    todo->addWidget(vaSpread1, 1);
    todo->addSpacing(6);
    todo->addLayout(botones_->linea);
}

void frmAnalog::Form_Load()
{
    const PaginaAnalogica pagina = AbreAnalogicos(store);
    txtIdentif->setPlainText(Q(pagina.Identificacion));
    txtnumAnalog->setText(Q(FormaDelimitada(pagina.Cuenta)));
    vaSpread1->PonAnchos(7, {23, 8, 8});
    PonTitulos();
    MuestraFilas(pagina.Cuenta);
}

void frmAnalog::PonTitulos()
{
    vaSpread1->PonTitulos(Rotulo(34, "Canal"),
                          {Rotulo(35, "Nombre"), Rotulo(36, "Circuito"), Rotulo(37, "Unidades")});
}

/// Rows 1 to `filas` from `CanalesPlan`, empty where it has fewer.
void frmAnalog::MuestraFilas(int filas)
{
    for (int r = 1; r <= filas; ++r) {
        const FilaCanal fila = r <= store.CanalesPlan.Cuantos() ? store.CanalesPlan(r) : FilaCanal{};
        vaSpread1->PonTexto(r, kNombre, fila.Nombre);
        vaSpread1->PonTexto(r, kCircuito, fila.Circuito);
        vaSpread1->PonTexto(r, kUnidades, fila.Unidades);
    }
}

/// Rows 1 to `filas` of the grid as they stand, without numbers. Raises 9 below 1.
Tabla1<FilaCanal> frmAnalog::LeeFilas(int filas)
{
    Tabla1<FilaCanal> leidas(filas);
    for (int r = 1; r <= filas; ++r)
        leidas(r) = {
            {}, vaSpread1->Texto(r, kNombre), vaSpread1->Texto(r, kCircuito), vaSpread1->Texto(r, kUnidades)};
    return leidas;
}

/// The number of channels as it stands. Raises 13, 6.
std::int16_t frmAnalog::Cuenta() const
{
    const std::string texto = U(txtnumAnalog->text());
    return texto.empty() ? std::int16_t{0} : Entero16Local(texto);
}

void frmAnalog::txtIdentif_Change()
{
    if (txtIdentif->toPlainText().endsWith('\n')) txtnumAnalog->setFocus();
}

/// The table follows the number at once: from the channels of its source over what was typed, or, where the
/// page is the only source, from what was typed into `CanalesPlan`.
void frmAnalog::txtnumAnalog_Change()
{
    const std::string texto = U(txtnumAnalog->text());
    if (!texto.empty()) NumeroLocal(Derecha(texto, 1));
    const std::int16_t n = Cuenta();
    vaSpread1->TerminaEdicion();
    if (n != 0 && SinOrigen(store)) {
        store.CanalesPlan = LeeFilas(n);
        vaSpread1->PonFilas(n);
    } else if (n != 0) {
        vaSpread1->PonFilas(n);
        MuestraFilas(FilasDeOrigen(store, n));
    }
    vaSpread1->PonFilas(n);
    PonTitulos();
}

/// The plain text of a text box would turn no-break spaces, which a template may hold, into blanks.
std::string frmAnalog::Identificacion() const
{
    QString texto = txtIdentif->document()->toRawText();
    return UnaLinea(U(texto.remove(QChar::ParagraphSeparator).remove(QChar::LineSeparator)));
}

void frmAnalog::cmdOK_Click()
{
    AvisaTipos(175, Icono::Critico, [this] {
        vaSpread1->TerminaEdicion();
        store.EstacionPlan = std::string(Recorta(Identificacion()));
        store.NumCanalPlan = Cuenta();
        if (store.NumCanalPlan == 0) {
            Avisa(Textos(244));
            return;
        }
        const Tabla1<FilaCanal> filas = LeeFilas(store.NumCanalPlan);
        if (const int fila = FilaSinNombre(filas)) {
            Avisa(Textos(275) + FormaDelimitada(fila));
            return;
        }
        GuardaCanales(store, filas);
        hide();
        AbreTrifasic();
    });
}

void frmAnalog::cmdvolver_Click()
{
    vaSpread1->TerminaEdicion();
    store.EstacionPlan = Identificacion();
    store.NumCanalPlan = Cuenta();
    if (store.NumCanalPlan != 0) GuardaCanales(store, LeeFilas(store.NumCanalPlan));
    VuelveASeleccion();
}

void frmAnalog::cmdcancel_Click()
{
    CancelaPaginas();
}

void frmAnalog::cmdmodelos_Click()
{
    AbreModelos();
}

void frmAnalog::TrasCierre()
{
    CancelaPaginas();
}

void frmAnalog::TrasError()
{
    Descarga();
    VuelveASeleccion();
}

}  // namespace veldix
