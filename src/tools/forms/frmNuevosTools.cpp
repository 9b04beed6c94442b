#include "tools/forms/frmNuevosTools.h"

#include <QGridLayout>

#include <utility>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "tools/tools_ini.h"

namespace veldix {

Portador<frmNuevosTools> frmNuevosTools::unica;

frmNuevosTools::frmNuevosTools() : Formulario(escena.principal, Qt::Dialog), nuevo_(store.NuevoTool)
{
    setObjectName("frmNuevosTools");
    CreaControles();
    Dispone();
    Conecta(File1, &ListaFicheros::Click, this, &frmNuevosTools::File1_Click);
    Conecta(List1, &ListaClic::Click, this, &frmNuevosTools::List1_Click);
    Conecta(cmdOK, &QPushButton::clicked, this, &frmNuevosTools::cmdOK_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmNuevosTools::cmdcancel_Click);
    const bool listo = Atrapa(this, [this] { nuevo_ ? ModoNuevo() : ModoBorrar(); });
    if (!listo && !nuevo_) Descarga();  // there is nothing to remove
    Centra(*this);
}

void frmNuevosTools::CreaControles()
{
    txtNombre = new QLineEdit(this);
    txtNombre->setObjectName("txtNombre");
    txtPath = new QLineEdit(this);
    txtPath->setObjectName("txtPath");
    File1 = new ListaFicheros(this);
    File1->setObjectName("File1");
    carpetas_ = new ElectorCarpetas(this);
    List1 = new ListaClic(this);
    List1->setObjectName("List1");
    Label1 = CreaRotulo(txtNombre, "Label1", Rotulo(55, "Nombre de la herramienta:"));
    Label2 = CreaRotulo(txtPath, "Label2", Rotulo(56, "Programa:"));
    Label3 = CreaRotulo(File1, "Label3", U(SinAcelerador(Q(Rotulo(1, "&Ficheros"))) + ":"));
    Label6 = CreaRotulo(List1, "Label6", U(SinAcelerador(Q(Rotulo(9, "Herramientas de Análisis"))) + ":"));
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "Cancelar");
    PonBotones(cmdOK, cmdcancel);
}

void frmNuevosTools::Dispone()
{
    const auto columna = [](QLabel* rotulo, ListaClic* lista) {
        auto* c = new QVBoxLayout;
        c->setSpacing(6);
        c->addWidget(rotulo);
        c->addWidget(lista, 1);
        return c;
    };
    auto* listas = new QHBoxLayout;
    listas->setSpacing(16);
    listas->addLayout(columna(Label3, File1), 1);
    listas->addWidget(carpetas_, 1);
    listas->addLayout(columna(Label6, List1), 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmdOK);
    botones->addWidget(cmdcancel);
    auto* todo = new QGridLayout(this);
    todo->setVerticalSpacing(6);
    todo->addWidget(Label1, 0, 0);
    todo->addWidget(txtNombre, 0, 1);
    todo->addWidget(Label2, 1, 0);
    todo->addWidget(txtPath, 1, 1);
    todo->addLayout(listas, 2, 0, 1, 2);
    todo->addLayout(botones, 3, 0, 1, 2);
    todo->setRowStretch(2, 1);
}

/// A default folder that has gone leaves the lists where the program stands, so that another can be chosen. A
/// folder is shown as the path only when the user goes to it: it may end like a program.
void frmNuevosTools::ModoNuevo()
{
    setWindowTitle(Q(Rotulo(53, "Añadir herramienta de análisis")));
    Label6->setEnabled(false);
    List1->setEnabled(false);
    const bool esta = Intenta([this] { carpetas_->Pon(store.DirAplic); });
    File1->Pon(carpetas_->Carpeta(), "*");
    Conecta(carpetas_->Dir1, &ListaCarpetas::Cambio, this, &frmNuevosTools::Dir1_Change);
    if (!esta) Lanza(error::kRutaNoEncontrada);
}

void frmNuevosTools::ModoBorrar()
{
    setWindowTitle(Q(Rotulo(54, "Eliminar herramienta de análisis")));
    Intenta([this] { carpetas_->Pon(store.DirAplic); });
    for (QLineEdit* campo : {txtNombre, txtPath}) {
        QPalette p = campo->palette();
        p.setBrush(QPalette::Base, p.window());
        campo->setPalette(p);
        campo->setReadOnly(true);
    }
    carpetas_->setEnabled(false);
    Label3->setEnabled(false);
    File1->setEnabled(false);
    for (const std::string& linea : LeeToolsIni(store).herramientas) {
        herramientas_.push_back(ParteHerramienta(linea));
        List1->addItem(Q(herramientas_.back().nombre));
    }
    List1->setFocus();
}

void frmNuevosTools::File1_Click()
{
    txtPath->setText(Q(UneRuta(carpetas_->Carpeta(), File1->Fichero())));
}

void frmNuevosTools::Dir1_Change()
{
    txtPath->setText(Q(carpetas_->Carpeta()));
    File1->Pon(carpetas_->Carpeta(), "*");
}

const Herramienta& frmNuevosTools::Elegida() const
{
    return herramientas_.at(static_cast<std::size_t>(List1->Elegida()));
}

void frmNuevosTools::List1_Click()
{
    txtNombre->setText(Q(Elegida().nombre));
    txtPath->setText(Q(Elegida().orden));
}

void frmNuevosTools::cmdOK_Click()
{
    if (nuevo_)
        Anade();
    else if (List1->Elegida() >= 0)
        Borra();
}

void frmNuevosTools::Anade()
{
    const Herramienta nueva{UnaLinea(U(txtNombre->text())), UnaLinea(U(txtPath->text()))};
    ToolsIni ini;
    int texto = RechazoHerramienta({}, nueva);  // what the settings have no part in comes first
    if (texto == 0) {
        ini = LeeToolsIni(store);
        texto = RechazoHerramienta(ini.herramientas, nueva);
    }
    if (texto != 0) {
        Avisa(Textos(texto), Icono::Exclamacion);
        return;
    }
    ini.herramientas.push_back(nueva.nombre + "=" + nueva.orden);
    EscribeHerramientas(store, std::move(ini));
    escena.ActualizaTools();
    Descarga();
}

/// By its name: of several tools of one name the first goes.
void frmNuevosTools::Borra()
{
    ToolsIni ini = LeeToolsIni(store);
    if (BorraHerramienta(ini.herramientas, Elegida().nombre)) EscribeHerramientas(store, std::move(ini));
    escena.ActualizaTools();
    Descarga();
}

void frmNuevosTools::cmdcancel_Click()
{
    Descarga();
}

}  // namespace veldix
