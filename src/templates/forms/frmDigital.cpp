#include "templates/forms/frmDigital.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/forms/doble_clic.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "templates/conjunto_plantilla.h"
#include "templates/forms/cadena.h"

namespace veldix {

Portador<frmDigital> frmDigital::unica;

frmDigital::frmDigital() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName("frmDigital");
    setWindowTitle(Q(Rotulo(47, "Canales Digitales")));
    CreaControles();
    Dispone();
    ConectaTodo();
    Atrapa(this, [this] { Form_Load(); });
    Centra(*this);
}

void frmDigital::CreaControles()
{
    List1 = new QListWidget(this);
    List1->setObjectName("List1");
    List1->setMinimumWidth(List1->fontMetrics().averageCharWidth() * 30);
    filas_ = new FilasRanura(
        GruposDigitales::kFilas, this,
        {.editable = true, .nombre = Q(Rotulo(49, "Name:")), .numero = Q(Rotulo(48, "Number:"))});
    List2 = new ListaClic(this);
    List2->setObjectName("List2");
    List2->setMinimumWidth(List2->fontMetrics().averageCharWidth() * 26);
    txtGrupos = CreaEtiqueta(this, "txtGrupos");
    txtnbgrp = new QLineEdit(this);
    txtnbgrp->setObjectName("txtnbgrp");
    cmdAñadir = CreaBoton(this, "cmdAñadir", 240, "Añadir");
    cmdEliminar = CreaBoton(this, "cmdEliminar", 241, "Eliminar");
    botones_.emplace(this, 38, "Continuar");
}

/// A captioned frame around controls, one below the other; the first takes the room that is left.
QGroupBox* frmDigital::CreaMarco(const char* nombre, int texto, const char* defecto,
                                 std::initializer_list<QWidget*> controles)
{
    auto* marco = new QGroupBox(Q(Rotulo(texto, defecto)), this);
    marco->setObjectName(nombre);
    auto* columna = new QVBoxLayout(marco);
    for (QWidget* control : controles) {
        control->setAccessibleName(marco->title());
        columna->addWidget(control);
    }
    return marco;
}

void frmDigital::Dispone()
{
    auto* derecha = new QVBoxLayout;
    derecha->addWidget(CreaMarco("Frame3", 238, "Digital groups", {List2}), 1);
    derecha->addWidget(CreaMarco("Frame4", 48, "Number:", {txtGrupos}));
    derecha->addWidget(CreaMarco("Frame5", 49, "Name:", {txtnbgrp}));
    auto* deGrupo = new QHBoxLayout;
    deGrupo->addWidget(cmdAñadir);
    deGrupo->addWidget(cmdEliminar);
    derecha->addLayout(deGrupo);
    auto* columnas = new QHBoxLayout;
    columnas->addWidget(CreaMarco("Frame2", 250, "Flags digitales:", {List1}), 1);
    columnas->addWidget(CreaMarco("Frame1", 251, "group composition:", {filas_}), 1);
    columnas->addLayout(derecha);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(columnas, 1);
    todo->addSpacing(6);
    todo->addLayout(botones_->linea);
}

void frmDigital::ConectaTodo()
{
    ConectaDobleClic(List1, this, &frmDigital::List1_DblClick);
    Conecta(List2, &ListaClic::Click, this, &frmDigital::List2_Click);
    Conecta(filas_, &FilasRanura::Click, this, &frmDigital::grp_Click);
    Conecta(filas_, &FilasRanura::DblClick, this, &frmDigital::grp_DblClick);
    Conecta(filas_, &FilasRanura::Change, this, &frmDigital::grp_Change);
    Conecta(filas_, &FilasRanura::CambiaNumero, this, &frmDigital::lbl_Change);
    Conecta(txtnbgrp, &QLineEdit::textChanged, this, [](frmDigital* f) { f->txtnbgrp_Change(); });
    ConectaEnter(txtnbgrp, this, &frmDigital::cmdAñadir_Click);
    Conecta(cmdAñadir, &QPushButton::clicked, this, &frmDigital::cmdAñadir_Click);
    Conecta(cmdEliminar, &QPushButton::clicked, this, &frmDigital::cmdEliminar_Click);
    botones_->ConectaA(this, &frmDigital::cmdvolver_Click, &frmDigital::cmdOK_Click,
                       &frmDigital::cmdcancel_Click);
}

void frmDigital::Form_Load()
{
    for (const std::string& canal : CanalesDigitales(store))
        List1->addItem(Q(canal));
    grupos_.Abre();
    const bool elige = store.PlantillaModifica && !grupos_.Lista().empty();
    MuestraLista(elige ? 1 : 0);
    MuestraPagina();
}

