#include "waves/forms/ElectorOndas.h"

#include "platform/forms/doble_clic.h"
#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"

namespace veldix {

ElectorOndas::ElectorOndas(const char* nombre, const char* marco, Ranuras ranuras)
    : Formulario(escena.principal, Qt::Dialog),
      List1(new QListWidget(this)),
      referencia_(new MarcoReferencia(marco, this)),
      ranuras_(std::move(ranuras))
{
    setObjectName(nombre);
    List1->setObjectName("List1");
    ConectaDobleClic(List1, this, &ElectorOndas::List1_DblClick);
}

FilasRanura* ElectorOndas::CreaFilas(int cuantas, QGroupBox* marco, int primera)
{
    auto* filas = new FilasRanura(cuantas, marco, {.primera = primera, .nombre = marco->title()});
    Conecta(filas, &FilasRanura::Click, this, &ElectorOndas::grp_Click);
    Conecta(filas, &FilasRanura::DblClick, this, &ElectorOndas::grp_DblClick);
    Conecta(filas, &FilasRanura::Change, this, &ElectorOndas::grp_Change);
    filas->Muestra(ranuras_);
    filas_.push_back(filas);
    return filas;
}

void ElectorOndas::LlenaLista()
{
    for (int r = 1; r <= store.NumCanalAnalog; ++r)
        List1->addItem(Q(NombreCanal(store, r)));
    if (List1->count() > 0) List1->setCurrentRow(0);
    List1->setFocus();
}

void ElectorOndas::MuestraRanuras()
{
    for (FilasRanura* filas : filas_)
        filas->Muestra(ranuras_);
}

void ElectorOndas::List1_DblClick()
{
    const int indice = List1->currentRow();
    if (indice < 0) return;
    if (ranuras_.Pon(U(List1->item(indice)->text()), indice + 1) == Ranuras::Puesta::Llena) {
        PonPuntero(this, Puntero::Normal);
        Avisa(Textos(272), Icono::Critico);
        return;
    }
    MuestraRanuras();
}

void ElectorOndas::grp_Click(int k)
{
    ranuras_.Marca(k);
    MuestraRanuras();
}

void ElectorOndas::grp_DblClick(int k)
{
    ranuras_.Vacia(k);
    MuestraRanuras();
}

void ElectorOndas::grp_Change(int k)
{
    AvisaSeparadores(ranuras_(k).texto);
}

void ElectorOndas::Rechaza(int texto, Icono icono)
{
    abriendo_ = false;
    PonPunteros(this, Puntero::Normal);
    Avisa(Textos(texto), icono);
}

void ElectorOndas::EmpiezaApertura(int avance)
{
    abriendo_ = true;
    PonPunteros(this, Puntero::Propio);
    hide();
    escena.muestraGasolinoOndas(Q(Rotulo(285, "Preparando las ondas...")));
    escena.ponGasolinoOndas(avance);
}

void ElectorOndas::AcabaApertura()
{
    escena.descargaGasolinoOndas();
    PonPunteros(this, Puntero::Normal);
    Descarga();
}

/// After any other handler's error the dialog stays.
void ElectorOndas::TrasError()
{
    if (!abriendo_) return;
    escena.descargaGasolinoOndas();
    Deshace();
    PonPunteros(this, Puntero::Normal);
    escena.muestraMenu();
    Descarga();
}

void ElectorOndas::Form_Unload()
{
    PonPunteros(this, Puntero::Normal);
}

}  // namespace veldix
