#include "templates/forms/cadena.h"

#include "record/record_store.h"
#include "templates/forms/frmAnalog.h"
#include "templates/forms/frmBaseModelo.h"
#include "templates/forms/frmDigital.h"
#include "templates/forms/frmPlantilla.h"
#include "templates/forms/frmSalvaPlan.h"
#include "templates/forms/frmTrifasic.h"

namespace veldix {

namespace {

template <class Pagina>
void MuestraDeNuevo(const Portador<Pagina>& unica)
{
    if (Pagina* pagina = unica.Cargado()) pagina->show();
}

}  // namespace

void EmpiezaPaginas()
{
    AbandonaPaginas();
    // A file without groups leaves the rows of the one read before it.
    if (store.NumGruposDigPlan < 1) store.GruposDigPlan = {};
    frmAnalog::unica.Muestra();
}

void AbreTrifasic()
{
    frmTrifasic::unica.Muestra();
}

void AbreDigital()
{
    frmDigital::unica.Muestra();
}

void AbreSalvaPlan()
{
    frmSalvaPlan::unica.Muestra();
}

void VuelveASeleccion()
{
    DescargaPaginas();
    store.VuelveAnalog = true;
    if (frmPlantilla* seleccion = frmPlantilla::unica.Cargado())
        seleccion->show();
    else
        frmPlantilla::unica.Muestra();
}

void AbreModelos()
{
    frmAnalog::unica.Descarga();
    frmBaseModelo::unica.Muestra();
}

void VuelveDeModelos()
{
    frmBaseModelo::unica.Descarga();
    frmAnalog::unica.Muestra();
}

void MuestraAnalogicos()
{
    MuestraDeNuevo(frmAnalog::unica);
}

void MuestraTrifasic()
{
    MuestraDeNuevo(frmTrifasic::unica);
}

void MuestraDigital()
{
    MuestraDeNuevo(frmDigital::unica);
}

void DescargaPaginas()
{
    frmAnalog::unica.Descarga();
    frmTrifasic::unica.Descarga();
    frmDigital::unica.Descarga();
}

void AbandonaPaginas()
{
    DescargaPaginas();
    frmBaseModelo::unica.Descarga();
    frmSalvaPlan::unica.Descarga();
}

void CancelaPaginas()
{
    store.VuelveAnalog = false;
    DescargaPaginas();
}

}  // namespace veldix
