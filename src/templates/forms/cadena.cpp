#include "templates/forms/cadena.h"

#include "templates/conjunto_plantilla.h"
#include "templates/forms/frmPlantilla.h"
#include "templates/forms/frmSalvaPlan.h"
#include "templates/forms/frmTrifasic.h"

namespace veldix {

namespace {

void VuelveASeleccion()
{
    DescargaPaginas();
    store.VuelveAnalog = true;
    if (frmPlantilla* seleccion = frmPlantilla::unica.Cargado())
        seleccion->show();
    else
        frmPlantilla::unica.Muestra();
}

/// In place of the analog page.
void PasaAnalogicos()
{
    CierraAnalogicos(store, AbreAnalogicos(store));
    // That page will insist on channels. Without them there is nothing to make groups of.
    if (store.PlantillaNueva && store.NumCanalPlan == 0) store.NumTrifasicPlan = 0;
}

/// In place of the digital page. That page will refuse a group without members, which could not be mended
/// here.
void PasaDigitales()
{
    AbreDigitales(store);
    SumaMiembros(store);
}

}  // namespace

void EmpiezaPaginas()
{
    frmSalvaPlan::unica.Descarga();  // of an earlier set-up: it would write this one's tables half edited
    if (Atrapa(nullptr, PasaAnalogicos))
        frmTrifasic::unica.Muestra();
    else
        VuelveASeleccion();
}

void SigueTrifasic()
{
    if (Atrapa(nullptr, PasaDigitales))
        frmSalvaPlan::unica.Muestra();
    else
        MuestraAntesDeGuardar();
}

void VuelveTrifasic()
{
    VuelveASeleccion();
}

void MuestraAntesDeGuardar()
{
    if (frmTrifasic* pagina = frmTrifasic::unica.Cargado()) pagina->show();
}

void DescargaPaginas()
{
    frmTrifasic::unica.Descarga();
}

void AbandonaPaginas()
{
    DescargaPaginas();
    frmSalvaPlan::unica.Descarga();
}

void CancelaPaginas()
{
    store.VuelveAnalog = false;
    DescargaPaginas();
}

}  // namespace veldix
