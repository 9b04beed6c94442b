#include "shell/forms/frmDirect.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <optional>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "tools/tools_ini.h"

namespace veldix {

Portador<frmDirect> frmDirect::unica;

frmDirect::frmDirect() : Formulario(escena.principal, Qt::Dialog)
{
    setObjectName(QStringLiteral("frmDirect"));
    CreaControles();
    Dispone();
    Atrapa(this, [this] { Form_Load(); });
    Conecta(oscilos.drv, &ListaUnidades::Cambio, this, &frmDirect::drvoscilos_Change);
    Conecta(plantillas.drv, &ListaUnidades::Cambio, this, &frmDirect::drvplantillas_Change);
    Conecta(aplic.drv, &ListaUnidades::Cambio, this, &frmDirect::drvaplic_Change);
    Conecta(oscilos.dir, &ListaCarpetas::Elige, this, &frmDirect::diroscilos_Change);
    Conecta(plantillas.dir, &ListaCarpetas::Elige, this, &frmDirect::dirplantillas_Change);
    Conecta(aplic.dir, &ListaCarpetas::Elige, this, &frmDirect::diraplic_Change);
    Conecta(cmdOK, &QPushButton::clicked, this, &frmDirect::cmdOK_Click);
    Conecta(cmdcancel, &QPushButton::clicked, this, &frmDirect::cmdcancel_Click);
}

void frmDirect::CreaControles()
{
    setWindowTitle(SinAcelerador(Q(Rotulo(192, "Configuración de &directorios"))));
    oscilos.destino = &store.DirDatos;
    plantillas.destino = &store.DirPlantillas;
    aplic.destino = &store.DirAplic;
    CreaCarpeta(oscilos, QStringLiteral("oscilos"), Rotulo(188, "Directorio de registros:"));
    CreaCarpeta(plantillas, QStringLiteral("plantillas"), Rotulo(189, "Directorio de plantillas:"));
    CreaCarpeta(aplic, QStringLiteral("aplic"), Rotulo(190, "Directorio de herramientas:"));
    cmdOK = CreaBoton(this, "cmdOK", 24, "Aceptar");
    cmdcancel = CreaBoton(this, "cmdcancel", 25, "Cancelar");
    PonBotones(cmdOK, cmdcancel);
}

void frmDirect::CreaCarpeta(Carpeta& carpeta, const QString& sufijo, const std::string& rotulo)
{
    carpeta.rotulo = new QLabel(Q(rotulo), this);
    carpeta.rotulo->setObjectName(QStringLiteral("lbl") + sufijo);
    carpeta.txt = new QLineEdit(this);
    carpeta.txt->setObjectName(QStringLiteral("txt") + sufijo);
    carpeta.drv = new ListaUnidades(this);
    carpeta.drv->setObjectName(QStringLiteral("drv") + sufijo);
    carpeta.dir = new ListaCarpetas(this);
    carpeta.dir->setObjectName(QStringLiteral("dir") + sufijo);
    carpeta.rotulo->setBuddy(carpeta.txt);
    for (QWidget* control : {static_cast<QWidget*>(carpeta.txt), static_cast<QWidget*>(carpeta.drv),
                             static_cast<QWidget*>(carpeta.dir)})
        control->setAccessibleName(Q(rotulo));
}

void frmDirect::Dispone()
{
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(16);
    for (const Carpeta* carpeta : Carpetas()) {
        auto* columna = new QVBoxLayout;
        columna->setSpacing(6);
        columna->addWidget(carpeta->rotulo);
        columna->addWidget(carpeta->txt);
        columna->addWidget(carpeta->drv);
        columna->addWidget(carpeta->dir, 1);
        columnas->addLayout(columna, 1);
    }
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmdOK);
    botones->addWidget(cmdcancel);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(columnas, 1);
    todo->addSpacing(6);
    todo->addLayout(botones);
}

/// A folder that is gone leaves its list at the program's current one and the field as it is, so that it
/// can be mended; the first failure is raised when all three have been tried.
void frmDirect::Form_Load()
{
    Centra(*this);
    for (const Carpeta* carpeta : Carpetas())
        carpeta->txt->setText(Q(*carpeta->destino));
    std::optional<ErrorEjecucion> primero;
    for (const Carpeta* carpeta : Carpetas()) {
        try {
            carpeta->drv->Pon(*carpeta->destino);
            carpeta->dir->Pon(*carpeta->destino);
        } catch (const ErrorEjecucion& e) {
            if (!primero) primero = e;
        }
    }
    if (primero) throw ErrorEjecucion(*primero);
}

QString frmDirect::Ruta(const Carpeta& carpeta)
{
    return Q(carpeta.dir->Ruta());
}

void frmDirect::UnidadElegida(const Carpeta& carpeta)
{
    if (SigueUnidad(*carpeta.drv, *carpeta.dir)) carpeta.txt->setText(Ruta(carpeta));
}

void frmDirect::cmdOK_Click()
{
    constexpr std::array avisos{169, 170, 171};
    for (std::size_t i = 0; i < avisos.size(); ++i) {
        const Carpeta& carpeta = *Carpetas()[i];
        const std::string elegida = U(carpeta.txt->text());
        if (!ExisteCarpeta(elegida)) {
            Avisa(Textos(avisos[i]), Icono::Critico);
            return;
        }
        *carpeta.destino = elegida;
    }
    Guarda();
    Descarga();
}

/// Puts the folders into the file, its tools as they stand there.
void frmDirect::Guarda()
{
    const ToolsIni t = LeeToolsIni(store);
    store.Idioma = t.Idioma;
    EscribeHerramientas(store, t);
}

void frmDirect::cmdcancel_Click()
{
    Descarga();
}

}  // namespace veldix
