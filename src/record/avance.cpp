#include "record/avance.h"

#include "platform/enteros.h"

namespace veldix {

GanchosRegistro ganchosRegistro;

void EscribeSesion()
{
    if (ganchosRegistro.EscribeSesion) ganchosRegistro.EscribeSesion();
}

void MuestraGasolino()
{
    if (ganchosRegistro.MuestraGasolino) ganchosRegistro.MuestraGasolino();
}

void DescargaGasolino()
{
    if (ganchosRegistro.DescargaGasolino) ganchosRegistro.DescargaGasolino();
}

void LlenarGasolino(bool relativo, std::int16_t valor)
{
    if (ganchosRegistro.LlenarGasolino) ganchosRegistro.LlenarGasolino(relativo, valor);
}

void MuestraGasolino2(int maximo)
{
    if (ganchosRegistro.MuestraGasolino2) ganchosRegistro.MuestraGasolino2(maximo);
}

void PonGasolino2(int valor)
{
    if (ganchosRegistro.PonGasolino2) ganchosRegistro.PonGasolino2(valor);
}

void DescargaGasolino2()
{
    if (ganchosRegistro.DescargaGasolino2) ganchosRegistro.DescargaGasolino2();
}

PasoGasolino::PasoGasolino(int muestras) : paso_(Entero16(muestras / 90.0)) {}

}  // namespace veldix