void frmDigital::MuestraFilas()
{
    filas_->Muestra(grupos_.Filas());
}

void frmDigital::MuestraPagina()
{
    txtnbgrp->setText(Q(grupos_.NombreActual()));
    MuestraFilas();
}

/// Names and number of the groups; choosing one of them here is no click of the user's.
void frmDigital::MuestraLista(int elegido)
{
    const QSignalBlocker callada(List2);
    List2->clear();
    for (const std::string& nombre : grupos_.Lista())
        List2->addItem(Q(nombre));
    if (elegido > 0) List2->setCurrentRow(elegido - 1);
    txtGrupos->setText(Q(FormaDelimitada(store.NumGruposDigPlan)));
    txtGrupos->setAccessibleName(Q(Rotulo(48, "Number:")) + " " + txtGrupos->text());
}

void frmDigital::List1_DblClick()
{
    const int indice = List1->currentRow();
    if (indice < 0) return;
    if (txtGrupos->text().isEmpty() || store.NumGruposDigPlan == 0 || txtnbgrp->text().isEmpty()) {
        PunteroNormal();
        Avisa(Textos(249), Icono::Informacion);
        return;
    }
    const std::string TextoCanal = U(List1->item(indice)->text());
    if (grupos_.Filas().Pon(TextoCanal, indice + 1) == Ranuras::Puesta::Llena) {
        Avisa(Textos(184));
        return;
    }
    MuestraFilas();
}

void frmDigital::grp_Click(int k)
{
    grupos_.Filas().Marca(k);
    MuestraFilas();
}

void frmDigital::grp_DblClick(int k)
{
    grupos_.Filas().Vacia(k);
    MuestraFilas();
}

/// The characters that part the fields of a template's lines do not stay in a name.
void frmDigital::grp_Change(int k)
{
    const std::string texto = U(filas_->Texto(k));
    grupos_.Filas().EscribeTexto(k, texto);
    const int aviso = Coincide(texto, "*%*") ? 176 : Coincide(texto, "*$*") ? 177 : 0;
    if (aviso == 0) return;
    PunteroNormal();
    Avisa(Textos(aviso), Icono::Critico);
    grupos_.Filas().EscribeTexto(k, {});
    MuestraFilas();
}

/// The number is only tried: the text stays as it is.
void frmDigital::lbl_Change(int k)
{
    const std::string texto = U(filas_->Numero(k));
    grupos_.Filas().EscribeNumero(k, texto);
    if (texto.empty()) return;
    AvisaTipos(175, Icono::Critico, [&] {
        NumeroLocal(Derecha(texto, 1));
        Entero16Local(texto);
    });
}

void frmDigital::txtnbgrp_Change()
{
    if (txtGrupos->text().isEmpty()) Avisa(Textos(182));
}

void frmDigital::List2_Click()
{
    grupos_.Elige(List2->Elegida() + 1, U(txtnbgrp->text()));
    MuestraPagina();
}

void frmDigital::cmdAñadir_Click()
{
    const GruposDigitales::Alta alta = grupos_.Anade(U(txtnbgrp->text()));
    if (alta == GruposDigitales::Alta::Llena) {
        Avisa(Textos(150), Icono::Critico);
        txtnbgrp->setText(Q(grupos_.NombreActual()));
        return;
    }
    if (alta == GruposDigitales::Alta::Hecha) MuestraLista(grupos_.GrupoActual());
    MuestraFilas();
}

void frmDigital::cmdEliminar_Click()
{
    const int grupo = List2->Elegida() + 1;
    if (grupo == 0 || !Pregunta(Textos(252))) return;
    grupos_.Elimina(grupo, U(txtnbgrp->text()));
    MuestraLista(grupos_.Lista().empty() ? 0 : grupos_.GrupoActual());
    MuestraPagina();
}

void frmDigital::cmdOK_Click()
{
    const int vacio = grupos_.Cierra(U(txtnbgrp->text()));
    MuestraFilas();
    if (vacio != 0) {
        PunteroNormal();
        Avisa(Textos(179) + FormaDelimitada(vacio) + Textos(180), Icono::Critico);
        return;
    }
    hide();
    AbreSalvaPlan();
}

void frmDigital::cmdvolver_Click()
{
    grupos_.Guarda(U(txtnbgrp->text()));
    hide();
    MuestraTrifasic();
}

void frmDigital::cmdcancel_Click()
{
    CancelaPaginas();
}

void frmDigital::TrasCierre()
{
    MuestraTrifasic();
}

void frmDigital::TrasError()
{
    Descarga();
    TrasCierre();
}

}  // namespace veldix
