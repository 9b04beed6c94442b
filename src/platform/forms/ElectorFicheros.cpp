#include "platform/forms/ElectorFicheros.h"

#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"

namespace veldix {

ElectorFicheros::ElectorFicheros(const char* nombreCabecera, const char* nombreRuta, QWidget* padre)
    : QWidget(padre),
      File1(new ListaFicheros(this)),
      Dir1(new ListaCarpetas(this)),
      Drive1(new ListaUnidades(this)),
      cabecera(new QHBoxLayout),
      pie(new QHBoxLayout),
      ruta_(new EtiquetaRuta(this))
{
    File1->setObjectName("File1");
    Dir1->setObjectName("Dir1");
    Drive1->setObjectName("Drive1");
    ruta_->setObjectName(nombreRuta);
    ruta_->PonRuta(Q(Carpeta()));
    Dispone(nombreCabecera);
    connect(Dir1, &ListaCarpetas::Cambio, this,
            [this] { Atrapa(FormularioDe(this), [this] { Dir1_Change(); }); });
    connect(Drive1, &ListaUnidades::Cambio, this,
            [this] { Atrapa(FormularioDe(this), [this] { Drive1_Change(); }); });
}

void ElectorFicheros::Dispone(const char* nombreCabecera)
{
    auto* camino = new QHBoxLayout;
    camino->addWidget(CreaRotulo(ruta_, "label", Rotulo(20, "Path:")));
    camino->addWidget(ruta_, 1);
    cabecera->addWidget(CreaRotulo(File1, nombreCabecera, Rotulo(26, "Plantillas:")));
    auto* unidades = new QHBoxLayout;
    QLabel* rotuloUnidades = CreaRotulo(Drive1, "Label5", Rotulo(22, "Unidades:"));
    rotuloUnidades->setVisible(Drive1->count() > 0);
    unidades->addWidget(rotuloUnidades);
    unidades->addWidget(Drive1, 1);

    constexpr int kEntreLineas = 6, kEntreColumnas = 16;
    auto* ficheros = new QVBoxLayout;
    ficheros->setSpacing(kEntreLineas);
    ficheros->addLayout(cabecera);
    ficheros->addWidget(File1, 1);
    ficheros->addLayout(pie);
    auto* carpetas = new QVBoxLayout;
    carpetas->setSpacing(kEntreLineas);
    carpetas->addWidget(CreaRotulo(Dir1, "Label4", Rotulo(21, "Directorios:")));
    carpetas->addWidget(Dir1, 1);
    carpetas->addLayout(unidades);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(kEntreColumnas);
    columnas->addLayout(ficheros, 1);
    columnas->addLayout(carpetas, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addLayout(camino);
    todo->addSpacing(6);
    todo->addLayout(columnas, 1);
}

void ElectorFicheros::Pon(const std::string& carpeta)
{
    Drive1->Pon(carpeta);
    Dir1->Pon(carpeta);
}

void ElectorFicheros::PonPatron(const std::string& patron)
{
    patron_ = patron;
    File1->Pon(Carpeta(), patron_);
}

void ElectorFicheros::Dir1_Change()
{
    ruta_->PonRuta(Q(Carpeta()));
    File1->Pon(Carpeta(), patron_);
}

void ElectorFicheros::Drive1_Change()
{
    try {
        Dir1->Pon(Drive1->Unidad());
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kDispositivo) throw;
        Avisa(Textos(149), Icono::Critico);
    }
}

}  // namespace veldix
