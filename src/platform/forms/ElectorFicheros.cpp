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
      carpetas(new ElectorCarpetas(this)),
      cabecera(new QHBoxLayout),
      pie(new QHBoxLayout),
      ruta_(new EtiquetaRuta(this))
{
    File1->setObjectName("File1");
    ruta_->setObjectName(nombreRuta);
    ruta_->PonRuta(Q(Carpeta()));
    Dispone(nombreCabecera);
    connect(carpetas->Dir1, &ListaCarpetas::Cambio, this,
            [this] { Atrapa(FormularioDe(this), [this] { Dir1_Change(); }); });
}

void ElectorFicheros::Dispone(const char* nombreCabecera)
{
    auto* camino = new QHBoxLayout;
    camino->addWidget(CreaRotulo(ruta_, "label", Rotulo(20, "Path:")));
    camino->addWidget(ruta_, 1);
    cabecera->addWidget(CreaRotulo(File1, nombreCabecera, Rotulo(26, "Plantillas:")));
    constexpr int kEntreLineas = 6, kEntreColumnas = 16;
    auto* ficheros = new QVBoxLayout;
    ficheros->setSpacing(kEntreLineas);
    ficheros->addLayout(cabecera);
    ficheros->addWidget(File1, 1);
    ficheros->addLayout(pie);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(kEntreColumnas);
    columnas->addLayout(ficheros, 1);
    columnas->addWidget(carpetas, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addLayout(camino);
    todo->addSpacing(6);
    todo->addLayout(columnas, 1);
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

}  // namespace veldix
