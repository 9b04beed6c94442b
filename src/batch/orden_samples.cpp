#include <algorithm>
#include <ostream>

#include "batch/ordenes.h"
#include "platform/numeros.h"

namespace veldix {

namespace {

std::string Cabecera(int analogicos, int digitales)
{
    std::string linea = "sample,time_us";
    for (int c = 1; c <= analogicos; ++c)
        linea += ",A" + std::to_string(c);
    for (int k = 1; k <= digitales; ++k)
        linea += ",D" + std::to_string(k);
    return linea + "\n";
}

std::string LineaMuestra(const RecordStore& s, int i)
{
    std::string linea = std::to_string(i) + "," + TextoExacto(s.Tiempos(i));
    const float* x = s.Muestras.fila(i);
    for (int c = 0; c < s.Muestras.Columnas(); ++c)
        linea += "," + TextoExacto(x[c]);
    if (!s.MuestrasDig.Vacia()) {
        const std::int16_t* d = s.MuestrasDig.fila(i);
        for (int k = 0; k < s.MuestrasDig.Columnas(); ++k)
            linea += "," + std::to_string(d[k]);
    }
    return linea + "\n";
}

}  // namespace

Salida OrdenSamples(const Argumentos& a, const Consola& consola)
{
    if (!AbreRegistroDe(a.sueltos[0], consola)) return Salida::Fallida;
    AplicaReferenciaDe(a, consola);
    consola.resultados << Cabecera(store.Muestras.Columnas(), store.MuestrasDig.Columnas());
    for (int i = 1; i <= store.Muestras.Filas() && consola.resultados; ++i)
        consola.resultados << LineaMuestra(store, i);
    return Salida::Hecha;
}

}  // namespace veldix
